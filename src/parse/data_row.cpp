#include "parse/data_row.h"

#include <algorithm>
#include <utility>

#include "parse/field_messages.h"
#include "text/text.h"

namespace quorvane {
namespace {

constexpr std::string_view ContinuationMark = "<CONT>";

/// Adds a line's first fields as far as no rule has anything to say about their quotes: enclosed in
/// quotes, without one inside, and before a comma or the line's end. Returns the 1-based position
/// behind them, 0 when the line is used up.
std::size_t ReadPlainFields(std::string_view line, std::size_t mostFields,
                            std::vector<std::string_view>& values) {
  std::size_t start = 0;
  while (values.size() < mostFields && start < line.size() && line[start] == '"') {
    const std::size_t end = line.find('"', start + 1);
    if (end == std::string_view::npos) break;
    const bool isLast = end + 1 == line.size();
    if (!isLast && line[end + 1] != ',') break;
    values.push_back(line.substr(start + 1, end - start - 1));
    if (isLast) return 0;
    start = end + 2;
  }
  return start + 1;
}

bool LooksContinued(std::string_view line) {
  if (line.starts_with('"')) line.remove_prefix(1);
  if (!line.starts_with(ContinuationMark.front())) return false;  // as nearly all lines
  if (!StartsWithIgnoringCase(line, ContinuationMark)) return false;
  line.remove_prefix(ContinuationMark.size());
  return line.empty() || line.front() == '"' || line.front() == ',';
}

}  // namespace

void DataRowReader::AddDataRow(std::int32_t lineNumber, std::string_view line) {
  const int groupIndex = table_.GroupCount();
  const bool looksContinued = LooksContinued(line);
  if (!looksContinued) FinishRow();
  const std::size_t fieldCount = looksContinued ? 0 : table_.AddRegularRow(lineNumber, line);
  const std::int32_t rowCount = table_.At(groupIndex).rowCount;
  MessagePlace place{groupIndex, rowCount, 0};
  bool differs = fieldCount != HeadingCount();
  if (fieldCount == 0) {
    if (!looksContinued || rowCount == 0) ++place.row;
    ReadFields(lineNumber, line, place);
    differs = fields_.hasMore || fields_.values.size() < HeadingCount();
    StoreFields(lineNumber);
  }
  if (differs) log_.AddMessage(lineNumber, FieldCountDiffers, {}, place);
}

void DataRowReader::ReadFields(std::int32_t lineNumber, std::string_view line, MessagePlace place) {
  fields_.Clear();
  FieldSource source{log_, lineNumber, line, false, place};
  std::size_t position = ReadPlainFields(line, HeadingCount(), fields_.values);
  if (position != 0 && format_ == AgsFormat::Ags4) {
    // Where all fields are well formed, doubled quotes are part of values wherever they stand.
    const bool isRead = ReadWellFormedFields(line, position, fields_.values);
    position = isRead ? 0 : ProtectLine(source, position);
  }
  fields_.hasMore = fields_.values.size() > HeadingCount();
  if (fields_.hasMore) fields_.values.resize(HeadingCount());
  DropBlankValues(source);
  ReadFieldsByRule(source, position);
}

void DataRowReader::DropBlankValues(FieldSource& source) {
  source.place.heading = 0;
  for (std::string_view& value : fields_.values) {
    ++source.place.heading;
    if (!value.starts_with(' ') || !Trim(value).empty()) continue;
    log_.AddMessage(source.lineNumber, NullFieldWithSpaces, {}, source.place);
    value = {};
  }
}

/// Has a line rewritten whose doubled quotes need it: it is then read anew. Returns the position
/// from which on it is read by rule.
std::size_t DataRowReader::ProtectLine(FieldSource& source, std::size_t position) {
  if (HoldsOnlyEmptyFields(source.line, position - 1)) return position;
  ProtectedLine protectedLine = ProtectDoubledQuotes(source.line);
  if (!protectedLine.restoreDoubledQuotes) return position;
  source.restoreDoubledQuotes = true;
  fields_.protectedLine = std::move(protectedLine.text);
  source.line = fields_.protectedLine;
  fields_.values.clear();
  return 1;
}

/// Reads a line field by field from a position on, as the quoting rules are stated.
void DataRowReader::ReadFieldsByRule(FieldSource& source, std::size_t position) {
  std::string restored;
  while (position != 0 && fields_.values.size() < HeadingCount()) {
    ++source.place.heading;
    std::string_view value = GetNextField(source, position, restored);
    if (!restored.empty()) {
      value = fields_.restored.emplace_back(std::move(restored));
      restored.clear();
    }
    fields_.values.push_back(value);
  }
  if (position != 0) fields_.hasMore = true;
}

void DataRowReader::StoreFields(std::int32_t lineNumber) {
  const bool isContinuation =
      !fields_.values.empty() && EqualsIgnoringCase(fields_.values.front(), ContinuationMark);
  if (isContinuation) {
    if (table_.At(table_.GroupCount()).rowCount > 0) return ContinueRow();
    // There is no row to continue: the line starts one, without the mark.
    fields_.values.front() = {};
  }
  FinishRow();
  table_.AddRow(lineNumber, fields_.values);
}

void DataRowReader::ContinueRow() {
  for (std::size_t index = 1; index < fields_.values.size(); ++index) {
    std::string_view text = fields_.values[index];
    if (text.empty()) continue;
    if (!table_.LiesInFile(text)) text = continuationTexts_.emplace_back(text);
    continuation_.push_back({index + 1, text});
  }
}

/// The last row's values with the continuation appended, column by column; the pieces are joined
/// once per row, so that a value continued over very many lines stays cheap.
std::vector<std::string> DataRowReader::ContinuedValues(std::size_t columnCount) {
  std::stable_sort(
      continuation_.begin(), continuation_.end(),
      [](const Piece& left, const Piece& right) { return left.column < right.column; });
  const int group = table_.GroupCount();
  const std::int32_t row = table_.At(group).rowCount;
  std::vector<std::string> values(columnCount);
  auto piece = continuation_.begin();
  for (std::size_t column = 1; column <= columnCount; ++column) {
    std::string& value = values[column - 1];
    value = table_.Value(group, row, static_cast<int>(column));
    for (; piece != continuation_.end() && piece->column == column; ++piece)
      value += piece->text;
  }
  return values;
}

void DataRowReader::FinishRow() {
  if (continuation_.empty()) return;
  const int group = table_.GroupCount();
  const std::int32_t row = table_.At(group).rowCount;
  const std::int32_t lineNumber = table_.RowLine(group, row);
  std::size_t columnCount = table_.CellCount(group, row);
  for (const Piece& piece : continuation_)
    columnCount = std::max(columnCount, piece.column);
  const std::vector<std::string> values = ContinuedValues(columnCount);
  table_.RemoveLastRow();
  table_.AddRow(lineNumber, {values.begin(), values.end()});
  continuation_.clear();
  continuationTexts_.clear();
}

}  // namespace quorvane
