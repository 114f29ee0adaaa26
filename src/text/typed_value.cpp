#include "text/typed_value.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "text/number.h"

namespace quorvane {
namespace {

constexpr std::array<std::pair<std::string_view, ValueKind>, 13> NamedTypes{
    {{"DMS", ValueKind::DegreesMinutesSeconds},
     {"DT", ValueKind::DateTime},
     {"ID", ValueKind::Identifier},
     {"RL", ValueKind::RecordLink},
     {"MC", ValueKind::MoistureContent},
     {"U", ValueKind::Number},
     {"T", ValueKind::ElapsedTime},
     {"X", ValueKind::Unchecked},
     {"XN", ValueKind::Unchecked},
     {"PA", ValueKind::Unchecked},
     {"PT", ValueKind::Unchecked},
     {"PU", ValueKind::Unchecked},
     {"YN", ValueKind::YesNo}}};

constexpr std::array<std::pair<std::string_view, ValueKind>, 3> NumericTypes{
    {{"DP", ValueKind::DecimalPlaces},
     {"SF", ValueKind::SignificantFigures},
     {"SCI", ValueKind::Scientific}}};

/// A number without an exponent, as it is written.
struct PlainNumberText {
  std::string_view whole;  // the digits before the point, without the sign
  std::string_view fraction;
  bool isNegative = false;
  bool hasPoint = false;
};

std::size_t CountDigits(std::string_view text) {
  std::size_t count = 0;
  while (count < text.size() && IsDigit(text[count]))
    ++count;
  return count;
}

std::optional<PlainNumberText> ReadPlainNumber(std::string_view text) {
  PlainNumberText number;
  if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
    number.isNegative = text.front() == '-';
    text.remove_prefix(1);
  }
  number.whole = text.substr(0, CountDigits(text));
  text.remove_prefix(number.whole.size());
  if (text.starts_with('.')) {
    number.hasPoint = true;
    text.remove_prefix(1);
    number.fraction = text.substr(0, CountDigits(text));
    text.remove_prefix(number.fraction.size());
  }
  if (!text.empty() || (number.whole.empty() && number.fraction.empty())) return std::nullopt;
  return number;
}

std::string_view WithoutLeadingZeros(std::string_view digits) {
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
  return digits;
}

bool IsAllZeros(std::string_view digits) {
  return digits.find_first_not_of('0') == std::string_view::npos;
}

/// Whether a text is a number at least as large as the lowest and smaller than the bound.
bool IsWithin(std::string_view text, double lowest, double bound) {
  const std::optional<double> value = NumericValue(text);
  return value && *value >= lowest && *value < bound;
}

}  // namespace

DataType ReadDataType(std::string_view code) {
  for (const auto& [name, kind] : NamedTypes) {
    if (code == name) return {kind, 0};
  }
  if (code.empty() || !IsDigit(code.front())) return {};
  for (const auto& [suffix, kind] : NumericTypes) {
    if (code.ends_with(suffix)) {
      return {kind, WholeNumberValue(code.substr(0, code.size() - suffix.size()))};
    }
  }
  return {};
}

bool IsDegreesMinutesSeconds(std::string_view value) {
  const std::size_t first = value.find(':');
  if (first == std::string_view::npos) return false;
  const std::size_t second = value.find(':', first + 1);
  if (second == std::string_view::npos) return false;
  const std::string_view degrees = value.substr(0, first);
  const std::string_view minutes = value.substr(first + 1, second - first - 1);
  // A third colon makes the seconds no number.
  return IsWithin(degrees, -359.0, 360.0) && IsWholeNumber(degrees) &&
         IsWithin(minutes, 0.0, 60.0) && IsWholeNumber(minutes) &&
         IsWithin(value.substr(second + 1), 0.0, 60.0);
}

bool IsMoistureContent(std::string_view value) {
  const std::optional<PlainNumberText> plain = ReadPlainNumber(value);
  if (plain) {
    const bool isBelowTen = plain->isNegative || WithoutLeadingZeros(plain->whole).size() < 2;
    return isBelowTen ? plain->hasPoint && plain->fraction.size() <= 1 : !plain->hasPoint;
  }
  const std::optional<double> number = NumericValue(value);
  if (!number) return false;
  const std::size_t point = value.find('.');
  if (*number >= 10.0) return point == std::string_view::npos;
  return point != std::string_view::npos && value.size() - point <= 2;
}

bool HasSignificantFigures(std::string_view value, std::int64_t figures) {
  const std::optional<PlainNumberText> number = ReadPlainNumber(value);
  if (!number) return false;
  const std::string_view whole = number->whole;
  const std::string_view fraction = number->fraction;
  const auto wanted = static_cast<std::uint64_t>(figures);
  if (IsAllZeros(whole) && IsAllZeros(fraction)) {
    return number->hasPoint && whole.size() == 1 && fraction.size() + 1 == wanted;
  }
  if (!number->hasPoint) return whole.size() >= wanted && IsAllZeros(whole.substr(wanted));
  const std::string_view leading = WithoutLeadingZeros(whole);
  const std::size_t count =
      leading.empty() ? WithoutLeadingZeros(fraction).size() : leading.size() + fraction.size();
  return count == wanted;
}

bool IsScientific(std::string_view value, std::int64_t places) {
  const std::size_t exponent = value.find_first_of("Ee");
  if (exponent == std::string_view::npos || !IsNumeric(value)) return false;
  const std::size_t point = value.substr(0, exponent).find('.');
  if (point == std::string_view::npos) return places == 0;
  return exponent - point - 1 == static_cast<std::uint64_t>(places);
}

}  // namespace quorvane
