#include "findings/line_fields.h"

#include "text/text.h"
#include "text/utf8.h"

namespace quorvane {
namespace {

/// Where the field that starts at an offset ends: at its comma or at the line's end.
std::size_t FindFieldEnd(std::string_view line, std::size_t start) {
  bool isInQuotes = false;
  std::size_t end = start;
  for (; end < line.size(); ++end) {
    if (line[end] == '"') isInQuotes = !isInQuotes;
    if (line[end] == ',' && !isInQuotes) break;
  }
  return end;
}

}  // namespace

std::vector<LineField> SplitLineFields(std::string_view line) {
  std::vector<LineField> fields;
  std::size_t start = 0;
  while (start <= line.size()) {
    const std::size_t end = FindFieldEnd(line, start);
    fields.push_back({start, line.substr(start, end - start)});
    start = end + 1;
  }
  return fields;
}

std::string FieldValue(std::string_view raw) {
  raw = Trim(raw);
  if (!raw.starts_with('"')) return std::string(raw);
  raw.remove_prefix(1);
  if (raw.ends_with('"')) raw.remove_suffix(1);
  return ReplaceAll(raw, "\"\"", "\"");
}

std::size_t FieldColumn(std::string_view line, std::size_t field) {
  std::size_t start = 0;
  for (std::size_t number = 1; number < field; ++number) {
    start = FindFieldEnd(line, start) + 1;
    if (start > line.size()) return 0;
  }
  return CharacterCount(line.substr(0, start)) + 1;
}

}  // namespace quorvane
