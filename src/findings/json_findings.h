#pragma once

#include <string>

#include "findings/findings_report.h"

namespace quorvane {

/// A report as one JSON object, described by docs/findings.schema.json: UTF-8, lines ending with
/// LF, a line per finding.
std::string JsonFindings(const FindingsReport& report);

}  // namespace quorvane
