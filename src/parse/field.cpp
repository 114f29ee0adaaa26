#include "parse/field.h"

#include <algorithm>

#include "parse/field_messages.h"
#include "text/text.h"

namespace quorvane {
namespace {

constexpr std::string_view DoubledQuote = "\"\"";
constexpr std::string_view DoubledQuoteToken = "#`~#";
constexpr std::string_view EmptyFieldToken = "!@#$,";
constexpr std::string_view EmptyField = "\"\",";
constexpr std::string_view LastEmptyFieldToken = "%^&*";
constexpr std::string_view LastEmptyField = ",\"\"";

/// 1-based position of a character from a 1-based position on; 0 when there is none.
std::size_t PositionOf(std::string_view line, char wanted, std::size_t from) {
  const std::size_t found = line.find(wanted, from - 1);
  return found == std::string_view::npos ? 0 : found + 1;
}

/// The field at a position, before anything is reported.
struct RawField {
  std::string_view value;
  std::size_t nextPosition = 0;
  bool missingQuote = false;
  bool internalQuote = false;
};

RawField ReadRawField(std::string_view line, std::size_t position) {
  RawField field;
  const bool isQuoted = position <= line.size() && line[position - 1] == '"';
  std::size_t start = position;
  std::size_t end = 0;
  if (isQuoted) {
    const ClosingQuote closing = FindClosingQuote(line, position);
    start = closing.start;
    end = closing.end;
    field.missingQuote = closing.missingQuote;
    field.internalQuote = closing.internalQuote;
  } else {
    field.missingQuote = true;
    end = PositionOf(line, ',', position);
  }
  if (end == 0) {
    field.value = line.substr(start - 1);
    return field;
  }
  field.value = line.substr(start - 1, end - start);
  const std::size_t comma = PositionOf(line, ',', isQuoted ? end + 1 : end);
  field.nextPosition = comma == 0 ? 0 : comma + 1;
  return field;
}

/// Position of the quote that closes the well-formed field whose opening quote stands at a
/// position; npos when the field is not enclosed in quotes or holds a quote that is not doubled.
std::size_t EndOfWellFormedField(std::string_view line, std::size_t start) {
  if (start >= line.size() || line[start] != '"') return std::string_view::npos;
  std::size_t quote = line.find('"', start + 1);
  while (quote != std::string_view::npos && line.substr(quote + 1).starts_with('"')) {
    quote = line.find('"', quote + 2);
  }
  return quote;
}

/// The value as it counts: one of blanks only is none.
std::string_view CountedValue(std::string_view value) {
  return Trim(value).empty() ? std::string_view() : value;
}

}  // namespace

ClosingQuote FindClosingQuote(std::string_view line, std::size_t openingQuote) {
  ClosingQuote closing;
  closing.start = openingQuote + 1;
  const std::size_t quote = PositionOf(line, '"', closing.start);
  if (quote == 0) {
    closing.missingQuote = true;
    return closing;
  }
  if (quote == line.size() || line[quote] == ',') {
    closing.end = quote;
    return closing;
  }
  const std::size_t comma = PositionOf(line, ',', quote);
  if (comma != 0 && line[comma - 2] == '"') {
    closing.end = comma - 1;
    closing.internalQuote = true;
  } else {
    closing.missingQuote = true;
  }
  return closing;
}

std::string_view GetNextField(const FieldSource& source, std::size_t& position,
                              std::string& restored) {
  const RawField field = ReadRawField(source.line, position);
  position = field.nextPosition;
  std::string_view value = field.value;
  if (source.restoreDoubledQuotes && value.find(DoubledQuoteToken) != std::string_view::npos) {
    restored = ReplaceAll(value, DoubledQuoteToken, DoubledQuote);
    value = restored;
  }
  if (!value.empty() && Trim(value).empty()) {
    source.log.AddMessage(source.lineNumber, NullFieldWithSpaces, {}, source.place);
    value = {};
  }
  if (field.missingQuote) {
    source.log.AddMessage(source.lineNumber, MissingSurroundingQuotes, {value}, source.place);
  }
  if (field.internalQuote) {
    source.log.AddMessage(source.lineNumber, InternalQuotes, {value}, source.place);
  }
  return value;
}

bool HoldsOnlyEmptyFields(std::string_view line, std::size_t offset) {
  const bool mayHoldPlaceholder =
      line.find('!') != std::string_view::npos || line.find('%') != std::string_view::npos;
  if (mayHoldPlaceholder) return false;
  for (std::size_t at = line.find(DoubledQuote, offset); at != std::string_view::npos;
       at = line.find(DoubledQuote, at)) {
    const std::size_t behind = at + DoubledQuote.size();
    const bool isLast = behind == line.size() && at > 0 && line[at - 1] == ',';
    if (!isLast && !line.substr(behind).starts_with(',')) return false;
    at = behind;
  }
  return true;
}

ProtectedLine ProtectDoubledQuotes(std::string_view line) {
  if (HoldsOnlyEmptyFields(line)) return {std::string(line), false};
  // The order matters: empty fields are put aside before the doubled quotes inside values go.
  std::string text = ReplaceAll(line, EmptyField, EmptyFieldToken);
  if (text.ends_with(LastEmptyField)) {
    text.resize(text.size() - LastEmptyField.size() + 1);
    text += LastEmptyFieldToken;
  }
  text = ReplaceAll(text, DoubledQuote, DoubledQuoteToken);
  text = ReplaceAll(text, EmptyFieldToken, EmptyField);
  text = ReplaceAll(text, LastEmptyFieldToken, DoubledQuote);
  const bool restore = text != line;
  return {std::move(text), restore};
}

bool ReadWellFormedFields(std::string_view line, std::size_t position,
                          std::vector<std::string_view>& values) {
  const std::size_t countBefore = values.size();
  std::size_t start = position - 1;
  std::size_t end = EndOfWellFormedField(line, start);
  while (end != std::string_view::npos) {
    values.push_back(line.substr(start + 1, end - start - 1));
    if (end + 1 == line.size()) return true;
    if (line[end + 1] != ',') break;
    start = end + 2;
    end = EndOfWellFormedField(line, start);
  }
  values.resize(countBefore);
  return false;
}

std::vector<std::string> SplitFields(std::string_view line) {
  std::vector<std::string> values;
  std::vector<std::string_view> wellFormed;
  if (ReadWellFormedFields(line, 1, wellFormed)) {
    for (const std::string_view value : wellFormed)
      values.emplace_back(CountedValue(value));
    return values;
  }
  const ProtectedLine protectedLine = ProtectDoubledQuotes(line);
  std::size_t position = 1;
  while (position != 0) {
    const RawField field = ReadRawField(protectedLine.text, position);
    position = field.nextPosition;
    values.emplace_back(CountedValue(field.value));
    if (protectedLine.restoreDoubledQuotes) {
      values.back() = ReplaceAll(values.back(), DoubledQuoteToken, DoubledQuote);
    }
  }
  return values;
}

std::string QuoteField(std::string_view value, std::string_view delimiter, bool isFirst) {
  std::string text = ReplaceAll(value, LineBreak, "\n");
  const bool holdsDelimiter = !delimiter.empty() && text.find(delimiter) != std::string::npos;
  if (holdsDelimiter || text.find_first_of("\"\n") != std::string::npos) {
    text = '"' + ReplaceAll(text, "\"", DoubledQuote) + '"';
  }
  return isFirst ? text : std::string(delimiter) + text;
}

std::string JoinFields(std::string_view delimiter, std::span<const std::string> values,
                       std::ptrdiff_t firstIndex, std::ptrdiff_t lastIndex) {
  const std::ptrdiff_t last = lastIndex == -1 ? std::ssize(values) - 1 : lastIndex;
  std::string joined;
  for (std::ptrdiff_t index = firstIndex; index <= last; ++index) {
    joined += QuoteField(values[static_cast<std::size_t>(index)], delimiter, index == firstIndex);
  }
  return joined;
}

std::size_t CountFields(std::string_view text) {
  if (text.empty()) return 0;
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), ',')) + 1;
}

}  // namespace quorvane
