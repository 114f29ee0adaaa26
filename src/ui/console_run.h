#pragma once

#include <optional>
#include <string>

#include "findings/delivery_closing.h"
#include "findings/findings_format.h"
#include "report/disk.h"
#include "run/environment.h"
#include "ui/settings_file.h"

namespace quorvane {

/// Where the log of a run goes when there is no window.
enum class LogOutput {
  StandardOutput,  // and to the log file, if the settings name one
  LogFileOnly,     // to standard output only when the settings name none or it cannot be written
};

/// What a run found as data, and where it goes.
struct FindingsOutput {
  FindingsFormat format = FindingsFormat::Json;
  std::string file;  // empty: standard output, which the log then leaves to it
};

/// What is wanted of a run beside the check itself.
struct ConsoleRequest {
  LogOutput log = LogOutput::StandardOutput;
  std::optional<FindingsOutput> findings;  // none: only the text
  DeliveryOptions delivery;
};

/// Makes a check without a window and writes its log: the run of the console program, and of the
/// desktop program where there is no display. Boxes and notes go to the error stream. Findings are
/// written as data too where that is wanted. Returns the exit status.
int CheckOnConsole(Disk& disk, Environment& environment, const RunSettings& settings,
                   const ConsoleRequest& request);

}  // namespace quorvane
