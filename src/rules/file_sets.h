#pragma once

#include "rules/checked_file.h"

namespace quorvane {

/// Checks that the file sets that the data refer to are defined in the FILE group (Rule 24; AGS 4:
/// Rule 20), in any letter case, and, in plain AGS 3 files, that the names of associated files keep
/// to eight characters and an extension of three.
void CheckFileSets(CheckedFile& file);

}  // namespace quorvane
