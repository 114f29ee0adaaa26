#pragma once

#include <cstdint>
#include <string_view>

#include "text/text_table.h"

namespace quorvane {

/// The identifiers of a column that were seen so far. They count as written one behind the other,
/// each with a TAB, into a text of a fixed length, and a value is known when it is one of the
/// entries between the TABs of that text. So a value that holds a TAB is stored as several entries
/// and never found itself; at the end of the text a value is cut, and what is left of it is an
/// entry; behind that nothing is stored.
///
/// The cost of a look-up does not depend on the number of entries. Nothing is allocated as long as
/// no value is stored as several entries.
class IdList {
 public:
  /// The text has room for 30 characters per row.
  explicit IdList(std::int32_t rowCount);

  /// Whether a value that is not empty is an entry; if not, it is stored. The view must outlive the
  /// list.
  bool IsRepeated(std::string_view value);

 private:
  /// Entries have no value.
  struct Nothing {};

  void Store(std::string_view value);
  void AddEntry(std::string_view entry);

  std::uint64_t roomLeft_;
  TextTable<Nothing> entries_;
};

}  // namespace quorvane
