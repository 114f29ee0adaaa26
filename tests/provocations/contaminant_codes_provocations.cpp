#include "rules/contaminant_code_messages.h"
#include "rules/contaminant_codes.h"
#include "support/direct_check.h"
#include "support/provocation.h"

namespace quorvane::test {
namespace {

constexpr auto Ags3 = AgsFormat::Ags3;
constexpr auto Ags4 = AgsFormat::Ags4;

using Rows = std::vector<std::vector<std::string>>;

Ags3File& AddContaminant(Ags3File& file) {
  return file.Group("CNMT", {"HOLE_ID", "CNMT_TYPE"}, {"", ""}, {{"BH1", "PB"}});
}

/// Checks a file with a CODE group of these headings and rows, and one contaminant, PB.
CheckResult CheckCodes(const std::vector<std::string>& headings, const Rows& rows) {
  Ags3File file = MinimalAgs3();
  file.Group("CODE", headings, {}, rows);
  return CheckText(AddContaminant(file).Text());
}

/// AGS 4 files are spared the check, so no file leads there. Calls it on a CNMT group of this code
/// (empty: no group) and a CODE group with this heading (empty: no group), whose TYPE row stands on
/// line 14.
CheckResult CheckAgs4Codes(std::string_view contaminant, const std::string& heading,
                           std::string_view code) {
  return CheckDirectly(Ags4, [&](CheckedFile& file) {
    if (!contaminant.empty()) {
      file.CnmtGroupList.push_back(file.table.AddGroup("CNMT", 1));
      file.table.AddHeading("CNMT_TYPE");
      file.table.AddRow(5, {contaminant});
    }
    if (!heading.empty()) {
      file.singletons.code = file.table.AddGroup("CODE", 11);
      file.table.At(file.singletons.code).typeLine = 14;
      file.table.AddHeading(heading);
      file.table.AddHeading("CODE_DESC");
      file.table.AddRow(15, {code, "described"});
    }
    CheckContaminantCodes(file);
  });
}

}  // namespace

Provocations ContaminantCodeProvocations() {
  const std::string noGroup = "ERROR: No CODE group found (Rule 25).";
  const std::string noContaminants = "FYI: There is a CODE group defined but no CNMT data.";
  const std::string noHeading = "ERROR: No CODE_CODE heading found in the CODE group";
  const std::string noCodes = "ERROR: No data found under the CODE_CODE heading in the CODE group";
  const std::string notDefined =
      " - No CODE_CODE value in the CODE group found corresponding to 'PB' in group 'CNMT'";
  const std::string unused =
      "The following CODE_CODE values are in the CODE group but not found in any of the data "
      "groups:\r\nZN";
  return {
      {&CodeGroupMissing, Ags3, noGroup,
       [] {
         Ags3File file = MinimalAgs3();
         return CheckText(AddContaminant(file).Text());
       }},
      {&CodeGroupMissing, Ags4, noGroup, [] { return CheckAgs4Codes("PB", "", ""); }},
      {&CodeGroupWithoutData, Ags3, noContaminants,
       [] {
         Ags3File file = MinimalAgs3();
         file.Group("CODE", {"CODE_CODE", "CODE_DESC"}, {}, {{"PB", "lead"}});
         return CheckText(file.Text());
       }},
      {&CodeGroupWithoutData, Ags4, noContaminants,
       [] { return CheckAgs4Codes("", "CODE_CODE", "PB"); }},
      {&ContaminantCodeHeadingMissing, Ags3, noHeading,
       [] { return CheckCodes({"CODE_DESC"}, {{"lead"}}); }},
      {&ContaminantCodeHeadingMissing, Ags4, noHeading,
       [] { return CheckAgs4Codes("PB", "CODE_REM", "PB"); }},
      {&ContaminantCodeListEmpty, Ags3, noCodes,
       [] {
         return CheckCodes({"CODE_CODE", "CODE_DESC"}, {{"", "lead"}});
       }},
      {&ContaminantCodeListEmpty, Ags4, noCodes,
       [] { return CheckAgs4Codes("PB", "CODE_CODE", ""); }},
      {&ContaminantCodeNotDefined, Ags3, "ERROR: Line 26" + notDefined,
       [] {
         return CheckCodes({"CODE_CODE", "CODE_DESC"}, {{"ZN", "zinc"}});
       }},
      {&ContaminantCodeNotDefined, Ags4, "ERROR: Line 5" + notDefined,
       [] { return CheckAgs4Codes("PB", "CODE_CODE", "ZN"); }},
      {&ContaminantCodesUnused, Ags3, "FYI: " + unused + ",CD",
       [] {
         return CheckCodes({"CODE_CODE", "CODE_DESC"},
                           {{"ZN", "zinc"}, {"PB", "lead"}, {"CD", "cadmium"}});
       }},
      {&ContaminantCodesUnused, Ags4, "FYI: Line 14 - " + unused,
       [] { return CheckAgs4Codes("PB", "CODE_CODE", "ZN"); }},
  };
}

}  // namespace quorvane::test
