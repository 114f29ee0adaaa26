#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/check_text.h"

namespace quorvane::test {
namespace {

using Findings = std::vector<std::string>;

constexpr std::string_view Ags3Section = "Units check (Rule 18b)";
constexpr std::string_view Ags4Section = "Units check";

Findings Ags3Findings(const Ags3File& file) {
  return CheckText(file.Text()).FindingsOf(Ags3Section);
}

Findings Ags4Findings(const Ags4File& file) {
  return CheckText(file.Text()).FindingsOf(Ags4Section);
}

std::string OnLine(int line, std::string_view text) {
  return "ERROR: Line " + std::to_string(line) + " - " + std::string(text);
}

std::string NotListed(int line, const std::string& unit, const std::string& group) {
  return OnLine(line, "No UNIT_UNIT value in the UNIT group found corresponding to '" + unit +
                          "' in group '" + group + "'");
}

std::string WithoutUnit(const std::string& place, const std::string& heading,
                        const std::string& group) {
  return "WARNING: " + place + "Heading '" + heading + "' in group '" + group +
         "' has no unit associated with it.";
}

std::string Unused(const std::string& units) {
  return "FYI: The following UNIT_UNIT values are in the UNIT group but not found in any of the "
         "data groups:\r\n" +
         units;
}

std::vector<std::vector<std::string>> Described(const std::vector<std::string>& units) {
  std::vector<std::vector<std::string>> rows;
  rows.reserve(units.size());
  for (const std::string& unit : units)
    rows.push_back({unit, "described"});
  return rows;
}

/// PROJ and UNIT, with the units given.
Ags3File Ags3Listing(const std::vector<std::string>& units, const std::string& edition = "3.1") {
  Ags3File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_AGS"}, {"", ""}, {{"P1", edition}});
  file.Group("UNIT", {"UNIT_UNIT", "UNIT_DESC"}, {}, Described(units));
  return file;
}

Ags4File Ags4Start() {
  Ags4File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_NAME"}, {"", ""}, {"ID", "X"}, {{"P1", "Test project"}});
  file.Group("TRAN", {"TRAN_ISNO", "TRAN_AGS", "TRAN_DLIM", "TRAN_RCON"}, {"", "", "", ""},
             {"X", "X", "X", "X"}, {{"1", "4.0.3", "|", "+"}});
  file.Group("TYPE", {"TYPE_TYPE", "TYPE_DESC"}, {"", ""}, {"X", "X"},
             {{"ID", "Identifier"}, {"X", "Text"}, {"2DP", "Number"}, {"PU", "Unit"}});
  return file;
}

/// The groups that every AGS 4 file needs; UNIT with the units given.
Ags4File Ags4Listing(const std::vector<std::string>& units) {
  Ags4File file = Ags4Start();
  file.Group("UNIT", {"UNIT_UNIT", "UNIT_DESC"}, {"", ""}, {"X", "X"}, Described(units));
  return file;
}

Ags4File& AddLocations(Ags4File& file, const std::string& unit) {
  return file.Group("LOCA", {"LOCA_ID", "LOCA_GL", "LOCA_REM"}, {"", unit, ""}, {"ID", "2DP", "X"},
                    {{"BH1", "10.00", ""}});
}

// --- The UNIT group ---

TEST(UnitGroup, MustBeInAnAgs3File) {
  Ags3File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_AGS"}, {"", ""}, {{"P1", "3.1"}});
  file.Group("HOLE", {"HOLE_ID", "HOLE_FDEP"}, {"", ""}, {{"BH1", "10.00"}});
  EXPECT_EQ(Ags3Findings(file), Findings{"ERROR: No UNIT group found"});
}

TEST(UnitGroup, IsLeftToTheRequiredGroupsInAnAgs4File) {
  Ags4File file = Ags4Start();
  AddLocations(file, "");
  const CheckResult result = CheckText(file.Text());
  EXPECT_FALSE(result.HasSection(Ags4Section));
  EXPECT_FALSE(result.HasText("No UNIT group"));
  EXPECT_TRUE(
      result.Has("ERROR: The following required groups are missing from the file:\r\nUNIT"));
}

TEST(UnitGroup, MustHaveTheHeadingOfTheUnits) {
  Ags3File ags3;
  ags3.Group("PROJ", {"PROJ_ID", "PROJ_AGS"}, {"", ""}, {{"P1", "3.1"}});
  ags3.Group("UNIT", {"UNIT_DESC"}, {}, {{"metre"}});
  ags3.Group("HOLE", {"HOLE_ID", "HOLE_FDEP"}, {"", "m"}, {{"BH1", "10.00"}});
  const Findings expected{"ERROR: No UNIT_UNIT heading found in the UNIT group"};
  EXPECT_EQ(Ags3Findings(ags3), expected);

  Ags4File ags4 = Ags4Start();
  ags4.Group("UNIT", {"UNIT_REM"}, {""}, {"X"}, {{"metre"}});
  EXPECT_EQ(Ags4Findings(AddLocations(ags4, "m")), expected);
}

TEST(UnitGroup, WithEmptyValuesOnlyIsReportedUnderTheNameOfTheCodeGroup) {
  const Findings expected{"ERROR: No data found under the UNIT_UNIT heading in the CODE group"};
  Ags3File ags3 = Ags3Listing({"", ""});
  ags3.Group("HOLE", {"HOLE_ID", "HOLE_FDEP"}, {"", ""}, {{"BH1", "10.00"}});
  EXPECT_EQ(Ags3Findings(ags3), expected);
  Ags4File ags4 = Ags4Listing({""});
  EXPECT_EQ(Ags4Findings(AddLocations(ags4, "m")), expected);
}

TEST(UnitGroup, WithoutRowsIsReportedTheSameWay) {
  const std::string expected = "ERROR: No data found under the UNIT_UNIT heading in the CODE group";
  EXPECT_EQ(Ags3Findings(Ags3Listing({})), Findings{expected});
  EXPECT_EQ(Ags4Findings(Ags4Listing({})), Findings{expected});
}

TEST(UnitGroup, ShouldHaveTheHeadingOfTheDescriptions) {
  const std::string expected = "WARNING: No 'UNIT_DESC' heading found in the UNIT group";
  Ags3File ags3;
  ags3.Group("PROJ", {"PROJ_ID", "PROJ_AGS"}, {"", ""}, {{"P1", "3.1"}});
  ags3.Group("UNIT", {"UNIT_UNIT"}, {}, {{"m"}});
  ags3.Group("HOLE", {"HOLE_ID", "HOLE_FDEP"}, {"", "m"}, {{"BH1", "10.00"}});
  EXPECT_EQ(Ags3Findings(ags3), Findings{expected});
  Ags4File ags4 = Ags4Start();
  ags4.Group("UNIT", {"UNIT_UNIT"}, {""}, {"X"}, {{"m"}});
  EXPECT_EQ(Ags4Findings(AddLocations(ags4, "m")), Findings{expected});
}

TEST(UnitGroup, MissesDescriptionsInAgs3FilesOnly) {
  Ags3File ags3;
  ags3.Group("PROJ", {"PROJ_ID", "PROJ_AGS"}, {"", ""}, {{"P1", "3.1"}});
  ags3.Group("UNIT", {"UNIT_UNIT", "UNIT_DESC"}, {}, {{"m", ""}, {"", ""}, {"mm", ""}, {"%", "x"}});
  ags3.Group("SAMP", {"HOLE_ID", "SAMP_TOP", "SAMP_DIA"}, {"", "m", "mm"}, {});
  ags3.Group("CLSS", {"HOLE_ID", "CLSS_LL"}, {"", "%"}, {});
  EXPECT_EQ(Ags3Findings(ags3),
            Findings{"WARNING: The following UNIT_UNIT values did not have UNIT_DESC values in the "
                     "UNIT group:\r\nm\r\nmm"});
  Ags4File ags4 = Ags4Start();
  ags4.Group("UNIT", {"UNIT_UNIT", "UNIT_DESC"}, {"", ""}, {"X", "X"}, {{"m", ""}});
  EXPECT_EQ(Ags4Findings(AddLocations(ags4, "m")), Findings{});
}

TEST(UnitGroup, IsTheFirstOfItsName) {
  Ags4File file = Ags4Listing({"m"});
  AddLocations(file, "km");
  const int unitLine = file.LineCount() - 2;
  file.Group("UNIT", {"UNIT_UNIT", "UNIT_DESC"}, {"", ""}, {"X", "X"}, {{"km", "kilometre"}});
  EXPECT_EQ(Ags4Findings(file), (Findings{NotListed(unitLine, "km", "LOCA"), Unused("m")}));
}

// --- The units of columns ---

TEST(ColumnUnits, AreListed) {
  Ags4File ags4 = Ags4Listing({"m"});
  EXPECT_EQ(Ags4Findings(AddLocations(ags4, "m")), Findings{});
  Ags3File ags3 = Ags3Listing({"m"});
  ags3.Group("HOLE", {"HOLE_ID", "HOLE_FDEP"}, {"", "m"}, {{"BH1", "10.00"}});
  EXPECT_EQ(Ags3Findings(ags3), Findings{});
}

TEST(ColumnUnits, ThatAreNotListedAreReportedAtTheUnitsLine) {
  Ags4File ags4 = Ags4Listing({"m"});
  AddLocations(ags4, "ft");
  EXPECT_EQ(Ags4Findings(ags4),
            (Findings{NotListed(ags4.LineCount() - 2, "ft", "LOCA"), Unused("m")}));
  Ags3File ags3 = Ags3Listing({"m"});
  ags3.Group("HOLE", {"HOLE_ID", "HOLE_FDEP"}, {"", "ft"}, {{"BH1", "10.00"}});
  EXPECT_EQ(Ags3Findings(ags3),
            (Findings{NotListed(ags3.LineCount() - 1, "ft", "HOLE"), Unused("m")}));
}

TEST(ColumnUnits, AreComparedExactly) {
  for (const std::string listed : {"KPA", "kpa", "kPa ", " kPa", "kPa,m"}) {
    Ags4File file = Ags4Listing({listed});
    AddLocations(file, "kPa");
    EXPECT_EQ(Ags4Findings(file),
              (Findings{NotListed(file.LineCount() - 2, "kPa", "LOCA"), Unused(listed)}));
  }
}

TEST(ColumnUnits, AreCheckedInEveryGroupInFileOrder) {
  Ags4File file;
  file.Group("TRAN", {"TRAN_ISNO", "TRAN_DATE", "TRAN_AGS"}, {"s1", "s2", ""}, {"X", "X", "X"}, {});
  file.Group("UNIT", {"UNIT_UNIT", "UNIT_DESC"}, {"s3", ""}, {"X", "X"}, {{"m", "metre"}});
  file.Group("LOCA", {"LOCA_ID", "LOCA_REM"}, {"s4", "m"}, {"ID", "X"}, {});
  file.Group("ZZZZ", {"ZZZZ_ID"}, {"s5"}, {"X"}, {{"1"}});
  EXPECT_EQ(Ags4Findings(file), (Findings{NotListed(3, "s1", "TRAN"), NotListed(3, "s2", "TRAN"),
                                          NotListed(8, "s3", "UNIT"), NotListed(14, "s4", "LOCA"),
                                          NotListed(19, "s5", "ZZZZ")}));
}

TEST(ColumnUnits, MayBeMissingUnlessTheHeadingIsNumeric) {
  Ags4File ags4 = Ags4Listing({"m"});
  AddLocations(ags4, "");
  ags4.Group("GEOL", {"LOCA_ID", "GEOL_TOP"}, {"", "m"}, {"ID", "2DP"}, {{"BH1", "0.00"}});
  EXPECT_EQ(Ags4Findings(ags4), Findings{WithoutUnit("Line 30 - ", "LOCA_GL", "LOCA")});
  Ags3File ags3 = Ags3Listing({"m"});
  ags3.Group("HOLE", {"HOLE_ID", "HOLE_GL", "HOLE_FDEP", "HOLE_REM"}, {"", "", "m", ""},
             {{"BH1", "1.00", "10.00", ""}});
  EXPECT_EQ(Ags3Findings(ags3), Findings{WithoutUnit("Line 12 - ", "HOLE_GL", "HOLE")});
}

TEST(ColumnUnits, OfAGroupWithoutUnitsLineAreMissingOnNoLine) {
  Ags3File file = Ags3Listing({"m"});
  file.Group("HOLE", {"HOLE_ID", "HOLE_GL", "HOLE_REM"}, {}, {{"BH1", "1.00", ""}});
  EXPECT_EQ(Ags3Findings(file), (Findings{WithoutUnit("", "HOLE_GL", "HOLE"), Unused("m")}));
}

TEST(ColumnUnits, OfAQuestionMarkGroupAreAskedForUnderItsNames) {
  Ags3File file = Ags3Listing({"m"});
  file.Group("?MONP", {"?HOLE_ID", "?MONP_DIS", "?MONP_ID"}, {"", "", ""}, {{"BH1", "1.0", "A"}});
  file.Group("HOLE", {"HOLE_ID", "HOLE_FDEP"}, {"", "m"}, {{"BH1", "10.00"}});
  EXPECT_EQ(Ags3Findings(file), Findings{WithoutUnit("Line 12 - ", "?MONP_DIS", "?MONP")});
}

TEST(ColumnUnits, OfDiscontinuityFlowMayBeMissingInTheNzEditionOnly) {
  const auto findings = [](const std::string& edition) {
    Ags3File file = Ags3Listing({"m"}, edition);
    file.Group("DISC", {"HOLE_ID", "FRAC_SET", "DISC_NUMB", "DISC_TOP", "DISC_FLOW"},
               {"", "", "", "m", ""}, {{"BH1", "1", "1", "2.00", "wet"}});
    return Ags3Findings(file);
  };
  const Findings warning{WithoutUnit("Line 12 - ", "DISC_FLOW", "DISC")};
  EXPECT_EQ(findings("3.1"), warning);
  EXPECT_EQ(findings("3.1 RTA (1.1)"), warning);
  EXPECT_EQ(findings("3.1 NZ (1.1)"), Findings{});
}

TEST(ColumnUnits, OfOtherHeadingsAreAskedForInTheNzEditionToo) {
  Ags3File file = Ags3Listing({"m"}, "3.1 NZ (1.1)");
  file.Group("HOLE", {"HOLE_ID", "HOLE_GL", "HOLE_FDEP"}, {"", "", "m"}, {{"BH1", "1", "10"}});
  EXPECT_EQ(Ags3Findings(file), Findings{WithoutUnit("Line 12 - ", "HOLE_GL", "HOLE")});
}

// --- Fields whose values are units ---

TEST(UnitFields, AreListed) {
  Ags4File file = Ags4Listing({"mg/l"});
  file.Group("MOND", {"LOCA_ID", "MOND_UNIT"}, {"", ""}, {"ID", "PU"},
             {{"BH1", "mg/l"}, {"BH2", ""}, {"BH3", "mg/l"}});
  EXPECT_EQ(Ags4Findings(file), Findings{});
}

TEST(UnitFields, ThatAreNotListedAreReportedAtTheirRows) {
  Ags4File file = Ags4Listing({"mg/l"});
  file.Group("MOND", {"LOCA_ID", "MOND_UNIT"}, {"", ""}, {"ID", "PU"},
             {{"BH1", "MG/L"}, {"BH2", "mg/l"}, {"BH3", "MG/L"}, {"BH4", "ug/l "}});
  const int last = file.LineCount();
  EXPECT_EQ(Ags4Findings(file),
            (Findings{NotListed(last - 3, "MG/L", "MOND"), NotListed(last - 1, "MG/L", "MOND"),
                      NotListed(last, "ug/l ", "MOND")}));
}

TEST(UnitFields, ComeBehindAllColumnsFieldByField) {
  Ags4File file = Ags4Listing({"m"});
  file.Group("ERES", {"LOCA_ID", "ERES_RUNI", "ERES_DUNI"}, {"", "", ""}, {"ID", "PU", "PU"},
             {{"BH1", "a1", "b1"}, {"BH2", "a2", "b2"}});
  const int first = file.LineCount() - 1;
  file.Group("ERES", {"LOCA_ID", "ERES_DUNI", "ERES_RUNI"}, {"", "", ""}, {"ID", "PU", "PU"},
             {{"BH3", "b3", "a3"}});
  const int third = file.LineCount();
  AddLocations(file, "ft");
  EXPECT_EQ(Ags4Findings(file),
            (Findings{NotListed(file.LineCount() - 2, "ft", "LOCA"), NotListed(first, "a1", "ERES"),
                      NotListed(first + 1, "a2", "ERES"), NotListed(third, "a3", "ERES"),
                      NotListed(first, "b1", "ERES"), NotListed(first + 1, "b2", "ERES"),
                      NotListed(third, "b3", "ERES"), Unused("m")}));
}

TEST(UnitFields, OfTheDictGroupAreAmongThem) {
  Ags4File ags4 = Ags4Listing({"m"});
  ags4.Group("DICT", {"DICT_TYPE", "DICT_GRP", "DICT_HDNG", "DICT_UNIT"}, {"", "", "", ""},
             {"X", "X", "X", "PU"},
             {{"HEADING", "LOCA", "LOCA_XX", "m"}, {"HEADING", "LOCA", "LOCA_YY", "yd"}});
  EXPECT_EQ(Ags4Findings(ags4), Findings{NotListed(ags4.LineCount(), "yd", "DICT")});
  Ags3File ags3 = Ags3Listing({"m"});
  ags3.Group("DICT", {"DICT_TYPE", "DICT_GRP", "DICT_HDNG", "DICT_UNIT"}, {},
             {{"HEADING", "HOLE", "?HOLE_XX", "m"}, {"HEADING", "HOLE", "?HOLE_YY", "yd"}});
  EXPECT_EQ(Ags3Findings(ags3), Findings{NotListed(ags3.LineCount(), "yd", "DICT")});
}

TEST(UnitFields, OfAgs3AreThoseOfTheContaminantGroups) {
  Ags3File file = Ags3Listing({"mg/l"});
  file.Group("CNMT", {"HOLE_ID", "CNMT_TYPE", "CNMT_UNIT"}, {"", "", ""},
             {{"BH1", "A", "mg/l"}, {"BH1", "B", "x1"}});
  const int cnmt = file.LineCount();
  file.Group("?ICCT", {"?HOLE_ID", "?CNMT_TYPE", "?ICCT_UNIT"}, {"", "", ""},
             {{"BH1", "A", "x2"}, {"BH1", "B", "mg/l"}});
  EXPECT_EQ(Ags3Findings(file), (Findings{NotListed(cnmt, "x1", "CNMT"),
                                          NotListed(file.LineCount() - 1, "x2", "?ICCT")}));
}

TEST(UnitFields, BelongToGroupsOfExactlyTheirName) {
  Ags3File file = Ags3Listing({"m"});
  file.Group("?CNMT", {"?HOLE_ID", "?CNMT_UNIT"}, {"", ""}, {{"BH1", "x1"}});
  file.Group("ICCT", {"HOLE_ID", "?ICCT_UNIT"}, {"", ""}, {{"BH1", "x2"}});
  file.Group("HOLE", {"HOLE_ID", "HOLE_FDEP"}, {"", "m"}, {{"BH1", "10.00"}});
  EXPECT_EQ(Ags3Findings(file), Findings{});
}

TEST(UnitFields, AreFoundUnderAQuestionMarkHeading) {
  Ags3File file = Ags3Listing({"m"});
  file.Group("CNMT", {"HOLE_ID", "?CNMT_UNIT"}, {"", ""}, {{"BH1", "m"}, {"BH1", "x1"}});
  EXPECT_EQ(Ags3Findings(file), Findings{NotListed(file.LineCount(), "x1", "CNMT")});
}

// --- Units that nothing uses ---

TEST(UnusedUnits, AreListedOnePerLineInTheOrderOfTheGroup) {
  Ags4File ags4 = Ags4Listing({"zz", "m", "kPa", "%"});
  EXPECT_EQ(Ags4Findings(AddLocations(ags4, "m")), Findings{Unused("zz\r\nkPa\r\n%")});
  Ags3File ags3 = Ags3Listing({"zz", "m", "kPa"});
  ags3.Group("HOLE", {"HOLE_ID", "HOLE_FDEP"}, {"", "m"}, {{"BH1", "10.00"}});
  EXPECT_EQ(Ags3Findings(ags3), Findings{Unused("zz\r\nkPa")});
}

TEST(UnusedUnits, AreNotThoseThatOnlyAUnitFieldUses) {
  Ags4File file = Ags4Listing({"mg/l", "ug/l"});
  file.Group("GCHM", {"LOCA_ID", "GCHM_UNIT"}, {"", ""}, {"ID", "PU"}, {{"BH1", "mg/l"}});
  EXPECT_EQ(Ags4Findings(file), Findings{Unused("ug/l")});
}

TEST(UnusedUnits, HoldTheSecondEntryOfAUnitThatIsListedTwice) {
  Ags4File file = Ags4Listing({"m", "m"});
  EXPECT_EQ(Ags4Findings(AddLocations(file, "m")), Findings{Unused("m")});
}

// --- Comparison with a dictionary named for the run ---

const std::string Schema = Lines({"'Vexo Schema for AGS",
                                  "LOCA",
                                  "",
                                  "LOCA_ID",
                                  "",
                                  "PROJ",
                                  "",
                                  "PROJ.PROJ_ID",
                                  "",
                                  "PROJ",
                                  ",1",
                                  "PROJ_ID,PROJ_NAME",
                                  ",",
                                  "ID,X",
                                  "UNIT",
                                  ",1",
                                  "UNIT_UNIT,UNIT_DESC",
                                  ",",
                                  "X,X",
                                  "LOCA",
                                  ",1",
                                  "LOCA_ID,LOCA_GL,LOCA_LOAD,LOCA_REM",
                                  ",m,KPA,",
                                  "ID,2DP,2DP,X"});

constexpr std::string_view DifferencesTitle =
    "Units in custom dictionary that did not match units in file:";

CheckResult CheckAgainstSchema(const std::vector<std::string>& units,
                               const std::vector<std::string>& listed) {
  Ags4File file = Ags4Listing(listed);
  file.Group("LOCA", {"LOCA_ID", "LOCA_GL", "LOCA_LOAD", "LOCA_REM", "LOCA_OWN"}, units,
             {"ID", "2DP", "2DP", "X", "X"}, {{"BH1", "1.00", "2.00", "", ""}});
  return CheckTextAgainst(Schema, file.Text());
}

TEST(UnitDifferences, IgnoreLetterCaseThoughTheListDoesNot) {
  const CheckResult same = CheckAgainstSchema({"", "M", "kPa", "", ""}, {"M", "kPa"});
  EXPECT_EQ(same.log.find(DifferencesTitle), std::string::npos);
  EXPECT_EQ(same.FindingsOf(Ags4Section), Findings{});

  const CheckResult notListed = CheckAgainstSchema({"", "m", "kPa", "", ""}, {"m", "KPA"});
  EXPECT_EQ(notListed.log.find(DifferencesTitle), std::string::npos);
  EXPECT_EQ(notListed.FindingsOf(Ags4Section),
            (Findings{NotListed(31, "kPa", "LOCA"), Unused("KPA")}));
}

TEST(UnitDifferences, AreListedBehindTheFindings) {
  const CheckResult result = CheckAgainstSchema({"", "ft", "kN", "s", "t"}, {"ft", "kN", "s", "t"});
  EXPECT_NE(result.log.find(std::string(DifferencesTitle) + "\r\n  LOCA.LOCA_GL: m <> ft" +
                            "\r\n  LOCA.LOCA_LOAD: KPA <> kN" + "\r\n  LOCA.LOCA_REM:  <> s" +
                            "\r\n  LOCA.LOCA_OWN:  <> t\r\n"),
            std::string::npos)
      << result.log;
}

TEST(UnitDifferences, DoNotHoldColumnsWithoutUnit) {
  const CheckResult result = CheckAgainstSchema({"", "", "KPA", "", ""}, {"KPA"});
  EXPECT_EQ(result.log.find(DifferencesTitle), std::string::npos);
  EXPECT_EQ(result.FindingsOf(Ags4Section), Findings{WithoutUnit("Line 30 - ", "LOCA_GL", "LOCA")});
}

TEST(UnitDifferences, AreNotLookedForWithoutADictionaryOfTheUser) {
  Ags4File file = Ags4Listing({"ft"});
  EXPECT_EQ(CheckText(AddLocations(file, "ft").Text()).log.find(DifferencesTitle),
            std::string::npos);
}

// --- Large files ---

TEST(LargeFileOfUnits, OfManyRowsAndManyUnitsIsReadInOnePass) {
  constexpr int UnitCount = 20000;
  constexpr int RowCount = 500000;
  std::vector<std::string> units;
  units.reserve(UnitCount);
  for (int number = 0; number < UnitCount; ++number)
    units.push_back("u" + std::to_string(number));
  Ags4File file = Ags4Listing(units);
  file.Group("GCHM", {"LOCA_ID", "GCHM_UNIT"}, {"", ""}, {"ID", "PU"}, {});
  std::string text = file.Text();
  for (int row = 0; row < RowCount; ++row) {
    // The last unit is never used.
    text += "\"DATA\",\"BH1\",\"" + units[static_cast<std::size_t>(row % (UnitCount - 1))] + "\"\n";
  }
  text += "\"DATA\",\"BH1\",\"ux\"\n";
  EXPECT_EQ(
      CheckText(text).FindingsOf(Ags4Section),
      (Findings{NotListed(file.LineCount() + RowCount + 1, "ux", "GCHM"), Unused(units.back())}));
}

}  // namespace
}  // namespace quorvane::test
