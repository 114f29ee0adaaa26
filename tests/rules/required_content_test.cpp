#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/check_text.h"

namespace quorvane::test {
namespace {

TEST(RequiredGroups, NothingMissingLeavesNoTrace) {
  EXPECT_FALSE(CheckText(MinimalAgs4().Text()).HasSection("Checking Required Groups"));
}

TEST(RequiredGroups, NameThatIsPartOfALongerOneGoesToo) {
  // Names are taken out of the list as text: of PROJ, with a group PRO in the file, a J is left.
  Ags3File file;
  file.Group("PRO", {"HOLE_ID"}, {""}, {{"BH1"}});
  EXPECT_EQ(CheckText(file.Text()).FindingsOf("Checking Required Groups"),
            std::vector<std::string>{
                "ERROR: The following required groups are missing from the file:\r\nJ"});
}

TEST(RequiredGroups, LetterCaseDoesNotMatter) {
  Ags3File file;
  file.Group("proj", {"PROJ_ID", "PROJ_AGS"}, {"", ""}, {{"P1", "3.1"}});
  EXPECT_FALSE(CheckText(file.Text()).HasSection("Checking Required Groups"));
}

TEST(RequiredFields, EveryFindingIsALineOfOneMessage) {
  Ags4File file = MinimalAgs4();  // 25 lines
  file.Group("ABBR", {"ABBR_HDNG", "ABBR_CODE", "ABBR_DESC"}, {"", "", ""}, {"X", "X", "X"},
             {{"LOCA_TYPE", "CP", ""}, {"LOCA_TYPE", "RC", "Rotary"}, {"LOCA_TYPE", "TP", ""}});
  EXPECT_EQ(CheckText(file.Text()).FindingsOf("Checking Required Fields"),
            std::vector<std::string>{
                "ERROR: The following required fields are missing in the HEADING or are missing "
                "data values (Rule 10b):\r\nHeading 'ABBR_DESC' in group 'ABBR' has no data value "
                "in line 31\r\nHeading 'ABBR_DESC' in group 'ABBR' has no data value in line 33"});
}

TEST(RequiredFields, OnlyTheFirstGroupOfANameIsLookedAt) {
  Ags4File file = MinimalAgs4();
  file.Group("TYPE", {"TYPE_TYPE", "TYPE_DESC"}, {"", ""}, {"X", "X"}, {{"PA", ""}});
  EXPECT_FALSE(CheckText(file.Text()).HasSection("Checking Required Fields"));
}

TEST(ProjGroup, TwoRowsAreCounted) {
  Ags3File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_AGS"}, {"", ""}, {{"P1", "3.1"}, {"P2", "3.1"}});
  EXPECT_EQ(CheckText(file.Text()).FindingsOf("Checking PROJ Group"),
            std::vector<std::string>{"ERROR: PROJ group has 2 records. Must only have 1 record."});
}

TEST(ProjGroup, VersionIsTakenFromTheFile) {
  const auto logOf = [](const std::string& version) {
    Ags3File file;
    file.Group("PROJ", {"PROJ_ID", "PROJ_AGS"}, {"", ""}, {{"P1", version}});
    return CheckText(file.Text()).log;
  };
  EXPECT_NE(logOf("3.1 RTA (1.1)").find("File AGS Version: 3.1 RTA (1.1)\r\n"), std::string::npos);
  // An empty value leaves the version that the file's form shows, and is still an unknown one.
  EXPECT_NE(logOf("").find("File AGS Version: 3\r\n"), std::string::npos);
  EXPECT_NE(logOf("").find("AGS version is ''. This program"), std::string::npos);
}

TEST(ProjGroup, Version4InAnAgs3FileIsAWarning) {
  Ags3File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_AGS"}, {"", ""}, {{"P1", "4.0"}});
  const CheckResult result = CheckText(file.Text());
  EXPECT_TRUE(result.HasText("WARNING: Line 4 - AGS version is '4.0' but"));
  EXPECT_EQ(result.Count("Unknown AGS version"), 0);
}

TEST(ProjGroup, IsNotAskedForItsVersionInAgs4) {
  EXPECT_FALSE(CheckText(MinimalAgs4().Text()).HasSection("Checking PROJ Group"));
}

TEST(TranGroup, SecondRowKeepsTheVersionFromBeingTaken) {
  Ags4File file;
  file.Group("TRAN", {"TRAN_ISNO", "TRAN_AGS"}, {"", ""}, {"X", "X"}, {{"1", "3.1"}, {"2", "3.1"}});
  file.Group("TYPE", {"TYPE_TYPE"}, {""}, {"X"}, {{"X"}});
  file.Group("UNIT", {"UNIT_UNIT"}, {""}, {"X"}, {{"m"}});
  const CheckResult result = CheckText(file.Text());
  EXPECT_TRUE(result.Has("ERROR: TRAN group has 2 records. Must only have 1 record."));
  EXPECT_EQ(result.Count("AGS version is"), 0);
  EXPECT_NE(result.log.find("File AGS Version: 4\r\n"), std::string::npos);
}

TEST(EmptyGroup, IsAnErrorInAgs4AndInformationInAgs3) {
  EXPECT_TRUE(CheckText(MinimalAgs4().Group("LOCA", {"LOCA_ID"}, {""}, {"ID"}, {}).Text())
                  .Has("ERROR: Line 27 - No data found in the LOCA group (Rule 2)."));
  EXPECT_TRUE(CheckText(MinimalAgs3().Group("DREM", {"HOLE_ID"}, {""}, {}).Text())
                  .Has("FYI: Line 19 - No data found in the DREM group."));
}

TEST(EmptyGroup, GetsNoFindingAboutItsKeyHeadings) {
  const CheckResult result =
      CheckText(MinimalAgs4().Group("GEOL", {"GEOL_DESC"}, {""}, {"X"}, {}).Text());
  EXPECT_EQ(result.Count("key heading"), 0);
  EXPECT_EQ(result.Count("as the first field"), 0);
}

}  // namespace
}  // namespace quorvane::test
