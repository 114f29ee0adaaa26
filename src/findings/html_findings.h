#pragma once

#include <string>

#include "findings/findings_report.h"

namespace quorvane {

/// A report as one HTML page to send to whoever delivered the data: a summary of the run and its
/// files, the findings of each file by section with the lines that they are about, and what every
/// kind of finding in it means. The page needs nothing beside itself and may not reach out; what
/// comes from a data file is shown in it as text only. Its script sorts and filters; without it
/// everything is shown by section.
///
/// A line is written out once, with its first finding. Where a file has more than
/// MostFindingsWithCells findings, its lines stand as they are, without the table of their cells.
std::string HtmlFindings(const FindingsReport& report);

inline constexpr std::size_t MostFindingsWithCells = 5000;

}  // namespace quorvane
