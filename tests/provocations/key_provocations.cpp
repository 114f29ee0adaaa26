#include "rules/key_messages.h"
#include "support/provocation.h"

namespace quorvane::test {
namespace {

constexpr auto Ags3 = AgsFormat::Ags3;
constexpr auto Ags4 = AgsFormat::Ags4;

Ags3File WithGeology(const std::vector<std::vector<std::string>>& rows) {
  Ags3File file = MinimalAgs3();  // 17 lines
  file.Group("GEOL", {"HOLE_ID", "GEOL_TOP", "GEOL_BASE", "GEOL_DESC"}, {"", "m", "m", ""}, rows);
  return file;
}

Ags4File WithLocations() {
  Ags4File file = MinimalAgs4();  // 25 lines
  file.Group("LOCA", {"LOCA_ID"}, {""}, {"ID"}, {{"BH1"}, {"BH2"}});
  return file;
}

Ags4File WithGeology4(const std::vector<std::vector<std::string>>& rows) {
  Ags4File file = WithLocations();  // 32 lines
  file.Group("GEOL", {"LOCA_ID", "GEOL_TOP", "GEOL_BASE", "GEOL_DESC"}, {"", "m", "m", ""},
             {"ID", "2DP", "2DP", "X"}, rows);
  return file;
}

/// LBSG and LBST groups, with a SAMP group or without one.
CheckResult Laboratory(bool withSamples, const std::string& sampleTop) {
  Ags4File file = WithLocations();  // 32 lines
  const std::vector<std::string> sampleKey{"LOCA_ID", "SAMP_TOP", "SAMP_REF", "SAMP_TYPE",
                                           "SAMP_ID"};
  if (withSamples) {
    file.Group("SAMP", sampleKey, {"", "m", "", "", ""}, {"ID", "2DP", "X", "PA", "ID"},
               {{"BH1", "1.00", "1", "D", "S1"}});
  }
  file.Group("LBSG", {"LBSG_REF"}, {""}, {"X"}, {{"L1"}});
  file.Group("LBST",
             {"LOCA_ID", "SAMP_TOP", "SAMP_REF", "SAMP_TYPE", "SAMP_ID", "SPEC_REF", "SPEC_DPTH",
              "LBSG_REF", "LBST_TEST"},
             {"", "m", "", "", "", "", "m", "", ""},
             {"ID", "2DP", "X", "PA", "ID", "X", "2DP", "X", "PA"},
             {{"BH1", sampleTop, "1", "D", "S1", "", "", "L1", "MC"}});
  return CheckText(file.Text());
}

/// An AGS 3 file against a schema in which LBST stands, without SAMP or with one.
CheckResult Laboratory3(bool withSamples) {
  constexpr std::string_view schema =
      "'Vexo Schema for AGS\nHOLE\n\nHOLE_ID\n\nPROJ\n\n\n"
      "PROJ\n,1\nPROJ_ID,PROJ_AGS\n,\nX,X\n"
      "SAMP\n,2\nHOLE_ID,SAMP_REF\n,\nX,X\n"
      "LBSG\n,1\nLBSG_REF,HOLE_ID\n,\nX,X\n"
      "LBST\nLBSG,2\nHOLE_ID,LBSG_REF,SAMP_REF\n,,\nX,X,X\n";
  Ags3File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_AGS"}, {"", ""}, {{"P1", "3.1"}});  // 4 lines
  if (withSamples) file.Group("SAMP", {"HOLE_ID", "SAMP_REF"}, {"", ""}, {{"BH1", "1"}});
  file.Group("LBSG", {"LBSG_REF", "HOLE_ID"}, {"", ""}, {{"L1", "BH1"}});
  file.Group("LBST", {"HOLE_ID", "LBSG_REF", "SAMP_REF"}, {"", "", ""}, {{"BH1", "L1", "2"}});
  return CheckTextAgainst(schema, file.Text());
}

Provocations KeyHeadingProvocations() {
  return {
      {&KeyHeadingsMissing, Ags3,
       "ERROR: Line 20 - Group 'GEOL' is missing the follow key heading(s): GEOL_TOP,GEOL_BASE "
       "(Rule 6)",
       [] {
         return CheckText(MinimalAgs3()
                              .Group("GEOL", {"HOLE_ID", "GEOL_DESC"}, {"", ""}, {{"BH1", "CLAY"}})
                              .Text());
       }},
      {&KeyHeadingsMissing, Ags4,
       "ERROR: Line 35 - Group 'GEOL' is missing the follow key heading(s): GEOL_TOP,GEOL_BASE",
       [] {
         return CheckText(
             WithLocations()
                 .Group("GEOL", {"LOCA_ID", "GEOL_DESC"}, {"", ""}, {"ID", "X"}, {{"BH1", "CLAY"}})
                 .Text());
       }},
      {&LocationKeyNotFirst, Ags3,
       "ERROR: Line 20 - Group 'HDIA' does not have 'HOLE_ID' as the first field (Rule 6a)",
       [] {
         return CheckText(MinimalAgs3()
                              .Group("HDIA", {"HDIA_HDEP", "HOLE_ID"}, {"m", ""}, {{"1", "BH1"}})
                              .Text());
       }},
      {&LocationKeyNotFirst, Ags4,
       "ERROR: Line 35 - Group 'HDIA' does not have 'LOCA_ID' as the first field",
       [] {
         return CheckText(WithLocations()
                              .Group("HDIA", {"HDIA_TOP", "LOCA_ID"}, {"m", ""}, {"2DP", "ID"},
                                     {{"1.00", "BH1"}})
                              .Text());
       }},
      {&ProjIdNotFirst, Ags3,
       "ERROR: Line 2 - Group PROJ does not have PROJ_ID as the first field (Rule 6a)",
       [] {
         return CheckText(
             Ags3File().Group("PROJ", {"PROJ_AGS", "PROJ_ID"}, {"", ""}, {{"3.1", "P"}}).Text());
       }},
      {&ProjIdNotFirst, Ags4,
       "ERROR: Line 2 - Group PROJ does not have PROJ_ID as the first field (Rule 6a)",
       [] {
         Ags4File file;
         file.Group("PROJ", {"PROJ_NAME", "PROJ_ID"}, {"", ""}, {"X", "ID"}, {{"Name", "P1"}});
         file.Group("TYPE", {"TYPE_TYPE"}, {""}, {"X"}, {{"X"}});
         file.Group("UNIT", {"UNIT_UNIT"}, {""}, {"X"}, {{"m"}});
         return CheckText(file.Text());
       }},
  };
}

Provocations KeyValueProvocations() {
  return {
      {&KeyRepeated, Ags3, "ERROR: Line 22 - Group GEOL key 'BH1,1.0,2.00' is repeated in line 23.",
       [] {
         return CheckText(
             WithGeology({{"BH1", "1", "2", "A"}, {"BH1", "1.0", "2.00", "B"}}).Text());
       }},
      {&KeyRepeated, Ags4,
       "ERROR: Line 38 - Group GEOL key 'BH1,1.00,2.00' is repeated in line 39.",
       [] {
         return CheckText(
             WithGeology4({{"BH1", "1.00", "2.00", "A"}, {"BH1", "1.00", "2.00", "B"}}).Text());
       }},
      {&ParentGroupMissing, Ags3,
       "ERROR: Group SAMP is the parent of group CLSS and is not found in the data file.",
       [] {
         return CheckText(
             MinimalAgs3()
                 .Group("CLSS",
                        {"HOLE_ID", "SAMP_TOP", "SAMP_REF", "SAMP_TYPE", "SPEC_REF", "SPEC_DPTH"},
                        {"", "m", "", "", "", "m"}, {{"BH1", "1", "1", "D", "1", "1"}})
                 .Text());
       }},
      {&ParentGroupMissing, Ags4,
       "ERROR: Group LOCA is the parent of group HDIA and is not found in the data file.",
       [] {
         return CheckText(MinimalAgs4()
                              .Group("HDIA", {"LOCA_ID", "HDIA_DPTH", "HDIA_DIAM"}, {"", "m", "mm"},
                                     {"ID", "2DP", "0DP"}, {{"BH1", "1.00", "150"}})
                              .Text());
       }},
      {&SecondaryParentGroupMissing, Ags3,
       "WARNING: Group SAMP is the secondary parent of group LBST and is not found in the data "
       "file.",
       [] { return Laboratory3(false); }},
      {&SecondaryParentGroupMissing, Ags4,
       "WARNING: Group SAMP is the secondary parent of group LBST and is not found in the data "
       "file.",
       [] { return Laboratory(false, "1.00"); }},
      {&ParentKeyCaseDiffers, Ags3,
       "FYI: Line 22 - Group GEOL key bh1 does not match the case of the associated key in the "
       "parent group (HOLE:  BH1).",
       [] {
         return CheckText(WithGeology({{"bh1", "1", "2", "A"}}).Text());
       }},
      {&ParentKeyCaseDiffers, Ags4,
       "FYI: Line 38 - Group GEOL key Bh2 does not match the case of the associated key in the "
       "parent group (LOCA:  BH2).",
       [] {
         return CheckText(WithGeology4({{"Bh2", "1.00", "2.00", "A"}}).Text());
       }},
      {&ParentKeyMissing, Ags3,
       "ERROR: Line 22 - Group GEOL key 'BH9' does not have an associated key in the parent group "
       "(HOLE).",
       [] {
         return CheckText(WithGeology({{"BH9", "1", "2", "A"}}).Text());
       }},
      {&ParentKeyMissing, Ags4,
       "ERROR: Line 38 - Group GEOL key 'BH9' does not have an associated key in the parent group "
       "(LOCA).",
       [] {
         return CheckText(WithGeology4({{"BH9", "1.00", "2.00", "A"}}).Text());
       }},
      {&SecondaryParentKeyMissing, Ags3,
       "WARNING: Line 19 - Group LBST key 'BH1,2' does not have an associated key in the secondary "
       "parent group (SAMP).",
       [] { return Laboratory3(true); }},
      {&SecondaryParentKeyMissing, Ags4,
       "WARNING: Line 50 - Group LBST key 'BH1,2.00,1,D,S1' does not have an associated key in the "
       "secondary parent group (SAMP).",
       [] { return Laboratory(true, "2.00"); }},
  };
}

}  // namespace

Provocations KeyProvocations() {
  Provocations all = KeyHeadingProvocations();
  const Provocations values = KeyValueProvocations();
  all.insert(all.end(), values.begin(), values.end());
  return all;
}

}  // namespace quorvane::test
