#include "dictionary/dictionary_stream.h"

#include <algorithm>
#include <limits>

#include "text/comma_list.h"
#include "text/number.h"

namespace quorvane {
namespace {

std::vector<std::string> SplitToTexts(std::string_view list) {
  const std::vector<std::string_view> pieces = Split(list, ",");
  return {pieces.begin(), pieces.end()};
}

class StreamReader {
 public:
  StreamReader(AgsFormat format, const DictionaryLists& lists) : format_(format) {
    dictionary_.NumericHeadings.insert(lists.numericHeadings.begin(), lists.numericHeadings.end());
    dictionary_.UnitFields = lists.unitFields;
    dictionary_.ReferenceGroups = lists.referenceGroups;
    dictionary_.PickListHeadings = lists.pickListHeadings;
    dictionary_.RequiredGroups = lists.requiredGroups;
    dictionary_.RequiredFields = lists.requiredFields;
    dictionary_.LocationGroup = lists.locationGroup;
    dictionary_.LocationKey = lists.locationKey;
  }

  void Read(std::string_view item) {
    switch (next_) {
      case Item::Name:
        group_ = {};
        group_.Name = item;
        next_ = Item::Key;
        break;
      case Item::Key:
        ReadKey(item);
        next_ = Item::Headings;
        break;
      case Item::Headings:
        ReadHeadings(item);
        next_ = Item::Units;
        break;
      case Item::Units:
        ReadUnits(item);
        next_ = isAgs3Layout_ ? Item::Name : Item::Types;
        if (isAgs3Layout_) EndGroup();
        break;
      case Item::Types:
        ReadTypes(item);
        EndGroup();
        next_ = Item::Name;
        break;
    }
  }

  AgsDictionary Finish(const DictionaryLists& lists) {
    if (next_ != Item::Name) {
      throw DictionaryError("The definition of group '" + group_.Name + "' is not complete.");
    }
    for (DictGroup& group : dictionary_.Groups) {
      const int parent = dictionary_.FindDictGroup(group.ParentGroup);
      if (parent != 0) group.ParentKeyCount = dictionary_.Group(parent).KeyCount;
    }
    Attach(lists.relatedGroups, &DictGroup::RelatedGroup);
    Attach(lists.secondRelatedGroups, &DictGroup::SecondRelatedGroup);
    return std::move(dictionary_);
  }

 private:
  enum class Item { Name, Key, Headings, Units, Types };

  void ReadKey(std::string_view item) {
    const std::vector<std::string_view> fields = Split(item, ",");
    group_.ParentGroup = fields[0];
    if (fields.size() < 2 || !IsWholeNumber(fields[1])) {
      throw DictionaryError("The key line of group '" + group_.Name +
                            "' must give its parent group and its key count (" + std::string(item) +
                            ").");
    }
    constexpr std::int64_t mostKeys = std::numeric_limits<std::int16_t>::max();
    group_.KeyCount = static_cast<std::int32_t>(
        std::clamp<std::int64_t>(WholeNumberValue(fields[1]), 0, mostKeys));
    // A third field, even an empty one, is what tells the AGS 3 layout.
    isAgs3Layout_ = fields.size() >= 3;
    if (isAgs3Layout_) group_.NumericKeyPositions = fields[2];
  }

  void ReadHeadings(std::string_view item) {
    if (item.find(dictionary_.LocationKey) == std::string_view::npos) {
      dictionary_.GroupsWithoutLocationKey.insert(group_.Name);
    }
    group_.Headings = SplitToTexts(item);
    const auto keyCount =
        std::min(group_.Headings.size(), static_cast<std::size_t>(group_.KeyCount));
    group_.KeyHeadings.assign(group_.Headings.begin(),
                              group_.Headings.begin() + static_cast<std::ptrdiff_t>(keyCount));
    if (group_.NumericKeyPositions.empty()) return;
    for (const std::string_view position : Split(group_.NumericKeyPositions, "|")) {
      AddLinkKeyHeading(WholeNumberValue(position));
    }
  }

  void AddLinkKeyHeading(std::int64_t position) {
    if (position < 1 || position > std::ssize(group_.Headings)) return;
    const std::string heading =
        QualifyHeadingName(format_, group_.Headings[static_cast<std::size_t>(position - 1)]);
    std::vector<std::string>& known = dictionary_.LinkKeyHeadings;
    if (std::find(known.begin(), known.end(), heading) == known.end()) known.push_back(heading);
  }

  void ReadUnits(std::string_view item) {
    group_.Units = SplitToTexts(item);
    if (group_.Units.size() != group_.Headings.size()) {
      throw DictionaryError("The number of units does not match the number of fields for " +
                            group_.Name);
    }
    if (isAgs3Layout_) ReadNumericFlags();
  }

  void ReadNumericFlags() {
    for (std::size_t index = 0; index < group_.Units.size(); ++index) {
      const std::string& flag = group_.Units[index];
      if (flag == "-1") {
        dictionary_.NumericHeadings.insert(group_.Headings[index]);
      } else if (flag != "0") {
        throw DictionaryError("Unknown v3 unit type (" + flag + ") in group '" + group_.Name +
                              "'.");
      }
    }
  }

  void ReadTypes(std::string_view item) {
    group_.Types = SplitToTexts(item);
    if (group_.Types.size() != group_.Headings.size()) {
      throw DictionaryError("The number of types does not match the number of fields for " +
                            group_.Name);
    }
  }

  void EndGroup() { dictionary_.AddGroup(std::move(group_)); }

  void Attach(const std::vector<std::string>& entries, std::string DictGroup::*related) {
    for (const std::string& entry : entries) {
      const std::vector<std::string_view> names = Split(entry, ",");
      for (std::size_t index = 1; index < names.size(); ++index) {
        const int group = dictionary_.FindDictGroup(names[index]);
        if (group != 0) dictionary_.Group(group).*related = names.front();
      }
    }
  }

  AgsFormat format_;
  AgsDictionary dictionary_;
  DictGroup group_;
  bool isAgs3Layout_ = false;
  Item next_ = Item::Name;
};

}  // namespace

AgsDictionary ParseDictionaryStream(AgsFormat format, std::string_view stream,
                                    std::string_view separator, const DictionaryLists& lists) {
  StreamReader reader(format, lists);
  std::size_t position = 1;
  while (position != 0)
    reader.Read(TakeToken(position, stream, separator));
  return reader.Finish(lists);
}

}  // namespace quorvane
