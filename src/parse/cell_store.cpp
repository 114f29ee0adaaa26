#include "parse/cell_store.h"

#include <algorithm>
#include <functional>
#include <stdexcept>

#include "parse/field_scan.h"

namespace quorvane {

std::uint32_t* CellStore::RoomFor(std::size_t cells) {
  const std::uint64_t capacity = std::uint64_t{chunks_.size()} << ChunkBits;
  const std::uint64_t used = nextCell_ & (ChunkSize - 1);
  if (nextCell_ + cells > capacity || (used != 0 && used + cells > ChunkSize)) {
    nextCell_ = capacity;
    const std::size_t chunkCount = (cells + ChunkSize - 1) >> ChunkBits;
    if ((capacity >> 32U) != 0) throw std::length_error("more cells than the table can address");
    pieces_.push_back(std::make_unique_for_overwrite<std::uint32_t[]>(chunkCount << ChunkBits));
    for (std::size_t chunk = 0; chunk < chunkCount; ++chunk) {
      chunks_.push_back(pieces_.back().get() + (chunk << ChunkBits));
    }
  }
  return chunks_[nextCell_ >> ChunkBits] + (nextCell_ & (ChunkSize - 1));
}

void CellStore::AddRecord(std::int32_t lineNumber, bool isCopied, std::size_t cellCount,
                          std::size_t used) {
  rows_.push_back({static_cast<std::uint32_t>(nextCell_),
                   static_cast<std::uint32_t>(lineNumber) & ~OwnTextFlag,
                   static_cast<std::uint32_t>(isCopied), static_cast<std::uint32_t>(cellCount)});
  nextCell_ += used;
}

std::size_t CellStore::AddRegularRow(std::int32_t lineNumber, std::string_view line,
                                     std::size_t mostCells) {
  std::uint32_t* cells = RoomFor(MostFieldOffsets(line.size()));
  const std::size_t fieldCount = ScanRegularFields(line, cells);
  if (fieldCount == 0) return 0;
  const std::size_t kept = std::min(fieldCount, mostCells);
  const auto lineStart = static_cast<std::uint32_t>(line.data() - fileText_.data());
  for (std::size_t cell = 0; cell <= kept; ++cell) cells[cell] += lineStart;
  AddRecord(lineNumber, false, kept, kept + 1);
  return fieldCount;
}

bool CellStore::LiesInFile(std::string_view value) const {
  const std::less<const char*> isBefore;
  const char* begin = fileText_.data();
  return !value.empty() && !isBefore(value.data(), begin) &&
         isBefore(value.data(), begin + fileText_.size());
}

std::uint32_t CellStore::StartOf(std::string_view value) {
  if (LiesInFile(value)) return static_cast<std::uint32_t>(value.data() - fileText_.data());
  const std::size_t start = ownText_.size();
  if (start + value.size() >= OwnTextFlag) throw std::length_error("too much continued text");
  ownText_.append(value);
  return static_cast<std::uint32_t>(start) | OwnTextFlag;
}

void CellStore::AddRow(std::int32_t lineNumber, const std::vector<std::string_view>& values) {
  std::uint32_t* cells = RoomFor(2 * values.size());
  for (const std::string_view value : values) {
    *cells++ = StartOf(value);
    *cells++ = static_cast<std::uint32_t>(value.size());
  }
  AddRecord(lineNumber, true, values.size(), 2 * values.size());
}

// The room of its cells stays taken: going back could lead into an earlier piece of memory.
void CellStore::RemoveLastRow() { rows_.pop_back(); }

}  // namespace quorvane
