#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "findings/findings_report.h"

namespace quorvane {

class FileText;

/// Some lines of a file that stand one behind the other.
struct FileLines {
  std::int32_t first = 1;
  std::int32_t last = 0;
  std::function<std::string_view(std::int32_t)> line;  // from the first to the last

  bool Has(std::int32_t number) const { return number >= first && number <= last; }
};

/// All lines of a text, which must outlive the result.
FileLines AllLines(const FileText& text);

/// One line alone. Its text must outlive the result.
FileLines SingleLine(std::int32_t number, std::string_view line);

/// A field of a row under its heading. The texts are UTF-8.
struct RowCell {
  std::string heading;  // empty: the row has more fields than its group has headings
  std::string unit;
  std::string type;     // AGS 4 only
  std::string value;    // without its quotes
  bool isThere = true;  // false: the row ends before this heading
  bool isMeant = false;
};

/// A row as it stands in its file: a data row, or the headings, units or types of a group. An AGS 3
/// row that goes on in further lines is one row; the values are then joined.
struct RowLayout {
  std::int32_t firstLine = 0;
  std::int32_t lastLine = 0;
  std::vector<RowCell>
      cells;  // one per heading, then the fields beyond them, the first 100 at most
};

/// Whether a line that stands under a group's headings is part of the group's head: its HEADING,
/// UNIT or TYPE line, in AGS 3 the line of headings or of units.
bool IsHeadLine(AgsFormat format, std::string_view line);

/// Lays out the row that a finding's line belongs to and marks the cell that the finding is about,
/// if it is about one. Without cells when the finding has no line, or its line holds no row of a
/// group: a group line, a blank line, a line that is not there. Of a row whose other lines are not
/// there, those that are.
RowLayout LayOutRow(const FileRecord& file, const FindingRecord& finding, const FileLines& lines);

}  // namespace quorvane
