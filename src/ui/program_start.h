#pragma once

#include <span>
#include <string>

#include "ui/settings_file.h"

namespace quorvane {

/// How a program begins: with what in its controls, and whether it goes on by itself.
struct ProgramStart {
  RunSettings settings;
  bool isCommandLineMode = false;  // there was a command line; the window checks by itself
  SettingsOutcome outcome = SettingsOutcome::NotNamed;

  /// The window writes the log and closes by itself: nobody need be there.
  bool RunsUnattended() const { return isCommandLineMode && !settings.logFile.empty(); }
};

/// Reads a command line: data files that exist go to the list of files to check, then the settings
/// file is applied, whose own list takes their place. Notes name the files that are left out and a
/// custom dictionary that will not be used.
ProgramStart ReadCommandLine(Disk& disk, UserMessages& messages,
                             std::span<const std::string> arguments);

/// Names the files of an earlier list that the settings file's own list has replaced: they were
/// asked for, yet will not be checked.
void NoteReplacedFiles(UserMessages& messages, std::string_view earlierList,
                       std::string_view listInUse);

/// A settings file fills in the path of a custom dictionary and leaves its box as it is. A
/// dictionary that is not used for that reason is named.
void NoteUnusedDictionary(UserMessages& messages, const CheckSettings& controls);

}  // namespace quorvane
