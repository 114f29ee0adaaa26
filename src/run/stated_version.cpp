#include "run/stated_version.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "parse/field.h"
#include "parse/row_label.h"
#include "text/text.h"

namespace quorvane {
namespace {

/// The line of the first TRAN group's group row, or the one behind the last line.
std::int32_t FindTranGroup(const FileText& file) {
  std::int32_t number = 1;
  for (; number <= file.LineCount(); ++number) {
    const std::string_view line = TrimRight(file.Line(number));
    if (IsGroupRow(line) && NameInGroupRow(line) == "TRAN") break;
  }
  return number;
}

/// The index of a heading's field in a heading row; that of no field when the row does not have it.
std::size_t FindField(std::string_view headingRow, std::string_view heading) {
  const std::vector<std::string> fields = SplitFields(headingRow);
  const auto found = std::find_if(fields.begin(), fields.end(), [&](const std::string& field) {
    return EqualsIgnoringCase(Trim(field), heading);
  });
  return static_cast<std::size_t>(found - fields.begin());
}

std::string FieldAt(std::string_view row, std::size_t index) {
  const std::vector<std::string> fields = SplitFields(row);
  return index < fields.size() ? std::string(Trim(fields[index])) : std::string();
}

}  // namespace

std::string StatedVersion(const FileText& file) {
  std::size_t field = std::string_view::npos;
  for (std::int32_t number = FindTranGroup(file) + 1; number <= file.LineCount(); ++number) {
    const std::string_view line = TrimRight(file.Line(number));
    if (IsGroupRow(line)) break;
    if (IsHeadingRow(line)) field = FindField(line, "TRAN_AGS");
    if (IsDataRow(line)) return FieldAt(line, field);
  }
  return {};
}

}  // namespace quorvane
