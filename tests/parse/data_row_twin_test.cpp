// The reader of data lines beside its plain twin, and under load.

#include <algorithm>
#include <array>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "plain_reading.h"
#include "read_rows.h"
#include "support/random_text.h"

namespace quorvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto Ags3 = AgsFormat::Ags3;
constexpr auto Ags4 = AgsFormat::Ags4;

constexpr std::array<std::string_view, 14> LinePieces{"\"",   "\"",     ",",    ",",     "\",\"",
                                                      "\"\"", "\"\"\"", " ",    "a",     "BH1",
                                                      "#`~#", "!@#$,",  "%^&*", "<CONT>"};

constexpr std::array<std::string_view, 11> ValuePieces{"a",  "b\xE4", "\"\"", "\"\"",  ",",   " ",
                                                       "  ", "1.50",  "#`~#", "!@#$,", "%^&*"};

std::string RandomSoundLine(RandomText& random) {
  constexpr std::array<std::string_view, 3> marks{"<CONT>", "<cont>", "<CONT>x"};
  std::string line;
  for (std::size_t field = 1 + random.Below(5); field > 0; --field) {
    line += line.empty() ? "\"" : ",\"";
    const bool isMark = line.size() == 1 && random.OneIn(3);
    line += isMark ? std::string(random.Pick(marks)) : random.Joined(ValuePieces, random.Below(4));
    line += "\"";
  }
  return line;
}

std::string RandomLine(RandomText& random) {
  if (random.OneIn(4)) return "\"" + random.Joined(LinePieces, random.Below(12));
  std::string line = RandomSoundLine(random);
  for (std::size_t change = random.OneIn(2) ? random.Below(3) : 0; change > 0; --change) {
    const std::size_t at = random.Below(line.size());
    if (random.OneIn(2)) line.erase(at, 1);
    line.insert(std::min(at, line.size()), random.Pick(LinePieces));
  }
  return line;
}

std::vector<std::string> RandomLines(RandomText& random) {
  std::vector<std::string> lines;
  for (std::size_t count = 1 + random.Below(100); count > 0; --count) {
    lines.push_back(RandomLine(random));
  }
  return lines;
}

/// Reads lines into one group in both ways and compares rows, line numbers and findings.
void ExpectSameAsPlainly(AgsFormat format, std::size_t headingCount,
                         const std::vector<std::string>& lines) {
  ReadRows rows(format, headingCount, lines);
  PlainRows plain(format, headingCount);
  for (std::size_t line = 0; line < lines.size(); ++line) {
    plain.AddLine(static_cast<int>(line) + 1, lines[line]);
  }
  const std::size_t rowCount =
      std::min(static_cast<std::size_t>(rows.RowCount()), plain.Rows().size());
  for (std::size_t row = 0; row < rowCount; ++row) {
    const PlainRows::Row& expected = plain.Rows()[row];
    const auto number = static_cast<std::int32_t>(row) + 1;
    const std::string& line = lines[static_cast<std::size_t>(expected.line) - 1];
    ASSERT_EQ(rows.LineOf(number), expected.line) << line;
    ASSERT_EQ(rows.Row(number), expected.values) << line;
  }
  ASSERT_EQ(static_cast<std::size_t>(rows.RowCount()), plain.Rows().size());
  const std::vector<std::string> findings = rows.Findings();
  const std::size_t findingCount = std::min(findings.size(), plain.Findings().size());
  for (std::size_t finding = 0; finding < findingCount; ++finding) {
    ASSERT_EQ(findings[finding], plain.Findings()[finding]);
  }
  ASSERT_EQ(findings.size(), plain.Findings().size());
}

TEST(AddDataRow, AgreesWithItsPlainTwin) {
  for (const AgsFormat format : {Ags3, Ags4}) {
    RandomText random(131);
    for (int round = 0; round < 2000; ++round) {
      const std::size_t headingCount = 1 + random.Below(5);
      ExpectSameAsPlainly(format, headingCount, RandomLines(random));
      if (HasFatalFailure()) return;
    }
  }
}

TEST(AddDataRow, AgreesWithItsPlainTwinAboutEveryShortLine) {
  // All lines of up to seven of the characters on which reading depends.
  constexpr std::string_view letters = "\", a";
  std::vector<std::string> lines;
  for (std::size_t number = 4; number < (std::size_t{1} << 16U); ++number) {
    std::string line;
    std::size_t rest = number;
    for (; rest >= 4; rest >>= 2U) {
      line += letters[rest & 3U];
    }
    if (rest == 1) lines.push_back(line);
  }
  ASSERT_EQ(lines.size(), 4U + 16U + 64U + 256U + 1024U + 4096U + 16384U);
  for (const AgsFormat format : {Ags3, Ags4}) {
    for (std::size_t headingCount = 1; headingCount <= 4; ++headingCount) {
      ExpectSameAsPlainly(format, headingCount, lines);
      if (HasFatalFailure()) return;
    }
  }
}

TEST(AddDataRow, ContinuesARowOverAHundredThousandLines) {
  constexpr std::size_t lineCount = 100000;
  std::vector<std::string> lines(lineCount + 1, R"("<CONT>","twelve bytes","")");
  lines.front() = R"("BH1","","x")";
  ReadRows rows(Ags3, 3, lines);
  EXPECT_LT(rows.Seconds(), QuickSeconds);
  EXPECT_EQ(rows.RowCount(), 1);
  EXPECT_EQ(rows.Table().Value(1, 1, 2).size(), 12 * lineCount);
  EXPECT_EQ(rows.Table().Value(1, 1, 3), "x");
  EXPECT_THAT(rows.Findings(), IsEmpty());
}

TEST(AddDataRow, ContinuesARowOverManyLinesThatWereRewritten) {
  constexpr std::size_t lineCount = 100000;
  std::vector<std::string> lines(lineCount + 1, R"("<CONT>","5"" pipe",)");
  lines.front() = R"("BH1","","x")";
  ReadRows rows(Ags4, 3, lines);
  EXPECT_LT(rows.Seconds(), QuickSeconds);
  EXPECT_EQ(rows.RowCount(), 1);
  EXPECT_EQ(rows.Table().Value(1, 1, 2).size(), 8 * lineCount);
}

TEST(AddDataRow, ReadsARowOfAMillionFields) {
  constexpr std::size_t fieldCount = 1000000;
  std::string line = "\"first\"";
  for (std::size_t field = 2; field < fieldCount; ++field) {
    line += ",\"v\"";
  }
  line += ",\"last\"";
  for (const AgsFormat format : {Ags3, Ags4}) {
    ReadRows few(format, 3, {line});
    EXPECT_THAT(few.Row(1), ElementsAre("first", "v", "v"));
    EXPECT_THAT(
        few.Findings(),
        ElementsAre("ERROR: Line 1 - does not have the same number of fields as the number of "
                    "headers "));
    ReadRows all(format, fieldCount, {line});
    EXPECT_EQ(all.Table().Value(1, 1, static_cast<int>(fieldCount)), "last");
    EXPECT_THAT(all.Findings(), IsEmpty());
    EXPECT_LT(few.Seconds() + all.Seconds(), QuickSeconds);
  }
}

TEST(AddDataRow, ReadsARowOfAMillionUnsoundFields) {
  std::string line = "first";
  for (std::size_t field = 2; field <= 1000000; ++field) {
    line += ",\"\"\"\"";
  }
  const ReadRows rows(Ags4, 1000000, {line});
  EXPECT_EQ(rows.RowCount(), 1);
  EXPECT_LT(rows.Seconds(), QuickSeconds);
}

TEST(DataRows, HaveTheValuesThatSplitFieldsGives) {
  constexpr std::size_t headingCount = 8;
  RandomText random(17);
  for (int round = 0; round < 20000; ++round) {
    const std::string line = "\"DATA\"," + RandomLine(random);
    std::vector<std::string> values = SplitFields(line);
    values.resize(headingCount);
    ASSERT_EQ(ReadRows(Ags4, headingCount, {line}).Row(1), values) << line;
  }
}

}  // namespace
}  // namespace quorvane::test
