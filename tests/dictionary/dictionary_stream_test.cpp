#include "dictionary/dictionary_stream.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

using Texts = std::vector<std::string>;

AgsDictionary Parse(AgsFormat format, std::string_view stream, const DictionaryLists& lists = {}) {
  return ParseDictionaryStream(format, stream, "!", lists);
}

/// What a stream that cannot be used says; empty when it can.
std::string FailureOf(AgsFormat format, std::string_view stream) {
  try {
    Parse(format, stream);
    return {};
  } catch (const DictionaryError& failure) {
    return failure.what();
  }
}

DictionaryLists WithLocation(const std::string& group, const std::string& key) {
  DictionaryLists lists;
  lists.locationGroup = group;
  lists.locationKey = key;
  return lists;
}

TEST(DictionaryStream, ReadsAGroupInSchemaLayout) {
  const AgsDictionary dictionary =
      Parse(AgsFormat::Ags4, "SAMP!LOCA,2!LOCA_ID,SAMP_TOP,SAMP_REM!,m,!ID,2DP,X");
  ASSERT_EQ(dictionary.GroupCount(), 1);
  const DictGroup& group = dictionary.Group(1);
  EXPECT_EQ(group.Name, "SAMP");
  EXPECT_EQ(group.ParentGroup, "LOCA");
  EXPECT_EQ(group.KeyCount, 2);
  EXPECT_THAT(group.Headings, ElementsAre("LOCA_ID", "SAMP_TOP", "SAMP_REM"));
  EXPECT_THAT(group.KeyHeadings, ElementsAre("LOCA_ID", "SAMP_TOP"));
  EXPECT_EQ(group.NumericKeyPositions, "");
  EXPECT_THAT(group.Units, ElementsAre("", "m", ""));
  EXPECT_THAT(group.Types, ElementsAre("ID", "2DP", "X"));
}

TEST(DictionaryStream, ReadsAGroupInAgs3Layout) {
  const AgsDictionary dictionary =
      Parse(AgsFormat::Ags3, "GEOL!HOLE,3,2|3!HOLE_ID,GEOL_TOP,GEOL_BASE,GEOL_DESC!0,-1,-1,0");
  ASSERT_EQ(dictionary.GroupCount(), 1);
  const DictGroup& group = dictionary.Group(1);
  EXPECT_EQ(group.ParentGroup, "HOLE");
  EXPECT_EQ(group.KeyCount, 3);
  EXPECT_EQ(group.NumericKeyPositions, "2|3");
  EXPECT_THAT(group.Units, ElementsAre("0", "-1", "-1", "0"));
  EXPECT_THAT(group.Types, IsEmpty());
  EXPECT_THAT(dictionary.NumericHeadings, UnorderedElementsAre("GEOL_TOP", "GEOL_BASE"));
}

TEST(DictionaryStream, AThirdFieldThatIsEmptyIsAgs3LayoutWithoutNumericKeys) {
  const AgsDictionary dictionary =
      Parse(AgsFormat::Ags3, "ABBR!,2,!ABBR_HDNG,ABBR_CODE!0,0!CODE!,1,!CODE_CODE!0");
  ASSERT_EQ(dictionary.GroupCount(), 2);
  EXPECT_EQ(dictionary.Group(1).ParentGroup, "");
  EXPECT_EQ(dictionary.Group(1).KeyCount, 2);
  EXPECT_EQ(dictionary.Group(1).NumericKeyPositions, "");
  EXPECT_EQ(dictionary.Group(2).Name, "CODE");
  EXPECT_THAT(dictionary.LinkKeyHeadings, IsEmpty());
}

TEST(DictionaryStream, ThreeKeyFieldsMakeTheItemBehindTheHeadingsFlagsWithoutATypesItem) {
  // The same in either format: the key item alone decides.
  for (const AgsFormat format : {AgsFormat::Ags3, AgsFormat::Ags4}) {
    const AgsDictionary dictionary =
        Parse(format, "SAMP!LOCA,2,2!LOCA_ID,SAMP_TOP!0,-1!GEOL!LOCA,1!LOCA_ID,GEOL_TOP!,m!ID,2DP");
    ASSERT_EQ(dictionary.GroupCount(), 2);
    EXPECT_THAT(dictionary.Group(1).Types, IsEmpty());
    EXPECT_EQ(dictionary.Group(2).Name, "GEOL");
    EXPECT_THAT(dictionary.Group(2).Types, ElementsAre("ID", "2DP"));
  }
}

TEST(DictionaryStream, KeyHeadingsAreNoMoreThanThereAreHeadings) {
  const AgsDictionary dictionary = Parse(AgsFormat::Ags4, "XXXX!,4!XXXX_ID,XXXX_A!,!X,X");
  EXPECT_EQ(dictionary.Group(1).KeyCount, 4);
  EXPECT_THAT(dictionary.Group(1).KeyHeadings, ElementsAre("XXXX_ID", "XXXX_A"));
}

TEST(DictionaryStream, AGroupMayHaveNoKey) {
  const AgsDictionary dictionary = Parse(AgsFormat::Ags4, "XXXX!,0!XXXX_ID!!X");
  EXPECT_EQ(dictionary.Group(1).KeyCount, 0);
  EXPECT_THAT(dictionary.Group(1).KeyHeadings, IsEmpty());
}

TEST(DictionaryStream, TakesTheParentsKeyCountWhereverTheParentStands) {
  const AgsDictionary dictionary =
      Parse(AgsFormat::Ags4, "BBBB!AAAA,3!A,B,C!,,!X,X,X!AAAA!,2!A,B!,!X,X");
  EXPECT_EQ(dictionary.Group(1).ParentKeyCount, 2);
  EXPECT_EQ(dictionary.Group(2).ParentKeyCount, 0);
}

TEST(DictionaryStream, AParentThatIsNotThereHasNoKeyCount) {
  const AgsDictionary dictionary =
      Parse(AgsFormat::Ags4, "BBBB!ZZZZ,3!A,B,C!,,!X,X,X!CCCC!bbbb,1!A!!X");
  EXPECT_EQ(dictionary.Group(1).ParentGroup, "ZZZZ");
  EXPECT_EQ(dictionary.Group(1).ParentKeyCount, 0);
  EXPECT_EQ(dictionary.Group(2).ParentKeyCount, 0) << "group names are compared in letter case";
}

TEST(DictionaryStream, TakesTheKeyCountOfTheFirstOfParentsOfOneName) {
  const AgsDictionary dictionary =
      Parse(AgsFormat::Ags4, "AAAA!,2!A,B!,!X,X!AAAA!,1!A!!X!BBBB!AAAA,3!A,B,C!,,!X,X,X");
  EXPECT_EQ(dictionary.Group(3).ParentKeyCount, 2);
}

TEST(DictionaryStream, LinkKeyHeadingsAreMarkedAndNamedOnceInAgs3) {
  const AgsDictionary dictionary =
      Parse(AgsFormat::Ags3,
            "SAMP!HOLE,3,2!HOLE_ID,SAMP_TOP,SAMP_REF!0,-1,0!"
            "CLSS!SAMP,4,2|4!HOLE_ID,SAMP_TOP,SAMP_REF,SPEC_DPTH!0,-1,0,-1!"
            "?MONP!HOLE,2,2!?HOLE_ID,?MONP_DIS!0,-1");
  EXPECT_THAT(dictionary.LinkKeyHeadings, ElementsAre("?SAMP_TOP", "?SPEC_DPTH", "?MONP_DIS"));
}

TEST(DictionaryStream, LinkKeyHeadingsStayAsTheyAreInAgs4) {
  const AgsDictionary dictionary = Parse(AgsFormat::Ags4, "SAMP!LOCA,2,2!LOCA_ID,SAMP_TOP!0,-1");
  EXPECT_THAT(dictionary.LinkKeyHeadings, ElementsAre("SAMP_TOP"));
}

TEST(DictionaryStream, NumericKeyPositionsBeyondTheHeadingsNameNothing) {
  const AgsDictionary dictionary =
      Parse(AgsFormat::Ags3, "SAMP!HOLE,2,0|2|9|x!HOLE_ID,SAMP_TOP!0,-1");
  EXPECT_THAT(dictionary.LinkKeyHeadings, ElementsAre("?SAMP_TOP"));
  EXPECT_EQ(dictionary.Group(1).NumericKeyPositions, "0|2|9|x");
}

TEST(DictionaryStream, GroupsWithoutLocationKeyLackItAsText) {
  const AgsDictionary dictionary =
      Parse(AgsFormat::Ags3,
            "ABBR!,2,!ABBR_HDNG,ABBR_CODE!0,0!HOLE!,1,!HOLE_ID,HOLE_GL!0,-1!"
            "?MONP!HOLE,1,!?HOLE_ID!0!XXXX!,1,!XXXX_REF,HOLE_IDX!0,0!YYYY!,1,!hole_id!0",
            WithLocation("HOLE", "HOLE_ID"));
  EXPECT_THAT(dictionary.GroupsWithoutLocationKey, UnorderedElementsAre("ABBR", "YYYY"));
  EXPECT_EQ(dictionary.LocationGroup, "HOLE");
  EXPECT_EQ(dictionary.LocationKey, "HOLE_ID");
}

TEST(DictionaryStream, RelatedGroupsAreAttachedToThoseThatTheirEntriesName) {
  DictionaryLists lists;
  lists.relatedGroups = {"CLSS,CBRG,ROCK,NONE", "?GRAG,GRAD"};
  lists.secondRelatedGroups = {"CLSS,CBRG"};
  const AgsDictionary dictionary = Parse(
      AgsFormat::Ags3, "CBRG!,1,!A!0!CLSS!,1,!A!0!GRAD!,1,!A!0!ROCK!,1,!A!0!SAMP!,1,!A!0", lists);
  Texts related;
  Texts secondRelated;
  for (const DictGroup& group : dictionary.Groups) {
    related.push_back(group.RelatedGroup);
    secondRelated.push_back(group.SecondRelatedGroup);
  }
  EXPECT_THAT(related, ElementsAre("CLSS", "", "?GRAG", "CLSS", ""));
  EXPECT_THAT(secondRelated, ElementsAre("CLSS", "", "", "", ""));
}

TEST(DictionaryStream, TakesTheListsThatHoldForTheWholeDictionary) {
  DictionaryLists lists = WithLocation("LOCA", "LOCA_ID");
  lists.requiredGroups = {"PROJ", "TRAN"};
  lists.requiredFields = {"PROJ.PROJ_ID"};
  lists.pickListHeadings = {"LOCA_TYPE"};
  lists.numericHeadings = {"LOCA_GL"};
  lists.unitFields = {{"ELRG", "ELRG_RUNI"}};
  lists.referenceGroups = {"ABBR", "CODE", "DICT", "UNIT"};
  const AgsDictionary dictionary =
      Parse(AgsFormat::Ags4, "LOCA!,1!LOCA_ID,LOCA_GL!,m!ID,2DP", lists);
  EXPECT_EQ(dictionary.RequiredGroups, lists.requiredGroups);
  EXPECT_EQ(dictionary.RequiredFields, lists.requiredFields);
  EXPECT_EQ(dictionary.PickListHeadings, lists.pickListHeadings);
  EXPECT_THAT(dictionary.NumericHeadings, UnorderedElementsAre("LOCA_GL"));
  EXPECT_EQ(dictionary.UnitFields, lists.unitFields);
  EXPECT_EQ(dictionary.ReferenceGroups, lists.referenceGroups);
  EXPECT_EQ(dictionary.LocationGroup, "LOCA");
  EXPECT_EQ(dictionary.LocationKey, "LOCA_ID");
}

TEST(DictionaryStream, AnySeparatorServes) {
  const AgsDictionary dictionary =
      ParseDictionaryStream(AgsFormat::Ags4, "A!B::,1::A!_1::m!::X", "::", {});
  EXPECT_EQ(dictionary.Group(1).Name, "A!B");
  EXPECT_THAT(dictionary.Group(1).Headings, ElementsAre("A!_1"));
  EXPECT_THAT(dictionary.Group(1).Units, ElementsAre("m!"));
}

TEST(DictionaryStream, UnitsMustMatchTheHeadings) {
  const std::string expected = "The number of units does not match the number of fields for SAMP";
  EXPECT_EQ(FailureOf(AgsFormat::Ags4, "SAMP!LOCA,1!LOCA_ID,SAMP_TOP!m!ID,2DP"), expected);
  EXPECT_EQ(FailureOf(AgsFormat::Ags4, "SAMP!LOCA,1!LOCA_ID,SAMP_TOP!,m,!ID,2DP"), expected);
  EXPECT_EQ(FailureOf(AgsFormat::Ags3, "SAMP!HOLE,1,!HOLE_ID,SAMP_TOP!0"), expected);
  EXPECT_EQ(FailureOf(AgsFormat::Ags3, "SAMP!HOLE,1,!HOLE_ID,SAMP_TOP!0,-1,0"), expected);
}

TEST(DictionaryStream, TypesMustMatchTheHeadings) {
  const std::string expected = "The number of types does not match the number of fields for SAMP";
  EXPECT_EQ(FailureOf(AgsFormat::Ags4, "SAMP!LOCA,1!LOCA_ID,SAMP_TOP!,m!ID"), expected);
  EXPECT_EQ(FailureOf(AgsFormat::Ags4, "SAMP!LOCA,1!LOCA_ID,SAMP_TOP!,m!ID,2DP,X"), expected);
}

TEST(DictionaryStream, NumericFlagsMustBeKnown) {
  EXPECT_EQ(FailureOf(AgsFormat::Ags3, "SAMP!HOLE,2,2!HOLE_ID,SAMP_TOP!0,1"),
            "Unknown v3 unit type (1) in group 'SAMP'.");
  EXPECT_EQ(FailureOf(AgsFormat::Ags3, "SAMP!HOLE,2,2!HOLE_ID,SAMP_TOP!,-1"),
            "Unknown v3 unit type () in group 'SAMP'.");
  EXPECT_EQ(FailureOf(AgsFormat::Ags4, "SAMP!LOCA,2,2!LOCA_ID,SAMP_TOP!0,m"),
            "Unknown v3 unit type (m) in group 'SAMP'.");
}

TEST(DictionaryStream, KeyCountsMustBeNumbers) {
  for (const std::string_view key : {"LOCA,two", "LOCA,", "LOCA", "", "LOCA,1.5"}) {
    const std::string stream = "SAMP!" + std::string(key) + "!LOCA_ID!!ID";
    EXPECT_THAT(FailureOf(AgsFormat::Ags4, stream), HasSubstr("SAMP")) << key;
  }
}

TEST(DictionaryStream, MustNotEndInsideAGroup) {
  const Texts items{"SAMP", "LOCA,1", "LOCA_ID", "", "ID"};
  std::string stream;
  for (const std::string& item : items) {
    if (&item != &items.front()) {
      EXPECT_THAT(FailureOf(AgsFormat::Ags4, stream), HasSubstr("SAMP")) << stream;
      stream += "!";
    }
    stream += item;
  }
  EXPECT_EQ(FailureOf(AgsFormat::Ags4, stream), "");
}

}  // namespace
}  // namespace quorvane::test
