#include "ui/desktop_program.h"

#include <array>
#include <optional>

#include <QApplication>
#include <QIcon>

#include "findings/csv_findings.h"
#include "findings/html_findings.h"
#include "run/system_disk.h"
#include "run/system_environment.h"
#include "ui/console.h"
#include "ui/console_run.h"
#include "ui/desktop.h"
#include "ui/file_pickers.h"
#include "ui/main_window.h"
#include "ui/parent_dialog.h"
#include "ui/program_start.h"
#include "ui/window_messages.h"

// Resources of a static library are there only when they are asked for, outside any namespace.
static void InitialiseResources() {
  Q_INIT_RESOURCE(quorvane);
}

namespace quorvane {
namespace {

/// What the toolkit shows windows on, to be tried from left to right; empty for its own choice.
/// Where the last one is what is left, there is no display.
QByteArray DisplaysToTry() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
  if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) return {};
  QByteArray displays;
  if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) displays += "wayland;";
  if (!qEnvironmentVariableIsEmpty("DISPLAY")) displays += "xcb;";
  return displays + "offscreen";
#else
  return {};
#endif
}

QIcon ProgramIcon() {
  InitialiseResources();
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256})
    icon.addFile(QStringLiteral(":/quorvane/icon-%1.png").arg(size));
  return icon;
}

int RunWithoutWindow(Disk& disk, Environment& environment,
                     const std::vector<std::string>& arguments) {
  constexpr int NotDone = static_cast<int>(CheckStatus::NotDone);
  ConsoleMessages messages;
  const ProgramStart start = ReadCommandLine(disk, messages, arguments);
  if (!start.isCommandLineMode) {
    messages.ShowBox("Quorvane", "There is no display to show the window on.", BoxKind::Critical);
    return NotDone;
  }
  if (start.outcome == SettingsOutcome::Missing) return NotDone;
  return CheckOnConsole(disk, environment, start.settings,
                        {LogOutput::LogFileOnly, std::nullopt, {}});
}

int RunInWindow(Disk& disk, Environment& environment, const std::vector<std::string>& arguments) {
  QGuiApplication::setDesktopFileName(QStringLiteral("quorvane"));
  QGuiApplication::setWindowIcon(ProgramIcon());

  const bool hasCommandLine = !arguments.empty();
  WindowMessages messages(hasCommandLine ? BoxPlace::ScreenAndErrorStream : BoxPlace::Screen);
  const ProgramStart start = ReadCommandLine(disk, messages, arguments);
  if (start.RunsUnattended()) messages.SetPlace(BoxPlace::ErrorStream);

  DialogParentChoice askingChoice;
  UnattendedParentChoice unattendedChoice(messages);
  DesktopFilePickers pickers;
  SystemDesktop desktop(messages);
  ParentChoice& parentChoice =
      start.RunsUnattended() ? static_cast<ParentChoice&>(unattendedChoice) : askingChoice;
  MainWindow window({disk,
                     environment,
                     messages,
                     parentChoice,
                     pickers,
                     desktop,
                     {{"CSV File (*.csv)|*.csv", ".csv", CsvFindings},
                      {"Web Page (*.html)|*.html", ".html", HtmlFindings}}});
  window.Begin(start);

  // A message box that closes before or behind the window must not end the program.
  QGuiApplication::setQuitOnLastWindowClosed(false);
  QObject::connect(&window, &MainWindow::Closed, qApp, &QCoreApplication::quit,
                   Qt::QueuedConnection);
  window.show();
  QApplication::exec();
  return window.ExitStatus();
}

}  // namespace

int RunDesktopProgram(const std::vector<std::string>& arguments) {
  SystemDisk disk;
  SystemEnvironment environment;
  const QByteArray displays = DisplaysToTry();
  const bool hasNoDisplay = displays == "offscreen";
  if (hasNoDisplay) return RunWithoutWindow(disk, environment, arguments);

  // The program's arguments are its own: the toolkit sees none of them.
  std::string name = "quorvane";
  std::string option = "-platform";
  std::string value = displays.toStdString();
  std::array<char*, 4> argv{name.data(), option.data(), value.data(), nullptr};
  int argc = displays.isEmpty() ? 1 : 3;
  QApplication application(argc, argv.data());
  const bool isDisplayDead =
      !displays.isEmpty() && QGuiApplication::platformName() == QStringLiteral("offscreen");
  if (isDisplayDead) return RunWithoutWindow(disk, environment, arguments);
  return RunInWindow(disk, environment, arguments);
}

}  // namespace quorvane
