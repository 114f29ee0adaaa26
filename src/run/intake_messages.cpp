#include "run/intake_messages.h"

#include <array>

namespace quorvane {
namespace {

constexpr MessageForm ByteOrderMarkForm{
    Severity::Warning, "", "File begins with a UTF-8 byte order mark.  It was ignored."};
constexpr MessageForm WrongExtensionForm{Severity::Error, "",
                                         "File Name must have the extension \".AGS\"."};
constexpr MessageForm NoExtensionForm{Severity::Error, "",
                                      "File Name has no extension.  It must be \".AGS\"."};

}  // namespace

const MessageDefinition ByteOrderMarkIgnored{
    .id = "intake.byte-order-mark",
    .ags3 = ByteOrderMarkForm,
    .ags4 = ByteOrderMarkForm,
    .meaning =
        "The file begins with three bytes that mark it as UTF-8 text. Other programs may "
        "fail to recognise its first line.",
    .remedy = "Save the file without a byte order mark."};

const MessageDefinition WrongFileExtension{.id = "intake.wrong-extension",
                                           .ags3 = WrongExtensionForm,
                                           .ags4 = WrongExtensionForm,
                                           .meaning = "The name of the file does not end in .AGS.",
                                           .remedy = "Rename the file."};

const MessageDefinition NoFileExtension{.id = "intake.no-extension",
                                        .ags3 = NoExtensionForm,
                                        .ags4 = NoExtensionForm,
                                        .meaning = "The name of the file has no extension.",
                                        .remedy = "Rename the file so that its name ends in .AGS."};

const MessageDefinition RowLabelProblems{
    .id = "intake.row-labels",
    .ags3 = {},
    .ags4 = {Severity::Error, "3", "{0}"},
    .meaning =
        "Lines of the file do not begin with GROUP, HEADING, UNIT, TYPE or DATA, or these "
        "lines do not follow one another in that order. The file could not be checked "
        "further.",
    .remedy =
        "Mend the lines listed. A line break inside a value also makes a line without a "
        "label."};

const MessageDefinition UnknownFileHeader{
    .id = "intake.unknown-header",
    .ags3 = {},
    .ags4 = {Severity::Error, "3", "Unknown data in file header:{0}"},
    .meaning = "Text stands before the first group of the file.",
    .remedy = "Remove the lines before the first GROUP line."};

const MessageDefinition LineOutOfOrder{
    .id = "intake.line-order",
    .ags3 = {Severity::Error, "2b",
             "{0}\r\n    Line out of order (Rules 2b and 3) . Expected {1},\"..."},
    .ags4 = {Severity::Error, "2b", "{0}\r\n    Line out of order. Expected {1},\"..."},
    .meaning =
        "A line has another row label than the one that must follow here. The file could "
        "not be checked further.",
    .remedy =
        "Put the lines of each group in the order GROUP, HEADING, UNIT, TYPE, DATA, with a "
        "blank line between groups."};

const MessageDefinition CharacterNotAllowed{
    .id = "intake.character",
    .ags3 = {Severity::Error, "1", "character position {0}"},
    .ags4 = {},
    .meaning =
        "A character lies outside the plain ASCII set: a letter with an accent, a degree or "
        "micro sign, a tab.",
    .remedy = "Replace the character by plain ASCII text."};

const MessageDefinition NoFurtherCharacterChecks{
    .id = "intake.character-limit",
    .ags3 = {Severity::Plain, "1", "No further checks for high or low bit ASCII characters made."},
    .ags4 = {},
    .meaning = "Only the first 20 characters outside the plain ASCII set are listed.",
    .remedy = "Mend those listed and check the file again."};

const MessageDefinition LineTooLong{.id = "intake.line-length",
                                    .ags3 = {Severity::Error, "12", "{0} characters"},
                                    .ags4 = {},
                                    .meaning = "A line is longer than 240 characters.",
                                    .remedy = "Split the line and continue it with a <CONT> line."};

MessageTable IntakeMessages() {
  static constexpr std::array table{
      &ByteOrderMarkIgnored, &WrongFileExtension,       &NoFileExtension,
      &RowLabelProblems,     &UnknownFileHeader,        &LineOutOfOrder,
      &CharacterNotAllowed,  &NoFurtherCharacterChecks, &LineTooLong};
  return table;
}

}  // namespace quorvane
