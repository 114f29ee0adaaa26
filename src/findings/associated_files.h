#pragma once

#include <vector>

#include "findings/findings_report.h"
#include "parse/group_table.h"
#include "report/disk.h"

namespace quorvane {

/// The associated files that the FILE groups of a data file name, each once.
std::vector<AssociatedFile> NamedFiles(const GroupTable& table);

/// Whether a file could be read as far as its groups, so that what it names is known.
bool KnowsAssociatedFiles(const FileRecord& file);

/// Looks for the associated files of all files of a run: in FILE/<file set>/<name> beside the data
/// file, those of AGS 3 files also beside it. Sets their states, and records the files below each
/// FILE folder that no data file beside it names. What stands in a data file is compared with what
/// the folders hold and never leads out of them.
void LookForAssociatedFiles(Disk& disk, FindingsReport& report);

/// Whether an associated file is one that a delivery lacks.
bool IsMissing(const AssociatedFile& file);

}  // namespace quorvane
