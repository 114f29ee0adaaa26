#include "rules/key_text.h"

#include <algorithm>

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
    : table_(table), parts_(parts), read_(parts.size()) {}

bool KeyReader::TurnTo(const RowPlace& place) {
  const CellStore::Row row = table_.RowAt(place.group, place.row);
  std::size_t index = 0;
  if (hasRow_) {
    while (index < parts_.size() && SameText(PartValue(row, parts_[index]), read_[index].value))
      ++index;
    if (index == parts_.size()) return false;
  }
  hasRow_ = true;
  partsInText_ = std::min(partsInText_, index);
  for (; index < parts_.size(); ++index)
    read_[index].value = PartValue(row, parts_[index]);
  return true;
}

std::string_view KeyReader::Text() {
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

bool KeyReader::HasValue() const {
  return std::any_of(read_.begin(), read_.end(),
                     [](const PartRead& part) { return !part.value.empty(); });
}

bool KeyReader::HasValuesOf(const RowPlace& place, std::span<const KeyPart> parts) const {
  const CellStore::Row row = table_.RowAt(place.group, place.row);
  return std::equal(parts.begin(), parts.end(), read_.begin(), read_.end(),
                    [&row](const KeyPart& part, const PartRead& read) {
                      return SameText(PartValue(row, part), read.value);
                    });
}

}  // namespace quorvane
