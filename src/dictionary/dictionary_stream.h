#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "dictionary/ags_dictionary.h"

namespace quorvane {

/// The lists that hold for a whole dictionary and come beside its groups.
struct DictionaryLists {
  std::vector<std::string> requiredGroups;
  std::vector<std::string> requiredFields;
  std::vector<std::string> pickListHeadings;
  std::vector<std::string> numericHeadings;
  std::vector<std::pair<std::string, std::string>> unitFields;
  std::vector<std::string> referenceGroups;
  std::string locationGroup;
  std::string locationKey;
  /// Entries of comma-separated group names: an owner and the groups that it is attached to.
  std::vector<std::string> relatedGroups;
  std::vector<std::string> secondRelatedGroups;
};

/// The separator of the items in a dictionary stream.
inline constexpr std::string_view StreamSeparator = "!";

/// Reads a dictionary stream: per group its name, its key item (parent, key count and, in AGS 3
/// layout, numeric key positions), its headings, and then either one list of AGS 3 numeric flags or
/// a list of units and a list of types. Throws DictionaryError when the lists of a group do not
/// match.
AgsDictionary ParseDictionaryStream(AgsFormat format, std::string_view stream,
                                    std::string_view separator, const DictionaryLists& lists);

}  // namespace quorvane
