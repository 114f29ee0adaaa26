#include "run/system_text.h"

#include <array>
#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

#if defined(_WIN32)
constexpr unsigned int WesternCodePage = 1252;

TEST(SystemText, IsUtf8WhenItIsValidUtf8) {
  EXPECT_EQ(Widen("plain", WesternCodePage), L"plain");
  EXPECT_EQ(Widen("Stra\xC3\x9F"
                  "e \xD0\x96",
                  WesternCodePage),
            L"Stra\u00DFe \u0416");
  EXPECT_EQ(Widen("\xF0\x9F\x8C\x8D", WesternCodePage), L"\U0001F30D");
  EXPECT_EQ(Widen("", WesternCodePage), L"");
}

TEST(SystemText, IsOfTheOtherCodePageWhenItIsNot) {
  EXPECT_EQ(Widen("Stra\xDF"
                  "e \x80",
                  WesternCodePage),
            L"Stra\u00DFe \u20AC");
  EXPECT_EQ(Widen("\xC6", 1251), L"\u0416");
  EXPECT_EQ(Widen("\xC3\x9F \xDF", WesternCodePage), L"\u00C3\u0178 \u00DF");
}

TEST(SystemText, IsNarrowedToUtf8) {
  EXPECT_EQ(Narrow(L"Stra\u00DFe \u0416 \U0001F30D"),
            "Stra\xC3\x9F"
            "e \xD0\x96 \xF0\x9F\x8C\x8D");
  EXPECT_EQ(Narrow(L""), "");
  EXPECT_EQ(Narrow(L"a\xD800z"), "a\xEF\xBF\xBDz");
}

TEST(SystemText, PathsAreTheSameInEitherEncoding) {
  EXPECT_EQ(SystemPath("Q:\\\xE4.ags").wstring(), L"Q:\\\u00E4.ags");
  EXPECT_EQ(SystemPath("Q:/\xC3\xA4.ags").wstring(), L"Q:/\u00E4.ags");
}

TEST(SystemText, ArgumentsAreThoseThatTheSystemWasGiven) {
  EXPECT_THAT(ProgramArguments(0, nullptr), IsEmpty()) << "the test is started without any";
}
#else
TEST(SystemText, PathsAreTheBytesThatWereGiven) {
  EXPECT_EQ(SystemPath("a/\xC3\xA4 \xE4").native(), "a/\xC3\xA4 \xE4");
  EXPECT_EQ(SystemPath("").native(), "");
}

TEST(SystemText, ArgumentsLeaveOutTheProgram) {
  const std::array arguments{"program", "one two", "", "\xE4"};
  EXPECT_THAT(ProgramArguments(4, arguments.data()), ElementsAre("one two", "", "\xE4"));
  EXPECT_THAT(ProgramArguments(1, arguments.data()), IsEmpty());
  EXPECT_THAT(ProgramArguments(0, arguments.data()), IsEmpty());
}
#endif

TEST(SystemText, OfAPathIsTheSameThereAndBack) {
  const std::string path =
      "Stra\xC3\x9F"
      "e \xF0\x9F\x8C\x8D.ags";
  EXPECT_EQ(PathText(SystemPath(path)), path);
}

}  // namespace
}  // namespace quorvane::test
