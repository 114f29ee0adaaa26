#include "ui/main_window.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QToolButton>

#include "dictionary/dictionary_store.h"
#include "text/comma_list.h"
#include "text/text.h"
#include "ui/byte_text.h"
#include "ui/console.h"
#include "ui/desktop.h"
#include "ui/file_pickers.h"
#include "ui/findings_page.h"
#include "ui/help_document.h"
#include "ui/progress_view.h"

namespace quorvane {
namespace {

constexpr std::string_view DataFileTitle = "AGS File To Check";
constexpr std::string_view DataFileFilter = "AGS File (*.ags)|*.ags";
constexpr std::string_view SchemaTitle = "Select Vexo AGS Schema";
constexpr std::string_view SchemaFilter = "Vexo AGS Schema (*.gas)|*.gas";

constexpr QSize UsualSize(900, 680);

QString ProgramTitle() {
  return ShownText("Quorvane for AGS Versions 3 and 4, Version " + std::string(ProgramVersion));
}

bool HasLocalFiles(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  return std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); });
}

std::vector<std::string> LocalFiles(const QMimeData& data) {
  std::vector<std::string> paths;
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile()) paths.push_back(PathBytes(QDir::toNativeSeparators(url.toLocalFile())));
  }
  return paths;
}

}  // namespace

MainWindow::MainWindow(const WindowServices& services)
    : services_(services),
      controls_(BuildControls(
          *this, {services.disk, services.messages, services.pickers, services.findingsWriters})),
      findings_(services.environment),
      run_({services.disk, services.environment, services.messages, *controls_.txtProgress, *this,
            services.parentChoice, &findings_}) {
  setObjectName(QStringLiteral("frmQuorvane"));
  setAcceptDrops(true);
  ShowTitle();
  ConnectControls();
  UpdateControls();
  controls_.txtFilesToCheck->setFocus();
  resize(UsualSize.boundedTo(screen()->availableSize()));
}

void MainWindow::ConnectControls() {
  for (std::size_t index = 0; index < controls_.cmdQuorvane.size(); ++index) {
    connect(controls_.cmdQuorvane[index], &QPushButton::clicked, this,
            [this, index] { Perform(static_cast<WindowAction>(index)); });
  }
  connect(controls_.cmdFileToCheck, &QPushButton::clicked, this, &MainWindow::SelectDataFiles);
  connect(controls_.cmdSelectDataDict, &QPushButton::clicked, this, &MainWindow::SelectSchema);
  connect(controls_.cmdEditions->menu(), &QMenu::triggered, this, [this](const QAction* action) {
    SelectEdition(SchemaEditions[action->data().toUInt()]);
  });
  connect(controls_.txtFilesToCheck, &QPlainTextEdit::textChanged, this,
          &MainWindow::UpdateControls);
  connect(controls_.txtAgsDataDictionary, &QLineEdit::textChanged, this,
          &MainWindow::UpdateControls);
  connect(controls_.chkUseCustomDict, &QCheckBox::toggled, this, &MainWindow::UpdateControls);
  automaticRun_.setSingleShot(true);
  connect(&automaticRun_, &QTimer::timeout, this, &MainWindow::RunAutomatically);
}

void MainWindow::Begin(const ProgramStart& start) {
  const CheckSettings& settings = start.settings.controls;
  SetFilesToCheck(settings.filesToCheck);
  controls_.chkMessageListing[0]->setChecked(settings.listings.scanGroupings);
  controls_.chkMessageListing[1]->setChecked(settings.listings.lineNumberInFile);
  controls_.chkMessageListing[2]->setChecked(settings.listings.severity);
  controls_.chkSuppressFYIMesgs->setChecked(settings.suppressFyi);
  controls_.chkShowStats->setChecked(settings.showStatistics);
  controls_.chkUseCustomDict->setChecked(settings.useCustomDictionary);
  controls_.txtAgsDataDictionary->setText(PathText(settings.customDictionary));
  runsAtFirstShow_ = start.isCommandLineMode && start.outcome != SettingsOutcome::Missing;
  logFile_ = start.settings.logFile;
  // Nobody looks at the findings of a run whose window closes by itself.
  if (start.RunsUnattended()) run_.SetFindingsReceiver(nullptr);
}

void MainWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (!runsAtFirstShow_) return;
  runsAtFirstShow_ = false;
  // Not before the window is laid out and stands on the screen.
  automaticRun_.start();
}

void MainWindow::RunAutomatically() {
  raise();
  activateWindow();
  const bool isUnattended = !logFile_.empty();
  if (!isUnattended) {
    if (!controls_.txtFilesToCheck->document()->isEmpty()) CheckFiles();
    return;
  }
  exitStatus_ = static_cast<int>(CheckFiles());
  const std::string& log = run_.LogText();
  if (!log.empty() && SaveLogFile(services_.disk, services_.messages, logFile_, log)) {
    Print(log + std::string(LineBreak));  // so that what was found is not lost
    exitStatus_ = static_cast<int>(CheckStatus::NotDone);
  }
  close();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (isRunning_) {
    // What runs stands on objects of this window: it is closed when the run has ended.
    closesAfterRun_ = true;
    event->ignore();
    return;
  }
  QWidget::closeEvent(event);
  emit Closed();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!isRunning_ && HasLocalFiles(*event->mimeData())) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const std::vector<std::string> paths = LocalFiles(*event->mimeData());
  if (isRunning_ || paths.empty()) return;
  const bool isDictionary = childAt(event->position().toPoint()) == controls_.txtAgsDataDictionary;
  if (isDictionary && controls_.txtAgsDataDictionary->isEnabled()) {
    controls_.txtAgsDataDictionary->setText(PathText(paths.front()));
  } else {
    AddFiles(paths);
  }
  event->acceptProposedAction();
}

CheckSettings MainWindow::Settings() const {
  CheckSettings settings;
  settings.filesToCheck = PathBytes(controls_.txtFilesToCheck->toPlainText());
  settings.listings = {controls_.chkMessageListing[0]->isChecked(),
                       controls_.chkMessageListing[1]->isChecked(),
                       controls_.chkMessageListing[2]->isChecked()};
  settings.suppressFyi = controls_.chkSuppressFYIMesgs->isChecked();
  settings.showStatistics = controls_.chkShowStats->isChecked();
  settings.useCustomDictionary = controls_.chkUseCustomDict->isChecked();
  settings.customDictionary = PathBytes(controls_.txtAgsDataDictionary->text());
  return settings;
}

void MainWindow::SetFilesToCheck(const std::string& files) {
  controls_.txtFilesToCheck->setPlainText(PathText(files));
}

void MainWindow::FocusFirstListing() {
  controls_.chkMessageListing[0]->setFocus();
}

void MainWindow::BeginRun() {
  isRunning_ = true;
  QApplication::setOverrideCursor(Qt::WaitCursor);
  ShowFindings({});
  ShowPage(WindowPage::Progress);
  UpdateControls();
  controls_.txtProgress->ProcessPendingMessages();
}

void MainWindow::BeginFile(std::string_view path, int number, int count) {
  const std::string_view name = path.substr(path.find_last_of("\\/") + 1);
  setWindowTitle(QStringLiteral("Checking file %1 of %2: %3 - Quorvane")
                     .arg(QString::number(number), QString::number(count), ShownText(name)));
  controls_.txtProgress->ProcessPendingMessages();
}

void MainWindow::EndChecking() {
  // Clicks that waited during the check meet disabled buttons.
  controls_.txtProgress->ProcessPendingMessages();
  isRunning_ = false;
  ShowTitle();
  UpdateControls();
  // Clicks from here on are taken when the run has ended.
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void MainWindow::EndRun() {
  ShowFindings(findings_.TakeReport());
  QApplication::restoreOverrideCursor();
  controls_.txtProgress->ShowTop();
  controls_.txtProgress->setFocus();
}

void MainWindow::Perform(WindowAction action) {
  switch (action) {
    case WindowAction::CheckFiles:
      CheckFiles();
      break;
    case WindowAction::ViewReport:
      ShowReport();
      break;
    case WindowAction::Close:
      close();
      break;
    case WindowAction::About:
      ShowAbout();
      break;
    case WindowAction::Help:
      ShowHelp();
      break;
  }
}

CheckStatus MainWindow::CheckFiles() {
  const CheckStatus status = run_.ExecuteChecking();
  if (closesAfterRun_ && logFile_.empty()) close();
  return status;
}

void MainWindow::ShowReport() {
  ViewReport(services_.disk, services_.messages, services_.pickers, services_.desktop,
             run_.LogText());
}

void MainWindow::ShowAbout() {
  services_.messages.ShowBox("About Quorvane", AboutText(services_.environment),
                             BoxKind::Information);
}

void MainWindow::ShowHelp() {
  const std::string document = HelpDocument(services_.environment.ProgramFolder());
  if (services_.disk.Examine(document).exists) {
    services_.desktop.OpenDocument(document);
  } else {
    services_.messages.ShowBox("Quorvane Help", "The manual '" + document + "' does not exist.",
                               BoxKind::Critical);
  }
}

void MainWindow::SelectDataFiles() {
  const std::vector<std::string> paths =
      services_.pickers.ChooseFilesToOpen(DataFileTitle, DataFileFilter);
  if (!paths.empty()) SetFilesToCheck(Join(paths, LineBreak));
}

void MainWindow::SelectSchema() {
  if (const auto path = services_.pickers.ChooseFileToOpen(SchemaTitle, SchemaFilter)) {
    controls_.txtAgsDataDictionary->setText(PathText(*path));
  }
}

/// The schema of an edition is to the run like any that the user has named.
void MainWindow::SelectEdition(const SchemaEdition& edition) {
  const DictionaryChoice choice{AgsFormat::Ags4, false, {}, &edition};
  const std::string path = SchemaPath(choice, services_.environment.ProgramFolder());
  controls_.chkUseCustomDict->setChecked(true);
  controls_.txtAgsDataDictionary->setText(PathText(path));
}

/// Files that are in the list already are not added again.
void MainWindow::AddFiles(const std::vector<std::string>& paths) {
  const std::string listed = NormaliseFileList(Settings().filesToCheck);
  std::vector<std::string> files;
  if (!listed.empty()) {
    for (const std::string_view file : Split(listed, LineBreak))
      files.emplace_back(file);
  }
  for (const std::string& path : paths) {
    if (std::find(files.begin(), files.end(), path) == files.end()) files.push_back(path);
  }
  SetFilesToCheck(Join(files, LineBreak));
}

void MainWindow::UpdateControls() {
  const bool usesDictionary = controls_.chkUseCustomDict->isChecked();
  controls_.txtAgsDataDictionary->setEnabled(usesDictionary);
  controls_.cmdSelectDataDict->setEnabled(usesDictionary);
  controls_.options->setEnabled(!isRunning_);
  controls_.tabPages->setTabEnabled(static_cast<int>(WindowPage::Findings), !isRunning_);
  const bool hasFiles = !controls_.txtFilesToCheck->document()->isEmpty();
  const bool hasDictionary = !usesDictionary || !controls_.txtAgsDataDictionary->text().isEmpty();
  const QPushButton* check = controls_.Button(WindowAction::CheckFiles);
  for (QPushButton* button : controls_.cmdQuorvane) {
    button->setEnabled(!isRunning_ && (button != check || (hasFiles && hasDictionary)));
  }
}

void MainWindow::ShowPage(WindowPage page) {
  controls_.tabPages->setCurrentIndex(static_cast<int>(page));
}

void MainWindow::ShowFindings(FindingsReport findings) {
  const bool isOfARun = !findings.files.empty();
  controls_.pagFindings->Show(std::move(findings));
  QString caption = QStringLiteral("Fi&ndings");
  if (isOfARun) {
    caption +=
        QStringLiteral(" (") + ShownCount(controls_.pagFindings->Count()) + QStringLiteral(")");
  }
  controls_.tabPages->setTabText(static_cast<int>(WindowPage::Findings), caption);
}

void MainWindow::ShowTitle() {
  setWindowTitle(ProgramTitle());
}

}  // namespace quorvane
