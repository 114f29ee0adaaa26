#include "ui/parent_dialog.h"

#include <QAbstractListModel>
#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/byte_text.h"
#include "ui/pointer_shape.h"

namespace quorvane {
namespace {

constexpr std::array<const char*, 2> OptionCaptions{"Groups with a key of the &same length:",
                                                    "&Other groups:"};
constexpr int ShownListLength = 20;
constexpr int ShownNameLength = 12;

/// A candidate list as the drop-down list reads it: entries are looked up when they are seen, as
/// there may be thousands.
class CandidateModel : public QAbstractListModel {
 public:
  CandidateModel(const CandidateList& candidates, QObject* parent)
      : QAbstractListModel(parent), candidates_(candidates) {}

  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(candidates_.Count());
  }

  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
    return ShownText(candidates_.At(static_cast<std::size_t>(index.row())).group);
  }

 private:
  const CandidateList& candidates_;
};

QString ArrayName(const char* name, std::size_t index) {
  return QStringLiteral("%1_%2").arg(QString::fromLatin1(name)).arg(index);
}

QString FileName(std::string_view path) {
  return ShownText(path.substr(path.find_last_of("\\/") + 1));
}

}  // namespace

ParentDialog::ParentDialog(const ParentLists& lists, QWidget* parent)
    : QDialog(parent), lists_(lists) {
  setObjectName(QStringLiteral("dlgCustomParent"));
  setWindowTitle(QStringLiteral("Parent Group - ") + FileName(lists.file));
  auto* column = new QVBoxLayout(this);

  auto* label = new QLabel(ShownText(lists.label), this);
  label->setObjectName(QStringLiteral("lblCustomParent"));
  label->setTextFormat(Qt::PlainText);
  column->addWidget(label);
  for (std::size_t index = 0; index < cboCustomParent_.size(); ++index)
    column->addLayout(BuildChoice(index));

  auto* close = new QPushButton(QStringLiteral("OK"), this);
  close->setObjectName(QStringLiteral("cmdCustomParent"));
  close->setDefault(true);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  column->addStretch(1);
  column->addWidget(close, 0, Qt::AlignRight);

  const ParentSelection selection = Preselection(lists);
  optCustomParent_[selection.option]->setChecked(true);
  cboCustomParent_[selection.option]->setFocus();
}

QLayout* ParentDialog::BuildChoice(std::size_t index) {
  const CandidateList& candidates = lists_.lists[index];
  auto* option = new QRadioButton(QString::fromLatin1(OptionCaptions[index]), this);
  option->setObjectName(ArrayName("optCustomParent", index));
  auto* list = new QComboBox(this);
  list->setObjectName(ArrayName("cboCustomParent", index));
  list->setAccessibleName(option->text().remove(u'&'));
  list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  list->setMinimumContentsLength(ShownNameLength);
  list->setMaxVisibleItems(ShownListLength);
  list->setModel(new CandidateModel(candidates, list));
  const std::size_t entry = Preselection(lists_).entry[index];
  list->setCurrentIndex(candidates.Count() > 0 ? static_cast<int>(entry) : -1);

  // Who picks from a list means that list.
  connect(list, &QComboBox::activated, option, [option] { option->setChecked(true); });
  const bool canBeChosen = candidates.Count() > 0;
  option->setEnabled(canBeChosen);
  list->setEnabled(canBeChosen);
  if (index == 1) {
    option->setVisible(lists_.ShowsSecondList());
    list->setVisible(lists_.ShowsSecondList());
  }
  optCustomParent_[index] = option;
  cboCustomParent_[index] = list;

  auto* row = new QHBoxLayout;
  row->addWidget(option);
  row->addWidget(list, 1);
  return row;
}

std::string ParentDialog::ParentGroup() const {
  ParentSelection selection;
  selection.option = optCustomParent_[0]->isChecked() ? 0 : 1;
  for (std::size_t index = 0; index < cboCustomParent_.size(); ++index) {
    // Without an entry the index is -1, which lies behind the end of any list.
    selection.entry[index] = static_cast<std::size_t>(cboCustomParent_[index]->currentIndex());
  }
  return quorvane::ParentGroup(lists_, selection);
}

std::string DialogParentChoice::ShowDialog(const ParentLists& lists) {
  const PointerShape pointer(Qt::ArrowCursor);  // the run has set the wait pointer
  ParentDialog dialog(lists, QApplication::activeWindow());
  dialog.exec();
  return dialog.ParentGroup();
}

}  // namespace quorvane
