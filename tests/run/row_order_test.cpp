#include "run/row_order.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "run/message_log_fixture.h"
#include "support/check_text.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

// CheckRowLabels

struct LabelCheck {
  bool isFatal = false;
  std::vector<std::string> findings;
  std::vector<std::string> sections;
};

LabelCheck CheckLabels(std::string_view text) {
  LoggedFile logged(AgsFormat::Ags4);
  LabelCheck check;
  check.isFatal = CheckRowLabels(TextOf(text), logged.log);
  check.findings = logged.Findings();
  check.sections = logged.log.Sections();
  return check;
}

constexpr std::string_view GoodGroup =
    "\"GROUP\",\"PROJ\"\n\"HEADING\",\"PROJ_ID\"\n\"UNIT\",\"\"\n\"TYPE\",\"ID\"\n\"DATA\",\"1\"\n"
    "\"DATA\",\"2\"\n";

TEST(RowLabels, InOrderRaiseNothing) {
  const LabelCheck check = CheckLabels(std::string(GoodGroup) + "\n" + std::string(GoodGroup));
  EXPECT_FALSE(check.isFatal);
  EXPECT_THAT(check.findings, IsEmpty());
  EXPECT_THAT(check.sections, IsEmpty());
}

TEST(RowLabels, AGroupMayFollowDataOrTypesDirectly) {
  EXPECT_FALSE(CheckLabels(std::string(GoodGroup) + std::string(GoodGroup)).isFatal);
  EXPECT_FALSE(CheckLabels("\"GROUP\"\n\"HEADING\"\n\"UNIT\"\n\"TYPE\"\n\"GROUP\"").isFatal);
}

TEST(RowLabels, MayStandWithoutQuotesOrWithAnyNumberOfThem) {
  EXPECT_FALSE(
      CheckLabels("GROUP,PROJ\n\"\"HEADING\",X\nUN\"IT,\n\"TYPE,X\nDATA\",1\nDATA").isFatal);
}

TEST(RowLabels, UnknownOnesAreAllListedInOneMessage) {
  const LabelCheck check = CheckLabels(std::string(GoodGroup) + "\"REMARK\",\"x\"\nno label\n");
  EXPECT_TRUE(check.isFatal);
  EXPECT_THAT(check.findings, ElementsAre("ERROR: \r\nUnknown row label (REMARK), line 7 (Rule 3)"
                                          "\r\nUnknown row label (no label), line 8 (Rule 3)"));
  EXPECT_THAT(check.sections, ElementsAre("Row Label Check"));
}

TEST(RowLabels, OutOfOrderAreListed) {
  EXPECT_THAT(CheckLabels("\"HEADING\",\"X\"\n").findings,
              ElementsAre("ERROR: \r\nRow label 'HEADING' out of order, line 1 (Rule 2b)"));
}

TEST(RowLabels, BothKindsOfProblemStandInFileOrder) {
  EXPECT_THAT(CheckLabels("text\n\"DATA\",\"1\"\nmore\n").findings,
              ElementsAre("ERROR: \r\nUnknown row label (text), line 1 (Rule 3)"
                          "\r\nRow label 'DATA' out of order, line 2 (Rule 2b)"
                          "\r\nUnknown row label (more), line 3 (Rule 3)"));
}

/// Which labels are out of order behind which: one line per state.
TEST(RowLabels, OrderIsToldByTheLabelBefore) {
  const std::vector<std::string> labels{"GROUP", "HEADING", "UNIT", "TYPE", "DATA"};
  const std::vector<std::pair<std::string, std::string>> allowed{
      {"", "GROUP"},    {"GROUP", "HEADING"}, {"HEADING", "UNIT"}, {"UNIT", "TYPE"},
      {"TYPE", "DATA"}, {"DATA", "DATA"},     {"TYPE", "GROUP"},   {"DATA", "GROUP"}};
  std::vector<std::string> starts = labels;
  starts.emplace_back("");
  for (const std::string& before : starts) {
    for (const std::string& label : labels) {
      const std::string problem = "Row label '" + label + "' out of order, line 2 (Rule 2b)";
      const LabelCheck check = CheckLabels(Lines({before, label}));
      const bool isInOrder =
          std::find(allowed.begin(), allowed.end(), std::pair(before, label)) != allowed.end();
      const bool isReported =
          !check.findings.empty() && check.findings.front().find(problem) != std::string::npos;
      EXPECT_EQ(isReported, !isInOrder) << "'" << before << "' then " << label;
    }
  }
}

TEST(RowLabels, AnUnknownLabelKeepsTheState) {
  EXPECT_THAT(CheckLabels("\"GROUP\"\n\"OTHER\"\n\"HEADING\"\n").findings,
              ElementsAre("ERROR: \r\nUnknown row label (OTHER), line 2 (Rule 3)"));
}

TEST(RowLabels, ALabelOutOfOrderSetsTheState) {
  EXPECT_THAT(CheckLabels("\"UNIT\"\n\"TYPE\"\n\"DATA\"\n").findings,
              ElementsAre("ERROR: \r\nRow label 'UNIT' out of order, line 1 (Rule 2b)"));
}

TEST(RowLabels, BlankLinesKeepTheState) {
  EXPECT_FALSE(CheckLabels("\n\"GROUP\"\n\n\"HEADING\"\n   \n\"UNIT\"\n,,,\n\"TYPE\"\n\"\",\"\"\n"
                           "\"DATA\"\n\" \" , \n\"DATA\"")
                   .isFatal);
}

TEST(RowLabels, AreComparedInLetterCase) {
  EXPECT_THAT(CheckLabels("\"Group\",\"PROJ\"").findings,
              ElementsAre("ERROR: \r\nUnknown row label (Group), line 1 (Rule 3)"));
}

TEST(RowLabels, AreTheTextUpToTheFirstCommaUntrimmed) {
  EXPECT_THAT(CheckLabels("\"GROUP \",\"PROJ\"\n GROUP,PROJ\nGROUP;PROJ").findings,
              ElementsAre("ERROR: \r\nUnknown row label (GROUP ), line 1 (Rule 3)"
                          "\r\nUnknown row label ( GROUP), line 2 (Rule 3)"
                          "\r\nUnknown row label (GROUP;PROJ), line 3 (Rule 3)"));
  EXPECT_THAT(CheckLabels(",\"PROJ\"").findings,
              ElementsAre("ERROR: \r\nUnknown row label (), line 1 (Rule 3)"));
  EXPECT_THAT(CheckLabels("\t").findings,
              ElementsAre("ERROR: \r\nUnknown row label (\t), line 1 (Rule 3)"));
}

// ConvertAgs4Rows

struct Conversion {
  bool isFatal = false;
  std::vector<std::string> findings;
  std::vector<std::string> lines;  // as the parser sees them: it takes no trailing blanks
};

Conversion Convert(std::string_view text) {
  LoggedFile logged(AgsFormat::Ags4);
  FileText file = TextOf(text);
  Conversion conversion;
  conversion.isFatal = ConvertAgs4Rows(file, logged.log);
  logged.log.CloseCheckSection("Section");
  conversion.findings = logged.Findings();
  for (std::int32_t number = 1; number <= file.LineCount(); ++number) {
    conversion.lines.emplace_back(TrimRight(file.Line(number)));
  }
  return conversion;
}

TEST(Ags4Rows, AreRewrittenIntoTheCommonForm) {
  const Conversion conversion = Convert(
      "\"GROUP\",\"PROJ\"\n\"HEADING\",\"PROJ_ID\",\"PROJ_NAME\"\n\"UNIT\",\"\",\"\"\n"
      "\"TYPE\",\"ID\",\"X\"\n\"DATA\",\"1\",\"A\"\n\"DATA\",\"2\",\"B, \"\"C\"\"\"\n");
  EXPECT_FALSE(conversion.isFatal);
  EXPECT_THAT(conversion.findings, IsEmpty());
  EXPECT_THAT(conversion.lines,
              ElementsAre("\"**PROJ\"", "\"*PROJ_ID\",\"*PROJ_NAME\"", "\"\",\"\"", "\"ID\",\"X\"",
                          "\"1\",\"A\"", "\"2\",\"B, \"\"C\"\"\""));
}

TEST(Ags4Rows, BlankLinesSeparateGroups) {
  const Conversion conversion = Convert(
      "\"GROUP\",\"AAAA\"\n\"HEADING\",\"A\"\n\"UNIT\",\"\"\n\"TYPE\",\"X\"\n\"DATA\",\"1\"\n"
      "   \n\"GROUP\",\"BBBB\"\n\"HEADING\",\"B\"\n\"UNIT\",\"\"\n\"TYPE\",\"X\"\n\n\n"
      "\"GROUP\",\"CCCC\"");
  EXPECT_FALSE(conversion.isFatal);
  EXPECT_THAT(conversion.findings, IsEmpty());
  EXPECT_EQ(conversion.lines[6], "\"**BBBB\"");
  EXPECT_EQ(conversion.lines[12], "\"**CCCC\"");
}

TEST(Ags4Rows, ABlankLineClosesAGroupInEveryState) {
  EXPECT_FALSE(Convert("\"GROUP\",\"AAAA\"\n\n\"GROUP\",\"BBBB\"\n\"HEADING\",\"B\"\n\n"
                       "\"GROUP\",\"CCCC\"\n\"HEADING\",\"C\"\n\"UNIT\",\"\"\n\n\"GROUP\",\"D\"")
                   .isFatal);
}

TEST(Ags4Rows, TrailingBlanksAreLeftOut) {
  const Conversion conversion = Convert("\"GROUP\",\"PROJ\"  \n\"HEADING\",\"PROJ_ID\"   \n");
  EXPECT_FALSE(conversion.isFatal);
  EXPECT_THAT(conversion.lines, ElementsAre("\"**PROJ\"", "\"*PROJ_ID\""));
}

TEST(Ags4Rows, LabelsMayBeInAnyLetterCaseAndAlone) {
  const Conversion conversion = Convert(
      "\"group\",\"PROJ\"\n\"Heading\",\"A\"\n\"uNIT\",\"\"\n\"Type\",\"X\"\n\"data\",\"1\"\n"
      "\"DATA\"\n\"DATA\",\n\n\"GROUP\"");
  EXPECT_FALSE(conversion.isFatal);
  EXPECT_THAT(conversion.lines,
              ElementsAre("\"**PROJ\"", "\"*A\"", "\"\"", "\"X\"", "\"1\"", "", "", "", "**"));
}

TEST(Ags4Rows, HeadingsWithoutQuotesBetweenThemGetOneAsterisk) {
  EXPECT_EQ(Convert("\"GROUP\",\"A\"\n\"HEADING\",\"A\", \"B\",C,\"D\",\"E\"").lines[1],
            "\"*A\", \"B\",C,\"D\",\"*E\"");
  EXPECT_EQ(Convert("\"GROUP\",\"A\"\n\"HEADING\",A,\"B\"").lines[1], "A*,\"B\"");
}

TEST(Ags4Rows, ALabelAloneGetsNothingBehindIt) {
  const Conversion conversion = Convert("\"GROUP\",\"A\"\n\"HEADING\"\n\"UNIT\"\n\"TYPE\"");
  EXPECT_FALSE(conversion.isFatal);
  EXPECT_THAT(conversion.lines, ElementsAre("\"**A\"", "*", "", ""));
}

TEST(Ags4Rows, AGroupNameWithoutQuotesIsRewrittenLikeAnyOther) {
  EXPECT_EQ(Convert("\"GROUP\",PROJ").lines[0], "P**ROJ");
}

TEST(Ags4Rows, LinesBeforeTheFirstGroupAreReportedAndTakenOut) {
  const Conversion conversion = Convert(
      "First text  \n\n   \n\"HEADING\",\"X\"\n\"GROUP\",\"PROJ\"\n\"HEADING\",\"PROJ_ID\"");
  EXPECT_FALSE(conversion.isFatal);
  EXPECT_THAT(
      conversion.findings,
      ElementsAre("ERROR: Unknown data in file header:\r\nFirst text  \r\n\"HEADING\",\"X\""));
  EXPECT_THAT(conversion.lines, ElementsAre("", "", "", "", "\"**PROJ\"", "\"*PROJ_ID\""));
}

TEST(Ags4Rows, BlankLinesBeforeTheFirstGroupAreNoHeader) {
  const Conversion conversion = Convert("\n   \n\"GROUP\",\"PROJ\"\n\"HEADING\",\"PROJ_ID\"");
  EXPECT_THAT(conversion.findings, IsEmpty());
  EXPECT_EQ(conversion.lines[2], "\"**PROJ\"");
}

TEST(Ags4Rows, ALineOfCommasAndQuotesOnlyIsNoBlankLine) {
  EXPECT_THAT(Convert("\"\",\n\"GROUP\",\"PROJ\"").findings,
              ElementsAre("ERROR: Unknown data in file header:\r\n\"\","));
  const Conversion conversion = Convert("\"GROUP\",\"PROJ\"\n,,,\n\"HEADING\",\"PROJ_ID\"");
  EXPECT_TRUE(conversion.isFatal);
}

TEST(Ags4Rows, AFileWithoutAGroupIsAllHeader) {
  const Conversion conversion = Convert("GROUP,PROJ\nUNIT,\nTYPE,X");
  EXPECT_FALSE(conversion.isFatal);
  EXPECT_THAT(conversion.findings,
              ElementsAre("ERROR: Unknown data in file header:\r\nGROUP,PROJ\r\nUNIT,\r\nTYPE,X"));
  EXPECT_THAT(conversion.lines, ElementsAre("", "", ""));
}

TEST(Ags4Rows, GroupsMustBeSeparatedByABlankLine) {
  const Conversion conversion =
      Convert(std::string(GoodGroup) + "\"GROUP\",\"TRAN\"\n\"HEADING\",\"TRAN_ISNO\"\n");
  EXPECT_TRUE(conversion.isFatal);
  EXPECT_THAT(
      conversion.findings,
      ElementsAre(
          "ERROR: \"GROUP\",\"TRAN\"\r\n    Line out of order. Expected \"DATA\",\"...",
          "ERROR: \"HEADING\",\"TRAN_ISNO\"\r\n    Line out of order. Expected \"DATA\",\"..."));
}

TEST(Ags4Rows, EveryStateReportsItsLabel) {
  EXPECT_THAT(Convert("\"GROUP\",\"A\"\n\"GROUP\",\"B\"").findings,
              ElementsAre("ERROR: \"GROUP\",\"B\"\r\n    Line out of order. Expected "
                          "\"HEADING\",\"..."));
  EXPECT_THAT(Convert("\"GROUP\",\"A\"\n\"HEADING\",\"B\"\n\"TYPE\",\"X\"").findings,
              ElementsAre("ERROR: \"TYPE\",\"X\"\r\n    Line out of order. Expected "
                          "\"UNIT\",\"..."));
  EXPECT_THAT(
      Convert("\"GROUP\",\"A\"\n\"HEADING\",\"B\"\n\"UNIT\",\"\"\n\"DATA\",\"X\"").findings,
      ElementsAre("ERROR: \"DATA\",\"X\"\r\n    Line out of order. Expected \"TYPE\",\"..."));
  EXPECT_THAT(Convert("\"GROUP\",\"A\"\n\n\"DATA\",\"X\"  ").findings,
              ElementsAre("ERROR: \"DATA\",\"X\"\r\n    Line out of order. Expected "
                          "\"GROUP\",\"..."))
      << "the line is shown without trailing blanks";
}

TEST(Ags4Rows, AnEmptyGroupLineInTheMiddleOfAGroupIsFatal) {
  // A blank line between data rows: what follows is expected to open a group.
  const Conversion conversion = Convert(std::string(GoodGroup) + "\n\"DATA\",\"3\"\n");
  EXPECT_TRUE(conversion.isFatal);
  EXPECT_THAT(conversion.findings, ElementsAre("ERROR: \"DATA\",\"3\"\r\n    Line out of order. "
                                               "Expected \"GROUP\",\"..."));
}

TEST(Ags4Rows, TheSameLineOutOfOrderTwiceRunningIsReportedOnce) {
  const Conversion conversion =
      Convert(std::string(GoodGroup) + "\"TYPE\",\"ID\"\n\"TYPE\",\"ID\"\n");
  EXPECT_TRUE(conversion.isFatal);
  EXPECT_THAT(conversion.findings, SizeIs(1));
}

TEST(Ags4Rows, LinesOutOfOrderLoseTheirFirstCharactersToo) {
  const Conversion conversion =
      Convert("\"GROUP\",\"A\"\n\"HEADING\",\"B\"\nabcdefghij\nxyz\n\"D\"\n");
  EXPECT_TRUE(conversion.isFatal);
  EXPECT_THAT(conversion.findings, SizeIs(3));
  EXPECT_THAT(conversion.lines, ElementsAre("\"**A\"", "\"*B\"", "hij", "", ""));
}

TEST(Ags4Rows, AShortLineOutOfOrderBecomesWhatIsInserted) {
  const Conversion conversion = Convert("\"GROUP\",\"A\"\nx\n\ny\nabcdefghij");
  EXPECT_TRUE(conversion.isFatal);
  EXPECT_THAT(conversion.lines, ElementsAre("\"**A\"", "*", "", "**", "*"));
}

// ReportLineOrder

TEST(LineOrder, TextDependsOnTheFormat) {
  LoggedFile ags4(AgsFormat::Ags4);
  EXPECT_TRUE(ReportLineOrder(ags4.log, "\"DATA\",\"1\"", "\"UNIT\""));
  ags4.log.CloseCheckSection("Section");
  EXPECT_THAT(ags4.Findings(), ElementsAre("ERROR: \"DATA\",\"1\"\r\n    Line out of order. "
                                           "Expected \"UNIT\",\"..."));

  LoggedFile ags3(AgsFormat::Ags3);
  EXPECT_TRUE(ReportLineOrder(ags3.log, "\"DATA\",\"1\"", "\"UNIT\""));
  ags3.log.CloseCheckSection("Section");
  EXPECT_THAT(ags3.Findings(),
              ElementsAre("ERROR: \"DATA\",\"1\"\r\n    Line out of order (Rules 2b and 3) . "
                          "Expected \"UNIT\",\"..."));
}

// CheckLowHighAscii

struct ScanResult {
  std::vector<std::string> findings;
  std::vector<std::string> sections;
};

ScanResult ScanCharacters(std::string_view text) {
  LoggedFile logged(AgsFormat::Ags3);
  CheckLowHighAscii(TextOf(text), logged.log);
  return {logged.Findings(), logged.log.Sections()};
}

TEST(LowHighAscii, PlainTextRaisesNothing) {
  std::string plain;
  for (int code = 32; code < 127; ++code)
    plain += static_cast<char>(code);
  const ScanResult result = ScanCharacters(plain + "\n\n" + plain + "\n");
  EXPECT_THAT(result.findings, IsEmpty());
  EXPECT_THAT(result.sections, IsEmpty());
}

TEST(LowHighAscii, ReportsLineAndPosition) {
  const ScanResult result = ScanCharacters(
      "plain\n\xB0"
      "ab\xE9\n\n\tx\n");
  EXPECT_THAT(result.findings, ElementsAre("ERROR: Line 2 - character position 1",
                                           "ERROR: Line 2 - character position 4",
                                           "ERROR: Line 4 - character position 1"));
  EXPECT_THAT(result.sections, ElementsAre("Low/high bit ASCII characters (Rule 1)"));
}

TEST(LowHighAscii, LimitsAre32And127) {
  EXPECT_THAT(
      ScanCharacters(std::string("\x00", 1) + "a\x1F \x7F\x80\xFF").findings,
      ElementsAre("ERROR: Line 1 - character position 1", "ERROR: Line 1 - character position 3",
                  "ERROR: Line 1 - character position 6", "ERROR: Line 1 - character position 7"));
}

TEST(LowHighAscii, EveryByteOfAUtf8CharacterCounts) {
  EXPECT_THAT(ScanCharacters("\xC2\xB0"
                             "C")
                  .findings,
              SizeIs(2));
}

TEST(LowHighAscii, LineEndsInsideALineCount) {
  EXPECT_THAT(ScanCharacters("a\rb\nc").findings,
              ElementsAre("ERROR: Line 1 - character position 2"));
}

TEST(LowHighAscii, NineteenRaiseNoNotice) {
  EXPECT_THAT(ScanCharacters(std::string(19, '\t')).findings, SizeIs(19));
}

TEST(LowHighAscii, TheTwentiethIsTheLastAndIsFollowedByTheNotice) {
  for (const std::size_t count : {20U, 21U, 500U}) {
    const ScanResult result = ScanCharacters(std::string(count, '\t') + "\n\xFF");
    ASSERT_THAT(result.findings, SizeIs(21)) << count;
    EXPECT_EQ(result.findings[19], "ERROR: Line 1 - character position 20");
    EXPECT_EQ(result.findings[20], "No further checks for high or low bit ASCII characters made.");
  }
}

TEST(LowHighAscii, TheLimitHoldsForTheFileAndNotForALine) {
  std::string text;
  for (int line = 1; line <= 30; ++line)
    text += "x\xFF\n";
  const ScanResult result = ScanCharacters(text);
  ASSERT_THAT(result.findings, SizeIs(21));
  EXPECT_EQ(result.findings[19], "ERROR: Line 20 - character position 2");
}

// CheckLineLengths

ScanResult ScanLengths(std::string_view text) {
  LoggedFile logged(AgsFormat::Ags3);
  CheckLineLengths(TextOf(text), logged.log);
  return {logged.Findings(), logged.log.Sections()};
}

TEST(LineLengths, Of240CharactersPass) {
  const ScanResult result = ScanLengths(std::string(240, 'x') + "\n" + std::string(240, 'y'));
  EXPECT_THAT(result.findings, IsEmpty());
  EXPECT_THAT(result.sections, IsEmpty());
}

TEST(LineLengths, Of241CharactersAreReported) {
  const ScanResult result =
      ScanLengths(std::string(241, 'x') + "\nshort\n" + std::string(1234, ' ') + "y");
  EXPECT_THAT(result.findings,
              ElementsAre("ERROR: Line 1 - 241 characters", "ERROR: Line 3 - 1235 characters"));
  EXPECT_THAT(result.sections,
              ElementsAre("Scanning Line Lengths (must be <=240 characters; Rules 12, 13, 18a)"));
}

TEST(LineLengths, CountBytes) {
  EXPECT_THAT(ScanLengths(std::string(239, 'x') + "\xC2\xB0").findings,
              ElementsAre("ERROR: Line 1 - 241 characters"));
}

}  // namespace
}  // namespace quorvane::test
