#include "findings/text_order.h"

#include <algorithm>
#include <numeric>
#include <random>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Order = std::vector<std::uint32_t>;

/// The same order, made plainly.
Order PlainOrder(const std::vector<std::string_view>& texts, SortDirection direction) {
  Order order(texts.size());
  std::iota(order.begin(), order.end(), 0U);
  std::stable_sort(order.begin(), order.end(), [&](std::uint32_t left, std::uint32_t right) {
    return direction == SortDirection::Ascending ? texts[left] < texts[right]
                                                 : texts[right] < texts[left];
  });
  return order;
}

TEST(TextOrder, GoesByTheBytes) {
  const std::vector<std::string_view> texts{"b", "", "a\xC3\xA4", "ab", "B", "a"};
  EXPECT_THAT(TextOrder(texts, SortDirection::Ascending), ElementsAre(1, 4, 5, 3, 2, 0));
  EXPECT_THAT(TextOrder(texts, SortDirection::Descending), ElementsAre(0, 2, 3, 5, 4, 1));
}

TEST(TextOrder, EqualTextsKeepTheirOrderInEitherDirection) {
  const std::vector<std::string_view> texts{"same long text", "other", "same long text", "other"};
  EXPECT_THAT(TextOrder(texts, SortDirection::Ascending), ElementsAre(1, 3, 0, 2));
  EXPECT_THAT(TextOrder(texts, SortDirection::Descending), ElementsAre(0, 2, 1, 3));
}

TEST(TextOrder, NoTextsHaveNone) {
  EXPECT_THAT(TextOrder({}, SortDirection::Ascending), IsEmpty());
}

TEST(TextOrder, IsThatOfAPlainSort) {
  std::mt19937 random(1);
  std::vector<std::string> owned;
  for (int count = 0; count < 3000; ++count) {
    std::string& text = owned.emplace_back(random() % 4 * 8, 'x');  // many begin alike
    const std::size_t length = random() % 12;
    for (std::size_t index = 0; index < length; ++index)
      text.push_back(static_cast<char>(1 + random() % 3 * 100));
  }
  const std::vector<std::string_view> texts(owned.begin(), owned.end());
  for (const auto direction : {SortDirection::Ascending, SortDirection::Descending})
    EXPECT_EQ(TextOrder(texts, direction), PlainOrder(texts, direction));
}

TEST(TextOrder, VeryLongTextsThatBeginAlikeAreToldApart) {
  const std::string first(3'000'000, 'x');
  const std::string second = first + "a";
  const std::vector<std::string_view> texts{second, first, second};
  EXPECT_THAT(TextOrder(texts, SortDirection::Ascending), ElementsAre(1, 0, 2));
}

}  // namespace
}  // namespace quorvane::test
