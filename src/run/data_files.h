#pragma once

#include <span>
#include <string>
#include <vector>

#include "report/disk.h"
#include "report/user_interface.h"

namespace quorvane {

/// The data files that were named one by one or by their folders.
struct DataFiles {
  std::vector<std::string> paths;
  bool isComplete = true;  // every folder could be listed
};

/// Puts, in the place of each folder, every file below it whose name ends in ".ags" in any letter
/// case: in the byte order of their paths below the folder, written with "/". Other paths stay as
/// they are. Folders without such a file, and those that cannot be listed, are named in notes.
DataFiles FindDataFiles(Disk& disk, UserMessages& messages, std::span<const std::string> paths);

}  // namespace quorvane
