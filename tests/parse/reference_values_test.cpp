#include "parse/reference_values.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/recorded_log.h"

namespace quorvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A table with one group of three headings.
struct AbbreviationTable {
  AbbreviationTable() {
    table.AddGroup("ABBR", 1);
    for (const char* heading : {"ABBR_HDNG", "ABBR_CODE", "?ABBR_OWN"}) {
      table.AddHeading(heading);
    }
  }

  FileText file;
  GroupTable table{file};
};

TEST(RequireHeading, GivesTheColumn) {
  const AbbreviationTable filled;
  RecordedLog recorded;
  EXPECT_EQ(RequireHeading(filled.table, recorded.Log(), 1, "ABBR_CODE"), 2);
  EXPECT_EQ(RequireHeading(filled.table, recorded.Log(), 1, "abbr_own"), 3);
  EXPECT_THAT(recorded.Findings(), IsEmpty());
}

TEST(RequireHeading, ReportsAHeadingThatIsNotThere) {
  for (const AgsFormat format : {AgsFormat::Ags3, AgsFormat::Ags4}) {
    const AbbreviationTable filled;
    RecordedLog recorded(format);
    EXPECT_EQ(RequireHeading(filled.table, recorded.Log(), 1, "ABBR_DESC"), 0);
    EXPECT_THAT(recorded.Findings(),
                ElementsAre("WARNING: No 'ABBR_DESC' heading found in the ABBR group"));
    EXPECT_EQ(recorded.Places().front().group, 1);
  }
}

TEST(RequireHeading, NamesTheGroupByTheHeadingsPrefix) {
  const AbbreviationTable filled;
  RecordedLog recorded;
  RequireHeading(filled.table, recorded.Log(), 1, "UNIT_DESC");
  RequireHeading(filled.table, recorded.Log(), 1, "?ICCT_DESC");
  RequireHeading(filled.table, recorded.Log(), 1, "X");
  EXPECT_THAT(recorded.Findings(),
              ElementsAre("WARNING: No 'UNIT_DESC' heading found in the UNIT group",
                          "WARNING: No '?ICCT_DESC' heading found in the ?ICC group",
                          "WARNING: No 'X' heading found in the X group"));
}

TEST(CollectMissingValue, TakesItemsOfEmptyValuesWhereTheFlagIsSet) {
  std::vector<std::string> list;
  CollectMissingValue(true, "", "first", list);
  CollectMissingValue(true, "value", "second", list);
  CollectMissingValue(false, "", "third", list);
  CollectMissingValue(false, "value", "fourth", list);
  CollectMissingValue(true, "", "", list);
  CollectMissingValue(true, " ", "sixth", list);
  EXPECT_THAT(list, ElementsAre("first", ""));
}

TEST(ReportMissingValues, ListsTheItemsOnePerLine) {
  for (const AgsFormat format : {AgsFormat::Ags3, AgsFormat::Ags4}) {
    RecordedLog recorded(format);
    ReportMissingValues(recorded.Log(), {"CP", "RC", "a, b"}, "ABBR_CODE", "ABBR_DESC");
    EXPECT_THAT(recorded.Findings(),
                ElementsAre("WARNING: The following ABBR_CODE values did not have ABBR_DESC values "
                            "in the ABBR group:\r\nCP\r\nRC\r\na, b"));
  }
}

TEST(ReportMissingValues, SaysNothingAboutAnEmptyList) {
  RecordedLog recorded;
  ReportMissingValues(recorded.Log(), {}, "ABBR_CODE", "ABBR_DESC");
  EXPECT_THAT(recorded.Findings(), IsEmpty());
}

}  // namespace
}  // namespace quorvane::test
