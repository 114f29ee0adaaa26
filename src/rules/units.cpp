#include "rules/units.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "parse/reference_group.h"
#include "parse/reference_values.h"
#include "rules/unit_messages.h"
#include "text/text.h"

namespace quorvane {
namespace {

/// The units that the UNIT group lists; nothing, and a finding, when it lists none.
std::optional<ReferenceList> ReadUnitList(const CheckedFile& file) {
  const int group = file.singletons.unit;
  if (group == 0) {
    file.log.AddMessage(0, UnitGroupMissing);
    return std::nullopt;
  }
  const int unitColumn = file.table.LocateHeading(group, "UNIT_UNIT");
  if (unitColumn == 0) {
    file.log.AddMessage(0, UnitHeadingMissing, {}, {group, 0, 0});
    return std::nullopt;
  }
  const int descriptionColumn = RequireHeading(file.table, file.log, group, "UNIT_DESC");
  ReferenceNames units = ReadReferenceNames(file.table, group, unitColumn, descriptionColumn);
  if (units.names.IsEmpty()) {
    file.log.AddMessage(0, UnitListEmpty, {}, {group, 0, unitColumn});
    return std::nullopt;
  }
  if (!file.IsAgs4()) {
    ReportMissingValues(file.log, units.withoutDescription, "UNIT_UNIT", "UNIT_DESC");
  }
  return std::move(units.names);
}

class UnitCheck {
 public:
  UnitCheck(CheckedFile& file, ReferenceList units) : file_(file), units_(std::move(units)) {}

  void CheckColumnUnits() {
    for (int group = 1; group <= file_.table.GroupCount(); ++group) {
      const Group& record = file_.table.At(group);
      for (int column = 1; column <= record.HeadingCount(); ++column) {
        const std::string& unit = record.HeadingAt(column).unit;
        CheckUnitListed(unit, {group, 0, column}, record.unitLine);
        if (file_.isDictionaryNamed && !unit.empty()) CompareWithDictionary(record, column);
      }
    }
  }

  void CheckUnitFields() {
    for (const auto& [groupName, heading] : file_.dictionary.UnitFields) {
      for (const int group : file_.table.GroupIndexList(groupName)) {
        // The list holds names as they are written: CNMT does not stand for a group "?CNMT".
        if (file_.table.At(group).name == groupName) CheckUnitField(group, heading);
      }
    }
  }

  void ReportUnusedUnits() {
    ReportUnusedNames(file_.log, units_, UnitsUnused, LineBreak, 0, {file_.singletons.unit, 0, 0});
  }

 private:
  void CheckUnitField(int group, std::string_view heading) {
    const int column = file_.table.LocateHeading(group, heading);
    if (column == 0) return;
    ForEachValue(file_.table, group, column, [&](std::int32_t row, std::string_view unit) {
      CheckUnitListed(unit, {group, row, column}, file_.table.RowLine(group, row));
    });
  }

  void CheckUnitListed(std::string_view unit, const MessagePlace& place, std::int32_t line) {
    if (unit.empty()) {
      CheckMayLackUnit(place, line);
    } else if (!units_.MarkUsed(unit)) {
      file_.log.AddMessage(line, UnitNotListed, {unit, file_.table.At(place.group).name}, place);
    }
  }

  void CheckMayLackUnit(const MessagePlace& place, std::int32_t line) {
    const Group& group = file_.table.At(place.group);
    const std::string& heading = group.HeadingAt(place.heading).name;
    if (!file_.dictionary.NumericHeadings.contains(heading)) return;
    // The NZ edition lets this heading go without a unit.
    if (file_.isNzEdition && EqualsIgnoringCase(heading, "DISC_FLOW")) return;
    file_.log.AddMessage(line, NumericHeadingWithoutUnit, {heading, group.name}, place);
  }

  void CompareWithDictionary(const Group& group, int column) {
    const Heading& heading = group.HeadingAt(column);
    const std::string_view expected =
        GetDictHeadingUnit(file_.dictionary, group.dictionaryIndex, heading.name);
    if (EqualsIgnoringCase(expected, heading.unit)) return;
    file_.UnitDifferences.append(LineBreak)
        .append("  ")
        .append(group.name)
        .append(".")
        .append(heading.name)
        .append(": ")
        .append(expected)
        .append(" <> ")
        .append(heading.unit);
  }

  CheckedFile& file_;
  ReferenceList units_;
};

}  // namespace

void CheckUnitGroup(CheckedFile& file) {
  if (file.singletons.unit == 0 && file.IsAgs4()) return;
  if (std::optional<ReferenceList> units = ReadUnitList(file)) {
    UnitCheck check(file, std::move(*units));
    check.CheckColumnUnits();
    check.CheckUnitFields();
    check.ReportUnusedUnits();
  }
  file.log.CloseCheckSection(file.IsAgs4() ? "Units check" : "Units check (Rule 18b)");
}

}  // namespace quorvane
