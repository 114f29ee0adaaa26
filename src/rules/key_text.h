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

/// Whether the parts are the first columns of their group, in their order: so they are in nearly
/// all files, and the rows can be compared without a look at the single values.
bool AreLeadingColumns(std::span<const KeyPart> parts);

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

/// Reads the keys of rows, one row after the other, and makes their texts in the form in which they
/// are compared. Rows that follow each other mostly share the first parts of their key, so only
/// what changes is made anew, and the text only when it is asked for.
class KeyReader {
 public:
  /// The table and the parts must outlive the object.
  KeyReader(const GroupTable& table, std::span<const KeyPart> parts);

  /// Turns to a row, of any group that has the parts. Returns false when its values are those of
  /// the row before; those of the first row never are.
  bool TurnTo(const RowPlace& place);

  /// The row's key: valid until the next call.
  std::string_view Text();

  bool HasValue();

  /// Whether a row has these very values in some columns, as many as the key has parts. Keys may be
  /// the same without it, as 1.5 and 1.50 are.
  bool HasValuesOf(const RowPlace& place, std::span<const KeyPart> parts);

 private:
  /// A part as it was read, and the length of the text up to its end.
  struct PartRead {
    std::string_view value;
    std::size_t textEnd = 0;
  };

  /// The number of parts, from the first on, in which a row is plain to see as the row before.
  std::size_t CountSameParts(const CellStore::Row& row, std::string_view leading);
  void ReadParts();

  const GroupTable& table_;
  std::span<const KeyPart> parts_;
  bool areLeading_;  // the parts are the first columns, in their order
  RowPlace place_;
  std::string_view leading_;  // of the row, when it has such a text
  std::vector<PartRead> read_;
  std::size_t partsRead_ = 0;  // the parts up to this one are those of the row
  std::string text_;
  std::size_t partsInText_ = 0;  // the text is made up to this part
  bool hasRow_ = false;
};

}  // namespace quorvane
