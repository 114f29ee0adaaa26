#include "parse/row_label.h"

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

bool IsGroupLine(std::string_view line) {
  return line.starts_with("\"**") || line.starts_with("**");
}

}  // namespace quorvane
