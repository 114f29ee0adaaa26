#pragma once

#include <cstddef>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quorvane {

/// The names that a group of the file lists (its types, units, codes, file sets), each with a mark
/// whether anything in the data uses it. Names are compared exactly. A name that is listed twice is
/// two entries, of which only the first is ever marked.
///
/// Looking a name up allocates nothing and does not depend on the length of the list: it happens
/// for every value of a column.
class ReferenceList {
 public:
  void Add(std::string_view name) {
    names_.emplace_back(name);
    isUsed_.push_back(false);
    first_.try_emplace(names_.back(), names_.size() - 1);
  }

  bool IsEmpty() const { return names_.empty(); }

  bool Contains(std::string_view name) const { return first_.contains(name); }

  /// Marks the first entry of a name; false when the name is not listed.
  bool MarkUsed(std::string_view name) {
    if (lastMarked_ != NoEntry && names_[lastMarked_] == name) return true;
    const auto found = first_.find(name);
    if (found == first_.end()) return false;
    isUsed_[found->second] = true;
    lastMarked_ = found->second;
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
  /// Lets a view be looked up without a string being made of it.
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const {
      return std::hash<std::string_view>{}(name);
    }
  };

  static constexpr std::size_t NoEntry = std::numeric_limits<std::size_t>::max();

  std::vector<std::string> names_;
  std::vector<bool> isUsed_;
  std::unordered_map<std::string, std::size_t, Hash, std::equal_to<>> first_;
  std::size_t lastMarked_ = NoEntry;  // the rows of a column mostly repeat the value before
};

}  // namespace quorvane
