#include "text/id_list.h"

#include <algorithm>

namespace quorvane {
namespace {

constexpr std::uint64_t RoomPerRow = 30;
constexpr char Separator = '\t';

}  // namespace

IdList::IdList(std::int32_t rowCount)
    : roomLeft_(RoomPerRow * static_cast<std::uint64_t>(rowCount)),
      entries_(static_cast<std::size_t>(rowCount)) {}

bool IdList::IsRepeated(std::string_view value) {
  const bool isKnown = entries_.Contains(value);
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
  if (!entry.empty()) entries_.TryEmplace(entry, {});  // nobody asks for an empty one
}

}  // namespace quorvane
