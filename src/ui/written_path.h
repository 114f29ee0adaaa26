#pragma once

#include <string>

#include "report/disk.h"

namespace quorvane {

/// Settings files are written on Windows too, where "\" parts the folders of a path. Where it does
/// not, these routines give the path to use instead of the one that was written; on Windows that is
/// always the one that was written.

/// The path of a file to be read: as it was written, or with "/" for each "\" where only a file of
/// that name exists.
std::string PathToRead(Disk& disk, const std::string& writtenPath);

/// The path of a file to be written: "\" always parts folders, since the file need not exist yet.
std::string PathToWrite(const std::string& writtenPath);

}  // namespace quorvane
