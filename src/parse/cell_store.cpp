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
  rows_.push_back({static_cast<std::uint32_t>(lineNumber) & Lower31Bits, 0,
                   static_cast<std::uint32_t>(line.data() - fileText_.data()),
                   static_cast<std::uint32_t>(nextOffset_),
                   static_cast<std::uint32_t>(kept) & Lower31Bits, 0});
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

/// Adds a row whose values stand in the file near each other, as those of one line do; false when
/// they do not.
bool CellStore::AddRowOfOneLine(std::uint32_t lineNumber,
                                const std::vector<std::string_view>& values) {
  if (values.empty() || values.size() > LongestRegularLine) return false;
  constexpr std::size_t mostDistance = LongestRegularLine - BoundaryLength;
  // Empty values may be views to nowhere.
  const auto isInFile = [this](std::string_view value) {
    return OffsetInFile(value) <= fileText_.size();
  };
  const auto first = std::find_if(values.begin(), values.end(), isInFile);
  const std::size_t lineStart = first == values.end() ? 0 : OffsetInFile(*first);
  FieldOffset* offset = RoomFor(2 * values.size());
  for (const std::string_view value : values) {
    // A value before the first, too, is at a number beyond this distance.
    std::size_t start = OffsetInFile(value) - lineStart;
    const bool isNear = isInFile(value) && start <= mostDistance;
    if (!isNear && !value.empty()) return false;
    if (!isNear) start = 0;
    if (value.size() > mostDistance - start) return false;
    *offset++ = static_cast<FieldOffset>(start);
    *offset++ = static_cast<FieldOffset>(start + value.size() + BoundaryLength);
  }
  rows_.push_back({lineNumber & Lower31Bits, 0, static_cast<std::uint32_t>(lineStart),
                   static_cast<std::uint32_t>(nextOffset_),
                   static_cast<std::uint32_t>(values.size()) & Lower31Bits, 1});
  nextOffset_ += 2 * values.size();
  return true;
}

bool CellStore::BeginsRegularly(const FieldOffset* offset, std::size_t count, const char* line) {
  constexpr std::string_view boundary = "\",\"";
  for (std::size_t value = 0; value < count; ++value) {
    const std::size_t start = offset[2 * value];
    const std::size_t end = offset[2 * value + 1] - BoundaryLength;
    const std::string_view text(line + start, end - start);
    if (text.starts_with(' ') || std::count(text.begin(), text.end(), '"') != 0) return false;
    const bool isLast = value + 1 == count;
    const std::string_view behind(line + end, isLast ? 1 : BoundaryLength);
    if (behind != boundary.substr(0, behind.size())) return false;
    if (!isLast && offset[2 * value + 2] != end + BoundaryLength) return false;
  }
  return true;
}

void CellStore::AddRow(std::int32_t lineNumber, const std::vector<std::string_view>& values) {
  const auto line = static_cast<std::uint32_t>(lineNumber);
  if (AddRowOfOneLine(line, values)) return;
  rows_.push_back({line & Lower31Bits, 1, 0, static_cast<std::uint32_t>(spans_.size()),
                   static_cast<std::uint32_t>(values.size()) & Lower31Bits, 0});
  for (const std::string_view value : values)
    spans_.push_back({StartOf(value), static_cast<std::uint32_t>(value.size())});
}

void CellStore::RemoveLastRow() {
  const RowRecord& last = rows_.back();
  if (last.isInSpans) spans_.resize(last.firstCell);
  rows_.pop_back();
}

}  // namespace quorvane
