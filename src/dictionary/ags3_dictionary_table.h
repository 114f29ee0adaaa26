#pragma once

#include <span>
#include <string_view>

namespace quorvane {

/// One group of the AGS 3.1 data dictionary as the program carries it. The texts are literals: they
/// live as long as the program, and none holds the "!" that separates the items of a dictionary
/// stream.
struct Ags3DictionaryRow {
  /// Group name; the groups that edition 3.1 added begin with "?" ("?MONP"), and so do all their
  /// headings.
  std::string_view Group;

  /// Parent group (empty at the top), number of leading headings that form the key, and the 1-based
  /// positions, separated by "|", of the key headings that hold numbers (may be empty). There are
  /// always three comma-separated fields: "SAMP,7,2|6", "HOLE,1,", ",2,".
  std::string_view KeyItem;

  /// The headings in dictionary order, comma-separated.
  std::string_view Headings;

  /// As many comma-separated entries as there are headings: "-1" for a heading that carries a unit,
  /// "0" for any other.
  std::string_view NumericFlags;
};

/// The 73 groups in dictionary order: ABBR to WSTK by name, then the eight "?" groups.
std::span<const Ags3DictionaryRow> Ags3DictionaryRows();

}  // namespace quorvane
