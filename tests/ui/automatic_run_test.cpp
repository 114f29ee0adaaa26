#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>

#include "ui/window_fixture.h"

namespace quorvane::test {
namespace {

using Texts = std::vector<std::string>;

ProgramStart StartWith(const std::string& files, const std::string& logFile) {
  ProgramStart start;
  start.isCommandLineMode = true;
  start.settings.controls.filesToCheck = files;
  start.settings.logFile = logFile;
  return start;
}

}  // namespace

/// A window that a command line has started.
class AutomaticRunTest : public QObject {
  Q_OBJECT

 private slots:
  void RunsOnceWhenShownAndStaysOpen();
  void DoesNotRunBeforeItIsShown();
  void DoesNotRunWithoutCommandLine();
  void WaitsWhenThereIsNothingToCheck();
  void WaitsWhenTheSettingsFileIsMissing();
  void RunsWhenTheSettingsWereNotApplied();
  void UnattendedRunWritesTheLogAndCloses_data();
  void UnattendedRunWritesTheLogAndCloses();
  void UnattendedRunWithoutFilesEndsWithStatus2();
  void UnattendedRunWhoseLogCannotBeWrittenEndsWithStatus2();
  void UnattendedRunWithoutItsDictionaryEndsWithStatus2();
  void ClosingDuringAnUnattendedRunLosesNothing();
};

void AutomaticRunTest::RunsOnceWhenShownAndStaysOpen() {
  WindowFixture fixture;
  fixture.AddFile("a.ags", CleanFile());
  int reads = 0;
  fixture.disk.whenRead = [&reads](const std::string&) { ++reads; };
  QSignalSpy closed(&fixture.window, &MainWindow::Closed);
  fixture.window.Begin(StartWith("a.ags", ""));
  fixture.window.show();
  QTRY_VERIFY(fixture.Progress().contains("SUMMARY:  No problems found in file."));
  fixture.window.hide();
  fixture.window.show();
  QCoreApplication::processEvents();
  QCOMPARE(reads, 1);
  QCOMPARE(closed.count(), 0);
  QVERIFY(fixture.window.isVisible());
}

void AutomaticRunTest::DoesNotRunBeforeItIsShown() {
  WindowFixture fixture;
  fixture.AddFile("a.ags", CleanFile());
  fixture.window.Begin(StartWith("a.ags", "/log.txt"));
  QCoreApplication::processEvents();
  QCOMPARE(fixture.Progress(), QString());
  QCOMPARE(fixture.disk.files.count("/log.txt"), std::size_t{0});
}

void AutomaticRunTest::DoesNotRunWithoutCommandLine() {
  WindowFixture fixture;
  fixture.AddFile("a.ags", CleanFile());
  ProgramStart start = StartWith("a.ags", "/log.txt");
  start.isCommandLineMode = false;
  fixture.window.Begin(start);
  fixture.window.show();
  QCoreApplication::processEvents();
  QCOMPARE(fixture.Progress(), QString());
  QVERIFY(fixture.window.isVisible());
}

void AutomaticRunTest::WaitsWhenThereIsNothingToCheck() {
  WindowFixture fixture;
  fixture.window.Begin(StartWith("", ""));
  fixture.window.show();
  QCoreApplication::processEvents();
  QCOMPARE(fixture.Progress(), QString());
  QVERIFY(fixture.messages.boxes.empty());
  QVERIFY(fixture.window.isVisible());
}

void AutomaticRunTest::WaitsWhenTheSettingsFileIsMissing() {
  WindowFixture fixture;
  fixture.AddFile("a.ags", CleanFile());
  ProgramStart start = StartWith("a.ags", "");
  start.outcome = SettingsOutcome::Missing;
  fixture.window.Begin(start);
  fixture.window.show();
  QCoreApplication::processEvents();
  QCOMPARE(fixture.Progress(), QString());
  QVERIFY(fixture.window.isVisible());
}

void AutomaticRunTest::RunsWhenTheSettingsWereNotApplied() {
  WindowFixture fixture;
  fixture.AddFile("a.ags", CleanFile());
  ProgramStart start = StartWith("a.ags", "");
  start.outcome = SettingsOutcome::NotApplied;
  fixture.window.Begin(start);
  fixture.window.show();
  QTRY_VERIFY(fixture.Progress().contains("SUMMARY:  No problems found in file."));
}

void AutomaticRunTest::UnattendedRunWritesTheLogAndCloses_data() {
  QTest::addColumn<QString>("files");
  QTest::addColumn<int>("status");
  QTest::newRow("no errors") << "clean.ags" << 0;
  QTest::newRow("errors") << "bad.ags" << 1;
  QTest::newRow("errors, then none") << "bad.ags\r\nclean.ags" << 1;
  QTest::newRow("a missing file") << "clean.ags\r\nmissing.ags" << 1;
}

void AutomaticRunTest::UnattendedRunWritesTheLogAndCloses() {
  QFETCH(QString, files);
  QFETCH(int, status);
  WindowFixture fixture;
  fixture.AddFile("clean.ags", CleanFile());
  fixture.AddFile("bad.ags", FileWithFindings(2));
  QSignalSpy closed(&fixture.window, &MainWindow::Closed);
  fixture.window.Begin(StartWith(files.toStdString(), "/Folder/Log.txt"));
  fixture.window.show();
  QTRY_COMPARE(closed.count(), 1);
  QCOMPARE(fixture.window.ExitStatus(), status);
  QVERIFY(!fixture.window.isVisible());
  const QString log = QString::fromStdString(fixture.disk.files.at("/Folder/Log.txt"));
  QVERIFY(log.startsWith("Quorvane for AGS Versions 3 and 4"));
  QVERIFY(log.endsWith("***************************************\r\n\r\n\r\n"));
}

void AutomaticRunTest::UnattendedRunWithoutFilesEndsWithStatus2() {
  WindowFixture fixture;
  QSignalSpy closed(&fixture.window, &MainWindow::Closed);
  fixture.window.Begin(StartWith("", "/log.txt"));
  fixture.window.show();
  QTRY_COMPARE(closed.count(), 1);
  QCOMPARE(fixture.window.ExitStatus(), 2);
  QCOMPARE(fixture.messages.boxes, Texts{"Check Files: Supply files to check"});
  QVERIFY(fixture.disk.files.empty());
}

void AutomaticRunTest::UnattendedRunWhoseLogCannotBeWrittenEndsWithStatus2() {
  WindowFixture fixture;
  fixture.AddFile("a.ags", CleanFile());
  fixture.disk.writeFailures["/log.txt"] = {28, "No space left on device"};
  QSignalSpy closed(&fixture.window, &MainWindow::Closed);
  fixture.window.Begin(StartWith("a.ags", "/log.txt"));
  fixture.window.show();
  QTRY_COMPARE(closed.count(), 1);
  QCOMPARE(fixture.window.ExitStatus(), 2);
  QCOMPARE(fixture.messages.boxes,
           Texts{"Quorvane: Could not save to file /log.txt\r\nError:  28\r\n"
                 "No space left on device"});
}

void AutomaticRunTest::UnattendedRunWithoutItsDictionaryEndsWithStatus2() {
  WindowFixture fixture;
  fixture.AddFile("a.ags", CleanFile());
  ProgramStart start = StartWith("a.ags", "/log.txt");
  start.settings.controls.useCustomDictionary = true;
  start.settings.controls.customDictionary = "missing.gas";
  QSignalSpy closed(&fixture.window, &MainWindow::Closed);
  fixture.window.Begin(start);
  fixture.window.show();
  QTRY_COMPARE(closed.count(), 1);
  QCOMPARE(fixture.window.ExitStatus(), 2);
  QCOMPARE(fixture.messages.boxes.size(), std::size_t{1});
  QVERIFY(QString::fromStdString(fixture.messages.boxes[0]).startsWith("AGS Dictionary Load: "));
  QCOMPARE(fixture.disk.files.count("/log.txt"), std::size_t{1});
}

void AutomaticRunTest::ClosingDuringAnUnattendedRunLosesNothing() {
  WindowFixture fixture;
  fixture.AddFile("a.ags", FileWithFindings(1));
  fixture.disk.whenRead = [&fixture](const std::string&) { fixture.window.close(); };
  QSignalSpy closed(&fixture.window, &MainWindow::Closed);
  fixture.window.Begin(StartWith("a.ags", "/log.txt"));
  fixture.window.show();
  QTRY_COMPARE(closed.count(), 1);
  QCOMPARE(fixture.window.ExitStatus(), 1);
  QCOMPARE(fixture.disk.files.count("/log.txt"), std::size_t{1});
}

}  // namespace quorvane::test

QTEST_MAIN(quorvane::test::AutomaticRunTest)
#include "automatic_run_test.moc"
