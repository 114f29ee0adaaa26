#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "text/same_text.h"
#include "text/text_hash.h"

namespace quorvane {

/// Values by short texts, as they are asked for once for each cell of a column. The texts are
/// views, which must outlive the table; looking one up allocates nothing. An empty text is as good
/// as any other.
template <typename Value>
class TextTable {
 public:
  /// Makes room for a number of texts; more find theirs all the same.
  explicit TextTable(std::size_t expectedCount = 0)
      : slots_(std::bit_ceil(2 * expectedCount + 2)) {}

  bool Contains(std::string_view text) const { return Find(text) != nullptr; }

  /// The value of a text, until the next one is added; null when the table does not have it.
  const Value* Find(std::string_view text) const {
    const Slot& slot = slots_[SlotOf(text, Fingerprint(text))];
    return slot.fingerprint == 0 ? nullptr : &slot.value;
  }

  /// The value of a text and true when it is new: it is then the given one. The reference ends with
  /// the next call.
  std::pair<Value&, bool> TryEmplace(std::string_view text, Value value) {
    const std::uint32_t fingerprint = Fingerprint(text);
    std::size_t at = SlotOf(text, fingerprint);
    if (slots_[at].fingerprint != 0) return {slots_[at].value, false};
    if (2 * ++count_ > slots_.size()) {
      Grow();
      at = SlotOf(text, fingerprint);
    }
    slots_[at] = {text, fingerprint, std::move(value)};
    return {slots_[at].value, true};
  }

 private:
  struct Slot {
    std::string_view text;
    std::uint32_t fingerprint = 0;  // 0 in an empty slot
    [[no_unique_address]] Value value{};
  };

  /// A part of the text's hash, never 0.
  static std::uint32_t Fingerprint(std::string_view text) {
    return static_cast<std::uint32_t>(HashText(text)) | 1U;
  }

  /// The slot that holds the text, or the empty one where it would stand.
  std::size_t SlotOf(std::string_view text, std::uint32_t fingerprint) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = (fingerprint >> 1U) & mask;
    while (slots_[at].fingerprint != 0 &&
           (slots_[at].fingerprint != fingerprint || !SameText(slots_[at].text, text))) {
      at = (at + 1) & mask;
    }
    return at;
  }

  void Grow() {
    std::vector<Slot> slots(2 * slots_.size());
    slots.swap(slots_);
    for (Slot& slot : slots) {
      if (slot.fingerprint != 0) slots_[SlotOf(slot.text, slot.fingerprint)] = std::move(slot);
    }
  }

  std::vector<Slot> slots_;
  std::size_t count_ = 0;
};

}  // namespace quorvane
