#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "parse/group_table.h"
#include "parse/row_text_index.h"

namespace quorvane {

/// A column whose value is part of a key; 0 for a part that the group does not have.
struct KeyPart {
  int column = 0;
  bool isNumeric = false;
};

/// The parts of a group's own key.
std::vector<KeyPart> KeyPartsOf(const Group& group);

/// The key that a row has over some columns: the values without trailing blanks, joined by commas,
/// as they are written.
std::string KeyAsWritten(const GroupTable& table, const RowPlace& place,
                         std::span<const KeyPart> parts);

/// Puts the key that a row has over some columns, in the form in which keys are compared, into the
/// text: numbers in numeric parts stand in their plain shortest form.
void MakeComparableKey(const GroupTable& table, const RowPlace& place,
                       std::span<const KeyPart> parts, std::string& text);

/// Makes the keys of rows in the form in which they are compared. Rows that follow each other
/// mostly share the first parts of their key, so only what changes is made anew.
class KeyTextMaker {
 public:
  /// The table and the parts must outlive the object.
  KeyTextMaker(const GroupTable& table, std::span<const KeyPart> parts);

  /// Turns to a row, of any group that has the parts. Returns whether its values differ from those
  /// of the row before; those of the first row always do.
  bool TurnTo(const RowPlace& place);

  /// The row's key: valid until the next turn.
  std::string_view Text() const { return text_; }

  bool HasValue() const;

 private:
  /// A part as it was read, and the length of the text up to its end.
  struct PartRead {
    std::string_view value;
    std::size_t textEnd = 0;
  };

  const GroupTable& table_;
  std::span<const KeyPart> parts_;
  std::vector<PartRead> read_;
  std::string text_;
  bool hasRow_ = false;
};

}  // namespace quorvane
