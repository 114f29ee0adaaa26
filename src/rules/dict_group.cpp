#include "rules/dict_group.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "rules/dict_group_messages.h"
#include "text/comma_list.h"
#include "text/text.h"

namespace quorvane {
namespace {

constexpr std::string_view ListTitleIndent = "  ";
constexpr std::string_view ListItemIndent = "    ";

std::string_view WithoutMark(std::string_view name) {
  return name.starts_with('?') ? name.substr(1) : name;
}

void AppendListLine(std::string& text, std::string_view indent, std::string_view line) {
  text.append(LineBreak).append(indent).append(line);
}

/// The columns of the DICT group; 0 for one that it does not have.
struct DictColumns {
  int type = 0;
  int group = 0;
  int heading = 0;
  int status = 0;
  int description = 0;
  int unit = 0;
  int example = 0;
};

/// Locates some columns by name; returns the names of those that are not there.
template <std::size_t Count>
std::vector<std::string_view> LocateColumns(
    const CheckedFile& file, const std::array<std::pair<std::string_view, int*>, Count>& columns) {
  std::vector<std::string_view> missing;
  for (const auto& [name, column] : columns) {
    *column = file.table.LocateHeading(file.singletons.dict, name);
    if (*column == 0) missing.push_back(name);
  }
  return missing;
}

/// The columns of a DICT group that has rows; nothing when it lacks one without which nothing can
/// be looked up in it.
std::optional<DictColumns> FindDictColumns(CheckedFile& file) {
  const MessagePlace place{file.singletons.dict, 0, 0};
  DictColumns columns;
  const std::array<std::pair<std::string_view, int*>, 4> keys{{{"DICT_TYPE", &columns.type},
                                                               {"DICT_GRP", &columns.group},
                                                               {"DICT_HDNG", &columns.heading},
                                                               {"DICT_STAT", &columns.status}}};
  if (const auto missing = LocateColumns(file, keys); !missing.empty()) {
    file.log.AddMessage(0, DictKeyHeadingsMissing, {Join(missing, ", ")}, place);
    return std::nullopt;
  }
  const std::array<std::pair<std::string_view, int*>, 3> descriptive{
      {{"DICT_DESC", &columns.description},
       {"DICT_UNIT", &columns.unit},
       {"DICT_EXMP", &columns.example}}};
  if (const auto missing = LocateColumns(file, descriptive); !missing.empty()) {
    file.log.AddMessage(0, DictDescriptiveHeadingsMissing, {Join(missing, ", ")}, place);
  }
  return columns;
}

/// What the rows of the DICT group define. Names are compared exactly; of several rows that define
/// the same the first one counts.
class DictRows {
 public:
  DictRows(const CheckedFile& file, const DictColumns& columns)
      : table_(file.table), dict_(file.singletons.dict) {
    for (std::int32_t row = 1; row <= table_.At(dict_).rowCount; ++row) {
      const std::string_view type = table_.Value(dict_, row, columns.type);
      const std::string_view group = table_.Value(dict_, row, columns.group);
      if (EqualsIgnoringCase(type, "GROUP")) {
        groups_.try_emplace(group, row);
      } else if (EqualsIgnoringCase(type, "HEADING")) {
        headings_[group].try_emplace(table_.Value(dict_, row, columns.heading), row);
      }
    }
  }

  /// The row that defines a group; 0 when there is none.
  std::int32_t FindGroup(std::string_view name) const { return RowOf(groups_, name); }

  /// The row that defines a heading of a group; 0 when there is none.
  std::int32_t FindHeading(std::string_view group, std::string_view heading) const {
    const auto headings = headings_.find(group);
    return headings == headings_.end() ? 0 : RowOf(headings->second, heading);
  }

  /// Whether the column is there and the row's value in it is empty.
  bool IsMissing(std::int32_t row, int column) const {
    return column != 0 && table_.Value(dict_, row, column).empty();
  }

 private:
  using RowsByName = std::unordered_map<std::string_view, std::int32_t>;

  static std::int32_t RowOf(const RowsByName& rows, std::string_view name) {
    const auto found = rows.find(name);
    return found == rows.end() ? 0 : found->second;
  }

  const GroupTable& table_;
  int dict_;
  RowsByName groups_;
  std::unordered_map<std::string_view, RowsByName> headings_;
};

class DictGroupCheck {
 public:
  DictGroupCheck(CheckedFile& file, const DictColumns& columns)
      : file_(file), columns_(columns), rows_(file, columns) {}

  /// The non-standard groups. Every heading of one that is defined joins the headings to check.
  void CheckDictGroupRecords() {
    for (const int index : std::exchange(file_.NonStandardGroupList, {})) {
      const Group& group = file_.table.At(index);
      const std::string_view name = WithoutMark(group.name);
      const std::int32_t row = FindDictGroupRow(index, name);
      if (row != 0 && rows_.IsMissing(row, columns_.description)) {
        file_.log.AddMessage(group.line, OwnGroupWithoutDescription, {name}, {index, 0, 0});
      }
    }
  }

  /// The non-standard headings.
  void CheckDictHeadingRecords() {
    for (const NonStandardHeading& own : std::exchange(file_.NonStandardHeadingList, {})) {
      const std::int32_t row = FindDictHeadingRow(own);
      if (row == 0) continue;
      // Units given there are checked with all others of the file.
      if (rows_.IsMissing(row, columns_.status)) Report(own, OwnHeadingWithoutStatus);
      if (rows_.IsMissing(row, columns_.description)) Report(own, OwnHeadingWithoutDescription);
      if (rows_.IsMissing(row, columns_.example)) Report(own, OwnHeadingWithoutExample);
    }
  }

 private:
  std::int32_t FindDictGroupRow(int index, std::string_view name) {
    const Group& group = file_.table.At(index);
    const std::int32_t row = rows_.FindGroup(name);
    if (row == 0) {
      file_.log.AddMessage(group.line, OwnGroupNotDefined, {name}, {index, 0, 0});
      return 0;
    }
    for (int column = 1; column <= group.HeadingCount(); ++column) {
      const std::string& heading = group.HeadingAt(column).name;
      if (!heading.starts_with('?')) {
        file_.log.AddMessage(group.line, OwnGroupHeadingWithoutMark, {heading, name},
                             {index, 0, column});
      }
      file_.NonStandardHeadingList.push_back({index, std::string(WithoutMark(heading))});
    }
    return row;
  }

  std::int32_t FindDictHeadingRow(const NonStandardHeading& own) {
    const std::string_view group = WithoutMark(file_.table.At(own.group).name);
    const std::int32_t row = rows_.FindHeading(group, own.heading);
    if (row == 0) Report(own, OwnHeadingNotDefined);
    return row;
  }

  void Report(const NonStandardHeading& own, const MessageDefinition& definition) {
    const Group& group = file_.table.At(own.group);
    const int column = file_.table.FindHeading(own.heading, own.group);
    file_.log.AddMessage(group.line, definition, {own.heading, WithoutMark(group.name)},
                         {own.group, 0, column});
  }

  CheckedFile& file_;
  DictColumns columns_;
  DictRows rows_;
};

/// The non-standard headings of a file without a DICT group, a line each. AGS 3 files list those of
/// non-standard groups too, in file order; all are shown with one question mark.
std::string ListHeadings(CheckedFile& file, const std::vector<int>& nonStandardGroups) {
  const std::string_view mark = file.IsAgs4() ? "" : "?";
  std::string lines;
  const auto append = [&](int group, std::string_view heading) {
    AppendListLine(lines, ListItemIndent, file.table.At(group).name);
    lines.append(".").append(mark).append(heading);
  };
  const auto headings = std::exchange(file.NonStandardHeadingList, {});
  if (file.IsAgs4()) {
    for (const NonStandardHeading& own : headings)
      append(own.group, own.heading);
    return lines;
  }
  const std::unordered_set<int> ownGroups(nonStandardGroups.begin(), nonStandardGroups.end());
  auto next = headings.begin();
  for (int group = 1; group <= file.table.GroupCount(); ++group) {
    for (; next != headings.end() && next->group == group; ++next)
      append(group, next->heading);
    if (!ownGroups.contains(group)) continue;
    for (const Heading& heading : file.table.At(group).headings) {
      append(group, WithoutMark(heading.name));
    }
  }
  return lines;
}

void ReportDictGroupMissing(CheckedFile& file) {
  const std::vector<int> groups = std::exchange(file.NonStandardGroupList, {});
  std::string list;
  if (!groups.empty()) AppendListLine(list, ListTitleIndent, "Non-Standard Groups:");
  for (const int group : groups) {
    AppendListLine(list, ListItemIndent, file.table.At(group).name);
  }
  if (const std::string headings = ListHeadings(file, groups); !headings.empty()) {
    AppendListLine(list, ListTitleIndent, "Non-Standard Headings:");
    list += headings;
  }
  file.log.AddMessage(0, DictGroupMissing, {list});
}

}  // namespace

void CheckDictGroup(CheckedFile& file) {
  if (file.NonStandardGroupList.empty() && file.NonStandardHeadingList.empty()) return;
  const int dict = file.singletons.dict;
  if (dict == 0) {
    ReportDictGroupMissing(file);
  } else if (file.table.At(dict).rowCount == 0) {
    file.log.AddMessage(0, DictGroupWithoutData, {}, {dict, 0, 0});
  } else if (const std::optional<DictColumns> columns = FindDictColumns(file)) {
    DictGroupCheck check(file, *columns);
    check.CheckDictGroupRecords();
    check.CheckDictHeadingRecords();
  }
  file.log.CloseCheckSection(file.IsAgs4() ? "Check of the DICT group"
                                           : "Check of the DICT group (Rule 21)");
}

}  // namespace quorvane
