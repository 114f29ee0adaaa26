#include "text/same_text.h"

#include <string>

#include <gtest/gtest.h>

#include "text/text_hash.h"

namespace quorvane::test {
namespace {

TEST(SameText, SeesADifferenceAtEveryPlaceOfEveryLength) {
  for (std::size_t length = 0; length <= 40; ++length) {
    const std::string text(length, 'a');
    const std::string twin = text;  // the same bytes elsewhere in memory
    EXPECT_TRUE(SameText(text, twin)) << length;
    EXPECT_EQ(HashText(text), HashText(twin)) << length;
    EXPECT_FALSE(SameText(text, twin + "a")) << length;
    for (std::size_t at = 0; at < length; ++at) {
      std::string other = text;
      other[at] = 'b';
      EXPECT_FALSE(SameText(text, other)) << length << ", " << at;
      EXPECT_NE(HashText(text), HashText(other)) << length << ", " << at;
    }
  }
}

TEST(SameLength, EndsAtTheFirstDifferenceOrWithTheShorterText) {
  for (std::size_t length = 0; length <= 40; ++length) {
    const std::string text(length, 'a');
    EXPECT_EQ(SameLength(text, std::string(text)), length);
    EXPECT_EQ(SameLength(text, text + "a"), length);
    EXPECT_EQ(SameLength(text + "a", text), length);
    for (std::size_t at = 0; at < length; ++at) {
      std::string other = text;
      other[at] = 'b';
      EXPECT_EQ(SameLength(text, other), at);
    }
  }
}

}  // namespace
}  // namespace quorvane::test
