#include "parse/field_messages.h"

#include <array>

namespace quorvane {
namespace {

constexpr MessageForm NullFieldForm{
    Severity::Error, "15",
    "null field are to be included as \"\" with no internal spaces (Rule 15)"};
constexpr MessageForm MissingQuotesForm{Severity::Error, "8",
                                        "'{0}' - missing surrounding quotes (Rule 8)."};
constexpr MessageForm InternalQuotesForm{Severity::Error, "8",
                                         "'{0}' - has internal quotes (Rule 8)."};
constexpr MessageForm FieldCountForm{
    Severity::Error, "4", "does not have the same number of fields as the number of headers "};

}  // namespace

const MessageDefinition NullFieldWithSpaces{
    .id = "field.null-with-spaces",
    .ags3 = NullFieldForm,
    .ags4 = NullFieldForm,
    .meaning =
        "A field holds nothing but blanks. A field without a value is written as two double "
        "quotes with nothing between them.",
    .remedy = "Remove the blanks between the two double quotes."};

const MessageDefinition MissingSurroundingQuotes{
    .id = "field.missing-quotes",
    .ags3 = MissingQuotesForm,
    .ags4 = MissingQuotesForm,
    .meaning =
        "A field is not enclosed in double quotes, or the double quote that closes it is "
        "missing, so that the rest of the line was taken for its value.",
    .remedy = "Enclose the value in double quotes."};

const MessageDefinition InternalQuotes{
    .id = "field.internal-quotes",
    .ags3 = InternalQuotesForm,
    .ags4 = InternalQuotesForm,
    .meaning =
        "A double quote stands inside the value of a field, where it can be taken for the "
        "field's end.",
    .remedy =
        "Write a double quote inside a value twice (AGS 4), or use another sign such as two "
        "single quotes (AGS 3)."};

const MessageDefinition FieldCountDiffers{
    .id = "field.count-differs",
    .ags3 = FieldCountForm,
    .ags4 = FieldCountForm,
    .meaning =
        "A data line has more or fewer fields than its group has headings, so that values "
        "may stand under the wrong heading.",
    .remedy =
        "Give the line one field for each heading; an empty field is written as two double "
        "quotes. Look for a missing or superfluous comma or quote."};

MessageTable FieldMessages() {
  static constexpr std::array table{&NullFieldWithSpaces, &MissingSurroundingQuotes,
                                    &InternalQuotes, &FieldCountDiffers};
  return table;
}

}  // namespace quorvane
