#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorvane {

/// Numbers as AGS files write them: an optional sign, digits with at most one decimal point and at
/// least one digit ("5." and ".5" count), an optional exponent (E or e, optional sign, at least one
/// digit), and nothing else: no blanks, thousands separators, hexadecimal, "inf" or "nan".
/// All routines here work over bytes and never ask the locale.

/// Whether the whole text is a number. Never allocates: it runs on every cell.
bool IsNumeric(std::string_view text);

/// The value of a numeric text, nothing otherwise. Values too large for a double are infinite,
/// values too small are 0.
std::optional<double> NumericValue(std::string_view text);

/// Whether the text is numeric and its value has no fraction.
bool IsWholeNumber(std::string_view text);

/// The value of the longest numeric prefix after leading blanks, cut toward zero and held within
/// the range of the result; 0 when there is none ("3.1 RTA (1.1)" gives 3).
std::int64_t WholeNumberValue(std::string_view text);

/// The shortest decimal text that reads back as the same double, never with an exponent; a whole
/// value has no point.
std::string PlainNumber(double value);

/// The plain shortest form of a numeric text by value: 1.50, 01.5 and +1.5 give "1.5". A text that
/// is not numeric is given back as it stands.
std::string CanonicalNumber(std::string_view text);

/// The same, appended to a text without a text of its own in between.
void AppendCanonicalNumber(std::string& text, std::string_view number);

/// How two numbers relate by value; unordered unless both are of the form in which depths and the
/// like are written, without a sign or an exponent and with 15 letters at the most.
std::partial_ordering CompareShortNumbers(std::string_view left, std::string_view right);

/// A count with commas as thousands separators in every locale: 1234567 gives "1,234,567".
std::string GroupedCount(std::uint64_t count);

}  // namespace quorvane
