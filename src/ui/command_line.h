#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// What stands behind a program's name: data files, then option words such as
/// "/SETTINGSFILE=settings.txt".
struct CommandLine {
  std::vector<std::string> dataFiles;  // as named: trimmed, without double quotes, none empty
  std::vector<std::string> pieces;     // the option words without their "/", in their order

  bool IsEmpty() const { return dataFiles.empty() && pieces.empty(); }
};

/// The word of the option that names a settings file.
inline constexpr std::string_view SettingsFileOption = "SETTINGSFILE";

/// Splits a program's arguments (without the program's own name). A "/" starts an option word only
/// where "SETTINGSFILE=", in any letter case, follows it, so that paths written with "/" stay
/// whole. Arguments behind an option word belong to it, with a blank between each two, as they
/// would on a command line that nobody has split: a path with blanks needs no quotes.
CommandLine SplitCommandLine(std::span<const std::string> arguments);

/// The arguments of a program that has options such as "--log" besides.
struct SortedArguments {
  std::vector<std::string> forOptionWords;  // to be split by SplitCommandLine
  std::vector<std::string> others;
};

/// Tells arguments apart: an option word goes on until an argument that begins with "--".
SortedArguments SortArguments(std::span<const std::string> arguments);

}  // namespace quorvane
