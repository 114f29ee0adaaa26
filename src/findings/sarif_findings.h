#pragma once

#include <string>

#include "findings/findings_report.h"

namespace quorvane {

/// A report as a SARIF 2.1.0 log of one run, as code-scanning services take it: UTF-8, a line per
/// result. The rules are the kinds of findings of the catalogue; results have fingerprints that do
/// not depend on lines.
std::string SarifFindings(const FindingsReport& report);

}  // namespace quorvane
