#pragma once

#include <cstdint>
#include <string>

#include "generate_format.h"
#include "generate_usage.h"

namespace quorvane::generate {

/// Lines of a file with their counts.
struct Lines {
  std::string text;
  std::uint64_t groups = 0;
  std::uint64_t lines = 0;
  std::uint64_t rows = 0;
  std::uint64_t cells = 0;  // of the rows
};

/// The groups that explain exactly the codes, units and, in AGS 4, types that the file uses. Empty
/// groups are left out.
Lines RenderReferences(const Usage& usage, const Format& format);

}  // namespace quorvane::generate
