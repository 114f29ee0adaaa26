#include "findings/summary_table.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "text/number.h"
#include "text/text.h"
#include "text/utf8.h"

namespace quorvane {
namespace {

constexpr std::string_view Title = "Summary of all files:";
constexpr std::string_view ColumnGap = "  ";
constexpr std::string_view NotKnown = "-";

enum Column : std::size_t { Path, Version, Errors, Warnings, Fyis, Checked, ColumnCount };

using Line = std::array<std::string, ColumnCount>;

/// A text in one line of a table.
std::string InOneLine(std::string_view text) {
  std::string line = ReplaceAll(text, LineBreak, " ");
  std::replace_if(
      line.begin(), line.end(),
      [](char letter) { return letter == '\r' || letter == '\n' || letter == '\t'; }, ' ');
  return line;
}

std::string CountText(std::int64_t count) {
  return GroupedCount(static_cast<std::uint64_t>(count));
}

void SetCounts(Line& line, const SeverityCounts& counts) {
  line[Errors] = CountText(counts.errors);
  line[Warnings] = CountText(counts.warnings);
  line[Fyis] = CountText(counts.fyis);
}

/// A file of which nothing is known has no counts: "0 errors" would praise it.
Line LineOf(const FileRecord& file) {
  Line line;
  line.fill(std::string(NotKnown));
  line[Path] = InOneLine(file.path);
  if (!file.statedVersion.empty()) line[Version] = InOneLine(file.statedVersion);
  if (file.isComplete || file.counts.Total() > 0) SetCounts(line, file.counts);
  line[Checked] = file.isComplete ? "yes" : InOneLine(file.reason);
  return line;
}

Line TotalLine(const FindingsReport& report) {
  const auto complete = std::count_if(report.files.begin(), report.files.end(),
                                      [](const FileRecord& file) { return file.isComplete; });
  const std::string fileCount = CountText(static_cast<std::int64_t>(report.files.size()));
  Line line;
  line[Path] = "Total: " + fileCount + (report.files.size() == 1 ? " file" : " files");
  SetCounts(line, report.Counts());
  line[Checked] = CountText(complete) + " of " + fileCount;
  return line;
}

bool IsNumberColumn(std::size_t column) {
  return column == Errors || column == Warnings || column == Fyis;
}

/// Lays lines out; a column without width is left out.
class TableLayout {
 public:
  explicit TableLayout(const std::vector<Line>& lines) {
    for (const Line& line : lines) {
      for (std::size_t column = 0; column < ColumnCount; ++column)
        widths_[column] = std::max(widths_[column], CharacterCount(line[column]));
    }
  }

  void LeaveOut(Column column) { widths_[column] = 0; }

  void Append(std::string& text, const Line& line) const {
    for (std::size_t column = 0; column < ColumnCount; ++column) {
      if (widths_[column] == 0) continue;
      const std::size_t blanks = widths_[column] - CharacterCount(line[column]);
      if (IsNumberColumn(column)) text.append(blanks, ' ');
      text.append(line[column]);
      if (column == Checked) break;
      if (!IsNumberColumn(column)) text.append(blanks, ' ');
      text.append(ColumnGap);
    }
    text.append(LineBreak);
  }

 private:
  std::array<std::size_t, ColumnCount> widths_{};
};

}  // namespace

std::string SummaryTable(const FindingsReport& report) {
  std::vector<Line> lines{{"File", "Version", "Errors", "Warnings", "FYI", "Checked"}};
  lines.reserve(report.files.size() + 2);
  for (const FileRecord& file : report.files)
    lines.push_back(LineOf(file));
  lines.push_back(TotalLine(report));

  TableLayout layout(lines);
  if (report.settings.suppressFyi) layout.LeaveOut(Fyis);
  std::string text(Title);
  text.append(LineBreak).append(LineBreak);
  for (const Line& line : lines)
    layout.Append(text, line);
  return text;
}

}  // namespace quorvane
