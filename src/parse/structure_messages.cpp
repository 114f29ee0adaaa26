#include "parse/structure_messages.h"

#include <array>

namespace quorvane {
namespace {

constexpr MessageForm HeadingRepeatedForm{Severity::Error, "", "Field '{0}' is repeated."};
constexpr MessageForm WithoutAsteriskForm{Severity::Error, "11",
                                          "'{0}' - headings must begin with \"*\" (Rule 11)."};
constexpr MessageForm RequiredHeadingForm{Severity::Warning, "",
                                          "No '{0}' heading found in the {1} group"};
constexpr MessageForm ReferenceValuesForm{
    Severity::Warning, "",
    "The following {0} values did not have {1} values in the {2} group:\r\n{3}"};

}  // namespace

const MessageDefinition UnknownGroupLineSyntax{
    .id = "structure.unknown-group-line",
    .ags3 = {Severity::Error, "10", "unknown data group line syntax:  {0}"},
    .ags4 = {Severity::Error, "10", "unknown data group line syntax:  {0}"},
    .meaning =
        "A line stands where the line that opens a group is expected, and it is no group "
        "line.",
    .remedy =
        "Begin the data with a group line, \"**NAME\" (AGS 3) or \"GROUP\",\"NAME\" (AGS 4), "
        "and remove text before it."};

const MessageDefinition HeadingWithoutAsterisk{
    .id = "structure.heading-without-asterisk",
    .ags3 = WithoutAsteriskForm,
    .ags4 = WithoutAsteriskForm,
    .meaning =
        "A field of a heading line does not have the form of a heading. The line may be a "
        "data or units line whose heading line is missing.",
    .remedy =
        "Write each heading as \"*HEADING\" (AGS 3). In AGS 4, look at the commas and quotes "
        "of the HEADING line."};

const MessageDefinition HeadingRepeated{.id = "structure.heading-repeated",
                                        .ags3 = HeadingRepeatedForm,
                                        .ags4 = HeadingRepeatedForm,
                                        .meaning = "A group has the same heading more than once.",
                                        .remedy = "Remove or rename one of the columns."};

const MessageDefinition TooManyHeadings{
    .id = "structure.too-many-headings",
    .ags3 = {Severity::Error, "17", "the number of headings in group '{0}' exceeds 60 (Rule 17)."},
    .ags4 = {},
    .meaning = "A group has more than 60 headings.",
    .remedy = "Leave out headings that hold no data, or move some to a group of their own."};

const MessageDefinition UnitsLineMissing{
    .id = "structure.units-line-missing",
    .ags3 = {Severity::Error, "18", "<UNITS> line missing for group '{0}' (Rule 18)"},
    .ags4 = {},
    .meaning = "The data of a group begin without the line that gives the units of its headings.",
    .remedy = "Put a line that begins with \"<UNITS>\" behind the heading line."};

const MessageDefinition UnitsLineDoesNotApply{
    .id = "structure.units-line-superfluous",
    .ags3 = {Severity::Fyi, "18", "<UNITS> line does not apply to group {0} (Rule 18)."},
    .ags4 = {},
    .meaning = "The groups ABBR, CODE, DICT and UNIT have no units line.",
    .remedy = "Remove the <UNITS> line of this group."};

const MessageDefinition UnitsLineStart{
    .id = "structure.units-line-start",
    .ags3 = {Severity::Error, "18", "units line must begin with \"<UNITS>\" (Rule 18)."},
    .ags4 = {},
    .meaning = "\"<UNITS>\" stands in the line, but not as its first field.",
    .remedy = "Make \"<UNITS>\" the first field of the line."};

const MessageDefinition UnitCountDiffers{
    .id = "structure.unit-count-differs",
    .ags3 = {Severity::Error, "18",
             "number of units does not match the number of headers (Rule 18)."},
    .ags4 = {Severity::Error, "4", "number of units does not match the number of headers."},
    .meaning = "The units line of a group has more or fewer fields than its heading line.",
    .remedy =
        "Give the units line one field for each heading; a heading without a unit has an "
        "empty field."};

const MessageDefinition TypeCountDiffers{
    .id = "structure.type-count-differs",
    .ags3 = {},
    .ags4 = {Severity::Error, "4", "number of types does not match the number of headers."},
    .meaning = "The TYPE line of a group has more or fewer fields than its HEADING line.",
    .remedy = "Give the TYPE line one field for each heading."};

const MessageDefinition RequiredHeadingMissing{
    .id = "lookup.heading-missing",
    .ags3 = RequiredHeadingForm,
    .ags4 = RequiredHeadingForm,
    .meaning = "A group that explains codes lacks the heading that holds the explanations.",
    .remedy = "Add the heading to the group and fill it."};

const MessageDefinition ReferenceValuesMissing{
    .id = "lookup.values-missing",
    .ags3 = ReferenceValuesForm,
    .ags4 = ReferenceValuesForm,
    .meaning = "Some entries of a group that explains codes are without their explanation.",
    .remedy = "Fill in the explanation of each entry listed."};

MessageTable StructureMessages() {
  static constexpr std::array table{
      &UnknownGroupLineSyntax, &HeadingWithoutAsterisk, &HeadingRepeated,       &TooManyHeadings,
      &UnitsLineMissing,       &UnitsLineDoesNotApply,  &UnitsLineStart,        &UnitCountDiffers,
      &TypeCountDiffers,       &RequiredHeadingMissing, &ReferenceValuesMissing};
  return table;
}

}  // namespace quorvane
