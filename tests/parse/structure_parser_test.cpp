#include "parse/structure_parser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "parsed_lines.h"
#include "support/check_text.h"

namespace quorvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto Ags3 = AgsFormat::Ags3;
constexpr auto Ags4 = AgsFormat::Ags4;

// Sound files.

TEST(ParseStructure, ReadsAnAgs3Group) {
  Parsed parsed(Ags3, {R"("**HOLE")", R"("*HOLE_ID","*HOLE_FDEP")", R"("<UNITS>","m")",
                       R"("BH1","10.00")", R"("BH2","12.50")"});
  EXPECT_THAT(parsed.Names(), ElementsAre("HOLE"));
  EXPECT_THAT(parsed.Headings(1), ElementsAre("HOLE_ID", "HOLE_FDEP"));
  EXPECT_THAT(parsed.Units(1), ElementsAre("", "m"));
  EXPECT_THAT(parsed.Types(1), ElementsAre("", ""));
  EXPECT_EQ(parsed.Table().At(1).rowCount, 2);
  EXPECT_THAT(parsed.Row(1, 2), ElementsAre("BH2", "12.50"));
  EXPECT_EQ(parsed.Table().RowLine(1, 2), 5);
  EXPECT_THAT(parsed.Findings(), IsEmpty());
}

TEST(ParseStructure, ReadsAnAgs4Group) {
  Parsed parsed(Ags4, {R"("**LOCA")", R"("*LOCA_ID","*LOCA_FDEP")", R"("","m")", R"("ID","2DP")",
                       R"("BH1","10.00")"});
  EXPECT_THAT(parsed.Headings(1), ElementsAre("LOCA_ID", "LOCA_FDEP"));
  EXPECT_THAT(parsed.Units(1), ElementsAre("", "m"));
  EXPECT_THAT(parsed.Types(1), ElementsAre("ID", "2DP"));
  EXPECT_THAT(parsed.Row(1, 1), ElementsAre("BH1", "10.00"));
  EXPECT_THAT(parsed.Findings(), IsEmpty());
}

TEST(ParseStructure, NotesTheLinesOfAGroup) {
  const Parsed parsed(Ags4, {"", R"("**LOCA")", R"("*LOCA_ID",)", R"("*LOCA_FDEP")", R"("",)",
                             R"("m")", R"("ID","2DP")", "", R"("BH1","10.00")"});
  const Group& group = parsed.Table().At(1);
  EXPECT_EQ(group.line, 2);
  EXPECT_EQ(group.headingLine, 3);
  EXPECT_EQ(group.unitLine, 5);
  EXPECT_EQ(group.typeLine, 7);
  EXPECT_EQ(parsed.Table().RowLine(1, 1), 9);
}

TEST(ParseStructure, AGroupWithoutALineHasNumberZeroForIt) {
  const Parsed parsed(Ags3, {R"("**ABBR")", R"("*ABBR_CODE")", R"("CP")", R"("**HOLE")"});
  EXPECT_EQ(parsed.Table().At(1).unitLine, 0);
  EXPECT_EQ(parsed.Table().At(1).typeLine, 0);
  EXPECT_EQ(parsed.Table().At(2).headingLine, 0);
}

TEST(ParseStructure, ClosesItsSection) {
  Parsed parsed(Ags3, {"abc"});
  EXPECT_THAT(parsed.Sections(), ElementsAre("Parsing Structure and Data"));
}

TEST(ParseStructure, SkipsEmptyLinesAndDropsTrailingBlanks) {
  Parsed parsed(Ags3, {"", R"("**HOLE"   )", "   ", R"("*HOLE_ID","*HOLE_FDEP"  )", "",
                       R"("<UNITS>","m" )", " ", R"("BH1","10.00"    )", "", R"("BH2","1")"});
  EXPECT_THAT(parsed.Names(), ElementsAre("HOLE"));
  EXPECT_THAT(parsed.Row(1, 1), ElementsAre("BH1", "10.00"));
  EXPECT_EQ(parsed.Table().At(1).rowCount, 2);
  EXPECT_THAT(parsed.Findings(), IsEmpty());
}

TEST(ParseStructure, ALineOfATabIsNotEmpty) {
  Parsed parsed(Ags3, {R"("**ABBR")", R"("*ABBR_CODE")", "\t"});
  EXPECT_EQ(parsed.Table().At(1).rowCount, 1);
}

TEST(ParseStructure, ReadsARangeOfLinesOnly) {
  const Parsed parsed(
      Ags3, {"abc", R"("**ABBR")", R"("*ABBR_CODE")", R"("CP")", R"("RC")", R"("**X")"}, {2, 4});
  EXPECT_THAT(parsed.Names(), ElementsAre("ABBR"));
  EXPECT_EQ(parsed.Table().At(1).rowCount, 1);
}

TEST(ParseStructure, OfAnEmptyFileFindsNoGroup) {
  Parsed parsed(Ags3, {""});
  EXPECT_EQ(parsed.Table().GroupCount(), 0);
  EXPECT_THAT(parsed.Findings(), IsEmpty());
  EXPECT_THAT(parsed.Events(), ElementsAre("file ended"));
}

// Who is told what, and when.

TEST(ParseStructure, TellsItsListenerInTheOrderOfTheFile) {
  const Parsed parsed(Ags3, {R"("**HOLE")", R"("*HOLE_ID","*hole_type")", R"("<UNITS>","")",
                             R"("BH1","CP")", R"("BH2","CP")", R"("**GEOL")", R"("*HOLE_ID")"});
  EXPECT_THAT(parsed.Events(),
              ElementsAre("name 1 at 1: \"**HOLE\"", "opened 1", "heading 1.1 at 2: HOLE_ID",
                          "heading 1.2 at 2: hole_type", "headers of 1 with data, rows 0",
                          "ended 1, rows 2", "name 2 at 6: \"**GEOL\"", "opened 2",
                          "heading 2.1 at 7: HOLE_ID", "headers of 2 without data, rows 0",
                          "ended 2, rows 0", "file ended"));
}

TEST(ParseStructure, CountsTheContinuedRowOfAnEndedGroup) {
  const Parsed parsed(Ags3, {R"("**ABBR")", R"("*ABBR_CODE","*ABBR_DESC")", R"("CP","Cable")",
                             R"("<CONT>"," percussion")", R"("**ABBR")"});
  EXPECT_EQ(parsed.Events()[5], "ended 1, rows 1");
  EXPECT_THAT(parsed.Row(1, 1), ElementsAre("CP", "Cable percussion"));
}

TEST(ParseStructure, EndsALastRowThatWasContinued) {
  const Parsed parsed(Ags3, {R"("**ABBR")", R"("*ABBR_CODE","*ABBR_DESC")", R"("CP","Cable")",
                             R"("<CONT>"," percussion")"});
  EXPECT_THAT(parsed.Row(1, 1), ElementsAre("CP", "Cable percussion"));
}

TEST(ParseStructure, AGroupWithoutRowsHasItsHeadingsUnitsAndTypes) {
  const Parsed parsed(Ags4,
                      {R"("**LOCA")", R"("*LOCA_ID","*LOCA_FDEP")", R"("","m")", R"("ID","2DP")",
                       R"("**GEOL")", R"("*LOCA_ID")", R"("x")", R"("ID")", R"("BH1")"});
  EXPECT_THAT(parsed.Units(1), ElementsAre("", "m"));
  EXPECT_THAT(parsed.Types(1), ElementsAre("ID", "2DP"));
  EXPECT_THAT(parsed.Units(2), ElementsAre("x"));
  EXPECT_EQ(parsed.Table().At(1).rowCount, 0);
}

// Group lines.

TEST(ParseStructure, ReportsALineThatShouldOpenAGroupAndTakesItsFirstField) {
  Parsed parsed(Ags3, {"", R"("HOLE_ID","HOLE_TYPE"  )", R"("*HOLE_ID")"});
  EXPECT_THAT(parsed.Findings(), ElementsAre("ERROR: Line 2 - unknown data group line syntax:  "
                                             "\"HOLE_ID\",\"HOLE_TYPE\""));
  EXPECT_EQ(parsed.Events().front(), "name 1 at 2: \"HOLE_ID\",");
  EXPECT_THAT(parsed.Headings(1), ElementsAre("HOLE_ID"));
}

TEST(ParseStructure, TakesTheWholeOfSuchALineWithoutComma) {
  const Parsed parsed(Ags3, {"some title"});
  EXPECT_EQ(parsed.Events().front(), "name 1 at 1: some title");
}

TEST(ParseStructure, TakesAnUnquotedGroupLine) {
  Parsed parsed(Ags3, {"**ABBR", R"("*ABBR_CODE")", R"("CP")"});
  EXPECT_THAT(parsed.Names(), ElementsAre("ABBR"));
  EXPECT_THAT(parsed.Findings(), IsEmpty());
}

TEST(ParseStructure, AnAgs3GroupLineEndsTheGroupInEveryState) {
  Parsed parsed(Ags3, {R"("**DICT")", R"("**CODE")", R"("*CODE_CODE",)", R"("**HOLE")",
                       R"("*HOLE_ID")", R"("**PROJ")", R"("*PROJ_ID")", R"("<UNITS>",)",
                       R"("**GEOL")", R"("*GEOL_TOP")", R"("<UNITS>")", R"("1.00")", "**ABBR"});
  EXPECT_THAT(parsed.Names(), ElementsAre("DICT", "CODE", "HOLE", "PROJ", "GEOL", "ABBR"));
  EXPECT_THAT(parsed.Headings(2), ElementsAre("CODE_CODE"));
  EXPECT_EQ(parsed.Table().At(5).rowCount, 1);
  EXPECT_THAT(parsed.Findings(), IsEmpty());
}

TEST(ParseStructure, AnAgs4GroupLineIsOneAtTheStartAndBehindDataOnly) {
  Parsed parsed(Ags4, {R"("**LOCA")", R"("**HEAD")", R"("**UNIT")", R"("**TYPE")", R"("**DATA")"});
  EXPECT_THAT(parsed.Names(), ElementsAre("LOCA", "DATA"));
  EXPECT_THAT(parsed.Headings(1), ElementsAre("*HEAD"));
  EXPECT_THAT(parsed.Units(1), ElementsAre("**UNIT"));
  EXPECT_THAT(parsed.Types(1), ElementsAre("**TYPE"));
}

// Heading lines.

TEST(ParseStructure, ReadsAHeadingListOverSeveralLines) {
  for (const AgsFormat format : {Ags3, Ags4}) {
    Parsed parsed(format,
                  {R"("**ABBR")", R"("*ABBR_HDNG",)", R"("*ABBR_CODE",  )", R"("*ABBR_DESC")"});
    EXPECT_THAT(parsed.Headings(1), ElementsAre("ABBR_HDNG", "ABBR_CODE", "ABBR_DESC"));
    EXPECT_EQ(parsed.Table().At(1).headingLine, 2);
    EXPECT_THAT(parsed.Findings(), IsEmpty());
  }
}

TEST(ParseStructure, HeadingsBeginWithAnAsterisk) {
  for (const AgsFormat format : {Ags3, Ags4}) {
    Parsed parsed(format, {R"("**ABBR")", R"("*ABBR_HDNG","ABBR_CODE",)", R"("ABBR_DESC","")"});
    EXPECT_THAT(
        parsed.Findings(),
        ElementsAre("ERROR: Line 2 - 'ABBR_CODE' - headings must begin with \"*\" (Rule 11).",
                    "ERROR: Line 3 - 'ABBR_DESC' - headings must begin with \"*\" (Rule 11).",
                    "ERROR: Line 3 - '' - headings must begin with \"*\" (Rule 11)."));
    EXPECT_THAT(parsed.Headings(1), ElementsAre("ABBR_HDNG", "ABBR_CODE", "ABBR_DESC", ""));
    EXPECT_EQ(parsed.Places()[1].heading, 3);
  }
}

TEST(ParseStructure, DropsOneAsteriskOfAHeading) {
  EXPECT_THAT(Parsed(Ags3, {"**ABBR", R"("*A","***A","*")"}).Headings(1),
              ElementsAre("A", "**A", ""));
}

TEST(ParseStructure, QuotingOfAHeadingComesBeforeItsAsterisk) {
  EXPECT_THAT(Found(Ags3, {R"("**ABBR")", R"("*ABBR_HDNG",ABBR_CODE,"  ")"}),
              ElementsAre("ERROR: Line 2 - 'ABBR_CODE' - missing surrounding quotes (Rule 8).",
                          "ERROR: Line 2 - 'ABBR_CODE' - headings must begin with \"*\" (Rule 11).",
                          "ERROR: Line 2 - null field are to be included as \"\" with no internal "
                          "spaces (Rule 15)",
                          "ERROR: Line 2 - '' - headings must begin with \"*\" (Rule 11)."));
}

TEST(ParseStructure, ReadsHeadingLinesOfAgs4WithoutPuttingDoubledQuotesAside) {
  EXPECT_THAT(Found(Ags4, {R"("**LOCA")", R"("*LOCA_""ID","*LOCA_TYPE")"}),
              ElementsAre("ERROR: Line 2 - '*LOCA_\"\"ID' - has internal quotes (Rule 8)."));
}

TEST(ParseStructure, AHeadingIsReportedOncePerRepetition) {
  for (const AgsFormat format : {Ags3, Ags4}) {
    Parsed parsed(format, {R"("**ABBR")", R"("*A_A","*B_B","*A_A","*B_B","*A_A")"});
    EXPECT_THAT(parsed.Findings(), ElementsAre("ERROR: Line 2 - Field 'A_A' is repeated.",
                                               "ERROR: Line 2 - Field 'B_B' is repeated.",
                                               "ERROR: Line 2 - Field 'A_A' is repeated."));
    EXPECT_THAT(parsed.Headings(1), ElementsAre("A_A", "B_B", "A_A", "B_B", "A_A"));
    EXPECT_EQ(parsed.Places()[1].heading, 4);
  }
}

TEST(ParseStructure, ARepeatedHeadingIsReportedAtTheLineThatHoldsIt) {
  EXPECT_THAT(Found(Ags3, {R"("**ABBR")", R"("*A_A",)", R"("*B_B",)", R"("*A_A")"}),
              ElementsAre("ERROR: Line 4 - Field 'A_A' is repeated."));
}

TEST(ParseStructure, HeadingsAreComparedAsTheyAreKept) {
  EXPECT_THAT(Found(Ags3, {R"("**ABBR")", R"("*A_A","*a_a")"}),
              ElementsAre("ERROR: Line 2 - Field 'A_A' is repeated."));
}

TEST(ParseStructure, TheSameHeadingInTwoGroupsIsNotRepeated) {
  EXPECT_THAT(Found(Ags3, {R"("**ABBR")", R"("*A_A")", R"("CP")", R"("**CODE")", R"("*A_A")"}),
              IsEmpty());
}

TEST(ParseStructure, AnEmptyHeadingIsNeverRepeated) {
  EXPECT_THAT(Found(Ags3, {R"("**ABBR")", R"("*","*A_A","*","*")"}), IsEmpty());
}

TEST(ParseStructure, SixtyHeadingsAreAllowedAndMoreAreReportedInAgs3) {
  EXPECT_THAT(Found(Ags3, {R"("**ABBR")", HeadingLine(60)}), IsEmpty());
  EXPECT_THAT(Found(Ags3, {R"("**ABBR")", HeadingLine(61)}),
              ElementsAre("ERROR: Line 2 - the number of headings in group 'ABBR' exceeds 60 "
                          "(Rule 17)."));
  EXPECT_THAT(Found(Ags4, {R"("**ABBR")", HeadingLine(61)}), IsEmpty());
}

TEST(ParseStructure, TooManyHeadingsAreReportedAtTheListsFirstLine) {
  EXPECT_THAT(Found(Ags3, {R"("**ABBR")", HeadingLine(59) + ",", R"("*A_A",)", R"("*B_B")"}),
              ElementsAre("ERROR: Line 2 - the number of headings in group 'ABBR' exceeds 60 "
                          "(Rule 17)."));
}

// With the rules that listen.

TEST(ParseStructure, ReportsAHeadingsFaultsInTheirOrder) {
  const CheckResult result =
      CheckText(MinimalAgs3()
                    .Line("")
                    .Line(R"("**GEOL")")
                    .Line(R"("*HOLE_ID","*GEOL_TOP","*GEOL_BASE","*GEOL_XX",GEOL_XX)")  // line 20
                    .Line(R"("<UNITS>","m","m","","")")
                    .Line(R"("BH1","0.00","1.00","","")")
                    .Text());
  EXPECT_THAT(result.FindingsOf("Parsing Structure and Data"),
              ElementsAre("ERROR: Line 20 - 'GEOL_XX' in group 'GEOL' is not an AGS heading "
                          "(Rule 5).",
                          "ERROR: Line 20 - 'GEOL_XX' - missing surrounding quotes (Rule 8).",
                          "ERROR: Line 20 - 'GEOL_XX' - headings must begin with \"*\" (Rule 11).",
                          "ERROR: Line 20 - 'GEOL_XX' in group 'GEOL' is not an AGS heading "
                          "(Rule 5).",
                          "ERROR: Line 20 - Field 'GEOL_XX' is repeated."));
}

TEST(ParseStructure, EndsAGroupBeforeItReadsTheNextGroupsName) {
  const CheckResult result = CheckText(
      MinimalAgs3().Line("").Line(R"("**geol")").Line(R"("*HOLE_ID")").Line("**HOLE").Text());
  ASSERT_EQ(result.findings.size(), 5U);
  EXPECT_TRUE(result.findings[0].starts_with("ERROR: Line 19 - Group name geol must be"));
  EXPECT_EQ(result.findings[1], "FYI: Line 19 - No data found in the GEOL group.");
  EXPECT_TRUE(result.findings[2].starts_with("ERROR: Line 21 - group name line (**HOLE) must"));
  EXPECT_EQ(result.findings[3], "ERROR: Line 21 - No fields found for the HOLE group.");
  EXPECT_EQ(result.findings[4], "FYI: Line 21 - No data found in the HOLE group.");
}

TEST(ParseStructure, AnAgs4DataLineOfItsLabelOnlyIsAnEmptyLine) {
  Ags4File file = MinimalAgs4();
  file.Group("LOCA", {"LOCA_ID"}, {""}, {"ID"}, {});  // line 27
  const CheckResult result =
      CheckText(file.Line(R"("DATA")").Line(R"("DATA",)").Line(R"("DATA",  )").Text());
  EXPECT_THAT(result.findings,
              ElementsAre("ERROR: Line 27 - No data found in the LOCA group (Rule 2)."));
}

TEST(ParseStructure, AnAgs4DataLineOfTwoQuotesIsARow) {
  Ags4File file = MinimalAgs4();
  file.Group("LOCA", {"LOCA_ID"}, {""}, {"ID"}, {});
  const CheckResult result = CheckText(file.Line(R"("DATA","")").Text());
  EXPECT_THAT(result.FindingsOf("Parsing Structure and Data"), IsEmpty());
}

TEST(ParseStructure, ReadsAnAgs4GroupRowWithoutQuotesAsWhatItHasBecome) {
  Ags4File file = MinimalAgs4();  // ends with a UNIT group of two headings
  const CheckResult result = CheckText(file.Line("").Line("\"GROUP\",LOCA").Text());  // line 27
  EXPECT_THAT(
      result.FindingsOf("Parsing Structure and Data"),
      ElementsAre("ERROR: Line 27 - 'L**OCA' - missing surrounding quotes (Rule 8).",
                  "ERROR: Line 27 - does not have the same number of fields as the number of "
                  "headers "));
}

}  // namespace
}  // namespace quorvane::test
