#include "text/id_list.h"

#include <algorithm>
#include <bit>
#include <functional>

namespace quorvane {
namespace {

constexpr std::uint64_t RoomPerRow = 30;
constexpr char Separator = '\t';

}  // namespace

IdList::IdList(std::int32_t rowCount)
    : roomLeft_(RoomPerRow * static_cast<std::uint64_t>(rowCount)),
      slots_(std::bit_ceil(2 * static_cast<std::size_t>(rowCount) + 2)) {}

bool IdList::IsRepeated(std::string_view value) {
  const bool isKnown = !SlotOf(value).empty();
  if (!isKnown && roomLeft_ > 0) Store(value);
  return isKnown;
}

void IdList::Store(std::string_view value) {
  const std::uint64_t taken = value.size() + 1;
  value = value.substr(0, roomLeft_);
  roomLeft_ -= std::min(taken, roomLeft_);
  std::size_t start = 0;
  for (std::size_t end = value.find(Separator); end != std::string_view::npos;
       end = value.find(Separator, start)) {
    AddEntry(value.substr(start, end - start));
    start = end + 1;
  }
  AddEntry(value.substr(start));
}

void IdList::AddEntry(std::string_view entry) {
  if (entry.empty()) return;  // nobody asks for it
  std::string_view& slot = SlotOf(entry);
  if (!slot.empty()) return;
  slot = entry;
  ++entryCount_;
  if (2 * entryCount_ > slots_.size()) Grow();
}

void IdList::Grow() {
  std::vector<std::string_view> entries(2 * slots_.size());
  entries.swap(slots_);
  for (const std::string_view entry : entries) {
    if (!entry.empty()) SlotOf(entry) = entry;
  }
}

std::string_view& IdList::SlotOf(std::string_view entry) {
  const std::size_t mask = slots_.size() - 1;
  std::size_t at = std::hash<std::string_view>{}(entry)&mask;
  while (!slots_[at].empty() && slots_[at] != entry)
    at = (at + 1) & mask;
  return slots_[at];
}

}  // namespace quorvane
