#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "report/message_log.h"

namespace quorvane {

/// A line whose fields are read one by one, and where its findings go.
struct FieldSource {
  MessageLog& log;
  std::int32_t lineNumber;
  std::string_view line;
  bool restoreDoubledQuotes;  // the line was written with the placeholders of ProtectedLine
  MessagePlace place;
};

/// Where a quoted field ends.
struct ClosingQuote {
  std::size_t start = 0;  // 1-based position of the value's first character
  std::size_t end = 0;    // 1-based position of the closing quote; 0 when there is none
  bool missingQuote = false;
  bool internalQuote = false;
};

/// Finds the quote that closes the field opened by the quote at a 1-based position: the first that
/// ends the line or stands before a comma; after a quote inside the value, the one before the next
/// comma.
ClosingQuote FindClosingQuote(std::string_view line, std::size_t openingQuote);

/// Reads the field at a 1-based position, moves the position behind the comma that ends it (0 when
/// the line is used up) and reports what is wrong with the field: Rules 8 and 15. The value is a
/// view into the line, or into restored when placeholders had to be put back.
std::string_view GetNextField(const FieldSource& source, std::size_t& position,
                              std::string& restored);

/// An AGS 4 data line in which doubled quotes cannot be taken for the end of a field: those inside
/// values are replaced by a placeholder, those that are an empty field stay.
struct ProtectedLine {
  std::string text;
  bool restoreDoubledQuotes = false;
};
ProtectedLine ProtectDoubledQuotes(std::string_view line);

/// Whether it is plain to see that ProtectDoubledQuotes leaves a line as it is, as nearly all are:
/// its doubled quotes are empty fields and nothing in it could be taken for a placeholder. Of those
/// before an offset, where a field begins, the former must be known.
bool HoldsOnlyEmptyFields(std::string_view line, std::size_t offset = 0);

/// Adds the fields from a 1-based position on when all of them are well formed, which means
/// enclosed in quotes and holding none but doubled ones, which stay doubled; else adds nothing and
/// returns false. In an AGS 4 line they are read in this way wherever they can be.
bool ReadWellFormedFields(std::string_view line, std::size_t position,
                          std::vector<std::string_view>& values);

/// The values of all fields of an AGS 4 line as they stand in the group table, for readers that
/// report nothing.
std::vector<std::string> SplitFields(std::string_view line);

/// A value as a field of written text: enclosed in double quotes, each double quote doubled, when
/// it holds the delimiter, a double quote or a line feed; CR LF becomes LF. All but the first field
/// of a line begin with the delimiter.
std::string QuoteField(std::string_view value, std::string_view delimiter, bool isFirst);

/// The values from the first to the last index (-1: the last there is) as one line of fields.
std::string JoinFields(std::string_view delimiter, std::span<const std::string> values,
                       std::ptrdiff_t firstIndex, std::ptrdiff_t lastIndex);

/// The number of comma-separated parts of a text; 0 for an empty text.
std::size_t CountFields(std::string_view text);

}  // namespace quorvane
