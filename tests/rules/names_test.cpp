#include "rules/names.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/check_text.h"

namespace quorvane::test {
namespace {

/// A group behind those that every AGS 3 file needs; its group line is line 19.
CheckResult Ags3Group(const std::string& name, const std::vector<std::string>& headings,
                      const std::vector<std::vector<std::string>>& rows) {
  return CheckText(
      MinimalAgs3().Group(name, headings, std::vector<std::string>(headings.size()), rows).Text());
}

/// The same for AGS 4; the group row is line 27, the heading row line 28.
CheckResult Ags4Group(const std::string& name, const std::vector<std::string>& headings,
                      const std::vector<std::vector<std::string>>& rows) {
  return CheckText(MinimalAgs4()
                       .Group(name, headings, std::vector<std::string>(headings.size()),
                              std::vector<std::string>(headings.size(), "X"), rows)
                       .Text());
}

TEST(GroupNames, OwnGroupWithDigitIsReportedOnce) {
  const CheckResult result = Ags3Group("?A1B2", {"HOLE_ID"}, {{"BH1"}});
  EXPECT_EQ(result.Count("must be made up of letters only"), 1);
}

TEST(GroupNames, OwnGroupMayHaveFourLetters) {
  EXPECT_EQ(Ags3Group("?ABCD", {"HOLE_ID"}, {{"BH1"}}).Count("no more than 4"), 0);
  EXPECT_EQ(Ags3Group("?ABCDE", {"HOLE_ID"}, {{"BH1"}}).Count("no more than 4"), 1);
  EXPECT_EQ(Ags4Group("ABCD", {"LOCA_ID"}, {{"BH1"}}).Count("no more than 4"), 0);
}

TEST(GroupNames, StandardGroupWithDigitIsLeftToTheDictionary) {
  const CheckResult ags3 = Ags3Group("GE0L", {"HOLE_ID"}, {{"BH1"}});
  EXPECT_EQ(ags3.Count("letters only"), 0);
  EXPECT_TRUE(ags3.Has("ERROR: Line 19 - group 'GE0L' is not an AGS group. (Rule 5)."));
  EXPECT_EQ(Ags4Group("GE0L", {"LOCA_ID"}, {{"BH1"}}).Count("letters only"), 0);
}

TEST(GroupNames, SecondFieldIsCountedAgainstTheRuleInAgs4Only) {
  Ags3File ags3 = MinimalAgs3();
  ags3.Line("").Line("\"**DREM\",\"X\"").Line("\"*HOLE_ID\",\"*DREM_DPTH\",\"*DREM_REM\"");
  EXPECT_TRUE(
      CheckText(ags3.Text()).Has("ERROR: Line 19 - Group line has more than one field (DREM,X)"));
  Ags4File ags4 = MinimalAgs4();
  ags4.Line("").Line("\"GROUP\",\"LOCA\",\"X\"").Line("\"HEADING\",\"LOCA_ID\"");
  ags4.Line("\"UNIT\",\"\"").Line("\"TYPE\",\"ID\"").Line("\"DATA\",\"BH1\"");
  EXPECT_TRUE(CheckText(ags4.Text())
                  .Has("ERROR: Line 27 - Group line has more than one field (LOCA,X) (Rule 4)"));
}

TEST(GroupNames, BlanksAroundTheNamePassSilently) {
  const CheckResult ags4 = Ags4Group("  LOCA ", {"LOCA_ID"}, {{"BH1"}});
  EXPECT_EQ(ags4.FindingsOf("Parsing Structure and Data"), std::vector<std::string>{});
  const CheckResult ags3 = Ags3Group(" PROF ", {"HOLE_ID", "PROF_ID"}, {{"BH1", "1"}});
  EXPECT_EQ(ags3.FindingsOf("Parsing Structure and Data"), std::vector<std::string>{});
}

TEST(GroupNames, LowerCaseNameIsReportedOnceAndCorrected) {
  const CheckResult result = Ags4Group("loca", {"LOCA_ID"}, {{"BH1"}});
  EXPECT_EQ(result.FindingsOf("Parsing Structure and Data"),
            std::vector<std::string>{
                "ERROR: Line 27 - Group name loca must be composed of uppercase characters"});
}

TEST(GroupNames, SecondProjIsReportedSecondCnmtIsNot) {
  EXPECT_TRUE(Ags3Group("PROJ", {"PROJ_ID", "PROJ_AGS"}, {{"P2", "3.1"}})
                  .Has("ERROR: Line 19 - multiple PROJ groups; first one found is used in "
                       "subsequent checking."));
  Ags3File file = MinimalAgs3();
  file.Group("CNMT", {"HOLE_ID"}, {""}, {}).Group("CNMT", {"HOLE_ID"}, {""}, {});
  EXPECT_EQ(CheckText(file.Text()).Count("multiple"), 0);
}

TEST(GroupNames, EverySingletonIsReported) {
  for (const char* name : {"ABBR", "CODE", "DICT", "FILE", "PROJ", "UNIT", "TYPE", "TRAN"}) {
    Ags4File file;
    file.Group("TYPE", {"TYPE_TYPE"}, {""}, {"X"}, {{"X"}});
    file.Group("UNIT", {"UNIT_UNIT"}, {""}, {"X"}, {{"m"}});
    file.Group(name, {"X_A"}, {""}, {"X"}, {{"1"}}).Group(name, {"X_A"}, {""}, {"X"}, {{"1"}});
    EXPECT_TRUE(CheckText(file.Text()).HasText("multiple " + std::string(name) + " groups"))
        << name;
  }
}

TEST(HeadingNames, PrefixOfDictionaryGroupIsAccepted) {
  // GEOL is no group of the file, but the dictionary knows it; ?ICCT is known with its mark only.
  EXPECT_EQ(Ags3Group("DREM", {"HOLE_ID", "DREM_DPTH", "DREM_REM", "?GEOL_X", "?ICCT_X"},
                      {{"BH1", "1", "r", "v", "v"}})
                .Count("must start with the group name"),
            0);
}

TEST(HeadingNames, UnknownPrefixIsJudgedOnlyWhereTheColumnHasData) {
  EXPECT_TRUE(Ags3Group("DREM", {"HOLE_ID", "DREM_DPTH", "DREM_REM", "?QQQQ_X"},
                        {{"BH1", "1", "r", ""}, {"BH1", "2", "r", "v"}})
                  .Has("ERROR: Line 20 - Heading 'QQQQ_X' in Group 'DREM' must start with the "
                       "group name or that of another group (Rule 23)"));
  EXPECT_EQ(
      Ags3Group("DREM", {"HOLE_ID", "DREM_DPTH", "DREM_REM", "?QQQQ_X"}, {{"BH1", "1", "r", ""}})
          .Count("QQQQ"),
      1);  // in the listing of what no DICT group defines
}

TEST(HeadingNames, SpecPrefixIsAcceptedInAnyGroup) {
  EXPECT_EQ(
      Ags3Group("DREM", {"HOLE_ID", "DREM_DPTH", "DREM_REM", "?SPEC_X"}, {{"BH1", "1", "r", "v"}})
          .Count("must start with the group name"),
      0);
}

TEST(HeadingNames, PrefixOfAnotherGroupOfTheFileIsAccepted) {
  Ags3File file = MinimalAgs3();
  file.Group("?QQQQ", {"?HOLE_ID"}, {""}, {{"BH1"}});
  file.Group("DREM", {"HOLE_ID", "DREM_DPTH", "DREM_REM", "?QQQQ_X"}, {"", "m", "", ""},
             {{"BH1", "1", "r", "v"}});
  EXPECT_EQ(CheckText(file.Text()).Count("must start with the group name"), 0);
}

TEST(HeadingNames, LengthCountsForOwnHeadingsOnly) {
  EXPECT_TRUE(Ags3Group("DREM", {"HOLE_ID", "?DREM_ABCDEFGHI"}, {{"BH1", "v"}})
                  .Has("ERROR: Line 20 - Heading '?DREM_ABCDEFGHI' in Group 'DREM' must be no more "
                       "than 9 characters excluding the '?' (Rule 23)"));
  EXPECT_EQ(Ags3Group("DREM", {"HOLE_ID", "DREM_REMARKS"}, {{"BH1", "v"}}).Count("9 characters"),
            0);
}

TEST(HeadingNames, InvalidHeadingIsNotLookedUp) {
  const CheckResult result =
      Ags3Group("DREM", {"HOLE_ID", "?NOUNDER", "drem_xxxx"}, {{"B", "", ""}});
  EXPECT_TRUE(result.HasText("must contain an underscore"));
  EXPECT_EQ(result.Count("is not an AGS heading"), 0);
}

TEST(HeadingNames, TwoNamesOfEarlierEditionsAreAccepted) {
  // DPRG_CONE was long written DRPG_CONE, and the file set of CMPG had a heading of its own.
  EXPECT_EQ(Ags3Group("DPRG", {"HOLE_ID", "DRPG_CONE"}, {{"BH1", "1"}}).Count("AGS heading"), 0);
  EXPECT_EQ(Ags3Group("CMPG", {"HOLE_ID", "CMPG_FSET"}, {{"BH1", ""}}).Count("AGS heading"), 0);
  EXPECT_TRUE(Ags3Group("DREM", {"HOLE_ID", "DRPG_CONE"}, {{"BH1", "1"}})
                  .Has("ERROR: Line 20 - 'DPRG_CONE' in group 'DREM' is not an AGS heading (Rule "
                       "5)."));
}

TEST(HeadingNames, CharactersAreReportedOncePerHeading) {
  EXPECT_EQ(Ags3Group("DREM", {"HOLE_ID", "DREM-A+B"}, {{"BH1", "v"}})
                .Count("letters, numbers, and underscore"),
            1);
}

TEST(FieldOrder, HeadingsOfNeitherListNeverCount) {
  EXPECT_EQ(Ags4Group("LOCA", {"LOCA_ID", "LOCA_XXXX", "LOCA_TYPE", "LOCA_YYYY", "LOCA_STAT"},
                      {{"BH1", "", "", "", ""}})
                .Count("out of order"),
            0);
}

TEST(HasHeading, IsToldByTheDictionarysNames) {
  DictGroup group;
  group.Headings = {"DPRG_CONE", "FILE_FSET", "LOCA_ID"};
  group.IndexHeadings();
  for (const std::string_view known : {"DPRG_CONE", "DRPG_CONE", "FILE_FSET", "CMPG_FSET"})
    EXPECT_TRUE(HasHeading(group, known)) << known;
  for (const std::string_view unknown : {"", "loca_id", "?LOCA_ID", "LOCA_GL"})
    EXPECT_FALSE(HasHeading(group, unknown)) << unknown;
}

TEST(FieldOrder, IsReportedOncePerGroupAtItsHeadingRow) {
  const CheckResult result =
      Ags4Group("LOCA", {"LOCA_ID", "LOCA_GL", "LOCA_REM", "LOCA_TYPE", "LOCA_STAT"},
                {{"BH1", "", "", "", ""}});
  EXPECT_EQ(result.FindingsOf("Checking Field Order"),
            std::vector<std::string>{
                "ERROR: Line 28 - Headings are out of order in group 'LOCA'. Check the AGS "
                "documentation and your DICT group. Custom headings must be at the end of AGS "
                "format field list. (Rules 7 and 18a)"});
}

TEST(FieldOrder, IsNoMatterInAgs3) {
  EXPECT_EQ(Ags3Group("DREM", {"HOLE_ID", "DREM_REM", "DREM_DPTH"}, {{"BH1", "r", "1"}})
                .Count("out of order"),
            0);
}

}  // namespace
}  // namespace quorvane::test
