#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quorvane {

/// The place of a value in its line: two bytes, since cells are what a file's table is full of.
using FieldOffset = std::uint16_t;

/// Lines beyond this many characters are read field by field.
inline constexpr std::size_t LongestRegularLine = 0xFFFF - 2;

/// The fast way into lines as nearly all lines are: every field enclosed in double quotes, single
/// commas between, no double quote inside a value, no value that begins with a blank and none that
/// is a mere comma. For such a line the field-by-field reading gives the same values and no
/// finding.
///
/// Writes the offset of each value from the line's start, then the line's length plus 2, so that
/// value i is [offsets[i], offsets[i + 1] - 3). Returns the number of values, or 0 when the line is
/// of any other form or longer than LongestRegularLine (offsets are then without meaning). There
/// must be room for MostFieldOffsets(line.size()) offsets, and ByteBuffer::Padding readable bytes
/// behind the line.
std::size_t ScanRegularFields(std::string_view line, FieldOffset* offsets);

/// The same, one byte after the other and without need of readable bytes behind the line.
std::size_t ScanRegularFieldsPlainly(std::string_view line, FieldOffset* offsets);

/// An upper bound for the number of offsets that a line of a length can give.
constexpr std::size_t MostFieldOffsets(std::size_t lineLength) {
  return lineLength / 3 + 2;
}

}  // namespace quorvane
