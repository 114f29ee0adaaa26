#include "parse/reference_list.h"

#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

using Names = std::vector<std::string>;

/// What ReferenceList promises, said with plain loops.
class PlainList {
 public:
  void Add(const std::string& name) { entries_.emplace_back(name, false); }

  bool MarkUsed(std::string_view name) {
    for (auto& [entry, isUsed] : entries_) {
      if (entry == name) return isUsed = true;
    }
    return false;
  }

  Names Unused() const {
    Names unused;
    for (const auto& [entry, isUsed] : entries_) {
      if (!isUsed) unused.push_back(entry);
    }
    return unused;
  }

 private:
  std::vector<std::pair<std::string, bool>> entries_;
};

ReferenceList ListOf(const Names& names) {
  ReferenceList list;
  for (const std::string& name : names)
    list.Add(name);
  return list;
}

TEST(ReferenceList, StartsEmpty) {
  ReferenceList list;
  EXPECT_TRUE(list.IsEmpty());
  EXPECT_FALSE(list.Contains(""));
  EXPECT_FALSE(list.MarkUsed(""));
  EXPECT_EQ(list.Unused(), Names{});
}

TEST(ReferenceList, HoldsNamesInTheOrderInWhichTheyWereAdded) {
  const ReferenceList list = ListOf({"m", "kPa", "%"});
  EXPECT_FALSE(list.IsEmpty());
  EXPECT_EQ(list.Unused(), (Names{"m", "kPa", "%"}));
}

TEST(ReferenceList, ComparesNamesExactly) {
  ReferenceList list = ListOf({"kPa"});
  EXPECT_TRUE(list.Contains("kPa"));
  for (const char* other : {"KPA", "kpa", " kPa", "kPa ", "kP", "kPa2", ""}) {
    EXPECT_FALSE(list.Contains(other)) << other;
    EXPECT_FALSE(list.MarkUsed(other)) << other;
  }
  EXPECT_EQ(list.Unused(), Names{"kPa"});
}

TEST(ReferenceList, AddingANameDoesNotMarkIt) {
  ReferenceList list = ListOf({"m"});
  EXPECT_TRUE(list.MarkUsed("m"));
  list.Add("mm");
  EXPECT_EQ(list.Unused(), Names{"mm"});
}

TEST(ReferenceList, MarksTheFirstOfTwoEntriesOfOneName) {
  ReferenceList list = ListOf({"m", "mm", "m"});
  EXPECT_TRUE(list.MarkUsed("m"));
  EXPECT_TRUE(list.MarkUsed("m"));
  EXPECT_EQ(list.Unused(), (Names{"mm", "m"}));
}

TEST(ReferenceList, ANameThatIsNotListedLeavesTheMarksAlone) {
  ReferenceList list = ListOf({"m", "mm"});
  EXPECT_TRUE(list.MarkUsed("mm"));
  EXPECT_FALSE(list.MarkUsed("km"));
  EXPECT_TRUE(list.MarkUsed("mm"));
  EXPECT_EQ(list.Unused(), Names{"m"});
}

TEST(ReferenceList, KeepsItsNamesAndMarksWhenItMoves) {
  ReferenceList first = ListOf({"a unit with quite a long name", "m", "km"});
  EXPECT_TRUE(first.MarkUsed("a unit with quite a long name"));
  ReferenceList second = std::move(first);
  EXPECT_TRUE(second.MarkUsed("a unit with quite a long name"));
  EXPECT_TRUE(second.MarkUsed("m"));
  EXPECT_EQ(second.Unused(), Names{"km"});
}

TEST(ReferenceList, GivesWhatAPlainSearchGives) {
  std::mt19937 random(20260102);
  const auto anyName = [&] {
    return std::string(1 + random() % 2, static_cast<char>('a' + random() % 6));
  };
  for (int round = 0; round < 200; ++round) {
    ReferenceList list;
    PlainList plain;
    for (auto count = random() % 12; count > 0; --count) {
      const std::string name = anyName();
      list.Add(name);
      plain.Add(name);
    }
    for (int look = 0; look < 30; ++look) {
      const std::string name = anyName();
      EXPECT_EQ(list.MarkUsed(name), plain.MarkUsed(name)) << name;
      EXPECT_EQ(list.Unused(), plain.Unused());
    }
  }
}

}  // namespace
}  // namespace quorvane::test
