#include "text/elapsed_time.h"

#include <optional>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "text/comma_list.h"
#include "text/number.h"

namespace quorvane::test {
namespace {

TEST(ElapsedTimes, Table) {
  struct Verdict {
    std::string unit;
    std::string value;
    bool isValid;
  };
  const std::vector<Verdict> table{{"hh:mm:ss", "100:60:60", true},
                                   {"hh:mm:ss", "1:61:00", false},
                                   {"hh:mm:ss", "1.5:00:00", false},
                                   {"hh:mm:ss", "1:00", false},
                                   {"hh:mm:ss", "00:00:00", true},
                                   {"hh:mm:ss", "1:2:3", true},
                                   {"hh:mm:ss", "1:00:61", false},
                                   {"hh:mm:ss", "1:00:59.5", true},
                                   {"hh:mm:ss", "1:00:60.5", false},
                                   {"hh:mm:ss", "1:0.5:00", false},
                                   {"hh:mm:ss", "1:00:00:00", false},
                                   {"hh:mm:ss", "1:00:", false},
                                   {"hh:mm:ss", ":00:00", false},
                                   {"hh:mm:ss", "-1:-1:-1", true},
                                   {"hh:mm:ss", "1:a:00", false},
                                   {"hh:mm:ss", "1: 5:00", false},
                                   {"hh:mm:ss", "1:5.0:00", true},
                                   {"hh:mm:ss", "1e2:00:00", true},
                                   {"hh:mm:ss", "10000:000:060", true},
                                   {"hh:mm:ss", "1:061:00", false},
                                   {"hh:mm", "24:30", true},
                                   {"hh:mm", "24:60", true},
                                   {"hh:mm", "24:61", false},
                                   {"hh:mm", "24:30.5", true},
                                   {"hh:mm", "24", false},
                                   {"mm:ss", "60:60", true},
                                   {"mm:ss", "61:00", false},
                                   {"mm:ss", "100:00", false},
                                   {"dd", "4000", true},
                                   {"dd", "0.5", true},
                                   {"d:h", "1:30", true},
                                   {"S", "60", true},
                                   {"S", "60.1", false},
                                   {"s", "-5", true},
                                   {"H", "99.9", true},
                                   {"x", "1", false},
                                   {"hh::ss", "1:1:1", false},
                                   {":", "1:1", false},
                                   {" hh", "1", false},
                                   {"yyyy", "2020", false},
                                   {"hh:xx", "1:1", false},
                                   {"hour", "12", true}};
  for (const auto& [unit, value, isValid] : table)
    EXPECT_EQ(ElapsedTimePattern(unit).Matches(value), isValid) << unit << " <- " << value;
}

/// The same, step by step.
bool PlainMatches(const std::string& unit, const std::string& value) {
  const std::vector<std::string_view> units = Split(unit, ":");
  const std::vector<std::string_view> parts = Split(value, ":");
  if (units.size() != parts.size()) return false;
  for (std::size_t index = 0; index < parts.size(); ++index) {
    const std::optional<double> number = NumericValue(parts[index]);
    if (!number) return false;
    if (index + 1 < parts.size() && *number != static_cast<double>(static_cast<long>(*number))) {
      return false;
    }
    const std::string letter(units[index].substr(0, 1));
    if (letter == "s" || letter == "S" || letter == "m" || letter == "M") {
      if (*number > 60) return false;
    } else if (letter != "h" && letter != "H" && letter != "d" && letter != "D") {
      return false;
    }
  }
  return true;
}

TEST(ElapsedTimes, AgreeWithTheirTwinOnRandomTexts) {
  std::mt19937 random{77};
  const auto pick = [&random](const std::vector<std::string>& from) {
    return from[std::uniform_int_distribution<std::size_t>(0, from.size() - 1)(random)];
  };
  const std::vector<std::string> units{"hh", "mm", "ss", "D", "M", "hh", "mm", "", "x"};
  const std::vector<std::string> parts{"0",   "00", "5",  "59",  "60",   "61",  "99",
                                       "100", "-1", "1.", "1.5", "60.0", "6E1", "",
                                       "060", "7a", "+5", "12",  "23",   "-61"};
  const std::vector<std::string> counts{"", "0", "00", "00", "000"};
  int valid = 0;
  for (int round = 0; round < 100000; ++round) {
    std::string unit = pick(units);
    std::string value = pick(parts);
    for (const char part : pick(counts)) {
      unit += ":" + pick(units);
      if (part == '0' && random() % 20 > 0) value += ":" + pick(parts);
    }
    ASSERT_EQ(ElapsedTimePattern(unit).Matches(value), PlainMatches(unit, value))
        << unit << " <- " << value;
    valid += PlainMatches(unit, value);
  }
  EXPECT_GT(valid, 1000);
}

}  // namespace
}  // namespace quorvane::test
