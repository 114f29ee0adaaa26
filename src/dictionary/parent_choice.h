#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>

#include "dictionary/ags_dictionary.h"
#include "report/user_interface.h"

namespace quorvane {

/// A group that may be the parent of another: all of its key headings are in the other's key.
struct ParentCandidate {
  std::string group;
  int keyCount = 0;
};

/// Candidates in dictionary order. It is a view: thousands of groups that ask for a parent may
/// share one long list, so entries are read from the dictionary when somebody wants to see them.
class CandidateList {
 public:
  CandidateList() = default;

  /// The groups are dictionary indices in ascending order. The group left out, if it is among them,
  /// is no entry of the list. The dictionary and the indices must outlive the list.
  CandidateList(const AgsDictionary& dictionary, std::span<const int> groups, int leftOut = 0);

  std::size_t Count() const { return groups_.size() - (leavesOut_ ? 1 : 0); }

  /// An entry, counted from 0.
  ParentCandidate At(std::size_t index) const;

  bool Contains(int group) const;

 private:
  const AgsDictionary* dictionary_ = nullptr;
  std::span<const int> groups_;
  bool leavesOut_ = false;
  std::size_t leftOutAt_ = 0;
};

/// The question which group is the parent of a group that names none, as a dialog shows it: one or
/// two options, each with a drop-down list. What it refers to lives while the question is asked.
struct ParentLists {
  std::string file;   // the data file in hand
  std::string group;  // the group without a parent
  std::string label;  // the text above the lists
  /// List 0 holds the candidates whose keys are as long as the group's own, list 1 the others. At
  /// least two candidates are in both together; either list may be empty.
  std::array<CandidateList, 2> lists;
  std::string locationGroup;  // when it is among the candidates; else empty

  /// The second option and its list are hidden otherwise.
  bool ShowsSecondList() const { return lists[1].Count() > 0; }
};

/// The state of the two options and their lists.
struct ParentSelection {
  std::size_t option = 0;              // 0 or 1
  std::array<std::size_t, 2> entry{};  // per list, counted from 0; without meaning in an empty one
};

/// What is selected when the question comes up: the first entry of each list, and the first option
/// that has any.
ParentSelection Preselection(const ParentLists& lists);

/// The answer that a selection gives: the entry of the chosen option's list, empty when that list
/// is.
std::string ParentGroup(const ParentLists& lists, const ParentSelection& selection);

/// Asks for a parent group. Implemented by the programs: a dialog where there is a window, else
/// UnattendedParentChoice.
class ParentChoice {
 public:
  virtual ~ParentChoice() = default;

  /// Returns the parent group chosen; empty for none.
  virtual std::string ShowDialog(const ParentLists& lists) = 0;
};

/// The choice where nobody is there to be asked: the location group when it is a candidate, else
/// what a dialog would come up with. Every choice is noted.
class UnattendedParentChoice : public ParentChoice {
 public:
  /// The messages must outlive the object.
  explicit UnattendedParentChoice(UserMessages& messages) : messages_(messages) {}

  std::string ShowDialog(const ParentLists& lists) override;

 private:
  UserMessages& messages_;
};

}  // namespace quorvane
