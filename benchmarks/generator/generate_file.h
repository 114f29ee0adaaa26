#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "generate_faults.h"
#include "generate_output.h"

namespace quorvane::generate {

struct FileOptions {
  int version = 4;
  std::uint64_t bytes = 0;
  int noisePerMille = 0;
  std::uint64_t seed = 1;
  std::string_view lineEnd = "\r\n";
};

struct FileTotals {
  std::uint64_t locations = 0;
  std::uint64_t groups = 0;
  std::uint64_t lines = 0;
  std::uint64_t rows = 0;   // data rows
  std::uint64_t cells = 0;  // of the data rows
  std::uint64_t bytes = 0;
  std::vector<FaultMaker::Count> faults;  // empty without noise
};

/// The smallest size that WriteFile can reach with these options.
std::uint64_t SmallestFile(const FileOptions& options);

/// Writes a whole file of about the wanted size. A file with noise has the rows and the layout of
/// its clean twin with the same seed; only the rows with faults differ. The groups that describe
/// the project and the file sets and those that explain codes, units and types are never spoilt.
FileTotals WriteFile(const FileOptions& options, Output& output);

}  // namespace quorvane::generate
