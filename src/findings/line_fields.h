#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// A field of a line as it stands in the file.
struct LineField {
  std::size_t start = 0;  // of its first character, the opening quote included, in bytes from 0
  std::string_view raw;   // with its quotes
};

/// The fields of a line of a data file. Commas between double quotes belong to their field; a quote
/// that is never closed takes the rest of the line in. The views are into the line.
std::vector<LineField> SplitLineFields(std::string_view line);

/// The value that a field stands for: without blanks around it and without its quotes, doubled
/// quotes inside taken for one.
std::string FieldValue(std::string_view raw);

/// The place of a field of a line, counted from 1: its first character, counted from 1 in
/// characters (code points). 0 when the line has no such field.
std::size_t FieldColumn(std::string_view line, std::size_t field);

}  // namespace quorvane
