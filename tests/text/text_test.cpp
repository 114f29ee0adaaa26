#include "text/text.h"

#include <array>

#include <gtest/gtest.h>

#include "support/random_text.h"

namespace quorvane::test {
namespace {

TEST(LetterCase, MeansTheLettersAToZOnly) {
  for (int code = 0; code < 256; ++code) {
    const auto letter = static_cast<char>(code);
    const bool isSmall = code >= 97 && code <= 122;
    const bool isCapital = code >= 65 && code <= 90;
    EXPECT_EQ(ToUpper(letter), isSmall ? static_cast<char>(code - 32) : letter) << code;
    EXPECT_EQ(ToLower(letter), isCapital ? static_cast<char>(code + 32) : letter) << code;
    EXPECT_EQ(IsDigit(letter), code >= 48 && code <= 57) << code;
  }
}

TEST(LetterCase, OfATextLeavesOtherBytesAsTheyAre) {
  EXPECT_EQ(UpperCase("sAmp_id 9\xE4\xC3\xB6?"), "SAMP_ID 9\xE4\xC3\xB6?");
  EXPECT_EQ(LowerCase("SaMP_ID 9\xC4\xC3\x96?"), "samp_id 9\xC4\xC3\x96?");
  EXPECT_EQ(UpperCase(""), "");
  EXPECT_EQ(LowerCase(""), "");
}

TEST(LetterCase, NulIsAByteLikeAnyOther) {
  EXPECT_EQ(UpperCase(std::string_view("a\0b", 3)), std::string("A\0B", 3));
}

TEST(IsUpperCase, HoldsWhereUpperCasingChangesNothing) {
  EXPECT_TRUE(IsUpperCase("SAMP_ID1?"));
  EXPECT_TRUE(IsUpperCase(""));
  EXPECT_TRUE(IsUpperCase("\xE4"));
  EXPECT_FALSE(IsUpperCase("SAMPa"));
  EXPECT_FALSE(IsUpperCase("z"));
}

TEST(EqualsIgnoringCase, ComparesWholeTexts) {
  EXPECT_TRUE(EqualsIgnoringCase("<cont>", "<CONT>"));
  EXPECT_TRUE(EqualsIgnoringCase("", ""));
  EXPECT_FALSE(EqualsIgnoringCase("<CONT>", "<CONT> "));
  EXPECT_FALSE(EqualsIgnoringCase("a", ""));
}

TEST(EqualsIgnoringCase, SignsThatDifferByTheSameBitAsLettersDiffer) {
  EXPECT_FALSE(EqualsIgnoringCase("@", "`"));
  EXPECT_FALSE(EqualsIgnoringCase("[", "{"));
  EXPECT_FALSE(EqualsIgnoringCase("\xC4", "\xE4"));
}

TEST(StartsWithIgnoringCase, LooksAtTheStartOnly) {
  EXPECT_TRUE(StartsWithIgnoringCase("\"Unit\",\"m\"", "\"UNIT\""));
  EXPECT_TRUE(StartsWithIgnoringCase("x", ""));
  EXPECT_FALSE(StartsWithIgnoringCase(" unit", "UNIT"));
  EXPECT_FALSE(StartsWithIgnoringCase("UNI", "UNIT"));
}

TEST(FindIgnoringCase, FindsTheFirstFromAPositionOn) {
  EXPECT_EQ(FindIgnoringCase("xAbabaB", "ab"), 1U);
  EXPECT_EQ(FindIgnoringCase("xAbabaB", "ab", 2), 3U);
  EXPECT_EQ(FindIgnoringCase("xAbabaB", "AB", 4), 5U);
  EXPECT_EQ(FindIgnoringCase("xAbabaB", "ab", 6), std::string_view::npos);
  EXPECT_EQ(FindIgnoringCase("ab", "abc"), std::string_view::npos);
  EXPECT_EQ(FindIgnoringCase("", "a"), std::string_view::npos);
  EXPECT_EQ(FindIgnoringCase("ab", "a", 99), std::string_view::npos);
}

TEST(FindIgnoringCase, AgreesWithASearchInLowerCase) {
  constexpr std::array<std::string_view, 4> letters{"a", "A", "b", "B"};
  RandomText random(11);
  for (int round = 0; round < 5000; ++round) {
    const std::string text = random.Joined(letters, random.Below(12));
    const std::string needle = random.Joined(letters, 1 + random.Below(3));
    const std::size_t start = random.Below(14);
    EXPECT_EQ(FindIgnoringCase(text, needle, start), LowerCase(text).find(LowerCase(needle), start))
        << text << " / " << needle << " / " << start;
  }
}

TEST(Trim, TakesBlanksAtBothEndsAndNothingElse) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("\t a \t"), "\t a \t");
  EXPECT_EQ(Trim(" \ta\r\n "), "\ta\r\n");
  EXPECT_EQ(Trim("\xA0 a"), "\xA0 a");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim(""), "");
}

TEST(TrimRight, TakesBlanksAtTheRightEndOnly) {
  EXPECT_EQ(TrimRight("  a b  "), "  a b");
  EXPECT_EQ(TrimRight("a\t "), "a\t");
  EXPECT_EQ(TrimRight("   "), "");
  EXPECT_EQ(TrimRight(""), "");
}

TEST(Trim, GivesAViewIntoItsArgument) {
  const std::string_view text = "  ab ";
  EXPECT_EQ(Trim(text).data(), text.data() + 2);
  EXPECT_EQ(TrimRight(text).data(), text.data());
}

TEST(Without, TakesEveryOccurrenceOut) {
  EXPECT_EQ(Without("\"PROJ\"\"", '"'), "PROJ");
  EXPECT_EQ(Without("\"\"\"", '"'), "");
  EXPECT_EQ(Without("", 'x'), "");
  EXPECT_EQ(Without("abc", 'x'), "abc");
}

TEST(ReplaceAll, GoesFromLeftToRightAndNeverOverWhatItPutIn) {
  EXPECT_EQ(ReplaceAll("aaa", "aa", "b"), "ba");
  EXPECT_EQ(ReplaceAll("a,a", "a", "aa"), "aa,aa");
  EXPECT_EQ(ReplaceAll("\"\"\"", "\"\"", "\""), "\"\"");
  EXPECT_EQ(ReplaceAll("abc", "x", "y"), "abc");
  EXPECT_EQ(ReplaceAll("abab", "ab", ""), "");
  EXPECT_EQ(ReplaceAll("", "a", "b"), "");
}

/// What a reader with a pencil does: at each place either the wanted text begins or one letter is
/// copied.
std::string ReplacedPlainly(std::string_view text, std::string_view from, std::string_view to) {
  std::string replaced;
  while (!text.empty()) {
    const bool isThere = text.starts_with(from);
    replaced.append(isThere ? to : text.substr(0, 1));
    text.remove_prefix(isThere ? from.size() : 1);
  }
  return replaced;
}

TEST(ReplaceAll, AgreesWithItsPlainTwin) {
  constexpr std::array<std::string_view, 3> letters{"\"", ",", "a"};
  RandomText random(12);
  for (int round = 0; round < 5000; ++round) {
    const std::string text = random.Joined(letters, random.Below(15));
    const std::string from = random.Joined(letters, 1 + random.Below(3));
    const std::string to = random.Joined(letters, random.Below(4));
    EXPECT_EQ(ReplaceAll(text, from, to), ReplacedPlainly(text, from, to)) << text << " " << from;
  }
}

TEST(LineBreak, IsCarriageReturnAndLineFeed) {
  EXPECT_EQ(LineBreak, "\r\n");
}

}  // namespace
}  // namespace quorvane::test
