#include "ui/parent_dialog.h"

#include <numeric>

#include <QAbstractItemModel>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "ui/window_fixture.h"

namespace quorvane::test {
namespace {

/// A dictionary of groups with these names, and the question about their choice.
class Question {
 public:
  Question(int firstCount, int secondCount) {
    for (int index = 0; index < firstCount + secondCount; ++index) {
      DictGroup group;
      group.Name = "GRP" + std::to_string(index + 1);
      dictionary_.AddGroup(group);
    }
    indices_.resize(static_cast<std::size_t>(firstCount + secondCount));
    std::iota(indices_.begin(), indices_.end(), 1);
    const std::span<const int> all(indices_);
    const auto first = static_cast<std::size_t>(firstCount);
    lists.file = "/data/a.ags";
    lists.group = "OWN";
    lists.label = "Group OWN does not have a parent.\r\nSpecify one below.";
    lists.lists = {CandidateList(dictionary_, all.first(first)),
                   CandidateList(dictionary_, all.subspan(first))};
  }

  ParentLists lists;

 private:
  AgsDictionary dictionary_;
  std::vector<int> indices_;
};

template <typename Control>
Control& Find(const QWidget& dialog, const char* name) {
  auto* control = dialog.findChild<Control*>(QString::fromLatin1(name));
  if (control == nullptr) qFatal("There is no %s.", name);
  return *control;
}

QStringList Entries(const QComboBox& list) {
  QStringList entries;
  for (int index = 0; index < list.count(); ++index)
    entries.append(list.itemText(index));
  return entries;
}

}  // namespace

class ParentDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void ShowsLabelAndBothLists();
  void SecondPairIsHiddenWhenItHasNothingToShow();
  void FirstOptionCannotBeChosenWithoutEntries();
  void AnswerIsTheListOfTheOption();
  void PickingFromAListChoosesItsOption();
  void ButtonGivesTheSelection();
  void ClosingGivesTheSelection();
  void ThousandsOfEntriesAreReadWhenSeen();
};

void ParentDialogTest::ShowsLabelAndBothLists() {
  const Question question(2, 3);
  ParentDialog dialog(question.lists);
  dialog.show();
  QCOMPARE(dialog.objectName(), QString("dlgCustomParent"));
  QCOMPARE(Find<QLabel>(dialog, "lblCustomParent").text().remove('\r'),
           QString("Group OWN does not have a parent.\nSpecify one below."));
  const auto& first = Find<QComboBox>(dialog, "cboCustomParent_0");
  const auto& second = Find<QComboBox>(dialog, "cboCustomParent_1");
  QCOMPARE(Entries(first), (QStringList{"GRP1", "GRP2"}));
  QCOMPARE(Entries(second), (QStringList{"GRP3", "GRP4", "GRP5"}));
  QCOMPARE(first.currentText(), QString("GRP1"));
  QCOMPARE(second.currentText(), QString("GRP3"));
  QVERIFY(Find<QRadioButton>(dialog, "optCustomParent_0").isChecked());
  QVERIFY(Find<QRadioButton>(dialog, "optCustomParent_1").isVisible());
  QVERIFY(second.isVisible());
  QVERIFY(dialog.windowTitle().contains("a.ags"));
}

void ParentDialogTest::SecondPairIsHiddenWhenItHasNothingToShow() {
  const Question question(2, 0);
  ParentDialog dialog(question.lists);
  dialog.show();
  QVERIFY(Find<QComboBox>(dialog, "cboCustomParent_0").isVisible());
  QVERIFY(!Find<QRadioButton>(dialog, "optCustomParent_1").isVisible());
  QVERIFY(!Find<QComboBox>(dialog, "cboCustomParent_1").isVisible());
  QCOMPARE(dialog.ParentGroup(), std::string("GRP1"));
}

void ParentDialogTest::FirstOptionCannotBeChosenWithoutEntries() {
  const Question question(0, 2);
  ParentDialog dialog(question.lists);
  dialog.show();
  QVERIFY(!Find<QRadioButton>(dialog, "optCustomParent_0").isEnabled());
  QVERIFY(Find<QRadioButton>(dialog, "optCustomParent_1").isChecked());
  QCOMPARE(dialog.ParentGroup(), std::string("GRP1"));
}

void ParentDialogTest::AnswerIsTheListOfTheOption() {
  const Question question(2, 3);
  ParentDialog dialog(question.lists);
  Find<QComboBox>(dialog, "cboCustomParent_0").setCurrentIndex(1);
  Find<QComboBox>(dialog, "cboCustomParent_1").setCurrentIndex(2);
  QCOMPARE(dialog.ParentGroup(), std::string("GRP2"));
  Find<QRadioButton>(dialog, "optCustomParent_1").click();
  QCOMPARE(dialog.ParentGroup(), std::string("GRP5"));
  Find<QRadioButton>(dialog, "optCustomParent_0").click();
  QCOMPARE(dialog.ParentGroup(), std::string("GRP2"));
}

void ParentDialogTest::PickingFromAListChoosesItsOption() {
  const Question question(2, 3);
  ParentDialog dialog(question.lists);
  dialog.show();
  QTest::keyClick(&Find<QComboBox>(dialog, "cboCustomParent_1"), Qt::Key_Down);
  QVERIFY(Find<QRadioButton>(dialog, "optCustomParent_1").isChecked());
  QCOMPARE(dialog.ParentGroup(), std::string("GRP4"));
}

void ParentDialogTest::ButtonGivesTheSelection() {
  const Question question(2, 1);
  WhenDialogShows([](QDialog& dialog) {
    Find<QRadioButton>(dialog, "optCustomParent_1").click();
    Find<QPushButton>(dialog, "cmdCustomParent").click();
  });
  QCOMPARE(DialogParentChoice().ShowDialog(question.lists), std::string("GRP3"));
}

void ParentDialogTest::ClosingGivesTheSelection() {
  const Question question(3, 0);
  WhenDialogShows([](QDialog& dialog) {
    Find<QComboBox>(dialog, "cboCustomParent_0").setCurrentIndex(2);
    dialog.close();
  });
  QCOMPARE(DialogParentChoice().ShowDialog(question.lists), std::string("GRP3"));
}

void ParentDialogTest::ThousandsOfEntriesAreReadWhenSeen() {
  const Question question(30000, 20000);
  ParentDialog dialog(question.lists);
  dialog.show();
  auto& list = Find<QComboBox>(dialog, "cboCustomParent_0");
  QCOMPARE(list.count(), 30000);
  list.showPopup();
  list.hidePopup();
  list.setCurrentIndex(29999);
  QCOMPARE(dialog.ParentGroup(), std::string("GRP30000"));
}

}  // namespace quorvane::test

QTEST_MAIN(quorvane::test::ParentDialogTest)
#include "parent_dialog_test.moc"
