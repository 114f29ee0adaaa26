#include "text/text_table.h"

#include <array>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

#include <gtest/gtest.h>

#include "support/random_text.h"

namespace quorvane::test {
namespace {

TEST(TextTable, FindsWhatWasAdded) {
  TextTable<int> table;
  EXPECT_EQ(table.Find("a"), nullptr);
  EXPECT_TRUE(table.TryEmplace("a", 1).second);
  EXPECT_TRUE(table.TryEmplace("", 2).second);
  EXPECT_EQ(*table.Find("a"), 1);
  EXPECT_EQ(*table.Find(""), 2);
  EXPECT_FALSE(table.Contains("A"));
  EXPECT_FALSE(table.Contains(std::string_view("a\0", 2)));
}

TEST(TextTable, KeepsTheFirstValueOfAText) {
  TextTable<int> table;
  table.TryEmplace("a", 1);
  const auto [value, isNew] = table.TryEmplace("a", 2);
  EXPECT_FALSE(isNew);
  EXPECT_EQ(value, 1);
  value = 3;
  EXPECT_EQ(*table.Find("a"), 3);
}

TEST(TextTable, GrowsBeyondWhatWasExpected) {
  std::deque<std::string> texts;
  TextTable<int> table(3);
  for (int number = 0; number < 5000; ++number) {
    table.TryEmplace(texts.emplace_back(std::to_string(number)), number);
  }
  for (int number = 0; number < 5000; ++number) {
    const int* value = table.Find(std::to_string(number));
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(*value, number);
  }
  EXPECT_FALSE(table.Contains("5000"));
}

TEST(TextTable, AgreesWithItsPlainTwin) {
  constexpr std::array<std::string_view, 5> pieces{"a", "B", " ", "12345678", "1234567890abcdefg"};
  RandomText random(83);
  for (int round = 0; round < 200; ++round) {
    std::deque<std::string> texts;
    TextTable<int> table;
    std::unordered_map<std::string, int> twin;
    for (int step = 0; step < 300; ++step) {
      const std::string& text = texts.emplace_back(random.Joined(pieces, random.Below(5)));
      if (random.Below(2) == 0) {
        const auto [value, isNew] = table.TryEmplace(text, step);
        const auto [twinsPlace, isNewInTwin] = twin.try_emplace(text, step);
        ASSERT_EQ(isNew, isNewInTwin) << text;
        ASSERT_EQ(value, twinsPlace->second) << text;
      } else {
        const int* value = table.Find(text);
        ASSERT_EQ(value != nullptr, twin.contains(text)) << text;
        if (value == nullptr) continue;
        ASSERT_EQ(*value, twin.at(text)) << text;
      }
    }
  }
}

}  // namespace
}  // namespace quorvane::test
