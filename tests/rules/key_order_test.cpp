#include "rules/key_order.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "parse/file_text.h"
#include "support/random_text.h"

namespace quorvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Parts = std::vector<KeyPart>;

const Parts TwoParts{{1, false}, {2, false}};
const Parts TwoPartsOneNumeric{{1, false}, {2, true}};
const Parts ThreeParts{{1, false}, {2, false}, {3, false}};

/// The first and the last row of a run, and the parts that its rows share.
using Open = std::array<std::int32_t, 3>;

/// A group of rows, one a line.
class Rows {
 public:
  explicit Rows(const std::string& lines) : file_(ByteBuffer(lines)), table_(file_) {
    table_.AddGroup("SAMP", 1);
    for (const char* heading : {"LOCA_ID", "SAMP_TOP", "SAMP_REF"})
      table_.AddHeading(heading);
    for (std::int32_t line = 1; line <= file_.LineCount(); ++line) {
      if (table_.AddRegularRow(line, file_.Line(line)) == 0) table_.AddRow(line, {});
    }
  }

  const GroupTable& Table() const { return table_; }
  std::int32_t Count() const { return file_.LineCount(); }

 private:
  FileText file_;
  GroupTable table_;
};

/// What is left to be looked at of rows that share their first part.
std::vector<Open> OpenRuns(const std::string& lines, const Parts& parts = TwoParts) {
  const Rows rows(lines);
  KeyOrder order(rows.Table(), parts);
  order.Begin({1, 1});
  for (std::int32_t row = 2; row <= rows.Count(); ++row) {
    if (!order.Take({1, row})) order.TakeUnseen({1, row});
  }
  std::vector<Open> runs;
  for (const OpenRun& open : order.End()) {
    runs.push_back({open.rows.first, open.rows.last, static_cast<std::int32_t>(open.sharedParts)});
  }
  return runs;
}

std::string LinesOf(const std::vector<std::string>& seconds) {
  std::string lines;
  for (const std::string& second : seconds)
    lines += "\"BH1\",\"" + second + "\"\n";
  return lines;
}

/// Rows of one hole, each with a second and a third part that stand in one text with a blank
/// between.
std::string LinesOfPairs(const std::vector<std::string>& pairs) {
  std::string lines;
  for (const std::string& pair : pairs) {
    const std::size_t blank = pair.find(' ');
    lines += "\"BH1\",\"" + pair.substr(0, blank) + "\",\"" + pair.substr(blank + 1) + "\"\n";
  }
  return lines;
}

TEST(KeyOrder, GoesUpWithDepths) {
  const std::string depths = LinesOf({"", "0.50", "1.00", "9.50", "10.00", "10.50", "100.00"});
  EXPECT_THAT(OpenRuns(depths), IsEmpty());
}

TEST(KeyOrder, GoesDownWithSizes) {
  const std::string sizes = LinesOf({"63", "37.5", "20", "6.3", "5", "3.35", "1.18", "0.6", "0.425",
                                     "0.3", "0.212", "0.15", "0.063"});
  EXPECT_THAT(OpenRuns(sizes), IsEmpty());
  EXPECT_THAT(OpenRuns(sizes, TwoPartsOneNumeric), IsEmpty());
}

TEST(KeyOrder, EachPartHasItsOwnDirectionAmongTheRowsThatShareThoseBefore) {
  EXPECT_THAT(OpenRuns(LinesOfPairs({"3 1", "3 2", "2 2", "2 1", "1 5"}), ThreeParts), IsEmpty());
}

TEST(KeyOrder, ATurnLeavesTheRowsThatShareThePartsBefore) {
  EXPECT_THAT(OpenRuns(LinesOf({"1.00", "2.00", "1.50"})), ElementsAre(Open{1, 3, 1}));
  EXPECT_THAT(OpenRuns(LinesOf({"1.00", "2.00", "1.00", "3.00"})), ElementsAre(Open{1, 4, 1}));
  EXPECT_THAT(
      OpenRuns(LinesOfPairs({"1 A", "2 C", "2 B", "2 D", "3 A", "3 B", "4 B", "4 A", "4 C"}),
               ThreeParts),
      ElementsAre(Open{2, 4, 2}, Open{7, 9, 2}));
}

TEST(KeyOrder, ATurnInAnEarlierPartTakesInWhatWasLeftBefore) {
  EXPECT_THAT(OpenRuns(LinesOfPairs({"1 A", "2 C", "2 B", "2 D", "1 C", "3 A"}), ThreeParts),
              ElementsAre(Open{1, 6, 1}));
}

TEST(KeyOrder, TheSameKeyIsLeft) {
  EXPECT_THAT(OpenRuns(LinesOf({"1.00", "1.00"})), ElementsAre(Open{1, 2, 2}));
  EXPECT_THAT(OpenRuns(LinesOfPairs({"1 A", "2 A", "2 A", "3 A"}), ThreeParts),
              ElementsAre(Open{2, 3, 3}));
  EXPECT_THAT(OpenRuns(LinesOfPairs({"1 B", "1 B", "1 C", "1 A"}), ThreeParts),
              ElementsAre(Open{1, 4, 2}));
}

TEST(KeyOrder, LeavesAllRowsWhereKeysMayBeTheSameThoughTheirLinesDiffer) {
  EXPECT_THAT(OpenRuns(LinesOf({"1.00", "1.00 "})), ElementsAre(Open{1, 2, 0}));
  EXPECT_THAT(OpenRuns(LinesOf({"1.00 ", "1.01"})), ElementsAre(Open{1, 2, 0}));
  EXPECT_THAT(OpenRuns(LinesOf({"1.00", "1,5", "2.00"})), ElementsAre(Open{1, 3, 0}));
}

TEST(KeyOrder, KnowsNumbersThatAreWrittenInTwoWays) {
  for (const auto& [first, second] : std::vector<std::pair<std::string, std::string>>{
           {"1.5", "1.50"}, {"1", "1.0"}, {"01", "1"}, {"0.0", "0"}, {".5", "0.5"}}) {
    EXPECT_THAT(OpenRuns(LinesOf({first, second}), TwoPartsOneNumeric), ElementsAre(Open{1, 2, 0}));
    EXPECT_THAT(OpenRuns(LinesOf({first, second}), TwoParts), IsEmpty());
  }
}

TEST(KeyOrder, TellsOfNoNumbersThatAreNotShortAndPlain) {
  for (const char* number : {"", "x", "-1", "+3", "1e3", "1.0000000000000001"}) {
    EXPECT_THAT(OpenRuns(LinesOf({"2.00", number}), TwoPartsOneNumeric),
                ElementsAre(Open{1, 2, 0}));
  }
}

TEST(KeyOrder, TellsOfTheFirstColumnsOnly) {
  EXPECT_THAT(OpenRuns(LinesOf({"1.00", "2.00"}), {{2, false}}), ElementsAre(Open{1, 2, 0}));
}

TEST(KeyOrder, TellsOfRegularLinesOnly) {
  const std::string lines = "\"BH1\",\"1.00\"\n\"BH1\",2.00\n\"BH1\",\"3.00\"";
  EXPECT_THAT(OpenRuns(lines), ElementsAre(Open{1, 3, 0}));
  EXPECT_THAT(OpenRuns("\"BH1\",1.00\n\"BH1\",\"2.00\""), ElementsAre(Open{1, 2, 0}));
}

TEST(KeyOrder, TakesNoRowOfAnotherFirstPart) {
  const Rows rows("\"BH1\",\"1.00\"\n\"BH2\",\"2.00\"\n\"BH11\",\"3.00\"");
  KeyOrder order(rows.Table(), TwoParts);
  order.Begin({1, 1});
  EXPECT_FALSE(order.Take({1, 2}));
  EXPECT_FALSE(order.Take({1, 3}));
  EXPECT_THAT(order.End(), IsEmpty());
}

/// Rows that share their key must be left in one run, and where their run says so they must share
/// the text of all parts.
TEST(KeyOrder, LeavesAllRowsThatShareTheirKey) {
  constexpr std::array<std::string_view, 12> values{"1", "2", "3",  "10",  "1.0", "2.5",
                                                    "",  "A", "B ", "C,1", "2",   "3"};
  RandomText random(84);
  int sharedCount = 0;
  int leftOutCount = 0;
  for (int round = 0; round < 10000; ++round) {
    const std::size_t plainValues = random.OneIn(2) ? values.size() : 6;
    const Parts parts{{1, false}, {2, random.OneIn(2)}, {3, random.OneIn(2)}};
    std::string lines;
    for (std::size_t row = 2 + random.Below(8); row > 0; --row) {
      const std::string_view second = values[random.Below(plainValues)];
      const std::string_view third = values[random.Below(plainValues)];
      lines.append("\"BH1\",\"").append(second).append("\",\"").append(third).append("\"\n");
    }
    const Rows rows(lines);
    const std::vector<Open> runs = OpenRuns(lines, parts);
    std::vector<std::string> keys(static_cast<std::size_t>(rows.Count()));
    for (std::int32_t row = 1; row <= rows.Count(); ++row) {
      std::string& key = keys[static_cast<std::size_t>(row - 1)];
      MakeComparableKey(rows.Table(), {1, row}, parts, key);
      const auto holds = [row](const Open& run) { return run[0] <= row && row <= run[1]; };
      const auto own = std::find_if(runs.begin(), runs.end(), holds);
      leftOutCount += own == runs.end() ? 1 : 0;
      for (std::int32_t other = 1; other < row; ++other) {
        if (keys[static_cast<std::size_t>(other - 1)] != key) continue;
        ++sharedCount;
        ASSERT_TRUE(own != runs.end() && (*own)[0] <= other) << lines;
        if ((*own)[2] == 0 || parts[1].isNumeric || parts[2].isNumeric) continue;
        ASSERT_EQ(rows.Table().RowAt(1, row).LeadingText(3),
                  rows.Table().RowAt(1, other).LeadingText(3))
            << lines;
      }
    }
  }
  EXPECT_GT(sharedCount, 3000);
  EXPECT_GT(leftOutCount, 2000);
}

}  // namespace
}  // namespace quorvane::test
