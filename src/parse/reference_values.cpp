#include "parse/reference_values.h"

#include "parse/structure_messages.h"
#include "text/comma_list.h"
#include "text/text.h"

namespace quorvane {
namespace {

/// A heading's first four characters are the group that it belongs to.
std::string_view GroupPrefix(std::string_view heading) {
  return heading.substr(0, 4);
}

}  // namespace

int RequireHeading(const GroupTable& table, MessageLog& log, int group, std::string_view heading) {
  const int column = table.LocateHeading(group, heading);
  if (column == 0) {
    log.AddMessage(0, RequiredHeadingMissing, {heading, GroupPrefix(heading)}, {group, 0, 0});
  }
  return column;
}

void CollectMissingValue(bool flag, std::string_view value, std::string_view item,
                         std::vector<std::string>& list) {
  if (flag && value.empty()) list.emplace_back(item);
}

void ReportMissingValues(MessageLog& log, const std::vector<std::string>& list,
                         std::string_view valueName, std::string_view referenceName) {
  if (list.empty()) return;
  log.AddMessage(0, ReferenceValuesMissing,
                 {valueName, referenceName, GroupPrefix(referenceName), Join(list, LineBreak)});
}

}  // namespace quorvane
