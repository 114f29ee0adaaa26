// Settings files and the command lines that name them.

#include <string>
#include <vector>

#include "text/comma_list.h"
#include "ui/command_line.h"
#include "ui/program_start.h"
#include "ui/settings_file.h"
#include "whole_check.h"

namespace quorvane::fuzz {
namespace {

void ReadSettings(std::string_view text) {
  RunSettings settings;
  ApplySettings(text, settings);
  // Blanks, line ends and a mark at the start come and go; nothing else may be made up.
  const CheckSettings& controls = settings.controls;
  Require(controls.filesToCheck.size() <= 2 * text.size(), "the list is in the text");
  Require(controls.customDictionary.size() <= 2 * text.size(), "the dictionary is in the text");
  Require(settings.logFile.size() <= text.size(), "the log file is in the text");
}

void StartProgram(std::string_view text) {
  test::MemoryDisk disk;
  disk.files["own.txt"] = text;
  disk.files["one.ags"] = "";
  test::RecordingMessages messages;
  std::vector<std::string> arguments{"one.ags", "/SETTINGSFILE=own.txt"};
  const ProgramStart applied = ReadCommandLine(disk, messages, arguments);
  Require(applied.outcome == SettingsOutcome::Applied, "a settings file that is there is applied");
  Require(applied.settings.controls.listings.Any(), "a listing is always wanted");

  // The same bytes as the words of a command line.
  arguments.clear();
  for (const std::string_view word : Split(text, "\n")) {
    arguments.emplace_back(word);
  }
  static_cast<void>(ReadCommandLine(disk, messages, arguments));
  const SortedArguments sorted = SortArguments(arguments);
  Require(sorted.forOptionWords.size() + sorted.others.size() == arguments.size(),
          "every argument is sorted once");
}

}  // namespace
}  // namespace quorvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = quorvane::fuzz::AsText(data, size);
  quorvane::fuzz::ReadSettings(text);
  quorvane::fuzz::StartProgram(text);
  return 0;
}
