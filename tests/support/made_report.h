#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "findings/findings_report.h"

namespace quorvane::test {

/// A finding for a report that no run has made. The rule is one of "6b", "7", "10" or empty.
struct MadeFinding {
  std::string text;
  std::int32_t line = 0;
  Severity severity = Severity::Error;
  std::uint32_t section = 0;
  std::string_view rule = "7";
};

/// The record of a file with these findings, in AGS 4.
FileRecord MadeFile(const std::string& path, const std::vector<std::string>& sections,
                    const std::vector<MadeFinding>& findings);

/// A report on some files.
FindingsReport MadeReport(std::vector<FileRecord> files);

/// A report on three files with a million findings together, as noisy files have them: few kinds,
/// many texts that begin alike.
FindingsReport ReportOfAMillion();

}  // namespace quorvane::test
