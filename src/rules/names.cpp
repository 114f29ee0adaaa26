#include "rules/names.h"

#include <algorithm>
#include <array>
#include <map>
#include <unordered_map>
#include <utility>

#include "rules/name_messages.h"
#include "text/text.h"

namespace quorvane {
namespace {

constexpr std::size_t LongestOwnGroupName = 4;
constexpr std::size_t LongestOwnHeading = 9;

constexpr bool IsCapital(char letter) {
  return letter >= 'A' && letter <= 'Z';
}

constexpr bool IsHeadingCharacter(char letter) {
  return IsCapital(letter) || IsDigit(letter) || letter == '_';
}

std::string_view WithoutMark(std::string_view name) {
  return name.starts_with('?') ? name.substr(1) : name;
}

/// The rules on the name of a group that the file defines for itself.
void CheckOwnGroupName(CheckedFile& file, const MessagePlace& place, std::int32_t lineNumber,
                       std::string_view nameWithoutMark) {
  if (nameWithoutMark.size() > LongestOwnGroupName) {
    file.log.AddMessage(lineNumber, GroupNameTooLong, {nameWithoutMark}, place);
  }
  if (!std::all_of(nameWithoutMark.begin(), nameWithoutMark.end(), IsCapital)) {
    file.log.AddMessage(lineNumber, GroupNameCharacters, {nameWithoutMark}, place);
  }
}

/// The rules on a heading that the file defines for itself; false when it broke one.
bool CheckOwnHeading(CheckedFile& file, const MessagePlace& place, std::int32_t lineNumber,
                     std::string_view headingWithoutMark) {
  const std::string& group = file.table.At(place.group).name;
  bool isValid = true;
  if (headingWithoutMark.size() > LongestOwnHeading) {
    file.log.AddMessage(lineNumber, HeadingTooLong, {headingWithoutMark, group}, place);
    isValid = false;
  }
  if (headingWithoutMark.find('_') == std::string_view::npos) {
    file.log.AddMessage(lineNumber, HeadingWithoutUnderscore, {headingWithoutMark, group}, place);
    return false;
  }
  const std::string ownPrefix = std::string(WithoutMark(group)) + "_";
  if (!headingWithoutMark.starts_with(ownPrefix)) {
    file.HeadingPrefixList.push_back(
        {std::string(headingWithoutMark), place.group, place.heading, lineNumber});
  }
  return isValid;
}

/// Two headings under which files of earlier editions hold what the dictionary names otherwise.
std::string_view DictionaryNameOf(std::string_view heading) {
  if (heading == "DRPG_CONE") return "DPRG_CONE";
  if (heading == "CMPG_FSET") return "FILE_FSET";
  return heading;
}

bool HasAnyValue(const CheckedFile& file, const HeadingPlace& place) {
  for (std::int32_t row = 1; row <= file.table.At(place.group).rowCount; ++row) {
    if (!file.table.Value(place.group, row, place.column).empty()) return true;
  }
  return false;
}

/// Answers whether headings hold data, looking through each column once however often it is asked
/// for.
class ColumnsWithValues {
 public:
  explicit ColumnsWithValues(const CheckedFile& file) : file_(file) {}

  bool HasValue(const HeadingPlace& place) {
    const std::pair key(place.group, place.column);
    const auto known = known_.find(key);
    if (known != known_.end()) return known->second;
    return known_.emplace(key, HasAnyValue(file_, place)).first->second;
  }

 private:
  const CheckedFile& file_;
  std::map<std::pair<int, int>, bool> known_;
};

bool IsPrefixAccepted(const CheckedFile& file, const DeferredHeading& deferred,
                      ColumnsWithValues& columns) {
  const std::string_view prefix =
      std::string_view(deferred.heading).substr(0, deferred.heading.find('_'));
  if (prefix == "SPEC" || file.table.FindGroup(prefix) != 0) return true;
  // The heading's own group is the first of that name.
  const int group = file.table.FindGroup(file.table.At(deferred.group).name);
  const int column = file.table.FindHeading("?" + deferred.heading, group);
  if (column == 0 || !columns.HasValue({group, column})) return true;
  return file.dictionary.FindDictGroup(prefix) != 0 ||
         file.dictionary.FindDictGroup("?" + std::string(prefix)) != 0;
}

using HeadingPositions = std::unordered_map<std::string, int>;

/// The position of each heading in the order that a group's headings must have.
HeadingPositions ExpectedOrder(const CheckedFile& file, const Group& group) {
  HeadingPositions positions;
  int position = 0;
  const auto append = [&](const std::vector<std::string>& headings) {
    for (const std::string& heading : headings) {
      positions.try_emplace(UpperCase(heading), ++position);
    }
  };
  if (group.dictionaryIndex != 0) append(file.dictionary.Group(group.dictionaryIndex).Headings);
  const auto added = file.addedHeadings.find(group.name);
  if (added != file.addedHeadings.end()) append(added->second);
  return positions;
}

/// The first heading that stands behind one that should follow it; 0 when all are in order.
int FirstHeadingOutOfOrder(const Group& group, const HeadingPositions& positions) {
  int lastPosition = 0;
  for (int column = 1; column <= group.HeadingCount(); ++column) {
    const auto found = positions.find(UpperCase(group.HeadingAt(column).name));
    if (found == positions.end()) continue;
    if (found->second < lastPosition) return column;
    lastPosition = found->second;
  }
  return 0;
}

}  // namespace

std::string CheckGroupNameLine(CheckedFile& file, int group, std::int32_t lineNumber,
                               std::string_view line) {
  const MessagePlace place{group, 0, 0};
  const std::size_t asterisks = line.find("**");
  if (!line.starts_with('"') || !line.ends_with('"')) {
    file.log.AddMessage(lineNumber, GroupLineNotQuoted, {line}, place);
  } else if (asterisks == std::string_view::npos) {
    file.log.AddMessage(lineNumber, GroupLineForm, {line}, place);
  }
  const std::size_t nameStart = asterisks == std::string_view::npos ? 1 : asterisks + 2;
  std::string name = Without(line.substr(std::min(nameStart, line.size())), '"');
  CheckGroupName(file, group, lineNumber, name);
  return name;
}

void CheckGroupName(CheckedFile& file, int group, std::int32_t lineNumber, std::string& name) {
  const MessagePlace place{group, 0, 0};
  if (const std::size_t comma = name.find(','); comma != std::string::npos) {
    file.log.AddMessage(lineNumber, GroupLineFieldCount, {name}, place);
    name.resize(comma);
  }
  // Blanks around a group name are let pass on purpose.
  name = Trim(name);
  if (!IsUpperCase(name)) {
    file.log.AddMessage(lineNumber, GroupNameNotUpperCase, {name}, place);
    name = UpperCase(name);
  }
  if (name.starts_with('?')) {
    CheckOwnGroupName(file, place, lineNumber, std::string_view(name).substr(1));
  }
}

void RecordGroup(CheckedFile& file, int group) {
  Group& record = file.table.At(group);
  if (record.name.starts_with('?')) file.NonStandardGroupList.push_back(group);
  record.dictionaryIndex = file.dictionary.FindDictGroup(record.name);
  if (record.dictionaryIndex == 0) {
    if (file.IsAgs4()) {
      file.NonStandardGroupList.push_back(group);
    } else {
      file.log.AddMessage(record.line, GroupNotInDictionary, {record.name}, {group, 0, 0});
    }
  }
  SingletonGroups& first = file.singletons;
  const std::array<std::pair<std::string_view, int*>, 8> singletons{{{"ABBR", &first.abbr},
                                                                     {"CODE", &first.code},
                                                                     {"DICT", &first.dict},
                                                                     {"FILE", &first.file},
                                                                     {"PROJ", &first.proj},
                                                                     {"UNIT", &first.unit},
                                                                     {"TYPE", &first.type},
                                                                     {"TRAN", &first.tran}}};
  for (const auto& [name, firstGroup] : singletons) {
    if (record.name == name) NoteSingletonGroup(file, group, *firstGroup);
  }
  if (record.name == "CNMT") file.CnmtGroupList.push_back(group);
  if (record.name == "?ICCT") file.IccGroupList.push_back(group);
}

void NoteSingletonGroup(CheckedFile& file, int group, int& firstGroup) {
  if (firstGroup == 0) {
    firstGroup = group;
    return;
  }
  const Group& record = file.table.At(group);
  file.log.AddMessage(record.line, GroupRepeated, {record.name}, {group, 0, 0});
}

bool CheckHeadingName(CheckedFile& file, const MessagePlace& place, std::int32_t lineNumber,
                      std::string& heading) {
  bool isValid = true;
  if (!IsUpperCase(heading)) {
    file.log.AddMessage(lineNumber, HeadingNotUpperCase, {heading, file.table.At(place.group).name},
                        place);
    heading = UpperCase(heading);
    isValid = false;
  }
  if (heading.starts_with('?')) {
    isValid &= CheckOwnHeading(file, place, lineNumber, std::string_view(heading).substr(1));
  }
  return CheckHeadingCharacters(file, place, lineNumber, heading) && isValid;
}

bool CheckHeadingCharacters(CheckedFile& file, const MessagePlace& place, std::int32_t lineNumber,
                            std::string_view heading) {
  const std::string_view judged = WithoutMark(heading);
  if (std::all_of(judged.begin(), judged.end(), IsHeadingCharacter)) return true;
  const bool hasMark = judged.size() < heading.size();
  file.log.AddMessage(
      lineNumber, HeadingCharacters,
      {heading, file.table.At(place.group).name, hasMark ? " (excluding the leading '?')" : ""},
      place);
  return false;
}

bool HasHeading(const DictGroup& group, std::string_view heading) {
  const std::string_view dictionaryName = DictionaryNameOf(heading);
  // An empty name is no member of any list.
  return !dictionaryName.empty() && group.HeadingPosition(dictionaryName) != 0;
}

void CheckHeadingInDictionary(CheckedFile& file, const MessagePlace& place, std::int32_t lineNumber,
                              std::string_view heading) {
  const Group& group = file.table.At(place.group);
  if (heading.starts_with('?')) {
    const bool isNonStandardGroup =
        !file.NonStandardGroupList.empty() && file.NonStandardGroupList.back() == place.group;
    if (!isNonStandardGroup && group.name != "DICT") {
      file.NonStandardHeadingList.push_back({place.group, std::string(heading.substr(1))});
    }
    return;
  }
  const DictGroup& dictGroup = file.dictionary.Group(group.dictionaryIndex);
  if (HasHeading(dictGroup, heading)) return;
  const std::string_view dictionaryName = DictionaryNameOf(heading);
  if (file.IsAgs4()) {
    file.NonStandardHeadingList.push_back({place.group, std::string(dictionaryName)});
  } else {
    file.log.AddMessage(lineNumber, HeadingNotInDictionary, {dictionaryName, dictGroup.Name},
                        place);
  }
}

void CheckHeadingPrefixes(CheckedFile& file) {
  ColumnsWithValues columns(file);
  for (const DeferredHeading& deferred : file.HeadingPrefixList) {
    if (IsPrefixAccepted(file, deferred, columns)) continue;
    file.log.AddMessage(deferred.lineNumber, HeadingPrefixUnknown,
                        {deferred.heading, file.table.At(deferred.group).name},
                        {deferred.group, 0, deferred.column});
  }
  file.HeadingPrefixList.clear();
}

void CheckFieldOrder(CheckedFile& file) {
  if (!file.IsAgs4()) return;
  // Groups of one name share their order: it is worked out once.
  std::unordered_map<std::string, HeadingPositions> orders;
  for (int index = 1; index <= file.table.GroupCount(); ++index) {
    const Group& group = file.table.At(index);
    auto order = orders.find(group.name);
    if (order == orders.end()) {
      order = orders.emplace(group.name, ExpectedOrder(file, group)).first;
    }
    const int column = FirstHeadingOutOfOrder(group, order->second);
    if (column == 0) continue;
    file.log.AddMessage(group.headingLine, HeadingsOutOfOrder, {group.name}, {index, 0, column});
  }
  file.log.CloseCheckSection("Checking Field Order");
}

}  // namespace quorvane
