#include "rules/required_content.h"
#include "rules/required_content_messages.h"
#include "support/direct_check.h"
#include "support/provocation.h"

namespace quorvane::test {
namespace {

constexpr auto Ags3 = AgsFormat::Ags3;
constexpr auto Ags4 = AgsFormat::Ags4;

/// A project group of AGS 3 files with this version text.
Ags3File Ags3Project(const std::string& version) {
  Ags3File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_AGS"}, {"", ""}, {{"P1", version}});
  return file;
}

/// The TRAN group behind a project group; each row is a TRAN_AGS value.
Ags4File Ags4Transmission(const std::vector<std::vector<std::string>>& rows) {
  Ags4File file;
  file.Group("PROJ", {"PROJ_ID"}, {""}, {"ID"}, {{"P1"}});
  file.Group("TRAN", {"TRAN_AGS"}, {""}, {"X"}, rows);
  file.Group("TYPE", {"TYPE_TYPE"}, {""}, {"X"}, {{"ID"}, {"X"}});
  file.Group("UNIT", {"UNIT_UNIT"}, {""}, {"X"}, {{"m"}});
  return file;
}

// A schema by which an AGS 3 file has required fields.
constexpr std::string_view SchemaWithRequiredField =
    "'Vexo Schema for AGS\nHOLE\n\nHOLE_ID\n\nPROJ\n\nPROJ.PROJ_NAME\n\n"
    "PROJ\n,1\nPROJ_ID,PROJ_NAME\n,\nX,X\n";

}  // namespace

Provocations RequiredContentProvocations() {
  return {
      {&RequiredGroupsMissing, Ags3,
       "ERROR: The following required groups are missing from the file:\r\nPROJ",
       [] { return CheckText("\"**HOLE\"\n\"*HOLE_ID\"\n\"<UNITS>\"\n\"BH1\"\n"); }},
      {&RequiredGroupsMissing, Ags4,
       "ERROR: The following required groups are missing from the file:\r\nPROJ\r\nTRAN",
       [] {
         Ags4File file;
         file.Group("TYPE", {"TYPE_TYPE"}, {""}, {"X"}, {{"X"}});
         file.Group("UNIT", {"UNIT_UNIT"}, {""}, {"X"}, {{"m"}});
         return CheckText(file.Text());
       }},
      {&RequiredFieldsMissing, Ags3,
       "ERROR: The following required fields are missing in the HEADING or are missing data "
       "values (Rule 10b):\r\nHeading 'PROJ_NAME' in group 'PROJ' is missing",
       [] { return CheckTextAgainst(SchemaWithRequiredField, Ags3Project("3.1").Text()); }},
      {&RequiredFieldsMissing, Ags4,
       "ERROR: The following required fields are missing in the HEADING or are missing data "
       "values (Rule 10b):\r\nHeading 'UNIT_DESC' in group 'UNIT' has no data value in line "
       "26\r\nHeading 'UNIT_DESC' in group 'UNIT' has no data value in line 28",
       [] {
         Ags4File file = MinimalAgs4();  // 25 lines
         file.Line("\"DATA\",\"m\",\"\"").Line("\"DATA\",\"kN\",\"kilonewton\"");
         file.Line("\"DATA\",\"kPa\",\"\"");
         return CheckText(file.Text());
       }},
      {&GroupWithoutHeadings, Ags3, "ERROR: Line 5 - No fields found for the DETL group.",
       [] { return CheckText(Ags3Project("3.1").Line("\"**DETL\"").Text()); }},
      // The heading row of an AGS 4 group has a field in any case, so no file leads here.
      {&GroupWithoutHeadings, Ags4, "ERROR: Line 7 - No fields found for the LOCA group.",
       [] {
         return CheckDirectly(Ags4, [](CheckedFile& file) {
           CheckGroupNotEmpty(file, file.table.AddGroup("LOCA", 7));
         });
       }},
      {&GroupWithoutData, Ags3, "FYI: Line 6 - No data found in the GEOL group.",
       [] { return CheckText(Ags3Project("3.1").Group("GEOL", {"HOLE_ID"}, {""}, {}).Text()); }},
      {&GroupWithoutData, Ags4, "ERROR: Line 27 - No data found in the LOCA group (Rule 2).",
       [] { return CheckText(MinimalAgs4().Group("LOCA", {"LOCA_ID"}, {""}, {"ID"}, {}).Text()); }},
      {&ProjRecordCount, Ags3, "ERROR: PROJ group has 2 records. Must only have 1 record.",
       [] { return CheckText(Ags3Project("3.1").Line("\"P2\",\"3.1\"").Text()); }},
      {&ProjRecordCount, Ags4, "ERROR: PROJ group has 3 records. Must only have 1 record.",
       [] {
         Ags4File file;
         file.Group("PROJ", {"PROJ_ID"}, {""}, {"ID"}, {{"P1"}, {"P2"}, {"P3"}});
         file.Group("TYPE", {"TYPE_TYPE"}, {""}, {"X"}, {{"X"}});
         file.Group("UNIT", {"UNIT_UNIT"}, {""}, {"X"}, {{"m"}});
         return CheckText(file.Text());
       }},
      {&ProjAgsHeadingMissing, Ags3,
       "ERROR: No PROJ_AGS field found in the PROJ group. Unknown AGS version. Version 3 is "
       "assumed.",
       [] { return CheckText(Ags3File().Group("PROJ", {"PROJ_ID"}, {""}, {{"P1"}}).Text()); }},
      {&ProjAgsIsVersion4, Ags3,
       "WARNING: Line 4 - AGS version is '4.0' but the format of the file is for version 3 or "
       "earlier. File checked as if it was version 3.",
       [] { return CheckText(Ags3Project("4.0").Text()); }},
      {&ProjAgsUnknownVersion, Ags3,
       "WARNING: Line 4 - AGS version is '2/94'. This program is set up for version 3.X and 4 AGS "
       "files only. Some of the checking may not be accurate with this file.",
       [] { return CheckText(Ags3Project("2/94").Text()); }},
      {&TranRecordCount, Ags4, "ERROR: TRAN group has 2 records. Must only have 1 record.",
       [] {
         return CheckText(Ags4Transmission({{"4.0.4"}, {"4.0.4"}}).Text());
       }},
      {&TranAgsHeadingMissing, Ags4,
       "ERROR: No TRAN_AGS field found in the TRAN group. Unknown AGS version. Version 4 is "
       "assumed.",
       [] {
         Ags4File file;
         file.Group("TRAN", {"TRAN_ISNO"}, {""}, {"X"}, {{"1"}});
         file.Group("TYPE", {"TYPE_TYPE"}, {""}, {"X"}, {{"X"}});
         file.Group("UNIT", {"UNIT_UNIT"}, {""}, {"X"}, {{"m"}});
         return CheckText(file.Text());
       }},
      {&TranAgsUnknownVersion, Ags4,
       "WARNING: Line 11 - AGS version is '3.1'. This program is set up for version 3.X and 4 AGS "
       "files only. Version 4 is assumed. Some of the checking may not be accurate with this "
       "file.",
       [] { return CheckText(Ags4Transmission({{"3.1"}}).Text()); }},
  };
}

}  // namespace quorvane::test
