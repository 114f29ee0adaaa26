#include "run/version_detection.h"

#include <algorithm>
#include <string_view>

#include "parse/row_label.h"
#include "text/text.h"

namespace quorvane {
namespace {

constexpr std::string_view Edition404 = "\"4.0.4\"";

/// Position of the first occurrence of the 4.0.4 edition's text. Quotes and digits stand in nearly
/// every cell, so a search for one of them would stop all the time: whole blocks are compared at
/// once instead, in a form that compilers turn into vector code.
bool ContainsEdition404(std::string_view text) {
  constexpr std::size_t blockSize = 4096;
  const std::size_t length = Edition404.size();
  for (std::size_t start = 0; start + length <= text.size(); start += blockSize) {
    const std::size_t count = std::min(blockSize, text.size() - length + 1 - start);
    const char* at = text.data() + start;
    unsigned char found = 0;
    for (std::size_t index = 0; index < count; ++index) {
      found |= static_cast<unsigned char>((at[index + 1] == '4') & (at[index + 3] == '0') &
                                          (at[index + 5] == '4') & (at[index] == '"'));
    }
    if (found != 0 &&
        text.substr(start, count + length - 1).find(Edition404) != std::string_view::npos) {
      return true;
    }
  }
  return false;
}

bool IsAgs4(const FileText& file) {
  bool hasUnit = false;
  bool hasType = false;
  bool hasBareUnit = false;
  bool hasBareType = false;
  for (std::int32_t number = 1; number <= file.LineCount(); ++number) {
    if (file.IsPlain(number)) continue;
    const std::string_view line = file.Line(number);
    if (line.empty()) continue;
    const char first = ToUpper(line.front() == '"' ? line.substr(0, 2).back() : line.front());
    if (first != 'U' && first != 'T') continue;
    hasUnit = hasUnit || StartsWithIgnoringCase(line, UnitLabel);
    hasType = hasType || StartsWithIgnoringCase(line, TypeLabel);
    hasBareUnit = hasBareUnit || StartsWithIgnoringCase(line, "UNIT");
    hasBareType = hasBareType || StartsWithIgnoringCase(line, "TYPE");
    if ((hasUnit && hasType) || (hasBareUnit && hasBareType)) return true;
  }
  return false;
}

bool IsAgs3(const FileText& file) {
  for (std::int32_t number = 1; number <= file.LineCount(); ++number) {
    if (IsGroupLine(file.Line(number))) return true;
  }
  return false;
}

bool IsEdition404(std::string_view text) {
  const std::size_t tranAgs = text.find("TRAN_AGS");
  return tranAgs != std::string_view::npos && ContainsEdition404(text.substr(tranAgs));
}

}  // namespace

std::optional<DetectedVersion> DetectVersion(const FileText& file) {
  if (IsAgs4(file)) return DetectedVersion{AgsFormat::Ags4, IsEdition404(file.Whole())};
  if (IsAgs3(file)) return DetectedVersion{AgsFormat::Ags3, false};
  return std::nullopt;
}

}  // namespace quorvane
