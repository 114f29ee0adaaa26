#include "rules/key_messages.h"

#include <array>

namespace quorvane {
namespace {

constexpr MessageForm ProjIdForm{Severity::Error, "6a",
                                 "Group {0} does not have PROJ_ID as the first field (Rule 6a)"};
constexpr MessageForm KeyRepeatedForm{Severity::Error, "6b",
                                      "Group {0} key '{1}' is repeated in line {2}."};
constexpr MessageForm ParentGroupForm{
    Severity::Error, "6c",
    "Group {0} is the parent of group {1} and is not found in the data file."};
constexpr MessageForm CaseForm{
    Severity::Fyi, "6c",
    "Group {0} key {1} does not match the case of the associated key in the parent group ({2}:  "
    "{3})."};
constexpr MessageForm ParentKeyForm{
    Severity::Error, "6c",
    "Group {0} key '{1}' does not have an associated key in the parent group ({2})."};
// An AGS 3 file may have these groups when it is checked against a schema of the user's.
constexpr MessageForm SecondaryParentGroupForm{
    Severity::Warning, "6c",
    "Group {0} is the secondary parent of group {1} and is not found in the data file."};
constexpr MessageForm SecondaryParentKeyForm{
    Severity::Warning, "6c",
    "Group {0} key '{1}' does not have an associated key in the secondary parent group ({2})."};

}  // namespace

const MessageDefinition KeyHeadingsMissing{
    .id = "keys.headings-missing",
    .ags3 = {Severity::Error, "6",
             "Group '{0}' is missing the follow key heading(s): {1} (Rule 6)"},
    .ags4 = {Severity::Error, "", "Group '{0}' is missing the follow key heading(s): {1}"},
    .meaning =
        "Headings that form the key of a group are not in its heading line. Its keys could "
        "not be checked.",
    .remedy = "Add the headings listed."};

const MessageDefinition LocationKeyNotFirst{
    .id = "keys.location-key-not-first",
    .ags3 = {Severity::Error, "6a", "Group '{0}' does not have '{1}' as the first field (Rule 6a)"},
    .ags4 = {Severity::Error, "", "Group '{0}' does not have '{1}' as the first field"},
    .meaning =
        "The first heading of a group that belongs to locations is not the location "
        "identifier.",
    .remedy = "Make the location identifier the first column of the group."};

const MessageDefinition ProjIdNotFirst{
    .id = "keys.proj-id-not-first",
    .ags3 = ProjIdForm,
    .ags4 = ProjIdForm,
    .meaning = "The first heading of the PROJ group is not PROJ_ID.",
    .remedy = "Make PROJ_ID the first column of the group."};

const MessageDefinition KeyRepeated{
    .id = "keys.repeated",
    .ags3 = KeyRepeatedForm,
    .ags4 = KeyRepeatedForm,
    .meaning = "Two rows of a group have the same key, so that one cannot be told from the other.",
    .remedy = "Remove the row that is there twice, or correct the key of one of them."};

const MessageDefinition ParentGroupMissing{
    .id = "keys.parent-group-missing",
    .ags3 = ParentGroupForm,
    .ags4 = ParentGroupForm,
    .meaning = "The rows of a group belong to rows of a parent group that is not in the file.",
    .remedy = "Add the parent group with the rows that are referred to."};

const MessageDefinition SecondaryParentGroupMissing{
    .id = "keys.secondary-parent-group-missing",
    .ags3 = SecondaryParentGroupForm,
    .ags4 = SecondaryParentGroupForm,
    .meaning = "Laboratory tests were scheduled for samples, and there is no group of samples.",
    .remedy = "Add the SAMP group with the samples that are referred to."};

const MessageDefinition ParentKeyCaseDiffers{
    .id = "keys.parent-key-case",
    .ags3 = CaseForm,
    .ags4 = CaseForm,
    .meaning = "A row's key and that of its parent row differ in letter case only.",
    .remedy = "Write both keys with the same letters."};

const MessageDefinition ParentKeyMissing{
    .id = "keys.parent-key-missing",
    .ags3 = ParentKeyForm,
    .ags4 = ParentKeyForm,
    .meaning = "A row belongs to a row of its parent group that is not there.",
    .remedy = "Add the parent row, or correct the key."};

const MessageDefinition SecondaryParentKeyMissing{
    .id = "keys.secondary-parent-key-missing",
    .ags3 = SecondaryParentKeyForm,
    .ags4 = SecondaryParentKeyForm,
    .meaning = "A laboratory test was scheduled for a sample that is not in the SAMP group.",
    .remedy = "Add the sample, or correct the sample's key."};

MessageTable KeyMessages() {
  static constexpr std::array table{
      &KeyHeadingsMissing,   &LocationKeyNotFirst, &ProjIdNotFirst,
      &KeyRepeated,          &ParentGroupMissing,  &SecondaryParentGroupMissing,
      &ParentKeyCaseDiffers, &ParentKeyMissing,    &SecondaryParentKeyMissing};
  return table;
}

}  // namespace quorvane
