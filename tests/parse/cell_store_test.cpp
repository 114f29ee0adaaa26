#include "parse/cell_store.h"

#include <algorithm>
#include <array>
#include <type_traits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "parse/file_text.h"
#include "support/random_text.h"

namespace quorvane::test {
namespace {

using ::testing::ElementsAre;

static_assert(!std::is_copy_constructible_v<CellStore> && !std::is_copy_assignable_v<CellStore>);

constexpr std::size_t NoLimit = 1000000;

FileText FileOf(std::string_view bytes) {
  return FileText(ByteBuffer(bytes));
}

std::vector<std::string> ValuesOf(const CellStore& store, std::uint32_t row) {
  std::vector<std::string> values;
  for (std::size_t column = 1; column <= store.CellCount(row); ++column) {
    values.emplace_back(store.Value(row, column));
    const std::string_view inColumn = store.ColumnFrom(0, column).Value(row);
    EXPECT_EQ(inColumn.data(), store.Value(row, column).data());
    EXPECT_EQ(inColumn.size(), store.Value(row, column).size());
  }
  EXPECT_EQ(store.ColumnFrom(row, store.CellCount(row) + 1).Value(0), "");
  return values;
}

TEST(CellStore, KeepsTheValuesOfRegularLines) {
  const FileText file = FileOf("\"BH1\",\"1.00\",\"\"\n\"\"\n\"BH2\"");
  CellStore store(file.Whole());
  EXPECT_EQ(store.AddRegularRow(11, file.Line(1), NoLimit), 3U);
  EXPECT_EQ(store.AddRegularRow(12, file.Line(2), NoLimit), 1U);
  EXPECT_EQ(store.AddRegularRow(13, file.Line(3), NoLimit), 1U);
  EXPECT_EQ(store.RowCount(), 3U);
  EXPECT_THAT(ValuesOf(store, 0), ElementsAre("BH1", "1.00", ""));
  EXPECT_THAT(ValuesOf(store, 1), ElementsAre(""));
  EXPECT_THAT(ValuesOf(store, 2), ElementsAre("BH2"));
  EXPECT_EQ(store.LineNumber(0), 11);
  EXPECT_EQ(store.LineNumber(2), 13);
}

TEST(CellStore, ValuesOfRegularLinesAreViewsIntoTheFile) {
  const FileText file = FileOf("\"BH1\",\"1.00\"");
  CellStore store(file.Whole());
  store.AddRegularRow(1, file.Line(1), NoLimit);
  EXPECT_EQ(store.Value(0, 2).data(), file.Whole().data() + 7);
  EXPECT_TRUE(store.LiesInFile(store.Value(0, 2)));
}

TEST(CellStore, FetchesNothingBehindItsLastRow) {
  const FileText file = FileOf("\"BH1\"");
  CellStore store(file.Whole());
  store.FetchAhead(0);
  store.AddRegularRow(1, file.Line(1), NoLimit);
  store.FetchAhead(0);
  store.FetchAhead(1);
  store.FetchAhead(0xFFFFFFFF);
}

TEST(CellStore, LeadingTextHoldsTheFirstValuesAsTheyStandInTheLine) {
  const FileText file = FileOf("\"BH1\",\"\",\"1.00\",\"x\"\nother");
  CellStore store(file.Whole());
  store.AddRegularRow(1, file.Line(1), 3);
  const CellStore::Row row = store.RowAt(0);
  EXPECT_EQ(row.LeadingText(1), "BH1\"");
  EXPECT_EQ(row.LeadingText(2), "BH1\",\"\"");
  EXPECT_EQ(row.LeadingText(3), "BH1\",\"\",\"1.00\"");
  EXPECT_EQ(row.LeadingText(4), "");  // a cell that is not kept
  EXPECT_EQ(row.LeadingText(0), "");
  EXPECT_EQ(row.LeadingCount(3, 0), 0U);
  EXPECT_EQ(row.LeadingCount(3, 3), 0U);
  EXPECT_EQ(row.LeadingCount(3, 4), 1U);
  EXPECT_EQ(row.LeadingCount(3, 6), 1U);
  EXPECT_EQ(row.LeadingCount(3, 7), 2U);
  EXPECT_EQ(row.LeadingCount(2, 14), 2U);
  EXPECT_EQ(row.LeadingCount(3, 14), 3U);
}

/// The leading text of two values of a line that are given by their places in it.
std::string LeadingTextOf(std::string_view line, std::size_t firstStart, std::size_t firstLength,
                          std::size_t secondStart, std::size_t secondLength) {
  const FileText file = FileOf(line);
  CellStore store(file.Whole());
  store.AddRow(1, {file.Whole().substr(firstStart, firstLength),
                   file.Whole().substr(secondStart, secondLength)});
  return std::string(store.RowAt(0).LeadingText(2));
}

TEST(CellStore, OtherLinesHaveALeadingTextAsFarAsTheyStandLikeRegularOnes) {
  EXPECT_EQ(LeadingTextOf("\"BH1\",\"1.0\",x", 1, 3, 7, 3), "BH1\",\"1.0\"");
  EXPECT_EQ(LeadingTextOf("\"BH1\",\"\",x", 1, 3, 7, 0), "BH1\",\"\"");
  EXPECT_EQ(LeadingTextOf("\"BH1\",1.0,x", 1, 3, 6, 3), "");
  EXPECT_EQ(LeadingTextOf("\"BH1\",\"1.0,x", 1, 3, 7, 3), "");
  EXPECT_EQ(LeadingTextOf("\"BH1\",\" 1.0\",x", 1, 3, 7, 4), "");
  EXPECT_EQ(LeadingTextOf("\"BH1\",\" 1.0\",x", 1, 3, 8, 3), "");
  EXPECT_EQ(LeadingTextOf("\"BH1\",\"1\"0\",x", 1, 3, 7, 3), "");
  EXPECT_EQ(LeadingTextOf("\"BH1\"\"1.0\",x", 1, 3, 6, 3), "");
}

TEST(CellStore, RowsOfOtherLinesHaveNoLeadingText) {
  const FileText file = FileOf("BH1,1.00\nother");
  CellStore store(file.Whole());
  const std::string_view line = file.Line(1);
  store.AddRow(1, {line.substr(0, 3), line.substr(4)});
  store.AddRow(2, {"elsewhere", "1.00"});
  EXPECT_EQ(store.RowAt(0).LeadingText(1), "");
  EXPECT_EQ(store.RowAt(1).LeadingText(1), "");
}

TEST(CellStore, KeepsAsManyCellsAsAreWanted) {
  const FileText file = FileOf("\"a\",\"b\",\"c\",\"d\"\n\"e\"");
  CellStore store(file.Whole());
  EXPECT_EQ(store.AddRegularRow(1, file.Line(1), 2), 4U);
  EXPECT_EQ(store.AddRegularRow(2, file.Line(2), 2), 1U);
  EXPECT_THAT(ValuesOf(store, 0), ElementsAre("a", "b"));
  EXPECT_EQ(store.Value(0, 3), "");
  EXPECT_THAT(ValuesOf(store, 1), ElementsAre("e"));
  EXPECT_EQ(store.Value(1, 2), "");
}

TEST(CellStore, AddsNothingForALineOfAnotherForm) {
  const FileText file = FileOf("\"a\",b\n\"c\",\"d\"");
  CellStore store(file.Whole());
  EXPECT_EQ(store.AddRegularRow(1, file.Line(1), NoLimit), 0U);
  EXPECT_EQ(store.RowCount(), 0U);
  EXPECT_EQ(store.AddRegularRow(2, file.Line(2), NoLimit), 2U);
  EXPECT_THAT(ValuesOf(store, 0), ElementsAre("c", "d"));
}

TEST(CellStore, TakesAnyValuesInsideAndOutsideTheFile) {
  const FileText file = FileOf("a, b");
  CellStore store(file.Whole());
  {
    const std::string outside = "a text from elsewhere";
    store.AddRow(5, {file.Line(1).substr(3), outside, "", {}});
  }
  EXPECT_THAT(ValuesOf(store, 0), ElementsAre("b", "a text from elsewhere", "", ""));
  EXPECT_EQ(store.Value(0, 1).data(), file.Whole().data() + 3);
  EXPECT_FALSE(store.LiesInFile(store.Value(0, 2)));
  EXPECT_EQ(store.Value(0, 5), "");
  EXPECT_EQ(store.LineNumber(0), 5);
}

TEST(CellStore, ARowMayBeEmpty) {
  const FileText file = FileOf("a");
  CellStore store(file.Whole());
  store.AddRow(5, {});
  EXPECT_EQ(store.CellCount(0), 0U);
  EXPECT_EQ(store.Value(0, 1), "");
}

TEST(CellStore, TakesTheLastRowAway) {
  const FileText file = FileOf("\"a\",\"b\"\n\"c\"");
  CellStore store(file.Whole());
  store.AddRegularRow(1, file.Line(1), NoLimit);
  store.AddRegularRow(2, file.Line(2), NoLimit);
  store.RemoveLastRow();
  store.AddRow(2, {"x", "y"});
  store.RemoveLastRow();
  store.AddRow(3, {"z"});
  EXPECT_EQ(store.RowCount(), 2U);
  EXPECT_THAT(ValuesOf(store, 0), ElementsAre("a", "b"));
  EXPECT_THAT(ValuesOf(store, 1), ElementsAre("z"));
}

TEST(CellStore, CopiedValuesOfARowTakenAwayStayReadable) {
  const FileText file = FileOf("a");
  CellStore store(file.Whole());
  store.AddRow(1, {"outside"});
  const std::string_view value = store.Value(0, 1);
  store.RemoveLastRow();
  EXPECT_EQ(value, "outside");
}

TEST(CellStore, KnowsWhatLiesInTheFile) {
  const FileText file = FileOf("abc");
  const CellStore store(file.Whole());
  EXPECT_TRUE(store.LiesInFile(file.Line(1)));
  EXPECT_TRUE(store.LiesInFile(file.Line(1).substr(2)));
  EXPECT_FALSE(store.LiesInFile(file.Line(1).substr(3)));
  EXPECT_FALSE(store.LiesInFile(""));
  EXPECT_FALSE(store.LiesInFile({}));
  const std::string elsewhere = "abc";
  EXPECT_FALSE(store.LiesInFile(elsewhere));
}

TEST(CellStore, KeepsItsRowsWhenItMoves) {
  const FileText file = FileOf("\"a\",\"b\"");
  CellStore store(file.Whole());
  store.AddRegularRow(1, file.Line(1), NoLimit);
  store.AddRow(2, {"outside, and longer than a short text"});
  const CellStore moved = std::move(store);
  EXPECT_THAT(ValuesOf(moved, 0), ElementsAre("a", "b"));
  EXPECT_THAT(ValuesOf(moved, 1), ElementsAre("outside, and longer than a short text"));
}

TEST(CellStore, KeepsTheLongestRegularLineAndNoLongerOne) {
  const std::string longest = "\"" + std::string(LongestRegularLine - 6, 'x') + "\",\"\"";
  const std::string longer = "\"" + std::string(LongestRegularLine - 5, 'x') + "\",\"\"";
  ASSERT_EQ(longest.size(), LongestRegularLine - 1);
  const FileText file = FileOf(longest + "x\"\n" + longest + "\n" + longer + "\n" + longer + "\"");
  CellStore store(file.Whole());
  EXPECT_EQ(store.AddRegularRow(2, file.Line(2), NoLimit), 2U);
  EXPECT_EQ(store.AddRegularRow(3, file.Line(3), NoLimit), 2U);
  EXPECT_EQ(store.AddRegularRow(4, file.Line(4), NoLimit), 0U);
  EXPECT_EQ(store.Value(0, 1).size(), LongestRegularLine - 6);
  EXPECT_EQ(store.Value(1, 1).size(), LongestRegularLine - 5);
  EXPECT_EQ(store.Value(1, 2), "");
}

/// A row as it was given to the store.
struct GivenRow {
  std::int32_t line;
  std::vector<std::string> values;
};

void ExpectRows(const CellStore& store, const std::vector<GivenRow>& given) {
  ASSERT_EQ(store.RowCount(), given.size());
  for (std::uint32_t row = 0; row < store.RowCount(); ++row) {
    ASSERT_EQ(ValuesOf(store, row), given[row].values) << "row " << row;
    ASSERT_EQ(store.LineNumber(row), given[row].line) << "row " << row;
  }
}

TEST(CellStore, KeepsManyRowsOfAllSizes) {
  // More offsets than a chunk of the store holds, so that rows come to lie around its borders.
  constexpr std::array<std::string_view, 4> values{"", "a", "10.00", "some text"};
  RandomText random(111);
  std::string text;
  std::vector<GivenRow> given;
  for (std::int32_t line = 1; line <= 60000; ++line) {
    std::vector<std::string> row;
    for (std::size_t field = 1 + random.Below(random.OneIn(500) ? 3000 : 30); field > 0; --field) {
      row.emplace_back(random.Pick(values));
      text += (row.size() == 1 ? "\"" : ",\"") + row.back() + "\"";
    }
    text += "\n";
    given.push_back({line, row});
  }
  const FileText file = FileOf(text);
  CellStore store(file.Whole());
  for (GivenRow& row : given) {
    if (random.OneIn(20)) {
      store.AddRow(row.line, {row.values.begin(), row.values.end()});
      continue;
    }
    ASSERT_EQ(store.AddRegularRow(row.line, file.Line(row.line), NoLimit), row.values.size());
    if (!random.OneIn(50)) continue;
    store.RemoveLastRow();
    row.values.emplace_back("more");
    store.AddRow(row.line, {row.values.begin(), row.values.end()});
  }
  ExpectRows(store, given);
}

/// A part of the file, anywhere in it or close to a place; or a text from elsewhere, or nothing.
std::string_view AnyValue(RandomText& random, std::string_view file, std::size_t near) {
  static constexpr std::string_view outside = "a text from elsewhere";
  if (random.OneIn(6)) return {};
  if (random.OneIn(20)) return outside.substr(random.Below(outside.size()));
  const std::size_t start = random.OneIn(8) ? random.Below(file.size()) : near + random.Below(300);
  return file.substr(std::min(start, file.size()), random.OneIn(30) ? 70000 : random.Below(20));
}

TEST(CellStore, RowsOfAnyValuesReadAsTheyWereGiven) {
  RandomText random(61);
  std::string bytes;
  while (bytes.size() < 300000)
    bytes += static_cast<char>('a' + random.Below(26));
  const FileText file = FileOf(bytes);
  CellStore store(file.Whole());
  std::vector<std::vector<std::string>> expected;
  for (int row = 0; row < 3000; ++row) {
    const std::size_t near = random.Below(bytes.size());
    std::vector<std::string_view> values(random.Below(12));
    for (std::string_view& value : values)
      value = AnyValue(random, file.Whole(), near);
    store.AddRow(row, values);
    expected.emplace_back(values.begin(), values.end());
    if (!random.OneIn(5)) continue;
    store.RemoveLastRow();
    expected.pop_back();
  }
  ASSERT_EQ(store.RowCount(), expected.size());
  for (std::uint32_t row = 0; row < store.RowCount(); ++row) {
    ASSERT_EQ(ValuesOf(store, row), expected[row]) << row;
    EXPECT_EQ(store.Value(row, expected[row].size() + 1), "");
  }
}

TEST(CellStore, KeepsTheCellsOfALineThatIsAsLongAsOffsetsReach) {
  for (std::size_t length = LongestRegularLine - 6; length < LongestRegularLine + 6; ++length) {
    const FileText file = FileOf("ab" + std::string(length, 'x') + "yz");
    CellStore store(file.Whole());
    store.AddRow(1, {file.Line(1).substr(2, 1), file.Line(1).substr(length, 4)});
    EXPECT_THAT(ValuesOf(store, 0), ElementsAre("x", "xxyz"));
    EXPECT_EQ(store.Value(0, 2).data(), file.Whole().data() + length);
  }
}

}  // namespace
}  // namespace quorvane::test
