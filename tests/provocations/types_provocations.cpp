#include "rules/type_messages.h"
#include "support/provocation.h"

namespace quorvane::test {
namespace {

constexpr auto Ags3 = AgsFormat::Ags3;
constexpr auto Ags4 = AgsFormat::Ags4;

/// A project and a group of one heading of some type, whose first row is line 11.
Ags4File File4(const std::string& type, const std::string& unit,
               const std::vector<std::vector<std::string>>& rows) {
  Ags4File file;
  file.Group("PROJ", {"PROJ_ID"}, {""}, {"ID"}, {{"P1"}});
  file.Group("LOCA", {"LOCA_REF"}, {unit}, {type}, rows);
  return file;
}

Ags4File WithTypeGroup4(Ags4File file, const std::vector<std::string>& headings,
                        const std::vector<std::vector<std::string>>& rows) {
  const std::vector<std::string> units(headings.size());
  const std::vector<std::string> types(headings.size(), "X");
  file.Group("TYPE", headings, units, types, rows);
  return file;
}

/// An AGS 3 file gets its types from a schema: this one gives HOLE_REF some type.
std::string Schema3(const std::string& type) {
  return "'Vexo Schema for AGS\nHOLE\n\nHOLE_ID\n\nPROJ\n\nPROJ.PROJ_ID\n\n"
         "PROJ\n,1\nPROJ_ID,PROJ_NAME\n,\nID,X\n"
         "HOLE\n,1\nHOLE_ID,HOLE_REF\n,\nID," +
         type + "\n";
}

/// A project and a group whose second heading is HOLE_REF and whose first row is line 9.
Ags3File File3(const std::string& unit, const std::vector<std::vector<std::string>>& rows) {
  Ags3File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_NAME"}, {"", ""}, {{"P1", "Name"}});
  file.Group("HOLE", {"HOLE_ID", "HOLE_REF"}, {"", unit}, rows);
  return file;
}

Ags3File WithTypeGroup3(Ags3File file, const std::vector<std::string>& headings,
                        const std::vector<std::vector<std::string>>& rows) {
  file.Group("TYPE", headings, std::vector<std::string>(headings.size()), rows);
  return file;
}

CheckResult Check3(const std::string& type, const Ags3File& file) {
  return CheckTextAgainst(Schema3(type), file.Text());
}

Provocations TypeListProvocations() {
  return {
      {&TypeHeadingMissing, Ags3, "ERROR: No TYPE_TYPE heading found in the TYPE group",
       [] {
         return Check3("X", WithTypeGroup3(File3("", {{"BH1", "a"}}), {"TYPE_DESC"}, {{"Text"}}));
       }},
      {&TypeHeadingMissing, Ags4, "ERROR: No TYPE_TYPE heading found in the TYPE group",
       [] {
         return CheckText(
             WithTypeGroup4(File4("X", "", {{"a"}}), {"TYPE_DESC"}, {{"Text"}}).Text());
       }},
      {&TypeListEmpty, Ags3, "ERROR: No data found under the TYPE_TYPE heading in the TYPE group",
       [] {
         return Check3("X", WithTypeGroup3(File3("", {{"BH1", "a"}}), {"TYPE_TYPE", "TYPE_DESC"},
                                           {{"", "Text"}}));
       }},
      {&TypeListEmpty, Ags4, "ERROR: No data found under the TYPE_TYPE heading in the TYPE group",
       [] {
         return CheckText(
             WithTypeGroup4(File4("X", "", {{"a"}}), {"TYPE_TYPE", "TYPE_DESC"}, {{"", "Text"}})
                 .Text());
       }},
      {&DataTypeMissing, Ags4, "ERROR: Line 8 - Data type is missing for 'LOCA.LOCA_REF'",
       [] { return CheckText(File4("", "", {{"a"}}).Text()); }},
      {&DataTypeNotListed, Ags3,
       "ERROR: Line 7 - 'HOLE.HOLE_REF' has the data type (2DP) which is not listed in the TYPE "
       "group",
       [] {
         return Check3("2DP", WithTypeGroup3(File3("", {{"BH1", "1.50"}}),
                                             {"TYPE_TYPE", "TYPE_DESC"}, {{"X", "Text"}}));
       }},
      {&DataTypeNotListed, Ags4,
       "ERROR: Line 8 - 'LOCA.LOCA_REF' has the data type (2DP) which is not listed in the TYPE "
       "group",
       [] {
         return CheckText(WithTypeGroup4(File4("2DP", "", {{"1.50"}}), {"TYPE_TYPE", "TYPE_DESC"},
                                         {{"X", "Text"}})
                              .Text());
       }},
      {&TypesNotUsed, Ags3,
       "FYI: The following TYPE_TYPE values are in the TYPE group but not found in any of the data "
       "groups:\r\nMC\r\nYN",
       [] {
         return Check3("X", WithTypeGroup3(File3("", {{"BH1", "a"}}), {"TYPE_TYPE", "TYPE_DESC"},
                                           {{"MC", "a"}, {"X", "b"}, {"ID", "c"}, {"YN", "d"}}));
       }},
      {&TypesNotUsed, Ags4,
       "FYI: The following TYPE_TYPE values are in the TYPE group but not found in any of the data "
       "groups:\r\nMC\r\nYN",
       [] {
         return CheckText(WithTypeGroup4(File4("X", "", {{"a"}}), {"TYPE_TYPE", "TYPE_DESC"},
                                         {{"MC", "a"}, {"X", "b"}, {"ID", "c"}, {"YN", "d"}})
                              .Text());
       }},
  };
}

Provocations ColumnProvocations() {
  return {
      {&DateUnitMissing, Ags3,
       "ERROR: Line 7 - A date/time format unit is required for DT fields (HOLE.HOLE_REF)",
       [] {
         return Check3("DT", File3("", {{"BH1", "05/01/2023"}}));
       }},
      {&DateUnitMissing, Ags4,
       "ERROR: Line 8 - A date/time format unit is required for DT fields (LOCA.LOCA_REF)",
       [] { return CheckText(File4("DT", "", {{"2023-01-05"}}).Text()); }},
      {&ElapsedTimeUnitMissing, Ags3,
       "ERROR: Line 8 - An elapsed time format unit is required for T fields (HOLE.HOLE_REF)",
       [] {
         return Check3("T", File3("", {{"BH1", "10:30"}}));
       }},
      {&ElapsedTimeUnitMissing, Ags4,
       "ERROR: Line 9 - An elapsed time format unit is required for T fields (LOCA.LOCA_REF)",
       [] { return CheckText(File4("T", "", {{"10:30"}}).Text()); }},
      {&UnknownDataType, Ags3, "ERROR: Line 7 - Unknown data type (2dp) for field 'HOLE.HOLE_REF'",
       [] {
         return Check3("2dp", File3("", {{"BH1", "1.50"}}));
       }},
      {&UnknownDataType, Ags4, "ERROR: Line 8 - Unknown data type (2dp) for field 'LOCA.LOCA_REF'",
       [] { return CheckText(File4("2dp", "", {{"1.50"}}).Text()); }},
  };
}

Provocations ValueProvocations() {
  return {
      {&ValueTypeMismatch, Ags3,
       "ERROR: Line 9 - Value for field 'HOLE_REF' (30/02/2023) does not match the required field "
       "type (DT - dd/mm/yyyy)",
       [] {
         return Check3("DT", File3("dd/mm/yyyy", {{"BH1", "30/02/2023"}}));
       }},
      {&ValueTypeMismatch, Ags4,
       "ERROR: Line 11 - Value for field 'LOCA_REF' (1.5) does not match the required field type "
       "(2DP)",
       [] { return CheckText(File4("2DP", "", {{"1.5"}}).Text()); }},
      {&IdRepeated, Ags3, "ERROR: Line 10 - ID field value 'R1' is repeated",
       [] {
         return Check3("ID", File3("", {{"BH1", "R1"}, {"BH2", "R1"}}));
       }},
      {&IdRepeated, Ags4, "ERROR: Line 12 - ID field value 'R1' is repeated",
       [] {
         return CheckText(File4("ID", "", {{"R1"}, {"R1"}}).Text());
       }},
      {&RecordLinkGroupMissing, Ags3,
       "ERROR: Line 9 - RecordLink group \"SAMP\" not found (Rule 11c).",
       [] {
         return Check3("RL", File3("", {{"BH1", "SAMP|BH1"}}));
       }},
      {&RecordLinkGroupMissing, Ags4,
       "ERROR: Line 11 - RecordLink group \"SAMP\" not found (Rule 11c).",
       [] { return CheckText(File4("RL", "", {{"SAMP|BH1"}}).Text()); }},
      {&RecordLinkRecordMissing, Ags3,
       "ERROR: Line 9 - RecordLink record \"HOLE|BH2\" not found (Rule 11c).",
       [] {
         return Check3("RL", File3("", {{"BH1", "HOLE|BH1+HOLE|BH2"}}));
       }},
      {&RecordLinkRecordMissing, Ags4,
       "ERROR: Line 11 - RecordLink record \"PROJ|P2\" not found (Rule 11c).",
       [] { return CheckText(File4("RL", "", {{"PROJ|P1+PROJ|P2"}}).Text()); }},
  };
}

}  // namespace

Provocations TypeProvocations() {
  Provocations all = TypeListProvocations();
  for (const Provocations& more : {ColumnProvocations(), ValueProvocations()})
    all.insert(all.end(), more.begin(), more.end());
  return all;
}

}  // namespace quorvane::test
