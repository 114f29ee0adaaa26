// Units and types lines, and structures of uncommon size.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "parsed_lines.h"
#include "support/stopwatch.h"

namespace quorvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto Ags3 = AgsFormat::Ags3;
constexpr auto Ags4 = AgsFormat::Ags4;

// Units lines.

constexpr const char* UnitsMissing =
    "ERROR: Line 3 - <UNITS> line missing for group 'HOLE' (Rule 18)";

TEST(ParseStructure, AnAgs3GroupWithoutUnitsLineKeepsItsFirstRow) {
  Parsed parsed(Ags3, {R"("**HOLE")", R"("*HOLE_ID")", R"("BH1")", R"("BH2")"});
  EXPECT_THAT(parsed.Findings(), ElementsAre(UnitsMissing));
  EXPECT_EQ(parsed.Table().At(1).rowCount, 2);
  EXPECT_THAT(parsed.Row(1, 1), ElementsAre("BH1"));
}

TEST(ParseStructure, TheUnitsLineIsMissedOncePerGroup) {
  Parsed parsed(Ags3, {R"("**HOLE")", R"("*HOLE_ID")", R"("BH1")", R"("BH2")", R"("**HOLE")",
                       R"("*HOLE_ID")", R"("BH3")"});
  EXPECT_THAT(
      parsed.Findings(),
      ElementsAre(UnitsMissing, "ERROR: Line 7 - <UNITS> line missing for group 'HOLE' (Rule 18)"));
}

TEST(ParseStructure, AGroupWithoutUnitsLineAndRowsIsNotMissingIt) {
  EXPECT_THAT(Found(Ags3, {R"("**HOLE")", R"("*HOLE_ID")"}), IsEmpty());
}

TEST(ParseStructure, GroupsThatTakeNoUnitsMissNone) {
  EXPECT_THAT(Found(Ags3, {R"("**ABBR")", R"("*ABBR_CODE")", R"("CP")"}), IsEmpty());
  EXPECT_THAT(Found(Ags3, {R"("**?ABBR")", R"("*ABBR_CODE")", R"("CP")"}),
              ElementsAre("ERROR: Line 3 - <UNITS> line missing for group '?ABBR' (Rule 18)"));
}

TEST(ParseStructure, AUnitsLineOfAGroupThatTakesNoneIsSkipped) {
  Parsed parsed(Ags3, {R"("**CODE")", R"("*CODE_CODE","*CODE_DESC")", R"("<units>","m")",
                       R"("<UNITS>","x")", R"("A","B")"});
  EXPECT_THAT(parsed.Findings(),
              ElementsAre("FYI: Line 3 - <UNITS> line does not apply to group CODE (Rule 18)."));
  EXPECT_EQ(parsed.Table().At(1).rowCount, 2);
  EXPECT_THAT(parsed.Row(1, 1), ElementsAre("<UNITS>", "x"));
  EXPECT_THAT(parsed.Units(1), ElementsAre("", ""));
  EXPECT_EQ(parsed.Table().At(1).unitLine, 0);
}

TEST(ParseStructure, TheUnitsMarkMayBeInAnyLetterCase) {
  Parsed parsed(Ags3, {R"("**HOLE")", R"("*HOLE_ID","*HOLE_FDEP")", R"("<Units>","m")"});
  EXPECT_THAT(parsed.Findings(), IsEmpty());
  EXPECT_THAT(parsed.Units(1), ElementsAre("", "m"));
}

TEST(ParseStructure, TheUnitsMarkWithoutQuotesIsNone) {
  EXPECT_THAT(Found(Ags3, {R"("**HOLE")", R"("*HOLE_ID","*HOLE_FDEP")", R"(<UNITS>,"m")"}),
              ElementsAre("ERROR: Line 3 - <UNITS> line missing for group 'HOLE' (Rule 18)",
                          "ERROR: Line 3 - '<UNITS>' - missing surrounding quotes (Rule 8)."));
}

TEST(ParseStructure, TheUnitsMarkMustBeTheFirstField) {
  Parsed parsed(Ags3, {R"("**HOLE")", R"("*HOLE_ID","*HOLE_FDEP")", R"("m","<UNITS>")"});
  EXPECT_THAT(parsed.Findings(),
              ElementsAre("ERROR: Line 3 - units line must begin with \"<UNITS>\" (Rule 18)."));
  EXPECT_EQ(parsed.Table().At(1).unitLine, 3);
}

TEST(ParseStructure, TheFirstUnitsQuotingComesBeforeTheMark) {
  EXPECT_THAT(Found(Ags3, {R"("**HOLE")", R"("*HOLE_ID","*HOLE_FDEP")", R"(m,"<UNITS>")"}),
              ElementsAre("ERROR: Line 3 - 'm' - missing surrounding quotes (Rule 8).",
                          "ERROR: Line 3 - units line must begin with \"<UNITS>\" (Rule 18)."));
}

TEST(ParseStructure, ReadsAUnitsListOverSeveralLines) {
  Parsed parsed(Ags3, {R"("**HOLE")", R"("*A_A","*A_B","*A_C")", R"("<UNITS>",)", R"("m",)",
                       R"("kN")", R"("1","2","3")"});
  EXPECT_THAT(parsed.Findings(), IsEmpty());
  EXPECT_THAT(parsed.Units(1), ElementsAre("", "m", "kN"));
  EXPECT_EQ(parsed.Table().At(1).unitLine, 3);
  EXPECT_EQ(parsed.Table().At(1).rowCount, 1);
}

TEST(ParseStructure, ReadsAnAgs4UnitsListOverSeveralLines) {
  Parsed parsed(Ags4, {R"("**HOLE")", R"("*A_A","*A_B")", R"("m",)", R"("kN")", R"("X","X")"});
  EXPECT_THAT(parsed.Findings(), IsEmpty());
  EXPECT_THAT(parsed.Units(1), ElementsAre("m", "kN"));
}

constexpr const char* UnitCount3 =
    "ERROR: Line 3 - number of units does not match the number of headers (Rule 18).";
constexpr const char* UnitCount4 =
    "ERROR: Line 3 - number of units does not match the number of headers.";

TEST(ParseStructure, TheNumberOfUnitsMustMatch) {
  const std::string headings = R"("*A_A","*A_B")";
  EXPECT_THAT(Found(Ags3, {R"("**HOLE")", headings, R"("<UNITS>")"}), ElementsAre(UnitCount3));
  EXPECT_THAT(Found(Ags3, {R"("**HOLE")", headings, R"("<UNITS>","m","m")"}),
              ElementsAre(UnitCount3));
  EXPECT_THAT(Found(Ags4, {R"("**HOLE")", headings, R"("")"}), ElementsAre(UnitCount4));
  EXPECT_THAT(Found(Ags4, {R"("**HOLE")", headings, R"("","","")"}), ElementsAre(UnitCount4));
}

TEST(ParseStructure, TheNumberOfUnitsIsReportedAtTheListsFirstLine) {
  EXPECT_THAT(Found(Ags3, {R"("**HOLE")", R"("*A_A")", R"("<UNITS>",)", R"("m")"}),
              ElementsAre(UnitCount3));
}

TEST(ParseStructure, ACommaInsideAUnitDoesNotSplitIt) {
  Parsed parsed(Ags3, {R"("**HOLE")", R"("*A_A","*A_B")", R"("<UNITS>","kN,m")"});
  EXPECT_THAT(parsed.Findings(), IsEmpty());
  EXPECT_THAT(parsed.Units(1), ElementsAre("", "kN,m"));
}

TEST(ParseStructure, OneEmptyUnitCountsOne) {
  EXPECT_THAT(Found(Ags4, {R"("**HOLE")", R"("*A_A")", R"("")", R"("")", R"("x")"}), IsEmpty());
}

TEST(ParseStructure, UnitsBeyondTheHeadingsAreDroppedAndMissingOnesEmpty) {
  EXPECT_THAT(Parsed(Ags4, {R"("**HOLE")", R"("*A_A","*A_B")", R"("m","kN","s")"}).Units(1),
              ElementsAre("m", "kN"));
  EXPECT_THAT(Parsed(Ags4, {R"("**HOLE")", R"("*A_A","*A_B")", R"("m")"}).Units(1),
              ElementsAre("m", ""));
}

// Types lines.

constexpr const char* TypeCount =
    "ERROR: Line 4 - number of types does not match the number of headers.";

TEST(ParseStructure, TheNumberOfTypesMustMatch) {
  const std::string headings = R"("*A_A","*A_B")";
  for (const char* types : {R"("X")", R"("X","X","X")"}) {
    Parsed parsed(Ags4, {R"("**HOLE")", headings, R"("","")", types, R"("1","2")"});
    EXPECT_THAT(parsed.Findings(), ElementsAre(TypeCount));
    EXPECT_EQ(parsed.Types(1).front(), "X");
    EXPECT_EQ(parsed.Table().At(1).rowCount, 1);
  }
}

TEST(ParseStructure, ATypesLineNeverContinues) {
  Parsed parsed(Ags4, {R"("**HOLE")", R"("*A_A")", R"("m")", R"("X",)", R"("1")"});
  EXPECT_THAT(parsed.Findings(),
              ElementsAre("ERROR: Line 4 - '' - missing surrounding quotes (Rule 8).", TypeCount));
  EXPECT_THAT(parsed.Row(1, 1), ElementsAre("1"));
}

// Sizes.

TEST(ParseStructure, ReadsAGroupOfFiveThousandHeadings) {
  std::string units = "\"m\"";
  std::string types = "\"X\"";
  std::string values = "\"1\"";
  for (int heading = 2; heading <= 5000; ++heading) {
    units += ",\"m\"";
    types += ",\"X\"";
    values += ",\"1\"";
  }
  const Stopwatch stopwatch;
  Parsed parsed(Ags4, {R"("**HOLE")", HeadingLine(5000), units, types, values, values});
  EXPECT_LT(stopwatch.Seconds(), QuickSeconds);
  EXPECT_EQ(parsed.Table().At(1).HeadingCount(), 5000);
  EXPECT_EQ(parsed.Units(1).back(), "m");
  EXPECT_EQ(parsed.Table().Value(1, 2, 5000), "1");
  EXPECT_THAT(parsed.Findings(), IsEmpty());
}

TEST(ParseStructure, ReadsFiveThousandRepeatedHeadings) {
  std::string headings = "\"*A_A\",\"*B_B\"";
  for (int heading = 3; heading <= 5000; heading += 2) {
    headings += ",\"*A_A\",\"*B_B\"";
  }
  const Stopwatch stopwatch;
  Parsed parsed(Ags4, {R"("**HOLE")", headings});
  EXPECT_LT(stopwatch.Seconds(), QuickSeconds);
  EXPECT_EQ(parsed.Findings().size(), 4998U);
}

TEST(ParseStructure, ReadsAHeadingListOverVeryManyLines) {
  std::vector<std::string> lines{R"("**HOLE")"};
  for (int heading = 1; heading < 100000; ++heading) {
    lines.push_back("\"*H_" + std::to_string(heading) + "\",");
  }
  lines.emplace_back(R"("*H_LAST")");
  const Stopwatch stopwatch;
  const Parsed parsed(Ags4, lines);
  EXPECT_LT(stopwatch.Seconds(), QuickSeconds);
  EXPECT_EQ(parsed.Table().At(1).HeadingCount(), 100000);
}

TEST(ParseStructure, ReadsAHundredThousandGroups) {
  std::vector<std::string> lines;
  for (int group = 1; group <= 100000; ++group) {
    lines.push_back("\"**G" + std::to_string(group % 1000) + "\"");
    lines.emplace_back(R"("*A_A","*A_B")");
    lines.emplace_back(R"("<UNITS>","m")");
    lines.push_back("\"" + std::to_string(group) + "\",\"2\"");
  }
  const Stopwatch stopwatch;
  Parsed parsed(Ags3, lines);
  EXPECT_LT(stopwatch.Seconds(), QuickSeconds);
  EXPECT_EQ(parsed.Table().GroupCount(), 100000);
  EXPECT_EQ(parsed.Table().Value(70000, 1, 1), "70000");
  EXPECT_EQ(parsed.Table().GroupIndexList("G7").size(), 100U);
  EXPECT_THAT(parsed.Findings(), IsEmpty());
}

}  // namespace
}  // namespace quorvane::test
