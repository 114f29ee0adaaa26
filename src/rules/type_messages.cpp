#include "rules/type_messages.h"

#include <array>

namespace quorvane {
namespace {

// An AGS 3 file has types when it is checked against a schema that has them: the texts are the same
// then, and no rule of AGS 3 asks for what they say.
constexpr std::string_view TypeHeadingText = "No TYPE_TYPE heading found in the TYPE group";
constexpr std::string_view TypeListText =
    "No data found under the TYPE_TYPE heading in the TYPE group";
constexpr std::string_view NotListedText =
    "'{0}.{1}' has the data type ({2}) which is not listed in the TYPE group";
constexpr std::string_view DateUnitText =
    "A date/time format unit is required for DT fields ({0}.{1})";
constexpr std::string_view ElapsedTimeUnitText =
    "An elapsed time format unit is required for T fields ({0}.{1})";
constexpr std::string_view UnknownTypeText = "Unknown data type ({0}) for field '{1}.{2}'";
constexpr std::string_view MismatchText =
    "Value for field '{0}' ({1}) does not match the required field type ({2})";
constexpr std::string_view IdRepeatedText = "ID field value '{0}' is repeated";
constexpr std::string_view LinkGroupText = "RecordLink group \"{0}\" not found (Rule 11c).";
constexpr std::string_view LinkRecordText = "RecordLink record \"{0}\" not found (Rule 11c).";
constexpr std::string_view NotUsedText =
    "The following TYPE_TYPE values are in the TYPE group but not found in any of the data "
    "groups:\r\n{0}";

}  // namespace

const MessageDefinition TypeHeadingMissing{
    .id = "types.type-heading-missing",
    .ags3 = {Severity::Error, "", TypeHeadingText},
    .ags4 = {Severity::Error, "17", TypeHeadingText},
    .meaning =
        "The TYPE group does not have the column that lists the data types. Neither types nor "
        "values could be checked.",
    .remedy = "Add the TYPE_TYPE heading to the TYPE group, and under it every type in use."};

const MessageDefinition TypeListEmpty{
    .id = "types.list-empty",
    .ags3 = {Severity::Error, "", TypeListText},
    .ags4 = {Severity::Error, "17", TypeListText},
    .meaning = "The TYPE group lists no data type.",
    .remedy = "List every data type that the TYPE rows of the file use."};

const MessageDefinition DataTypeMissing{
    .id = "types.missing",
    .ags3 = {},  // a column without a type in the schema is not looked at
    .ags4 = {Severity::Error, "8", "Data type is missing for '{0}.{1}'"},
    .meaning =
        "A heading has no data type in the TYPE row of its group. The values under it could "
        "not be checked.",
    .remedy = "Give the heading its type in the TYPE row."};

const MessageDefinition DataTypeNotListed{
    .id = "types.not-listed",
    .ags3 = {Severity::Error, "", NotListedText},
    .ags4 = {Severity::Error, "17", NotListedText},
    .meaning = "A data type is in use that the TYPE group does not list in just this letter case.",
    .remedy = "Add the type to the TYPE group, or correct the heading's type."};

const MessageDefinition DateUnitMissing{
    .id = "types.date-unit-missing",
    .ags3 = {Severity::Error, "", DateUnitText},
    .ags4 = {Severity::Error, "8", DateUnitText},
    .meaning =
        "The unit of a date or time says how its values are written, and it is empty. The values "
        "could not be checked.",
    .remedy = "Give the heading a unit such as yyyy-mm-dd."};

const MessageDefinition ElapsedTimeUnitMissing{
    .id = "types.elapsed-time-unit-missing",
    .ags3 = {Severity::Error, "", ElapsedTimeUnitText},
    .ags4 = {Severity::Error, "8", ElapsedTimeUnitText},
    .meaning =
        "The unit of an elapsed time says how its values are written, and it is empty. The values "
        "could not be checked.",
    .remedy = "Give the heading a unit such as hh:mm:ss."};

const MessageDefinition UnknownDataType{
    .id = "types.unknown",
    .ags3 = {Severity::Error, "", UnknownTypeText},
    .ags4 = {Severity::Error, "8", UnknownTypeText},
    .meaning =
        "A heading's data type is none of those that AGS 4 has. Types are written in capital "
        "letters. The values could not be checked.",
    .remedy = "Correct the type."};

const MessageDefinition ValueTypeMismatch{
    .id = "types.value-mismatch",
    .ags3 = {Severity::Error, "", MismatchText},
    .ags4 = {Severity::Error, "8", MismatchText},
    .meaning =
        "A value is not written as the data type of its heading asks: 1.5 under 2DP, say, or a "
        "day that does not exist under DT.",
    .remedy =
        "Write the value in the form of the type. Where a whole column is concerned, look at the "
        "type and the unit of its heading first."};

const MessageDefinition IdRepeated{
    .id = "types.id-repeated",
    .ags3 = {Severity::Error, "", IdRepeatedText},
    .ags4 = {Severity::Error, "8", IdRepeatedText},
    .meaning = "An identifier, which should be unique in its group, is there more than once.",
    .remedy = "Give each row an identifier of its own."};

const MessageDefinition RecordLinkGroupMissing{
    .id = "types.link-group-missing",
    .ags3 = {Severity::Error, "11c", LinkGroupText},
    .ags4 = {Severity::Error, "11c", LinkGroupText},
    .meaning = "A record link refers to a group that is not in the file.",
    .remedy =
        "Begin the link with the name of a group of the file, and check that the delimiters are "
        "those of TRAN_DLIM and TRAN_RCON."};

const MessageDefinition RecordLinkRecordMissing{
    .id = "types.link-record-missing",
    .ags3 = {Severity::Error, "11c", LinkRecordText},
    .ags4 = {Severity::Error, "11c", LinkRecordText},
    .meaning =
        "A record link refers to a row that its group does not have: no row's key fields hold "
        "just these values.",
    .remedy = "Correct the key values of the link, or add the row."};

const MessageDefinition TypesNotUsed{
    .id = "types.not-used",
    .ags3 = {Severity::Fyi, "", NotUsedText},
    .ags4 = {Severity::Fyi, "17", NotUsedText},
    .meaning = "The TYPE group lists data types that no heading of the file has.",
    .remedy = "Nothing needs to be done; the entries may be removed."};

MessageTable TypeMessages() {
  static constexpr std::array table{
      &TypeHeadingMissing, &TypeListEmpty,          &DataTypeMissing,         &DataTypeNotListed,
      &DateUnitMissing,    &ElapsedTimeUnitMissing, &UnknownDataType,         &ValueTypeMismatch,
      &IdRepeated,         &RecordLinkGroupMissing, &RecordLinkRecordMissing, &TypesNotUsed};
  return table;
}

}  // namespace quorvane
