#include "dictionary/parent_index.h"

#include <algorithm>

#include "text/text.h"

namespace quorvane {
namespace {

std::uint64_t MaskOf(const std::vector<int>& headings) {
  std::uint64_t mask = 0;
  for (const int heading : headings)
    mask |= std::uint64_t{1} << (heading % 64);
  return mask;
}

std::vector<std::string_view> InheritedKeyHeadings(const DictGroup& group) {
  const std::string ownPrefix = group.Name + "_";
  std::vector<std::string_view> inherited;
  for (const std::string& heading : group.KeyHeadings) {
    if (!heading.starts_with(ownPrefix)) inherited.push_back(heading);
  }
  return inherited;
}

}  // namespace

ParentIndex::ParentIndex(const AgsDictionary& dictionary) : dictionary_(dictionary) {
  for (int group = 1; group <= dictionary.GroupCount(); ++group)
    AddCandidate(group);
  IndexByRarestHeading();
}

int ParentIndex::NumberOf(std::string_view heading, Marks marks) {
  std::string text = marks == Marks::Count ? std::string(heading) : Without(heading, '?');
  return numbers_.try_emplace(std::move(text), static_cast<int>(numbers_.size())).first->second;
}

ParentIndex::HeadingSet ParentIndex::NumbersOf(const std::vector<std::string_view>& headings,
                                               Marks marks) {
  HeadingSet numbers;
  numbers.reserve(headings.size());
  for (const std::string_view heading : headings)
    numbers.push_back(NumberOf(heading, marks));
  std::sort(numbers.begin(), numbers.end());
  numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
  return numbers;
}

void ParentIndex::AddCandidate(int groupIndex) {
  const DictGroup& group = dictionary_.Group(groupIndex);
  // A group without key headings has no keys that another group's rows could refer to.
  if (group.KeyHeadings.empty()) return;
  Signature signature;
  signature.marks = group.Name.starts_with('?') ? Marks::Count : Marks::Removed;
  signature.keyCount = group.KeyCount;
  signature.headings =
      NumbersOf({group.KeyHeadings.begin(), group.KeyHeadings.end()}, signature.marks);
  const auto [entry, isNew] =
      bundlesBySignature_.try_emplace(std::move(signature), bundles_.size());
  if (isNew) bundles_.push_back({&entry->first, MaskOf(entry->first.headings), {}});
  bundles_[entry->second].groups.push_back(groupIndex);
}

void ParentIndex::IndexByRarestHeading() {
  std::map<std::pair<Marks, int>, int> uses;
  for (const Bundle& bundle : bundles_) {
    for (const int heading : bundle.signature->headings)
      ++uses[{bundle.signature->marks, heading}];
  }
  for (std::size_t index = 0; index < bundles_.size(); ++index) {
    const Signature& signature = *bundles_[index].signature;
    const int rarest = *std::min_element(
        signature.headings.begin(), signature.headings.end(), [&](int left, int right) {
          return uses[{signature.marks, left}] < uses[{signature.marks, right}];
        });
    bundlesByHeading_[{signature.marks, rarest}].push_back(index);
  }
}

void ParentIndex::FindBundles(const HeadingSet& inherited, std::size_t inheritedCount, Marks marks,
                              std::vector<const Bundle*>& found) const {
  const std::uint64_t mask = MaskOf(inherited);
  for (const int heading : inherited) {
    const auto entry = bundlesByHeading_.find({marks, heading});
    if (entry == bundlesByHeading_.end()) continue;
    for (const std::size_t index : entry->second) {
      const Bundle& bundle = bundles_[index];
      if ((bundle.mask & ~mask) != 0) continue;
      if (bundle.signature->keyCount > static_cast<std::ptrdiff_t>(inheritedCount)) continue;
      const HeadingSet& keys = bundle.signature->headings;
      if (std::includes(inherited.begin(), inherited.end(), keys.begin(), keys.end())) {
        found.push_back(&bundle);
      }
    }
  }
}

ParentIndex::Answer ParentIndex::MakeAnswer(const std::vector<std::string_view>& inherited,
                                            int keyCount) {
  std::vector<const Bundle*> bundles;
  for (const Marks marks : {Marks::Count, Marks::Removed}) {
    FindBundles(NumbersOf(inherited, marks), inherited.size(), marks, bundles);
  }
  int greatest = 0;
  for (const Bundle* bundle : bundles) {
    const int candidate = bundle->signature->keyCount;
    if (candidate < keyCount) greatest = std::max(greatest, candidate);
  }
  Answer answer;
  for (const Bundle* bundle : bundles) {
    const int candidate = bundle->signature->keyCount;
    if (candidate < greatest) continue;
    std::vector<int>& list = candidate == keyCount ? answer.sameKeyCount : answer.others;
    list.insert(list.end(), bundle->groups.begin(), bundle->groups.end());
  }
  std::sort(answer.sameKeyCount.begin(), answer.sameKeyCount.end());
  std::sort(answer.others.begin(), answer.others.end());
  return answer;
}

std::array<CandidateList, 2> ParentIndex::BestCandidates(int groupIndex) {
  const DictGroup& group = dictionary_.Group(groupIndex);
  const std::vector<std::string_view> inherited = InheritedKeyHeadings(group);
  if (inherited.empty()) return {};
  Question question{NumbersOf(inherited, Marks::Count), inherited.size(), group.KeyCount};
  const auto [entry, isNew] = answers_.try_emplace(std::move(question));
  if (isNew) entry->second = MakeAnswer(inherited, group.KeyCount);
  return {CandidateList(dictionary_, entry->second.sameKeyCount, groupIndex),
          CandidateList(dictionary_, entry->second.others, groupIndex)};
}

}  // namespace quorvane
