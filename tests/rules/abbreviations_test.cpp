#include "rules/abbreviations.h"

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "support/check_text.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

using Rows = std::vector<std::vector<std::string>>;
using Findings = std::vector<std::string>;

constexpr std::string_view Ags3Section = "Abbreviations check (Rule 20)";
constexpr std::string_view Ags4Section = "Abbreviations check ";

/// Entries in lines 12 and following (the heading line is 11), then a sample for each type.
std::string Ags3Text(const Rows& entries, const std::vector<std::string>& sampleTypes,
                     const std::vector<std::string>& headings = {"ABBR_HDNG", "ABBR_CODE",
                                                                 "ABBR_DESC"}) {
  Ags3File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_NAME", "PROJ_AGS"}, {"", "", ""},
             {{"P1", "Test project", "3.1"}});
  file.Group("UNIT", {"UNIT_UNIT", "UNIT_DESC"}, {}, {{"m", "metre"}});
  file.Group("ABBR", headings, {}, entries);
  file.Group("HOLE", {"HOLE_ID", "HOLE_FDEP"}, {"", "m"}, {{"BH1", "10.00"}});
  Rows samples;
  for (const std::string& type : sampleTypes) {
    samples.push_back({"BH1", std::to_string(samples.size() + 1), "1", type});
  }
  file.Group("SAMP", {"HOLE_ID", "SAMP_TOP", "SAMP_REF", "SAMP_TYPE"}, {"", "m", "", ""}, samples);
  return file.Text();
}

Findings Check3(const Rows& entries, const std::vector<std::string>& sampleTypes) {
  return CheckText(Ags3Text(entries, sampleTypes)).FindingsOf(Ags3Section);
}

/// Entries in lines 31 and following (the heading line is 28) behind the groups that every file
/// needs, then a sample for each type.
Ags4File Ags4Text(const Rows& entries, const std::vector<std::string>& sampleTypes) {
  Ags4File file = MinimalAgs4();
  file.Group("ABBR", {"ABBR_HDNG", "ABBR_CODE", "ABBR_DESC"}, {"", "", ""}, {"X", "X", "X"},
             entries);
  file.Group("LOCA", {"LOCA_ID"}, {""}, {"ID"}, {{"BH1"}});
  Rows samples;
  for (const std::string& type : sampleTypes) {
    samples.push_back({"BH1", std::to_string(samples.size() + 1), "1", type, ""});
  }
  file.Group("SAMP", {"LOCA_ID", "SAMP_TOP", "SAMP_REF", "SAMP_TYPE", "SAMP_ID"},
             {"", "m", "", "", ""}, {"ID", "2DP", "X", "PA", "ID"}, samples);
  return file;
}

Findings Check4(const Rows& entries, const std::vector<std::string>& sampleTypes) {
  return CheckText(Ags4Text(entries, sampleTypes).Text()).FindingsOf(Ags4Section);
}

TEST(Abbreviations, Ags4FileWithoutAbbrLeavesNoTrace) {
  Ags4File file = MinimalAgs4();
  file.Group("LOCA", {"LOCA_ID", "LOCA_TYPE"}, {"", ""}, {"ID", "PA"}, {{"BH1", "CP"}});
  EXPECT_EQ(CheckText(file.Text()).log.find("Abbreviations check"), std::string::npos);
}

TEST(Abbreviations, Ags3FileWithoutAbbrHasOneError) {
  Ags3File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_NAME", "PROJ_AGS"}, {"", "", ""}, {{"P1", "Test", "3.1"}});
  file.Group("HOLE", {"HOLE_ID", "HOLE_TYPE"}, {"", ""}, {{"BH1", "CP"}});
  EXPECT_EQ(CheckText(file.Text()).FindingsOf(Ags3Section),
            Findings{"ERROR: No ABBR group found (Rule 20)."});
}

TEST(Abbreviations, SectionTitleOfAgs4EndsWithABlank) {
  const CheckResult result = CheckText(Ags4Text({{"SAMP_TYPE", "B", "Bulk"}}, {"U"}).Text());
  EXPECT_NE(result.log.find("\r\nAbbreviations check    2 errors or warnings"), std::string::npos)
      << result.log;
}

TEST(Abbreviations, ListedAndUsedCodesAreSilent) {
  EXPECT_EQ(Check3({{"SAMP_TYPE", "B", "Bulk"}, {"SAMP_TYPE", "U", "Open tube"}}, {"B", "U"}),
            Findings{});
  EXPECT_EQ(Check4({{"SAMP_TYPE", "B", "Bulk"}, {"SAMP_TYPE", "U", "Open tube"}}, {"B", "U"}),
            Findings{});
}

TEST(Abbreviations, KeyFieldMissing) {
  const CheckResult result =
      CheckText(Ags3Text({{"SAMP_TYPE", "Bulk"}}, {"B"}, {"ABBR_HDNG", "ABBR_DESC"}));
  EXPECT_EQ(result.FindingsOf(Ags3Section),
            Findings{"ERROR: Can't check ABBR group because one or more key fields are missing."});
}

TEST(Abbreviations, GroupThatTheDictionaryDoesNotKnowIsNotChecked) {
  constexpr std::string_view schema =
      "'Vexo Schema for AGS\nLOCA\n\nLOCA_ID\n\nPROJ\n\n\n"
      "PROJ\n,1\nPROJ_ID,PROJ_NAME\n,\nID,X\n"
      "SAMP\n,1\nSAMP_REF,SAMP_TYPE\n,\nX,PA\n";
  const CheckResult result =
      CheckTextAgainst(schema, Ags4Text({{"SAMP_TYPE", "B", "Bulk"}}, {"B"}).Text());
  EXPECT_EQ(result.FindingsOf(Ags4Section),
            Findings{"ERROR: Can't check ABBR group because one or more key fields are missing."});
}

TEST(Abbreviations, DescriptionHeadingMissing) {
  const CheckResult result =
      CheckText(Ags3Text({{"SAMP_TYPE", "B"}}, {"B"}, {"ABBR_HDNG", "ABBR_CODE"}));
  EXPECT_EQ(result.FindingsOf(Ags3Section),
            Findings{"WARNING: No 'ABBR_DESC' heading found in the ABBR group"});
}

TEST(Abbreviations, DescriptionsMissingAreListedForAgs3Only) {
  const Rows entries{{"SAMP_TYPE", "b", ""}, {"SAMP_TYPE", "U", "Tube"}, {"?SAMP_TYPE", "D", ""}};
  EXPECT_EQ(Check3(entries, {"B", "U", "D"}),
            Findings{"WARNING: The following ABBR_HDNG-ABBR_CODE values did not have ABBR_DESC "
                     "values in the ABBR group:\r\nSAMP_TYPE-B\r\nSAMP_TYPE-D"});
  EXPECT_EQ(Check4(entries, {"B", "U", "D"}), Findings{});
}

TEST(Abbreviations, HeadingOfAnEntryMayHaveAQuestionMark) {
  EXPECT_EQ(Check3({{"?SAMP_TYPE", "B", "Bulk"}}, {"B"}), Findings{});
  EXPECT_EQ(Check4({{"?SAMP_TYPE", "B", "Bulk"}}, {"B"}), Findings{});
}

TEST(Abbreviations, HeadingOfTheDataMayHaveAQuestionMark) {
  Ags3File file = MinimalAgs3();
  file.Group("?MONP", {"?HOLE_ID", "?MONP_DIS", "?MONP_ID", "?MONP_TYPE"}, {"", "m", "", ""},
             {{"BH1", "1.00", "P1", "SP"}});
  const Findings findings = CheckText(file.Text()).FindingsOf(Ags3Section);
  EXPECT_EQ(findings,
            Findings{"ERROR: There are data for MONP_TYPE but no entries in the ABBR group. This "
                     "heading requires abbreviation listings (Rule 20)."});
}

TEST(Abbreviations, ValuesAreComparedWithoutLetterCase) {
  EXPECT_EQ(Check3({{"samp_type", "b", "Bulk"}, {"Samp_Type", "Tub", "Tub"}}, {"B", "tUB"}),
            Findings{});
}

TEST(Abbreviations, ListsUseEachOfTheirCodes) {
  const Rows entries{{"SAMP_TYPE", "B", "Bulk"}, {"SAMP_TYPE", "U", "Open tube"}};
  for (const std::string list : {"B+U", "B + U"}) {
    EXPECT_EQ(Check3(entries, {list}), Findings{}) << list;
    EXPECT_EQ(Check4(entries, {list}), Findings{}) << list;
  }
}

TEST(Abbreviations, BlankOnOneSideOfACodeIsNoMatchForItsEntryButNoErrorEither) {
  const Rows entries{
      {"SAMP_TYPE", "B", "Bulk"}, {"SAMP_TYPE", "U", "Open tube"}, {"SAMP_TYPE", "D", "Small"}};
  EXPECT_EQ(Check3(entries, {"D+B +U"}),
            Findings{"FYI: Line 12 - No references in the data to ABBR_CODE 'B' in heading "
                     "'SAMP_TYPE'"});
}

TEST(Abbreviations, CodeWithBlanksIsTakenAsWritten) {
  EXPECT_EQ(Check3({{"SAMP_TYPE", "B ", "Bulk"}}, {"B"}),
            (Findings{"FYI: Line 12 - No references in the data to ABBR_CODE 'B ' in heading "
                      "'SAMP_TYPE'",
                      "ERROR: Line 11 - Code B under SAMP_TYPE in group 'ABBR' not found in the "
                      "ABBR group."}));
}

TEST(Abbreviations, CodeWithACommaIsOneCode) {
  EXPECT_EQ(Check3({{"SAMP_TYPE", "B,U", "Both"}}, {"B,U", "B"}),
            Findings{"ERROR: Line 11 - Code B under SAMP_TYPE in group 'ABBR' not found in the "
                     "ABBR group."});
}

TEST(Abbreviations, ConcatenatorIsThatOfTheFile) {
  std::string text =
      Ags4Text({{"SAMP_TYPE", "B", "Bulk"}, {"SAMP_TYPE", "U", "Tube"}}, {"B;U"}).Text();
  text = ReplaceAll(text, "\"|\",\"+\"", "\"|\",\";\"");
  EXPECT_EQ(CheckText(text).FindingsOf(Ags4Section), Findings{});
  text = ReplaceAll(text, "\"|\",\";\"", "\"|\",\"\"");  // none given: "+"
  EXPECT_EQ(CheckText(text).FindingsOf(Ags4Section),
            (Findings{"FYI: Line 31 - No references in the data to ABBR_CODE 'B' in heading "
                      "'SAMP_TYPE'",
                      "FYI: Line 32 - No references in the data to ABBR_CODE 'U' in heading "
                      "'SAMP_TYPE'",
                      "ERROR: Line 28 - Code B;U under SAMP_TYPE in group 'ABBR' not found in the "
                      "ABBR group."}));
}

TEST(Abbreviations, RepeatedEntryIsPassedOver) {
  const Rows entries{{"SAMP_TYPE", "B", "Bulk"}, {"SAMP_TYPE", "B", ""}, {"SAMP_TYPE", "b", ""}};
  EXPECT_EQ(Check3(entries, {"B"}), Findings{});
  EXPECT_EQ(Check4(entries, {"B"}), Findings{});
}

TEST(Abbreviations, ContaminantTypeBelongsToTheCodeGroupInAgs3) {
  const Rows entries{{"SAMP_TYPE", "B", "Bulk"}, {"cnmt_type", "X", ""}};
  EXPECT_EQ(Check3(entries, {"B"}),
            Findings{"ERROR: Line 13 - CNMT_TYPE cannot be in the ABBR group. All CNMT_TYPE "
                     "abbreviations must be in the CODE group (Rule 25)."});
  EXPECT_EQ(Check4(entries, {"B"}),
            Findings{"FYI: Line 32 - No references to ABBR_HDNG CNMT_TYPE in data file."});
}

TEST(Abbreviations, EntriesWithoutHeadingOrCode) {
  const Rows entries{{"", "B", "Bulk"}, {"SAMP_TYPE", "", "Bulk"}, {"SAMP_TYPE", "U", "Tube"}};
  EXPECT_EQ(Check3(entries, {"U"}),
            (Findings{"ERROR: Line 12 - ABBR_HDNG value missing.",
                      "ERROR: Line 13 - ABBR_CODE value is missing for ABBR_HDNG SAMP_TYPE"}));
  EXPECT_EQ(Check4(entries, {"U"}), Findings{});
}

TEST(Abbreviations, HeadingOfAnEntryThatNoGroupHas) {
  const Rows entries{
      {"GEOL_LEG", "201", "Clay"}, {"SAMP_TYPE", "B", "Bulk"}, {"SAMPTYPE", "B", ""}};
  EXPECT_EQ(Check3(entries, {"B"}),
            (Findings{"FYI: Line 12 - No references to ABBR_HDNG GEOL_LEG in data file.",
                      "FYI: Line 14 - No references to ABBR_HDNG SAMPTYPE in data file."}));
  EXPECT_EQ(Check4(entries, {"B"}),
            (Findings{"FYI: Line 31 - No references to ABBR_HDNG GEOL_LEG in data file.",
                      "FYI: Line 33 - No references to ABBR_HDNG SAMPTYPE in data file."}));
}

TEST(Abbreviations, NoUsableDataEndsTheCheck) {
  const std::string error = "ERROR: No usable data found under the ABBR group";
  EXPECT_EQ(
      Check3({{"GEOL_LEG", "201", "Clay"}, {"SAMP_TYPE", "", ""}}, {"B"}),
      (Findings{"FYI: Line 12 - No references to ABBR_HDNG GEOL_LEG in data file.",
                "ERROR: Line 13 - ABBR_CODE value is missing for ABBR_HDNG SAMP_TYPE", error}));
  EXPECT_EQ(Check4({{"SAMP_TYPE", "", ""}}, {"B"}), Findings{error});
  EXPECT_EQ(Check3({}, {"B"}), Findings{error});
}

TEST(Abbreviations, UnlistedCodesStandAtTheHeadingLineOfAbbr) {
  const Rows entries{{"SAMP_TYPE", "B", "Bulk"}};
  const auto finding = [](std::string_view line, std::string_view code) {
    return "ERROR: Line " + std::string(line) + " - Code " + std::string(code) +
           " under SAMP_TYPE in group 'ABBR' not found in the ABBR group.";
  };
  EXPECT_EQ(Check3(entries, {"B", "u+w", "D", "B"}),
            (Findings{finding("11", "U"), finding("11", "W"), finding("11", "D")}));
  EXPECT_EQ(Check4(entries, {"B", " u + w ", "D"}),
            (Findings{finding("28", "U"), finding("28", "W"), finding("28", "D")}));
}

TEST(Abbreviations, UnlistedCodeIsReportedForEachCellButNotTwiceRunning) {
  const Findings findings =
      Check3({{"SAMP_TYPE", "B", "Bulk"}}, {"U", "U", "", "U", "D", "U", "B"});
  const std::string tube =
      "ERROR: Line 11 - Code U under SAMP_TYPE in group 'ABBR' not found in the ABBR group.";
  EXPECT_EQ(findings, (Findings{tube,
                                "ERROR: Line 11 - Code D under SAMP_TYPE in group 'ABBR' not found "
                                "in the ABBR group.",
                                tube}));
}

TEST(Abbreviations, EntriesOfAHeadingWithoutAnyCodeListNothing) {
  const Rows entries{{"SAMP_TYPE", "", ""}, {"HOLE_ID", "BH1", "The first"}};
  EXPECT_EQ(Check3(entries, {"B"}),
            (Findings{"ERROR: Line 12 - ABBR_CODE value is missing for ABBR_HDNG SAMP_TYPE",
                      "ERROR: Line 11 - Code B under SAMP_TYPE in group 'ABBR' not found in the "
                      "ABBR group."}));
}

TEST(Abbreviations, DataWithoutEntriesIsOneErrorForEachHeading) {
  const Rows entries{{"HOLE_ID", "BH1", "The first"}};
  EXPECT_EQ(Check3(entries, {"", "B", "U", "B"}),
            Findings{"ERROR: There are data for SAMP_TYPE but no entries in the ABBR group. This "
                     "heading requires abbreviation listings (Rule 20)."});
  EXPECT_EQ(Check3(entries, {"", ""}), Findings{});
  EXPECT_EQ(Check4({{"LOCA_ID", "BH1", "The first"}}, {"B", "U", "B"}),
            Findings{"ERROR: There are data for SAMP_TYPE but no entries in the ABBR group. This "
                     "heading requires abbreviation listings ."});
}

}  // namespace
}  // namespace quorvane::test
