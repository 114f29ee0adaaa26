#include "rules/key_text.h"

#include <algorithm>

#include "text/number.h"
#include "text/same_text.h"
#include "text/text.h"

namespace quorvane {
namespace {

std::string_view PartValue(const GroupTable& table, const RowPlace& place, const KeyPart& part) {
  if (part.column == 0) return {};
  return TrimRight(table.Value(place.group, place.row, part.column));
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
  std::string text;
  for (const KeyPart& part : parts) {
    if (&part != parts.data()) text += ',';
    text += PartValue(table, place, part);
  }
  return text;
}

void MakeComparableKey(const GroupTable& table, const RowPlace& place,
                       std::span<const KeyPart> parts, std::string& text) {
  text.clear();
  for (const KeyPart& part : parts) {
    if (&part != parts.data()) text += ',';
    AppendComparable(text, part, PartValue(table, place, part));
  }
}

KeyTextMaker::KeyTextMaker(const GroupTable& table, std::span<const KeyPart> parts)
    : table_(table), parts_(parts), read_(parts.size()) {}

bool KeyTextMaker::TurnTo(const RowPlace& place) {
  std::size_t index = 0;
  if (hasRow_) {
    while (index < parts_.size() &&
           SameText(PartValue(table_, place, parts_[index]), read_[index].value))
      ++index;
    if (index == parts_.size()) return false;
  }
  hasRow_ = true;
  text_.resize(index == 0 ? 0 : read_[index - 1].textEnd);
  for (; index < parts_.size(); ++index) {
    if (index != 0) text_ += ',';
    const std::string_view value = PartValue(table_, place, parts_[index]);
    AppendComparable(text_, parts_[index], value);
    read_[index] = {value, text_.size()};
  }
  return true;
}

bool KeyTextMaker::HasValue() const {
  return std::any_of(read_.begin(), read_.end(),
                     [](const PartRead& part) { return !part.value.empty(); });
}

}  // namespace quorvane
