#include "ui/progress_line.h"

#include <cstdio>

#include "run/standard_streams.h"
#include "text/terminal_text.h"
#include "text/utf8.h"

namespace quorvane {
namespace {

/// A line of 80 characters would move the cursor on.
constexpr std::size_t MostCharacters = 79;

/// The beginning of a text, in UTF-8.
std::string Beginning(std::string_view text, std::size_t characters) {
  const std::string whole = ToUtf8(text);
  std::size_t end = 0;
  for (; characters > 0 && end < whole.size(); --characters)
    end += Utf8SequenceLength(std::string_view(whole).substr(end));
  return whole.substr(0, end);
}

}  // namespace

std::string ProgressText(std::string_view path, int number, int count) {
  const std::string_view name = path.substr(path.find_last_of("\\/") + 1);
  return Beginning("Checking " + std::to_string(number) + " of " + std::to_string(count) + ": " +
                       TerminalText(name),
                   MostCharacters);
}

ProgressLine::ProgressLine() : isWanted_(IsTerminal(stderr) && !IsTerminal(stdout)) {}

void ProgressLine::Show(std::string_view path, int number, int count) {
  if (isWanted_) Replace(ProgressText(path, number, count));
}

void ProgressLine::Wipe() {
  if (length_ > 0) Replace({});
}

void ProgressLine::Replace(std::string_view line) {
  ReplaceTerminalLine(stderr, line, length_);
  length_ = CharacterCount(line);
}

}  // namespace quorvane
