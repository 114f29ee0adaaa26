#include "parse/group_table.h"

#include <algorithm>
#include <utility>

#include "text/text.h"

namespace quorvane {
namespace {

/// The smaller of two indices of which 0 means "none".
int FirstOf(int left, int right) {
  if (left == 0 || right == 0) return std::max(left, right);
  return std::min(left, right);
}

bool IsBefore(const HeadingPlace& left, const HeadingPlace& right) {
  return std::pair(left.group, left.column) < std::pair(right.group, right.column);
}

}  // namespace

int GroupTable::AddGroup(std::string name, std::int32_t line) {
  const int index = GroupCount() + 1;
  groupsByName_[name].push_back(index);
  Group& group = groups_.emplace_back();
  group.name = std::move(name);
  group.line = line;
  group.firstRow = cells_.RowCount();
  return index;
}

int GroupTable::AddHeading(std::string name) {
  Group& group = groups_.back();
  const int column = group.HeadingCount() + 1;
  headingsByName_[UpperCase(name)].push_back({GroupCount(), column});
  group.headings.push_back({std::move(name), {}, {}});
  return column;
}

std::size_t GroupTable::AddRegularRow(std::int32_t lineNumber, std::string_view line) {
  if (!LiesInFile(line)) return 0;
  Group& group = groups_.back();
  const std::size_t fields = cells_.AddRegularRow(lineNumber, line, group.headings.size());
  if (fields > 0) ++group.rowCount;
  return fields;
}

void GroupTable::AddRow(std::int32_t lineNumber, const std::vector<std::string_view>& values) {
  cells_.AddRow(lineNumber, values);
  ++groups_.back().rowCount;
}

void GroupTable::RemoveLastRow() {
  cells_.RemoveLastRow();
  --groups_.back().rowCount;
}

int GroupTable::FindGroup(std::string_view name, int after) const {
  const auto firstAfter = [this, after](const std::string& exactName) {
    const auto found = groupsByName_.find(exactName);
    if (found == groupsByName_.end()) return 0;
    const auto next = std::upper_bound(found->second.begin(), found->second.end(), after);
    return next == found->second.end() ? 0 : *next;
  };
  return FirstOf(firstAfter(std::string(name)), firstAfter("?" + std::string(name)));
}

std::vector<int> GroupTable::GroupIndexList(std::string_view name) const {
  std::vector<int> indices;
  for (int group = FindGroup(name); group != 0; group = FindGroup(name, group)) {
    indices.push_back(group);
  }
  return indices;
}

int GroupTable::ColumnOf(const std::string& upperName, int group) const {
  const auto found = headingsByName_.find(upperName);
  if (found == headingsByName_.end()) return 0;
  const auto place = std::lower_bound(found->second.begin(), found->second.end(),
                                      HeadingPlace{group, 0}, IsBefore);
  return place != found->second.end() && place->group == group ? place->column : 0;
}

int GroupTable::FindHeading(std::string_view heading, int group, std::string_view groupName) const {
  if (group <= 0 || group > GroupCount()) return 0;
  if (!groupName.empty() && groupName != At(group).name) return 0;
  const std::string upperName = UpperCase(heading);
  const int marked = FirstOf(ColumnOf("?" + upperName, group), ColumnOf(upperName + "?", group));
  return FirstOf(ColumnOf(upperName, group), marked);
}

int GroupTable::LocateHeading(int group, std::string_view heading) const {
  if (group != 0) return FindHeading(heading, group);
  const std::vector<HeadingPlace> places = LocateHeading(heading);
  return places.empty() ? 0 : places.front().column;
}

std::vector<HeadingPlace> GroupTable::LocateHeading(std::string_view heading) const {
  std::vector<HeadingPlace> places;
  if (heading.find('_', 1) == std::string_view::npos) return places;
  const std::string upperName = UpperCase(heading);
  for (const std::string& stored : {upperName, "?" + upperName, upperName + "?"}) {
    const auto found = headingsByName_.find(stored);
    if (found == headingsByName_.end()) continue;
    places.insert(places.end(), found->second.begin(), found->second.end());
  }
  std::sort(places.begin(), places.end(), IsBefore);
  // A group that holds a heading more than once is listed with its first column only.
  const auto sameGroup = [](const HeadingPlace& left, const HeadingPlace& right) {
    return left.group == right.group;
  };
  places.erase(std::unique(places.begin(), places.end(), sameGroup), places.end());
  return places;
}

std::string GroupTable::RowKeyText(int group, std::int32_t row,
                                   std::span<const int> columns) const {
  std::string key;
  for (std::size_t index = 0; index < columns.size(); ++index) {
    if (index > 0) key += ',';
    key.append(TrimRight(Value(group, row, columns[index])));
  }
  return key;
}

std::string GroupTable::KeyText(int group, std::int32_t row) const {
  return RowKeyText(group, row, At(group).keyColumns);
}

}  // namespace quorvane
