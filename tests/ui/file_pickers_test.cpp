#include "ui/file_pickers.h"

#include <memory>

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "ui/window_fixture.h"

namespace quorvane::test {
namespace {

void Touch(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly)) qFatal("Cannot write %s.", qPrintable(path));
}

/// Answers a file dialog that has come up with paths, as if they had been typed in.
void Answer(QDialog& dialog, const QStringList& paths) {
  auto& fileDialog = dynamic_cast<QFileDialog&>(dialog);
  fileDialog.setDirectory(QFileInfo(paths.first()).path());
  QStringList names;
  for (const QString& path : paths)
    names.append(paths.size() > 1 ? "\"" + path + "\"" : path);
  auto* nameEdit = fileDialog.findChild<QLineEdit*>("fileNameEdit");
  if (nameEdit == nullptr) qFatal("The dialog has no box for the name.");
  nameEdit->setText(names.join(' '));
  QMetaObject::invokeMethod(&fileDialog, "accept");
}

}  // namespace

/// The dialogs of the toolkit itself, which stand in for those of the desktop here.
class FilePickersTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void SeveralFilesCanBeOpened();
  void OneSchemaCanBeOpened();
  void CancelGivesNothing();
  void SavingAddsTheExtension();
  void SavingInAFormatAddsItsSuffix_data();
  void SavingInAFormatAddsItsSuffix();
  void SavingAsksBeforeTheLowerCaseFormIsReplaced_data();
  void SavingAsksBeforeTheLowerCaseFormIsReplaced();

 private:
  std::unique_ptr<QTemporaryDir> folder_;
};

void FilePickersTest::init() {
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  folder_ = std::make_unique<QTemporaryDir>();
}

void FilePickersTest::SeveralFilesCanBeOpened() {
  const QStringList paths{folder_->filePath("a 1.ags"),
                          folder_->filePath(QStringLiteral(u"\u00E4.AGS"))};
  for (const QString& path : paths)
    Touch(path);
  WhenDialogShows([&](QDialog& dialog) {
    const auto& fileDialog = dynamic_cast<QFileDialog&>(dialog);
    QCOMPARE(fileDialog.objectName(), QString("cdgQuorvane"));
    QCOMPARE(fileDialog.windowTitle(), QString("AGS File To Check"));
    QCOMPARE(fileDialog.nameFilters(), QStringList{"AGS File (*.ags)"});
    QCOMPARE(fileDialog.fileMode(), QFileDialog::ExistingFiles);
    Answer(dialog, paths);
  });
  const auto chosen =
      DesktopFilePickers().ChooseFilesToOpen("AGS File To Check", "AGS File (*.ags)|*.ags");
  QCOMPARE(chosen, (std::vector<std::string>{paths[0].toStdString(), paths[1].toStdString()}));
}

void FilePickersTest::OneSchemaCanBeOpened() {
  const QString path = folder_->filePath("own.gas");
  Touch(path);
  WhenDialogShows([&](QDialog& dialog) {
    const auto& fileDialog = dynamic_cast<QFileDialog&>(dialog);
    QCOMPARE(fileDialog.nameFilters(), QStringList{"Vexo AGS Schema (*.gas)"});
    QCOMPARE(fileDialog.fileMode(), QFileDialog::ExistingFile);
    Answer(dialog, {path});
  });
  QCOMPARE(DesktopFilePickers().ChooseFileToOpen("Select", "Vexo AGS Schema (*.gas)|*.gas"),
           std::optional<std::string>(path.toStdString()));
}

void FilePickersTest::CancelGivesNothing() {
  DesktopFilePickers pickers;
  const auto cancel = [](QDialog& dialog) { dialog.reject(); };
  WhenDialogShows(cancel);
  QVERIFY(pickers.ChooseFilesToOpen("Open", "AGS File (*.ags)|*.ags").empty());
  WhenDialogShows(cancel);
  QVERIFY(!pickers.ChooseFileToOpen("Open", "AGS File (*.ags)|*.ags"));
  WhenDialogShows(cancel);
  QVERIFY(!pickers.ChooseFile("Save", "Text File (*.txt)|*.txt"));
  WhenDialogShows(cancel);
  QVERIFY(!pickers.ChooseFileToSave("Save", {"Text File (*.txt)|*.txt"}));
}

void FilePickersTest::SavingAddsTheExtension() {
  WhenDialogShows([&](QDialog& dialog) {
    const auto& fileDialog = dynamic_cast<QFileDialog&>(dialog);
    QCOMPARE(fileDialog.windowTitle(), QString("AGS Checking Log File"));
    QCOMPARE(fileDialog.nameFilters(), QStringList{"Text File (*.txt)"});
    QCOMPARE(fileDialog.acceptMode(), QFileDialog::AcceptSave);
    QVERIFY(!fileDialog.testOption(QFileDialog::DontConfirmOverwrite));
    Answer(dialog, {folder_->filePath("report")});
  });
  QCOMPARE(DesktopFilePickers().ChooseFile("AGS Checking Log File", "Text File (*.txt)|*.txt"),
           std::optional<std::string>(folder_->filePath("report.txt").toStdString()));
}

void FilePickersTest::SavingInAFormatAddsItsSuffix_data() {
  QTest::addColumn<int>("format");
  QTest::addColumn<QString>("typed");
  QTest::addColumn<QString>("saved");
  QTest::newRow("first format") << 0 << "Out"
                                << "Out.csv";
  QTest::newRow("second format") << 1 << "Out"
                                 << "Out.html";
  QTest::newRow("suffix of its own") << 1 << "Out.txt"
                                     << "Out.txt";
}

void FilePickersTest::SavingInAFormatAddsItsSuffix() {
  QFETCH(int, format);
  QFETCH(QString, typed);
  QFETCH(QString, saved);
  WhenDialogShows([&](QDialog& dialog) {
    auto& fileDialog = dynamic_cast<QFileDialog&>(dialog);
    QCOMPARE(fileDialog.windowTitle(), QString("Save"));
    QCOMPARE(fileDialog.nameFilters(), (QStringList{"CSV (*.csv)", "Web page (*.html)"}));
    QVERIFY(!fileDialog.testOption(QFileDialog::DontConfirmOverwrite));
    auto* filters = fileDialog.findChild<QComboBox*>("fileTypeCombo");
    filters->setCurrentIndex(format);
    emit filters->textActivated(filters->currentText());
    emit filters->activated(format);
    Answer(dialog, {folder_->filePath(typed)});
  });
  const auto chosen = DesktopFilePickers().ChooseFileToSave(
      "Save", {"CSV (*.csv)|*.csv", "Web page (*.html)|*.html"});
  QVERIFY(chosen.has_value());
  QCOMPARE(chosen->path, folder_->filePath(saved).toStdString());
  QCOMPARE(chosen->filter, static_cast<std::size_t>(format));
}

void FilePickersTest::SavingAsksBeforeTheLowerCaseFormIsReplaced_data() {
  QTest::addColumn<QMessageBox::StandardButton>("answer");
  QTest::newRow("yes") << QMessageBox::Yes;
  QTest::newRow("no") << QMessageBox::No;
}

void FilePickersTest::SavingAsksBeforeTheLowerCaseFormIsReplaced() {
  QFETCH(QMessageBox::StandardButton, answer);
  Touch(folder_->filePath("report.txt"));
  bool wasAsked = false;
  WhenDialogShows([&](QDialog& dialog) {
    WhenDialogShows([&](QDialog& question) {
      wasAsked = true;
      dynamic_cast<QMessageBox&>(question).button(answer)->click();
    });
    Answer(dialog, {folder_->filePath("Report.TXT")});
  });
  const auto chosen = DesktopFilePickers().ChooseFile("Save", "Text File (*.txt)|*.txt");
  QVERIFY(wasAsked);
  QCOMPARE(chosen.has_value(), answer == QMessageBox::Yes);
}

}  // namespace quorvane::test

QTEST_MAIN(quorvane::test::FilePickersTest)
#include "file_pickers_test.moc"
