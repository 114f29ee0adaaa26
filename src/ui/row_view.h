#pragma once

#include <QDialog>

#include "findings/findings_table.h"
#include "findings/row_layout.h"
#include "findings/source_file.h"

class QBoxLayout;
class QPlainTextEdit;

namespace quorvane {

/// A finding in its file: the lines around it, and its row under the headings of its group, with
/// the cell that it is about. Nothing can be changed in it.
class RowView : public QDialog {
  Q_OBJECT

 public:
  /// The lines come from the text of a file that stands on the disk as it was checked; of any other
  /// file only the line that the report has kept is shown. Finding and text must outlive the
  /// dialog.
  RowView(const PlacedFinding& placed, SourceState state, const FileText& text,
          QWidget* parent = nullptr);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  FileLines KnownLines(const FileText& text) const;
  QString StateText() const;
  void BuildFinding(QBoxLayout& column);
  void BuildState(QBoxLayout& column);
  void BuildLines(QBoxLayout& column, const FileLines& lines);
  void BuildRow(QBoxLayout& column, const FileLines& lines);
  void BuildClose(QBoxLayout& column);

  const PlacedFinding placed_;
  const SourceState state_;
  QPlainTextEdit* txtRowLines_ = nullptr;  // none: no line is shown
};

/// Opens a finding's file and shows the finding in it until the user closes the view.
void ShowRow(const PlacedFinding& placed, SourceFile& source, QWidget* parent);

}  // namespace quorvane
