#include "text/elapsed_time.h"

#include <optional>

#include "text/comma_list.h"
#include "text/number.h"
#include "text/text.h"

namespace quorvane {
namespace {

constexpr double MostMinutesOrSeconds = 60.0;

bool IsOneOrTwoDigits(std::string_view part) {
  return !part.empty() && part.size() <= 2 && IsDigit(part.front()) && IsDigit(part.back());
}

}  // namespace

ElapsedTimePattern::ElapsedTimePattern(std::string_view unit) {
  for (const std::string_view part : Split(unit, ":"))
    bounds_.push_back(BoundOf(part));
}

ElapsedTimePattern::Bound ElapsedTimePattern::BoundOf(std::string_view unitPart) {
  switch (unitPart.empty() ? ' ' : ToUpper(unitPart.front())) {
    case 'S':
    case 'M':
      return Bound::Sixty;
    case 'H':
    case 'D':
      return Bound::None;
    default:
      return Bound::NothingFits;
  }
}

bool ElapsedTimePattern::FitsPart(std::string_view part, Bound bound, bool mustBeWhole) {
  if (bound == Bound::NothingFits) return false;
  if (IsOneOrTwoDigits(part)) {  // as nearly all are; "60" is the largest of them in text order
    return bound == Bound::None || part.size() == 1 || part <= "60";
  }
  const std::optional<double> value = NumericValue(part);
  return value && (!mustBeWhole || IsWholeNumber(part)) &&
         (bound == Bound::None || *value <= MostMinutesOrSeconds);
}

bool ElapsedTimePattern::Matches(std::string_view value) const {
  for (std::size_t index = 0; index + 1 < bounds_.size(); ++index) {
    const std::size_t colon = value.find(':');
    if (colon == std::string_view::npos) return false;
    if (!FitsPart(value.substr(0, colon), bounds_[index], true)) return false;
    value.remove_prefix(colon + 1);
  }
  // A further colon makes the last part no number.
  return FitsPart(value, bounds_.back(), false);
}

}  // namespace quorvane
