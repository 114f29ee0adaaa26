#include "report/string_build.h"

#include <algorithm>

namespace quorvane {
namespace {

/// Blocks double in size between these, so that a builder takes about as much memory as it needs.
constexpr std::size_t SmallestBlock = std::size_t{4} << 10U;
constexpr std::size_t LargestBlock = std::size_t{2} << 20U;

}  // namespace

void CStringBuild::StringInit(std::size_t initialSize, std::size_t growth, bool skipEmpty,
                              bool unique) {
  growth_ = std::max<std::size_t>(growth, 1000);
  skipEmpty_ = skipEmpty;
  unique_ = unique;
  blocks_.clear();
  seen_ = {};
  pieces_ = {};
  pieces_.reserve(std::max(initialSize, growth_));
}

char* CStringBuild::RoomFor(std::size_t length) {
  if (blocks_.empty() || blocks_.back().capacity - blocks_.back().size < length) {
    const std::size_t next = blocks_.empty() ? SmallestBlock : 2 * blocks_.back().capacity;
    const std::size_t capacity = std::max(length, std::min(next, LargestBlock));
    blocks_.push_back({MakeLargeBlock<char>(capacity), 0, capacity});
  }
  return blocks_.back().bytes.get() + blocks_.back().size;
}

void CStringBuild::StringAdd(std::string_view piece) {
  if (skipEmpty_ && piece.empty()) return;
  if (unique_ && !seen_.emplace(piece).second) return;
  // Growing by a fixed step alone would move all earlier pieces again and again.
  if (pieces_.size() == pieces_.capacity()) {
    pieces_.reserve(pieces_.size() + std::max(growth_, pieces_.size()));
  }
  char* const start = RoomFor(piece.size());
  std::copy(piece.begin(), piece.end(), start);
  blocks_.back().size += piece.size();
  pieces_.emplace_back(start, piece.size());
}

void CStringBuild::ListText(std::vector<std::string_view>& parts) const {
  for (const Block& block : blocks_)
    parts.emplace_back(block.bytes.get(), block.size);
}

std::string CStringBuild::StringValue(std::string_view delimiter) const {
  std::string joined;
  if (pieces_.empty()) return joined;
  std::size_t length = delimiter.size() * (pieces_.size() - 1);
  for (const Block& block : blocks_)
    length += block.size;
  joined.reserve(length);
  for (std::size_t index = 0; index < pieces_.size(); ++index) {
    if (index > 0) joined.append(delimiter);
    joined.append(pieces_[index]);
  }
  return joined;
}

}  // namespace quorvane
