#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "findings/findings_report.h"

namespace quorvane {

/// The waivers that a text lists, or what is wrong with it.
struct WaiverReading {
  std::vector<WaiverRecord> waivers;
  std::vector<std::string> mistakes;  // "line 3: ..."
};

/// Reads a list of waivers: one per line, its six fields parted by "|" with blanks around them as
/// one likes: message id, file, group, key, heading, reason. "*" alone in a field means any, an
/// empty field that the finding has none. "\|", "\*" and "\\" stand for the second character
/// itself. Empty lines and those that begin with "#" are passed over. A mistake is an id that no
/// message has, a line with fewer fields or more, one without a reason, and one that repeats
/// another.
WaiverReading ReadWaivers(std::string_view text);

/// Marks the findings that a waiver fits as waived, by the first one that does, and counts what
/// each waiver fits. A waiver names a file by the last part of its path or as FileNames does. Takes
/// the list into the report; the path is the one to show. Cost is in line with the findings and the
/// waivers together.
void ApplyWaivers(FindingsReport& report, std::vector<WaiverRecord> waivers,
                  const std::string& path);

}  // namespace quorvane
