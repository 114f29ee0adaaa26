#include "ui/console_run.h"

#include "dictionary/parent_choice.h"
#include "report/log_file.h"
#include "run/check_run.h"
#include "text/text.h"
#include "ui/console.h"

namespace quorvane {

int CheckOnConsole(Disk& disk, Environment& environment, const RunSettings& settings,
                   LogOutput output) {
  StandardOutput standardOutput;
  ConsoleMessages messages(standardOutput);
  const bool hasLogFile = !settings.logFile.empty();
  const bool printsLog = output == LogOutput::StandardOutput || !hasLogFile;
  Console console(settings.controls, printsLog, standardOutput);
  UnattendedParentChoice parentChoice(messages);
  CheckRun run(Services{disk, environment, messages, console, console, parentChoice});
  int status = static_cast<int>(run.ExecuteChecking());
  if (run.LogText().empty()) return status;

  constexpr int logNotWritten = static_cast<int>(CheckStatus::NotDone);
  if (printsLog) standardOutput.Write(LineBreak);
  if (hasLogFile && SaveLogFile(disk, messages, settings.logFile, run.LogText())) {
    if (!printsLog) standardOutput.Write(run.LogText() + std::string(LineBreak));
    status = logNotWritten;
  }
  return standardOutput.IsLost(messages) ? logNotWritten : status;
}

}  // namespace quorvane
