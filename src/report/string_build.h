#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "text/large_block.h"

namespace quorvane {

/// Append-only text builder: collects pieces and joins them once. The pieces lie one behind the
/// other in blocks that never move: thousands of findings cost no allocation each, and none is
/// copied again when more come.
class CStringBuild {
 public:
  /// Empties the builder and sets how it takes pieces. The growth is never below 1000 and the
  /// initial size never below the growth; both count pieces. With skipEmpty, empty pieces are not
  /// added; with unique, neither is a piece equal to an earlier one.
  void StringInit(std::size_t initialSize, std::size_t growth, bool skipEmpty, bool unique);

  void StringAdd(std::string_view piece);

  /// The pieces joined with the delimiter; an empty text when nothing was added.
  std::string StringValue(std::string_view delimiter) const;

  std::size_t PieceCount() const { return pieces_.size(); }

  /// One piece, counted from 0, as a view that the next StringInit or the builder's end ends.
  std::string_view Piece(std::size_t index) const { return pieces_[index]; }

  /// Adds all pieces to a list, one behind the other, as few long views that last as long.
  void ListText(std::vector<std::string_view>& parts) const;

 private:
  struct Block {
    LargeBlock<char> bytes;
    std::size_t size = 0;
    std::size_t capacity = 0;
  };

  /// Room for a piece in the last block.
  char* RoomFor(std::size_t length);

  std::vector<Block> blocks_;
  LargeVector<std::string_view> pieces_;
  std::size_t growth_ = 1000;
  bool skipEmpty_ = false;
  bool unique_ = false;
  std::unordered_set<std::string> seen_;
};

}  // namespace quorvane
