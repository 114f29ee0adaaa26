#include "report/string_build.h"

#include <algorithm>

namespace quorvane {

void CStringBuild::StringInit(std::size_t initialSize, std::size_t growth, bool skipEmpty,
                              bool unique) {
  growth_ = std::max<std::size_t>(growth, 1000);
  skipEmpty_ = skipEmpty;
  unique_ = unique;
  text_ = {};
  seen_ = {};
  ends_ = {};
  ends_.reserve(std::max(initialSize, growth_));
}

void CStringBuild::StringAdd(std::string_view piece) {
  if (skipEmpty_ && piece.empty()) return;
  if (unique_ && !seen_.emplace(piece).second) return;
  // Growing by a fixed step alone would copy all earlier pieces again and again.
  if (ends_.size() == ends_.capacity()) {
    ends_.reserve(ends_.size() + std::max(growth_, ends_.size()));
  }
  text_.append(piece);
  ends_.push_back(text_.size());
}

std::string_view CStringBuild::Piece(std::size_t index) const {
  const std::size_t start = index == 0 ? 0 : ends_[index - 1];
  return std::string_view(text_).substr(start, ends_[index] - start);
}

std::string CStringBuild::StringValue(std::string_view delimiter) const {
  std::string joined;
  if (ends_.empty()) return joined;
  joined.reserve(text_.size() + delimiter.size() * (ends_.size() - 1));
  for (std::size_t index = 0; index < ends_.size(); ++index) {
    if (index > 0) joined.append(delimiter);
    joined.append(Piece(index));
  }
  return joined;
}

}  // namespace quorvane
