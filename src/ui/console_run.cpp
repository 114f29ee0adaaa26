#include "ui/console_run.h"

#include "dictionary/parent_choice.h"
#include "findings/findings_collector.h"
#include "report/log_file.h"
#include "run/check_run.h"
#include "text/text.h"
#include "ui/console.h"

namespace quorvane {
namespace {

constexpr int NotWritten = static_cast<int>(CheckStatus::NotDone);

/// Writes findings as data to their file or to standard output. When the file cannot be written it
/// shows the box that says why and returns true.
bool SaveFindings(Disk& disk, UserMessages& messages, StandardOutput& standardOutput,
                  const FindingsOutput& output, const FindingsReport& report) {
  const std::string text = FormatFindings(output.format, report);
  if (!output.file.empty()) return SaveFile(disk, messages, output.file, text, "");
  standardOutput.WriteBytes(text);
  return false;
}

}  // namespace

int CheckOnConsole(Disk& disk, Environment& environment, const RunSettings& settings,
                   LogOutput output, const std::optional<FindingsOutput>& findings) {
  StandardOutput standardOutput;
  ConsoleMessages messages(standardOutput);
  const bool hasLogFile = !settings.logFile.empty();
  const bool mayPrintLog = !findings || !findings->file.empty();
  const bool printsLog = mayPrintLog && (output == LogOutput::StandardOutput || !hasLogFile);
  Console console(settings.controls, printsLog, standardOutput);
  UnattendedParentChoice parentChoice(messages);
  FindingsCollector collector(environment);
  CheckRun run(Services{disk, environment, messages, console, console, parentChoice,
                        findings ? &collector : nullptr});
  int status = static_cast<int>(run.ExecuteChecking());
  if (run.LogText().empty()) return status;

  if (printsLog) standardOutput.Write(LineBreak);
  if (hasLogFile && SaveLogFile(disk, messages, settings.logFile, run.LogText())) {
    if (mayPrintLog && !printsLog) standardOutput.Write(run.LogText() + std::string(LineBreak));
    status = NotWritten;
  }
  if (findings && SaveFindings(disk, messages, standardOutput, *findings, collector.Report()))
    status = NotWritten;
  return standardOutput.IsLost(messages) ? NotWritten : status;
}

}  // namespace quorvane
