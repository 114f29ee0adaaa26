#include "parse/row_text_index.h"

#include <array>
#include <map>

#include <gtest/gtest.h>

#include "support/random_text.h"

namespace quorvane::test {
namespace {

/// The texts of rows of one group, and how they are asked for.
struct Texts {
  std::vector<std::string> ofRows;

  void operator()(const RowPlace& place, std::string& text) const {
    text = ofRows[static_cast<std::size_t>(place.row - 1)];
  }
};

TEST(RowTextIndex, KeepsTheFirstRowOfAText) {
  RowTextIndex index(3, Texts{{"a", "b", "a"}});
  EXPECT_EQ(index.Insert({1, 1}), std::nullopt);
  EXPECT_EQ(index.Insert({1, 2}), std::nullopt);
  EXPECT_EQ(index.Insert({1, 3}), (RowPlace{1, 1}));
  EXPECT_EQ(index.Find("a"), (RowPlace{1, 1}));
  EXPECT_EQ(index.Find("b"), (RowPlace{1, 2}));
  EXPECT_EQ(index.Find("A"), std::nullopt);
  EXPECT_EQ(index.Find(""), std::nullopt);
}

TEST(RowTextIndex, KnowsEmptyTextsToo) {
  RowTextIndex index(2, Texts{{"", ""}});
  EXPECT_EQ(index.Insert({1, 1}), std::nullopt);
  EXPECT_EQ(index.Insert({1, 2}), (RowPlace{1, 1}));
  EXPECT_EQ(index.Find(""), (RowPlace{1, 1}));
}

TEST(RowTextIndex, WithoutRowsFindsNothing) {
  RowTextIndex index(0, Texts{});
  EXPECT_EQ(index.Find("a"), std::nullopt);
  EXPECT_EQ(index.Find(""), std::nullopt);
}

TEST(RowTextIndex, AgreesWithAMap) {
  constexpr std::array<std::string_view, 5> pieces{"a", "b", ",", "BH", "10"};
  RandomText random(101);
  for (int round = 0; round < 300; ++round) {
    Texts texts;
    for (std::size_t row = random.Below(60); row > 0; --row) {
      texts.ofRows.push_back(random.Joined(pieces, random.Below(4)));
    }
    RowTextIndex index(texts.ofRows.size(), texts);
    std::map<std::string, RowPlace> expected;
    for (std::size_t at = 0; at < texts.ofRows.size(); ++at) {
      const RowPlace place{1, static_cast<std::int32_t>(at) + 1};
      const auto [known, isNew] = expected.try_emplace(texts.ofRows[at], place);
      const std::optional<RowPlace> earlier = index.Insert(place);
      ASSERT_EQ(earlier.has_value(), !isNew);
      if (isNew) continue;
      ASSERT_EQ(*earlier, known->second);
    }
    for (int search = 0; search < 50; ++search) {
      const std::string text = random.Joined(pieces, random.Below(4));
      const auto known = expected.find(text);
      const std::optional<RowPlace> found = index.Find(text);
      ASSERT_EQ(found.has_value(), known != expected.end()) << text;
      if (!found) continue;
      ASSERT_EQ(*found, known->second) << text;
    }
  }
}

/// Row n has the text of row n modulo a number.
struct RepeatingTexts {
  std::int32_t period;

  void operator()(const RowPlace& place, std::string& text) const {
    text = "BH" + std::to_string(place.row % period);
  }
};

TEST(RowTextIndex, TakesAMillionRows) {
  RowTextIndex index(1000000, RepeatingTexts{600000});
  int repeats = 0;
  for (std::int32_t row = 1; row <= 1000000; ++row) {
    repeats += index.Insert({1, row}).has_value() ? 1 : 0;
  }
  EXPECT_EQ(repeats, 400000);
  EXPECT_EQ(index.Find("BH1"), (RowPlace{1, 1}));
  EXPECT_EQ(index.Find("BH0"), (RowPlace{1, 600000}));
}

}  // namespace
}  // namespace quorvane::test
