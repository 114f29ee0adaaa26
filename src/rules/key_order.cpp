#include "rules/key_order.h"

#include <algorithm>
#include <compare>

#include "text/number.h"
#include "text/same_text.h"

namespace quorvane {
namespace {

/// Whether the values of a leading text hold no comma and end with no blank. What stands before an
/// offset is known to be so.
bool IsPlain(std::string_view text, std::size_t offset) {
  // A comma just before the offset may have been one between values.
  for (std::size_t at = std::max<std::size_t>(offset, 1) - 1; at < text.size(); ++at) {
    const char before = at == 0 ? '"' : text[at - 1];
    if (text[at] == '"' && before == ' ') return false;
    if (text[at] == ',' && (before != '"' || text[at + 1] != '"')) return false;
  }
  return true;
}

/// Where what stands before a point ends, in the value at an offset.
std::size_t EndOfWhole(std::string_view text, std::size_t offset) {
  while (text[offset] != '.' && text[offset] != '"')
    ++offset;
  return offset;
}

/// Whether the part in which two leading texts first differ, at an offset, stands before that of
/// the other: with fewer letters before its point or, with as many, in the order of letters. Depths
/// and sizes go up and down in this order as they do by their value.
bool StandsBefore(std::string_view left, std::string_view right, std::size_t offset) {
  std::size_t at = offset;
  while (at > 0 && left[at - 1] != '"' && left[at - 1] != '.')
    --at;
  const bool isBehindPoint = at > 0 && left[at - 1] == '.';
  if (!isBehindPoint) {
    const std::size_t leftPoint = EndOfWhole(left, offset);
    const std::size_t rightPoint = EndOfWhole(right, offset);
    if (leftPoint != rightPoint) return leftPoint < rightPoint;
  }
  return static_cast<unsigned char>(left[offset]) < static_cast<unsigned char>(right[offset]);
}

/// The value of a leading text in which an offset lies.
std::string_view ValueAround(std::string_view text, std::size_t offset) {
  std::size_t start = offset;
  while (start > 0 && text[start - 1] != '"')
    --start;
  std::size_t end = offset;
  while (text[end] != '"')
    ++end;
  return text.substr(start, end - start);
}

}  // namespace

/// Keys are compared as texts of parts joined by commas, without blanks behind the parts and with
/// numbers by their value. Where no value holds a comma or ends with a blank, keys are the same
/// only when all parts are: numeric ones by their value, the others when the lines have the same
/// text.
KeyOrder::KeyOrder(const GroupTable& table, std::span<const KeyPart> parts)
    : table_(&table), parts_(parts), isUsable_(AreLeadingColumns(parts)) {}

void KeyOrder::Begin(const RowPlace& place) {
  levels_.assign(parts_.size() + 1, {place.row, Direction::Unknown});
  leading_ = {};
  lastRow_ = place.row;
  openLevel_ = 0;
  openRuns_.clear();
  isUnordered_ = false;
  if (!isUsable_) return;
  const std::string_view text = table_->RowAt(place.group, place.row).LeadingText(parts_.size());
  if (IsPlain(text, 0)) leading_ = text;
}

std::size_t KeyOrder::Take(const RowPlace& place) {
  if (leading_.empty()) return 0;
  const CellStore::Row row = table_->RowAt(place.group, place.row);
  const std::string_view text = row.LeadingText(parts_.size());
  if (text.empty()) return 0;
  const std::size_t same = SameLength(leading_, text);
  const bool isSame = same == leading_.size() && same == text.size();
  const std::size_t level = isSame ? parts_.size() : row.LeadingCount(parts_.size(), same);
  if (level == 0) return 0;
  Direction step = Direction::Unknown;
  if (!isSame) {
    if (IsPlain(text, same)) step = StepTo(text, same, parts_[level].isNumeric);
    if (step == Direction::Unknown) return 0;
  }
  leading_ = text;
  TakeAt(level, step, place.row);
  lastRow_ = place.row;
  return level;
}

/// Which way a text goes in the part in which it first differs from the one before, at an offset;
/// unknown when its number is the same or none that can be compared so.
KeyOrder::Direction KeyOrder::StepTo(std::string_view text, std::size_t offset,
                                     bool isNumeric) const {
  if (!isNumeric) return StandsBefore(leading_, text, offset) ? Direction::Up : Direction::Down;
  const std::partial_ordering order =
      CompareShortNumbers(ValueAround(leading_, offset), ValueAround(text, offset));
  if (std::is_lt(order)) return Direction::Up;
  return std::is_gt(order) ? Direction::Down : Direction::Unknown;
}

/// Takes a row that shares so many parts with the one before and goes a step in the next one. Rows
/// that share all parts are left to be looked at as those without an order are.
void KeyOrder::TakeAt(std::size_t level, Direction step, std::int32_t row) {
  if (openLevel_ != 0) {
    if (level >= openLevel_) return;
    CloseOpenRun();
  }
  for (std::size_t below = level + 1; below < levels_.size(); ++below)
    levels_[below] = {row, Direction::Unknown};
  Direction& direction = levels_[level].direction;
  if (direction == Direction::Unknown) direction = step;
  if (level == parts_.size() || direction != step) Open(level);
}

/// Notes that the rows that share so many parts have no order, up to the one that does not.
void KeyOrder::Open(std::size_t level) {
  openLevel_ = level;
  while (!openRuns_.empty() && openRuns_.back().rows.first >= levels_[level].firstRow)
    openRuns_.pop_back();
}

void KeyOrder::CloseOpenRun() {
  openRuns_.push_back({{levels_[openLevel_].firstRow, lastRow_}, openLevel_});
  openLevel_ = 0;
}

void KeyOrder::TakeUnseen(const RowPlace& place) {
  isUnordered_ = true;
  leading_ = {};
  lastRow_ = place.row;
}

const std::vector<OpenRun>& KeyOrder::End() {
  if (isUnordered_) {
    openRuns_.assign(1, {{levels_.front().firstRow, lastRow_}, 0});
  } else if (openLevel_ != 0) {
    CloseOpenRun();
  }
  return openRuns_;
}

}  // namespace quorvane
