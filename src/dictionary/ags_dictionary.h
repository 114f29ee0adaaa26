#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "report/message.h"

namespace quorvane {

/// One group of a data dictionary.
struct DictGroup {
  std::string Name;         // the AGS 3.1 additions keep their leading "?"
  std::string ParentGroup;  // empty for a top-level group
  std::string RelatedGroup;
  std::string SecondRelatedGroup;
  std::int32_t KeyCount = 0;        // leading headings that form the key
  std::int32_t ParentKeyCount = 0;  // KeyCount of the parent group; 0 when there is none
  std::vector<std::string> Headings;
  std::vector<std::string> KeyHeadings;
  /// The key headings that hold numbers: 1-based positions separated by "|" ("2|6") or, for a group
  /// that a file defines for itself, heading names separated by commas. Empty when there are none.
  std::string NumericKeyPositions;
  std::vector<std::string> Units;  // one per heading; AGS 3: the numeric flags "-1" and "0"
  std::vector<std::string> Types;  // one per heading; AGS 3: none

  /// The heading's 1-based position; 0 when absent. Exact letter case; the cost does not depend on
  /// the number of headings.
  int HeadingPosition(std::string_view heading) const;

  /// To be called when Headings were changed.
  void IndexHeadings();

 private:
  std::unordered_map<std::string, int> positions_;
};

/// A data dictionary: the standard groups and the lists that hold for a whole version. A copy is
/// made for every file, to which the file's own groups are added.
struct AgsDictionary {
  std::vector<DictGroup> Groups;  // see Group(): index 1 is the first
  std::unordered_set<std::string> NumericHeadings;
  std::vector<std::pair<std::string, std::string>> UnitFields;  // group, heading
  std::vector<std::string> ReferenceGroups;
  std::vector<std::string> PickListHeadings;
  std::vector<std::string> RequiredGroups;
  std::vector<std::string> RequiredFields;  // group name, full stop, heading name
  std::vector<std::string> LinkKeyHeadings;
  std::string LocationGroup;
  std::string LocationKey;
  /// The groups whose headings do not contain the location key as text.
  std::unordered_set<std::string> GroupsWithoutLocationKey;

  int GroupCount() const { return static_cast<int>(Groups.size()); }
  const DictGroup& Group(int index) const { return Groups[static_cast<std::size_t>(index - 1)]; }
  DictGroup& Group(int index) { return Groups[static_cast<std::size_t>(index - 1)]; }

  /// Appends a group; it is found by its name unless an earlier one bears it.
  void AddGroup(DictGroup group);

  /// The index of the first group of a name, in exact letter case; 0 when there is none.
  int FindDictGroup(std::string_view name) const;

 private:
  std::unordered_map<std::string, int> groupsByName_;
};

/// The type, or the unit, of a heading in a dictionary group; empty when the group is not in the
/// dictionary (index 0) or does not have the heading.
std::string_view GetDictHeadingType(const AgsDictionary& dictionary, int dictGroupIndex,
                                    std::string_view heading);
std::string_view GetDictHeadingUnit(const AgsDictionary& dictionary, int dictGroupIndex,
                                    std::string_view heading);

/// In AGS 3 a name of the kind that files define for themselves begins with "?": a name without it
/// gets one. AGS 4 names stay as they are.
std::string QualifyHeadingName(AgsFormat format, std::string_view heading);

/// A dictionary that cannot be used. The run cannot go on without one: the text is what the box
/// titled "AGS Dictionary Load" shows.
class DictionaryError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace quorvane
