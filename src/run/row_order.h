#pragma once

#include <cstdint>
#include <string_view>

#include "parse/file_text.h"
#include "report/message_log.h"

namespace quorvane {

/// Checks the row labels of an AGS 4 file and their order (Rules 2b and 3). Returns true when a
/// problem makes further checks impossible.
bool CheckRowLabels(const FileText& file, MessageLog& log);

/// Checks the order of an AGS 4 file's rows and rewrites them in place into the form that the
/// structure parser reads for both versions. Returns true when a line was out of order.
bool ConvertAgs4Rows(FileText& file, MessageLog& log);

/// Reports a line that stands where another row label is expected; always true, for "fatal".
bool ReportLineOrder(MessageLog& log, std::string_view line, std::string_view expectedLabel);

/// Reports low and high bit ASCII characters (Rule 1): the first 20 of an AGS 3 file.
void CheckLowHighAscii(const FileText& file, MessageLog& log);

/// Reports the lines of an AGS 3 file that are longer than 240 characters.
void CheckLineLengths(const FileText& file, MessageLog& log);

}  // namespace quorvane
