#pragma once

#include <string>

#include "findings/findings_report.h"

namespace quorvane {

/// A table of the files of a run, one per line, with a line of totals at its end: path, version,
/// findings of each severity, and whether the file was checked to the end or why not. Lines end
/// with CR LF; columns are aligned by characters.
std::string SummaryTable(const FindingsReport& report);

}  // namespace quorvane
