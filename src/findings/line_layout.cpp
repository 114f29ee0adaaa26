#include "findings/line_layout.h"

#include <algorithm>

#include "findings/line_fields.h"

namespace quorvane {

bool IsHeadLine(AgsFormat format, std::string_view line) {
  const std::string first = FieldValue(SplitLineFields(line).front().raw);
  if (format == AgsFormat::Ags4) return first != "DATA";
  return first.starts_with('*') || first == "<UNITS>";
}

std::vector<LaidOutCell> LayOutLine(const GroupRecord& group, AgsFormat format,
                                    std::string_view line) {
  std::vector<LineField> fields = SplitLineFields(line);
  if (format == AgsFormat::Ags4) fields.erase(fields.begin());
  std::vector<LaidOutCell> cells(std::max(fields.size(), group.headings.size()));
  for (std::size_t index = 0; index < cells.size(); ++index) {
    LaidOutCell& cell = cells[index];
    if (index < group.headings.size()) {
      const HeadingRecord& heading = group.headings[index];
      cell = {heading.name, heading.unit, heading.type, {}, false};
    }
    if (index < fields.size()) {
      cell.value = FieldValue(fields[index].raw);
      cell.isThere = true;
    }
  }
  return cells;
}

}  // namespace quorvane
