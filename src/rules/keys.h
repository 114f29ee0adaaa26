#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "rules/checked_file.h"

namespace quorvane {

/// The rules on keys: key headings (Rules 6 and 6a), repeated keys (Rule 6b) and keys of parent
/// groups (Rule 6c).

/// Finds the key columns of a group whose headings are complete. Missing key headings and a first
/// heading that is not the location key are reported only for a group that has data.
void CheckKeyHeadings(CheckedFile& file, int group, bool hasData);

/// The rows of a group that share their key with another row, ordered by key text and, among equal
/// keys, as in the file. The order of the other rows shows nowhere, so they are left out.
/// Numbers in numeric key columns are taken by value: 1.5 and 1.50 are one key.
std::vector<std::vector<std::int32_t>> SortGroupRows(const CheckedFile& file, int group);

/// Reports each row of a keyed group whose key repeats that of the row before it in key order.
void CheckDuplicateKeys(CheckedFile& file);

/// Reports the rows of keyed groups whose parent group has no row of their key, and parent groups
/// that are missing. LBST is also held against SAMP.
void CheckParentKeys(CheckedFile& file);

/// The parent of a dictionary group in the file's AGS 3 edition; empty for a top-level group.
const std::string& ParentGroupName(const CheckedFile& file, int dictionaryIndex);

}  // namespace quorvane
