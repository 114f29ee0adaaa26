#include "dictionary/parent_choice.h"

#include <algorithm>

namespace quorvane {

CandidateList::CandidateList(const AgsDictionary& dictionary, std::span<const int> groups,
                             int leftOut)
    : dictionary_(&dictionary), groups_(groups) {
  const auto found = std::lower_bound(groups_.begin(), groups_.end(), leftOut);
  leavesOut_ = found != groups_.end() && *found == leftOut;
  leftOutAt_ = static_cast<std::size_t>(found - groups_.begin());
}

ParentCandidate CandidateList::At(std::size_t index) const {
  const bool isBehindLeftOut = leavesOut_ && index >= leftOutAt_;
  const DictGroup& group = dictionary_->Group(groups_[index + (isBehindLeftOut ? 1 : 0)]);
  return {group.Name, group.KeyCount};
}

bool CandidateList::Contains(int group) const {
  if (leavesOut_ && groups_[leftOutAt_] == group) return false;
  return std::binary_search(groups_.begin(), groups_.end(), group);
}

ParentSelection Preselection(const ParentLists& lists) {
  ParentSelection selection;
  selection.option = lists.lists[0].Count() > 0 ? 0 : 1;
  return selection;
}

std::string ParentGroup(const ParentLists& lists, const ParentSelection& selection) {
  const CandidateList& list = lists.lists[selection.option];
  const std::size_t entry = selection.entry[selection.option];
  return entry < list.Count() ? list.At(entry).group : std::string();
}

std::string UnattendedParentChoice::ShowDialog(const ParentLists& lists) {
  std::string parent = lists.locationGroup;
  if (parent.empty()) parent = ParentGroup(lists, Preselection(lists));
  messages_.Note(lists.file + ": group " + lists.group + " names no parent group; " + parent +
                 " was taken");
  return parent;
}

}  // namespace quorvane
