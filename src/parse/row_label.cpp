#include "parse/row_label.h"

#include <vector>

#include "parse/field.h"
#include "text/text.h"

namespace quorvane {

bool IsRowLabel(std::string_view line, std::string_view label) {
  const bool endsField =
      line.size() == label.size() || (line.size() > label.size() && line[label.size()] == ',');
  return endsField && StartsWithIgnoringCase(line, label);
}

bool IsGroupRow(std::string_view line) {
  return IsRowLabel(line, GroupLabel);
}
bool IsHeadingRow(std::string_view line) {
  return IsRowLabel(line, HeadingLabel);
}
bool IsUnitRow(std::string_view line) {
  return IsRowLabel(line, UnitLabel);
}
bool IsTypeRow(std::string_view line) {
  return IsRowLabel(line, TypeLabel);
}
bool IsDataRow(std::string_view line) {
  return IsRowLabel(line, DataLabel);
}

std::string NameInGroupRow(std::string_view row) {
  const std::vector<std::string> fields = SplitFields(row);
  return fields.size() < 2 ? std::string() : UpperCase(Trim(fields[1]));
}

bool IsGroupLine(std::string_view line) {
  return line.starts_with("\"**") || line.starts_with("**");
}

}  // namespace quorvane
