#include "rules/dict_group_messages.h"

#include <array>

namespace quorvane {
namespace {

constexpr MessageForm KeyHeadingsForm{
    Severity::Error, "",
    "There are non-standard groups or headings in the file but the DICT group is missing the "
    "following key heading(s): {0}.  Cannot check."};
constexpr MessageForm DescriptiveHeadingsForm{
    Severity::Warning, "",
    "There are non-standard groups or headings in the file but the DICT group is missing the "
    "following descriptive heading(s): {0}.  Without these data documentation of the non-standard "
    "groups/headings is incomplete."};
constexpr MessageForm GroupDescriptionForm{Severity::Warning, "",
                                           "Group {0} has no description in the DICT group."};
constexpr MessageForm HeadingMarkForm{
    Severity::Error, "22",
    "Field name {0} in non-standard group {1} is missing the leading '?' (Rule 22)"};
constexpr MessageForm HeadingStatusForm{
    Severity::Error, "",
    "Heading '{0}' in group '{1}' has no heading status (KEY or COMMON) in the DICT group."};
constexpr MessageForm HeadingDescriptionForm{
    Severity::Warning, "", "Heading '{0}' in group '{1}' has no description in the DICT group."};
constexpr MessageForm HeadingExampleForm{
    Severity::Fyi, "", "Heading '{0}' in group '{1}' has no example in the DICT group."};

}  // namespace

const MessageDefinition DictGroupMissing{
    .id = "dict-group.missing",
    .ags3 = {Severity::Error, "21",
             "The following non-standard groups and/or headings are in the file but there is no "
             "DICT group that defines them (Rule 21).{0}"},
    .ags4 = {Severity::Error, "",
             "The following non-standard groups and/or headings are in the file but there is no "
             "DICT group that defines them.{0}"},
    .meaning =
        "The file has groups or headings of its own, which only a DICT group can explain to "
        "whoever receives the file.",
    .remedy = "Add a DICT group that defines what is listed, or correct the names."};

const MessageDefinition DictGroupWithoutData{
    .id = "dict-group.without-data",
    .ags3 = {Severity::Error, "21",
             "There are non-standard groups or headings in the file but the DICT group that define "
             "them has no data (Rule 21)."},
    .ags4 = {Severity::Error, "",
             "There are non-standard groups or headings in the file but the DICT group that define "
             "them has no data."},
    .meaning = "The file has groups or headings of its own and a DICT group without rows.",
    .remedy = "Define the file's own groups and headings in the DICT group."};

const MessageDefinition DictKeyHeadingsMissing{
    .id = "dict-group.key-headings-missing",
    .ags3 = KeyHeadingsForm,
    .ags4 = KeyHeadingsForm,
    .meaning =
        "The DICT group lacks headings without which it cannot be told what its rows "
        "define. The file's own groups and headings were not checked.",
    .remedy = "Add the headings listed to the DICT group."};

const MessageDefinition DictDescriptiveHeadingsMissing{
    .id = "dict-group.descriptive-headings-missing",
    .ags3 = DescriptiveHeadingsForm,
    .ags4 = DescriptiveHeadingsForm,
    .meaning = "The DICT group lacks headings that describe the file's own groups and headings.",
    .remedy = "Add the headings listed to the DICT group and fill them in."};

const MessageDefinition OwnGroupNotDefined{
    .id = "dict-group.group-not-defined",
    .ags3 = {Severity::Error, "21", "Group {0} not defined in the DICT group (Rule 21)."},
    .ags4 = {Severity::Error, "", "Group {0} not defined in the DICT group."},
    .meaning =
        "The AGS dictionary does not know the group, and no row of the DICT group defines "
        "it. The headings of the group were not looked for.",
    .remedy =
        "Add a row to DICT with DICT_TYPE \"GROUP\" and the group's name, without a question "
        "mark, under DICT_GRP."};

const MessageDefinition OwnGroupWithoutDescription{
    .id = "dict-group.group-without-description",
    .ags3 = GroupDescriptionForm,
    .ags4 = GroupDescriptionForm,
    .meaning = "The DICT row of one of the file's own groups says nothing under DICT_DESC.",
    .remedy = "Describe the group under DICT_DESC."};

const MessageDefinition OwnGroupHeadingWithoutMark{
    .id = "dict-group.heading-without-mark",
    .ags3 = HeadingMarkForm,
    .ags4 = HeadingMarkForm,
    .meaning =
        "A heading in one of the file's own groups does not begin with the question mark "
        "that tells such headings from those of the AGS dictionary.",
    .remedy =
        "Put a question mark in front of the heading where it stands in the group (not in "
        "the DICT group)."};

const MessageDefinition OwnHeadingNotDefined{
    .id = "dict-group.heading-not-defined",
    .ags3 = {Severity::Error, "21",
             "Heading '{0}' in group '{1}' is not defined in the DICT group (Rule 21)."},
    .ags4 = {Severity::Error, "", "Heading '{0}' in group '{1}' is not defined in the DICT group."},
    .meaning =
        "The AGS dictionary does not have the heading in this group, and no row of the DICT "
        "group defines it.",
    .remedy =
        "Add a row to DICT with DICT_TYPE \"HEADING\", the group under DICT_GRP and the "
        "heading under DICT_HDNG, both without a question mark."};

const MessageDefinition OwnHeadingWithoutStatus{
    .id = "dict-group.heading-without-status",
    .ags3 = HeadingStatusForm,
    .ags4 = HeadingStatusForm,
    .meaning =
        "The DICT row of one of the file's own headings does not say whether the heading is "
        "part of its group's key.",
    .remedy = "State the heading's status under DICT_STAT."};

const MessageDefinition OwnHeadingWithoutDescription{
    .id = "dict-group.heading-without-description",
    .ags3 = HeadingDescriptionForm,
    .ags4 = HeadingDescriptionForm,
    .meaning = "The DICT row of one of the file's own headings says nothing under DICT_DESC.",
    .remedy = "Describe the heading under DICT_DESC."};

const MessageDefinition OwnHeadingWithoutExample{
    .id = "dict-group.heading-without-example",
    .ags3 = HeadingExampleForm,
    .ags4 = HeadingExampleForm,
    .meaning = "The DICT row of one of the file's own headings gives no example of a value.",
    .remedy = "Give a typical value under DICT_EXMP."};

MessageTable DictGroupMessages() {
  static constexpr std::array table{&DictGroupMissing,           &DictGroupWithoutData,
                                    &DictKeyHeadingsMissing,     &DictDescriptiveHeadingsMissing,
                                    &OwnGroupNotDefined,         &OwnGroupWithoutDescription,
                                    &OwnGroupHeadingWithoutMark, &OwnHeadingNotDefined,
                                    &OwnHeadingWithoutStatus,    &OwnHeadingWithoutDescription,
                                    &OwnHeadingWithoutExample};
  return table;
}

}  // namespace quorvane
