#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "findings/findings_report.h"

namespace quorvane {

/// The formats in which findings are written as data.
enum class FindingsFormat { Json, Ndjson, Csv, Sarif, Html };

/// Their names, as options have them: "json", "ndjson", ...
std::vector<std::string> FindingsFormatNames();

/// The format of a name; nothing when there is none.
std::optional<FindingsFormat> FindingsFormatNamed(std::string_view name);

/// A report in a format: the bytes of a whole file.
std::string FormatFindings(FindingsFormat format, const FindingsReport& report);

}  // namespace quorvane
