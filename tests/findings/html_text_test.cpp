#include "findings/html_text.h"

#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

std::string HtmlText(std::string_view text) {
  std::string page;
  AppendHtmlText(page, text);
  return page;
}

TEST(HtmlTextTest, WhatCouldBeReadAsMarkupIsEscaped) {
  EXPECT_EQ(HtmlText("</script><!-- a & b -->"), "&lt;/script&gt;&lt;!-- a &amp; b --&gt;");
  EXPECT_EQ(HtmlText("&lt;"), "&amp;lt;");
  EXPECT_EQ(HtmlText("\"x\",'y'"), "\"x\",'y'");
}

TEST(HtmlTextTest, ControlCharactersAreShownByTheirSymbols) {
  EXPECT_EQ(HtmlText(std::string_view("a\0b", 3)),
            "a\xE2\x90\x80"
            "b");
  EXPECT_EQ(HtmlText("\t\r\n\x1B\x1F"),
            "\xE2\x90\x89\xE2\x90\x8D\xE2\x90\x8A\xE2\x90\x9B\xE2\x90\x9F");
  EXPECT_EQ(HtmlText("\x7F"), "\xE2\x90\xA1");
  EXPECT_EQ(HtmlText("\xC2\x85"), "[U+0085]");
}

TEST(HtmlTextTest, CharactersThatTurnTheDirectionOrHideAreShownByTheirNumber) {
  EXPECT_EQ(HtmlText("\xE2\x80\xAE"
                     "evil\xE2\x80\xAC"),
            "[U+202E]evil[U+202C]");
  EXPECT_EQ(HtmlText("\xE2\x81\xA6\xE2\x81\xA9"), "[U+2066][U+2069]");
  EXPECT_EQ(HtmlText("a\xE2\x80\x8B"
                     "b\xEF\xBB\xBF"),
            "a[U+200B]b[U+FEFF]");
  EXPECT_EQ(HtmlText("\xE2\x80\xA8\xE2\x80\xA9"), "[U+2028][U+2029]");
  EXPECT_EQ(HtmlText("\xF3\xA0\x80\x81"), "[U+E0001]");
}

TEST(HtmlTextTest, LettersStayAsTheyAre) {
  const std::string letters =
      "m\xC2\xB2 \xC2\xB0 \xCE\xA9 \xE2\x80\x93 \xE6\xB0\xB4 \xF0\x9F\xAA\xA8";
  EXPECT_EQ(HtmlText(letters), letters);
  EXPECT_EQ(HtmlText(""), "");
}

TEST(HtmlTextTest, BytesThatAreNoUtf8AreReplaced) {
  EXPECT_EQ(HtmlText("a\xFF"
                     "b\xC3"),
            "a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD");
}

TEST(HtmlTextTest, LinesOfATextAreBroken) {
  std::string page;
  AppendHtmlLines(page, "one:\r\n<two>\r\n");
  EXPECT_EQ(page, "one:<br>&lt;two&gt;<br>");
}

}  // namespace
}  // namespace quorvane::test
