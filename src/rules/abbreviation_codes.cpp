#include "rules/abbreviation_codes.h"

namespace quorvane {
namespace {

constexpr std::string_view NoPadding;
constexpr std::string_view BlankPadding = " ";

}  // namespace

bool AbbreviationCodes::Add(std::string_view code) {
  if (!isUsed_.try_emplace(std::string(code), false).second) return false;
  ++unusedCount_;
  NoteShape(code, NoPadding, plainShapes_);
  NoteShape(code, BlankPadding, paddedShapes_);
  return true;
}

bool AbbreviationCodes::IsUsed(std::string_view code) const {
  const auto found = isUsed_.find(code);
  return found != isUsed_.end() && found->second;
}

void AbbreviationCodes::MarkUsed(std::string_view value) {
  if (unusedCount_ == 0) return;
  MarkEnclosed(value, NoPadding, plainShapes_);
  MarkEnclosed(value, BlankPadding, paddedShapes_);
}

void AbbreviationCodes::Enclose(std::string_view text, std::string_view padding) {
  enclosed_.assign(concatenator_).append(padding).append(text).append(padding);
  enclosed_.append(concatenator_);
  concatenators_.clear();
  for (std::size_t found = 0; found != std::string::npos;
       found = enclosed_.find(concatenator_, found + 1)) {
    concatenators_.push_back(found);
  }
}

void AbbreviationCodes::NoteShape(std::string_view code, std::string_view padding,
                                  LengthsByInnerCount& shapes) {
  Enclose(code, padding);
  // All but the two at the ends: the first and, as nothing can begin behind it, the last.
  shapes[concatenators_.size() - 2].insert(code.size());
}

/// An enclosed code can be contained in the enclosed value only from one concatenator to another,
/// and then as many concatenators begin between these two as begin inside the enclosed code.
void AbbreviationCodes::MarkEnclosed(std::string_view value, std::string_view padding,
                                     const LengthsByInnerCount& shapes) {
  Enclose(value, padding);
  const std::string_view enclosed = enclosed_;
  for (const auto& [innerCount, lengths] : shapes) {
    for (std::size_t first = 0; first + innerCount + 1 < concatenators_.size(); ++first) {
      const std::size_t start = concatenators_[first] + concatenator_.size();
      const std::size_t end = concatenators_[first + innerCount + 1];
      if (end <= start + 2 * padding.size()) continue;  // no room for a code
      const std::string_view padded = enclosed.substr(start, end - start);
      if (!padded.starts_with(padding) || !padded.ends_with(padding)) continue;
      const std::string_view code =
          padded.substr(padding.size(), padded.size() - 2 * padding.size());
      if (lengths.contains(code.size())) Mark(code);
    }
  }
}

void AbbreviationCodes::Mark(std::string_view code) {
  const auto found = isUsed_.find(code);
  if (found == isUsed_.end() || found->second) return;
  found->second = true;
  --unusedCount_;
}

}  // namespace quorvane
