#include "findings/text_order.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quorvane {
namespace {

/// So many bytes of each text are compared at a time, as one number.
constexpr std::size_t ChunkSize = sizeof(std::uint64_t);

struct Entry {
  std::uint64_t chunk = 0;
  std::uint32_t index = 0;
};

/// Some bytes as a number that sorts as they do.
std::uint64_t NumberOf(const char* bytes) {
  std::uint64_t number = 0;
  for (std::size_t index = 0; index < ChunkSize; ++index)
    number = number << 8U | static_cast<unsigned char>(bytes[index]);
  return number;
}

/// The chunk of a text that begins at an offset; 0 stands for every byte behind its end.
std::uint64_t ChunkOf(std::string_view text, std::size_t offset) {
  if (offset >= text.size()) return 0;
  text.remove_prefix(offset);
  if (text.size() >= ChunkSize) return NumberOf(text.data());
  std::array<char, ChunkSize> padded{};
  std::copy(text.begin(), text.end(), padded.begin());
  return NumberOf(padded.data());
}

class TextSorter {
 public:
  TextSorter(std::span<const std::string_view> texts, SortDirection direction)
      : texts_(texts), turned_(direction == SortDirection::Descending ? ~std::uint64_t{0} : 0) {}

  std::vector<std::uint32_t> Order() {
    entries_.resize(texts_.size());
    for (std::size_t index = 0; index < entries_.size(); ++index)
      entries_[index].index = static_cast<std::uint32_t>(index);
    // A list instead of recursion: equal texts of any length are told apart chunk by chunk.
    waiting_.push_back({0, entries_.size(), 0});
    while (!waiting_.empty()) {
      const Run run = waiting_.back();
      waiting_.pop_back();
      SortRun(run);
    }
    std::vector<std::uint32_t> order;
    order.reserve(entries_.size());
    for (const Entry& entry : entries_)
      order.push_back(entry.index);
    return order;
  }

 private:
  /// Entries whose texts are the same up to an offset; they stand in the order of their indices.
  struct Run {
    std::size_t first;
    std::size_t end;
    std::size_t offset;
  };

  void SortRun(const Run& run) {
    const auto begin = entries_.begin() + static_cast<std::ptrdiff_t>(run.first);
    const auto end = entries_.begin() + static_cast<std::ptrdiff_t>(run.end);
    for (auto entry = begin; entry != end; ++entry)
      entry->chunk = ChunkOf(texts_[entry->index], run.offset) ^ turned_;
    const auto isBefore = [](const Entry& left, const Entry& right) {
      return left.chunk != right.chunk ? left.chunk < right.chunk : left.index < right.index;
    };
    if (!std::is_sorted(begin, end, isBefore)) std::sort(begin, end, isBefore);
    AddRunsOfEqualChunks(run);
  }

  void AddRunsOfEqualChunks(const Run& run) {
    const std::size_t offset = run.offset + ChunkSize;
    std::size_t first = run.first;
    while (first < run.end) {
      std::size_t end = first;
      bool goesOn = false;
      for (; end < run.end && entries_[end].chunk == entries_[first].chunk; ++end)
        goesOn = goesOn || texts_[entries_[end].index].size() > offset;
      if (goesOn && end - first > 1) waiting_.push_back({first, end, offset});
      first = end;
    }
  }

  std::span<const std::string_view> texts_;
  std::uint64_t turned_;  // all bits when the order is turned
  std::vector<Entry> entries_;
  std::vector<Run> waiting_;
};

}  // namespace

std::vector<std::uint32_t> TextOrder(std::span<const std::string_view> texts,
                                     SortDirection direction) {
  return TextSorter(texts, direction).Order();
}

}  // namespace quorvane
