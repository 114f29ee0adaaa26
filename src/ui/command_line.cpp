#include "ui/command_line.h"

#include <algorithm>

#include "text/text.h"

namespace quorvane {
namespace {

/// Where the next option word starts in an argument, or where the argument ends.
std::size_t FindOptionWord(std::string_view argument, std::size_t start) {
  static const std::string beginning = "/" + std::string(SettingsFileOption) + "=";
  return std::min(FindIgnoringCase(argument, beginning, start), argument.size());
}

}  // namespace

CommandLine SplitCommandLine(std::span<const std::string> arguments) {
  CommandLine commandLine;
  for (const std::string_view argument : arguments) {
    std::size_t word = FindOptionWord(argument, 0);
    const std::string_view beforeWord = argument.substr(0, word);
    if (!commandLine.pieces.empty()) {
      if (word > 0) commandLine.pieces.back().append(" ").append(beforeWord);
    } else if (std::string file(Trim(Without(beforeWord, '"'))); !file.empty()) {
      commandLine.dataFiles.push_back(std::move(file));
    }
    while (word < argument.size()) {
      const std::size_t next = FindOptionWord(argument, word + 1);
      commandLine.pieces.emplace_back(argument.substr(word + 1, next - word - 1));
      word = next;
    }
  }
  return commandLine;
}

SortedArguments SortArguments(std::span<const std::string> arguments) {
  SortedArguments sorted;
  bool isInOptionWord = false;
  for (const std::string& argument : arguments) {
    const bool startsWord = FindOptionWord(argument, 0) < argument.size();
    isInOptionWord = startsWord || (isInOptionWord && !argument.starts_with("--"));
    (isInOptionWord ? sorted.forOptionWords : sorted.others).push_back(argument);
  }
  return sorted;
}

}  // namespace quorvane
