#include "ui/main_window.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "ui/window_fixture.h"

namespace quorvane::test {
namespace {

using Texts = std::vector<std::string>;

/// Drags files to a place of the window and drops them there; whether the window took them.
bool Drop(MainWindow& window, const QStringList& paths, const QPoint& place) {
  return AcceptsDrag(window, paths, place) && AcceptsDrop(window, paths, place);
}

}  // namespace

/// What the window does while no run is on.
class MainWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void Captions_data();
  void Captions();
  void StartsWithItsDefaults();
  void TitleNamesProgramAndVersion();
  void FitsASmallScreen();
  void TabGoesFromTopToBottom();
  void EveryControlSaysWhatItIs();
  void CheckFilesNeedsFilesAndDictionary_data();
  void CheckFilesNeedsFilesAndDictionary();
  void DictionaryControlsFollowTheTickBox();
  void DataFilesFillTheList();
  void CancelledDataFilesChangeNothing();
  void SchemaFillsThePath();
  void CancelledSchemaChangesNothing();
  void EditionFillsThePathAndTicksTheBox_data();
  void EditionFillsThePathAndTicksTheBox();
  void EditionsAreReachedByTheKeyboard();
  void EditionsStayLegible();
  void DroppedFilesJoinTheList();
  void DroppedSchemaFillsThePathOfAnEnabledBox();
  void DroppedTextIsNotTaken();
  void NoListingShowsBoxAndGoesToTheFirst();
  void ListOfBlanksShowsBox();
  void AboutShowsVersionAndEnvironment();
  void HelpOpensTheManual();
  void MissingManualShowsBox();
  void CloseEndsTheProgram();
  void BeginFillsTheControls();
};

void MainWindowTest::Captions_data() {
  QTest::addColumn<QString>("caption");
  const auto row = [](const char* name, const char* caption) {
    QTest::newRow(name) << QString::fromLatin1(caption);
  };
  row("cmdQuorvane_0", "&Check Files");
  row("cmdQuorvane_1", "&View Report");
  row("cmdQuorvane_2", "Cl&ose");
  row("cmdQuorvane_3", "&About");
  row("cmdQuorvane_4", "&Help");
  row("chkUseCustomDict", "Use Custom Dictionary");
  row("cmdEditions", "E&ditions");
  row("chkShowStats", "Show Data Statistics");
  row("chkSuppressFYIMesgs", "Suppress FYI (for your information only) messages");
  row("lblQuorvane_1", "Messages Listed By:");
  row("chkMessageListing_0", "Scan Groupings");
  row("chkMessageListing_1", "Line Number in File");
  row("chkMessageListing_2", "Severity");
}

void MainWindowTest::Captions() {
  WindowFixture fixture;
  const auto& control = fixture.Find<QWidget>(QTest::currentDataTag());
  QTEST(control.property("text").toString(), "caption");
}

void MainWindowTest::StartsWithItsDefaults() {
  WindowFixture fixture;
  QCOMPARE(fixture.window.objectName(), QString("frmQuorvane"));
  QVERIFY(fixture.Find<QCheckBox>("chkMessageListing_0").isChecked());
  for (const char* clear : {"chkMessageListing_1", "chkMessageListing_2", "chkSuppressFYIMesgs",
                            "chkShowStats", "chkUseCustomDict"}) {
    QVERIFY2(!fixture.Find<QCheckBox>(clear).isChecked(), clear);
  }
  QCOMPARE(fixture.Find<QPlainTextEdit>("txtFilesToCheck").toPlainText(), QString());
  QCOMPARE(fixture.Find<QLineEdit>("txtAgsDataDictionary").text(), QString());
  const auto& progress = fixture.Find<QPlainTextEdit>("txtProgress");
  QCOMPARE(progress.toPlainText(), QString());
  QVERIFY(progress.isReadOnly());
  QVERIFY(QFontInfo(progress.font()).fixedPitch() ||
          progress.font().styleHint() == QFont::Monospace ||
          progress.font().styleHint() == QFont::TypeWriter);
}

void MainWindowTest::TitleNamesProgramAndVersion() {
  WindowFixture fixture;
  QCOMPARE(fixture.window.windowTitle(),
           QString("Quorvane for AGS Versions 3 and 4, Version 10.00.01.07"));
}

void MainWindowTest::FitsASmallScreen() {
  WindowFixture fixture;
  const QSize least = fixture.window.minimumSizeHint();
  QVERIFY2(least.width() <= 640 && least.height() <= 480,
           qPrintable(QStringLiteral("%1x%2").arg(least.width()).arg(least.height())));
}

void MainWindowTest::TabGoesFromTopToBottom() {
  WindowFixture fixture;
  fixture.SetFiles("a.ags");
  fixture.Find<QCheckBox>("chkUseCustomDict").setChecked(true);
  fixture.Find<QLineEdit>("txtAgsDataDictionary").setText("own.gas");
  fixture.window.show();
  QVERIFY(QTest::qWaitForWindowActive(&fixture.window));
  fixture.Find<QWidget>("txtFilesToCheck").setFocus();
  QStringList order;
  for (int step = 0; step < 17; ++step) {
    order.append(QApplication::focusWidget()->objectName());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  const QStringList expected{"txtFilesToCheck",      "cmdFileToCheck",      "chkUseCustomDict",
                             "txtAgsDataDictionary", "cmdEditions",         "cmdSelectDataDict",
                             "chkShowStats",         "chkSuppressFYIMesgs", "chkMessageListing_0",
                             "chkMessageListing_1",  "chkMessageListing_2", "cmdQuorvane_0",
                             "cmdQuorvane_1",        "cmdQuorvane_2",       "cmdQuorvane_3",
                             "cmdQuorvane_4",        "tabPages_bar"};
  QCOMPARE(order, expected);
  QCOMPARE(QApplication::focusWidget()->objectName(), QString("txtProgress"));
}

void MainWindowTest::EveryControlSaysWhatItIs() {
  WindowFixture fixture;
  for (const char* name :
       {"txtFilesToCheck", "cmdFileToCheck", "chkUseCustomDict", "txtAgsDataDictionary",
        "cmdEditions", "cmdSelectDataDict", "chkShowStats", "chkSuppressFYIMesgs",
        "chkMessageListing_0", "chkMessageListing_1", "chkMessageListing_2", "cmdQuorvane_0",
        "cmdQuorvane_1", "cmdQuorvane_2", "cmdQuorvane_3", "cmdQuorvane_4"}) {
    const auto& control = fixture.Find<QWidget>(name);
    QVERIFY2(!control.toolTip().isEmpty(), name);
    const bool hasName =
        !control.accessibleName().isEmpty() || !control.property("text").toString().isEmpty();
    QVERIFY2(hasName, name);
  }
  QVERIFY(!fixture.Find<QWidget>("txtProgress").accessibleName().isEmpty());
}

void MainWindowTest::CheckFilesNeedsFilesAndDictionary_data() {
  QTest::addColumn<QString>("files");
  QTest::addColumn<bool>("usesDictionary");
  QTest::addColumn<QString>("dictionary");
  QTest::addColumn<bool>("enabled");
  QTest::newRow("nothing") << "" << false << "" << false;
  QTest::newRow("files") << "a.ags" << false << "" << true;
  QTest::newRow("files, ticked, no path") << "a.ags" << true << "" << false;
  QTest::newRow("files, ticked, path") << "a.ags" << true << "own.gas" << true;
  QTest::newRow("no files, ticked, path") << "" << true << "own.gas" << false;
  QTest::newRow("files, path without tick") << "a.ags" << false << "own.gas" << true;
}

void MainWindowTest::CheckFilesNeedsFilesAndDictionary() {
  QFETCH(QString, files);
  QFETCH(bool, usesDictionary);
  QFETCH(QString, dictionary);
  QFETCH(bool, enabled);
  // Each of the three controls has the last word once.
  for (int last = 0; last < 3; ++last) {
    WindowFixture fixture;
    for (int step = 1; step <= 3; ++step) {
      const int control = (last + step) % 3;
      if (control == 0) fixture.SetFiles(files);
      if (control == 1) fixture.Find<QCheckBox>("chkUseCustomDict").setChecked(usesDictionary);
      if (control == 2) fixture.Find<QLineEdit>("txtAgsDataDictionary").setText(dictionary);
    }
    QCOMPARE(fixture.Find<QPushButton>("cmdQuorvane_0").isEnabled(), enabled);
    fixture.SetFiles("");
    QVERIFY(!fixture.Find<QPushButton>("cmdQuorvane_0").isEnabled());
    for (const char* other : {"cmdQuorvane_1", "cmdQuorvane_2", "cmdQuorvane_3", "cmdQuorvane_4"})
      QVERIFY2(fixture.Find<QPushButton>(other).isEnabled(), other);
  }
}

void MainWindowTest::DictionaryControlsFollowTheTickBox() {
  WindowFixture fixture;
  auto& tick = fixture.Find<QCheckBox>("chkUseCustomDict");
  for (const bool ticked : {false, true, false}) {
    tick.setChecked(ticked);
    QCOMPARE(fixture.Find<QLineEdit>("txtAgsDataDictionary").isEnabled(), ticked);
    QCOMPARE(fixture.Find<QPushButton>("cmdSelectDataDict").isEnabled(), ticked);
  }
}

void MainWindowTest::DataFilesFillTheList() {
  WindowFixture fixture;
  fixture.SetFiles("old.ags");
  fixture.pickers.filesToOpen = {"/data/a b.ags", "/data/\xC3\xA4.ags"};
  fixture.Find<QPushButton>("cmdFileToCheck").click();
  QCOMPARE(fixture.pickers.asked, Texts{"AGS File To Check / AGS File (*.ags)|*.ags"});
  QCOMPARE(fixture.Find<QPlainTextEdit>("txtFilesToCheck").toPlainText(),
           QStringLiteral(u"/data/a b.ags\n/data/\u00E4.ags"));
}

void MainWindowTest::CancelledDataFilesChangeNothing() {
  WindowFixture fixture;
  fixture.SetFiles("old.ags");
  fixture.Find<QPushButton>("cmdFileToCheck").click();
  QCOMPARE(fixture.pickers.asked.size(), std::size_t{1});
  QCOMPARE(fixture.Find<QPlainTextEdit>("txtFilesToCheck").toPlainText(), QString("old.ags"));
}

void MainWindowTest::SchemaFillsThePath() {
  WindowFixture fixture;
  fixture.Find<QCheckBox>("chkUseCustomDict").setChecked(true);
  fixture.pickers.fileToOpen = "/own/dict.gas";
  fixture.Find<QPushButton>("cmdSelectDataDict").click();
  QCOMPARE(fixture.pickers.asked, Texts{"Select Vexo AGS Schema / Vexo AGS Schema (*.gas)|*.gas"});
  QCOMPARE(fixture.Find<QLineEdit>("txtAgsDataDictionary").text(), QString("/own/dict.gas"));
}

void MainWindowTest::CancelledSchemaChangesNothing() {
  WindowFixture fixture;
  fixture.Find<QCheckBox>("chkUseCustomDict").setChecked(true);
  fixture.Find<QLineEdit>("txtAgsDataDictionary").setText("own.gas");
  fixture.Find<QPushButton>("cmdSelectDataDict").click();
  QCOMPARE(fixture.pickers.asked.size(), std::size_t{1});
  QCOMPARE(fixture.Find<QLineEdit>("txtAgsDataDictionary").text(), QString("own.gas"));
}

void MainWindowTest::EditionFillsThePathAndTicksTheBox_data() {
  QTest::addColumn<QString>("caption");
  QTest::addColumn<QString>("fileName");
  QTest::newRow("4.0.3") << "AGS 4.0.3"
                         << "ags4 dict.gas";
  QTest::newRow("4.0.4") << "AGS 4.0.4"
                         << "ags404 dict.gas";
  QTest::newRow("4.1") << "AGS 4.1"
                       << "ags41 dict.gas";
  QTest::newRow("4.1.1") << "AGS 4.1.1"
                         << "ags411 dict.gas";
  QTest::newRow("4.2") << "AGS 4.2"
                       << "ags42 dict.gas";
}

void MainWindowTest::EditionFillsThePathAndTicksTheBox() {
  QFETCH(QString, caption);
  QFETCH(QString, fileName);
  const std::string path = InProgramFolder(fileName.toStdString());
  for (const bool wasTicked : {false, true}) {
    WindowFixture fixture;
    fixture.SetFiles("a.ags");
    fixture.Find<QCheckBox>("chkUseCustomDict").setChecked(wasTicked);
    fixture.Find<QLineEdit>("txtAgsDataDictionary").setText("own.gas");
    const auto& button = fixture.Find<QToolButton>("cmdEditions");
    QVERIFY(button.isEnabled());
    int triggered = 0;
    for (QAction* action : button.menu()->actions()) {
      if (action->text() != caption) continue;
      action->trigger();
      ++triggered;
    }
    QCOMPARE(triggered, 1);
    QVERIFY(fixture.Find<QCheckBox>("chkUseCustomDict").isChecked());
    QCOMPARE(fixture.Find<QLineEdit>("txtAgsDataDictionary").text(), QString::fromStdString(path));
    QVERIFY(fixture.Find<QPushButton>("cmdQuorvane_0").isEnabled());
  }
}

void MainWindowTest::EditionsAreReachedByTheKeyboard() {
  WindowFixture fixture;
  fixture.window.show();
  QVERIFY(QTest::qWaitForWindowActive(&fixture.window));
  auto& button = fixture.Find<QToolButton>("cmdEditions");
  button.setFocus();
  QVERIFY(button.hasFocus());
  bool hasShown = false;
  connect(button.menu(), &QMenu::aboutToShow, &fixture.window, [&] {
    // The menu takes its keys in a loop of its own.
    QTimer::singleShot(0, button.menu(), [&] {
      hasShown = true;
      QTest::keyClick(button.menu(), Qt::Key_Up);
      QTest::keyClick(button.menu(), Qt::Key_Return);
    });
  });
  QTest::keyClick(&button, Qt::Key_Space);
  QTRY_VERIFY(hasShown);
  QTRY_COMPARE(fixture.Find<QLineEdit>("txtAgsDataDictionary").text(),
               QString::fromStdString(InProgramFolder("ags42 dict.gas")));
}

void MainWindowTest::EditionsStayLegible() {
  WindowFixture fixture;
  fixture.window.resize(640, 480);
  fixture.window.show();
  const auto& path = fixture.Find<QWidget>("txtAgsDataDictionary");
  const auto& editions = fixture.Find<QWidget>("cmdEditions");
  const auto& select = fixture.Find<QWidget>("cmdSelectDataDict");
  QVERIFY(editions.width() >= editions.sizeHint().width());
  QVERIFY(path.geometry().right() < editions.geometry().left());
  QVERIFY(editions.geometry().right() < select.geometry().left());
  QVERIFY2(path.width() >= 100, qPrintable(QString::number(path.width())));
}

void MainWindowTest::DroppedFilesJoinTheList() {
  WindowFixture fixture;
  fixture.window.show();
  const auto& files = fixture.Find<QPlainTextEdit>("txtFilesToCheck");
  QVERIFY(Drop(fixture.window, {"/data/a.ags", "/data/b.ags"}, {1, 1}));
  QVERIFY(Drop(fixture.window, {"/data/b.ags", "/data/c.ags"}, files.geometry().center()));
  QCOMPARE(files.toPlainText(), QString("/data/a.ags\n/data/b.ags\n/data/c.ags"));
}

void MainWindowTest::DroppedSchemaFillsThePathOfAnEnabledBox() {
  WindowFixture fixture;
  fixture.window.resize(800, 600);
  fixture.window.show();
  const auto& dictionary = fixture.Find<QLineEdit>("txtAgsDataDictionary");
  const QPoint place = dictionary.mapTo(&fixture.window, dictionary.rect().center());
  fixture.Find<QCheckBox>("chkUseCustomDict").setChecked(true);
  QVERIFY(Drop(fixture.window, {"/own/dict.gas"}, place));
  QCOMPARE(dictionary.text(), QString("/own/dict.gas"));
  QCOMPARE(fixture.Find<QPlainTextEdit>("txtFilesToCheck").toPlainText(), QString());
}

void MainWindowTest::DroppedTextIsNotTaken() {
  WindowFixture fixture;
  QVERIFY(!Drop(fixture.window, {}, {1, 1}));
  QCOMPARE(fixture.Find<QPlainTextEdit>("txtFilesToCheck").toPlainText(), QString());
}

void MainWindowTest::NoListingShowsBoxAndGoesToTheFirst() {
  WindowFixture fixture;
  fixture.window.show();
  QVERIFY(QTest::qWaitForWindowActive(&fixture.window));
  fixture.SetFiles("a.ags");
  fixture.Find<QCheckBox>("chkMessageListing_0").setChecked(false);
  fixture.ClickCheckFiles();
  QCOMPARE(fixture.messages.boxes, Texts{"Check Files: Select one or more message listings"});
  QVERIFY(fixture.Find<QCheckBox>("chkMessageListing_0").hasFocus());
  QCOMPARE(fixture.Progress(), QString());
}

void MainWindowTest::ListOfBlanksShowsBox() {
  WindowFixture fixture;
  fixture.SetFiles("  \n ");
  fixture.ClickCheckFiles();
  QCOMPARE(fixture.messages.boxes, Texts{"Check Files: Supply files to check"});
  QCOMPARE(fixture.Find<QPlainTextEdit>("txtFilesToCheck").toPlainText(), QString());
}

void MainWindowTest::AboutShowsVersionAndEnvironment() {
  WindowFixture fixture;
  fixture.Find<QPushButton>("cmdQuorvane_3").click();
  QCOMPARE(fixture.messages.boxes,
           Texts{"About Quorvane: Quorvane\r\nfor AGS Versions 3 and 4\r\nVersion 10.00.01.07\r\n"
                 "running in environment tester on bench\r\nDate/Time: 01/02/26 03:04:05"});
}

void MainWindowTest::HelpOpensTheManual() {
  WindowFixture fixture;
  fixture.AddFile("/program/docs/vexo_quorvane.pdf", "%PDF");
  fixture.Find<QPushButton>("cmdQuorvane_4").click();
  QCOMPARE(fixture.desktop.documents, Texts{"/program/docs/vexo_quorvane.pdf"});
  QVERIFY(fixture.messages.boxes.empty());
}

void MainWindowTest::MissingManualShowsBox() {
  WindowFixture fixture;
  fixture.Find<QPushButton>("cmdQuorvane_4").click();
  QVERIFY(fixture.desktop.documents.empty());
  QCOMPARE(fixture.messages.boxes,
           Texts{"Quorvane Help: The manual '/program/docs/vexo_quorvane.pdf' does not exist."});
}

void MainWindowTest::CloseEndsTheProgram() {
  WindowFixture fixture;
  fixture.window.show();
  QSignalSpy closed(&fixture.window, &MainWindow::Closed);
  fixture.Find<QPushButton>("cmdQuorvane_2").click();
  QCOMPARE(closed.count(), 1);
  QVERIFY(!fixture.window.isVisible());
  QCOMPARE(fixture.window.ExitStatus(), 0);
}

void MainWindowTest::BeginFillsTheControls() {
  WindowFixture fixture;
  ProgramStart start;
  CheckSettings& controls = start.settings.controls;
  controls.filesToCheck = "a.ags\r\nb.ags";
  controls.listings = {false, true, true};
  controls.suppressFyi = true;
  controls.showStatistics = true;
  controls.customDictionary = "own.gas";
  fixture.window.Begin(start);
  QCOMPARE(fixture.Find<QPlainTextEdit>("txtFilesToCheck").toPlainText(), QString("a.ags\nb.ags"));
  QVERIFY(!fixture.Find<QCheckBox>("chkMessageListing_0").isChecked());
  for (const char* ticked :
       {"chkMessageListing_1", "chkMessageListing_2", "chkSuppressFYIMesgs", "chkShowStats"})
    QVERIFY2(fixture.Find<QCheckBox>(ticked).isChecked(), ticked);
  QCOMPARE(fixture.Find<QLineEdit>("txtAgsDataDictionary").text(), QString("own.gas"));
  QVERIFY(!fixture.Find<QCheckBox>("chkUseCustomDict").isChecked());
  QVERIFY(fixture.Find<QPushButton>("cmdQuorvane_0").isEnabled());
}

}  // namespace quorvane::test

QTEST_MAIN(quorvane::test::MainWindowTest)
#include "main_window_test.moc"
