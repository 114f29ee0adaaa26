#pragma once

#include <string>

#include "findings/findings_report.h"

namespace quorvane {

/// A report as JSON objects, one to a line that ends with LF, each saying its "type": the run, then
/// each file with its findings behind it, and the end with the status and the numbers of the run.
/// Their other members are those of the JSON form; a finding names its file.
std::string NdjsonFindings(const FindingsReport& report);

}  // namespace quorvane
