#pragma once

#include "rules/checked_file.h"

namespace quorvane {

/// The rules on data types (AGS 4 Rules 8, 11c and 17): every column has a type, the type is listed
/// in the TYPE group, and every value fits the type of its column. An AGS 3 file has no types of
/// its own and is checked only when a dictionary was named for the run, by the types of that.
///
/// When a dictionary was named, columns whose type is not the dictionary's go into
/// CheckedFile::TypeDifferences.
void CheckTypeGroup(CheckedFile& file);

}  // namespace quorvane
