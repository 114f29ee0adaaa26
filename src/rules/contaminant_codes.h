#pragma once

#include "rules/checked_file.h"

namespace quorvane {

/// Checks that the contaminants that the CNMT and ?ICCT groups name are defined in the CODE group
/// (Rule 25). Meant for AGS 3 files: AGS 4 has neither these groups nor this rule.
void CheckContaminantCodes(CheckedFile& file);

}  // namespace quorvane
