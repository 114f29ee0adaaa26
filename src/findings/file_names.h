#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// The last part of a path, whichever of "/" and "\" parts its folders.
std::string_view LastPart(std::string_view path);

/// The names by which the files of a run are told apart and found again in another run, whose
/// folders may be others: the last part of a path; where several files have the same one, their
/// paths below the common folder of all files of the run, written with "/". A path that comes again
/// has its count behind it: "a.ags (2)".
std::vector<std::string> FileNames(const std::vector<std::string_view>& paths);

}  // namespace quorvane
