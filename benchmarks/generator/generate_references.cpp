#include "generate_references.h"

#include <array>

namespace quorvane::generate {

namespace {

constexpr std::array kAbbr{Blank("ABBR_HDNG", "X"), Blank("ABBR_CODE", "X"),
                           Blank("ABBR_DESC", "X"), Blank("ABBR_LIST", "X"),
                           Blank("ABBR_REM", "X"),  Blank("FILE_FSET", "X")};
constexpr std::array kAbbr3{Blank("ABBR_HDNG", "X"), Blank("ABBR_CODE", "X"),
                            Blank("ABBR_DESC", "X")};
constexpr std::array kCode3{Blank("CODE_CODE", "X"), Blank("CODE_DESC", "X")};
constexpr std::array kType{Blank("TYPE_TYPE", "X"), Blank("TYPE_DESC", "X"),
                           Blank("FILE_FSET", "X")};
constexpr std::array kUnit{Blank("UNIT_UNIT", "X"), Blank("UNIT_DESC", "X"), Blank("UNIT_REM", "X"),
                           Blank("FILE_FSET", "X")};
constexpr std::array kUnit3{Blank("UNIT_UNIT", "X"), Blank("UNIT_DESC", "X")};

/// The codes of this heading stand in the CODE group, those of all others in ABBR.
constexpr std::string_view kContaminantHeading = "CNMT_TYPE";

using Rows = std::vector<std::vector<std::string_view>>;

void AddUsed(Rows& rows, std::span<const Code> entries, const std::vector<bool>& used,
             std::string_view heading = {}) {
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (!used[i]) continue;
    std::vector<std::string_view>& row = rows.emplace_back();
    if (!heading.empty()) row.push_back(heading);
    row.push_back(entries[i].code);
    row.push_back(entries[i].description);
  }
}

Rows UsedCodes(const Usage& usage, bool contaminants) {
  Rows rows;
  for (const ExplainedHeading& heading : usage.Headings()) {
    if ((heading.heading == kContaminantHeading) != contaminants) continue;
    AddUsed(rows, EntriesOf(heading.list), heading.used,
            contaminants ? std::string_view() : heading.heading);
  }
  return rows;
}

void AppendGroup(Lines& lines, const Format& format, std::string_view name,
                 std::span<const Column> columns, Rows rows) {
  if (rows.empty()) return;
  lines.lines += format.AppendGroupStart(lines.text, name, columns, false);
  for (std::vector<std::string_view>& row : rows) {
    row.resize(columns.size());
    lines.lines += format.AppendRow(lines.text, row);
    lines.cells += row.size();
    ++lines.rows;
  }
  lines.lines += format.AppendGroupEnd(lines.text);
  ++lines.groups;
}

}  // namespace

Lines RenderReferences(const Usage& usage, const Format& format) {
  Rows units;
  AddUsed(units, KnownUnits(), usage.UsedUnits());
  Lines lines;
  if (format.Version() == 3) {
    AppendGroup(lines, format, "ABBR", kAbbr3, UsedCodes(usage, false));
    AppendGroup(lines, format, "CODE", kCode3, UsedCodes(usage, true));
    AppendGroup(lines, format, "UNIT", kUnit3, std::move(units));
    return lines;
  }
  Rows types;
  AddUsed(types, KnownTypes(), usage.UsedTypes());
  AppendGroup(lines, format, "ABBR", kAbbr, UsedCodes(usage, false));
  AppendGroup(lines, format, "TYPE", kType, std::move(types));
  AppendGroup(lines, format, "UNIT", kUnit, std::move(units));
  return lines;
}

}  // namespace quorvane::generate
