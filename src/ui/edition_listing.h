#pragma once

#include <string>

#include "report/disk.h"
#include "run/environment.h"

namespace quorvane {

/// Prints for each file of a list, one path per line, how many of its names each edition of AGS 4
/// knows. Files that cannot be read are named on the error stream. Returns the exit status: 0, 1
/// when a file could not be looked at, 2 when there are no files, a schema file cannot be used or
/// the output is lost.
int ListEditionsOnConsole(Disk& disk, const Environment& environment, const std::string& files);

}  // namespace quorvane
