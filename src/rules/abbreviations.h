#pragma once

#include "rules/checked_file.h"

namespace quorvane {

/// Checks that abbreviations are explained (Rule 20): that the ABBR group is there and usable, that
/// each of its entries is used in the data, that every code in the data under one of its headings
/// is listed, and that every heading with abbreviated values that holds data has entries at all.
/// An AGS 4 file without an ABBR group is passed over in silence.
void CheckAbbrGroup(CheckedFile& file);

}  // namespace quorvane
