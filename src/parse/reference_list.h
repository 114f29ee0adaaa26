#pragma once

#include <cstddef>
#include <deque>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "text/same_text.h"
#include "text/text_table.h"

namespace quorvane {

/// The names that a group of the file lists (its types, units, codes, file sets), each with a mark
/// whether anything in the data uses it. Names are compared exactly. A name that is listed twice is
/// two entries, of which only the first is ever marked.
///
/// Looking a name up allocates nothing and does not depend on the length of the list: it happens
/// for every value of a column.
class ReferenceList {
 public:
  ReferenceList() = default;
  // Moving keeps the names in their places, copying would not.
  ReferenceList(const ReferenceList&) = delete;
  ReferenceList& operator=(const ReferenceList&) = delete;
  ReferenceList(ReferenceList&&) = default;
  ReferenceList& operator=(ReferenceList&&) = default;
  ~ReferenceList() = default;

  void Add(std::string_view name) {
    names_.emplace_back(name);
    isUsed_.push_back(false);
    first_.TryEmplace(names_.back(), names_.size() - 1);
  }

  bool IsEmpty() const { return names_.empty(); }

  bool Contains(std::string_view name) const { return first_.Contains(name); }

  /// Marks the first entry of a name; false when the name is not listed.
  bool MarkUsed(std::string_view name) {
    if (lastMarked_ != NoEntry && SameText(names_[lastMarked_], name)) return true;
    const std::size_t* found = first_.Find(name);
    if (found == nullptr) return false;
    isUsed_[*found] = true;
    lastMarked_ = *found;
    return true;
  }

  /// The names never marked, in list order.
  std::vector<std::string> Unused() const {
    std::vector<std::string> unused;
    for (std::size_t index = 0; index < names_.size(); ++index) {
      if (!isUsed_[index]) unused.push_back(names_[index]);
    }
    return unused;
  }

 private:
  static constexpr std::size_t NoEntry = std::numeric_limits<std::size_t>::max();

  std::deque<std::string> names_;  // a deque: they must not move
  std::vector<bool> isUsed_;
  TextTable<std::size_t> first_;      // by views of the names
  std::size_t lastMarked_ = NoEntry;  // the rows of a column mostly repeat the value before
};

}  // namespace quorvane
