#pragma once

#include "dictionary/ags_dictionary.h"
#include "parse/group_table.h"
#include "report/run_log.h"

namespace quorvane {

/// What the statistics of a file remember of those written before. The object lives as long as the
/// program, not only for a run.
struct StatisticsState {
  /// The file of the statistics written last had location groups without any row. The sections on
  /// locations go by it, so they show it one file late.
  bool hasNoLocationData = false;
};

/// Writes a summary of a file's data to the run's log: location identifiers, records in each group,
/// drilling by type of hole, samples by type, site geometry, index tests (AGS 3), holes without
/// geology or samples, and groups without data. The dictionary is that of the file, with the groups
/// that the file defines for itself. An empty table stands for a file that could not be read on.
void WriteDataStatistics(RunLog& runLog, const GroupTable& table, const AgsDictionary& dictionary,
                         AgsFormat format, StatisticsState& state);

}  // namespace quorvane
