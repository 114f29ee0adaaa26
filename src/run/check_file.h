#pragma once

#include "dictionary/dictionary_store.h"
#include "report/run_log.h"
#include "run/file_intake.h"
#include "run/services.h"
#include "statistics/data_statistics.h"

namespace quorvane {

/// How the check of a file, or of all files of a run, ended. A greater one outranks a smaller one;
/// the numbers are exit statuses.
enum class CheckStatus { Clean = 0, HasErrors = 1, NotDone = 2 };

/// Runs the fixed sequence of checks on one file and writes its part of the log, with its
/// statistics when they are wanted. Throws DictionaryError; any other failure is shown and ends
/// what failed.
CheckStatus CheckAGSFile(const Services& services, DictionaryStore& dictionaries, RunLog& runLog,
                         StatisticsState& statistics, const FileToCheck& file);

}  // namespace quorvane
