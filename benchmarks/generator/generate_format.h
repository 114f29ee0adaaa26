#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "generate_catalogue.h"

namespace quorvane::generate {

/// Writes groups in the form of one AGS version. Each routine appends whole lines and returns how
/// many.
class Format {
 public:
  /// The longest line of an AGS 3 file.
  static constexpr std::size_t kMaxLine = 240;

  /// The line end must outlive the format.
  Format(int version, std::string_view lineEnd) : version_(version), lineEnd_(lineEnd) {}

  int Version() const { return version_; }

  /// The lines before a group's rows. AGS 3 knows groups that take no units.
  std::size_t AppendGroupStart(std::string& text, std::string_view name,
                               std::span<const Column> columns, bool takesUnits) const;

  /// A data row. AGS 3 rows that are too long for one line are continued on further lines.
  std::size_t AppendRow(std::string& text, std::span<const std::string_view> cells) const;

  /// The empty line after a group.
  std::size_t AppendGroupEnd(std::string& text) const;

  /// Starts a data line: what stands before its first cell.
  void AppendRowLabel(std::string& text) const;

  void AppendLineEnd(std::string& text) const { text.append(lineEnd_); }

 private:
  std::size_t AppendList(std::string& text, std::span<const std::string_view> items) const;
  std::size_t AppendContinuedRow(std::string& text, std::span<const std::string_view> cells) const;
  void AppendLine(std::string& text, std::span<const std::string_view> cells) const;

  int version_;
  std::string_view lineEnd_;
};

}  // namespace quorvane::generate
