#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "report/disk.h"

namespace quorvane {

/// What stands below a folder, however deep.
struct FolderContent {
  /// A folder below it, or itself, that could not be listed to its end.
  struct Gap {
    std::string path;
    FileFailure failure;
  };

  std::vector<std::string> files;  // relative to the folder, with "/" between, in byte order
  std::vector<Gap> gaps;
};

/// Lists the files below a folder. Links to files are files; links to folders are left out, so that
/// a walk comes to an end and stays below its folder.
FolderContent WalkFolder(Disk& disk, const std::string& folder);

/// The path of something below a folder, given relative to it with "/" between, in this system's
/// form.
std::string PathBelow(std::string_view folder, std::string_view relative);

}  // namespace quorvane
