#include "parse/file_text.h"

#include <array>
#include <type_traits>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "parse/row_label.h"
#include "support/random_text.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

using ::testing::ElementsAre;

template <typename File>
concept GivesWhole = requires(File&& file) {
  std::forward<File>(file).Whole();
};

template <typename File>
concept GivesLine = requires(File&& file) {
  std::forward<File>(file).Line(1);
};

// A view into a file that ends with the statement must not compile.
static_assert(GivesWhole<FileText&> && GivesLine<FileText&>);
static_assert(GivesWhole<const FileText&> && GivesLine<const FileText&>);
static_assert(!GivesWhole<FileText> && !GivesLine<FileText>);
static_assert(!GivesWhole<FileText&&> && !GivesLine<FileText&&>);
static_assert(!GivesWhole<const FileText> && !GivesLine<const FileText>);
static_assert(!std::is_copy_constructible_v<FileText> && !std::is_copy_assignable_v<FileText>);
static_assert(!std::is_constructible_v<FileText, const ByteBuffer&>);

FileText FileOf(std::string_view bytes) {
  return FileText(ByteBuffer(bytes));
}

std::vector<std::string> LinesOf(const FileText& file) {
  std::vector<std::string> lines;
  for (std::int32_t number = 1; number <= file.LineCount(); ++number) {
    lines.emplace_back(file.Line(number));
  }
  return lines;
}

std::vector<std::string> LinesOf(std::string_view bytes) {
  return LinesOf(FileOf(bytes));
}

TEST(FileText, ReadsAllKindsOfLineEndsTheSame) {
  EXPECT_THAT(LinesOf("a\r\n\r\nb\r\n"), ElementsAre("a", "", "b"));
  EXPECT_THAT(LinesOf("a\n\nb\n"), ElementsAre("a", "", "b"));
  EXPECT_THAT(LinesOf("a\r\rb\r"), ElementsAre("a", "", "b"));
}

TEST(FileText, LeavesLoneCharactersInALineWherePairsEndLines) {
  EXPECT_THAT(LinesOf("a\rb\r\nc\nd\r\n"), ElementsAre("a\rb", "c\nd"));
  EXPECT_THAT(LinesOf("a\r\r\nb\r\n\nc"), ElementsAre("a\r", "b", "\nc"));
}

TEST(FileText, APairAtTheVeryEndDecidesToo) {
  EXPECT_THAT(LinesOf("a\rb\nc\r\n"), ElementsAre("a\rb\nc"));
}

TEST(FileText, LeavesLineFeedsInALineWhereCarriageReturnsEndLines) {
  EXPECT_THAT(LinesOf("a\rb\nc\rd"), ElementsAre("a", "b\nc", "d"));
  EXPECT_THAT(LinesOf("a\n\rb"), ElementsAre("a\n", "b"));
}

TEST(FileText, DropsLineEndsAtItsEndAndNothingElse) {
  EXPECT_THAT(LinesOf("\r\n\r\na\r\n \r\n\r\n\r\n"), ElementsAre("", "", "a", " "));
  EXPECT_THAT(LinesOf("a \t\n\n"), ElementsAre("a \t"));
}

TEST(FileText, WithoutTextIsOneEmptyLine) {
  EXPECT_THAT(LinesOf(""), ElementsAre(""));
  EXPECT_THAT(LinesOf("\r\n\r\n"), ElementsAre(""));
  EXPECT_EQ(FileText().LineCount(), 0);
}

TEST(FileText, LeavesOutAByteOrderMarkAtItsStart) {
  const FileText file = FileOf(
      "\xEF\xBB\xBF"
      "a\r\nb");
  EXPECT_TRUE(file.HadByteOrderMark());
  EXPECT_THAT(LinesOf(file), ElementsAre("a", "b"));
  EXPECT_EQ(file.Whole(), "a\r\nb");
}

TEST(FileText, LeavesOutOneByteOrderMarkOnly) {
  const FileText file = FileOf(
      "\xEF\xBB\xBF\xEF\xBB\xBF"
      "a");
  EXPECT_THAT(LinesOf(file), ElementsAre("\xEF\xBB\xBF"
                                         "a"));
}

TEST(FileText, LooksForAByteOrderMarkAtItsStartOnly) {
  EXPECT_FALSE(FileOf("a\xEF\xBB\xBF").HadByteOrderMark());
  EXPECT_FALSE(FileOf("\xEF\xBB").HadByteOrderMark());
  EXPECT_FALSE(FileOf("").HadByteOrderMark());
  EXPECT_THAT(LinesOf("\n\xEF\xBB\xBF"), ElementsAre("", "\xEF\xBB\xBF"));
  EXPECT_THAT(LinesOf("\xEF\xBB\xBF"), ElementsAre(""));
}

TEST(FileText, NulIsACharacterLikeAnyOther) {
  EXPECT_THAT(LinesOf(std::string_view("a\0b\nc\0", 6)),
              ElementsAre(std::string("a\0b", 3), std::string("c\0", 2)));
}

TEST(FileText, LinesAreViewsIntoItsText) {
  const FileText file = FileOf("ab\r\ncd");
  EXPECT_EQ(file.Line(2).data(), file.Whole().data() + 4);
}

TEST(FileText, KeepsItsViewsWhenItMoves) {
  FileText file = FileOf("ab\r\ncd\r\nef");
  file.Rewrite(3, "a rewritten line that is too long for a short text");
  const std::string_view second = file.Line(2);
  const std::string_view third = file.Line(3);
  const FileText moved = std::move(file);
  EXPECT_EQ(moved.Line(2).data(), second.data());
  EXPECT_EQ(moved.Line(3).data(), third.data());
  EXPECT_EQ(moved.Whole(), "ab\r\ncd\r\nef");
}

/// The lines as the steps of reading a file give them: line ends are made alike, those at the end
/// go, the rest is split.
std::vector<std::string> LinesPlainly(std::string text) {
  if (text.starts_with("\xEF\xBB\xBF")) text.erase(0, 3);
  if (text.find("\r\n") == std::string::npos) {
    const bool hasReturn = text.find('\r') != std::string::npos;
    text = ReplaceAll(text, hasReturn ? "\r" : "\n", "\r\n");
  }
  while (text.ends_with('\r') || text.ends_with('\n'))
    text.pop_back();
  std::vector<std::string> lines;
  for (std::size_t end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n")) {
    lines.push_back(text.substr(0, end));
    text.erase(0, end + 2);
  }
  lines.push_back(text);
  return lines;
}

TEST(FileText, AgreesWithItsPlainTwin) {
  constexpr std::array<std::string_view, 7> all{"\r", "\n", "\r\n", "a", "b", "\xEF\xBB\xBF", " "};
  constexpr std::array<std::string_view, 3> unixOnly{"\n", "a", "b"};
  constexpr std::array<std::string_view, 4> noPairs{"\r", "\n\r", "a", "b"};
  RandomText random(81);
  for (int round = 0; round < 10000; ++round) {
    for (const std::span<const std::string_view> pieces :
         {std::span<const std::string_view>(all), std::span<const std::string_view>(unixOnly),
          std::span<const std::string_view>(noPairs)}) {
      const std::string text = random.Joined(pieces, random.Below(12));
      ASSERT_EQ(LinesOf(text), LinesPlainly(text)) << ::testing::PrintToString(text);
    }
  }
}

TEST(DropPrefix, CutsTheStartOfALine) {
  FileText file = FileOf("\"DATA\",\"a\"\r\n\"DATA\"\r\nxy");
  file.DropPrefix(1, 7);
  file.DropPrefix(2, 7);
  file.DropPrefix(3, 0);
  EXPECT_THAT(LinesOf(file), ElementsAre("\"a\"", "", "xy"));
  EXPECT_EQ(file.Whole(), "\"DATA\",\"a\"\r\n\"DATA\"\r\nxy");
}

TEST(DropPrefix, CutsARewrittenLineToo) {
  FileText file = FileOf("a\r\nb");
  file.Rewrite(1, "abcdef");
  file.DropPrefix(1, 2);
  EXPECT_EQ(file.Line(1), "cdef");
  file.DropPrefix(1, 99);
  EXPECT_EQ(file.Line(1), "");
  file.DropPrefix(1, 1);
  EXPECT_EQ(file.Line(1), "");
}

TEST(FileText, KnowsLinesWithTheLabelOfADataRow) {
  const FileText file =
      FileOf("\"DATA\",\"a\"\r\n\"DATA\"\r\n\"data\",\"a\"\r\n \"DATA\",\r\n\"DATA\",");
  const std::vector<bool> labelled{file.HasDataLabel(1), file.HasDataLabel(2), file.HasDataLabel(3),
                                   file.HasDataLabel(4), file.HasDataLabel(5)};
  EXPECT_EQ(labelled, (std::vector<bool>{true, false, false, false, true}));
}

TEST(FileText, DropsTheLabelOfADataRow) {
  FileText file = FileOf("\"DATA\",\"a\"\r\n\"DATA\",\r\n\"DATA\",\"**A\"");
  for (std::int32_t number = 1; number <= 3; ++number) {
    file.DropDataLabel(number);
    EXPECT_FALSE(file.HasDataLabel(number));
  }
  EXPECT_THAT(LinesOf(file), ElementsAre("\"a\"", "", "\"**A\""));
  EXPECT_TRUE(file.IsPlain(1));
  EXPECT_FALSE(file.IsPlain(2));
  EXPECT_FALSE(file.IsPlain(3));
}

TEST(FileText, TakesNoLineForPlainThatWasChangedOtherwise) {
  FileText file = FileOf("\"DATA\",\"a\"\r\n\"b\"\r\n\"c\"\r\n\"d\"");
  file.DropPrefix(1, 7);
  file.Rewrite(2, "\"**A\"");
  file.Clear(3);
  for (std::int32_t number = 1; number <= 3; ++number) {
    EXPECT_FALSE(file.HasDataLabel(number));
    EXPECT_FALSE(file.IsPlain(number));
  }
  EXPECT_TRUE(file.IsPlain(4));
}

TEST(FileText, PlainLinesBeginNeitherGroupsNorUnitsNorTypes) {
  constexpr std::array<std::string_view, 12> pieces{
      "\"DATA\",", "\"", "*", "**", "\"**", "\"UNIT\"", "\"type\"", "U", "t", "BH1", ",", " "};
  RandomText random(82);
  int plainCount = 0;
  for (int round = 0; round < 50000; ++round) {
    FileText file = FileOf(random.Joined(pieces, random.Below(5)));
    if (!file.IsPlain(1)) continue;
    ++plainCount;
    const std::string line(file.Line(1));
    EXPECT_FALSE(IsGroupLine(line) || StartsWithIgnoringCase(line, "\"UNIT\"") ||
                 StartsWithIgnoringCase(line, "\"TYPE\""))
        << line;
    if (file.HasDataLabel(1)) file.DropDataLabel(1);
    EXPECT_FALSE(IsGroupLine(file.Line(1))) << line;
  }
  EXPECT_GT(plainCount, 1000);
  EXPECT_TRUE(FileOf("\"BH1\",\"1.20\"").IsPlain(1));
  EXPECT_TRUE(FileOf("\"DATA\",\"TP1\",\"1.20\"").IsPlain(1));
}

TEST(OriginalLines, AreThoseOfTheFileWhateverTheyWereRewrittenTo) {
  FileText file = FileOf("\xEF\xBB\xBFone\r\ntwo\nmore\r\n\r\nfour\r\n");
  file.Rewrite(1, "other");
  file.DropPrefix(2, 2);
  file.Clear(4);
  OriginalLines lines(file);
  EXPECT_EQ(lines.Line(1), "one");
  EXPECT_EQ(lines.Line(2), "two\nmore");
  EXPECT_EQ(lines.Line(2), "two\nmore");
  EXPECT_EQ(lines.Line(4), "four");
  EXPECT_EQ(file.Bytes().substr(0, 6), "\xEF\xBB\xBFone");
}

TEST(OriginalLines, EndAsTheFilesLinesDo) {
  const FileText file = FileOf("one\ntwo\nthree\r\n");
  OriginalLines lines(file);
  ASSERT_EQ(file.LineCount(), 1);
  EXPECT_EQ(lines.Line(1), file.Line(1));
}

TEST(Rewrite, ReplacesOneLineOnly) {
  FileText file = FileOf("a\r\nb\r\nc");
  file.Rewrite(2, "**PROJ");
  EXPECT_THAT(LinesOf(file), ElementsAre("a", "**PROJ", "c"));
  file.Rewrite(2, "x");
  file.Rewrite(1, "");
  EXPECT_THAT(LinesOf(file), ElementsAre("", "x", "c"));
  EXPECT_EQ(file.Whole(), "a\r\nb\r\nc");
  EXPECT_EQ(file.LineCount(), 3);
}

TEST(Rewrite, LeavesViewsOfOtherRewrittenLinesValid) {
  std::string text;
  for (int line = 0; line < 2000; ++line)
    text += "x\n";
  FileText file = FileOf(text);
  file.Rewrite(1, "s1");
  const std::string_view first = file.Line(1);
  for (std::int32_t number = 2; number <= 2000; ++number) {
    file.Rewrite(number, "s" + std::to_string(number));
  }
  EXPECT_EQ(first, "s1");
  EXPECT_EQ(first.data(), file.Line(1).data());
  EXPECT_EQ(file.Line(2000), "s2000");
}

TEST(Clear, EmptiesALine) {
  FileText file = FileOf("a\r\nb\r\nc");
  file.Rewrite(2, "**PROJ");
  file.Clear(1);
  file.Clear(2);
  EXPECT_THAT(LinesOf(file), ElementsAre("", "", "c"));
  file.DropPrefix(1, 5);
  EXPECT_EQ(file.Line(1), "");
  file.Rewrite(1, "again");
  EXPECT_EQ(file.Line(1), "again");
}

}  // namespace
}  // namespace quorvane::test
