#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "rules/checked_file.h"

namespace quorvane {

/// The rules on group and heading names: Rules 4, 5, 8, 10, 22 and 23, and the order of headings
/// (Rules 7 and 18a). The first six run while the structure is read.

/// Checks the form of a group line (Rules 8 and 10) and the name in it; returns the corrected name.
/// The group is the index that the group will have.
std::string CheckGroupNameLine(CheckedFile& file, int group, std::int32_t lineNumber,
                               std::string_view line);

/// Checks a group name (Rules 4 and 22) and leaves it cut to its first field, trimmed and
/// upper-cased.
void CheckGroupName(CheckedFile& file, int group, std::int32_t lineNumber, std::string& name);

/// Looks the newly opened group up in the dictionary (Rule 5) and records it where it is
/// non-standard or one of the groups that later checks ask for.
void RecordGroup(CheckedFile& file, int group);

/// Records the first group of a name that may occur only once, or reports a repeat.
void NoteSingletonGroup(CheckedFile& file, int group, int& firstGroup);

/// Checks a heading's name (Rule 23) and leaves it upper-cased; false when it broke the rule. What
/// cannot be decided before the whole file is known goes into HeadingPrefixList.
bool CheckHeadingName(CheckedFile& file, const MessagePlace& place, std::int32_t lineNumber,
                      std::string& heading);

/// Whether a heading is made up of letters, digits and underscores; reported when it is not.
bool CheckHeadingCharacters(CheckedFile& file, const MessagePlace& place, std::int32_t lineNumber,
                            std::string_view heading);

/// Whether a dictionary group has a heading, under its own name or under the one that the
/// dictionary has for it.
bool HasHeading(const DictGroup& group, std::string_view heading);

/// Looks a valid heading up in its group's dictionary entry (Rule 5). Only for groups that the
/// dictionary knows.
void CheckHeadingInDictionary(CheckedFile& file, const MessagePlace& place, std::int32_t lineNumber,
                              std::string_view heading);

/// Decides the headings in HeadingPrefixList (Rule 23) once the last line was read.
void CheckHeadingPrefixes(CheckedFile& file);

/// Checks that headings stand in the order of the dictionary and the file's DICT group (Rules 7 and
/// 18a). AGS 4 only.
void CheckFieldOrder(CheckedFile& file);

}  // namespace quorvane
