#include "parse/structure_parser.h"

#include <algorithm>
#include <utility>

#include "parse/field.h"
#include "parse/row_label.h"
#include "parse/structure_messages.h"
#include "text/text.h"

namespace quorvane {
namespace {

constexpr std::string_view UnitsMark = "<UNITS>";
constexpr std::string_view QuotedUnitsMark = "\"<UNITS>\"";
constexpr int MostAgs3Headings = 60;

/// Whether the list in a line goes on in the next one; the comma that says so is dropped.
bool DropListContinuation(std::string_view& line) {
  if (!line.ends_with(',')) return false;
  line.remove_suffix(1);
  return true;
}

/// The text up to and including its first comma.
std::string_view UpToFirstComma(std::string_view line) {
  const std::size_t comma = line.find(',');
  return comma == std::string_view::npos ? line : line.substr(0, comma + 1);
}

}  // namespace

StructureParser::StructureParser(const FileText& file, AgsFormat format,
                                 std::span<const std::string> groupsWithoutUnits, GroupTable& table,
                                 StructureListener& listener, MessageLog& log)
    : file_(file),
      format_(format),
      groupsWithoutUnits_(groupsWithoutUnits.begin(), groupsWithoutUnits.end()),
      table_(table),
      listener_(listener),
      log_(log),
      rows_(table, log, format) {}

void StructureParser::ParseStructure(LineRange lines) {
  for (std::int32_t number = lines.first; number <= lines.last; ++number) {
    const std::string_view line = TrimRight(file_.Line(number));
    if (!line.empty()) ReadLine(number, line);
  }
  EndGroup();
  listener_.FileEnded();
  log_.CloseCheckSection("Parsing Structure and Data");
}

void StructureParser::ReadLine(std::int32_t lineNumber, std::string_view line) {
  if (OpensGroup(line)) return OpenGroup(lineNumber, line);
  switch (state_) {
    case RowState::GroupLine:
      log_.AddMessage(lineNumber, UnknownGroupLineSyntax, {line});
      return OpenGroup(lineNumber, UpToFirstComma(line));
    case RowState::HeadingLine:
      return ReadHeadingLine(lineNumber, line);
    case RowState::UnitsLine:
      return ReadUnitsLine(lineNumber, line);
    case RowState::TypesLine:
      return ReadTypesLine(lineNumber, line);
    case RowState::DataRows:
      return ReadDataLine(lineNumber, line);
  }
}

bool StructureParser::OpensGroup(std::string_view line) const {
  if (!IsGroupLine(line)) return false;
  // The order of an AGS 4 file's rows has been checked. An AGS 3 group may end in any state: one
  // that holds a heading line only must not swallow the group behind it.
  return format_ == AgsFormat::Ags3 || state_ == RowState::GroupLine ||
         state_ == RowState::DataRows;
}

void StructureParser::OpenGroup(std::int32_t lineNumber, std::string_view line) {
  EndGroup();
  const int group = table_.GroupCount() + 1;
  std::string name = listener_.ReadGroupName(group, lineNumber, line);
  table_.AddGroup(std::move(name), lineNumber);
  listener_.GroupOpened(group);
  headingNames_.clear();
  units_.clear();
  types_.clear();
  areHeadersComplete_ = false;
  state_ = RowState::HeadingLine;
}

void StructureParser::EndGroup() {
  if (table_.GroupCount() == 0) return;
  rows_.FinishRow();
  if (!areHeadersComplete_) CompleteHeaders(false);
  listener_.GroupEnded(table_.GroupCount());
}

template <typename Use>
void StructureParser::ForEachField(std::int32_t lineNumber, std::string_view line, Use&& use) {
  FieldSource source{log_, lineNumber, line, false, GroupPlace()};
  std::string restored;
  std::size_t position = 1;
  while (position != 0) {
    ++source.place.heading;
    use(GetNextField(source, position, restored));
  }
}

void StructureParser::ReadHeadingLine(std::int32_t lineNumber, std::string_view line) {
  Group& group = CurrentGroup();
  if (group.headingLine == 0) group.headingLine = lineNumber;
  const bool goesOn = DropListContinuation(line);
  ForEachField(lineNumber, line, [&](std::string_view field) { ReadHeading(lineNumber, field); });
  if (goesOn) return;
  if (format_ == AgsFormat::Ags3 && group.HeadingCount() > MostAgs3Headings) {
    log_.AddMessage(group.headingLine, TooManyHeadings, {group.name}, GroupPlace());
  }
  state_ = RowState::UnitsLine;
}

void StructureParser::ReadHeading(std::int32_t lineNumber, std::string_view field) {
  MessagePlace place = GroupPlace();
  place.heading = CurrentGroup().HeadingCount() + 1;
  if (field.starts_with('*')) {
    field.remove_prefix(1);
  } else {
    log_.AddMessage(lineNumber, HeadingWithoutAsterisk, {field}, place);
  }
  std::string name = listener_.ReadHeading(place, lineNumber, std::string(field));
  if (!name.empty() && !headingNames_.insert(name).second) {
    log_.AddMessage(lineNumber, HeadingRepeated, {name}, place);
  }
  table_.AddHeading(std::move(name));
}

void StructureParser::ReadUnitsLine(std::int32_t lineNumber, std::string_view line) {
  const bool isFirstLine = CurrentGroup().unitLine == 0;
  if (format_ == AgsFormat::Ags3 && isFirstLine) {
    const bool isUnitsLine = FindIgnoringCase(line, QuotedUnitsMark) != std::string_view::npos;
    if (!isUnitsLine) {
      if (!TakesNoUnits()) {
        log_.AddMessage(lineNumber, UnitsLineMissing, {CurrentGroup().name}, GroupPlace());
      }
      return ReadDataLine(lineNumber, line);
    }
    if (TakesNoUnits()) {
      log_.AddMessage(lineNumber, UnitsLineDoesNotApply, {CurrentGroup().name}, GroupPlace());
      state_ = RowState::DataRows;
      return;
    }
  }
  ReadUnitFields(lineNumber, line);
}

void StructureParser::ReadUnitFields(std::int32_t lineNumber, std::string_view line) {
  Group& group = CurrentGroup();
  if (group.unitLine == 0) group.unitLine = lineNumber;
  const bool goesOn = DropListContinuation(line);
  ForEachField(lineNumber, line, [&](std::string_view unit) {
    // The mark itself stands where the first heading's unit would.
    if (format_ == AgsFormat::Ags3 && units_.empty()) {
      if (EqualsIgnoringCase(unit, UnitsMark)) {
        unit = {};
      } else {
        log_.AddMessage(lineNumber, UnitsLineStart, {}, GroupPlace());
      }
    }
    units_.emplace_back(unit);
  });
  if (goesOn) return;
  if (units_.size() != group.headings.size()) {
    log_.AddMessage(group.unitLine, UnitCountDiffers, {}, GroupPlace());
  }
  state_ = format_ == AgsFormat::Ags4 ? RowState::TypesLine : RowState::DataRows;
}

void StructureParser::ReadTypesLine(std::int32_t lineNumber, std::string_view line) {
  CurrentGroup().typeLine = lineNumber;
  ForEachField(lineNumber, line, [&](std::string_view type) { types_.emplace_back(type); });
  if (types_.size() != CurrentGroup().headings.size()) {
    log_.AddMessage(lineNumber, TypeCountDiffers, {}, GroupPlace());
  }
  state_ = RowState::DataRows;
}

void StructureParser::ReadDataLine(std::int32_t lineNumber, std::string_view line) {
  if (!areHeadersComplete_) CompleteHeaders(true);
  rows_.AddDataRow(lineNumber, line);
  state_ = RowState::DataRows;
}

void StructureParser::CompleteHeaders(bool hasData) {
  Group& group = CurrentGroup();
  const std::size_t unitCount = std::min(units_.size(), group.headings.size());
  for (std::size_t index = 0; index < unitCount; ++index) {
    group.headings[index].unit = std::move(units_[index]);
  }
  const std::size_t typeCount = std::min(types_.size(), group.headings.size());
  for (std::size_t index = 0; index < typeCount; ++index) {
    group.headings[index].type = std::move(types_[index]);
  }
  areHeadersComplete_ = true;
  listener_.HeadersRead(table_.GroupCount(), hasData);
}

}  // namespace quorvane
