#include "rules/contaminant_code_messages.h"

#include <array>

namespace quorvane {
namespace {

constexpr std::string_view GroupMissingText = "No CODE group found (Rule 25).";
constexpr std::string_view WithoutDataText = "There is a CODE group defined but no CNMT data.";
constexpr std::string_view HeadingMissingText = "No CODE_CODE heading found in the CODE group";
constexpr std::string_view ListEmptyText =
    "No data found under the CODE_CODE heading in the CODE group";
constexpr std::string_view NotDefinedText =
    "No CODE_CODE value in the CODE group found corresponding to '{0}' in group '{1}'";
constexpr std::string_view UnusedText =
    "The following CODE_CODE values are in the CODE group but not found in any of the "
    "data groups:\r\n{0}";

}  // namespace

const MessageDefinition CodeGroupMissing{
    .id = "contaminant-codes.group-missing",
    .ags3 = {Severity::Error, "25", GroupMissingText},
    .ags4 = {Severity::Error, "", GroupMissingText},
    .meaning =
        "The file has contaminant data (CNMT or ?ICCT) and no CODE group that says which "
        "contaminant each code stands for.",
    .remedy = "Add a CODE group that defines every code under CNMT_TYPE."};

const MessageDefinition CodeGroupWithoutData{
    .id = "contaminant-codes.group-without-data",
    .ags3 = {Severity::Fyi, "25", WithoutDataText},
    .ags4 = {Severity::Fyi, "", WithoutDataText},
    .meaning =
        "The CODE group explains the codes of contaminants, and the file has no contaminant "
        "data.",
    .remedy = "Remove the CODE group, or find out whether contaminant data were left out."};

const MessageDefinition ContaminantCodeHeadingMissing{
    .id = "contaminant-codes.heading-missing",
    .ags3 = {Severity::Error, "25", HeadingMissingText},
    .ags4 = {Severity::Error, "", HeadingMissingText},
    .meaning =
        "The CODE group lacks the heading that holds the codes. A file whose CNMT groups "
        "have no rows and that has no CODE group gets this finding too.",
    .remedy =
        "Add the heading CODE_CODE and list the codes under it. Remove CNMT groups without "
        "rows."};

const MessageDefinition ContaminantCodeListEmpty{
    .id = "contaminant-codes.list-empty",
    .ags3 = {Severity::Error, "25", ListEmptyText},
    .ags4 = {Severity::Error, "", ListEmptyText},
    .meaning = "The CODE group holds no code: its CODE_CODE column is empty or it has no rows.",
    .remedy = "List every code used under CNMT_TYPE in the CODE group."};

const MessageDefinition ContaminantCodeNotDefined{
    .id = "contaminant-codes.not-defined",
    .ags3 = {Severity::Error, "25", NotDefinedText},
    .ags4 = {Severity::Error, "", NotDefinedText},
    .meaning =
        "A row names a contaminant by a code that the CODE group does not list in exactly "
        "these letters.",
    .remedy = "Add the code to the CODE group, or correct it in the row."};

const MessageDefinition ContaminantCodesUnused{
    .id = "contaminant-codes.unused",
    .ags3 = {Severity::Fyi, "25", UnusedText},
    .ags4 = {Severity::Fyi, "", UnusedText},
    .meaning =
        "The CODE group defines codes that no contaminant data use. A code that is listed "
        "twice is among them.",
    .remedy = "None is needed. The entries may be removed."};

MessageTable ContaminantCodeMessages() {
  static constexpr std::array table{
      &CodeGroupMissing,         &CodeGroupWithoutData,      &ContaminantCodeHeadingMissing,
      &ContaminantCodeListEmpty, &ContaminantCodeNotDefined, &ContaminantCodesUnused};
  return table;
}

}  // namespace quorvane
