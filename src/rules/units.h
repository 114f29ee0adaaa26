#pragma once

#include "rules/checked_file.h"

namespace quorvane {

/// Checks that every unit that the file uses, in a units line or as a value of a field whose values
/// are units, is listed in its UNIT group (Rule 18b), and that numeric headings have a unit. Where
/// a dictionary was named for the run, the units of columns that differ from it are left in
/// UnitDifferences.
///
/// An AGS 4 file without a UNIT group is passed over: the required groups report it.
void CheckUnitGroup(CheckedFile& file);

}  // namespace quorvane
