#include "dictionary/ags_dictionary.h"

#include <string>

#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

DictGroup MakeGroup(const std::string& name, const std::vector<std::string>& headings) {
  DictGroup group;
  group.Name = name;
  group.Headings = headings;
  return group;
}

TEST(DictGroup, FindsHeadingsByPosition) {
  DictGroup group = MakeGroup("SAMP", {"LOCA_ID", "SAMP_TOP", "SAMP_REF"});
  group.IndexHeadings();
  EXPECT_EQ(group.HeadingPosition("LOCA_ID"), 1);
  EXPECT_EQ(group.HeadingPosition("SAMP_REF"), 3);
  EXPECT_EQ(group.HeadingPosition("samp_ref"), 0);
  EXPECT_EQ(group.HeadingPosition("SAMP"), 0);
  EXPECT_EQ(group.HeadingPosition(""), 0);
}

TEST(DictGroup, FindsTheFirstOfHeadingsOfOneName) {
  DictGroup group = MakeGroup("XXXX", {"A_1", "B_1", "B_1"});
  group.IndexHeadings();
  EXPECT_EQ(group.HeadingPosition("B_1"), 2);
}

TEST(DictGroup, FindsChangedHeadingsOnceTheyAreIndexed) {
  DictGroup group = MakeGroup("XXXX", {"A_1", "B_1"});
  group.IndexHeadings();
  group.Headings = {"B_1", "C_1"};
  group.IndexHeadings();
  EXPECT_EQ(group.HeadingPosition("A_1"), 0);
  EXPECT_EQ(group.HeadingPosition("B_1"), 1);
  EXPECT_EQ(group.HeadingPosition("C_1"), 2);
}

TEST(AgsDictionary, FindsGroupsByExactName) {
  AgsDictionary dictionary;
  dictionary.AddGroup(MakeGroup("PROJ", {"PROJ_ID"}));
  dictionary.AddGroup(MakeGroup("?MONP", {"?HOLE_ID"}));
  EXPECT_EQ(dictionary.GroupCount(), 2);
  EXPECT_EQ(dictionary.FindDictGroup("PROJ"), 1);
  EXPECT_EQ(dictionary.FindDictGroup("?MONP"), 2);
  EXPECT_EQ(dictionary.FindDictGroup("Proj"), 0);
  EXPECT_EQ(dictionary.FindDictGroup("MONP"), 0);
  EXPECT_EQ(dictionary.FindDictGroup(""), 0);
}

TEST(AgsDictionary, FindsTheFirstOfGroupsOfOneName) {
  AgsDictionary dictionary;
  dictionary.AddGroup(MakeGroup("AAAA", {"AAAA_1"}));
  dictionary.AddGroup(MakeGroup("XXXX", {"XXXX_1"}));
  dictionary.AddGroup(MakeGroup("XXXX", {"XXXX_2"}));
  EXPECT_EQ(dictionary.GroupCount(), 3);
  EXPECT_EQ(dictionary.FindDictGroup("XXXX"), 2);
  EXPECT_EQ(dictionary.Group(3).HeadingPosition("XXXX_2"), 1);
}

TEST(AgsDictionary, GroupsAddedToACopyStayInTheCopy) {
  AgsDictionary dictionary;
  dictionary.AddGroup(MakeGroup("PROJ", {"PROJ_ID"}));
  AgsDictionary copy = dictionary;
  copy.AddGroup(MakeGroup("XXXX", {"XXXX_ID"}));
  EXPECT_EQ(copy.FindDictGroup("XXXX"), 2);
  EXPECT_EQ(dictionary.FindDictGroup("XXXX"), 0);
  EXPECT_EQ(dictionary.GroupCount(), 1);
}

class DictHeading : public testing::Test {
 protected:
  DictHeading() {
    DictGroup schemaGroup = MakeGroup("SAMP", {"LOCA_ID", "SAMP_TOP"});
    schemaGroup.Units = {"", "m"};
    schemaGroup.Types = {"ID", "2DP"};
    dictionary_.AddGroup(schemaGroup);
    DictGroup ags3Group = MakeGroup("HOLE", {"HOLE_ID", "HOLE_GL"});
    ags3Group.Units = {"0", "-1"};
    dictionary_.AddGroup(ags3Group);
  }

  AgsDictionary dictionary_;
};

TEST_F(DictHeading, HasItsTypeAndUnit) {
  EXPECT_EQ(GetDictHeadingType(dictionary_, 1, "SAMP_TOP"), "2DP");
  EXPECT_EQ(GetDictHeadingUnit(dictionary_, 1, "SAMP_TOP"), "m");
  EXPECT_EQ(GetDictHeadingType(dictionary_, 1, "LOCA_ID"), "ID");
  EXPECT_EQ(GetDictHeadingUnit(dictionary_, 1, "LOCA_ID"), "");
}

TEST_F(DictHeading, HasNeitherOutsideTheDictionary) {
  EXPECT_EQ(GetDictHeadingType(dictionary_, 0, "SAMP_TOP"), "");
  EXPECT_EQ(GetDictHeadingUnit(dictionary_, 0, "SAMP_TOP"), "");
  EXPECT_EQ(GetDictHeadingType(dictionary_, 1, "SAMP_BASE"), "");
  EXPECT_EQ(GetDictHeadingUnit(dictionary_, 1, "samp_top"), "");
}

TEST_F(DictHeading, OfAnAgs3GroupHasNoType) {
  EXPECT_EQ(GetDictHeadingType(dictionary_, 2, "HOLE_GL"), "");
  EXPECT_EQ(GetDictHeadingUnit(dictionary_, 2, "HOLE_GL"), "-1");
}

TEST(QualifyHeadingName, MarksAgs3NamesOnce) {
  EXPECT_EQ(QualifyHeadingName(AgsFormat::Ags3, "HOLE_ID"), "?HOLE_ID");
  EXPECT_EQ(QualifyHeadingName(AgsFormat::Ags3, "?HOLE_ID"), "?HOLE_ID");
  EXPECT_EQ(QualifyHeadingName(AgsFormat::Ags3, ""), "?");
}

TEST(QualifyHeadingName, LeavesAgs4NamesAsTheyAre) {
  EXPECT_EQ(QualifyHeadingName(AgsFormat::Ags4, "LOCA_ID"), "LOCA_ID");
  EXPECT_EQ(QualifyHeadingName(AgsFormat::Ags4, "?LOCA_ID"), "?LOCA_ID");
}

}  // namespace
}  // namespace quorvane::test
