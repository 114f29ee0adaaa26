#include "text/date_pattern.h"

#include <algorithm>
#include <array>
#include <random>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "text/comma_list.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

struct Verdict {
  std::string unit;
  std::string value;
  bool isValid;
};

TEST(DatePatterns, Dates) {
  const std::vector<Verdict> table{{"yyyy-mm-dd", "2023-01-05", true},
                                   {"yyyy-mm-dd", "2023-1-5", false},
                                   {"yyyy-mm-dd", "2023-13-05", false},
                                   {"yyyy-mm-dd", "2023-00-05", false},
                                   {"yyyy-mm-dd", "2023-01-00", false},
                                   {"yyyy-mm-dd", "2023-01-31", true},
                                   {"yyyy-mm-dd", "2023-01-32", false},
                                   {"yyyy-mm-dd", "2023-04-31", false},
                                   {"yyyy-mm-dd", "2023-02-29", false},
                                   {"yyyy-mm-dd", "2024-02-29", true},
                                   {"yyyy-mm-dd", "1900-02-29", false},
                                   {"yyyy-mm-dd", "2000-02-29", true},
                                   {"yyyy-mm-dd", "2024-02-30", false},
                                   {"yyyy-mm-dd", "0000-01-01", false},
                                   {"yyyy-mm-dd", "0001-01-01", true},
                                   {"yyyy-mm-dd", "9999-12-31", true},
                                   {"yyyy-mm-dd", "2023/01/05", false},
                                   {"yyyy-mm-dd", "05-01-2023", false},
                                   {"yyyy-mm-dd", "2023-01-05 ", false},
                                   {"yyyy-mm-dd", " 2023-01-5", false},
                                   {"yyyy-mm-dd", "2023-01-", false},
                                   {"yyyy-mm-dd", "", false},
                                   {"YYYY-MM-DD", "2023-01-05", true},
                                   {"dd/mm/yyyy", "05/01/2023", true},
                                   {"dd/mm/yyyy", "31/06/2023", false},
                                   {"dd/mm/yy", "29/02/24", true},
                                   {"dd/mm/yy", "29/02/23", false},
                                   {"dd/mm/yy", "29/02/00", true},
                                   {"dd/mm", "29/02", true},
                                   {"dd/mm", "30/02", false},
                                   {"dd", "31", true},
                                   {"dd", "32", false},
                                   {"mm", "12", true},
                                   {"mm", "13", false},
                                   {"yyyy", "2023", true},
                                   {"yyyymmdd", "20230105", true},
                                   {"dd-mmm-yyyy", "05-Jan-2023", true},
                                   {"dd-mmm-yyyy", "05-JAN-2023", false},
                                   {"dd-mmm-yyyy", "05-Oct-2023", true},
                                   {"dd-mmm-yyyy", "05-Oc -2023", false},
                                   {"dd-mmm-yyyy", "30-Feb-2023", false},
                                   {"d-m-yyyy", "5-1-2023", true},
                                   {"d-m-yyyy", "15-1-2023", false},
                                   {"d-m-yyyy", "0-1-2023", false},
                                   {"mmmm", "June", true},
                                   {"mmmm", "May", false},
                                   {"mmmm", "August", false},
                                   {"mmmm", "july", false},
                                   {"d mmmm", "5 June", true},
                                   {"d mmmm", "10 May", true},
                                   {"d mmmm", "32 May", false},
                                   {"d mmmm", "05 May", false},
                                   {"dmmmm", "10May", true},
                                   {"hdmmmm", "111May", true},
                                   {"hdmmmm", "132May", true},
                                   {"hdmmmm", "932May", false},
                                   {"mmmm d d", "May 10 1", false},
                                   {"mmmm d d", "June 1 1", true},
                                   {"yyyy yy", "2023 23", true},
                                   {"yyyy yy", "2023 24", false},
                                   {"mm mmm", "01 Jan", true},
                                   {"mm mmm", "02 Jan", false},
                                   {"dd dd", "05 05", true},
                                   {"dd dd", "05 06", false},
                                   {"xyz", "xyz", true},
                                   {"xyz", "xyw", false},
                                   {"ddd", "055", true},
                                   {"ddd", "056", false}};
  for (const auto& [unit, value, isValid] : table)
    EXPECT_EQ(DatePattern(unit).Matches(value), isValid) << unit << " <- " << value;
}

TEST(DatePatterns, Times) {
  const std::vector<Verdict> table{
      {"yyyy-mm-ddThh:mm", "2023-01-05T10:30", true},
      {"yyyy-mm-ddThh:mm", "2023-01-05 10:30", true},
      {"yyyy-mm-ddThh:mm", "2023-01-05t10:30", true},
      {"yyyy-mm-dd hh:mm", "2023-01-05T10:30", true},
      {"yyyy-mm-ddthh:mm", "2023-01-05T10:30", true},
      {"yyyy-mm-ddThh:mm", "2023-01-05", false},
      {"yyyy-mm-dd", "2023-01-05T10:30", false},
      {"yyyy-mm-ddThh:mm", "2023-01-05-10:30", false},
      {"yyyy-mm-ddThh:mm", "2023-01-05T24:00", false},
      {"yyyy-mm-ddThh:mm", "2023-01-05T23:59", true},
      {"yyyy-mm-ddThh:mm", "2023-01-05T10:60", false},
      {"yyyy-mm-ddThh:mm:ss", "2023-01-05T00:00:00", true},
      {"yyyy-mm-ddThh:mm:ss", "2023-01-05T00:00:60", false},
      {"yyyy-mm-ddThh:mm:ss", "2023-02-29T00:00:00", false},
      {"hh:nn:ss", "10:30:59", true},
      {"hh:nn", "10:60", false},
      {"hh:mm", "23:59", true},
      {"hh:mm", "9:30", false},
      {"h:mm", "9:30", true},
      {"h:mm", "09:30", false},
      {"h:mm", "0:30", true},
      {"mm:ss", "59:59", true},
      {"mm:ss", "13:00", true},
      {"mm.ss", "13.00", true},
      {"hh mm dd", "10 59 31", true},
      {"hh dd mm", "10 31 59", false},
      {"mm hh:mm", "12 10:59", true},
      {"mm hh:mm", "13 10:59", false},
      {"hh:mmm", "10:Jan", true},
      {"ss.sss", "59.123", true},
      {"ss.sss", "59.12a", false},
      {"ss,s", "59,9", true},
      {"ss,s", "59.9", false},
      {"ss-ss", "59-58", false},
      {"ss-ss", "59-59", true},
      {"ss.sss ss.s", "59.123 59.1", true},
      {"ss.sss ss.s", "59.123 59.2", false},
      {"hh.ss", "23.59", true},
      {"hh.ss", "23.60", false},
      {"yyyy-mm-ddThh:mm:ss.sss", "2023-01-05T10:30:59.999", true},
      {"yyyy-mm-ddThh:mm:ss.sssZ(+hh:mm)", "2023-01-05T10:30:59.999Z(+10:30)", true},
      {"yyyy-mm-ddThh:mm:ss.sssZ(+hh:mm)", "2023-01-05T10:30:59.999Z(+01:00)", false},
      {"hhZ", "10z", false}};
  for (const auto& [unit, value, isValid] : table)
    EXPECT_EQ(DatePattern(unit).Matches(value), isValid) << unit << " <- " << value;
}

TEST(DatePatterns, LooseReading) {
  const std::vector<Verdict> table{{"dd/mm/yyyy", "05/01/2023", true},
                                   {"dd/mm/yyyy", "12/31/2023", true},
                                   {"dd/mm/yyyy", "2023-01-05", true},
                                   {"dd/mm/yyyy", "2023.01.05", true},
                                   {"dd/mm/yyyy", "13/13/2023", false},
                                   {"dd/mm/yyyy", "5/1/2023", false},
                                   {"dd/mm/yyyy", "29/02/2023", false},
                                   {"dd/mm/yyyy", "02/29/2024", true},
                                   {"dd/mm/yyyy", "29/02-2024", false},
                                   {"dd/mm/yyyy", "2023-13-01", false},
                                   {"dd/mm/yyyy", "29/02/0000", false},
                                   {"d/m/yyyy", "5/1/2023", true},
                                   {"dd/mm/yy", "05/01/23", true},
                                   {"dd/mm/yy", "23/01/23", true},
                                   {"dd/mm/yy", "29/02/00", true},
                                   {"dd/mm/yy", "29/02/01", false},
                                   {"dd/mm/yy", "5/1/2023", true},
                                   {"dd/mm/yy", "99/01/23", false},
                                   {"dd/mm/yy", "05/01/123", false},
                                   {"dd/mm/yy", "23:59:59", true},
                                   {"hh:mm", "23:59", true},
                                   {"hh:mm", "24:00", false},
                                   {"hh:mm", "1:1:1", true},
                                   {"hh:mm", "1:1:", false},
                                   {"hh:mm", "12.30", false},
                                   {"yyyy-mm-dd hh:mm", "05/01/2023T10:30", true},
                                   {"yyyy-mm-dd hh:mm", "05/01/2023 10:60", false},
                                   {"yyyy-mm-dd hh:mm", "10:30 05/01/2023", false},
                                   {"yyyy-mm-dd hh:mm", "1/1/2023 1:02:03", true},
                                   {"yyyy-mm-dd hh:mm", "1/1/2023  1:2:03", false},
                                   {"dd-mmm-yyyy", "05-Jan-2023", true},
                                   {"dd-mmm-yyyy", "05-01-02023", false},
                                   {"dd/mm/yyyy", "not a date", false},
                                   {"dd/mm/yyyy ", "005/01/2023", false},
                                   {"hh:mm:ss", "010:05:0", false},
                                   {"dd/mm/yyyy", "//////////", false},
                                   {"m/d/yyyy h:m", "1/31/23 1:59", true},
                                   {"m/d/yyyy h:m", "1/31/23 10:59", false}};
  for (const auto& [unit, value, isValid] : table)
    EXPECT_EQ(DatePattern(unit).MatchesLoosely(value), isValid) << unit << " <- " << value;
}

TEST(DatePatterns, AHostileUnitIsNoBurden) {
  std::string unit = "mmmm";
  std::string value = "June";
  for (int repeat = 0; repeat < 50000; ++repeat) {
    unit += " d h n s m";
    value += " 1 2 3 4 6";
  }
  EXPECT_TRUE(DatePattern(unit).Matches(value));
  value.back() = '5';
  EXPECT_FALSE(DatePattern(unit).Matches(value));
}

// The twin: a value is valid when one of the dates and times that can be made of its digits is
// written by the pattern just as the value is.

struct Moment {
  int year = 2000;
  int month = 1;
  int day = 1;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

const std::array<std::string, 12> Months{"January",   "February", "March",    "April",
                                         "May",       "June",     "July",     "August",
                                         "September", "October",  "November", "December"};

int DaysIn(int year, int month) {
  if (month == 2) return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0 ? 29 : 28;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

/// The unit's fields and single characters; the minutes are written with n.
std::vector<std::string> Tokens(const std::string& unit) {
  std::vector<std::string> tokens;
  std::string rest = LowerCase(unit);
  while (!rest.empty()) {
    std::string token = rest.substr(0, 1);
    for (const std::string field :
         {"s", "ss", "n", "nn", "h", "hh", "d", "dd", "m", "mm", "mmm", "mmmm", "yy", "yyyy"}) {
      if (rest.starts_with(field)) token = field;
    }
    const std::size_t count = tokens.size();
    const bool isFraction = token[0] == 's' && count >= 2 && tokens[count - 2][0] == 's' &&
                            (tokens[count - 1] == "." || tokens[count - 1] == ",") &&
                            !tokens[count - 2].ends_with('f');
    if (isFraction) {
      token = rest.substr(0, std::min(rest.find_first_not_of('s'), rest.size()));
      rest.erase(0, token.size());
      tokens.push_back(token + "f");
      continue;
    }
    rest.erase(0, token.size());
    tokens.push_back(token);
  }
  std::vector<std::size_t> fields;
  for (std::size_t index = 0; index < tokens.size(); ++index) {
    const std::string& token = tokens[index];
    if (std::string("sdhmn").find(token[0]) != std::string::npos || token.starts_with("yy")) {
      fields.push_back(index);
    }
  }
  for (std::size_t place = 0; place < fields.size(); ++place) {
    std::string& token = tokens[fields[place]];
    if (token != "m" && token != "mm") continue;
    const bool followsHours = place > 0 && tokens[fields[place - 1]][0] == 'h';
    const bool precedesSeconds = place + 1 < fields.size() && tokens[fields[place + 1]][0] == 's';
    if (followsHours || precedesSeconds) token = std::string(token.size(), 'n');
  }
  return tokens;
}

std::string Digits(int number, std::size_t width) {
  std::string digits = std::to_string(number);
  while (digits.size() < width)
    digits.insert(0, "0");
  return digits;
}

/// What the tokens write; '?' stands for a digit of a fraction and '_' for a blank or a T.
std::string Write(const std::vector<std::string>& tokens, const std::string& unit,
                  const Moment& moment) {
  std::string text;
  std::size_t at = 0;
  for (const std::string& token : tokens) {
    const std::size_t width = token.size();
    const std::string asInUnit = unit.substr(at, 1);
    at += token.ends_with('f') ? width - 1 : width;
    if (token.ends_with('f')) {
      text += std::string(width - 1, '?');
    } else if (token == "yyyy") {
      text += Digits(moment.year, 4);
    } else if (token == "yy") {
      text += Digits(moment.year % 100, 2);
    } else if (token == "mmmm" || token == "mmm") {
      const std::string& name = Months[static_cast<std::size_t>(moment.month - 1)];
      text += token == "mmm" ? name.substr(0, 3) : name;
    } else if (token[0] == 'm') {
      text += Digits(moment.month, width);
    } else if (token[0] == 'd') {
      text += Digits(moment.day, width);
    } else if (token[0] == 'h') {
      text += Digits(moment.hour, width);
    } else if (token[0] == 'n') {
      text += Digits(moment.minute, width);
    } else if (token[0] == 's') {
      text += Digits(moment.second, width);
    } else {
      text += token == " " || token == "t" ? "_" : asInUnit;
    }
  }
  return text;
}

bool IsWritten(const std::string& text, const std::string& value) {
  if (text.size() != value.size()) return false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char letter = value[at];
    if (text[at] == '?') {
      if (letter < '0' || letter > '9') return false;
    } else if (text[at] == '_') {
      if (letter != ' ' && letter != 'T' && letter != 't') return false;
    } else if (text[at] != letter) {
      return false;
    }
  }
  return true;
}

/// The numbers that stand in a text as so many digits, within a range.
std::vector<int> NumbersIn(const std::string& text, std::size_t fewest, std::size_t most,
                           int lowest, int highest) {
  std::set<int> numbers;
  for (std::size_t at = 0; at < text.size(); ++at) {
    int number = 0;
    for (std::size_t end = at; end < text.size() && end < at + most; ++end) {
      if (text[end] < '0' || text[end] > '9') break;
      number = 10 * number + (text[end] - '0');
      const bool isLongEnough = end + 1 >= at + fewest;
      if (isLongEnough && number >= lowest && number <= highest) numbers.insert(number);
    }
  }
  return {numbers.begin(), numbers.end()};
}

bool PlainMatches(const std::string& unit, const std::string& value) {
  if (unit.size() != value.size()) return false;
  const std::vector<std::string> tokens = Tokens(unit);
  const auto candidates = [&](const std::string& letter, int lowest, int highest, int unused) {
    std::size_t fewest = 3;
    for (const std::string& token : tokens) {
      if (token.starts_with(letter) && !token.ends_with('f')) {
        fewest = std::min(fewest, token.size());
      }
    }
    if (fewest > 2) return std::vector<int>{unused};
    return NumbersIn(value, fewest, 2, lowest, highest);
  };
  const auto has = [&](const std::string& token) {
    return std::find(tokens.begin(), tokens.end(), token) != tokens.end();
  };
  std::vector<int> years{2000};  // a leap year, for a unit without one
  if (has("yyyy")) {
    years = NumbersIn(value, 4, 4, 1, 9999);
  } else if (has("yy")) {
    years = NumbersIn(value, 2, 2, 0, 99);
    for (int& year : years)
      year += 2000;  // in which those divisible by 4 are leap years
  }
  std::vector<int> months = candidates("m", 1, 12, 1);
  if (has("mmm") || has("mmmm")) months = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
  const std::vector<int> days = candidates("d", 1, 31, 1);
  const std::vector<int> hours = candidates("h", 0, 23, 0);
  const std::vector<int> minutes = candidates("n", 0, 59, 0);
  const std::vector<int> seconds = candidates("s", 0, 59, 0);
  for (const int year : years) {
    for (const int month : months) {
      for (const int day : days) {
        if (day > DaysIn(year, month)) continue;
        for (const int hour : hours) {
          for (const int minute : minutes) {
            for (const int second : seconds) {
              const Moment moment{year, month, day, hour, minute, second};
              if (IsWritten(Write(tokens, unit, moment), value)) return true;
            }
          }
        }
      }
    }
  }
  return false;
}

class RandomMoments {
 public:
  int Pick(int lowest, int highest) {
    return std::uniform_int_distribution<int>(lowest, highest)(random_);
  }

  Moment Next() {
    static constexpr std::array<int, 8> years{1, 1900, 1999, 2000, 2023, 2024, 2100, 9999};
    Moment moment;
    moment.year = years[static_cast<std::size_t>(Pick(0, 7))];
    moment.month = Pick(0, 2) == 0 ? 2 : Pick(1, 12);
    moment.day = Pick(0, 2) == 0 ? Pick(27, 31) : Pick(1, 31);  // may not exist
    moment.hour = Pick(0, 25);
    moment.minute = Pick(0, 3) == 0 ? Pick(57, 62) : Pick(0, 59);
    moment.second = Pick(0, 59);
    return moment;
  }

  /// A value of the unit's form, often with a flaw.
  std::string NextValue(const std::string& unit) {
    std::string value = Write(Tokens(unit), unit, Next());
    std::replace(value.begin(), value.end(), '_', Pick(0, 1) == 0 ? ' ' : 'T');
    std::replace(value.begin(), value.end(), '?', '7');
    if (Pick(0, 2) == 0 && !value.empty()) {
      static constexpr std::string_view characters = "0123456789-: TtxS";
      const auto at = static_cast<std::size_t>(Pick(0, static_cast<int>(value.size()) - 1));
      value[at] = characters[static_cast<std::size_t>(Pick(0, 16))];
    }
    return value;
  }

 private:
  std::mt19937 random_{19991231};
};

TEST(DatePatterns, AgreeWithTheirTwinOnRandomValues) {
  const std::vector<std::string> units{"yyyy-mm-dd",
                                       "yyyy-mm-ddThh:mm",
                                       "yyyy-mm-ddThh:mm:ss",
                                       "hh:mm",
                                       "hh:mm:ss",
                                       "mm:ss",
                                       "dd/mm/yyyy",
                                       "dd/mm/yy",
                                       "yyyymmdd",
                                       "d mmmm",
                                       "d/m/yyyy",
                                       "dd-mmm-yyyy",
                                       "mmmm yyyy",
                                       "h:n:s mmmm",
                                       "yy-m-d",
                                       "hh:mm:ss.sss",
                                       "dd mm",
                                       "MM/DD/YYYY HH:NN",
                                       "yyyy yy",
                                       "mmmmd",
                                       "dhmmmm",
                                       "d d mmmm",
                                       "mm hh:mm",
                                       "ss,ss hh",
                                       "xd.y",
                                       "mmmdd",
                                       "yyyyT",
                                       "s.ss",
                                       "mmmmmm yyyy",
                                       "hmmmm hmm"};
  RandomMoments moments;
  int valid = 0;
  int invalid = 0;
  for (const std::string& unit : units) {
    const DatePattern pattern(unit);
    const int rounds = unit.size() > 12 ? 200 : 1500;  // the twin is slow on long ones
    for (int round = 0; round < rounds; ++round) {
      const std::string value = moments.NextValue(unit);
      const bool isValid = PlainMatches(unit, value);
      ASSERT_EQ(pattern.Matches(value), isValid) << unit << " <- " << value;
      (isValid ? valid : invalid) += 1;
    }
  }
  EXPECT_GT(valid, 5000);
  EXPECT_GT(invalid, 5000);
}

/// A text as its numbers, and its shape: how many digits each has and what stands between.
struct Shape {
  std::string text;
  std::vector<int> numbers;
};

Shape ShapeOf(const std::string& value) {
  Shape shape;
  std::size_t at = 0;
  while (at < value.size()) {
    const std::size_t end = std::min(value.find_first_not_of("0123456789", at), value.size());
    if (end == at) {
      shape.text += value[at] == 'T' || value[at] == 't' ? ' ' : value[at];
      ++at;
      continue;
    }
    if (end - at > 4) return {};
    shape.text += std::to_string(end - at);
    shape.numbers.push_back(std::stoi(value.substr(at, end - at)));
    at = end;
  }
  return shape;
}

struct CommonShapes {
  std::set<std::string> yearFirst;
  std::set<std::string> yearLast;
  std::set<std::string> times;

  CommonShapes() {
    const std::vector<std::string> few{"1", "2"};
    for (const std::string& one : few) {
      for (const std::string& two : few) {
        times.insert(Join(std::vector{one, two}, ":"));
        for (const std::string& three : few)
          times.insert(Join(std::vector{one, two, three}, ":"));
      }
    }
    for (const std::string& one : few) {
      for (const std::string& two : few) {
        for (const std::string separator : {"-", "/", "."}) {
          AddDate(yearFirst, Join(std::vector<std::string>{"4", one, two}, separator));
          AddDate(yearLast, Join(std::vector<std::string>{one, two, "4"}, separator));
          AddDate(yearLast, Join(std::vector<std::string>{one, two, "2"}, separator));
        }
      }
    }
  }

  void AddDate(std::set<std::string>& dates, const std::string& date) const {
    dates.insert(date);
    for (const std::string& time : times)
      dates.insert(Join(std::vector{date, time}, " "));
  }
};

/// The common orders as a list of all their shapes.
bool PlainIsCommon(const std::string& value) {
  static const CommonShapes shapes;
  const Shape shape = ShapeOf(value);
  const auto isTime = [&shape](std::size_t first) {
    static constexpr std::array<int, 3> highest{23, 59, 59};
    for (std::size_t index = first; index < shape.numbers.size(); ++index) {
      if (shape.numbers[index] > highest[index - first]) return false;
    }
    return true;
  };
  const auto isDay = [](int year, int month, int day) {
    return year >= 1 && month >= 1 && month <= 12 && day >= 1 && day <= DaysIn(year, month);
  };
  if (shapes.times.contains(shape.text)) return isTime(0);
  const bool isYearFirst = shapes.yearFirst.contains(shape.text);
  if (!isYearFirst && !shapes.yearLast.contains(shape.text)) return false;
  const int first = shape.numbers[0];
  const int second = shape.numbers[1];
  const int third = shape.numbers[2];
  if (isYearFirst) return isDay(first, second, third) && isTime(3);
  const bool isShort = shape.text[4] == '2';
  const int year = isShort ? 2000 + third : third;
  return (isDay(year, second, first) || isDay(year, first, second)) && isTime(3);
}

TEST(DatePatterns, CommonOrdersAgreeWithTheirTwinOnRandomValues) {
  RandomMoments moments;
  const std::vector<std::string> forms{"yyyy-mm-dd", "d/m/yy",   "dd.mm.yyyy hh:mm", "m/d/yyyy h:n",
                                       "hh:mm:ss",   "h:n",      "yyyy/m/d h:n:s",   "mm-dd-yyyy",
                                       "d.m.yyyy",   "yy-mm-dd", "yyyy-mm/dd"};
  int valid = 0;
  for (int round = 0; round < 60000; ++round) {
    const std::string value =
        moments.NextValue(forms[static_cast<std::size_t>(round) % forms.size()]);
    ASSERT_EQ(IsCommonDateTime(value), PlainIsCommon(value)) << value;
    valid += PlainIsCommon(value);
  }
  EXPECT_GT(valid, 10000);
  EXPECT_LT(valid, 50000);
}

}  // namespace
}  // namespace quorvane::test
