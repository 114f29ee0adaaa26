#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "rules/key_text.h"

namespace quorvane {

/// Rows that follow each other, both ends included.
struct RowRun {
  std::int32_t first = 0;
  std::int32_t last = 0;

  std::size_t Count() const { return static_cast<std::size_t>(last - first) + 1; }
};

/// Rows among which two may have the same key.
struct OpenRun {
  RowRun rows;
  /// The rows are known to have the same text in so many first parts of their key, and no value of
  /// it has a comma or ends with a blank; 0 when nothing is known.
  std::size_t sharedParts = 0;
};

/// Tells of rows that follow each other and share the first part of their key where they go on in
/// one order, upwards or downwards in each other part: their keys differ there, without a search
/// for equal ones. Most holes are written in such an order; where the order ends in the last parts
/// only, as with the readings of one time or the substances of one test, only the rows that share
/// all parts before are left to be looked at.
class KeyOrder {
 public:
  /// The table and the parts must outlive the object.
  KeyOrder(const GroupTable& table, std::span<const KeyPart> parts);

  /// Begins with the first row of some.
  void Begin(const RowPlace& place);

  /// Takes the next row and returns how many first parts it shares with the one before. When it is
  /// not plain to see that it shares any, the result is 0 and nothing is taken.
  std::size_t Take(const RowPlace& place);

  /// Takes a row that shares the first part though this was not plain to see. No order is known of
  /// the rows then.
  void TakeUnseen(const RowPlace& place);

  /// Ends the rows: the runs of those that are left to be looked at, in their order, until the next
  /// beginning.
  const std::vector<OpenRun>& End();

 private:
  enum class Direction : std::int8_t { Unknown, Up, Down };

  /// What is known of a part, among the rows that share all parts before it.
  struct Level {
    std::int32_t firstRow = 0;  // of those rows
    Direction direction = Direction::Unknown;
  };

  Direction StepTo(std::string_view text, std::size_t offset, bool isNumeric) const;
  void TakeAt(std::size_t level, Direction step, std::int32_t row);
  void Open(std::size_t level);
  void CloseOpenRun();

  const GroupTable* table_;
  std::span<const KeyPart> parts_;
  bool isUsable_;
  std::vector<Level> levels_;  // of each part, and one of rows that share all parts
  std::string_view leading_;   // of the row before; empty when it cannot be compared
  std::int32_t lastRow_ = 0;
  std::size_t openLevel_ = 0;  // the rows that share so many parts have no order; 0 for none
  std::vector<OpenRun> openRuns_;
  bool isUnordered_ = false;
};

}  // namespace quorvane
