#include "text/terminal_text.h"

#include <string>

#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

TEST(TerminalText, LeavesPlainTextAsItIs) {
  EXPECT_EQ(TerminalText(""), "");
  EXPECT_EQ(TerminalText("  ERROR: Line 7 - 'a\tb' ~ \\x1B"), "  ERROR: Line 7 - 'a\tb' ~ \\x1B");
}

TEST(TerminalText, WritesControlCharactersOut) {
  EXPECT_EQ(TerminalText("\x1B[2J\x1B]0;title\a"), "\\x1B[2J\\x1B]0;title\\x07");
  EXPECT_EQ(TerminalText("value\rforged"), "value\\x0Dforged");
  EXPECT_EQ(TerminalText("value\nforged"), "value\\x0Aforged");
  EXPECT_EQ(TerminalText(std::string("a\0b\b\x7F", 5)), "a\\x00b\\x08\\x7F");
  for (int code = 0; code < 0x20; ++code) {
    const std::string text(1, static_cast<char>(code));
    EXPECT_EQ(TerminalText(text) == text, code == '\t') << code;
  }
}

TEST(TerminalText, LeavesLettersInUtf8) {
  for (const char* text :
       {"50 \xC2\xB5m", "\xC3\x9F", "\xE2\x82\xAC", "\xE2\x80\x9Cquoted\xE2\x80\x9D",
        "\xF0\x9F\x93\x84", "\xED\x9F\xBF", "\xE0\xA0\x80", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_EQ(TerminalText(text), text);
  }
}

TEST(TerminalText, LeavesLettersOfASingleByteCodePage) {
  for (int code = 0xA0; code <= 0xFF; ++code) {
    const std::string text(1, static_cast<char>(code));
    EXPECT_EQ(TerminalText(text + "m"), text + "m") << code;
  }
}

TEST(TerminalText, WritesTheSecondSetOfControlCharactersOut) {
  EXPECT_EQ(TerminalText("\x9B"
                         "2J"),
            "\\x9B"
            "2J");
  EXPECT_EQ(TerminalText("\xC2\x9B"
                         "2J"),
            "\\xC2\\x9B"
            "2J");
  EXPECT_EQ(TerminalText("\xC2\x85"), "\\xC2\\x85");
  EXPECT_EQ(TerminalText("\xC2\x9F\xC2\xA0"), "\\xC2\\x9F\xC2\xA0");
}

TEST(TerminalText, WritesLettersOutThatBreakOrTurnLines) {
  EXPECT_EQ(TerminalText("\xE2\x80\xA7"), "\xE2\x80\xA7");
  EXPECT_EQ(TerminalText("\xE2\x80\xA8"), "\\xE2\\x80\\xA8");
  EXPECT_EQ(TerminalText("\xE2\x80\xAE"), "\\xE2\\x80\\xAE");
  EXPECT_EQ(TerminalText("\xE2\x80\xAF"), "\xE2\x80\xAF");
  EXPECT_EQ(TerminalText("\xE2\x81\xA5"), "\xE2\x81\xA5");
  EXPECT_EQ(TerminalText("\xE2\x81\xA6"), "\\xE2\\x81\\xA6");
  EXPECT_EQ(TerminalText("\xE2\x81\xA9"), "\\xE2\\x81\\xA9");
  EXPECT_EQ(TerminalText("\xE2\x81\xAA"), "\xE2\x81\xAA");
}

// What is no letter in UTF-8 must not hide control characters among its bytes.
TEST(TerminalText, TakesBrokenLettersByteByByte) {
  EXPECT_EQ(TerminalText("\xC2"), "\xC2");
  EXPECT_EQ(TerminalText("\xC2\x1B"), "\xC2\\x1B");
  EXPECT_EQ(TerminalText("\xE2\x82"), "\xE2\\x82");
  EXPECT_EQ(TerminalText("\xC0\x9B"), "\xC0\\x9B");
  EXPECT_EQ(TerminalText("\xE0\x82\x9B"), "\xE0\\x82\\x9B");
  EXPECT_EQ(TerminalText("\xF0\x80\x82\x9B"), "\xF0\\x80\\x82\\x9B");
  EXPECT_EQ(TerminalText("\xED\xA0\x80"), "\xED\xA0\\x80");
  EXPECT_EQ(TerminalText("\xF4\x90\x80\x80"), "\xF4\\x90\\x80\\x80");
  EXPECT_EQ(TerminalText("\xF5\x80\x80\x80"), "\xF5\\x80\\x80\\x80");
}

}  // namespace
}  // namespace quorvane::test
