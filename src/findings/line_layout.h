#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "findings/findings_report.h"

namespace quorvane {

/// A field of a line beside its heading. Views are into the group's record.
struct LaidOutCell {
  std::string_view heading;  // empty behind the last heading
  std::string_view unit;
  std::string_view type;
  std::string value;     // without its quotes
  bool isThere = false;  // the line reaches so far
};

/// Whether a line that stands under a group's headings is part of the group's head: its HEADING,
/// UNIT or TYPE line, in AGS 3 the line of headings or of units.
bool IsHeadLine(AgsFormat format, std::string_view line);

/// Lays out a line whose fields are under the headings of a group: a cell per heading in their
/// order, then one per field that has none. The label in front of an AGS 4 line is left out.
std::vector<LaidOutCell> LayOutLine(const GroupRecord& group, AgsFormat format,
                                    std::string_view line);

}  // namespace quorvane
