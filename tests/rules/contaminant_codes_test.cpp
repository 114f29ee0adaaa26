#include "rules/contaminant_codes.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/check_text.h"
#include "support/direct_check.h"

namespace quorvane::test {
namespace {

using Findings = std::vector<std::string>;
using Rows = std::vector<std::vector<std::string>>;

constexpr std::string_view Section = "Contaminant Codes Check (Rule 25)";
const std::string NoHeading = "ERROR: No CODE_CODE heading found in the CODE group";
const std::string NoData = "ERROR: No data found under the CODE_CODE heading in the CODE group";

Findings FindingsOf(const Ags3File& file) {
  return CheckText(file.Text()).FindingsOf(Section);
}

std::string NotDefined(int line, const std::string& code, const std::string& group) {
  return "ERROR: Line " + std::to_string(line) +
         " - No CODE_CODE value in the CODE group found corresponding to '" + code +
         "' in group '" + group + "'";
}

std::string Unused(const std::string& codes) {
  return "FYI: The following CODE_CODE values are in the CODE group but not found in any of the "
         "data groups:\r\n" +
         codes;
}

Ags3File& AddCodes(Ags3File& file, const std::vector<std::string>& codes) {
  Rows rows;
  for (const std::string& code : codes)
    rows.push_back({code, "described"});
  return file.Group("CODE", {"CODE_CODE", "CODE_DESC"}, {}, rows);
}

/// Adds a CNMT group with a row for each code; returns the line of the last.
int AddContaminants(Ags3File& file, const std::vector<std::string>& codes) {
  Rows rows;
  for (const std::string& code : codes)
    rows.push_back({"BH1", code});
  return file.Group("CNMT", {"HOLE_ID", "CNMT_TYPE"}, {"", ""}, rows).LineCount();
}

int AddGasReadings(Ags3File& file, const std::vector<std::string>& codes) {
  Rows rows;
  for (const std::string& code : codes)
    rows.push_back({"BH1", code});
  return file.Group("?ICCT", {"?HOLE_ID", "?CNMT_TYPE"}, {"", ""}, rows).LineCount();
}

// --- What must be there ---

TEST(ContaminantCodes, AreNotAskedForInAFileWithoutContaminants) {
  EXPECT_FALSE(CheckText(MinimalAgs3().Text()).HasSection(Section));
}

TEST(ContaminantCodes, AreNotCheckedInAgs4Files) {
  Ags4File file = MinimalAgs4();
  file.Group("CNMT", {"LOCA_ID", "CNMT_TYPE"}, {"", ""}, {"ID", "X"}, {{"BH1", "PB"}});
  file.Group("CODE", {"CODE_DESC"}, {""}, {"X"}, {{"lead"}});
  const CheckResult result = CheckText(file.Text());
  EXPECT_FALSE(result.HasSection(Section));
  EXPECT_FALSE(result.HasSection("Contaminant Codes Check"));
  EXPECT_FALSE(result.HasText("CODE_CODE"));
}

TEST(ContaminantCodes, SectionNamesTheRuleOnlyForTheFormatThatHasIt) {
  const auto sections = [](AgsFormat format) {
    std::vector<std::string> closed;
    CheckDirectly(format, [&](CheckedFile& file) {
      file.singletons.code = file.table.AddGroup("CODE", 1);
      CheckContaminantCodes(file);
      closed = file.log.Sections();
    });
    return closed;
  };
  EXPECT_EQ(sections(AgsFormat::Ags3), std::vector<std::string>{std::string(Section)});
  EXPECT_EQ(sections(AgsFormat::Ags4), std::vector<std::string>{"Contaminant Codes Check"});
}

TEST(CodeGroup, MustBeThereForContaminantData) {
  Ags3File file = MinimalAgs3();
  AddContaminants(file, {"PB"});
  EXPECT_EQ(FindingsOf(file), Findings{"ERROR: No CODE group found (Rule 25)."});
  Ags3File gas = MinimalAgs3();
  AddGasReadings(gas, {"CH4"});
  EXPECT_EQ(FindingsOf(gas), Findings{"ERROR: No CODE group found (Rule 25)."});
}

TEST(CodeGroup, IsOfNoUseWithoutContaminantData) {
  const Findings expected{"FYI: There is a CODE group defined but no CNMT data."};
  Ags3File none = MinimalAgs3();
  EXPECT_EQ(FindingsOf(AddCodes(none, {"PB"})), expected);
  Ags3File empty = MinimalAgs3();
  AddContaminants(empty, {});
  EXPECT_EQ(FindingsOf(AddCodes(empty, {"PB"})), expected);
}

TEST(CodeGroup, MustHaveTheHeadingOfTheCodes) {
  Ags3File file = MinimalAgs3();
  file.Group("CODE", {"CODE_DESC"}, {}, {{"lead"}});
  AddContaminants(file, {"PB"});
  EXPECT_EQ(FindingsOf(file), Findings{NoHeading});
}

TEST(CodeGroup, MustHoldCodes) {
  Ags3File empty = MinimalAgs3();
  AddCodes(empty, {"", ""});
  AddContaminants(empty, {"PB"});
  EXPECT_EQ(FindingsOf(empty), Findings{NoData});
  Ags3File withoutRows = MinimalAgs3();
  AddCodes(withoutRows, {});
  AddContaminants(withoutRows, {"PB"});
  EXPECT_EQ(FindingsOf(withoutRows), Findings{NoData});
}

TEST(CodeGroup, ShouldHaveTheHeadingOfTheDescriptions) {
  Ags3File file = MinimalAgs3();
  file.Group("CODE", {"CODE_CODE"}, {}, {{"PB"}});
  AddContaminants(file, {"PB"});
  EXPECT_EQ(FindingsOf(file), Findings{"WARNING: No 'CODE_DESC' heading found in the CODE group"});
}

TEST(CodeGroup, ShouldDescribeItsCodes) {
  Ags3File file = MinimalAgs3();
  file.Group("CODE", {"CODE_CODE", "CODE_DESC"}, {},
             {{"PB", ""}, {"", ""}, {"ZN", "zinc"}, {"CD", ""}});
  AddContaminants(file, {"PB", "ZN", "CD"});
  EXPECT_EQ(FindingsOf(file),
            Findings{"WARNING: The following CODE_CODE values did not have CODE_DESC values in the "
                     "CODE group:\r\nPB\r\nCD"});
}

TEST(CodeGroup, IsTheFirstOfItsName) {
  Ags3File file = MinimalAgs3();
  AddCodes(file, {"PB"});
  AddCodes(file, {"ZN"});
  const int last = AddContaminants(file, {"PB", "ZN"});
  EXPECT_EQ(FindingsOf(file), Findings{NotDefined(last, "ZN", "CNMT")});
}

// --- Contaminant groups without rows and no CODE group: the headings are sought everywhere ---

TEST(EmptyContaminantGroups, WithoutCodeGroupMissTheHeadingOfTheCodes) {
  Ags3File file = MinimalAgs3();
  AddContaminants(file, {});
  EXPECT_EQ(FindingsOf(file), Findings{NoHeading});
}

TEST(EmptyContaminantGroups, MissTheCodesWhenAnotherGroupHasTheHeading) {
  Ags3File file = MinimalAgs3();
  AddContaminants(file, {});
  file.Group("?CODX", {"?CODE_CODE"}, {""}, {{"PB"}});
  EXPECT_EQ(FindingsOf(file),
            (Findings{"WARNING: No 'CODE_DESC' heading found in the CODE group", NoData}));
}

TEST(EmptyContaminantGroups, MissOnlyTheCodesWhenOtherGroupsHaveBothHeadings) {
  Ags3File file = MinimalAgs3();
  AddGasReadings(file, {});
  file.Group("?CODX", {"?CODE_CODE"}, {""}, {{"PB"}});
  file.Group("?CODY", {"?CODE_DESC"}, {""}, {{"lead"}});
  EXPECT_EQ(FindingsOf(file), Findings{NoData});
}

TEST(EmptyContaminantGroups, BesideOneWithRowsArePassedOver) {
  Ags3File file = MinimalAgs3();
  AddContaminants(file, {});
  AddGasReadings(file, {"CH4"});
  AddCodes(file, {"CH4"});
  EXPECT_EQ(FindingsOf(file), Findings{});
}

// --- The codes ---

TEST(ContaminantCodes, ThatAreDefinedRaiseNothing) {
  Ags3File file = MinimalAgs3();
  AddCodes(file, {"PB", "ZN"});
  AddContaminants(file, {"PB", "", "ZN", "PB"});
  EXPECT_EQ(FindingsOf(file), Findings{});
}

TEST(ContaminantCodes, AreComparedExactly) {
  Ags3File file = MinimalAgs3();
  AddCodes(file, {"VOC"});
  const int last = AddContaminants(file, {"voc", "VOC", "VOC ", " VOC"});
  EXPECT_EQ(FindingsOf(file),
            (Findings{NotDefined(last - 3, "voc", "CNMT"), NotDefined(last - 1, "VOC ", "CNMT"),
                      NotDefined(last, " VOC", "CNMT")}));
}

TEST(ContaminantCodes, OfQuestionMarkGroupsAreChecked) {
  Ags3File file = MinimalAgs3();
  AddCodes(file, {"CH4"});
  const int last = AddGasReadings(file, {"CH4", "CO2"});
  EXPECT_EQ(FindingsOf(file), Findings{NotDefined(last, "CO2", "?ICCT")});
}

TEST(ContaminantCodes, OfAQuestionMarkHeadingAreChecked) {
  Ags3File file = MinimalAgs3();
  AddCodes(file, {"PB"});
  file.Group("CNMT", {"HOLE_ID", "?CNMT_TYPE"}, {"", ""}, {{"BH1", "PB"}, {"BH1", "ZN"}});
  EXPECT_EQ(FindingsOf(file), Findings{NotDefined(file.LineCount(), "ZN", "CNMT")});
}

TEST(ContaminantCodes, OfAllContaminantGroupsAreCheckedWithGasReadingsLast) {
  Ags3File file = MinimalAgs3();
  AddCodes(file, {"PB"});
  const int gas = AddGasReadings(file, {"X1"});
  const int first = AddContaminants(file, {"X2", "PB"}) - 1;
  const int second = AddContaminants(file, {"PB", "X3"});
  EXPECT_EQ(FindingsOf(file),
            (Findings{NotDefined(first, "X2", "CNMT"), NotDefined(second, "X3", "CNMT"),
                      NotDefined(gas, "X1", "?ICCT")}));
}

TEST(ContaminantCodes, OfAGroupWithoutTheirHeadingAreNone) {
  Ags3File file = MinimalAgs3();
  AddCodes(file, {"PB"});
  file.Group("CNMT", {"HOLE_ID", "CNMT_TTYP"}, {"", ""}, {{"BH1", "SOLID"}});
  EXPECT_EQ(FindingsOf(file), Findings{Unused("PB")});
}

TEST(ContaminantCodes, OfOtherGroupsAreNotRead) {
  Ags3File file = MinimalAgs3();
  AddCodes(file, {"PB"});
  AddContaminants(file, {"PB"});
  file.Group("?CNMT", {"?HOLE_ID", "?CNMT_TYPE"}, {"", ""}, {{"BH1", "ZN"}});
  file.Group("ICCT", {"HOLE_ID", "?CNMT_TYPE"}, {"", ""}, {{"BH1", "ZN"}});
  EXPECT_EQ(FindingsOf(file), Findings{});
}

// --- Codes that nothing uses ---

TEST(UnusedCodes, AreListedWithCommasBetweenOnNoLine) {
  Ags3File file = MinimalAgs3();
  AddCodes(file, {"ZZ", "PB", "AA"});
  AddContaminants(file, {"PB"});
  EXPECT_EQ(FindingsOf(file), Findings{Unused("ZZ,AA")});
}

TEST(UnusedCodes, AreNotThoseThatAnyOfTheGroupsUses) {
  Ags3File file = MinimalAgs3();
  AddCodes(file, {"PB", "CH4", "ZN"});
  AddContaminants(file, {"PB", "ZN"});
  AddContaminants(file, {"PB"});
  AddGasReadings(file, {"CH4", "PB"});
  EXPECT_EQ(FindingsOf(file), Findings{});
}

TEST(UnusedCodes, HoldTheSecondEntryOfACodeThatIsListedTwice) {
  Ags3File file = MinimalAgs3();
  AddCodes(file, {"PB", "PB"});
  AddContaminants(file, {"PB"});
  EXPECT_EQ(FindingsOf(file), Findings{Unused("PB")});
}

TEST(UnusedCodes, ComeBehindTheOtherFindings) {
  Ags3File file = MinimalAgs3();
  file.Group("CODE", {"CODE_CODE", "CODE_DESC"}, {}, {{"PB", ""}});
  const int last = AddContaminants(file, {"ZN"});
  EXPECT_EQ(
      FindingsOf(file),
      (Findings{NotDefined(last, "ZN", "CNMT"),
                "WARNING: The following CODE_CODE values did not have CODE_DESC values in the "
                "CODE group:\r\nPB",
                Unused("PB")}));
}

// --- Large files ---

TEST(LargeFileOfContaminants, OfManyRowsAndManyCodesIsReadInOnePass) {
  constexpr int CodeCount = 20000;
  constexpr int RowCount = 500000;
  std::vector<std::string> codes;
  codes.reserve(CodeCount + 1);
  for (int number = 0; number < CodeCount; ++number)
    codes.push_back("C" + std::to_string(number));
  codes.emplace_back("OTHER");
  Ags3File file = MinimalAgs3();
  AddCodes(file, codes);
  const int line = AddContaminants(file, {"no such"});
  std::string text = file.Text();
  for (int row = 0; row < RowCount; ++row) {
    text += "\"BH1\",\"" + codes[static_cast<std::size_t>(row % CodeCount)] + "\"\n";
  }
  EXPECT_EQ(CheckText(text).FindingsOf(Section),
            (Findings{NotDefined(line, "no such", "CNMT"), Unused("OTHER")}));
}

}  // namespace
}  // namespace quorvane::test
