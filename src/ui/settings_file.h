#pragma once

#include <string>
#include <string_view>

#include "report/disk.h"
#include "report/user_interface.h"
#include "run/check_window.h"
#include "ui/command_line.h"

namespace quorvane {

/// What a settings file can set: the controls of the main window and the path of the log file.
struct RunSettings {
  CheckSettings controls;
  std::string logFile;  // empty: no log file is written without being asked for
};

enum class SettingsOutcome {
  NotNamed,    // no option word names a settings file
  NotApplied,  // an option word without exactly one "=": noted, nothing is set
  Missing,     // the file does not exist or cannot be read: a box says so, nothing is set
  Applied,
};

/// Applies the settings file that the command line names. When it names several, they are applied
/// in order, and all of them or none. When no message listing is wanted afterwards, Scan Groupings
/// is.
SettingsOutcome LoadSettingsFile(Disk& disk, UserMessages& messages, std::string_view option,
                                 const CommandLine& commandLine, RunSettings& settings);

/// Applies a settings file. Its paths, and its own, are relative to the current folder and may be
/// written with "/" or "\".
SettingsOutcome ApplySettingsFile(Disk& disk, UserMessages& messages, const std::string& path,
                                  RunSettings& settings);

/// Applies the text of a settings file. Lines are KEY=value, or a block of values between
/// "KEY=<ARRAY>" and "</ARRAY>", each on its own line; keys and markers in any letter case.
/// Listings are wanted only where the text says so, everything else stays as it is until a key sets
/// it. Unknown keys, lines without "=" and a block that is not closed change nothing.
void ApplySettings(std::string_view text, RunSettings& settings);

}  // namespace quorvane
