#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace quorvane {

/// Append-only text builder: collects pieces and joins them once. The pieces lie one behind the
/// other in a single text, so that thousands of findings cost no allocation each.
class CStringBuild {
 public:
  /// Empties the builder and sets how it takes pieces. The growth is never below 1000 and the
  /// initial size never below the growth; both count pieces. With skipEmpty, empty pieces are not
  /// added; with unique, neither is a piece equal to an earlier one.
  void StringInit(std::size_t initialSize, std::size_t growth, bool skipEmpty, bool unique);

  void StringAdd(std::string_view piece);

  /// The pieces joined with the delimiter; an empty text when nothing was added.
  std::string StringValue(std::string_view delimiter) const;

  std::size_t PieceCount() const { return ends_.size(); }

  /// One piece, counted from 0, as a view that the next StringAdd or StringInit ends.
  std::string_view Piece(std::size_t index) const;

 private:
  std::string text_;
  std::vector<std::size_t> ends_;
  std::size_t growth_ = 1000;
  bool skipEmpty_ = false;
  bool unique_ = false;
  std::unordered_set<std::string> seen_;
};

}  // namespace quorvane
