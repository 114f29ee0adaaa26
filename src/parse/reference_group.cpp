#include "parse/reference_group.h"

#include "parse/reference_values.h"
#include "text/comma_list.h"

namespace quorvane {

void CollectMissingDescription(const GroupTable& table, int group, std::int32_t row,
                               int descriptionColumn, std::string_view name,
                               std::vector<std::string>& list) {
  if (descriptionColumn == 0) return;  // there is no such value to be looked at
  CollectMissingValue(true, table.Value(group, row, descriptionColumn), name, list);
}

ReferenceNames ReadReferenceNames(const GroupTable& table, int group, int nameColumn,
                                  int descriptionColumn) {
  ReferenceNames read;
  ForEachValue(table, group, nameColumn, [&](std::int32_t row, std::string_view name) {
    read.names.Add(name);
    CollectMissingDescription(table, group, row, descriptionColumn, name, read.withoutDescription);
  });
  return read;
}

void ReportUnusedNames(MessageLog& log, const ReferenceList& names,
                       const MessageDefinition& definition, std::string_view separator,
                       std::int32_t line, MessagePlace place) {
  const std::vector<std::string> unused = names.Unused();
  if (unused.empty()) return;
  log.AddMessage(line, definition, {Join(unused, separator)}, place);
}

}  // namespace quorvane
