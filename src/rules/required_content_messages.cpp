#include "rules/required_content_messages.h"

#include <array>

namespace quorvane {
namespace {

constexpr MessageForm RequiredGroupsForm{
    Severity::Error, "10b", "The following required groups are missing from the file:{0}"};
constexpr MessageForm RequiredFieldsForm{
    Severity::Error, "10b",
    "The following required fields are missing in the HEADING or are missing data values (Rule "
    "10b):{0}"};
constexpr MessageForm NoHeadingsForm{Severity::Error, "2", "No fields found for the {0} group."};
constexpr MessageForm ProjCountForm{Severity::Error, "",
                                    "PROJ group has {0} records. Must only have 1 record."};

}  // namespace

const MessageDefinition RequiredGroupsMissing{
    .id = "required.groups-missing",
    .ags3 = RequiredGroupsForm,
    .ags4 = RequiredGroupsForm,
    .meaning = "Groups that every file must have are not in the file.",
    .remedy = "Add the groups listed."};

const MessageDefinition RequiredFieldsMissing{
    .id = "required.fields-missing",
    .ags3 = RequiredFieldsForm,
    .ags4 = RequiredFieldsForm,
    .meaning =
        "Headings that must be there and must hold a value in every row are missing or "
        "empty.",
    .remedy = "Add the headings and fill in the values in the lines listed."};

const MessageDefinition GroupWithoutHeadings{
    .id = "required.group-without-headings",
    .ags3 = NoHeadingsForm,
    .ags4 = NoHeadingsForm,
    .meaning = "A group line is followed by no heading line.",
    .remedy = "Add the heading line, or remove the group."};

const MessageDefinition GroupWithoutData{
    .id = "required.group-without-data",
    .ags3 = {Severity::Fyi, "2", "No data found in the {0} group."},
    .ags4 = {Severity::Error, "2", "No data found in the {0} group (Rule 2)."},
    .meaning = "A group has no data rows.",
    .remedy = "Remove the group, or add its data."};

const MessageDefinition ProjRecordCount{
    .id = "required.proj-records",
    .ags3 = ProjCountForm,
    .ags4 = ProjCountForm,
    .meaning = "A file describes one project: its PROJ group has one row.",
    .remedy = "Keep one row in the PROJ group."};

const MessageDefinition ProjAgsHeadingMissing{
    .id = "required.proj-ags-missing",
    .ags3 = {Severity::Error, "",
             "No PROJ_AGS field found in the PROJ group. Unknown AGS version. Version 3 is "
             "assumed."},
    .ags4 = {},
    .meaning = "The file does not state the AGS edition that it keeps to.",
    .remedy = "Add the heading PROJ_AGS with the edition, for example 3.1."};

const MessageDefinition ProjAgsIsVersion4{
    .id = "required.proj-ags-is-4",
    .ags3 = {Severity::Warning, "",
             "AGS version is '{0}' but the format of the file is for version 3 or earlier. File "
             "checked as if it was version 3."},
    .ags4 = {},
    .meaning = "The file says that it is AGS 4 but is written in the form of AGS 3.",
    .remedy = "Correct PROJ_AGS, or write the file anew as AGS 4."};

const MessageDefinition ProjAgsUnknownVersion{
    .id = "required.proj-ags-unknown",
    .ags3 = {Severity::Warning, "",
             "AGS version is '{0}'. This program is set up for version 3.X and 4 AGS files only. "
             "Some of the checking may not be accurate with this file."},
    .ags4 = {},
    .meaning = "PROJ_AGS does not begin with a version that can be checked.",
    .remedy = "State the edition, for example 3.1, in PROJ_AGS."};

const MessageDefinition TranRecordCount{
    .id = "required.tran-records",
    .ags3 = {},
    .ags4 = {Severity::Error, "", "TRAN group has {0} records. Must only have 1 record."},
    .meaning =
        "A file is one transmission: its TRAN group has one row. Version, delimiter and "
        "concatenator could not be taken from it.",
    .remedy = "Keep one row in the TRAN group."};

const MessageDefinition TranAgsHeadingMissing{
    .id = "required.tran-ags-missing",
    .ags3 = {},
    .ags4 = {Severity::Error, "",
             "No TRAN_AGS field found in the TRAN group. Unknown AGS version. Version 4 is "
             "assumed."},
    .meaning = "The file does not state the AGS edition that it keeps to.",
    .remedy = "Add the heading TRAN_AGS with the edition, for example 4.0.4."};

const MessageDefinition TranAgsUnknownVersion{
    .id = "required.tran-ags-unknown",
    .ags3 = {},
    .ags4 = {Severity::Warning, "",
             "AGS version is '{0}'. This program is set up for version 3.X and 4 AGS files only. "
             "Version 4 is assumed. Some of the checking may not be accurate with this file."},
    .meaning = "TRAN_AGS does not begin with version 4.",
    .remedy = "State the edition, for example 4.0.4, in TRAN_AGS."};

MessageTable RequiredContentMessages() {
  static constexpr std::array table{
      &RequiredGroupsMissing, &RequiredFieldsMissing, &GroupWithoutHeadings, &GroupWithoutData,
      &ProjRecordCount,       &ProjAgsHeadingMissing, &ProjAgsIsVersion4,    &ProjAgsUnknownVersion,
      &TranRecordCount,       &TranAgsHeadingMissing, &TranAgsUnknownVersion};
  return table;
}

}  // namespace quorvane
