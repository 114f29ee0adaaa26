#pragma once

#include "rules/checked_file.h"

namespace quorvane {

/// Checks that the file's DICT group defines and describes the groups and headings that the
/// dictionary does not have (Rules 21 and 22). It takes them from NonStandardGroupList and
/// NonStandardHeadingList and leaves both lists without what it took.
///
/// DICT rows that define something the file does not hold are let pass: a DICT group may serve
/// several deliveries of one project.
void CheckDictGroup(CheckedFile& file);

}  // namespace quorvane
