#include "findings/text_store.h"

#include <algorithm>

namespace quorvane {

std::string_view TextStore::Keep(std::string_view text) {
  if (text.empty()) return {};
  if (text.size() > room_) {
    room_ = std::max(text.size(), BlockSize);
    blocks_.push_back(std::make_unique_for_overwrite<char[]>(room_));
    free_ = blocks_.back().get();
  }
  std::copy(text.begin(), text.end(), free_);
  const std::string_view kept(free_, text.size());
  free_ += text.size();
  room_ -= text.size();
  return kept;
}

}  // namespace quorvane
