#include "rules/type_columns.h"

#include <utility>

#include "text/number.h"

namespace quorvane {

bool IsUniqueIdHeading(const CheckedFile& file, int groupIndex, int headingIndex) {
  const Group& group = file.table.At(groupIndex);
  const std::string_view heading = group.HeadingAt(headingIndex).name;
  return heading != "PROJ_ID" && heading != "LOCA_ID" && heading.substr(0, 4) == group.name;
}

TypedColumn::TypedColumn(const CheckedFile& file, int groupIndex, int headingIndex,
                         std::string type)
    : file_(file),
      groupIndex_(groupIndex),
      headingIndex_(headingIndex),
      type_(std::move(type)),
      dataType_(ReadDataType(type_)) {
  if (LacksPattern()) return;
  if (Kind() == ValueKind::DateTime) datePattern_.emplace(Unit());
  if (Kind() == ValueKind::ElapsedTime) elapsedTimePattern_.emplace(Unit());
  if (Kind() == ValueKind::Identifier && IsUniqueIdHeading(file, groupIndex, headingIndex)) {
    ids_.emplace(file.table.At(groupIndex).rowCount);
  }
}

const std::string& TypedColumn::Unit() const {
  return file_.table.At(groupIndex_).HeadingAt(headingIndex_).unit;
}

bool TypedColumn::LacksPattern() const {
  return (Kind() == ValueKind::DateTime || Kind() == ValueKind::ElapsedTime) && Unit().empty();
}

std::string TypedColumn::TypeText() const {
  const bool hasPattern = Kind() == ValueKind::DateTime || Kind() == ValueKind::ElapsedTime;
  return hasPattern ? type_ + " - " + Unit() : type_;
}

bool TypedColumn::HasValueCheck() const {
  switch (Kind()) {
    case ValueKind::Unknown:
    case ValueKind::Unchecked:
    case ValueKind::RecordLink:
      return false;
    case ValueKind::Identifier:
      return ids_.has_value();
    default:
      return !LacksPattern();
  }
}

template <typename Fits>
void TypedColumn::CheckEach(std::int32_t firstRow, std::int32_t lastRow, Fits&& fits) {
  const GroupTable::Column values = file_.table.ColumnAt(groupIndex_, headingIndex_);
  for (std::int32_t row = firstRow; row <= lastRow; ++row) {
    const std::string_view value = values.Value(row);
    if (!value.empty() && !fits(value)) {
      failingRows_.push_back({row, file_.table.RowLine(groupIndex_, row), value});
    }
  }
}

void TypedColumn::CheckDates(std::int32_t firstRow, std::int32_t lastRow) {
  const DatePattern& pattern = *datePattern_;
  if (file_.IsAgs4()) {
    CheckEach(firstRow, lastRow, [&](std::string_view value) { return pattern.Matches(value); });
  } else {
    CheckEach(firstRow, lastRow,
              [&](std::string_view value) { return pattern.MatchesLoosely(value); });
  }
}

void TypedColumn::CheckRows(std::int32_t firstRow, std::int32_t lastRow) {
  const std::int64_t digits = dataType_.digits;
  switch (Kind()) {
    case ValueKind::DecimalPlaces:
      CheckEach(firstRow, lastRow,
                [digits](std::string_view value) { return HasDecimalPlaces(value, digits); });
      break;
    case ValueKind::SignificantFigures:
      CheckEach(firstRow, lastRow,
                [digits](std::string_view value) { return HasSignificantFigures(value, digits); });
      break;
    case ValueKind::Scientific:
      CheckEach(firstRow, lastRow,
                [digits](std::string_view value) { return IsScientific(value, digits); });
      break;
    case ValueKind::Number:
      CheckEach(firstRow, lastRow, IsNumeric);
      break;
    case ValueKind::YesNo:
      CheckEach(firstRow, lastRow, IsYesNo);
      break;
    case ValueKind::DateTime:
      CheckDates(firstRow, lastRow);
      break;
    case ValueKind::ElapsedTime:
      CheckEach(firstRow, lastRow,
                [this](std::string_view value) { return elapsedTimePattern_->Matches(value); });
      break;
    case ValueKind::DegreesMinutesSeconds:
      CheckEach(firstRow, lastRow, IsDegreesMinutesSeconds);
      break;
    case ValueKind::MoistureContent:
      CheckEach(firstRow, lastRow, IsMoistureContent);
      break;
    case ValueKind::Identifier:
      CheckEach(firstRow, lastRow,
                [this](std::string_view value) { return !ids_->IsRepeated(value); });
      break;
    case ValueKind::Unknown:
    case ValueKind::Unchecked:
    case ValueKind::RecordLink:
      break;
  }
}

}  // namespace quorvane
