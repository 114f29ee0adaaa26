#include "dictionary/parent_index.h"

#include <algorithm>
#include <random>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_services.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

DictGroup GroupWithKey(std::string name, std::vector<std::string> keyHeadings) {
  DictGroup group;
  group.Name = std::move(name);
  group.KeyCount = static_cast<std::int32_t>(keyHeadings.size());
  group.Headings = keyHeadings;
  group.KeyHeadings = std::move(keyHeadings);
  return group;
}

std::vector<std::string> NamesIn(const CandidateList& list) {
  std::vector<std::string> names;
  for (std::size_t index = 0; index < list.Count(); ++index)
    names.push_back(list.At(index).group);
  return names;
}

AgsDictionary ExampleDictionary() {
  AgsDictionary dictionary;
  dictionary.LocationGroup = "LOCA";
  dictionary.AddGroup(GroupWithKey("AAAA", {"LOCA_ID"}));              // 1
  dictionary.AddGroup(GroupWithKey("LOCA", {"LOCA_ID"}));              // 2
  dictionary.AddGroup(GroupWithKey("BBBB", {"LOCA_ID", "BBBB_TOP"}));  // 3
  dictionary.AddGroup(GroupWithKey("CCCC", {"LOCA_ID", "CCCC_NO"}));   // 4
  dictionary.AddGroup(GroupWithKey("DDDD", {"BBBB_TOP", "LOCA_ID"}));  // 5
  return dictionary;
}

TEST(CandidateLists, AreDividedByKeyCountAndLeaveTheGroupItselfOut) {
  const AgsDictionary dictionary = ExampleDictionary();
  ParentIndex index(dictionary);
  const auto ofFirst = index.BestCandidates(1);
  EXPECT_THAT(NamesIn(ofFirst[0]), ElementsAre("LOCA"));
  EXPECT_THAT(NamesIn(ofFirst[1]), IsEmpty());
  const auto ofFourth = index.BestCandidates(4);
  EXPECT_THAT(NamesIn(ofFourth[0]), IsEmpty());
  EXPECT_THAT(NamesIn(ofFourth[1]), ElementsAre("AAAA", "LOCA"));
  const auto ofFifth = index.BestCandidates(5);
  EXPECT_THAT(NamesIn(ofFifth[0]), ElementsAre("BBBB"));
  EXPECT_THAT(NamesIn(ofFifth[1]), ElementsAre("AAAA", "LOCA"));
  EXPECT_EQ(ofFifth[0].At(0).keyCount, 2);
  EXPECT_TRUE(ofFifth[1].Contains(2));
  EXPECT_FALSE(ofFifth[1].Contains(3));
  EXPECT_FALSE(ofFifth[0].Contains(5));  // the group itself
}

ParentLists QuestionOf(const AgsDictionary& dictionary, ParentIndex& index, int group) {
  ParentLists question;
  question.file = "site.ags";
  question.group = dictionary.Group(group).Name;
  question.lists = index.BestCandidates(group);
  return question;
}

TEST(ParentSelections, AnswerFromTheListOfTheChosenOption) {
  const AgsDictionary dictionary = ExampleDictionary();
  ParentIndex index(dictionary);
  const ParentLists question = QuestionOf(dictionary, index, 5);
  EXPECT_EQ(Preselection(question).option, 0U);
  EXPECT_EQ(ParentGroup(question, {0, {0, 1}}), "BBBB");
  EXPECT_EQ(ParentGroup(question, {1, {0, 1}}), "LOCA");
  EXPECT_TRUE(question.ShowsSecondList());
}

TEST(ParentSelections, ComeUpWithTheSecondOptionWhenTheFirstHasNothing) {
  const AgsDictionary dictionary = ExampleDictionary();
  ParentIndex index(dictionary);
  const ParentLists question = QuestionOf(dictionary, index, 4);
  EXPECT_EQ(Preselection(question).option, 1U);
  EXPECT_EQ(ParentGroup(question, Preselection(question)), "AAAA");
  EXPECT_EQ(ParentGroup(question, {0, {0, 0}}), "");
}

TEST(UnattendedChoices, TakeTheLocationGroupWhenItIsACandidate) {
  const AgsDictionary dictionary = ExampleDictionary();
  ParentIndex index(dictionary);
  RecordingMessages messages;
  UnattendedParentChoice choice(messages);
  ParentLists question = QuestionOf(dictionary, index, 5);
  question.locationGroup = "LOCA";
  EXPECT_EQ(choice.ShowDialog(question), "LOCA");
  EXPECT_THAT(messages.notes,
              ElementsAre("site.ags: group DDDD names no parent group; LOCA was taken"));
  EXPECT_THAT(messages.boxes, IsEmpty());
}

TEST(UnattendedChoices, TakeElseWhatTheDialogComesUpWith) {
  const AgsDictionary dictionary = ExampleDictionary();
  ParentIndex index(dictionary);
  RecordingMessages messages;
  UnattendedParentChoice choice(messages);
  EXPECT_EQ(choice.ShowDialog(QuestionOf(dictionary, index, 5)), "BBBB");
  EXPECT_EQ(choice.ShowDialog(QuestionOf(dictionary, index, 4)), "AAAA");
  EXPECT_THAT(messages.notes,
              ElementsAre("site.ags: group DDDD names no parent group; BBBB was taken",
                          "site.ags: group CCCC names no parent group; AAAA was taken"));
}

TEST(ParentIndexes, KeyCountOfACandidateIsHeldAgainstTheNumberOfInheritedHeadings) {
  AgsDictionary dictionary;
  DictGroup tooLong = GroupWithKey("LONG", {"A_ID"});
  tooLong.KeyCount = 2;
  dictionary.AddGroup(tooLong);
  dictionary.AddGroup(GroupWithKey("GRUP", {"A_ID", "GRUP_NO"}));
  dictionary.AddGroup(GroupWithKey("GRIP", {"A_ID", "B_ID"}));
  ParentIndex index(dictionary);
  EXPECT_EQ(index.BestCandidates(2)[1].Count(), 0U);
  EXPECT_THAT(NamesIn(index.BestCandidates(3)[0]), ElementsAre("LONG"));
}

// The plain twin: every group is held against every other.

std::vector<std::string> Compared(const std::vector<std::string>& headings, bool withMarks) {
  std::vector<std::string> compared;
  compared.reserve(headings.size());
  for (const std::string& heading : headings) {
    compared.push_back(withMarks ? heading : Without(heading, '?'));
  }
  return compared;
}

std::array<std::vector<std::string>, 2> ScanForCandidates(const AgsDictionary& dictionary,
                                                          int groupIndex) {
  const DictGroup& group = dictionary.Group(groupIndex);
  std::vector<std::string> inherited;
  for (const std::string& heading : group.KeyHeadings) {
    if (!heading.starts_with(group.Name + "_")) inherited.push_back(heading);
  }
  if (inherited.empty()) return {};
  std::vector<const DictGroup*> candidates;
  int greatest = 0;
  for (int other = 1; other <= dictionary.GroupCount(); ++other) {
    const DictGroup& candidate = dictionary.Group(other);
    if (other == groupIndex || candidate.KeyHeadings.empty()) continue;
    if (candidate.KeyCount > static_cast<int>(inherited.size())) continue;
    const bool withMarks = candidate.Name.starts_with('?');
    const std::vector<std::string> among = Compared(inherited, withMarks);
    const std::vector<std::string> keys = Compared(candidate.KeyHeadings, withMarks);
    const bool isCandidate = std::all_of(keys.begin(), keys.end(), [&](const std::string& key) {
      return std::find(among.begin(), among.end(), key) != among.end();
    });
    if (!isCandidate) continue;
    candidates.push_back(&candidate);
    if (candidate.KeyCount < group.KeyCount) {
      greatest = std::max(greatest, static_cast<int>(candidate.KeyCount));
    }
  }
  std::array<std::vector<std::string>, 2> lists;
  for (const DictGroup* candidate : candidates) {
    if (candidate->KeyCount < greatest) continue;
    lists[candidate->KeyCount == group.KeyCount ? 0 : 1].push_back(candidate->Name);
  }
  return lists;
}

/// A dictionary in which key headings are few, so that candidates are many.
AgsDictionary RandomDictionary(std::mt19937& random, int groupCount, int headingCount) {
  const auto below = [&random](int limit) {
    return std::uniform_int_distribution<int>(0, limit - 1)(random);
  };
  AgsDictionary dictionary;
  for (int number = 1; number <= groupCount; ++number) {
    const std::string name = (below(3) == 0 ? "?G" : "G") + std::to_string(number);
    std::vector<std::string> keys;
    const int keyCount = below(5);
    for (int key = 0; key < keyCount; ++key) {
      const std::string mark = below(3) == 0 ? "?" : "";
      const bool isOwn = below(4) == 0;
      keys.push_back(isOwn ? name + "_" + std::to_string(key)
                           : mark + "H" + std::to_string(below(headingCount)) + "_ID");
    }
    DictGroup group = GroupWithKey(name, std::move(keys));
    if (below(10) == 0) ++group.KeyCount;
    dictionary.AddGroup(std::move(group));
  }
  return dictionary;
}

TEST(ParentIndexes, GiveWhatAPlainScanGives) {
  std::mt19937 random(20240117);
  std::size_t candidateCount = 0;
  for (int round = 0; round < 600; ++round) {
    const int headingCount = 2 + round % (round % 2 == 0 ? 6 : 70);
    const AgsDictionary dictionary = RandomDictionary(random, 40, headingCount);
    ParentIndex index(dictionary);
    for (int group = 1; group <= dictionary.GroupCount(); ++group) {
      const auto lists = index.BestCandidates(group);
      const auto scanned = ScanForCandidates(dictionary, group);
      ASSERT_EQ(NamesIn(lists[0]), scanned[0]) << "round " << round << ", group " << group;
      ASSERT_EQ(NamesIn(lists[1]), scanned[1]) << "round " << round << ", group " << group;
      candidateCount += lists[0].Count() + lists[1].Count();
    }
  }
  EXPECT_GT(candidateCount, 10000U);
}

}  // namespace
}  // namespace quorvane::test
