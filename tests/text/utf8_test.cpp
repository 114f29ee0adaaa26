#include "text/utf8.h"

#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

TEST(ToUtf8Test, ValidTextStaysAsItIs) {
  EXPECT_EQ(ToUtf8("plain"), "plain");
  EXPECT_EQ(ToUtf8("Stra\xC3\x9F"
                   "e \xD0\x96 \xE2\x82\xAC \xF0\x9F\x8C\x8D"),
            "Stra\xC3\x9F"
            "e \xD0\x96 \xE2\x82\xAC \xF0\x9F\x8C\x8D");
  EXPECT_EQ(ToUtf8(""), "");
}

TEST(ToUtf8Test, OtherBytesAreTakenAsWindows1252) {
  EXPECT_EQ(ToUtf8("25\xB0"
                   "C"),
            "25\xC2\xB0"
            "C");
  EXPECT_EQ(ToUtf8("\x80"), "\xE2\x82\xAC");      // the euro sign
  EXPECT_EQ(ToUtf8("\x8A"), "\xC5\xA0");          // S with caron
  EXPECT_EQ(ToUtf8("a\x81z"), "a\xEF\xBF\xBDz");  // a byte that means nothing
  EXPECT_EQ(ToUtf8("\xFF\xE9"), "\xC3\xBF\xC3\xA9");
}

TEST(ToUtf8Test, WhatOnlyLooksLikeUtf8IsTakenByteByByte) {
  EXPECT_EQ(ToUtf8("\xC0\xAF"), "\xC3\x80\xC2\xAF");                  // overlong
  EXPECT_EQ(ToUtf8("\xED\xA0\x80"), "\xC3\xAD\xC2\xA0\xE2\x82\xAC");  // a surrogate
  EXPECT_EQ(ToUtf8("\xE2\x82"), "\xC3\xA2\xE2\x80\x9A");              // cut off
  EXPECT_EQ(ToUtf8("\xF4\x90\x80\x80"), "\xC3\xB4\xEF\xBF\xBD\xE2\x82\xAC\xE2\x82\xAC");
}

TEST(CharacterCountTest, CountsWhatToUtf8Makes) {
  EXPECT_EQ(CharacterCount(""), 0U);
  EXPECT_EQ(CharacterCount("plain"), 5U);
  EXPECT_EQ(CharacterCount("\xC3\x9F\xE2\x82\xAC\xF0\x9F\x8C\x8D"), 3U);
  EXPECT_EQ(CharacterCount("\xB0\xB0"), 2U);
}

}  // namespace
}  // namespace quorvane::test
