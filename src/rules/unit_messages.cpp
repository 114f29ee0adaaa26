#include "rules/unit_messages.h"

#include <array>

namespace quorvane {
namespace {

constexpr std::string_view HeadingMissingText = "No UNIT_UNIT heading found in the UNIT group";
// The text names the CODE group, not UNIT: this wording is kept on purpose.
constexpr std::string_view ListEmptyText =
    "No data found under the UNIT_UNIT heading in the CODE group";
constexpr std::string_view NotListedText =
    "No UNIT_UNIT value in the UNIT group found corresponding to '{0}' in group '{1}'";
constexpr std::string_view WithoutUnitText =
    "Heading '{0}' in group '{1}' has no unit associated with it.";
constexpr std::string_view UnusedText =
    "The following UNIT_UNIT values are in the UNIT group but not found in any of the data "
    "groups:\r\n{0}";

}  // namespace

const MessageDefinition UnitGroupMissing{
    .id = "units.group-missing",
    .ags3 = {Severity::Error, "18b", "No UNIT group found"},
    .ags4 = {},
    .meaning =
        "The file has no UNIT group, which explains the units that its data are in. No unit "
        "of the file was checked.",
    .remedy = "Add a UNIT group that lists every unit used in the file."};

const MessageDefinition UnitHeadingMissing{
    .id = "units.heading-missing",
    .ags3 = {Severity::Error, "18b", HeadingMissingText},
    .ags4 = {Severity::Error, "15", HeadingMissingText},
    .meaning =
        "The UNIT group lacks the heading that holds the units. No unit of the file was "
        "checked.",
    .remedy = "Add the heading UNIT_UNIT to the UNIT group and list the units under it."};

const MessageDefinition UnitListEmpty{
    .id = "units.list-empty",
    .ags3 = {Severity::Error, "18b", ListEmptyText},
    .ags4 = {Severity::Error, "15", ListEmptyText},
    .meaning =
        "The UNIT group holds no unit: its UNIT_UNIT column is empty or it has no rows. "
        "(The message says CODE group and means the UNIT group.) No unit of the file was "
        "checked.",
    .remedy = "List every unit used in the file under UNIT_UNIT."};

const MessageDefinition UnitNotListed{
    .id = "units.not-listed",
    .ags3 = {Severity::Error, "18b", NotListedText},
    .ags4 = {Severity::Error, "15", NotListedText},
    .meaning =
        "A unit stands in the units line of a group, or in a field whose values are units, "
        "and the UNIT group does not list it in exactly these letters.",
    .remedy =
        "Add the unit to the UNIT group. Where it differs from a listed one in letter case, "
        "blanks or signs only, write both alike."};

const MessageDefinition NumericHeadingWithoutUnit{
    .id = "units.numeric-heading-without-unit",
    .ags3 = {Severity::Warning, "18", WithoutUnitText},
    .ags4 = {Severity::Warning, "", WithoutUnitText},
    .meaning =
        "The dictionary gives a heading a unit and the file does not state in which unit its "
        "values are.",
    .remedy =
        "Give the heading its unit in the units line of the group. A group without a units "
        "line needs one."};

const MessageDefinition UnitsUnused{
    .id = "units.unused",
    .ags3 = {Severity::Fyi, "18b", UnusedText},
    .ags4 = {Severity::Fyi, "15", UnusedText},
    .meaning =
        "The UNIT group lists units that no units line and no field of the file uses. A unit "
        "that is listed twice is among them.",
    .remedy = "None is needed. The entries may be removed."};

MessageTable UnitMessages() {
  static constexpr std::array table{&UnitGroupMissing, &UnitHeadingMissing,        &UnitListEmpty,
                                    &UnitNotListed,    &NumericHeadingWithoutUnit, &UnitsUnused};
  return table;
}

}  // namespace quorvane
