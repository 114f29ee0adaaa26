#include "findings/text_store.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

TEST(TextStoreTest, KeepsTextsWhereTheyAre) {
  TextStore store;
  std::vector<std::string> texts;
  std::vector<std::string_view> kept;
  for (std::size_t length = 0; length < 3000; ++length) {
    texts.emplace_back(length, static_cast<char>('a' + length % 26));
    kept.push_back(store.Keep(texts.back()));
  }
  const TextStore moved = std::move(store);
  for (std::size_t index = 0; index < texts.size(); ++index)
    EXPECT_EQ(kept[index], texts[index]);
}

TEST(TextStoreTest, KeepsATextThatIsLongerThanABlock) {
  TextStore store;
  const std::string text(5000000, 'x');
  const std::string_view before = store.Keep("before");
  const std::string_view kept = store.Keep(text);
  const std::string_view behind = store.Keep("behind");
  EXPECT_EQ(before, "before");
  EXPECT_EQ(kept, text);
  EXPECT_EQ(behind, "behind");
}

}  // namespace
}  // namespace quorvane::test
