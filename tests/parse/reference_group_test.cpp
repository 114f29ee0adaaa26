#include "parse/reference_group.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "parse/file_text.h"
#include "support/fake_services.h"

namespace quorvane::test {
namespace {

using Rows = std::vector<std::vector<std::string_view>>;
using Names = std::vector<std::string>;

/// A table of one group with two columns, whose rows stand on the lines from 11 on.
class ReferenceGroup : public ::testing::Test {
 protected:
  void Fill(const Rows& rows) {
    table_.AddGroup("UNIT", 8);
    table_.AddHeading("UNIT_UNIT");
    table_.AddHeading("UNIT_DESC");
    std::int32_t line = 10;
    for (const std::vector<std::string_view>& row : rows)
      table_.AddRow(++line, row);
  }

  FileText file_;
  GroupTable table_{file_};
};

TEST_F(ReferenceGroup, VisitsTheValuesOfAColumnThatAreNotEmpty) {
  Fill({{"m", "metre"}, {"", "nothing"}, {" ", ""}, {}, {"%", "percentage"}});
  std::vector<std::pair<std::int32_t, std::string>> visited;
  ForEachValue(table_, 1, 1,
               [&](std::int32_t row, std::string_view value) { visited.emplace_back(row, value); });
  EXPECT_EQ(visited,
            (std::vector<std::pair<std::int32_t, std::string>>{{1, "m"}, {3, " "}, {5, "%"}}));
}

TEST_F(ReferenceGroup, VisitsEveryRowOnce) {
  for (const int rowCount : {0, 1, 11, 12, 13, 14, 40}) {
    GroupTable table(file_);
    table.AddGroup("UNIT", 1);
    table.AddHeading("UNIT_UNIT");
    std::vector<std::int32_t> expected;
    for (std::int32_t row = 1; row <= rowCount; ++row) {
      table.AddRow(row, {"m"});
      expected.push_back(row);
    }
    std::vector<std::int32_t> visited;
    ForEachValue(table, 1, 1, [&](std::int32_t row, std::string_view) { visited.push_back(row); });
    EXPECT_EQ(visited, expected);
  }
}

TEST_F(ReferenceGroup, ReadsNamesAndThoseWithoutDescription) {
  Fill({{"m", "metre"}, {"", ""}, {"kPa", ""}, {"m", ""}, {"%"}});
  const ReferenceNames read = ReadReferenceNames(table_, 1, 1, 2);
  EXPECT_EQ(read.names.Unused(), (Names{"m", "kPa", "m", "%"}));
  EXPECT_EQ(read.withoutDescription, (Names{"kPa", "m", "%"}));
}

TEST_F(ReferenceGroup, MissesNoDescriptionWithoutTheirColumn) {
  Fill({{"m", "metre"}, {"kPa", ""}});
  const ReferenceNames read = ReadReferenceNames(table_, 1, 1, 0);
  EXPECT_EQ(read.names.Unused(), (Names{"m", "kPa"}));
  EXPECT_EQ(read.withoutDescription, Names{});
}

class UnusedNames : public ::testing::Test {
 protected:
  /// The finding that a list's unused names make; empty when there is none.
  std::string ReportOf(const ReferenceList& names) {
    static constexpr MessageDefinition definition{.id = "test.unused",
                                                  .ags3 = {Severity::Fyi, "", "Not used:\r\n{0}"},
                                                  .ags4 = {},
                                                  .meaning = "",
                                                  .remedy = ""};
    RecordingProgressBox progressBox;
    RunLog runLog(progressBox);
    MessageLog log(runLog, false);
    ReportUnusedNames(log, names, definition, ", ", 7, {});
    log.CloseCheckSection("Test");
    if (log.ClosedCount() == 0) return "";
    const Finding finding = log.ClosedFinding(0);
    return FormatMessage(finding.line, finding.severity, finding.text);
  }
};

TEST_F(UnusedNames, AreOneFindingInListOrder) {
  ReferenceList names;
  for (const char* name : {"c", "a", "b"})
    names.Add(name);
  EXPECT_EQ(ReportOf(names), "FYI: Line 7 - Not used:\r\nc, a, b");
  names.MarkUsed("a");
  EXPECT_EQ(ReportOf(names), "FYI: Line 7 - Not used:\r\nc, b");
}

TEST_F(UnusedNames, AreNotReportedWhenThereAreNone) {
  ReferenceList names;
  EXPECT_EQ(ReportOf(names), "");
  names.Add("a");
  names.MarkUsed("a");
  EXPECT_EQ(ReportOf(names), "");
}

}  // namespace
}  // namespace quorvane::test
