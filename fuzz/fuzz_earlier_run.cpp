// The JSON of an earlier run, which anybody may have written.

#include "findings/earlier_run.h"
#include "whole_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = quorvane::fuzz::AsText(data, size);
  const quorvane::EarlierRunReading reading = quorvane::ReadEarlierRun(text);
  if (reading.failure) return 0;
  std::size_t length = 0;
  for (const quorvane::EarlierFile& file : reading.run.files) {
    length += file.path.size();
    for (const quorvane::EarlierFinding& finding : file.findings) {
      quorvane::fuzz::Require(!finding.id.empty(), "every finding has an id");
      quorvane::fuzz::Require(finding.line >= 0, "lines count from 1");
      length += finding.id.size() + finding.key.size() + finding.text.size();
    }
  }
  quorvane::fuzz::Require(length <= text.size(), "what is taken stands in the text");
  return 0;
}
