// Schema files: each is read into a dictionary or refused with a reason.

#include <string>

#include "dictionary/schema_file.h"
#include "whole_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvane;
  static test::MemoryDisk disk;
  disk.files["own.gas"] = fuzz::AsText(data, size);
  for (const AgsFormat format : {AgsFormat::Ags3, AgsFormat::Ags4}) {
    try {
      const AgsDictionary dictionary = BuildAgsDictionary(disk, {format, false, "own.gas"}, "/");
      fuzz::Require(dictionary.GroupCount() > 0, "a dictionary has groups");
    } catch (const DictionaryError& failure) {
      fuzz::Require(!std::string(failure.what()).empty(), "a refusal has a reason");
    }
  }
  return 0;
}
