#pragma once

#include <string>

#include "findings/findings_report.h"

namespace quorvane {

/// A report as a table that spreadsheets open: UTF-8 with a byte order mark, fields parted by
/// commas, rows ending with CR LF, names of the columns in the first row. The first column says
/// what a row is: a fact of the run, a fact of a file (its name under "id", what it is under
/// "message"), or a finding.
///
/// No text does anything in a spreadsheet or on a terminal: one that could be taken for a formula
/// has an apostrophe in front, control characters are written as "\x1B". Line breaks inside a text
/// are LF.
std::string CsvFindings(const FindingsReport& report);

}  // namespace quorvane
