#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// The row labels of AGS 4 lines, with the quotes that surround them in the file.
inline constexpr std::string_view GroupLabel = "\"GROUP\"";
inline constexpr std::string_view HeadingLabel = "\"HEADING\"";
inline constexpr std::string_view UnitLabel = "\"UNIT\"";
inline constexpr std::string_view TypeLabel = "\"TYPE\"";
inline constexpr std::string_view DataLabel = "\"DATA\"";

/// True when the line's first field is the quoted label, in any letter case; a line may consist of
/// the label alone.
bool IsRowLabel(std::string_view line, std::string_view label);

bool IsGroupRow(std::string_view line);
bool IsHeadingRow(std::string_view line);
bool IsUnitRow(std::string_view line);
bool IsTypeRow(std::string_view line);
bool IsDataRow(std::string_view line);

/// The name in an AGS 4 group row, trimmed and in upper case as the name rules correct it; empty
/// when the row has none.
std::string NameInGroupRow(std::string_view row);

/// True when the line begins as a group line of the common form: `"**` or `**`.
bool IsGroupLine(std::string_view line);

}  // namespace quorvane
