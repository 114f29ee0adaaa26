#include "dictionary/ags_dictionary.h"

namespace quorvane {
namespace {

/// The entry of a list, one per heading of a dictionary group, that belongs to a heading.
std::string_view EntryOf(const AgsDictionary& dictionary, int dictGroupIndex,
                         std::string_view heading, std::vector<std::string> DictGroup::*list) {
  if (dictGroupIndex == 0) return {};
  const DictGroup& group = dictionary.Group(dictGroupIndex);
  const auto position = static_cast<std::size_t>(group.HeadingPosition(heading));
  const std::vector<std::string>& entries = group.*list;
  return position == 0 || position > entries.size() ? std::string_view() : entries[position - 1];
}

}  // namespace

int DictGroup::HeadingPosition(std::string_view heading) const {
  const auto found = positions_.find(std::string(heading));
  return found == positions_.end() ? 0 : found->second;
}

void DictGroup::IndexHeadings() {
  positions_.clear();
  int position = 0;
  for (const std::string& heading : Headings)
    positions_.try_emplace(heading, ++position);
}

void AgsDictionary::AddGroup(DictGroup group) {
  groupsByName_.try_emplace(group.Name, GroupCount() + 1);
  group.IndexHeadings();
  Groups.push_back(std::move(group));
}

int AgsDictionary::FindDictGroup(std::string_view name) const {
  const auto found = groupsByName_.find(std::string(name));
  return found == groupsByName_.end() ? 0 : found->second;
}

std::string_view GetDictHeadingType(const AgsDictionary& dictionary, int dictGroupIndex,
                                    std::string_view heading) {
  return EntryOf(dictionary, dictGroupIndex, heading, &DictGroup::Types);
}

std::string_view GetDictHeadingUnit(const AgsDictionary& dictionary, int dictGroupIndex,
                                    std::string_view heading) {
  return EntryOf(dictionary, dictGroupIndex, heading, &DictGroup::Units);
}

std::string QualifyHeadingName(AgsFormat format, std::string_view heading) {
  const bool needsMark = format == AgsFormat::Ags3 && !heading.starts_with('?');
  return needsMark ? "?" + std::string(heading) : std::string(heading);
}

}  // namespace quorvane
