#pragma once

#include <string>

#include <QTimer>
#include <QWidget>

#include "findings/findings_collector.h"
#include "run/check_run.h"
#include "run/check_window.h"
#include "ui/findings_writer.h"
#include "ui/main_window_controls.h"
#include "ui/program_start.h"

namespace quorvane {

class Desktop;
class FilePickers;
struct SchemaEdition;

/// What the window needs from the program around it. All of it must outlive the window.
struct WindowServices {
  Disk& disk;
  Environment& environment;
  UserMessages& messages;
  ParentChoice& parentChoice;
  FilePickers& pickers;
  Desktop& desktop;
  FindingsWriters findingsWriters = {};  // none: the findings cannot be saved
};

/// The main window: every option of a check run, its progress, and the actions on it.
class MainWindow : public QWidget, private CheckWindow {
  Q_OBJECT

 public:
  /// A window with its defaults that waits for the user.
  explicit MainWindow(const WindowServices& services);

  /// Fills the controls. When the program was started by a command line whose settings could be
  /// found, the check runs by itself once the window is shown; with a log file it is written then
  /// and the window closes.
  void Begin(const ProgramStart& start);

  /// The status with which the program ends: that of an unattended run, else 0.
  int ExitStatus() const { return exitStatus_; }

 signals:
  /// The window is closed for good.
  void Closed();

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  CheckSettings Settings() const override;
  void SetFilesToCheck(const std::string& files) override;
  void FocusFirstListing() override;
  void BeginRun() override;
  void BeginFile(std::string_view path, int number, int count) override;
  void EndChecking() override;
  void EndRun() override;

  void ConnectControls();
  void Perform(WindowAction action);
  CheckStatus CheckFiles();
  void ShowReport();
  void ShowAbout();
  void ShowHelp();
  void RunAutomatically();
  void SelectDataFiles();
  void SelectSchema();
  void SelectEdition(const SchemaEdition& edition);
  void AddFiles(const std::vector<std::string>& paths);
  void UpdateControls();
  void ShowPage(WindowPage page);
  void ShowFindings(FindingsReport findings);
  void ShowTitle();

  WindowServices services_;
  MainWindowControls controls_;
  FindingsCollector findings_;  // of a run that goes on
  CheckRun run_;
  bool runsAtFirstShow_ = false;
  QTimer automaticRun_;     // started when the window is shown, so that it is laid out by then
  std::string logFile_;     // not empty: the run is unattended
  bool isRunning_ = false;  // the run takes messages in between: nothing else may start then
  bool closesAfterRun_ = false;
  int exitStatus_ = 0;
};

}  // namespace quorvane
