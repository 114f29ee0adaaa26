#include "findings/row_layout.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "findings/line_fields.h"
#include "parse/file_text.h"
#include "parse/row_label.h"
#include "text/text.h"
#include "text/utf8.h"

namespace quorvane {
namespace {

constexpr std::string_view ContinuationMark = "<CONT>";
constexpr std::string_view UnitsMark = "<UNITS>";
constexpr std::size_t MostFieldsWithoutHeading = 100;

std::vector<std::string> ValuesOf(std::string_view line) {
  std::vector<std::string> values;
  for (const LineField& field : SplitLineFields(line))
    values.push_back(ToUtf8(FieldValue(field.raw)));
  return values;
}

/// The value of the field that a line begins with.
std::string FirstValue(std::string_view line) {
  return FieldValue(line.substr(0, line.find(',')));
}

bool IsContinuation(std::string_view line) {
  return EqualsIgnoringCase(FirstValue(line), ContinuationMark);
}

/// Whether a list of headings or units begins at an AGS 3 line.
bool BeginsList(std::string_view line) {
  const std::string first = FirstValue(line);
  const bool isHeading = first.starts_with('*') && !IsGroupLine(line);
  return isHeading || EqualsIgnoringCase(first, UnitsMark);
}

/// The values of an AGS 4 row without its label; nothing when the line has none.
std::vector<std::string> ValuesBehindLabel(std::string_view line) {
  constexpr std::array<std::string_view, 4> labels{"HEADING", "UNIT", "TYPE", "DATA"};
  const std::string first = FirstValue(line);
  const bool isRow = std::any_of(labels.begin(), labels.end(), [&first](std::string_view label) {
    return EqualsIgnoringCase(first, label);
  });
  if (!isRow) return {};
  std::vector<std::string> values = ValuesOf(line);
  values.erase(values.begin());
  return values;
}

/// An AGS 3 row in the lines that are there. Blank lines between those of a row do not count.
class Ags3Row {
 public:
  Ags3Row(const FileLines& lines, std::int32_t line) : lines_(lines), first_(line), last_(line) {
    FindFirstLine();
    FindLastLine();
  }

  std::int32_t FirstLine() const { return first_; }
  std::int32_t LastLine() const { return last_; }

  std::vector<std::string> Values() const {
    if (Line(first_).empty() || IsGroupLine(Line(first_))) return {};
    return isList_ ? ListedValues() : JoinedValues();
  }

 private:
  std::string_view Line(std::int32_t number) const { return TrimRight(lines_.line(number)); }

  /// The next line in a direction that is not blank; 0 when there is none.
  std::int32_t Neighbour(std::int32_t number, std::int32_t step) const {
    do {
      number += step;
    } while (lines_.Has(number) && Line(number).empty());
    return lines_.Has(number) ? number : 0;
  }

  void FindFirstLine() {
    if (IsContinuation(Line(first_))) {
      while (IsContinuation(Line(first_)) && Neighbour(first_, -1) != 0)
        first_ = Neighbour(first_, -1);
      return;
    }
    // A comma at its end takes a list of headings or units into the next line. A data row may end
    // in one as well: only what the lines in front lead back to tells.
    for (std::int32_t start = first_; start != 0; start = LineThatGoesOnIn(start)) {
      if (!BeginsList(Line(start))) continue;
      first_ = start;
      isList_ = true;
    }
  }

  /// The line in front of one if it ends in a comma; else 0.
  std::int32_t LineThatGoesOnIn(std::int32_t number) const {
    const std::int32_t before = Neighbour(number, -1);
    return before != 0 && Line(before).ends_with(',') ? before : 0;
  }

  void FindLastLine() {
    last_ = first_;
    for (std::int32_t next = Neighbour(last_, 1); next != 0; next = Neighbour(last_, 1)) {
      if (!(isList_ ? Line(last_).ends_with(',') : IsContinuation(Line(next)))) return;
      last_ = next;
    }
  }

  std::vector<std::string> ListedValues() const {
    std::vector<std::string> values;
    for (std::int32_t number = first_; number != 0 && number <= last_;
         number = Neighbour(number, 1)) {
      std::string_view line = Line(number);
      if (line.ends_with(',')) line.remove_suffix(1);
      for (std::string& value : ValuesOf(line))
        values.push_back(std::move(value));
    }
    return values;
  }

  std::vector<std::string> JoinedValues() const {
    std::vector<std::string> values = ValuesOf(Line(first_));
    for (std::int32_t number = Neighbour(first_, 1); number != 0 && number <= last_;
         number = Neighbour(number, 1)) {
      const std::vector<std::string> pieces = ValuesOf(Line(number));
      values.resize(std::max(values.size(), pieces.size()));
      for (std::size_t index = 1; index < pieces.size(); ++index)
        values[index] += pieces[index];
    }
    return values;
  }

  const FileLines& lines_;
  std::int32_t first_;
  std::int32_t last_;
  bool isList_ = false;  // of headings or units
};

std::vector<RowCell> PutUnderHeadings(std::vector<std::string> values, const GroupRecord& group) {
  const std::size_t headingCount = group.headings.size();
  values.resize(std::min(values.size(), headingCount + MostFieldsWithoutHeading));
  std::vector<RowCell> cells(std::max(values.size(), headingCount));
  for (std::size_t index = 0; index < cells.size(); ++index) {
    RowCell& cell = cells[index];
    if (index < headingCount) {
      cell.heading = group.headings[index].name;
      cell.unit = group.headings[index].unit;
      cell.type = group.headings[index].type;
    }
    cell.isThere = index < values.size();
    if (cell.isThere) cell.value = std::move(values[index]);
  }
  return cells;
}

}  // namespace

FileLines AllLines(const FileText& text) {
  return {1, text.LineCount(), [&text](std::int32_t number) { return text.Line(number); }};
}

FileLines SingleLine(std::int32_t number, std::string_view line) {
  return {number, number, [line](std::int32_t) { return line; }};
}

bool IsHeadLine(AgsFormat format, std::string_view line) {
  return format == AgsFormat::Ags4 ? FirstValue(line) != "DATA" : BeginsList(line);
}

RowLayout LayOutRow(const FileRecord& file, const FindingRecord& finding, const FileLines& lines) {
  RowLayout layout;
  if (finding.line <= 0 || finding.group == 0 || !lines.Has(finding.line)) return layout;
  std::vector<std::string> values;
  if (file.format == AgsFormat::Ags4) {
    layout.firstLine = layout.lastLine = finding.line;
    values = ValuesBehindLabel(lines.line(finding.line));
  } else {
    const Ags3Row row(lines, finding.line);
    layout.firstLine = row.FirstLine();
    layout.lastLine = row.LastLine();
    values = row.Values();
  }
  if (values.empty()) return RowLayout();
  const GroupRecord& group = file.groups[static_cast<std::size_t>(finding.group - 1)];
  layout.cells = PutUnderHeadings(std::move(values), group);
  if (finding.heading > 0)
    layout.cells[static_cast<std::size_t>(finding.heading - 1)].isMeant = true;
  return layout;
}

}  // namespace quorvane
