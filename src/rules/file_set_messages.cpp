#include "rules/file_set_messages.h"

#include <array>

namespace quorvane {
namespace {

constexpr std::string_view GroupMissingText =
    "There are FILE_FSET data but no FILE group found.\r\n"
    "FILE_FSET data in the following lines:\r\n{0}";
constexpr std::string_view NotDefinedText =
    "FILE_FSET {0} in group '{1}' not defined in the FILE group.";
constexpr std::string_view UnusedText =
    "The following FILE_FSET values are in the FILE group but not found in any of the data "
    "groups:\r\n{0}";

}  // namespace

const MessageDefinition FileNameBodyTooLong{
    .id = "file-sets.name-too-long",
    .ags3 = {Severity::Error, "24", "'{0}' Main body of file name must be 8 or less characters."},
    .ags4 = {},
    .meaning =
        "The name of an associated file has more than eight characters before its "
        "extension. (A name without an extension may have nine.)",
    .remedy = "Rename the associated file, in the delivery and under FILE_NAME."};

const MessageDefinition FileNameExtensionTooLong{
    .id = "file-sets.extension-too-long",
    .ags3 = {Severity::Error, "24", "'{0}' File name extension must be 3 or less characters."},
    .ags4 = {},
    .meaning =
        "The name of an associated file has more than three characters behind its last "
        "point.",
    .remedy = "Rename the associated file, in the delivery and under FILE_NAME."};

const MessageDefinition FileGroupMissing{
    .id = "file-sets.group-missing",
    .ags3 = {Severity::Error, "24", GroupMissingText},
    .ags4 = {Severity::Error, "20", GroupMissingText},
    .meaning =
        "Rows of the file refer to sets of associated files, and there is no FILE group that "
        "says which files these are.",
    .remedy =
        "Add a FILE group that defines every file set, or empty the fields in the lines "
        "listed."};

const MessageDefinition FileSetNotDefined{
    .id = "file-sets.not-defined",
    .ags3 = {Severity::Error, "24", NotDefinedText},
    .ags4 = {Severity::Error, "20", NotDefinedText},
    .meaning =
        "A row refers to a set of associated files that the FILE group does not define. "
        "Letter case does not matter.",
    .remedy = "Define the file set in the FILE group, or correct the reference."};

const MessageDefinition FileSetsUnused{
    .id = "file-sets.unused",
    .ags3 = {Severity::Fyi, "24", UnusedText},
    .ags4 = {Severity::Fyi, "20", UnusedText},
    .meaning = "The FILE group defines file sets that no row of another group refers to.",
    .remedy =
        "Enter the file set under FILE_FSET where its files belong. If they belong nowhere, "
        "remove the entry."};

MessageTable FileSetMessages() {
  static constexpr std::array table{&FileNameBodyTooLong, &FileNameExtensionTooLong,
                                    &FileGroupMissing, &FileSetNotDefined, &FileSetsUnused};
  return table;
}

}  // namespace quorvane
