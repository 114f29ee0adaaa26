#include "ui/program_start.h"

#include <algorithm>
#include <vector>

#include "text/comma_list.h"
#include "text/text.h"
#include "ui/written_path.h"

namespace quorvane {
namespace {

/// The data files that exist, one per line; the others are named.
std::string ExistingFiles(Disk& disk, UserMessages& messages,
                          const std::vector<std::string>& dataFiles) {
  std::vector<std::string> existing;
  for (const std::string& file : dataFiles) {
    const std::string path = PathToRead(disk, file);
    if (disk.Examine(path).exists) {
      existing.push_back(path);
    } else {
      messages.Note(file + ": File not found");
    }
  }
  return Join(existing, LineBreak);
}

}  // namespace

ProgramStart ReadCommandLine(Disk& disk, UserMessages& messages,
                             std::span<const std::string> arguments) {
  const CommandLine commandLine = SplitCommandLine(arguments);
  ProgramStart start;
  start.isCommandLineMode = !commandLine.IsEmpty();
  CheckSettings& controls = start.settings.controls;
  const std::string named = ExistingFiles(disk, messages, commandLine.dataFiles);
  controls.filesToCheck = named;
  start.outcome = LoadSettingsFile(disk, messages, SettingsFileOption, commandLine, start.settings);
  NoteReplacedFiles(messages, named, controls.filesToCheck);
  NoteUnusedDictionary(messages, controls);
  return start;
}

void NoteReplacedFiles(UserMessages& messages, std::string_view earlierList,
                       std::string_view listInUse) {
  const std::vector<std::string_view> inUse = SplitLines(listInUse);
  for (const std::string_view file : SplitLines(earlierList)) {
    if (std::find(inUse.begin(), inUse.end(), file) != inUse.end()) continue;
    messages.Note(std::string(file) +
                  ": not checked, as the settings file names the files to check");
  }
}

void NoteUnusedDictionary(UserMessages& messages, const CheckSettings& controls) {
  if (controls.useCustomDictionary || Trim(controls.customDictionary).empty()) return;
  messages.Note("CUSTOMDICTIONARY " + controls.customDictionary +
                ": not used, as Use Custom Dictionary is not ticked");
}

}  // namespace quorvane
