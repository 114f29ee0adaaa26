#include "ui/findings_page.h"

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

#include "support/check_text.h"
#include "text/text.h"
#include "ui/window_fixture.h"

namespace quorvane::test {
namespace {

using Texts = std::vector<std::string>;

std::string WriteCount(const FindingsReport& report) {
  return std::to_string(report.files.size()) + " files, " + std::to_string(report.Counts().Total());
}

std::string WriteNames(const FindingsReport& report) {
  std::string names;
  for (const FileRecord& file : report.files)
    names.append(file.path);
  return names;
}

/// An AGS 3 file with one finding in each row of its last group: a field too many.
std::string FileWithBadRows(int count) {
  Ags3File file = MinimalAgs3();
  file.Line("").Line("\"**HOLE\"").Line("\"*HOLE_ID\"").Line("\"<UNITS>\"");
  for (int number = 1; number <= count; ++number)
    file.Line("\"BH" + std::to_string(number) + "\",\"more\"");
  return ReplaceAll(file.Text(), "\n", LineBreak);
}

/// A window with writers whose files are looked through easily, after a run.
class PageFixture : public WindowFixture {
 public:
  explicit PageFixture(int findingCount = 5) : WindowFixture(Writers()) {
    AddFile("/data/a.ags", FileWithBadRows(findingCount));
    AddFile("/data/b.ags", FileWithBadRows(1));
    SetFiles("/data/a.ags\n/data/b.ags");
    window.show();
    if (!QTest::qWaitForWindowActive(&window)) qFatal("The window does not become active.");
    ClickCheckFiles();
  }

  static FindingsWriters Writers() {
    return {{"Counts (*.cnt)|*.cnt", ".cnt", WriteCount},
            {"Names (*.nam)|*.nam", ".nam", WriteNames}};
  }

  void ShowPage() { Find<QTabWidget>("tabPages").setCurrentIndex(1); }
  QTableView& Table() { return Find<QTableView>("tblFindings"); }
  QAbstractItemModel& Rows() { return *Table().model(); }
  QLineEdit& Filter() { return Find<QLineEdit>("txtFindingsFilter"); }
  QString Tab() { return Find<QTabWidget>("tabPages").tabText(1); }
  QString Count() { return Find<QLabel>("lblFindingsCount").text(); }
  QString Cell(int row, int column) { return Rows().index(row, column).data().toString(); }
};

}  // namespace

/// The page of the findings in its window.
class FindingsPageTest : public QObject {
  Q_OBJECT

 private slots:
  void IsBehindTheProgressAndCountsInItsTab();
  void IsEmptyAndClosedDuringARun();
  void ARunFromThePageGoesBackToTheProgress();
  void AnUnattendedRunCollectsNothing();
  void FilesThatWereNotCheckedAreCounted();
  void TheFilterIsAppliedAfterAPause();
  void EscapeClearsTheFilter();
  void EnterGoesFromTheFilterToTheRows();
  void TickBoxesTakeSeveritiesOut();
  void TheHeaderSorts();
  void DigitsSort();
  void TheCurrentFindingStaysCurrent();
  void SelectedRowsAreCopied();
  void CopyNeedsASelection();
  void SavesTheWholeReportInTheFormatOfTheSuffix();
  void SavesInTheChosenFormatWhenTheSuffixSaysNothing();
  void CancelledSavingDoesNothing();
  void FailedSavingShowsABox();
  void WithoutFormatsNothingCanBeSaved();
  void EnterAndDoubleClickOpenTheRow();
  void AFileIsReadOnceForAllItsRows();
  void TabReachesEveryControl();
  void EveryLetterToPressIsUnique();
  void EveryControlSaysWhatItIs();
  void FilesDroppedOnTheTableJoinTheList();
};

void FindingsPageTest::IsBehindTheProgressAndCountsInItsTab() {
  PageFixture fixture(1233);
  QCOMPARE(fixture.Find<QTabWidget>("tabPages").currentIndex(), 0);
  QCOMPARE(fixture.Tab(), QString("Fi&ndings (1,234)"));
  QCOMPARE(fixture.Rows().rowCount(), 1234);
  QCOMPARE(fixture.Count(), QString("1,234 of 1,234 shown"));
}

void FindingsPageTest::IsEmptyAndClosedDuringARun() {
  PageFixture fixture;
  int looks = 0;
  fixture.disk.whenRead = [&](const std::string&) {
    QCOMPARE(fixture.Rows().rowCount(), 0);
    QCOMPARE(fixture.Tab(), QString("Fi&ndings"));
    QVERIFY(!fixture.Find<QTabWidget>("tabPages").isTabEnabled(1));
    ++looks;
  };
  fixture.ClickCheckFiles();
  QCOMPARE(looks, 2);
  QCOMPARE(fixture.Rows().rowCount(), 6);
  QVERIFY(fixture.Find<QTabWidget>("tabPages").isTabEnabled(1));
}

void FindingsPageTest::ARunFromThePageGoesBackToTheProgress() {
  PageFixture fixture;
  fixture.ShowPage();
  fixture.ClickCheckFiles();
  QCOMPARE(fixture.Find<QTabWidget>("tabPages").currentIndex(), 0);
  QVERIFY(fixture.Find<QPlainTextEdit>("txtProgress").hasFocus());
}

void FindingsPageTest::AnUnattendedRunCollectsNothing() {
  WindowFixture fixture;
  fixture.AddFile("a.ags", FileWithFindings(2));
  ProgramStart start;
  start.isCommandLineMode = true;
  start.settings.controls.filesToCheck = "a.ags";
  start.settings.logFile = "/log.txt";
  fixture.window.Begin(start);
  fixture.window.show();
  QTRY_VERIFY(!fixture.window.isVisible());
  QCOMPARE(fixture.disk.files.count("/log.txt"), std::size_t{1});
  QCOMPARE(fixture.Find<QTabWidget>("tabPages").tabText(1), QString("Fi&ndings"));
  QCOMPARE(fixture.Find<QTableView>("tblFindings").model()->rowCount(), 0);
}

void FindingsPageTest::FilesThatWereNotCheckedAreCounted() {
  PageFixture fixture;
  fixture.SetFiles("/data/b.ags\n/data/missing.ags");
  fixture.ClickCheckFiles();
  QCOMPARE(fixture.Count(), QString("1 of 1 shown; 1 file could not be checked to the end"));
  QCOMPARE(fixture.Tab(), QString("Fi&ndings (1)"));
}

void FindingsPageTest::TheFilterIsAppliedAfterAPause() {
  PageFixture fixture;
  fixture.ShowPage();
  fixture.Filter().setFocus();
  QTest::keyClicks(&fixture.Filter(), "B.AGS");
  QCOMPARE(fixture.Rows().rowCount(), 6);  // typing does not wait for it
  QTRY_COMPARE(fixture.Rows().rowCount(), 1);
  QCOMPARE(fixture.Cell(0, 0), QString("b.ags"));
  QCOMPARE(fixture.Count(), QString("1 of 6 shown"));
  QCOMPARE(fixture.Tab(), QString("Fi&ndings (6)"));
}

void FindingsPageTest::EscapeClearsTheFilter() {
  PageFixture fixture;
  fixture.ShowPage();
  fixture.Filter().setText("nothing like this");
  QTRY_COMPARE(fixture.Rows().rowCount(), 0);
  fixture.Table().setFocus();
  QTest::keyClick(&fixture.Table(), Qt::Key_Escape);
  QCOMPARE(fixture.Rows().rowCount(), 6);
  QCOMPARE(fixture.Filter().text(), QString());
  QTest::keyClick(&fixture.Table(), Qt::Key_F, Qt::ControlModifier);
  QVERIFY(fixture.Filter().hasFocus());
}

void FindingsPageTest::EnterGoesFromTheFilterToTheRows() {
  PageFixture fixture;
  fixture.ShowPage();
  fixture.Filter().setFocus();
  QTest::keyClicks(&fixture.Filter(), "b.ags");
  QTest::keyClick(&fixture.Filter(), Qt::Key_Return);
  QCOMPARE(fixture.Rows().rowCount(), 1);
  QVERIFY(fixture.Table().hasFocus());
  QCOMPARE(fixture.Table().currentIndex().row(), 0);
}

void FindingsPageTest::TickBoxesTakeSeveritiesOut() {
  PageFixture fixture;
  fixture.ShowPage();
  QCOMPARE(fixture.Cell(0, 2), QString("Error"));
  fixture.Find<QCheckBox>("chkFindingsSeverity_1").click();
  fixture.Find<QCheckBox>("chkFindingsSeverity_2").click();
  QCOMPARE(fixture.Rows().rowCount(), 6);
  fixture.Find<QCheckBox>("chkFindingsSeverity_0").click();
  QCOMPARE(fixture.Rows().rowCount(), 0);
  QCOMPARE(fixture.Count(), QString("0 of 6 shown"));
}

void FindingsPageTest::TheHeaderSorts() {
  PageFixture fixture;
  fixture.ShowPage();
  auto* header = fixture.Table().horizontalHeader();
  const auto click = [&](int column) {
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                      {header->sectionViewportPosition(column) + 5, header->height() / 2});
  };
  const QString firstLine = fixture.Cell(0, 1);
  click(1);
  QCOMPARE(fixture.Cell(0, 1), firstLine);
  QCOMPARE(header->sortIndicatorSection(), 1);
  QCOMPARE(header->sortIndicatorOrder(), Qt::AscendingOrder);
  click(1);
  QCOMPARE(fixture.Cell(0, 1).toInt(), firstLine.toInt() + 4);
  QCOMPARE(header->sortIndicatorOrder(), Qt::DescendingOrder);
  click(0);
  QCOMPARE(fixture.Cell(5, 0), QString("b.ags"));
  QCOMPARE(header->sortIndicatorSection(), 0);
}

void FindingsPageTest::DigitsSort() {
  PageFixture fixture;
  fixture.ShowPage();
  fixture.Table().setFocus();
  const auto press = [&](Qt::Key key) {
    QTest::keyClick(&fixture.Table(), key, Qt::ControlModifier);
  };
  press(Qt::Key_1);
  press(Qt::Key_1);
  QCOMPARE(fixture.Cell(0, 0), QString("b.ags"));
  QCOMPARE(fixture.Table().horizontalHeader()->sortIndicatorSection(), 0);
  press(Qt::Key_0);
  QCOMPARE(fixture.Cell(0, 0), QString("a.ags"));
  QCOMPARE(fixture.Table().horizontalHeader()->sortIndicatorSection(), -1);
}

void FindingsPageTest::TheCurrentFindingStaysCurrent() {
  PageFixture fixture;
  fixture.ShowPage();
  fixture.Table().setFocus();
  fixture.Table().selectRow(5);
  QTest::keyClick(&fixture.Table(), Qt::Key_1, Qt::ControlModifier);
  QTest::keyClick(&fixture.Table(), Qt::Key_1, Qt::ControlModifier);
  QCOMPARE(fixture.Table().currentIndex().row(), 0);
  QCOMPARE(fixture.Cell(0, 0), QString("b.ags"));
  QVERIFY(fixture.Table().selectionModel()->isRowSelected(0));
}

void FindingsPageTest::SelectedRowsAreCopied() {
  PageFixture fixture;
  fixture.ShowPage();
  fixture.Table().setFocus();
  auto* selection = fixture.Table().selectionModel();
  const auto select = [&](int first, int last) {
    selection->select({fixture.Rows().index(first, 0), fixture.Rows().index(last, 0)},
                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
  };
  select(5, 5);
  select(1, 2);
  QTest::keyClick(&fixture.Table(), Qt::Key_C, Qt::ControlModifier);
  const QStringList lines = QGuiApplication::clipboard()->text().split('\n');
  QCOMPARE(lines.size(), 4);
  for (const auto& [line, row] : {std::pair(0, 1), {1, 2}, {2, 5}}) {
    const QStringList cells = lines[line].split('\t');
    QCOMPARE(cells.size(), 6);
    for (int column = 0; column < 6; ++column)
      QCOMPARE(cells[column], fixture.Cell(row, column));
  }
  QCOMPARE(lines.last(), QString());
  selection->clear();
  select(0, 0);
  fixture.Find<QPushButton>("cmdCopyFindings").click();
  QCOMPARE(QGuiApplication::clipboard()->text().count('\n'), 1);
}

void FindingsPageTest::CopyNeedsASelection() {
  PageFixture fixture;
  fixture.ShowPage();
  const auto& copy = fixture.Find<QPushButton>("cmdCopyFindings");
  QVERIFY(!copy.isEnabled());
  fixture.Table().selectRow(0);
  QVERIFY(copy.isEnabled());
  fixture.Find<QCheckBox>("chkFindingsSeverity_0").click();
  QVERIFY(!copy.isEnabled());
}

void FindingsPageTest::SavesTheWholeReportInTheFormatOfTheSuffix() {
  PageFixture fixture;
  fixture.Find<QCheckBox>("chkFindingsSeverity_0").click();  // nothing is shown
  fixture.pickers.fileToSave = "/Out.NAM";
  fixture.Find<QPushButton>("cmdSaveFindings").click();
  QCOMPARE(fixture.pickers.asked,
           Texts{"Save All Findings / Counts (*.cnt)|*.cnt Names (*.nam)|*.nam"});
  QCOMPARE(fixture.disk.files.at("/Out.NAM"), std::string("/data/a.ags/data/b.ags"));
  fixture.pickers.fileToSave = "/out.cnt";
  fixture.pickers.filterToSave = 1;
  fixture.Find<QPushButton>("cmdSaveFindings").click();
  QCOMPARE(fixture.disk.files.at("/out.cnt"), std::string("2 files, 6"));
}

void FindingsPageTest::SavesInTheChosenFormatWhenTheSuffixSaysNothing() {
  PageFixture fixture;
  fixture.pickers.fileToSave = "/out.txt";
  fixture.pickers.filterToSave = 1;
  fixture.Find<QPushButton>("cmdSaveFindings").click();
  QCOMPARE(fixture.disk.files.at("/out.txt"), std::string("/data/a.ags/data/b.ags"));
}

void FindingsPageTest::CancelledSavingDoesNothing() {
  PageFixture fixture;
  const std::size_t fileCount = fixture.disk.files.size();
  fixture.Find<QPushButton>("cmdSaveFindings").click();
  QCOMPARE(fixture.pickers.asked.size(), std::size_t{1});
  QCOMPARE(fixture.disk.files.size(), fileCount);
}

void FindingsPageTest::FailedSavingShowsABox() {
  PageFixture fixture;
  fixture.disk.writeFailures["/out.cnt"] = {28, "No space left on device"};
  fixture.pickers.fileToSave = "/out.cnt";
  fixture.Find<QPushButton>("cmdSaveFindings").click();
  QCOMPARE(fixture.messages.boxes,
           Texts{"Quorvane: Could not save to file /out.cnt\r\nError:  28\r\n"
                 "No space left on device"});
  QCOMPARE(QApplication::overrideCursor(), nullptr);
}

void FindingsPageTest::WithoutFormatsNothingCanBeSaved() {
  WindowFixture fixture;
  fixture.AddFile("a.ags", FileWithFindings(1));
  fixture.SetFiles("a.ags");
  fixture.ClickCheckFiles();
  QVERIFY(!fixture.Find<QPushButton>("cmdSaveFindings").isEnabled());
  PageFixture other;
  QVERIFY(other.Find<QPushButton>("cmdSaveFindings").isEnabled());
}

void FindingsPageTest::EnterAndDoubleClickOpenTheRow() {
  PageFixture fixture;
  fixture.ShowPage();
  fixture.Table().setFocus();
  fixture.Table().selectRow(2);
  QStringList titles;
  const auto expectView = [&] {
    WhenDialogShows([&](QDialog& dialog) {
      titles.append(dialog.windowTitle());
      QVERIFY(
          QTest::qWaitFor([&dialog] { return dialog.isAncestorOf(QApplication::focusWidget()); }));
      QTest::keyClick(&dialog, Qt::Key_Escape);
    });
  };
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    expectView();
    QTest::keyClick(&fixture.Table(), key);
    QCOMPARE(fixture.window.focusWidget(), &fixture.Table());
    fixture.window.activateWindow();  // this platform leaves it to the program
    QTRY_VERIFY(fixture.Table().hasFocus());
  }
  const QPoint place = fixture.Table().visualRect(fixture.Rows().index(2, 5)).center();
  QTest::mouseClick(fixture.Table().viewport(), Qt::LeftButton, {}, place);
  QCOMPARE(titles.size(), 2);  // one click opens nothing
  expectView();
  QTest::mouseDClick(fixture.Table().viewport(), Qt::LeftButton, {}, place);
  const QString title = "a.ags, line " + fixture.Cell(2, 1);
  QCOMPARE(titles, (QStringList{title, title, title}));
  QCOMPARE(fixture.Table().currentIndex().row(), 2);
}

void FindingsPageTest::AFileIsReadOnceForAllItsRows() {
  PageFixture fixture;
  fixture.ShowPage();
  fixture.Table().setFocus();
  int reads = 0;
  fixture.disk.whenRead = [&](const std::string&) {
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    ++reads;
  };
  for (const int row : {0, 1, 2}) {
    fixture.Table().selectRow(row);
    WhenDialogShows([](QDialog& dialog) { dialog.reject(); });
    QTest::keyClick(&fixture.Table(), Qt::Key_Return);
  }
  QCOMPARE(reads, 1);
  QCOMPARE(QApplication::overrideCursor(), nullptr);
}

void FindingsPageTest::TabReachesEveryControl() {
  PageFixture fixture;
  fixture.ShowPage();
  fixture.Table().selectRow(0);
  fixture.Find<QTabBar>("tabPages_bar").setFocus();
  QStringList order;
  for (int step = 0; step < 8; ++step) {
    order.append(QApplication::focusWidget()->objectName());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  QCOMPARE(order, (QStringList{"tabPages_bar", "txtFindingsFilter", "chkFindingsSeverity_0",
                               "chkFindingsSeverity_1", "chkFindingsSeverity_2", "tblFindings",
                               "cmdCopyFindings", "cmdSaveFindings"}));
  fixture.Find<QTabBar>("tabPages_bar").setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
  QCOMPARE(fixture.Find<QTabWidget>("tabPages").currentIndex(), 0);
}

void FindingsPageTest::EveryLetterToPressIsUnique() {
  PageFixture fixture;
  QStringList captions;
  for (const auto* button : fixture.window.findChildren<QAbstractButton*>())
    captions.append(button->text());
  for (const auto* label : fixture.window.findChildren<QLabel*>())
    captions.append(label->text());
  for (const int page : {0, 1})
    captions.append(fixture.Find<QTabWidget>("tabPages").tabText(page));
  QString letters;
  for (const QString& caption : captions) {
    const qsizetype mark = caption.indexOf('&');
    if (mark < 0) continue;
    const QChar letter = caption.at(mark + 1).toUpper();
    QVERIFY2(!letters.contains(letter), qPrintable(caption));
    letters.append(letter);
  }
  QVERIFY(letters.size() > 15);
}

void FindingsPageTest::EveryControlSaysWhatItIs() {
  PageFixture fixture;
  for (const char* name : {"txtFindingsFilter", "chkFindingsSeverity_0", "chkFindingsSeverity_1",
                           "chkFindingsSeverity_2", "cmdCopyFindings", "cmdSaveFindings"}) {
    const auto& control = fixture.Find<QWidget>(name);
    QVERIFY2(!control.toolTip().isEmpty(), name);
    const bool hasName =
        !control.accessibleName().isEmpty() || !control.property("text").toString().isEmpty();
    QVERIFY2(hasName, name);
  }
  QVERIFY(!fixture.Table().accessibleName().isEmpty());
}

void FindingsPageTest::FilesDroppedOnTheTableJoinTheList() {
  PageFixture fixture;
  fixture.ShowPage();
  const QPoint place = fixture.Table().mapTo(&fixture.window, fixture.Table().rect().center());
  for (QWidget* widget = fixture.window.childAt(place); widget != &fixture.window;
       widget = widget->parentWidget())
    QVERIFY(!widget->acceptDrops());  // so that it reaches the window
  QVERIFY(!fixture.Filter().acceptDrops());
  QVERIFY(AcceptsDrag(fixture.window, {"/data/c.ags"}, place));
  QVERIFY(AcceptsDrop(fixture.window, {"/data/c.ags"}, place));
  QVERIFY(fixture.Find<QPlainTextEdit>("txtFilesToCheck").toPlainText().endsWith("/data/c.ags"));
}

}  // namespace quorvane::test

QTEST_MAIN(quorvane::test::FindingsPageTest)
#include "findings_page_test.moc"
