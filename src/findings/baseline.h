#pragma once

#include <string>

#include "findings/earlier_run.h"
#include "findings/findings_report.h"

namespace quorvane {

/// Compares a run with an earlier one: marks its findings as new or known and records which ones
/// are gone. A finding is the same one when its file name (see FileNames), message id, group, key,
/// heading and occurrence among those alike are; lines do not matter. What the earlier run found in
/// files that this one did not check to the end is not called gone. Where FYI messages are
/// suppressed, those of the earlier run do not count. The path is the one to show.
void CompareWithEarlierRun(FindingsReport& report, EarlierRun earlier, const std::string& path);

}  // namespace quorvane
