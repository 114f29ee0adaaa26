#include "text/id_list.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

/// Runs a column of values through a list; tells for each whether it is repeated.
std::vector<bool> Repeats(const std::vector<std::string>& values, std::int32_t rowCount) {
  IdList list(rowCount);
  std::vector<bool> repeats;
  repeats.reserve(values.size());
  for (const std::string& value : values)
    repeats.push_back(list.IsRepeated(value));
  return repeats;
}

TEST(IdList, FindsWholeValuesInExactLetterCase) {
  EXPECT_EQ(Repeats({"S1", "S2", "S1", "s1", "S", "S11", "S2"}, 7),
            (std::vector<bool>{false, false, true, false, false, false, true}));
}

TEST(IdList, AValueWithATabIsSeveralEntries) {
  EXPECT_EQ(Repeats({"A\tB", "A", "B", "A\tB", "C\t\tD", "D", "\t"}, 7),
            (std::vector<bool>{false, true, true, false, false, true, false}));
}

TEST(IdList, WhatLiesBehindItsEndIsNeitherKeptNorFound) {
  const std::string filling(50, 'x');  // of 60 characters, with its TAB 51
  EXPECT_EQ(Repeats({filling, "123456789", filling}, 2), (std::vector<bool>{false, false, true}));
  EXPECT_EQ(Repeats({filling, "12345678", "12345678", "9", "9"}, 2),
            (std::vector<bool>{false, false, true, false, false}));
}

TEST(IdList, AValueWhoseTabAloneIsCutIsFound) {
  const std::string filling(50, 'x');
  EXPECT_EQ(Repeats({filling, "123456789", "123456789"}, 2),
            (std::vector<bool>{false, false, true}));
}

TEST(IdList, ACutValueIsNotFoundButWhatIsLeftOfItIs) {
  const std::string filling(50, 'x');
  EXPECT_EQ(Repeats({filling, "123456789A", "123456789A", "123456789"}, 2),
            (std::vector<bool>{false, false, false, true}));
}

TEST(IdList, NothingIsRepeatedWithoutRows) {
  EXPECT_EQ(Repeats({"A", "A"}, 0), (std::vector<bool>{false, false}));
}

/// The list as a text of a fixed length that is searched from its start.
class PlainIdList {
 public:
  explicit PlainIdList(std::int32_t rowCount) : length_(30 * static_cast<std::size_t>(rowCount)) {}

  bool IsRepeated(const std::string& value) {
    if (Contains(value)) return true;
    for (const char letter : value + "\t") {
      if (text_.size() < length_) text_ += letter;
    }
    return false;
  }

 private:
  bool Contains(const std::string& value) const {
    std::size_t start = 0;
    while (true) {
      const std::size_t end = std::min(text_.find('\t', start), text_.size());
      if (!value.empty() && text_.substr(start, end - start) == value) return true;
      if (end == text_.size()) return false;
      start = end + 1;
    }
  }

  std::size_t length_;
  std::string text_;
};

TEST(IdList, AgreesWithItsTwinOnRandomColumns) {
  std::mt19937 random{4711};
  const auto below = [&random](std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
  };
  int repeats = 0;
  int overflows = 0;
  for (int round = 0; round < 3000; ++round) {
    const std::size_t rowCount = 1 + below(12);
    const std::size_t longest = 3 + below(90);
    std::vector<std::string> values;
    std::size_t total = 0;
    for (std::size_t row = 0; row < rowCount; ++row) {
      const std::string letters = below(3) == 0 ? "ab\t" : "ab";
      std::string value;
      if (!values.empty() && below(3) == 0) {
        // A part of an earlier value: what a cut leaves is one.
        const std::string& earlier = values[below(values.size())];
        value = earlier.substr(0, 1 + below(earlier.size()));
      } else {
        for (std::size_t index = 1 + below(longest); index > 0; --index)
          value += letters[below(letters.size())];
      }
      values.push_back(value);
      total += value.size() + 1;
    }
    overflows += total > 30 * rowCount;
    IdList list(static_cast<std::int32_t>(rowCount));
    PlainIdList twin(static_cast<std::int32_t>(rowCount));
    for (const std::string& value : values) {
      const bool isRepeated = twin.IsRepeated(value);
      repeats += isRepeated;
      ASSERT_EQ(list.IsRepeated(value), isRepeated) << "round " << round << ": " << value;
    }
  }
  EXPECT_GT(repeats, 500);
  EXPECT_GT(overflows, 200);
}

TEST(IdList, GrowsWithManyEntriesInOneValue) {
  std::string value;
  for (int entry = 0; entry < 400; ++entry)
    value += std::to_string(entry) + "\t";
  IdList list(100);
  EXPECT_FALSE(list.IsRepeated(value));
  for (int entry = 0; entry < 400; ++entry)
    EXPECT_TRUE(list.IsRepeated(std::to_string(entry))) << entry;
  EXPECT_FALSE(list.IsRepeated("400"));
}

}  // namespace
}  // namespace quorvane::test
