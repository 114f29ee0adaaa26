#pragma once

#include <cstdint>
#include <string_view>

#include "text/text.h"

namespace quorvane {

/// How the values of a column with a data type are written.
enum class ValueKind : std::uint8_t {
  Unknown,
  Unchecked,  // X, XN, PA, PT, PU: any text, as far as the type alone goes
  DegreesMinutesSeconds,
  DateTime,
  Identifier,
  RecordLink,
  MoistureContent,
  Number,
  ElapsedTime,
  YesNo,
  DecimalPlaces,
  SignificantFigures,
  Scientific,
};

/// A data type, read from its code.
struct DataType {
  ValueKind kind = ValueKind::Unknown;
  std::int64_t digits = 0;  // the n of nDP, nSF and nSCI; never negative

  friend bool operator==(const DataType&, const DataType&) = default;
};

/// Reads a type's code, in exact letter case. The n of the numeric types is the whole-number value
/// of what stands before the letters.
DataType ReadDataType(std::string_view code);

// Whether a value that is not empty fits a type. These run on every cell of a file: none of them
// allocates or asks the locale.

/// Degrees, minutes and seconds between colons: whole degrees from -359 to 359, whole minutes from
/// 0 and below 60, seconds from 0 and below 60 with any fraction.
bool IsDegreesMinutesSeconds(std::string_view value);

/// A moisture content to two figures: no point from 10 up; below it a point with at most one
/// character behind.
bool IsMoistureContent(std::string_view value);

/// "Y" or "N"; an empty value says neither and is valid too.
constexpr bool IsYesNo(std::string_view value) {
  return value.empty() || (value.size() == 1 && (value[0] == 'Y' || value[0] == 'N'));
}

/// A number with so many significant figures. Zeros at the end of a number without a point need not
/// be figures (12300 has 3, and 4, and 5). A zero is written as 0. and a zero for each figure but
/// one; nothing has no figures.
bool HasSignificantFigures(std::string_view value, std::int64_t figures);

/// A number with an exponent, and so many characters behind the point of what stands before it.
bool IsScientific(std::string_view value, std::int64_t places);

/// A number without an exponent and with so many digits behind its point; 0 digits need no point.
constexpr bool HasDecimalPlaces(std::string_view value, std::int64_t places) {
  const char* at = value.data();
  const char* const end = at + value.size();
  if (at != end && (*at == '+' || *at == '-')) ++at;
  const char* const whole = at;
  while (at != end && IsDigit(*at))
    ++at;
  const bool hasWhole = at != whole;
  if (at == end) return hasWhole && places == 0;
  if (*at != '.') return false;
  const char* const fraction = ++at;
  while (at != end && IsDigit(*at))
    ++at;
  return at == end && at - fraction == places && (hasWhole || at != fraction);
}

}  // namespace quorvane
