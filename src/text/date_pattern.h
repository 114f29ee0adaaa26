#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace quorvane {

/// The form of dates and times in a column, read once from its unit ("yyyy-mm-ddThh:mm").
///
/// The letters are, in any case: yyyy and yy; mmmm and mmm, the month's English name and its first
/// three letters; mm and m; dd and d; hh and h; nn and n, the minutes; ss and s. "mm" and "m" are
/// the minutes when hours stand before them or seconds behind them. A run of s behind a point or
/// comma behind seconds is that many digits of their fraction. Runs of letters are split longest
/// first; every other character stands for itself. "T" and "t" are the same as a blank, in the
/// pattern and, where the pattern has one of them, in values.
class DatePattern {
 public:
  explicit DatePattern(std::string_view unit);

  /// Whether a value is as long as the pattern and is what it writes for some real date and time:
  /// two-digit fields have two digits, one-digit fields no zero in front, the day exists in its
  /// month and year as far as these are given, a field that occurs twice has one value. It neither
  /// allocates nor asks the locale.
  bool Matches(std::string_view value) const;

  /// Whether a value is as long as the pattern and is a date and time, by the pattern or in one of
  /// the common orders: IsCommonDateTime.
  bool MatchesLoosely(std::string_view value) const;

 private:
  /// What is known of a date and time; -1 where nothing is.
  struct Parts;

  enum class Part : std::uint8_t { Year, ShortYear, Month, Day, Hour, Minute, Second };
  enum class StepKind : std::uint8_t {
    Literal,
    Blank,
    FixedDigits,  // with zeros in front
    FewDigits,    // one or two, no zero in front
    MonthName,
    ShortMonthName,
    Fraction
  };

  struct Step {
    StepKind kind = StepKind::Literal;
    Part part = Part::Year;
    char literal = 0;
    std::uint32_t width = 1;
  };

  struct Letters;
  static const Letters* LettersAt(std::string_view unit);
  void ReadUnit(std::string_view unit);
  void DecideMinutes();
  static bool MatchFixed(std::string_view text, const Step& step, Parts& parts);
  bool MatchFrom(std::string_view value, std::size_t position, std::size_t step,
                 Parts& parts) const;
  bool MatchFewDigits(std::string_view value, std::size_t position, std::size_t step,
                      const Parts& parts) const;

  std::size_t length_;
  std::vector<Step> steps_;
};

/// Whether a value is a date, a date and a time with a blank or "T" between, or a time. Dates are
/// year-month-day, day-month-year or month-day-year with "-", "/" or "." twice between, times are
/// hours:minutes or hours:minutes:seconds. A year has four digits, or two where it stands last;
/// everything else one or two.
bool IsCommonDateTime(std::string_view value);

}  // namespace quorvane
