#include "rules/types.h"

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/check_text.h"

namespace quorvane::test {
namespace {

using Findings = std::vector<std::string>;
using Rows = std::vector<std::vector<std::string>>;
using testing::IsEmpty;

constexpr std::string_view Title = "TYPE check ";

Findings TypeFindings(const CheckResult& result) {
  return result.FindingsOf(Title);
}

std::string Error(int line, std::string_view text) {
  return "ERROR: Line " + std::to_string(line) + " - " + std::string(text);
}

std::string Mismatch(int line, std::string_view heading, std::string_view value,
                     std::string_view type) {
  return Error(line, "Value for field '" + std::string(heading) + "' (" + std::string(value) +
                         ") does not match the required field type (" + std::string(type) + ")");
}

std::string NotUsed(std::string_view types) {
  return "FYI: The following TYPE_TYPE values are in the TYPE group but not found in any of the "
         "data groups:\r\n" +
         std::string(types);
}

/// A project and a transmission, without findings of this check.
Ags4File Start(const std::string& delimiter = "|", const std::string& concatenator = "+") {
  Ags4File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_NAME"}, {"", ""}, {"ID", "X"}, {{"P1", "Test project"}});
  file.Group("TRAN", {"TRAN_AGS", "TRAN_DLIM", "TRAN_RCON"}, {"", "", ""}, {"X", "X", "X"},
             {{"4.0.3", delimiter, concatenator}});
  return file;
}

/// A group of a location and one column, behind a start of 11 lines: the group's line is 13, its
/// rows begin at 17.
Ags4File OneColumn(const std::string& type, const std::string& unit,
                   const std::vector<std::string>& values) {
  Ags4File file = Start();
  Rows rows;
  for (const std::string& value : values)
    rows.push_back({"BH1", value});
  file.Group("ABCD", {"LOCA_ID", "ABCD_VAL"}, {"", unit}, {"ID", type}, rows);
  return file;
}
constexpr int HeadingLine = 14;
constexpr int UnitLine = 15;
constexpr int FirstRowLine = 17;

/// The findings about one column's values, in a file that has no TYPE group.
Findings ColumnFindings(const std::string& type, const std::string& unit,
                        const std::vector<std::string>& values) {
  return TypeFindings(CheckText(OneColumn(type, unit, values).Text()));
}

Findings Mismatches(const std::string& type, const std::vector<std::pair<int, std::string>>& rows) {
  Findings findings;
  for (const auto& [row, value] : rows)
    findings.push_back(Mismatch(FirstRowLine + row - 1, "ABCD_VAL", value, type));
  return findings;
}

// The TYPE group.

TEST(TypeGroup, WithoutOneColumnsAndValuesAreCheckedAndNothingIsHeldAgainstAList) {
  Ags4File file = Start();
  file.Group("ABCD", {"LOCA_ID", "ABCD_ONE", "ABCD_TWO", "ABCD_TRE"}, {"", "", "", ""},
             {"ID", "2DP", "", "9XY"}, {{"BH1", "1.5", "", "1"}});
  EXPECT_EQ(TypeFindings(CheckText(file.Text())),
            (Findings{Mismatch(17, "ABCD_ONE", "1.5", "2DP"),
                      Error(14, "Data type is missing for 'ABCD.ABCD_TWO'"),
                      Error(14, "Unknown data type (9XY) for field 'ABCD.ABCD_TRE'")}));
}

TEST(TypeGroup, WithoutTypeHeadingTheCheckEnds) {
  Ags4File file = OneColumn("9XY", "", {"1"});
  file.Group("TYPE", {"TYPE_DESC"}, {""}, {"X"}, {{"Text"}});
  const CheckResult result = CheckText(file.Text());
  EXPECT_EQ(result.FindingsOf("TYPE check aborted"),
            Findings{"ERROR: No TYPE_TYPE heading found in the TYPE group"});
  EXPECT_FALSE(result.HasSection(Title));
  EXPECT_FALSE(result.HasText("9XY"));
}

TEST(TypeGroup, WithoutDescriptionHeadingIsReportedAndRead) {
  Ags4File file = Start();
  file.Group("TYPE", {"TYPE_TYPE"}, {""}, {"X"}, {{"ID"}, {"X"}, {"MC"}});
  EXPECT_EQ(TypeFindings(CheckText(file.Text())),
            (Findings{"WARNING: No 'TYPE_DESC' heading found in the TYPE group", NotUsed("MC")}));
}

TEST(TypeGroup, WithoutEntriesIsReportedAndNothingIsHeldAgainstIt) {
  Ags4File file = OneColumn("2DP", "", {"1.5"});
  file.Group("TYPE", {"TYPE_TYPE", "TYPE_DESC"}, {"", ""}, {"X", "X"}, {{"", "Text"}});
  EXPECT_EQ(TypeFindings(CheckText(file.Text())),
            (Findings{"ERROR: No data found under the TYPE_TYPE heading in the TYPE group",
                      Mismatch(17, "ABCD_VAL", "1.5", "2DP")}));
}

TEST(TypeGroup, DescriptionsAreNotMissedHereInAgs4) {
  Ags4File file = Start();
  file.Group("TYPE", {"TYPE_TYPE", "TYPE_DESC"}, {"", ""}, {"X", "X"}, {{"ID", ""}, {"X", ""}});
  EXPECT_THAT(TypeFindings(CheckText(file.Text())), IsEmpty());
}

TEST(TypeGroup, TypesNotListedAreReportedAndTheirValuesChecked) {
  Ags4File file = OneColumn("2DP", "", {"1.5", "1.50"});
  file.Group("TYPE", {"TYPE_TYPE", "TYPE_DESC"}, {"", ""}, {"X", "X"},
             {{"ID", "Identifier"}, {"X", "Text"}, {"2dp", "Decimals"}});
  EXPECT_EQ(
      TypeFindings(CheckText(file.Text())),
      (Findings{
          Error(14,
                "'ABCD.ABCD_VAL' has the data type (2DP) which is not listed in the TYPE group"),
          Mismatch(17, "ABCD_VAL", "1.5", "2DP"), NotUsed("2dp")}));
}

TEST(TypeGroup, EntriesNotUsedAreListedInFileOrder) {
  Ags4File file = Start();
  file.Group("TYPE", {"TYPE_TYPE", "TYPE_DESC"}, {"", ""}, {"X", "X"},
             {{"YN", "a"}, {"ID", "b"}, {"ID", "c"}, {"", "d"}, {"X", "e"}, {"DT", "f"}});
  // Of an entry that is there twice, only the first is ever used.
  EXPECT_EQ(TypeFindings(CheckText(file.Text())), Findings{NotUsed("YN\r\nID\r\nDT")});
}

TEST(TypeGroup, ItsOwnColumnsAreCheckedToo) {
  Ags4File file = Start();
  file.Group("TYPE", {"TYPE_TYPE", "TYPE_DESC"}, {"", ""}, {"X", "0DP"}, {{"ID", "a"}, {"X", "1"}});
  EXPECT_EQ(
      TypeFindings(CheckText(file.Text())),
      (Findings{
          Error(14,
                "'TYPE.TYPE_DESC' has the data type (0DP) which is not listed in the TYPE group"),
          Mismatch(17, "TYPE_DESC", "a", "0DP")}));
}

TEST(TypeGroup, TitleHasItsBlank) {
  const CheckResult result = CheckText(OneColumn("2DP", "", {"1.5"}).Text());
  EXPECT_NE(result.log.find("\r\nTYPE check    1 error or warning or informational message\r\n"),
            std::string::npos)
      << result.log;
}

TEST(TypeGroup, WithoutFindingsThereIsNoSection) {
  EXPECT_FALSE(CheckText(MinimalAgs4().Text()).HasSection(Title));
}

// Columns.

TEST(TypeColumns, UnknownTypesAreReportedOnceAndValuesLeftAlone) {
  for (const std::string type : {"dp", "2dp", "DP", "2", "5XY", "yn", " X"}) {
    EXPECT_EQ(
        ColumnFindings(type, "", {"a", "b"}),
        Findings{Error(HeadingLine, "Unknown data type (" + type + ") for field 'ABCD.ABCD_VAL'")});
  }
}

TEST(TypeColumns, MissingTypeIsReportedAndValuesLeftAlone) {
  EXPECT_EQ(ColumnFindings("", "", {"a"}),
            Findings{Error(HeadingLine, "Data type is missing for 'ABCD.ABCD_VAL'")});
}

TEST(TypeColumns, DateWithoutUnitIsReportedAtTheHeadingLine) {
  EXPECT_EQ(ColumnFindings("DT", "", {"never"}),
            Findings{Error(HeadingLine,
                           "A date/time format unit is required for DT fields (ABCD.ABCD_VAL)")});
}

TEST(TypeColumns, ElapsedTimeWithoutUnitIsReportedAtTheUnitLine) {
  EXPECT_EQ(ColumnFindings("T", "", {"never"}),
            Findings{Error(
                UnitLine, "An elapsed time format unit is required for T fields (ABCD.ABCD_VAL)")});
}

TEST(TypeColumns, FindingsGoColumnByColumn) {
  Ags4File file = Start();
  Rows rows;
  for (int row = 1; row <= 700; ++row) {
    const bool isBad = row % 100 == 0;
    rows.push_back({"BH1", isBad ? "x" : "1.50", isBad ? "y" : "Y", row == 1 ? "z" : "2"});
  }
  file.Group("ABCD", {"LOCA_ID", "ABCD_ONE", "ABCD_TWO", "ABCD_TRE"}, {"", "", "", ""},
             {"ID", "2DP", "YN", "0DP"}, rows);
  Findings expected;
  for (int row = 100; row <= 700; row += 100)
    expected.push_back(Mismatch(16 + row, "ABCD_ONE", "x", "2DP"));
  for (int row = 100; row <= 700; row += 100)
    expected.push_back(Mismatch(16 + row, "ABCD_TWO", "y", "YN"));
  expected.push_back(Mismatch(17, "ABCD_TRE", "z", "0DP"));
  EXPECT_EQ(TypeFindings(CheckText(file.Text())), expected);
}

TEST(TypeColumns, EveryRowOfALongGroupIsLookedAtOnce) {
  std::vector<std::string> values;
  std::vector<std::pair<int, std::string>> bad;
  for (int row = 1; row <= 1000; ++row) {
    values.push_back("x" + std::to_string(row));
    bad.emplace_back(row, values.back());
  }
  EXPECT_EQ(ColumnFindings("U", "", values), Mismatches("U", bad));
}

TEST(TypeColumns, GroupsOfOneNameAreAllChecked) {
  Ags4File file = OneColumn("0DP", "", {"a"});
  file.Group("ABCD", {"LOCA_ID", "ABCD_VAL"}, {"", ""}, {"ID", "0DP"}, {{"BH1", "b"}});
  EXPECT_EQ(TypeFindings(CheckText(file.Text())),
            (Findings{Mismatch(17, "ABCD_VAL", "a", "0DP"), Mismatch(23, "ABCD_VAL", "b", "0DP")}));
}

// Values.

TEST(TypedValues, AnyTextFitsTheTextTypes) {
  for (const std::string type : {"X", "XN", "PA", "PT", "PU"})
    EXPECT_THAT(ColumnFindings(type, "", {"a", "", "1.5", "Y"}), IsEmpty()) << type;
}

TEST(TypedValues, EmptyValuesFitEveryType) {
  for (const std::string type :
       {"DMS", "DT", "ID", "RL", "MC", "U", "T", "YN", "0DP", "2DP", "3SF", "1SCI"}) {
    EXPECT_THAT(ColumnFindings(type, "hh:mm", {"", "", ""}), IsEmpty()) << type;
  }
}

TEST(TypedValues, AreHeldAgainstTheirType) {
  EXPECT_EQ(ColumnFindings("2DP", "m", {"1.5", "1.50", "1.5E1"}),
            Mismatches("2DP", {{1, "1.5"}, {3, "1.5E1"}}));
  EXPECT_EQ(ColumnFindings("0DP", "", {"12", "12.", "12.0"}), Mismatches("0DP", {{3, "12.0"}}));
  EXPECT_EQ(ColumnFindings("2SF", "", {"0.0", "0", "0.00", "-0.012", "1200", "1201"}),
            Mismatches("2SF", {{2, "0"}, {3, "0.00"}, {6, "1201"}}));
  EXPECT_EQ(ColumnFindings("2SCI", "", {"1.20E3", "1.2E3", "1.20"}),
            Mismatches("2SCI", {{2, "1.2E3"}, {3, "1.20"}}));
  EXPECT_EQ(ColumnFindings("DMS", "", {"359:59:59.9", "360:00:00", "10:60:00", "10:00"}),
            Mismatches("DMS", {{2, "360:00:00"}, {3, "10:60:00"}, {4, "10:00"}}));
  EXPECT_EQ(ColumnFindings("MC", "%", {"10", "10.0", "9.5", "9", "9.55"}),
            Mismatches("MC", {{2, "10.0"}, {4, "9"}, {5, "9.55"}}));
  EXPECT_EQ(ColumnFindings("U", "", {"1", "-1.5E3", "a", "1 000", " 1"}),
            Mismatches("U", {{3, "a"}, {4, "1 000"}, {5, " 1"}}));
  EXPECT_EQ(ColumnFindings("YN", "", {"Y", "N", "", "y", "n", "Yes"}),
            Mismatches("YN", {{4, "y"}, {5, "n"}, {6, "Yes"}}));
}

TEST(TypedValues, DatesAreShownAsWrittenWithTypeAndUnit) {
  EXPECT_EQ(ColumnFindings("DT", "yyyy-mm-dd", {"2023-01-05", "2023-1-5", "2023-02-30"}),
            Mismatches("DT - yyyy-mm-dd", {{2, "2023-1-5"}, {3, "2023-02-30"}}));
  EXPECT_EQ(ColumnFindings("DT", "yyyy-mm-ddThh:mm",
                           {"2023-01-05T10:30", "2023-01-05 10:30", "2023-01-05T24:00"}),
            Mismatches("DT - yyyy-mm-ddThh:mm", {{3, "2023-01-05T24:00"}}));
  EXPECT_EQ(ColumnFindings("DT", "dd/mm/yyyy", {"05/01/2023", "2023-01-05"}),
            Mismatches("DT - dd/mm/yyyy", {{2, "2023-01-05"}}));
}

TEST(TypedValues, ElapsedTimesAreShownWithTypeAndUnit) {
  EXPECT_EQ(ColumnFindings("T", "hh:mm:ss", {"100:60:60", "1:61:00", "1.5:00:00", "1:00"}),
            Mismatches("T - hh:mm:ss", {{2, "1:61:00"}, {3, "1.5:00:00"}, {4, "1:00"}}));
}

// Identifiers.

/// SAMP with a reference to the location, its own identifier and that of another group.
Ags4File Samples(const Rows& rows) {
  Ags4File file = Start();
  file.Group("SAMP", {"LOCA_ID", "SAMP_ID", "SPEC_ID"}, {"", "", ""}, {"ID", "ID", "ID"}, rows);
  return file;
}

TEST(Identifiers, OfTheirOwnGroupAreUnique) {
  const Ags4File file = Samples({{"BH1", "S1", "T1"},
                                 {"BH1", "S2", "T1"},
                                 {"BH1", "S1", "T1"},
                                 {"BH1", "s1", ""},
                                 {"BH1", "", ""},
                                 {"BH1", "", ""},
                                 {"BH1", "S1", ""}});
  EXPECT_EQ(TypeFindings(CheckText(file.Text())),
            (Findings{Error(19, "ID field value 'S1' is repeated"),
                      Error(23, "ID field value 'S1' is repeated")}));
}

TEST(Identifiers, OfProjectsAndLocationsMayBeRepeated) {
  Ags4File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_REF"}, {"", ""}, {"ID", "ID"}, {{"P1", "R"}, {"P1", "R"}});
  file.Group("LOCA", {"LOCA_ID", "LOCA_REF"}, {"", ""}, {"ID", "ID"}, {{"BH1", "R"}, {"BH1", "R"}});
  EXPECT_EQ(TypeFindings(CheckText(file.Text())),
            (Findings{Error(6, "ID field value 'R' is repeated"),
                      Error(13, "ID field value 'R' is repeated")}));
}

TEST(Identifiers, ColumnsOfOtherTypesMayRepeat) {
  Ags4File file = Start();
  file.Group("SAMP", {"LOCA_ID", "SAMP_ID"}, {"", ""}, {"ID", "X"}, {{"BH1", "S1"}, {"BH1", "S1"}});
  EXPECT_THAT(TypeFindings(CheckText(file.Text())), IsEmpty());
}

TEST(Identifiers, BehindThirtyCharactersPerRowNothingIsKept) {
  const std::string longest(59, 'a');  // with its TAB, all the room of two rows
  EXPECT_EQ(TypeFindings(CheckText(Samples({{"BH1", longest, ""}, {"BH1", longest, ""}}).Text())),
            Findings{Error(18, "ID field value '" + longest + "' is repeated")});
  const std::string tooLong(61, 'a');
  EXPECT_THAT(TypeFindings(CheckText(Samples({{"BH1", tooLong, ""}, {"BH1", tooLong, ""}}).Text())),
              IsEmpty());
}

// Record links.

/// Locations, samples with a key of several parts, and a group with one column of record links.
/// The groups before are 14 lines; the first link's line is 32.
CheckResult CheckLinks(const std::vector<std::string>& links, const std::string& delimiter = "|",
                       const std::string& concatenator = "+") {
  Ags4File file = Start(delimiter, concatenator);
  file.Group("LOCA", {"LOCA_ID", "LOCA_TYPE"}, {"", ""}, {"ID", "PA"},
             {{"BH1", "CP"}, {"BH2 ", "RC"}, {"bh3", "RC"}});
  file.Group("SAMP", {"LOCA_ID", "SAMP_TOP", "SAMP_REF", "SAMP_TYPE", "SAMP_ID"},
             {"", "m", "", "", ""}, {"ID", "2DP", "X", "PA", "ID"},
             {{"BH1", "1.00", "1", "B", "S1"}, {"BH1", "2.50", "", "U", "S2"}});
  Rows rows;
  for (const std::string& link : links)
    rows.push_back({"BH1", link});
  file.Group("ABCD", {"LOCA_ID", "ABCD_LINK"}, {"", ""}, {"ID", "RL"}, rows);
  return CheckText(file.Text());
}
constexpr int FirstLinkLine = 32;

std::string NoGroup(int link, std::string_view group) {
  return Error(FirstLinkLine + link - 1,
               "RecordLink group \"" + std::string(group) + "\" not found (Rule 11c).");
}

std::string NoRecord(int link, std::string_view text) {
  return Error(FirstLinkLine + link - 1,
               "RecordLink record \"" + std::string(text) + "\" not found (Rule 11c).");
}

TEST(RecordLinks, NameAGroupAndTheKeyOfARow) {
  EXPECT_EQ(TypeFindings(CheckLinks({"LOCA|BH1", "XXXX|BH1", "LOCA|BH9", "", "LOCA|BH1"})),
            (Findings{NoGroup(2, "XXXX"), NoRecord(3, "LOCA|BH9")}));
}

TEST(RecordLinks, KeysOfSeveralPartsAreComparedAsWritten) {
  EXPECT_EQ(TypeFindings(
                CheckLinks({"SAMP|BH1|1.00|1|B|S1", "SAMP|BH1|2.50||U|S2", "SAMP|BH1|1.0|1|B|S1",
                            "SAMP|BH1|1.00|1|B", "SAMP|BH1|1.00|1|B|S1|", "SAMP|BH1|1.00|1|b|S1"})),
            (Findings{NoRecord(3, "SAMP|BH1|1.0|1|B|S1"), NoRecord(4, "SAMP|BH1|1.00|1|B"),
                      NoRecord(5, "SAMP|BH1|1.00|1|B|S1|"), NoRecord(6, "SAMP|BH1|1.00|1|b|S1")}));
}

TEST(RecordLinks, BlanksAreTakenOffTheRightOfKeyPartsOnly) {
  EXPECT_EQ(TypeFindings(CheckLinks(
                {"LOCA|BH1  ", "LOCA|BH2", "LOCA| BH1", "LOCA |BH1", " LOCA|BH1", "LOCA|BH3"})),
            (Findings{NoRecord(3, "LOCA| BH1"), NoGroup(4, "LOCA "), NoGroup(5, " LOCA"),
                      NoRecord(6, "LOCA|BH3")}));
}

TEST(RecordLinks, EachLinkOfAValueIsReportedOnItsOwn) {
  EXPECT_EQ(TypeFindings(CheckLinks(
                {"LOCA|BH1+LOCA|BH2", "XXXX|BH1+LOCA|BH8+LOCA|BH1+LOCA|BH9", "LOCA|BH1+", "+"})),
            (Findings{NoGroup(2, "XXXX"), NoRecord(2, "LOCA|BH8"), NoRecord(2, "LOCA|BH9"),
                      NoGroup(3, ""),
                      // The second of two equal findings that follow one another is dropped.
                      NoGroup(4, "")}));
}

TEST(RecordLinks, ALinkMayLackItsKey) {
  EXPECT_EQ(
      TypeFindings(CheckLinks({"LOCA", "LOCA|", "|", "loca|BH1"})),
      (Findings{NoRecord(1, "LOCA"), NoRecord(2, "LOCA|"), NoGroup(3, ""), NoGroup(4, "loca")}));
}

TEST(RecordLinks, RowsOfAGroupWithoutKeyHaveAnEmptyKey) {
  EXPECT_EQ(TypeFindings(CheckLinks({"ABCD|", "ABCD", "ABCD|BH1"})),
            Findings{NoRecord(3, "ABCD|BH1")});
}

TEST(RecordLinks, SeparatorsAreThoseOfTheTransmission) {
  EXPECT_EQ(TypeFindings(CheckLinks({"LOCA/BH1;LOCA/BH9", "LOCA|BH1"}, "/", ";")),
            (Findings{NoRecord(1, "LOCA/BH9"), NoGroup(2, "LOCA|BH1")}));
  EXPECT_THAT(TypeFindings(CheckLinks({"LOCA::BH1&&LOCA::BH2"}, "::", "&&")), IsEmpty());
}

TEST(RecordLinks, WithoutATransmissionsSeparatorsTheUsualOnesHold) {
  EXPECT_EQ(TypeFindings(CheckLinks({"LOCA|BH1+LOCA|BH9"}, "", "")),
            Findings{NoRecord(1, "LOCA|BH9")});
}

TEST(RecordLinks, ALetterJoinsLinksInEitherCase) {
  EXPECT_EQ(TypeFindings(CheckLinks({"LOCA|BH1zLOCA|BH2ZLOCA|BH2zLOCA|BH9"}, "|", "Z")),
            Findings{NoRecord(1, "LOCA|BH9")});
}

TEST(RecordLinks, OfGroupsOfOneNameTheFirstIsSearched) {
  Ags4File file = Start();
  file.Group("LOCA", {"LOCA_ID"}, {""}, {"ID"}, {{"BH1"}});
  file.Group("LOCA", {"LOCA_ID"}, {""}, {"ID"}, {{"BH2"}});
  file.Group("ABCD", {"ABCD_LINK"}, {""}, {"RL"}, {{"LOCA|BH1"}, {"LOCA|BH2"}});
  EXPECT_EQ(TypeFindings(CheckText(file.Text())),
            Findings{Error(30, "RecordLink record \"LOCA|BH2\" not found (Rule 11c).")});
}

// The dictionary that was named for the run.

constexpr std::string_view Schema =
    "'Vexo Schema for AGS\nLOCA\n\nLOCA_ID\n\nPROJ\n\nPROJ.PROJ_ID\n\n"
    "PROJ\n,1\nPROJ_ID,PROJ_NAME\n,\nID,X\n"
    "LOCA\nPROJ,1\nLOCA_ID,LOCA_GL,LOCA_STAR,LOCA_REM\n,m,yyyy-mm-dd,\nID,2DP,DT,\n"
    "HOLE\n,1\nHOLE_ID,HOLE_GL,HOLE_STAR,HOLE_ETRV\n,m,dd/mm/yyyy,\nID,2DP,DT,\n";

constexpr std::string_view DifferencesTitle =
    "Data types in custom dictionary that did not match types in file:";

TEST(NamedDictionary, ItsTypeIsTakenWhereTheFileHasNone) {
  Ags4File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_NAME"}, {"", ""}, {"ID", "X"}, {{"P1", "Name"}});
  file.Group("LOCA", {"LOCA_ID", "LOCA_GL", "LOCA_STAR", "LOCA_REM", "LOCA_XYZ"},
             {"", "m", "yyyy-mm-dd", "", ""}, {"ID", "", "", "", ""},
             {{"BH1", "1.5", "2023-1-5", "a", "b"}});
  file.Group("TYPE", {"TYPE_TYPE", "TYPE_DESC"}, {"", ""}, {"X", "X"},
             {{"ID", "a"}, {"X", "b"}, {"2DP", "c"}});
  const CheckResult result = CheckTextAgainst(Schema, file.Text());
  // The dictionary's type counts as used and must be listed; columns without any type are silent.
  EXPECT_EQ(
      TypeFindings(result),
      (Findings{
          Mismatch(11, "LOCA_GL", "1.5", "2DP"),
          Error(8, "'LOCA.LOCA_STAR' has the data type (DT) which is not listed in the TYPE group"),
          Mismatch(11, "LOCA_STAR", "2023-1-5", "DT - yyyy-mm-dd")}));
  EXPECT_EQ(result.log.find(DifferencesTitle), std::string::npos);
}

TEST(NamedDictionary, DifferencesAreListedAndTheFilesTypeHolds) {
  Ags4File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_NAME"}, {"", ""}, {"X", "x"}, {{"P1", "Name"}});
  file.Group("LOCA", {"LOCA_ID", "LOCA_GL", "LOCA_STAR", "LOCA_REM"}, {"", "m", "", ""},
             {"ID", "1DP", "X", "X"}, {{"BH1", "1.5", "2023-1-5", "a"}});
  const CheckResult result = CheckTextAgainst(Schema, file.Text());
  EXPECT_EQ(TypeFindings(result),
            Findings{Error(2, "Unknown data type (x) for field 'PROJ.PROJ_NAME'")});
  EXPECT_NE(result.log.find(std::string(DifferencesTitle) +
                            "\r\n  PROJ.PROJ_ID: ID <> X\r\n  LOCA.LOCA_GL: 2DP <> 1DP"
                            "\r\n  LOCA.LOCA_STAR: DT <> X\r\n"),
            std::string::npos)
      << result.log;
}

TEST(NamedDictionary, WithoutOneNothingIsCompared) {
  Ags4File file = Start();
  file.Group("LOCA", {"LOCA_ID", "LOCA_GL"}, {"", "m"}, {"ID", "X"}, {{"BH1", "1.5"}});
  const CheckResult result = CheckText(file.Text());
  EXPECT_THAT(TypeFindings(result), IsEmpty());
  EXPECT_EQ(result.log.find(DifferencesTitle), std::string::npos);
}

Ags3File Holes(const Rows& rows, const std::string& dateUnit = "dd/mm/yyyy") {
  Ags3File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_NAME"}, {"", ""}, {{"P1", "Name"}});
  file.Group("HOLE", {"HOLE_ID", "HOLE_GL", "HOLE_STAR", "HOLE_ETRV"}, {"", "m", dateUnit, ""},
             rows);
  return file;
}

TEST(NamedDictionary, GivesAgs3FilesTheirTypes) {
  const Ags3File file = Holes({{"BH1", "1.50", "05/01/2023", "a"},
                               {"BH2", "1.5", "2023-01-05", "b"},
                               {"BH3", "", "30/02/2023", ""},
                               {"BH3", "x", "5/1/2023", ""}});
  const std::string dateType = "DT - dd/mm/yyyy";
  // Dates may stand in another order than their unit's, with its length. Repeats of HOLE_ID are
  // reported as identifiers like any other.
  EXPECT_EQ(TypeFindings(CheckTextAgainst(Schema, file.Text())),
            (Findings{Error(12, "ID field value 'BH3' is repeated"),
                      Mismatch(10, "HOLE_GL", "1.5", "2DP"), Mismatch(12, "HOLE_GL", "x", "2DP"),
                      Mismatch(11, "HOLE_STAR", "30/02/2023", dateType),
                      Mismatch(12, "HOLE_STAR", "5/1/2023", dateType)}));
}

TEST(NamedDictionary, WithoutOneAgs3FilesAreNotChecked) {
  const Ags3File file = Holes({{"BH1", "x", "y", "z"}, {"BH1", "x", "y", "z"}});
  EXPECT_FALSE(CheckText(file.Text()).HasSection(Title));
}

TEST(NamedDictionary, TypesWithoutDescriptionAreReportedInAgs3) {
  Ags3File file = Holes({{"BH1", "1.50", "05/01/2023", ""}});
  file.Group("TYPE", {"TYPE_TYPE", "TYPE_DESC"}, {"", ""},
             {{"ID", ""}, {"X", "Text"}, {"2DP", ""}, {"DT", "Date"}});
  EXPECT_EQ(TypeFindings(CheckTextAgainst(Schema, file.Text())),
            Findings{"WARNING: The following TYPE_TYPE values did not have TYPE_DESC values in the "
                     "TYPE group:\r\nID\r\n2DP"});
}

}  // namespace
}  // namespace quorvane::test
