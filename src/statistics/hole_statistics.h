#pragma once

#include <span>
#include <string>

#include "parse/group_table.h"
#include "report/run_log.h"

namespace quorvane {

/// Writes the number of holes of each type with their total drilling length over all location
/// groups of a file, which bear the given name: what follows the section's title.
void WriteHolesByType(RunLog& runLog, const GroupTable& table, const std::string& locationGroup,
                      std::span<const int> groups);

/// Writes the range of each of the coordinates and levels of the location groups.
void WriteSiteGeometry(RunLog& runLog, const GroupTable& table, const std::string& locationGroup,
                       std::span<const int> groups);

}  // namespace quorvane
