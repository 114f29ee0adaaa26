#pragma once

#include <array>

#include <QTimer>
#include <QWidget>

#include "findings/source_file.h"
#include "ui/findings_writer.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;

namespace quorvane {

class FindingsModel;

/// What the page needs from the program around it. All of it must outlive the page.
struct FindingsServices {
  Disk& disk;
  UserMessages& messages;
  FilePickers& pickers;
  FindingsWriters writers;  // none: nothing can be saved
};

/// The page of the window that lists the findings of the last run, to be sorted, filtered, copied,
/// saved, and looked at in their files.
class FindingsPage : public QWidget {
  Q_OBJECT

 public:
  explicit FindingsPage(const FindingsServices& services, QWidget* parent = nullptr);

  /// Takes the findings of a run in the place of those of the last one; of an empty report: lists
  /// nothing.
  void Show(FindingsReport report);

  /// How many findings there are, shown or not.
  std::size_t Count() const;

 private:
  void BuildControls();
  QLayout* BuildFilter();
  void BuildTable();
  QLayout* BuildActions();
  void ConnectControls();
  void AddShortcuts();

  void ApplyFilter();
  void GoToRows();
  void ClearFilter();
  void SortBy(int column);
  void UpdateControls();
  void CopySelectedRows();
  void ShowCurrentRow();

  /// Changes what the rows are and goes back to the finding that was the current one.
  template <typename Change>
  void KeepingCurrentRow(Change&& change);

  FindingsServices services_;
  SourceFile source_;
  QTimer filterTimer_;  // runs while the user types
  FindingsModel* model_ = nullptr;
  QLineEdit* txtFindingsFilter_ = nullptr;
  std::array<QCheckBox*, 3> chkFindingsSeverity_{};
  QTableView* tblFindings_ = nullptr;
  QLabel* lblFindingsCount_ = nullptr;
  QPushButton* cmdCopyFindings_ = nullptr;
  QPushButton* cmdSaveFindings_ = nullptr;
};

/// A count as it is shown: 1,234.
QString ShownCount(std::size_t count);

}  // namespace quorvane
