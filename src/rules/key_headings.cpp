#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>

#include "rules/key_messages.h"
#include "rules/keys.h"
#include "text/comma_list.h"
#include "text/number.h"
#include "text/text.h"

namespace quorvane {
namespace {

/// Whether a key heading, at a 1-based position in its group's key, is marked as one that holds
/// numbers. The mark is a list of positions, or of names for a group that the file defines itself.
bool IsNumericKey(const DictGroup& dictGroup, std::size_t position) {
  const std::string& numericKeys = dictGroup.NumericKeyPositions;
  if (numericKeys.empty()) return false;
  if (!IsDigit(numericKeys.front())) {
    return ListContains(numericKeys, dictGroup.KeyHeadings[position - 1]);
  }
  const std::vector<std::string_view> positions = Split(numericKeys, "|");
  return std::find(positions.begin(), positions.end(), std::to_string(position)) != positions.end();
}

/// Columns by heading name as written; the first one of a name counts.
std::unordered_map<std::string_view, int> ColumnsByName(const Group& group) {
  std::unordered_map<std::string_view, int> columns;
  for (int column = 1; column <= group.HeadingCount(); ++column) {
    columns.try_emplace(group.HeadingAt(column).name, column);
  }
  return columns;
}

/// Sets the group's key columns; returns the key headings that it does not have.
std::vector<std::string_view> SetKeyColumns(Group& group, const DictGroup& dictGroup) {
  const auto columns = ColumnsByName(group);
  std::vector<std::string_view> missing;
  for (std::size_t index = 0; index < dictGroup.KeyHeadings.size(); ++index) {
    const auto found = columns.find(dictGroup.KeyHeadings[index]);
    if (found == columns.end()) {
      missing.push_back(dictGroup.KeyHeadings[index]);
      continue;
    }
    group.keyColumns.push_back(found->second);
    if (IsNumericKey(dictGroup, index + 1)) group.numericKeyColumns.push_back(found->second);
  }
  // With a key heading missing the columns stay in the order of the key list.
  if (missing.empty()) {
    std::sort(group.keyColumns.begin(), group.keyColumns.end());
    std::sort(group.numericKeyColumns.begin(), group.numericKeyColumns.end());
  }
  group.isKeyed = missing.empty();
  return missing;
}

void CheckFirstHeading(CheckedFile& file, int groupIndex) {
  const Group& group = file.table.At(groupIndex);
  if (group.headings.empty()) return;
  const MessagePlace place{groupIndex, 0, 1};
  const std::string& first = group.headings.front().name;
  const std::string& locationKey = file.dictionary.LocationKey;
  const bool needsLocationKey = !file.dictionary.GroupsWithoutLocationKey.contains(group.name);
  if (needsLocationKey && first != locationKey && first != "?" + locationKey) {
    file.log.AddMessage(group.headingLine, LocationKeyNotFirst, {group.name, locationKey}, place);
  } else if (group.name == "PROJ" && first != "PROJ_ID") {
    file.log.AddMessage(group.headingLine, ProjIdNotFirst, {group.name}, place);
  }
}

}  // namespace

void CheckKeyHeadings(CheckedFile& file, int groupIndex, bool hasData) {
  Group& group = file.table.At(groupIndex);
  if (group.dictionaryIndex != 0) {
    const DictGroup& dictGroup = file.dictionary.Group(group.dictionaryIndex);
    if (!dictGroup.KeyHeadings.empty()) {
      const std::vector<std::string_view> missing = SetKeyColumns(group, dictGroup);
      if (!missing.empty() && hasData) {
        file.log.AddMessage(group.headingLine, KeyHeadingsMissing, {group.name, Join(missing, ",")},
                            {groupIndex, 0, 0});
      }
    }
  }
  if (hasData) CheckFirstHeading(file, groupIndex);
}

}  // namespace quorvane
