#pragma once

#include <QPlainTextEdit>

#include "findings/findings_table.h"
#include "findings/row_layout.h"

namespace quorvane {

/// A finding's line and those around it, with their numbers at the side. The line is marked by an
/// arrow at its number and bold type, the finding's cell in it by a line below it; the caret stands
/// there.
class LineView : public QPlainTextEdit {
 public:
  /// The finding's line must be one of the lines.
  LineView(const PlacedFinding& placed, const FileLines& lines, QWidget* parent = nullptr);

  /// What stands at the side of a line of the view, counted from 0.
  QString SideText(int block) const;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Mark(const PlacedFinding& placed, std::string_view line);
  void BuildSide(std::int32_t last);
  void PaintSide();

  std::int32_t first_ = 0;   // number of the first line shown
  std::int32_t marked_ = 0;  // and of the finding's
  QWidget* side_ = nullptr;  // the strip with the numbers
};

}  // namespace quorvane
