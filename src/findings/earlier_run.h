#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "findings/findings_report.h"
#include "findings/text_store.h"

namespace quorvane {

/// What the JSON form of an earlier run says of its findings.
struct EarlierRun {
  std::vector<EarlierFile> files;
  TextStore texts;  // of the findings
};

/// An earlier run, or why the text is not the data of one.
struct EarlierRunReading {
  EarlierRun run;
  std::optional<std::string> failure;
};

/// Reads the JSON form of findings. Members that later versions of the program may add are passed
/// over. Cost and memory are in line with the findings, not with the whole text.
EarlierRunReading ReadEarlierRun(std::string_view json);

}  // namespace quorvane
