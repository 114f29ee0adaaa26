#include "parse/data_row.h"

#include <algorithm>
#include <utility>

#include "parse/field.h"
#include "parse/field_messages.h"
#include "text/text.h"

namespace quorvane {
namespace {

constexpr std::string_view ContinuationMark = "<CONT>";

/// Position of the quote that closes the well-formed field whose opening quote stands at a
/// position; npos when the field is not enclosed in quotes or holds a quote that is not doubled.
std::size_t EndOfWellFormedField(std::string_view line, std::size_t start) {
  if (start >= line.size() || line[start] != '"') return std::string_view::npos;
  std::size_t quote = line.find('"', start + 1);
  while (quote != std::string_view::npos && line.substr(quote + 1).starts_with('"')) {
    quote = line.find('"', quote + 2);
  }
  return quote;
}

/// The ends of all fields when every field of the line is well formed, else nothing.
bool FindWellFormedFields(std::string_view line, std::vector<std::string_view>& values) {
  values.clear();
  std::size_t start = 0;
  while (true) {
    const std::size_t end = EndOfWellFormedField(line, start);
    if (end == std::string_view::npos) return false;
    values.push_back(line.substr(start + 1, end - start - 1));
    if (end + 1 == line.size()) return true;
    if (line[end + 1] != ',') return false;
    start = end + 2;
  }
}

bool LooksContinued(std::string_view line) {
  if (line.starts_with('"')) line.remove_prefix(1);
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
  const bool isRead = format_ == AgsFormat::Ags4 && ReadWellFormedFields(lineNumber, line, place);
  if (!isRead) ReadFieldsByRule(lineNumber, line, place);
}

/// Reads an AGS 4 line in which every field is well formed: wherever its doubled quotes stand,
/// they are part of values and no fault.
bool DataRowReader::ReadWellFormedFields(std::int32_t lineNumber, std::string_view line,
                                         MessagePlace place) {
  std::vector<std::string_view>& values = fields_.values;
  if (!FindWellFormedFields(line, values)) {
    values.clear();
    return false;
  }
  fields_.hasMore = values.size() > HeadingCount();
  if (fields_.hasMore) values.resize(HeadingCount());
  for (std::string_view& value : values) {
    ++place.heading;
    if (value.empty() || !Trim(value).empty()) continue;
    log_.AddMessage(lineNumber, NullFieldWithSpaces, {}, place);
    value = {};
  }
  return true;
}

/// Reads a line field by field, as the quoting rules are stated.
void DataRowReader::ReadFieldsByRule(std::int32_t lineNumber, std::string_view line,
                                     MessagePlace place) {
  FieldSource source{log_, lineNumber, line, false, place};
  if (format_ == AgsFormat::Ags4) {
    ProtectedLine protectedLine = ProtectDoubledQuotes(line);
    source.restoreDoubledQuotes = protectedLine.restoreDoubledQuotes;
    if (source.restoreDoubledQuotes) {
      fields_.protectedLine = std::move(protectedLine.text);
      source.line = fields_.protectedLine;
    }
  }
  std::size_t position = 1;
  while (position != 0 && fields_.values.size() < HeadingCount()) {
    ++source.place.heading;
    fields_.values.push_back(GetNextField(source, position, fields_.restored.emplace_back()));
    if (fields_.restored.back().empty()) fields_.restored.pop_back();
  }
  fields_.hasMore = position != 0;
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
