#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QToolButton>

#include "report/run_log.h"
#include "run/system_disk.h"
#include "ui/window_fixture.h"

namespace quorvane::test {
namespace {

const QString ClosingLine =
    "Click on the [View Report] button to save the entire messaging log and view and/or print it.";

}  // namespace

/// A run through the window.
class WindowRunTest : public QObject {
  Q_OBJECT

 private slots:
  void ShowsTheLogAndTheClosingLine();
  void ChecksAFileOfTheDisk();
  void ListIsWrittenBackInItsNormalForm();
  void OptionsReachTheRun();
  void EndsWithTheTopInFocus();
  void NothingCanBeStartedDuringARun();
  void ClosingWaitsForTheEnd();
  void TitleShowsWhichFileIsChecked();
  void SecondRunReplacesTheFirst();
  void LogThatFitsIsShownWhole();
  void LogThatDoesNotFitLeavesTheClosingLines();
  void LinesThatAreClearedAtOnceAreNotShown();
  void FailedRunEnablesTheWindowAgain();
  void BytesOfACodePageAreShown();
  void ViewReportSavesUnderLowerCaseAndOpens();
  void CancelledViewReportDoesNothing();
  void ReportBeforeAnyRunIsEmpty();
  void ReportThatCannotBeSavedIsNotOpened();
};

void WindowRunTest::ShowsTheLogAndTheClosingLine() {
  WindowFixture fixture;
  fixture.AddFile("a.ags", CleanFile());
  fixture.SetFiles("a.ags");
  fixture.ClickCheckFiles();
  const QStringList lines = fixture.Progress().split('\n');
  QCOMPARE(lines.value(0), QString("Quorvane for AGS Versions 3 and 4, Version 10.00.01.07, "
                                   "running in environment tester on bench"));
  QVERIFY(lines.contains("01/02/26 03:04:05 (1 files)"));
  QVERIFY(lines.contains("File:  a.ags (1 of 1)"));
  QVERIFY(lines.contains("SUMMARY:  No problems found in file."));
  QCOMPARE(lines.last(), ClosingLine);
  QVERIFY(fixture.messages.boxes.empty());
}

void WindowRunTest::ChecksAFileOfTheDisk() {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral(u"a b \u00E4.ags"));
  QFile file(path);
  QVERIFY(file.open(QIODevice::WriteOnly));
  file.write(QByteArray::fromStdString(FileWithFindings(3)));
  file.close();

  SystemDisk disk;
  WindowFixture around;
  MainWindow window({disk, around.environment, around.messages, around.parentChoice, around.pickers,
                     around.desktop});
  window.findChild<QPlainTextEdit*>("txtFilesToCheck")->setPlainText(path);
  window.findChild<QPushButton*>("cmdQuorvane_0")->click();
  const QString shown = window.findChild<QPlainTextEdit*>("txtProgress")->toPlainText();
  QVERIFY2(shown.contains("File:  " + path + " (1 of 1)\n"), qPrintable(shown));
  QVERIFY2(shown.contains("\n  ERROR: Line "), qPrintable(shown));
}

void WindowRunTest::ListIsWrittenBackInItsNormalForm() {
  WindowFixture fixture;
  fixture.AddFile("a.ags", CleanFile());
  fixture.SetFiles("  a.ags \n\n   \nb.ags");
  fixture.ClickCheckFiles();
  QCOMPARE(fixture.Find<QPlainTextEdit>("txtFilesToCheck").toPlainText(), QString("a.ags\nb.ags"));
  QVERIFY(fixture.Progress().contains("(2 files)"));
}

void WindowRunTest::OptionsReachTheRun() {
  WindowFixture fixture;
  fixture.AddFile("a.ags", FileWithFindings(12));
  fixture.SetFiles("a.ags");
  fixture.ClickCheckFiles();
  QVERIFY(fixture.Progress().contains("FYI = For Your Information only."));
  QVERIFY(!fixture.Progress().contains("MESSAGES SORTED BY"));
  QVERIFY(!fixture.Progress().contains("Statistics", Qt::CaseInsensitive));

  for (const char* option :
       {"chkMessageListing_1", "chkMessageListing_2", "chkSuppressFYIMesgs", "chkShowStats"})
    fixture.Find<QCheckBox>(option).setChecked(true);
  fixture.Find<QCheckBox>("chkMessageListing_0").setChecked(false);
  fixture.ClickCheckFiles();
  QVERIFY(!fixture.Progress().contains("FYI = For Your Information only."));
  QVERIFY(!fixture.Progress().contains("\nParsing Structure and Data"));
  QVERIFY(fixture.Progress().contains("MESSAGES SORTED BY LINE NUMBER:"));
  QVERIFY(fixture.Progress().contains("MESSAGES SORTED BY SEVERITY:"));
  QVERIFY(fixture.Progress().contains("Statistics", Qt::CaseInsensitive));
}

void WindowRunTest::EndsWithTheTopInFocus() {
  WindowFixture fixture;
  fixture.window.show();
  QVERIFY(QTest::qWaitForWindowActive(&fixture.window));
  fixture.AddFile("a.ags", FileWithFindings(50));
  fixture.SetFiles("a.ags");
  fixture.ClickCheckFiles();
  const auto& progress = fixture.Find<QPlainTextEdit>("txtProgress");
  QVERIFY(progress.hasFocus());
  QCOMPARE(progress.textCursor().position(), 0);
  QVERIFY(!progress.textCursor().hasSelection());
  QCOMPARE(QApplication::overrideCursor(), nullptr);
}

void WindowRunTest::NothingCanBeStartedDuringARun() {
  WindowFixture fixture;
  fixture.window.show();
  fixture.AddFile("a.ags", CleanFile());
  fixture.SetFiles("a.ags");
  int completeLooks = 0;
  QVERIFY(AcceptsDrag(fixture.window, {"/c.ags"}, {1, 1}));  // dropped when the run is on
  fixture.disk.whenRead = [&](const std::string&) {
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    for (const char* name :
         {"cmdQuorvane_0", "cmdQuorvane_1", "cmdQuorvane_2", "cmdQuorvane_3", "cmdQuorvane_4"}) {
      auto& button = fixture.Find<QPushButton>(name);
      QVERIFY2(!button.isEnabled(), name);
      QTest::mouseClick(&button, Qt::LeftButton);
    }
    QVERIFY(!fixture.Find<QToolButton>("cmdEditions").isEnabled());
    // What would enable the button does not while the run is on.
    fixture.SetFiles("a.ags\nb.ags");
    QVERIFY(!fixture.Find<QPushButton>("cmdQuorvane_0").isEnabled());
    QVERIFY(!AcceptsDrop(fixture.window, {"/c.ags"}, {1, 1}));
    QVERIFY(!AcceptsDrag(fixture.window, {"/c.ags"}, {1, 1}));
    ++completeLooks;
  };
  fixture.ClickCheckFiles();
  QCOMPARE(completeLooks, 1);
  QVERIFY(fixture.pickers.asked.empty());
  QVERIFY(fixture.messages.boxes.empty());
  QVERIFY(fixture.window.isVisible());
  QCOMPARE(fixture.Progress().count("Quorvane for AGS"), 1);
  for (const char* name :
       {"cmdQuorvane_0", "cmdQuorvane_1", "cmdQuorvane_2", "cmdQuorvane_3", "cmdQuorvane_4"})
    QVERIFY2(fixture.Find<QPushButton>(name).isEnabled(), name);
  QVERIFY(fixture.Find<QToolButton>("cmdEditions").isEnabled());
}

void WindowRunTest::ClosingWaitsForTheEnd() {
  WindowFixture fixture;
  fixture.window.show();
  fixture.AddFile("a.ags", CleanFile());
  fixture.SetFiles("a.ags");
  QSignalSpy closed(&fixture.window, &MainWindow::Closed);
  fixture.disk.whenRead = [&](const std::string&) {
    fixture.window.close();
    QVERIFY(fixture.window.isVisible());
    QCOMPARE(closed.count(), 0);
  };
  fixture.ClickCheckFiles();
  QVERIFY(fixture.Progress().endsWith(ClosingLine));
  QVERIFY(!fixture.window.isVisible());
  QCOMPARE(closed.count(), 1);
}

void WindowRunTest::TitleShowsWhichFileIsChecked() {
  WindowFixture fixture;
  fixture.AddFile("/data/a.ags", CleanFile());
  fixture.AddFile("/data/b.ags", CleanFile());
  fixture.SetFiles("/data/a.ags\n/data/b.ags");
  QStringList titles;
  fixture.disk.whenRead = [&](const std::string&) { titles.append(fixture.window.windowTitle()); };
  const QString before = fixture.window.windowTitle();
  fixture.ClickCheckFiles();
  const QStringList expected{"Checking file 1 of 2: a.ags - Quorvane",
                             "Checking file 2 of 2: b.ags - Quorvane"};
  QCOMPARE(titles, expected);
  QCOMPARE(fixture.window.windowTitle(), before);
}

void WindowRunTest::SecondRunReplacesTheFirst() {
  WindowFixture fixture;
  fixture.AddFile("a.ags", CleanFile());
  fixture.SetFiles("a.ags");
  fixture.ClickCheckFiles();
  const QString first = fixture.Progress();
  fixture.ClickCheckFiles();
  QCOMPARE(fixture.Progress(), first);
}

void WindowRunTest::LogThatFitsIsShownWhole() {
  WindowFixture fixture;
  fixture.AddFile("a.ags", FileWithFindings(60));
  fixture.SetFiles("a.ags");
  fixture.pickers.fileToSave = "/log.txt";
  fixture.ClickCheckFiles();
  fixture.Find<QPushButton>("cmdQuorvane_1").click();
  QString log = QString::fromStdString(fixture.disk.files.at("/log.txt"));
  QVERIFY(log.size() < static_cast<int>(RunLog::DisplayLimit));
  log.replace("\r\n", "\n").chop(1);  // the line break behind a saved log
  QCOMPARE(fixture.Progress(), log + ClosingLine);
}

void WindowRunTest::LogThatDoesNotFitLeavesTheClosingLines() {
  WindowFixture fixture;
  fixture.AddFile("a.ags", FileWithFindings(2000));
  fixture.AddFile("b.ags", CleanFile());
  fixture.SetFiles("a.ags\nb.ags");
  fixture.pickers.fileToSave = "/log.txt";
  fixture.ClickCheckFiles();
  QCOMPARE(fixture.Progress(), "Full messaging log could not fit in the display.\n" + ClosingLine);
  fixture.Find<QPushButton>("cmdQuorvane_1").click();
  const QString log = QString::fromStdString(fixture.disk.files.at("/log.txt"));
  QVERIFY(log.size() > static_cast<int>(RunLog::DisplayLimit));
  QVERIFY(log.contains("File:  b.ags (2 of 2)\r\n"));
}

void WindowRunTest::LinesThatAreClearedAtOnceAreNotShown() {
  WindowFixture fixture;
  fixture.window.show();
  fixture.AddFile("a.ags", FileWithFindings(2000));
  fixture.SetFiles("a.ags");
  // With this listing every finding is written, and cleared again, on its own.
  fixture.Find<QCheckBox>("chkMessageListing_1").setChecked(true);
  QSignalSpy changes(&fixture.Find<QPlainTextEdit>("txtProgress"), &QPlainTextEdit::textChanged);
  fixture.ClickCheckFiles();
  QVERIFY2(changes.count() < 20, qPrintable(QString::number(changes.count())));
  QCOMPARE(fixture.Progress(), "Full messaging log could not fit in the display.\n" + ClosingLine);
}

void WindowRunTest::FailedRunEnablesTheWindowAgain() {
  WindowFixture fixture;
  fixture.AddFile("a.ags", CleanFile());
  fixture.disk.throwsWhenRead = "a.ags";
  fixture.SetFiles("a.ags");
  fixture.ClickCheckFiles();
  QCOMPARE(fixture.messages.boxes.size(), std::size_t{1});
  QVERIFY(
      QString::fromStdString(fixture.messages.boxes[0]).startsWith("Quorvane Error: Error in "));
  QVERIFY(fixture.Find<QPushButton>("cmdQuorvane_0").isEnabled());
  QCOMPARE(QApplication::overrideCursor(), nullptr);
  QVERIFY(fixture.Progress().endsWith(ClosingLine));
}

void WindowRunTest::BytesOfACodePageAreShown() {
  WindowFixture fixture;
  fixture.AddFile("a.ags", CleanFile() + "\"**\xB0\x07\"\r\n\"*\xB0_ID\"\r\n\"x\"\r\n");
  fixture.SetFiles("a.ags");
  fixture.ClickCheckFiles();
  QVERIFY2(fixture.Progress().contains(QChar(0x00B0)), qPrintable(fixture.Progress()));
  QVERIFY(!fixture.Progress().contains(QChar(7)));
}

void WindowRunTest::ViewReportSavesUnderLowerCaseAndOpens() {
  WindowFixture fixture;
  fixture.AddFile("a.ags", CleanFile());
  fixture.SetFiles("a.ags");
  fixture.ClickCheckFiles();
  fixture.pickers.fileToSave = "/Reports/Monday Log.TXT";
  fixture.Find<QPushButton>("cmdQuorvane_1").click();
  QCOMPARE(fixture.pickers.asked,
           std::vector<std::string>{"AGS Checking Log File / Text File (*.txt)|*.txt"});
  QVERIFY(fixture.disk.files.count("/Reports/monday log.txt") == 1);
  QCOMPARE(fixture.desktop.opened, std::vector<std::string>{"/Reports/monday log.txt"});
}

void WindowRunTest::CancelledViewReportDoesNothing() {
  WindowFixture fixture;
  fixture.Find<QPushButton>("cmdQuorvane_1").click();
  QCOMPARE(fixture.pickers.asked.size(), std::size_t{1});
  QVERIFY(fixture.disk.files.empty());
  QVERIFY(fixture.desktop.opened.empty());
}

void WindowRunTest::ReportBeforeAnyRunIsEmpty() {
  WindowFixture fixture;
  fixture.pickers.fileToSave = "/log.txt";
  fixture.Find<QPushButton>("cmdQuorvane_1").click();
  QCOMPARE(fixture.disk.files.at("/log.txt"), std::string("\r\n"));
  QCOMPARE(fixture.desktop.opened, std::vector<std::string>{"/log.txt"});
}

void WindowRunTest::ReportThatCannotBeSavedIsNotOpened() {
  WindowFixture fixture;
  fixture.disk.writeFailures["/log.txt"] = {13, "Permission denied"};
  fixture.pickers.fileToSave = "/log.txt";
  fixture.Find<QPushButton>("cmdQuorvane_1").click();
  QCOMPARE(fixture.messages.boxes,
           std::vector<std::string>{
               "Quorvane: Could not save to file /log.txt\r\nError:  13\r\nPermission denied"});
  QVERIFY(fixture.desktop.opened.empty());
}

}  // namespace quorvane::test

QTEST_MAIN(quorvane::test::WindowRunTest)
#include "window_run_test.moc"
