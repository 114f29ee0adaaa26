#include "report/message.h"

#include <array>
#include <charconv>

#include "text/text.h"

namespace quorvane {
namespace {

void AppendNumber(std::string& text, std::int64_t number) {
  std::array<char, 24> digits;
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  text.append(digits.data(), static_cast<std::size_t>(result.ptr - digits.data()));
}

/// The label with what follows it when there is a line.
std::string_view LabelAheadOfLine(Severity severity) {
  switch (severity) {
    case Severity::Error:
      return "ERROR: Line ";
    case Severity::Warning:
      return "WARNING: Line ";
    case Severity::Fyi:
      return "FYI: Line ";
    case Severity::Plain:
      break;
  }
  return "Line ";
}

std::string_view Label(Severity severity) {
  std::string_view label = LabelAheadOfLine(severity);
  label.remove_suffix(std::string_view("Line ").size());
  return label;
}

}  // namespace

void MessageValue::AppendTo(std::string& text) const {
  if (isNumber_) {
    AppendNumber(text, number_);
  } else {
    text.append(text_);
  }
}

void AppendMessageText(std::string& text, std::string_view form, MessageValues values) {
  std::size_t position = 0;
  for (std::size_t open = form.find('{'); open != std::string_view::npos;
       open = form.find('{', position)) {
    text.append(form.substr(position, open - position));
    // A place is a single digit in braces; the catalogue's test holds every text to that.
    const auto index = static_cast<std::size_t>(form[open + 1] - '0');
    values.begin()[index].AppendTo(text);
    position = open + 3;
  }
  text.append(form.substr(position));
}

void AppendMessageLabel(std::string& text, std::int32_t line, Severity severity) {
  if (line <= 0) {
    text.append(Label(severity));
    return;
  }
  text.append(LabelAheadOfLine(severity));
  AppendNumber(text, line);
  text.append(" - ");
}

std::string FormatMessage(std::int32_t line, Severity severity, std::string_view text) {
  std::string message;
  AppendMessageLabel(message, line, severity);
  message.append(text);
  return message;
}

std::string MessageCountWording(std::int64_t count, bool suppressFyi) {
  std::string wording = count == 1 ? " error or warning" : " errors or warnings";
  if (suppressFyi) return wording;
  wording += " or informational message";
  if (count > 1) wording += "s";
  return wording;
}

}  // namespace quorvane
