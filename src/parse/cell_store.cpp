#include "parse/cell_store.h"

#include <algorithm>
#include <stdexcept>

namespace quorvane {

FieldOffset* CellStore::RoomFor(std::size_t offsets) {
  const std::uint64_t left = (std::uint64_t{chunks_.size()} << ChunkBits) - nextOffset_;
  if (offsets > left) {
    nextOffset_ += left;
    if ((nextOffset_ >> 32U) != 0) throw std::length_error("more cells than a file can have");
    chunks_.push_back(MakeLargeBlock<FieldOffset>(ChunkSize));
  }
  return chunks_.back().get() + (nextOffset_ & (ChunkSize - 1));
}

std::size_t CellStore::AddRegularRow(std::int32_t lineNumber, std::string_view line,
                                     std::size_t mostCells) {
  if (line.size() > LongestRegularLine) return 0;
  const std::size_t fieldCount = ScanRegularFields(line, RoomFor(MostFieldOffsets(line.size())));
  if (fieldCount == 0) return 0;
  const std::size_t kept = std::min(fieldCount, mostCells);
  rows_.push_back({static_cast<std::uint32_t>(lineNumber) & ~OwnTextFlag, 1,
                   static_cast<std::uint32_t>(line.data() - fileText_.data()),
                   static_cast<std::uint32_t>(nextOffset_), static_cast<std::uint32_t>(kept)});
  nextOffset_ += kept + 1;
  return fieldCount;
}

std::uint32_t CellStore::StartOf(std::string_view value) {
  if (LiesInFile(value)) return static_cast<std::uint32_t>(OffsetInFile(value));
  const std::size_t start = ownText_.size();
  if (start + value.size() >= OwnTextFlag) throw std::length_error("too much continued text");
  ownText_.append(value);
  return static_cast<std::uint32_t>(start) | OwnTextFlag;
}

void CellStore::AddRow(std::int32_t lineNumber, const std::vector<std::string_view>& values) {
  const std::size_t firstCell = spans_.size();
  rows_.push_back({static_cast<std::uint32_t>(lineNumber) & ~OwnTextFlag, 0, 0,
                   static_cast<std::uint32_t>(firstCell),
                   static_cast<std::uint32_t>(values.size())});
  spans_.resize(firstCell + values.size());
  Span* span = spans_.data() + firstCell;
  for (const std::string_view value : values)
    *span++ = {StartOf(value), static_cast<std::uint32_t>(value.size())};
}

void CellStore::RemoveLastRow() {
  const RowRecord& last = rows_.back();
  if (!last.isRegular) spans_.resize(last.firstCell);
  rows_.pop_back();
}

}  // namespace quorvane
