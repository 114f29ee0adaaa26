#include "text/comma_list.h"

#include <algorithm>
#include <array>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/random_text.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Views = std::vector<std::string_view>;

Views TakeAll(std::string_view text, std::string_view delimiter) {
  Views tokens;
  std::size_t position = 1;
  while (position != 0) {
    tokens.push_back(TakeToken(position, text, delimiter));
  }
  return tokens;
}

TEST(TakeToken, MovesBehindTheDelimiter) {
  std::size_t position = 1;
  EXPECT_EQ(TakeToken(position, "SAMP!,7!A,B", "!"), "SAMP");
  EXPECT_EQ(position, 6U);
  EXPECT_EQ(TakeToken(position, "SAMP!,7!A,B", "!"), ",7");
  EXPECT_EQ(position, 9U);
}

TEST(TakeToken, GivesTheRestPastTheLastDelimiter) {
  std::size_t position = 9;
  EXPECT_EQ(TakeToken(position, "SAMP!,7!A,B", "!"), "A,B");
  EXPECT_EQ(position, 0U);
}

TEST(TakeToken, GivesAnEmptyRestBehindADelimiterAtTheEnd) {
  EXPECT_THAT(TakeAll("a,b,", ","), ElementsAre("a", "b", ""));
  EXPECT_THAT(TakeAll(",", ","), ElementsAre("", ""));
}

TEST(TakeToken, OfAnEmptyTextIsEmptyAndTheLast) {
  EXPECT_THAT(TakeAll("", ","), ElementsAre(""));
}

TEST(TakeToken, AtPositionZeroStaysThere) {
  std::size_t position = 0;
  EXPECT_EQ(TakeToken(position, "a,b", ","), "");
  EXPECT_EQ(position, 0U);
}

TEST(TakeToken, FarBehindTheEndIsEmptyAndTheLast) {
  std::size_t position = 99;
  EXPECT_EQ(TakeToken(position, "a,b", ","), "");
  EXPECT_EQ(position, 0U);
}

TEST(TakeToken, TakesDelimitersOfSeveralCharacters) {
  EXPECT_THAT(TakeAll("a\r\nb\r\r\n\nc", "\r\n"), ElementsAre("a", "b\r", "\nc"));
}

constexpr std::array<std::string_view, 6> ListPieces{",", ",", "A", "AB", "b", "\r\n"};

TEST(TakeToken, TakesWhatSplitGives) {
  RandomText random(21);
  for (int round = 0; round < 5000; ++round) {
    const std::string text = random.Joined(ListPieces, random.Below(12));
    for (const std::string_view delimiter : {",", "\r\n", "AB"}) {
      EXPECT_EQ(TakeAll(text, delimiter), Split(text, delimiter)) << text << " / " << delimiter;
    }
  }
}

/// The pieces between delimiters, found letter by letter.
std::vector<std::string> SplitPlainly(std::string_view text, char delimiter) {
  std::vector<std::string> pieces(1);
  for (const char letter : text) {
    if (letter == delimiter) {
      pieces.emplace_back();
    } else {
      pieces.back() += letter;
    }
  }
  return pieces;
}

TEST(Split, AgreesWithItsPlainTwin) {
  RandomText random(22);
  for (int round = 0; round < 5000; ++round) {
    const std::string text = random.Joined(ListPieces, random.Below(12));
    const Views pieces = Split(text, ",");
    EXPECT_EQ(std::vector<std::string>(pieces.begin(), pieces.end()), SplitPlainly(text, ','));
  }
}

TEST(Split, OfAnEmptyTextIsOneEmptyPiece) {
  EXPECT_THAT(Split("", ","), ElementsAre(""));
}

TEST(ListContains, ComparesWholeItemsInExactCase) {
  EXPECT_TRUE(ListContains("ABBR,CODE,DICT,UNIT", "ABBR"));
  EXPECT_TRUE(ListContains("ABBR,CODE,DICT,UNIT", "CODE"));
  EXPECT_TRUE(ListContains("ABBR,CODE,DICT,UNIT", "UNIT"));
  EXPECT_FALSE(ListContains("ABBR,CODE,DICT,UNIT", "code"));
  EXPECT_FALSE(ListContains("ABBR,CODE,DICT,UNIT", "COD"));
  EXPECT_FALSE(ListContains("ABBR,CODE,DICT,UNIT", "ODE"));
  EXPECT_FALSE(ListContains("ABBR,CODE,DICT,UNIT", "NITS"));
  EXPECT_FALSE(ListContains("", "UNIT"));
}

TEST(ListContains, FindsAMemberBehindLongerOnesThatHoldIt) {
  EXPECT_TRUE(ListContains("?HOLE_ID,XHOLE_ID,HOLE_IDX,HOLE_ID", "HOLE_ID"));
  EXPECT_TRUE(ListContains("aaa,aa,a", "a"));
  EXPECT_FALSE(ListContains("aaa,aa", "a"));
}

TEST(ListContains, AnEmptyItemIsNeverAMember) {
  EXPECT_FALSE(ListContains("", ""));
  EXPECT_FALSE(ListContains(",", ""));
  EXPECT_FALSE(ListContains("a,,b", ""));
}

TEST(ListContains, BlanksBelongToTheirItem) {
  EXPECT_FALSE(ListContains("a, b", "b"));
  EXPECT_TRUE(ListContains("a, b", " b"));
}

bool IsPieceOf(std::string_view list, std::string_view item) {
  const std::vector<std::string> pieces = SplitPlainly(list, ',');
  return !item.empty() && std::find(pieces.begin(), pieces.end(), item) != pieces.end();
}

TEST(ListContains, AgreesWithTheSplitList) {
  constexpr std::array<std::string_view, 3> letters{"A", "B", "AB"};
  RandomText random(23);
  for (int round = 0; round < 20000; ++round) {
    const std::string list = random.Joined(ListPieces, random.Below(12));
    const std::string item = random.Joined(letters, random.Below(3));
    EXPECT_EQ(ListContains(list, item), IsPieceOf(list, item)) << list << " / " << item;
  }
}

TEST(ListContains, AnItemWithACommaIsNoMember) {
  EXPECT_FALSE(ListContains("A,B,C", "A,B"));
  EXPECT_FALSE(ListContains("A,B,C", "B,C"));
  EXPECT_FALSE(ListContains("A,,C", ","));
}

TEST(Join, PutsTheDelimiterBetweenItemsOnly) {
  EXPECT_EQ(Join(std::vector<std::string>{"a", "", "b"}, ","), "a,,b");
  EXPECT_EQ(Join(std::vector<std::string>{""}, ","), "");
  EXPECT_EQ(Join(Views{"a", "b"}, "\r\n"), "a\r\nb");
  EXPECT_EQ(Join(Views{}, ","), "");
}

TEST(SplitLines, TakesEveryKindOfLineEnd) {
  EXPECT_THAT(SplitLines("a\r\nb\nc\rd"), ElementsAre("a", "b", "c", "d"));
  EXPECT_THAT(SplitLines("a\r\n\r\nb"), ElementsAre("a", "", "b"));
  EXPECT_THAT(SplitLines("a\n\rb"), ElementsAre("a", "", "b"));
}

TEST(SplitLines, ALineEndAtTheEndOpensNoFurtherLine) {
  EXPECT_THAT(SplitLines("a\r\n"), ElementsAre("a"));
  EXPECT_THAT(SplitLines("a\n"), ElementsAre("a"));
  EXPECT_THAT(SplitLines("a\r\n\r\n"), ElementsAre("a", ""));
  EXPECT_THAT(SplitLines("\r\n"), ElementsAre(""));
  EXPECT_THAT(SplitLines(""), IsEmpty());
}

TEST(SplitLines, AgreesWithLinesOfOneKindOfEnd) {
  constexpr std::array<std::string_view, 4> letters{"\r", "\n", "\r\n", "a"};
  RandomText random(24);
  for (int round = 0; round < 5000; ++round) {
    const std::string text = random.Joined(letters, random.Below(9));
    std::vector<std::string> expected =
        SplitPlainly(ReplaceAll(ReplaceAll(text, "\r\n", "\n"), "\r", "\n"), '\n');
    if (expected.back().empty()) expected.pop_back();
    const Views lines = SplitLines(text);
    EXPECT_EQ(std::vector<std::string>(lines.begin(), lines.end()), expected);
  }
}

TEST(TextToTruth, KnowsTheWordsForTrue) {
  for (const std::string_view text :
       {"TRUE", "true", "True", "T", "t", "YES", "yes", "Y", "y", "ON", "on", "  On  "}) {
    EXPECT_TRUE(TextToTruth(text)) << text;
  }
}

TEST(TextToTruth, EveryNumberOtherThanZeroIsTrue) {
  for (const std::string_view text : {"1", "-1", "+2", "0.5", "1e3", " 7 ", ".1"}) {
    EXPECT_TRUE(TextToTruth(text)) << text;
  }
  for (const std::string_view text : {"0", "-0", "0.0", "0e5", "+0", " 0 "}) {
    EXPECT_FALSE(TextToTruth(text)) << text;
  }
}

TEST(TextToTruth, EverythingElseIsFalse) {
  for (const std::string_view text : {"", "   ", "FALSE", "F", "NO", "N", "OFF", "TRUE!", "YE",
                                      "T RUE", "\tTRUE", "1x", "0x1", "inf", "nan", "1,5", "#1"}) {
    EXPECT_FALSE(TextToTruth(text)) << text;
  }
}

}  // namespace
}  // namespace quorvane::test
