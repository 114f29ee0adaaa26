#pragma once

#include <bit>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "text/large_block.h"
#include "text/text_hash.h"

namespace quorvane {

/// A data row of the group table.
struct RowPlace {
  int group = 0;
  std::int32_t row = 0;

  friend bool operator==(const RowPlace&, const RowPlace&) = default;
};

/// Finds rows by a text that is made from them, such as their key text. The texts themselves are
/// not kept: the index asks for a row's text again when two hashes agree.
///
/// TextOf is called with a RowPlace and a std::string& whose content it replaces by the row's text;
/// it must give the same text for a row as long as the index lives.
template <typename TextOf>
class RowTextIndex {
 public:
  RowTextIndex(std::size_t rowCount, TextOf textOf) : textOf_(std::move(textOf)) {
    Clear(rowCount);
  }

  /// Forgets all rows and makes room for others.
  void Clear(std::size_t rowCount) {
    slots_.assign(std::bit_ceil(2 * rowCount + 2), 0);
    entries_.clear();
    entries_.reserve(rowCount);
  }

  /// Adds a row unless an earlier one has the same text: that one is then returned.
  std::optional<RowPlace> Insert(const RowPlace& place) {
    textOf_(place, insertedText_);
    return Insert(place, insertedText_);
  }

  /// The same for a row whose text is known.
  std::optional<RowPlace> Insert(const RowPlace& place, std::string_view text) {
    const std::uint64_t hash = HashText(text);
    std::uint32_t& slot = SlotOf(hash, text);
    if (slot != 0) return entries_[slot - 1].place;
    entries_.push_back({hash, place});
    slot = static_cast<std::uint32_t>(entries_.size());
    return std::nullopt;
  }

  /// The first row that was added with this text.
  std::optional<RowPlace> Find(std::string_view text) {
    const std::uint32_t slot = SlotOf(HashText(text), text);
    if (slot == 0) return std::nullopt;
    return entries_[slot - 1].place;
  }

 private:
  struct Entry {
    std::uint64_t hash;
    RowPlace place;
  };

  /// The slot of the entry with this text, or the empty slot where it would stand.
  std::uint32_t& SlotOf(std::uint64_t hash, std::string_view text) {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = hash & mask;
    while (slots_[at] != 0 && !IsEntry(slots_[at] - 1, hash, text))
      at = (at + 1) & mask;
    return slots_[at];
  }

  bool IsEntry(std::uint32_t index, std::uint64_t hash, std::string_view text) {
    if (entries_[index].hash != hash) return false;
    textOf_(entries_[index].place, comparedText_);
    return comparedText_ == text;
  }

  TextOf textOf_;
  LargeVector<Entry> entries_;
  LargeVector<std::uint32_t> slots_;  // index into entries_ plus 1; 0 for an empty slot
  std::string insertedText_;
  std::string comparedText_;
};

}  // namespace quorvane
