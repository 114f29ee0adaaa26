#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace quorvane {

/// The format of a data file: AGS 3.x or AGS 4.
enum class AgsFormat : std::uint8_t { Ags3, Ags4 };

/// How serious a finding is. Plain text is a remark without a label.
enum class Severity : std::int8_t { Plain = -1, Fyi = 0, Warning = 1, Error = 2 };

/// What one kind of finding is in files of one format.
struct MessageForm {
  Severity severity = Severity::Error;
  std::string_view rule;  // the rule of the AGS format that it serves ("6b"); empty when none
  std::string_view text;  // with {0}, {1}, ... where values stand; empty: not in this format

  constexpr bool Exists() const { return !text.empty(); }
};

/// One kind of finding. Definitions are constants that stand in one table per rule family beside
/// the family's code; the object itself is what the code raises and what a finding refers to, so
/// that manual, reports and window are made from the same list.
struct MessageDefinition {
  std::string_view id;  // stable: reports and waivers name a kind of finding by it
  MessageForm ags3;
  MessageForm ags4;
  std::string_view meaning;  // what the finding means, for the engineer who reads it
  std::string_view remedy;   // how to mend the file

  constexpr const MessageForm& In(AgsFormat format) const {
    return format == AgsFormat::Ags4 ? ags4 : ags3;
  }
};

/// A table of definitions, as each rule family offers it.
using MessageTable = std::span<const MessageDefinition* const>;

/// A value that stands in a message text: a text or a whole number, converted without a word so
/// that calls read as lists of values. Views must outlive the call that takes the value.
class MessageValue {
 public:
  MessageValue(std::string_view text) : text_(text) {}
  MessageValue(const std::string& text) : text_(text) {}
  MessageValue(const char* text) : text_(text) {}
  template <std::integral Number>
  MessageValue(Number number) : number_(static_cast<std::int64_t>(number)), isNumber_(true) {}

  void AppendTo(std::string& text) const;

 private:
  std::string_view text_;
  std::int64_t number_ = 0;
  bool isNumber_ = false;
};

using MessageValues = std::initializer_list<MessageValue>;

/// Appends a message text with its values in their places.
void AppendMessageText(std::string& text, std::string_view form, MessageValues values);

/// Where in the group table a finding stands, as far as the place that raises it knows: indices
/// from 1, 0 for "none".
struct MessagePlace {
  std::int32_t group = 0;
  std::int32_t row = 0;
  std::int32_t heading = 0;
};

/// The printed form of a finding: its label, ": ", "Line " + number + " - " when the line is
/// greater than 0, and the text.
std::string FormatMessage(std::int32_t line, Severity severity, std::string_view text);

/// The part of a finding's printed form that stands before its text.
void AppendMessageLabel(std::string& text, std::int32_t line, Severity severity);

/// The words that follow a count of findings, with a blank in front; the FYI words are left out
/// when FYI messages are suppressed.
std::string MessageCountWording(std::int64_t count, bool suppressFyi);

}  // namespace quorvane
