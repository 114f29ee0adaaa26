#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "parse/file_text.h"
#include "report/disk.h"

namespace quorvane {

/// What is said of a file whose version cannot be decided.
inline constexpr std::string_view NotAnAgsFile = "File is not an AGS 3 or 4 format file";

/// A data file as it was read from the disk, or why it was not.
struct DataFile {
  FileText text;
  std::uint64_t size = 0;  // bytes
  FileTime lastChange;
  std::string refusal;  // why the file cannot be read; empty when it was
  bool isTooLarge = false;
};

/// Reads a data file and splits it into lines. A file of 2 GB or more is refused unread.
DataFile ReadDataFile(Disk& disk, const std::string& path);

}  // namespace quorvane
