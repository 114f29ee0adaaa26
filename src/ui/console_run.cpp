#include "ui/console_run.h"

#include "dictionary/parent_choice.h"
#include "findings/findings_collector.h"
#include "report/log_file.h"
#include "run/check_run.h"
#include "text/text.h"
#include "ui/console.h"

namespace quorvane {
namespace {

constexpr int NotDone = static_cast<int>(CheckStatus::NotDone);

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
                   const ConsoleRequest& request) {
  const std::optional<FindingsOutput>& findings = request.findings;
  StandardOutput standardOutput;
  ProgressLine progress;
  ConsoleMessages messages(standardOutput, progress);
  DeliveryClosing closing(disk, request.delivery);
  if (!closing.Prepare(messages)) return NotDone;
  const bool hasLogFile = !settings.logFile.empty();
  const bool mayPrintLog = !findings || !findings->file.empty();
  const bool printsLog = mayPrintLog && (request.log == LogOutput::StandardOutput || !hasLogFile);
  Console console(settings.controls, printsLog, standardOutput, progress);
  UnattendedParentChoice parentChoice(messages);
  FindingsCollector collector(environment, &closing);
  const bool collects = findings.has_value() || request.delivery.Any();
  CheckRun run(Services{disk, environment, messages, console, console, parentChoice,
                        collects ? &collector : nullptr});
  int status = static_cast<int>(run.ExecuteChecking());
  if (run.LogText().empty()) return status;

  if (printsLog) standardOutput.Write(LineBreak);
  if (hasLogFile && SaveLogFile(disk, messages, settings.logFile, run.LogText())) {
    if (mayPrintLog && !printsLog) standardOutput.Write(run.LogText() + std::string(LineBreak));
    status = NotDone;
  }
  if (findings && SaveFindings(disk, messages, standardOutput, *findings, collector.Report()))
    status = NotDone;
  return standardOutput.IsLost(messages) ? NotDone : status;
}

}  // namespace quorvane
