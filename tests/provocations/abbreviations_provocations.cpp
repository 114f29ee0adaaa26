#include "rules/abbreviation_messages.h"
#include "support/provocation.h"

namespace quorvane::test {
namespace {

constexpr auto Ags3 = AgsFormat::Ags3;
constexpr auto Ags4 = AgsFormat::Ags4;

using Row = std::vector<std::string>;

/// A hole of type CP and an ABBR group: its headings in line 7, its entries from line 8 on.
CheckResult Check3(const Row& headings, const std::vector<Row>& entries) {
  Ags3File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_NAME", "PROJ_AGS"}, {"", "", ""}, {{"P1", "Test", "3.1"}});
  file.Group("ABBR", headings, {}, entries);
  file.Group("HOLE", {"HOLE_ID", "HOLE_TYPE"}, {"", ""}, {{"BH1", "CP"}});
  return CheckText(file.Text());
}

CheckResult Check3(const std::vector<Row>& entries) {
  return Check3({"ABBR_HDNG", "ABBR_CODE", "ABBR_DESC"}, entries);
}

CheckResult WithoutAbbr3() {
  Ags3File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_NAME", "PROJ_AGS"}, {"", "", ""}, {{"P1", "Test", "3.1"}});
  return CheckText(file.Text());
}

/// A location of type CP and an ABBR group: its headings in line 28, its entries from line 31 on.
CheckResult Check4(const Row& headings, const std::vector<Row>& entries) {
  Ags4File file = MinimalAgs4();
  const Row units(headings.size());
  const Row types(headings.size(), "X");
  file.Group("ABBR", headings, units, types, entries);
  file.Group("LOCA", {"LOCA_ID", "LOCA_TYPE"}, {"", ""}, {"ID", "PA"}, {{"BH1", "CP"}});
  return CheckText(file.Text());
}

CheckResult Check4(const std::vector<Row>& entries) {
  return Check4({"ABBR_HDNG", "ABBR_CODE", "ABBR_DESC"}, entries);
}

Provocations Ags3Provocations() {
  return {
      {&AbbrGroupMissing, Ags3, "ERROR: No ABBR group found (Rule 20).",
       [] { return WithoutAbbr3(); }},
      {&AbbrKeyFieldsMissing, Ags3,
       "ERROR: Can't check ABBR group because one or more key fields are missing.",
       [] {
         return Check3({"ABBR_HDNG", "ABBR_DESC"}, {{"HOLE_TYPE", "Cable percussion"}});
       }},
      {&AbbrContaminantType, Ags3,
       "ERROR: Line 8 - CNMT_TYPE cannot be in the ABBR group. All CNMT_TYPE abbreviations must be "
       "in the CODE group (Rule 25).",
       [] {
         return Check3({{"CNMT_TYPE", "PB", "Lead"}});
       }},
      {&AbbrHeadingValueMissing, Ags3, "ERROR: Line 8 - ABBR_HDNG value missing.",
       [] {
         return Check3({{"", "CP", "Cable percussion"}});
       }},
      {&AbbrHeadingNotUsed, Ags3, "FYI: Line 8 - No references to ABBR_HDNG GEOL_LEG in data file.",
       [] {
         return Check3({{"GEOL_LEG", "201", "Clay"}});
       }},
      {&AbbrCodeValueMissing, Ags3,
       "ERROR: Line 8 - ABBR_CODE value is missing for ABBR_HDNG HOLE_TYPE",
       [] {
         return Check3({{"HOLE_TYPE", "", "Cable percussion"}});
       }},
      {&AbbrCodeNotUsed, Ags3,
       "FYI: Line 8 - No references in the data to ABBR_CODE 'RC' in heading 'HOLE_TYPE'",
       [] {
         return Check3({{"HOLE_TYPE", "RC", "Rotary cored"}});
       }},
      {&AbbrNoUsableData, Ags3, "ERROR: No usable data found under the ABBR group",
       [] {
         return Check3({{"HOLE_TYPE", "", ""}});
       }},
      {&AbbrCodeNotListed, Ags3,
       "ERROR: Line 7 - Code CP under HOLE_TYPE in group 'ABBR' not found in the ABBR group.",
       [] {
         return Check3({{"HOLE_TYPE", "RC", "Rotary cored"}});
       }},
      {&AbbrNoEntries, Ags3,
       "ERROR: There are data for HOLE_TYPE but no entries in the ABBR group. This heading "
       "requires abbreviation listings (Rule 20).",
       [] {
         return Check3({{"HOLE_ID", "BH1", "The first"}});
       }},
  };
}

Provocations Ags4Provocations() {
  return {
      {&AbbrKeyFieldsMissing, Ags4,
       "ERROR: Can't check ABBR group because one or more key fields are missing.",
       [] {
         return Check4({"ABBR_HDNG", "ABBR_DESC"}, {{"LOCA_TYPE", "Cable percussion"}});
       }},
      {&AbbrHeadingNotUsed, Ags4,
       "FYI: Line 31 - No references to ABBR_HDNG GEOL_LEG in data file.",
       [] {
         return Check4({{"GEOL_LEG", "201", "Clay"}});
       }},
      {&AbbrCodeNotUsed, Ags4,
       "FYI: Line 31 - No references in the data to ABBR_CODE 'RC' in heading 'LOCA_TYPE'",
       [] {
         return Check4({{"LOCA_TYPE", "RC", "Rotary cored"}});
       }},
      {&AbbrNoUsableData, Ags4, "ERROR: No usable data found under the ABBR group",
       [] {
         return Check4({{"LOCA_TYPE", "", ""}});
       }},
      {&AbbrCodeNotListed, Ags4,
       "ERROR: Line 28 - Code CP under LOCA_TYPE in group 'ABBR' not found in the ABBR group.",
       [] {
         return Check4({{"LOCA_TYPE", "RC", "Rotary cored"}});
       }},
      {&AbbrNoEntries, Ags4,
       "ERROR: There are data for LOCA_TYPE but no entries in the ABBR group. This heading "
       "requires abbreviation listings .",
       [] {
         return Check4({{"LOCA_ID", "BH1", "The first"}});
       }},
  };
}

}  // namespace

Provocations AbbreviationProvocations() {
  Provocations all = Ags3Provocations();
  for (Provocation& provocation : Ags4Provocations())
    all.push_back(std::move(provocation));
  return all;
}

}  // namespace quorvane::test
