#pragma once

#include "rules/checked_file.h"

namespace quorvane {

/// What a file must contain: the required groups and fields of the dictionary (Rule 10b), groups
/// with headings and data (Rule 2), and one record that states the AGS version.

/// Reports the dictionary's required groups for which the file has no group line.
void CheckRequiredGroups(CheckedFile& file);

/// Reports required fields that a group lacks or whose values are empty.
void CheckRequiredFields(CheckedFile& file);

/// Reports a group that has no headings or no data rows, when the group ends.
void CheckGroupNotEmpty(CheckedFile& file, int group);

/// Checks the PROJ group and, in AGS 3 files, takes the AGS version and edition from it.
void CheckProjGroup(CheckedFile& file);

/// Checks the TRAN group of an AGS 4 file and takes version, delimiter and concatenator from it.
void CheckTranGroup(CheckedFile& file);

}  // namespace quorvane
