#include "rules/name_messages.h"

#include <array>

namespace quorvane {
namespace {

constexpr MessageForm Error(std::string_view rule, std::string_view text) {
  return {Severity::Error, rule, text};
}

constexpr MessageForm GroupLineNotQuotedForm =
    Error("8", "group name line ({0}) must start and end in quotes (Rule 8).");
constexpr MessageForm GroupRepeatedForm =
    Error("", "multiple {0} groups; first one found is used in subsequent checking.");
constexpr MessageForm HeadingNotUpperCaseForm =
    Error("23", "Heading '{0}' in Group '{1}' must be composed of uppercase characters (Rule 23)");
constexpr MessageForm HeadingTooLongForm =
    Error("23",
          "Heading '?{0}' in Group '{1}' must be no more than 9 characters excluding the '?' "
          "(Rule 23)");
constexpr MessageForm HeadingWithoutUnderscoreForm = Error(
    "23", "Heading ?{0} in Group '{1}' must contain an underscore after the Group Name (Rule 23)");
constexpr MessageForm HeadingCharactersForm =
    Error("23",
          "Heading '{0}' in Group '{1}'{2} must be made up of letters, numbers, and underscore "
          "characters only (Rule 23)");
constexpr MessageForm HeadingPrefixUnknownForm =
    Error("23",
          "Heading '{0}' in Group '{1}' must start with the group name or that of another group "
          "(Rule 23)");

}  // namespace

const MessageDefinition GroupLineNotQuoted{
    .id = "names.group-line-not-quoted",
    .ags3 = GroupLineNotQuotedForm,
    .ags4 = GroupLineNotQuotedForm,
    .meaning = "A line that opens a group is not enclosed in double quotes.",
    .remedy = "Write the line as \"**NAME\" (AGS 3) or \"GROUP\",\"NAME\" (AGS 4)."};

const MessageDefinition GroupLineForm{
    .id = "names.group-line-form",
    .ags3 = Error("10", "group name line ({0}) must be in the form \"**NAME\" (Rule 10)."),
    .ags4 = Error("10", "group name line ({0}) must be in the form \"GROUP\",\"NAME\" (Rule 10)."),
    .meaning = "A line that stands where a group is opened does not have the form of a group line.",
    .remedy = "Write the line as \"**NAME\" (AGS 3) or \"GROUP\",\"NAME\" (AGS 4)."};

const MessageDefinition GroupLineFieldCount{
    .id = "names.group-line-fields",
    .ags3 = Error("", "Group line has more than one field ({0})"),
    .ags4 = Error("4", "Group line has more than one field ({0}) (Rule 4)"),
    .meaning = "A group line holds more than the group's name. The first field was taken for it.",
    .remedy = "Remove everything behind the group name."};

const MessageDefinition GroupNameNotUpperCase{
    .id = "names.group-not-uppercase",
    .ags3 = Error("22", "Group name {0} must be composed of uppercase characters (Rule 22)"),
    .ags4 = Error("", "Group name {0} must be composed of uppercase characters"),
    .meaning = "A group name is written with lower-case letters.",
    .remedy = "Write the group name in capitals."};

const MessageDefinition GroupNameTooLong{
    .id = "names.group-too-long",
    .ags3 = Error("22",
                  "Group name '?{0}' must be no more than 4 characters excluding the '?' (Rule "
                  "22)"),
    .ags4 = Error("", "Group name '{0}' must be no more than 4 characters"),
    .meaning = "The name of a group that the file defines for itself is too long.",
    .remedy = "Shorten the name to four letters behind the question mark."};

const MessageDefinition GroupNameCharacters{
    .id = "names.group-characters",
    .ags3 = Error("22",
                  "Group name ?{0} (excluding the leading '?') must be made up of letters only "
                  "(Rule 22)"),
    .ags4 =
        Error("", "Group name ?{0} (excluding the leading '?') must be made up of letters only."),
    .meaning =
        "The name of a group that the file defines for itself holds something other than "
        "letters.",
    .remedy = "Use the letters A to Z only."};

const MessageDefinition GroupNotInDictionary{
    .id = "names.group-not-in-dictionary",
    .ags3 = Error("5", "group '{0}' is not an AGS group. (Rule 5)."),
    .ags4 = {},
    .meaning = "The AGS dictionary does not know the group.",
    .remedy =
        "Correct the name, or begin it with a question mark and define the group in the DICT "
        "group."};

const MessageDefinition GroupRepeated{
    .id = "names.group-repeated",
    .ags3 = GroupRepeatedForm,
    .ags4 = GroupRepeatedForm,
    .meaning = "A group that may occur only once occurs again. The later ones are not looked at.",
    .remedy = "Merge the rows of these groups into one group."};

const MessageDefinition HeadingNotUpperCase{
    .id = "names.heading-not-uppercase",
    .ags3 = HeadingNotUpperCaseForm,
    .ags4 = HeadingNotUpperCaseForm,
    .meaning = "A heading is written with lower-case letters.",
    .remedy = "Write the heading in capitals."};

const MessageDefinition HeadingTooLong{
    .id = "names.heading-too-long",
    .ags3 = HeadingTooLongForm,
    .ags4 = HeadingTooLongForm,
    .meaning = "A heading that the file defines for itself is too long.",
    .remedy = "Shorten the heading to nine characters behind the question mark."};

const MessageDefinition HeadingWithoutUnderscore{
    .id = "names.heading-without-underscore",
    .ags3 = HeadingWithoutUnderscoreForm,
    .ags4 = HeadingWithoutUnderscoreForm,
    .meaning =
        "A heading that the file defines for itself does not consist of a group name, an "
        "underscore and a name.",
    .remedy = "Write the heading as the group name, an underscore and up to four characters."};

const MessageDefinition HeadingCharacters{
    .id = "names.heading-characters",
    .ags3 = HeadingCharactersForm,
    .ags4 = HeadingCharactersForm,
    .meaning = "A heading holds something other than letters, digits and underscores.",
    .remedy = "Use the letters A to Z, digits and the underscore only."};

const MessageDefinition HeadingNotInDictionary{
    .id = "names.heading-not-in-dictionary",
    .ags3 = Error("5", "'{0}' in group '{1}' is not an AGS heading (Rule 5)."),
    .ags4 = {},
    .meaning = "The AGS dictionary does not know the heading in this group.",
    .remedy =
        "Correct the heading, or begin it with a question mark and define it in the DICT "
        "group."};

const MessageDefinition HeadingPrefixUnknown{
    .id = "names.heading-prefix",
    .ags3 = HeadingPrefixUnknownForm,
    .ags4 = HeadingPrefixUnknownForm,
    .meaning =
        "A heading that the file defines for itself begins with neither the name of its own "
        "group nor that of any other.",
    .remedy = "Begin the heading with the name of its group and an underscore."};

const MessageDefinition HeadingsOutOfOrder{
    .id = "names.headings-out-of-order",
    .ags3 = {},
    .ags4 = Error("7",
                  "Headings are out of order in group '{0}'. Check the AGS documentation and your "
                  "DICT group. Custom headings must be at the end of AGS format field list. (Rules "
                  "7 and 18a)"),
    .meaning =
        "The headings of a group do not stand in the order of the dictionary, with the "
        "headings of the file's own behind them in the order of its DICT group.",
    .remedy = "Put the columns into that order."};

MessageTable NameMessages() {
  static constexpr std::array table{&GroupLineNotQuoted,       &GroupLineForm,
                                    &GroupLineFieldCount,      &GroupNameNotUpperCase,
                                    &GroupNameTooLong,         &GroupNameCharacters,
                                    &GroupNotInDictionary,     &GroupRepeated,
                                    &HeadingNotUpperCase,      &HeadingTooLong,
                                    &HeadingWithoutUnderscore, &HeadingCharacters,
                                    &HeadingNotInDictionary,   &HeadingPrefixUnknown,
                                    &HeadingsOutOfOrder};
  return table;
}

}  // namespace quorvane
