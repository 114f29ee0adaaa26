// The whole check of AGS 3 files.

#include "whole_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static quorvane::fuzz::WholeCheck check;
  check.Run(quorvane::fuzz::AsText(data, size));
  return 0;
}
