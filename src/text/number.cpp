#include "text/number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "text/text.h"

namespace quorvane {
namespace {

/// Enough for every double without an exponent: sign, 309 digits, a point and 1074 decimals.
constexpr std::size_t LongestPlainNumber = 1400;

bool IsSign(char letter) {
  return letter == '+' || letter == '-';
}

std::size_t SkipDigits(std::string_view text, std::size_t at) {
  while (at < text.size() && IsDigit(text[at]))
    ++at;
  return at;
}

/// Length of the longest numeric prefix; 0 when there is none.
std::size_t NumericPrefix(std::string_view text) {
  std::size_t at = !text.empty() && IsSign(text.front()) ? 1 : 0;
  const std::size_t whole = SkipDigits(text, at);
  std::size_t digits = whole - at;
  at = whole;
  if (at < text.size() && text[at] == '.') {
    const std::size_t fraction = SkipDigits(text, at + 1);
    digits += fraction - (at + 1);
    at = fraction;
  }
  if (digits == 0) return 0;
  if (at < text.size() && (text[at] == 'E' || text[at] == 'e')) {
    std::size_t exponent = at + 1;
    if (exponent < text.size() && IsSign(text[exponent])) ++exponent;
    const std::size_t end = SkipDigits(text, exponent);
    if (end > exponent) at = end;
  }
  return at;
}

/// Whether a number that is not 0 and outside a double's range lies near 0: by the power of ten of
/// its first digit that counts.
bool IsTiny(std::string_view number) {
  const std::size_t mantissaEnd = std::min(number.find_first_of("Ee"), number.size());
  const std::string_view mantissa = number.substr(0, mantissaEnd);
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
  const std::size_t first = mantissa.find_first_of("123456789");
  const auto power = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first);
  std::string_view exponent = number.substr(std::min(mantissaEnd + 1, number.size()));
  if (exponent.starts_with('-')) {
    // An exponent of very many digits outweighs any mantissa.
    return exponent.size() > 12 || power < WholeNumberValue(exponent.substr(1));
  }
  return exponent.size() <= 12 && power + WholeNumberValue(exponent) <= 0;
}

/// The value of a text that is known to be numeric.
double ValueOf(std::string_view number) {
  if (number.front() == '+') number.remove_prefix(1);
  double value = 0.0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec != std::errc::result_out_of_range) return value;
  if (IsTiny(number)) return 0.0;
  const double infinite = std::numeric_limits<double>::infinity();
  return number.front() == '-' ? -infinite : infinite;
}

/// The digits of a number that is short and plain enough for its value to be read off them.
struct PlainDecimal {
  bool isPlain = false;
  bool isNegative = false;
  std::string_view whole;     // without leading zeros
  std::string_view fraction;  // without trailing zeros
};

PlainDecimal ReadPlainDecimal(std::string_view text) {
  constexpr std::size_t mostExactDigits = 15;
  PlainDecimal number;
  if (text.empty() || text.size() > mostExactDigits) return number;
  number.isNegative = text.front() == '-';
  if (IsSign(text.front())) text.remove_prefix(1);
  const std::size_t point = SkipDigits(text, 0);
  number.whole = text.substr(0, point);
  if (point < text.size()) {
    if (text[point] != '.') return number;
    number.fraction = text.substr(point + 1);
    if (SkipDigits(number.fraction, 0) != number.fraction.size()) return number;
  }
  number.isPlain = !number.whole.empty() || !number.fraction.empty();
  while (number.whole.starts_with('0'))
    number.whole.remove_prefix(1);
  while (number.fraction.ends_with('0'))
    number.fraction.remove_suffix(1);
  return number;
}

}  // namespace

bool IsNumeric(std::string_view text) {
  return !text.empty() && NumericPrefix(text) == text.size();
}

std::optional<double> NumericValue(std::string_view text) {
  if (!IsNumeric(text)) return std::nullopt;
  return ValueOf(text);
}

bool IsWholeNumber(std::string_view text) {
  const std::optional<double> value = NumericValue(text);
  return value && *value == std::trunc(*value);
}

std::int64_t WholeNumberValue(std::string_view text) {
  text = text.substr(std::min(text.find_first_not_of(' '), text.size()));
  const std::size_t length = NumericPrefix(text);
  if (length == 0) return 0;
  constexpr double largest = 9e18;
  const double value = std::trunc(ValueOf(text.substr(0, length)));
  if (value > largest) return static_cast<std::int64_t>(largest);
  if (value < -largest) return -static_cast<std::int64_t>(largest);
  return static_cast<std::int64_t>(value);
}

std::string PlainNumber(double value) {
  if (value == 0.0) return "0";
  std::array<char, LongestPlainNumber> buffer;
  const auto result =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed);
  return std::string(buffer.data(), result.ptr);
}

void AppendCanonicalNumber(std::string& text, std::string_view number) {
  const PlainDecimal plain = ReadPlainDecimal(number);
  if (!plain.isPlain) {
    const std::optional<double> value = NumericValue(number);
    text.append(value ? PlainNumber(*value) : std::string(number));
    return;
  }
  const bool isZero = plain.whole.empty() && plain.fraction.empty();
  if (plain.isNegative && !isZero) text += '-';
  text.append(plain.whole.empty() ? std::string_view("0") : plain.whole);
  if (!plain.fraction.empty()) text.append(1, '.').append(plain.fraction);
}

std::string CanonicalNumber(std::string_view text) {
  std::string canonical;
  AppendCanonicalNumber(canonical, text);
  return canonical;
}

std::partial_ordering CompareShortNumbers(std::string_view left, std::string_view right) {
  const PlainDecimal first = ReadPlainDecimal(left);
  const PlainDecimal second = ReadPlainDecimal(right);
  if (!first.isPlain || !second.isPlain || IsSign(left.front()) || IsSign(right.front())) {
    return std::partial_ordering::unordered;
  }
  if (first.whole.size() != second.whole.size()) return first.whole.size() <=> second.whole.size();
  if (first.whole != second.whole) return first.whole <=> second.whole;
  return first.fraction <=> second.fraction;
}

std::string GroupedCount(std::uint64_t count) {
  std::string digits = std::to_string(count);
  for (std::size_t at = digits.size(); at > 3; at -= 3)
    digits.insert(at - 3, 1, ',');
  return digits;
}

}  // namespace quorvane
