#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "text/comma_list.h"
#include "text/text.h"

namespace quorvane {

/// The codes that the ABBR group lists under one heading, each with a mark whether the data use it.
/// Codes are in upper case; a code may hold anything, even the concatenator.
///
/// A value uses a code when concatenator + code + concatenator is contained in concatenator + value
/// + concatenator, taken as text, or when the same holds with a blank on either side of code and
/// value. The value is not searched for each code: where such texts can begin and end in it is
/// found once, and what lies between is looked up. Marking a value therefore costs its length, and
/// that times the number of different counts of concatenators inside codes when there are such.
class AbbreviationCodes {
 public:
  /// The concatenator is not empty.
  explicit AbbreviationCodes(std::string concatenator) : concatenator_(std::move(concatenator)) {}

  /// Adds a code that is not empty; false when it is there already.
  bool Add(std::string_view code);

  bool Contains(std::string_view code) const { return isUsed_.contains(code); }

  /// Marks every code that a value, in upper case, uses.
  void MarkUsed(std::string_view value);

  bool IsUsed(std::string_view code) const;

 private:
  struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const {
      return std::hash<std::string_view>{}(text);
    }
  };

  /// For each count of concatenators that begin inside an enclosed code, the lengths of such codes.
  using LengthsByInnerCount = std::map<std::size_t, std::unordered_set<std::size_t>>;

  /// Puts concatenator + padding + text + padding + concatenator into enclosed_ and finds the
  /// places in it where a concatenator begins, overlapping ones too.
  void Enclose(std::string_view text, std::string_view padding);
  void NoteShape(std::string_view code, std::string_view padding, LengthsByInnerCount& shapes);
  void MarkEnclosed(std::string_view value, std::string_view padding,
                    const LengthsByInnerCount& shapes);
  void Mark(std::string_view code);

  std::string concatenator_;
  std::unordered_map<std::string, bool, TextHash, std::equal_to<>> isUsed_;
  std::size_t unusedCount_ = 0;
  LengthsByInnerCount plainShapes_;
  LengthsByInnerCount paddedShapes_;
  // Kept between calls so that a value needs no allocation:
  std::string enclosed_;
  std::vector<std::size_t> concatenators_;
};

/// Calls Use for each piece of a value, in upper case, between concatenators: trimmed, the empty
/// ones left out.
template <typename Use>
void ForEachCode(std::string_view value, std::string_view concatenator, Use&& use) {
  const std::string_view list = Trim(value);
  for (std::size_t position = 1; position != 0;) {
    const std::string_view piece = Trim(TakeToken(position, list, concatenator));
    if (!piece.empty()) use(piece);
  }
}

}  // namespace quorvane
