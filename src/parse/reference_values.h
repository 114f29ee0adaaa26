#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "parse/group_table.h"
#include "report/message_log.h"

namespace quorvane {

/// The column of a heading in a group; when absent it is reported and the result is 0. The message
/// names the group by the heading's first four characters.
int RequireHeading(const GroupTable& table, MessageLog& log, int group, std::string_view heading);

/// Appends an item to the list when the flag is set and the value is empty.
void CollectMissingValue(bool flag, std::string_view value, std::string_view item,
                         std::vector<std::string>& list);

/// Reports the items collected, one per line, as values without a reference value.
void ReportMissingValues(MessageLog& log, const std::vector<std::string>& list,
                         std::string_view valueName, std::string_view referenceName);

}  // namespace quorvane
