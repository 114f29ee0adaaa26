#include "generate_format.h"

#include <vector>

namespace quorvane::generate {

namespace {

/// Length of a line of these cells with their quotes and commas.
std::size_t LineLength(std::span<const std::string_view> cells) {
  std::size_t length = 3 * cells.size() - 1;
  for (const std::string_view cell : cells)
    length += cell.size();
  return length;
}

/// How much of a text goes on a line with this room: up to behind a blank, so that neither part is
/// blank; 0 when that is not possible. The start of a line takes what must be cut anywhere.
std::size_t CutPosition(std::string_view text, std::size_t room, bool atLineStart) {
  const std::size_t blank = room == 0 ? std::string_view::npos : text.rfind(' ', room - 1);
  if (blank != std::string_view::npos && blank > 0) return blank + 1;
  return atLineStart ? room : 0;
}

}  // namespace

std::size_t Format::AppendGroupStart(std::string& text, std::string_view name,
                                     std::span<const Column> columns, bool takesUnits) const {
  std::vector<std::string> headings{"HEADING"};
  std::vector<std::string> units{"UNIT"};
  std::vector<std::string> types{"TYPE"};
  for (const Column& column : columns) {
    headings.emplace_back(column.heading);
    units.emplace_back(column.unit);
    types.emplace_back(column.type);
  }
  const auto append = [&](std::span<const std::string> items) {
    const std::vector<std::string_view> views(items.begin(), items.end());
    return AppendList(text, views);
  };
  if (version_ == 4) {
    const std::vector<std::string> group{"GROUP", std::string(name)};
    return append(group) + append(headings) + append(units) + append(types);
  }
  for (std::string& heading : headings)
    heading.insert(0, "*");
  const std::vector<std::string> group{"**" + std::string(name)};
  std::size_t lines = append(group) + append(std::span(headings).subspan(1));
  if (takesUnits) {
    units[1] = "<UNITS>";
    lines += append(std::span(units).subspan(1));
  }
  return lines;
}

std::size_t Format::AppendRow(std::string& text, std::span<const std::string_view> cells) const {
  if (version_ == 3 && LineLength(cells) > kMaxLine) return AppendContinuedRow(text, cells);
  AppendRowLabel(text);
  AppendLine(text, cells);
  return 1;
}

std::size_t Format::AppendGroupEnd(std::string& text) const {
  AppendLineEnd(text);
  return 1;
}

void Format::AppendRowLabel(std::string& text) const {
  if (version_ == 4) text.append("\"DATA\",");
}

/// Headings or units. An AGS 3 list that is too long for one line goes on after a comma.
std::size_t Format::AppendList(std::string& text, std::span<const std::string_view> items) const {
  std::size_t lines = 1;
  std::size_t length = 0;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const std::size_t itemLength = items[i].size() + 3;
    if (version_ == 3 && length + itemLength > kMaxLine) {
      AppendLineEnd(text);
      length = 0;
      ++lines;
    }
    text.append("\"").append(items[i]).append("\"");
    if (i + 1 < items.size()) text.push_back(',');
    length += itemLength;
  }
  AppendLineEnd(text);
  return lines;
}

/// The values go on the first line as far as they fit; the rest follows on lines of the same number
/// of fields, whose texts are added to those above them.
std::size_t Format::AppendContinuedRow(std::string& text,
                                       std::span<const std::string_view> cells) const {
  std::size_t lines = 0;
  std::size_t next = 1;
  std::size_t written = 0;  // of the next cell
  std::vector<std::string_view> line(cells.size());
  while (next < cells.size()) {
    line.assign(cells.size(), {});
    line[0] = lines == 0 ? cells[0] : std::string_view("<CONT>");
    std::size_t length = LineLength(line);
    const std::size_t lengthAtStart = length;
    while (next < cells.size()) {
      const std::string_view rest = cells[next].substr(written);
      const std::size_t room = kMaxLine - length;
      const bool fits = rest.size() <= room;
      const std::size_t taken =
          fits ? rest.size() : CutPosition(rest, room, length == lengthAtStart);
      line[next] = rest.substr(0, taken);
      length += taken;
      written = fits ? 0 : written + taken;
      if (!fits) break;
      ++next;
    }
    AppendLine(text, line);
    ++lines;
  }
  return lines;
}

void Format::AppendLine(std::string& text, std::span<const std::string_view> cells) const {
  text.push_back('"');
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (i > 0) text.append("\",\"");
    text.append(cells[i]);
  }
  text.push_back('"');
  AppendLineEnd(text);
}

}  // namespace quorvane::generate
