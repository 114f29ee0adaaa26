#pragma once

#include <string>

#include "findings/findings_report.h"

namespace quorvane {

/// The sections that stand in the text of a run behind its last file, when they are asked for. All
/// lines end with CR LF; a section ends with an empty line.

/// What became of the associated files of each file, then the files that no data file names.
std::string AssociatedFilesText(const FindingsReport& report);

/// The findings that are waived with their reasons, and the waivers that match nothing.
std::string WaiversText(const FindingsReport& report);

/// The numbers of new, known and gone findings, then those that are new and those that are gone.
/// The report must hold a comparison.
std::string ComparisonText(const FindingsReport& report);

}  // namespace quorvane
