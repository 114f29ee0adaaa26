#include "text/date_pattern.h"

#include <algorithm>
#include <array>
#include <optional>

#include "text/text.h"

namespace quorvane {
namespace {

constexpr std::array<std::string_view, 12> MonthNames{
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};
constexpr std::size_t ShortNameLength = 3;

constexpr int Unknown = -1;

constexpr bool IsBlank(char letter) {
  return letter == ' ' || letter == 'T' || letter == 't';
}

/// The value of a few digits, or Unknown when one of them is none.
int DigitsValue(std::string_view digits) {
  int value = 0;
  for (const char digit : digits) {
    if (!IsDigit(digit)) return Unknown;
    value = 10 * value + (digit - '0');
  }
  return value;
}

/// The month whose name, or as much of it as is asked for, stands at the start of a text; Unknown
/// when there is none.
int MonthOf(std::string_view text, std::size_t length) {
  for (std::size_t index = 0; index < MonthNames.size(); ++index) {
    if (text.starts_with(MonthNames[index].substr(0, length))) return static_cast<int>(index) + 1;
  }
  return Unknown;
}

/// Whether a day exists; what is Unknown may be anything. A year of two digits has no century.
bool IsRealDay(int year, int shortYear, int month, int day) {
  constexpr std::array<int, 12> daysOfMonth{31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (day == Unknown || month == Unknown) return true;
  if (day > daysOfMonth[static_cast<std::size_t>(month - 1)]) return false;
  if (month != 2 || day != 29) return true;
  if (year != Unknown) return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
  return shortYear == Unknown || shortYear % 4 == 0;
}

/// Up to three groups of digits with one and the same separator between.
struct DigitGroups {
  std::array<std::string_view, 3> groups;
  std::size_t count = 0;
};

std::optional<DigitGroups> ReadDigitGroups(std::string_view text, char separator) {
  DigitGroups read;
  while (true) {
    const std::size_t end = std::min(text.find(separator), text.size());
    const std::string_view group = text.substr(0, end);
    if (group.empty() || group.size() > 4 || DigitsValue(group) == Unknown) return std::nullopt;
    if (read.count == read.groups.size()) return std::nullopt;
    read.groups[read.count++] = group;
    if (end == text.size()) return read;
    text.remove_prefix(end + 1);
  }
}

bool IsSmallNumber(std::string_view digits, int lowest, int highest) {
  const int value = DigitsValue(digits);
  return digits.size() <= 2 && value >= lowest && value <= highest;
}

bool IsCommonTime(std::string_view text) {
  const std::optional<DigitGroups> time = ReadDigitGroups(text, ':');
  return time && time->count >= 2 && IsSmallNumber(time->groups[0], 0, 23) &&
         IsSmallNumber(time->groups[1], 0, 59) &&
         (time->count == 2 || IsSmallNumber(time->groups[2], 0, 59));
}

bool IsCommonDay(std::string_view year, std::string_view month, std::string_view day) {
  const bool isShort = year.size() == 2;
  const int number = DigitsValue(year);
  if (!isShort && (year.size() != 4 || number == 0)) return false;
  return IsSmallNumber(month, 1, 12) && IsSmallNumber(day, 1, 31) &&
         IsRealDay(isShort ? Unknown : number, isShort ? number : Unknown, DigitsValue(month),
                   DigitsValue(day));
}

bool IsCommonDate(std::string_view text) {
  const std::size_t separator = text.find_first_of("-/.");
  if (separator == std::string_view::npos) return false;
  const std::optional<DigitGroups> date = ReadDigitGroups(text, text[separator]);
  if (!date || date->count != 3) return false;
  const auto& [first, second, third] = date->groups;
  if (first.size() == 4) return IsCommonDay(first, second, third);
  return IsCommonDay(third, second, first) || IsCommonDay(third, first, second);
}

}  // namespace

/// A run of one letter that stands for a field.
struct DatePattern::Letters {
  std::string_view run;  // lower case
  StepKind kind;
  Part part;
};

struct DatePattern::Parts {
  std::array<int, 7> values{Unknown, Unknown, Unknown, Unknown, Unknown, Unknown, Unknown};
  std::string_view fraction;

  int Get(Part part) const { return values[static_cast<std::size_t>(part)]; }

  /// Takes a part's value; false when it is out of range or another one was taken before.
  bool Take(Part part, int value) {
    struct Range {
      int lowest;
      int highest;
    };
    constexpr std::array<Range, 7> ranges{
        {{1, 9999}, {0, 99}, {1, 12}, {1, 31}, {0, 23}, {0, 59}, {0, 59}}};
    const auto index = static_cast<std::size_t>(part);
    if (value < ranges[index].lowest || value > ranges[index].highest) return false;
    if (values[index] != Unknown) return values[index] == value;
    values[index] = value;
    return true;
  }

  /// Takes a fraction of seconds; one that was taken before agrees as far as both go.
  bool TakeFraction(std::string_view digits) {
    if (!std::all_of(digits.begin(), digits.end(), IsDigit)) return false;
    const std::size_t shared = std::min(digits.size(), fraction.size());
    if (digits.substr(0, shared) != fraction.substr(0, shared)) return false;
    if (digits.size() > fraction.size()) fraction = digits;
    return true;
  }

  bool IsReal() const {
    const int year = Get(Part::Year);
    const int shortYear = Get(Part::ShortYear);
    if (year != Unknown && shortYear != Unknown && year % 100 != shortYear) return false;
    return IsRealDay(year, shortYear, Get(Part::Month), Get(Part::Day));
  }
};

DatePattern::DatePattern(std::string_view unit) : length_(unit.size()) {
  ReadUnit(unit);
  DecideMinutes();
}

const DatePattern::Letters* DatePattern::LettersAt(std::string_view unit) {
  // Of the same letter, the longest first.
  static constexpr std::array<Letters, 14> all{{{"yyyy", StepKind::FixedDigits, Part::Year},
                                                {"yy", StepKind::FixedDigits, Part::ShortYear},
                                                {"mmmm", StepKind::MonthName, Part::Month},
                                                {"mmm", StepKind::ShortMonthName, Part::Month},
                                                {"mm", StepKind::FixedDigits, Part::Month},
                                                {"m", StepKind::FewDigits, Part::Month},
                                                {"dd", StepKind::FixedDigits, Part::Day},
                                                {"d", StepKind::FewDigits, Part::Day},
                                                {"hh", StepKind::FixedDigits, Part::Hour},
                                                {"h", StepKind::FewDigits, Part::Hour},
                                                {"nn", StepKind::FixedDigits, Part::Minute},
                                                {"n", StepKind::FewDigits, Part::Minute},
                                                {"ss", StepKind::FixedDigits, Part::Second},
                                                {"s", StepKind::FewDigits, Part::Second}}};
  const auto found = std::find_if(all.begin(), all.end(), [unit](const Letters& letters) {
    return StartsWithIgnoringCase(unit, letters.run);
  });
  return found == all.end() ? nullptr : &*found;
}

void DatePattern::ReadUnit(std::string_view unit) {
  std::size_t at = 0;
  while (at < unit.size()) {
    if (const Letters* letters = LettersAt(unit.substr(at))) {
      const auto width = static_cast<std::uint32_t>(letters->run.size());
      steps_.push_back({letters->kind, letters->part, 0, width});
      at += width;
      continue;
    }
    const char literal = unit[at++];
    const bool isBehindSeconds =
        !steps_.empty() && steps_.back().part == Part::Second &&
        (steps_.back().kind == StepKind::FixedDigits || steps_.back().kind == StepKind::FewDigits);
    steps_.push_back(
        {IsBlank(literal) ? StepKind::Blank : StepKind::Literal, Part::Year, literal, 1});
    if (!isBehindSeconds || (literal != '.' && literal != ',')) continue;
    const std::size_t end = std::min(unit.find_first_not_of("Ss", at), unit.size());
    if (end == at) continue;
    steps_.push_back({StepKind::Fraction, Part::Second, 0, static_cast<std::uint32_t>(end - at)});
    at = end;
  }
}

void DatePattern::DecideMinutes() {
  Step* previous = nullptr;
  for (Step& step : steps_) {
    if (step.kind == StepKind::Literal || step.kind == StepKind::Blank) continue;
    const auto isNumericMonth = [](const Step& field) {
      return field.part == Part::Month &&
             (field.kind == StepKind::FixedDigits || field.kind == StepKind::FewDigits);
    };
    if (previous != nullptr) {
      if (previous->part == Part::Hour && isNumericMonth(step)) step.part = Part::Minute;
      if (step.part == Part::Second && isNumericMonth(*previous)) previous->part = Part::Minute;
    }
    previous = &step;
  }
}

/// Matches a step whose text has the width that the pattern says.
bool DatePattern::MatchFixed(std::string_view text, const Step& step, Parts& parts) {
  switch (step.kind) {
    case StepKind::Literal:
      return text.front() == step.literal;
    case StepKind::Blank:
      return IsBlank(text.front());
    case StepKind::FixedDigits:
      return parts.Take(step.part, DigitsValue(text));
    case StepKind::ShortMonthName:
      return parts.Take(Part::Month, MonthOf(text, ShortNameLength));
    default:
      return parts.TakeFraction(text);
  }
}

/// Matches everything from a step on with what stands from a position on.
bool DatePattern::MatchFrom(std::string_view value, std::size_t position, std::size_t step,
                            Parts& parts) const {
  for (; step < steps_.size(); ++step) {
    const Step& now = steps_[step];
    std::size_t width = now.width;
    if (now.kind == StepKind::MonthName) {
      const int month = MonthOf(value.substr(position), std::string_view::npos);
      if (!parts.Take(Part::Month, month)) return false;
      width = MonthNames[static_cast<std::size_t>(month - 1)].size();
    } else if (now.kind == StepKind::FewDigits) {
      const int known = parts.Get(now.part);
      if (known == Unknown) return MatchFewDigits(value, position, step, parts);
      width = known < 10 ? 1 : 2;
      if (value.size() - position < width) return false;
      if (DigitsValue(value.substr(position, width)) != known) return false;
    } else {
      if (value.size() - position < width) return false;
      if (!MatchFixed(value.substr(position, width), now, parts)) return false;
    }
    position += width;
  }
  return position == value.size() && parts.IsReal();
}

/// A field of one or two digits may end in two places. There are few ways to try, as each part of a
/// date and time is unknown only once.
bool DatePattern::MatchFewDigits(std::string_view value, std::size_t position, std::size_t step,
                                 const Parts& parts) const {
  for (const std::size_t width : {2U, 1U}) {
    if (value.size() - position < width) continue;
    if (width == 2 && value[position] == '0') continue;
    Parts taken = parts;
    if (taken.Take(steps_[step].part, DigitsValue(value.substr(position, width))) &&
        MatchFrom(value, position + width, step + 1, taken)) {
      return true;
    }
  }
  return false;
}

bool DatePattern::Matches(std::string_view value) const {
  if (value.size() != length_) return false;
  Parts parts;
  return MatchFrom(value, 0, 0, parts);
}

bool DatePattern::MatchesLoosely(std::string_view value) const {
  return value.size() == length_ && (Matches(value) || IsCommonDateTime(value));
}

bool IsCommonDateTime(std::string_view value) {
  const auto blank = std::find_if(value.begin(), value.end(), IsBlank);
  if (blank == value.end()) return IsCommonDate(value) || IsCommonTime(value);
  const auto dateLength = static_cast<std::size_t>(blank - value.begin());
  return IsCommonDate(value.substr(0, dateLength)) && IsCommonTime(value.substr(dateLength + 1));
}

}  // namespace quorvane
