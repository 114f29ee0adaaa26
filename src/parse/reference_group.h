#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "parse/group_table.h"
#include "parse/reference_list.h"
#include "report/message_log.h"

namespace quorvane {

/// The steps that the checks of the groups that explain names share: such a group lists the units,
/// codes or types that the data of the file may use, each with its description.

/// Calls use(row, value) for every data row, in order, whose value in a column is not empty.
template <typename Use>
void ForEachValue(const GroupTable& table, int group, int column, Use&& use) {
  // One value per row lies too far from the next for the processor to fetch it by itself.
  constexpr std::int32_t RowsAhead = 12;
  const std::int32_t rowCount = table.At(group).rowCount;
  const GroupTable::Column values = table.ColumnAt(group, column);
  for (std::int32_t row = 1; row <= rowCount; ++row) {
    if (row <= rowCount - RowsAhead) __builtin_prefetch(values.Value(row + RowsAhead).data());
    const std::string_view value = values.Value(row);
    if (!value.empty()) use(row, value);
  }
}

/// Appends a name to the list when the description in its row is empty. With a description column
/// of 0, as for a heading that the group does not have, nothing is missing.
void CollectMissingDescription(const GroupTable& table, int group, std::int32_t row,
                               int descriptionColumn, std::string_view name,
                               std::vector<std::string>& list);

/// The names that a group lists, as written and in row order, and those of them that are without a
/// description.
struct ReferenceNames {
  ReferenceList names;
  std::vector<std::string> withoutDescription;
};

/// Reads the names in a column; the description column may be 0.
ReferenceNames ReadReferenceNames(const GroupTable& table, int group, int nameColumn,
                                  int descriptionColumn);

/// Reports the names that nothing used as one finding whose only value is the names, in list order
/// with a separator between each two. Silent when all were used.
void ReportUnusedNames(MessageLog& log, const ReferenceList& names,
                       const MessageDefinition& definition, std::string_view separator,
                       std::int32_t line, MessagePlace place);

}  // namespace quorvane
