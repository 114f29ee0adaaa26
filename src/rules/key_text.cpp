#include "rules/key_text.h"

#include <algorithm>
#include <utility>

#include "text/number.h"
#include "text/same_text.h"
#include "text/text.h"

namespace quorvane {
namespace {

std::string_view PartValue(const CellStore::Row& row, const KeyPart& part) {
  if (part.column == 0) return {};
  return TrimRight(row.Value(static_cast<std::size_t>(part.column)));
}

void AppendComparable(std::string& text, const KeyPart& part, std::string_view value) {
  if (part.isNumeric) {
    AppendCanonicalNumber(text, value);
  } else {
    text += value;
  }
}

}  // namespace

bool AreLeadingColumns(std::span<const KeyPart> parts) {
  int column = 0;
  return std::all_of(parts.begin(), parts.end(),
                     [&column](const KeyPart& part) { return part.column == ++column; });
}

std::vector<KeyPart> KeyPartsOf(const Group& group) {
  std::vector<KeyPart> parts;
  for (const int column : group.keyColumns) {
    const bool isNumeric = std::find(group.numericKeyColumns.begin(), group.numericKeyColumns.end(),
                                     column) != group.numericKeyColumns.end();
    parts.push_back({column, isNumeric});
  }
  return parts;
}

std::string KeyAsWritten(const GroupTable& table, const RowPlace& place,
                         std::span<const KeyPart> parts) {
  const CellStore::Row row = table.RowAt(place.group, place.row);
  std::string text;
  for (const KeyPart& part : parts) {
    if (&part != parts.data()) text += ',';
    text += PartValue(row, part);
  }
  return text;
}

void MakeComparableKey(const GroupTable& table, const RowPlace& place,
                       std::span<const KeyPart> parts, std::string& text) {
  const CellStore::Row row = table.RowAt(place.group, place.row);
  text.clear();
  for (const KeyPart& part : parts) {
    if (&part != parts.data()) text += ',';
    AppendComparable(text, part, PartValue(row, part));
  }
}

KeyReader::KeyReader(const GroupTable& table, std::span<const KeyPart> parts)
    : table_(table), parts_(parts), areLeading_(AreLeadingColumns(parts)), read_(parts.size()) {}

bool KeyReader::TurnTo(const RowPlace& place) {
  const CellStore::Row row = table_.RowAt(place.group, place.row);
  const std::string_view leading =
      areLeading_ ? row.LeadingText(parts_.size()) : std::string_view();
  const std::size_t same = hasRow_ ? CountSameParts(row, leading) : 0;
  if (hasRow_ && same == parts_.size()) return false;
  hasRow_ = true;
  place_ = place;
  leading_ = leading;
  partsRead_ = std::min(partsRead_, same);
  partsInText_ = std::min(partsInText_, same);
  return true;
}

std::size_t KeyReader::CountSameParts(const CellStore::Row& row, std::string_view leading) {
  if (!leading.empty() && !leading_.empty()) {
    const std::size_t same = SameLength(leading, leading_);
    const bool isSame = same == leading.size() && same == leading_.size();
    return isSame ? parts_.size() : row.LeadingCount(parts_.size(), same);
  }
  ReadParts();
  std::size_t same = 0;
  while (same < parts_.size() && SameText(PartValue(row, parts_[same]), read_[same].value))
    ++same;
  return same;
}

void KeyReader::ReadParts() {
  if (partsRead_ == parts_.size()) return;
  const CellStore::Row row = table_.RowAt(place_.group, place_.row);
  for (; partsRead_ < parts_.size(); ++partsRead_)
    read_[partsRead_].value = PartValue(row, parts_[partsRead_]);
}

std::string_view KeyReader::Text() {
  ReadParts();
  if (partsInText_ < parts_.size())
    text_.resize(partsInText_ == 0 ? 0 : read_[partsInText_ - 1].textEnd);
  for (; partsInText_ < parts_.size(); ++partsInText_) {
    if (partsInText_ != 0) text_ += ',';
    PartRead& part = read_[partsInText_];
    AppendComparable(text_, parts_[partsInText_], part.value);
    part.textEnd = text_.size();
  }
  return text_;
}

bool KeyReader::HasValue() {
  // No value of a regular line begins with a blank: what is more than its quote is a value.
  if (!leading_.empty() && leading_.front() != '"') return true;
  ReadParts();
  return std::any_of(read_.begin(), read_.end(),
                     [](const PartRead& part) { return !part.value.empty(); });
}

bool KeyReader::HasValuesOf(const RowPlace& place, std::span<const KeyPart> parts) {
  const CellStore::Row row = table_.RowAt(place.group, place.row);
  if (!leading_.empty() && AreLeadingColumns(parts) &&
      SameText(row.LeadingText(parts.size()), leading_)) {
    return true;
  }
  ReadParts();
  return std::equal(parts.begin(), parts.end(), read_.begin(), read_.end(),
                    [&row](const KeyPart& part, const PartRead& read) {
                      return SameText(PartValue(row, part), read.value);
                    });
}

}  // namespace quorvane
