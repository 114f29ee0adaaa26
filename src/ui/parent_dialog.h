#pragma once

#include <array>
#include <string>

#include <QDialog>

#include "dictionary/parent_choice.h"

class QComboBox;
class QRadioButton;

namespace quorvane {

/// The dialog that asks for the parent of a group: an option and a drop-down list for the
/// candidates whose keys are as long as the group's own, and a second pair, hidden when it has
/// nothing to show, for the others.
class ParentDialog : public QDialog {
 public:
  /// The lists must outlive the dialog.
  explicit ParentDialog(const ParentLists& lists, QWidget* parent = nullptr);

  /// The group that is selected, however the dialog was closed; empty when there is none.
  std::string ParentGroup() const;

 private:
  QLayout* BuildChoice(std::size_t index);

  const ParentLists& lists_;
  std::array<QRadioButton*, 2> optCustomParent_{};
  std::array<QComboBox*, 2> cboCustomParent_{};
};

/// Asks with the dialog, above the active window.
class DialogParentChoice : public ParentChoice {
 public:
  std::string ShowDialog(const ParentLists& lists) override;
};

}  // namespace quorvane
