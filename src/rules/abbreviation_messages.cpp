#include "rules/abbreviation_messages.h"

#include <array>

namespace quorvane {
namespace {

// The ABBR group is the business of Rule 20 in AGS 3 and of Rule 16 in AGS 4.

constexpr std::string_view KeyFieldsText =
    "Can't check ABBR group because one or more key fields are missing.";
constexpr std::string_view HeadingNotUsedText = "No references to ABBR_HDNG {0} in data file.";
constexpr std::string_view CodeNotUsedText =
    "No references in the data to ABBR_CODE '{0}' in heading '{1}'";
constexpr std::string_view NoUsableDataText = "No usable data found under the ABBR group";
// The group named is the ABBR group, not the group that holds the code.
constexpr std::string_view CodeNotListedText =
    "Code {0} under {1} in group '{2}' not found in the ABBR group.";

}  // namespace

const MessageDefinition AbbrGroupMissing{
    .id = "abbreviations.group-missing",
    .ags3 = {Severity::Error, "20", "No ABBR group found (Rule 20)."},
    .ags4 = {},
    .meaning = "The file has no ABBR group, which explains the abbreviations in its data.",
    .remedy = "Add an ABBR group with an entry for each abbreviation used."};

const MessageDefinition AbbrKeyFieldsMissing{
    .id = "abbreviations.key-fields-missing",
    .ags3 = {Severity::Error, "20", KeyFieldsText},
    .ags4 = {Severity::Error, "16", KeyFieldsText},
    .meaning =
        "The ABBR group lacks the heading ABBR_HDNG or ABBR_CODE, or it has no heading line. "
        "No abbreviation of the file was checked.",
    .remedy = "Give the ABBR group both headings, and its entries a value under each."};

const MessageDefinition AbbrContaminantType{
    .id = "abbreviations.contaminant-type",
    .ags3 = {Severity::Error, "25",
             "CNMT_TYPE cannot be in the ABBR group. All CNMT_TYPE abbreviations must be in the "
             "CODE group (Rule 25)."},
    .ags4 = {},
    .meaning = "A contaminant code is explained in the ABBR group, where it does not belong.",
    .remedy = "Move the entry to the CODE group."};

const MessageDefinition AbbrHeadingValueMissing{
    .id = "abbreviations.heading-value-missing",
    .ags3 = {Severity::Error, "20", "ABBR_HDNG value missing."},
    .ags4 = {},
    .meaning = "An entry of the ABBR group does not say for which heading its code is.",
    .remedy = "Fill in ABBR_HDNG, or remove the entry."};

const MessageDefinition AbbrHeadingNotUsed{
    .id = "abbreviations.heading-not-used",
    .ags3 = {Severity::Fyi, "20", HeadingNotUsedText},
    .ags4 = {Severity::Fyi, "16", HeadingNotUsedText},
    .meaning = "An entry of the ABBR group is for a heading that no group of the file has.",
    .remedy =
        "Nothing need be done. If the heading is misspelt, correct it; otherwise the entry can "
        "be removed."};

const MessageDefinition AbbrCodeValueMissing{
    .id = "abbreviations.code-value-missing",
    .ags3 = {Severity::Error, "20", "ABBR_CODE value is missing for ABBR_HDNG {0}"},
    .ags4 = {},
    .meaning = "An entry of the ABBR group explains no code.",
    .remedy = "Fill in ABBR_CODE, or remove the entry."};

const MessageDefinition AbbrCodeNotUsed{
    .id = "abbreviations.code-not-used",
    .ags3 = {Severity::Fyi, "20", CodeNotUsedText},
    .ags4 = {Severity::Fyi, "16", CodeNotUsedText},
    .meaning = "A code is explained and occurs nowhere in the data under its heading.",
    .remedy =
        "Nothing need be done. If the code is misspelt, or has blanks before or behind it, "
        "correct it; otherwise the entry can be removed."};

const MessageDefinition AbbrNoUsableData{
    .id = "abbreviations.no-usable-data",
    .ags3 = {Severity::Error, "20", NoUsableDataText},
    .ags4 = {Severity::Error, "16", NoUsableDataText},
    .meaning =
        "Not one entry of the ABBR group explains a code of a heading that the file has. The "
        "abbreviations in the data were not checked.",
    .remedy = "Fill in ABBR_HDNG and ABBR_CODE for the abbreviations that the data use."};

const MessageDefinition AbbrCodeNotListed{
    .id = "abbreviations.code-not-listed",
    .ags3 = {Severity::Error, "20", CodeNotListedText},
    .ags4 = {Severity::Error, "16", CodeNotListedText},
    .meaning =
        "A code stands in the data under a heading for which the ABBR group has entries, and "
        "is not among them. The code is in a group that has the heading; the line and the "
        "group named are those of the ABBR group.",
    .remedy = "Add an entry for the code to the ABBR group, or correct the code in the data."};

const MessageDefinition AbbrNoEntries{
    .id = "abbreviations.no-entries",
    .ags3 = {Severity::Error, "20",
             "There are data for {0} but no entries in the ABBR group. This heading requires "
             "abbreviation listings (Rule 20)."},
    .ags4 = {Severity::Error, "16",
             "There are data for {0} but no entries in the ABBR group. This heading requires "
             "abbreviation listings ."},
    .meaning =
        "A heading whose values are abbreviations holds data, and the ABBR group explains "
        "none of its codes.",
    .remedy = "Add an entry for each code under the heading to the ABBR group."};

MessageTable AbbreviationMessages() {
  static constexpr std::array table{
      &AbbrGroupMissing,   &AbbrKeyFieldsMissing, &AbbrContaminantType, &AbbrHeadingValueMissing,
      &AbbrHeadingNotUsed, &AbbrCodeValueMissing, &AbbrCodeNotUsed,     &AbbrNoUsableData,
      &AbbrCodeNotListed,  &AbbrNoEntries};
  return table;
}

}  // namespace quorvane
