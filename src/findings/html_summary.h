#pragma once

#include <cstddef>
#include <string>

#include "findings/findings_report.h"

namespace quorvane {

/// The head of the report page: its title, its policy, its style. No other resource is asked for.
void AppendHtmlHead(std::string& page, const FindingsReport& report);

/// What the page begins with: what was run and how it ended, and a table of the files.
void AppendHtmlSummary(std::string& page, const FindingsReport& report);

/// "2 errors, 1 warning, 3 FYI": those that are there; "no findings".
std::string CountsText(const SeverityCounts& counts);

/// The id of a file's part of the page; files count from 0.
std::string HtmlFileId(std::size_t file);

}  // namespace quorvane
