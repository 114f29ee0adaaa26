#include "dictionary/custom_groups.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "dictionary/custom_dictionary.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Ags3Groups = Ags3DictTest;
using Ags4Groups = Ags4DictTest;

TEST_F(Ags4Groups, FileWithoutDictGroupLeavesTheDictionaryAsItIs) {
  const int count = dictionary.groups.GroupCount();
  dictionary.Add(MinimalAgs4().Text());
  EXPECT_EQ(dictionary.groups.GroupCount(), count);
  EXPECT_TRUE(dictionary.added.empty());
}

TEST_F(Ags4Groups, GroupAndItsHeadingsBecomeAnEntry) {
  dictionary.Add(Ags4Dict({DefinesGroup("HVAN", "LOCA"), DefinesHeading("HVAN", "LOCA_ID", "KEY"),
                           DefinesHeading("HVAN", "HVAN_DPTH", "KEY"),
                           DefinesHeading("HVAN", "HVAN_SU", "OTHER")}));
  const DictGroup& group = dictionary.Of("HVAN");
  EXPECT_EQ(dictionary.groups.FindDictGroup("HVAN"), dictionary.groups.GroupCount());
  EXPECT_EQ(group.ParentGroup, "LOCA");
  EXPECT_EQ(group.ParentKeyCount, 1);
  EXPECT_THAT(group.Headings, ElementsAre("LOCA_ID", "HVAN_DPTH", "HVAN_SU"));
  EXPECT_THAT(group.KeyHeadings, ElementsAre("LOCA_ID", "HVAN_DPTH"));
  EXPECT_EQ(group.KeyCount, 2);
  EXPECT_EQ(group.HeadingPosition("HVAN_SU"), 3);
  EXPECT_EQ(group.NumericKeyPositions, "");
  EXPECT_TRUE(dictionary.added.empty());
  EXPECT_THAT(dictionary.Questions(), IsEmpty());
}

TEST_F(Ags3Groups, NamesAreKeptWithTheirMark) {
  dictionary.Add(Ags3Dict({DefinesGroup("SOAK", "HOLE"), DefinesHeading("SOAK", "HOLE_ID", "KEY"),
                           DefinesHeading("SOAK", "?SOAK_TIME", "KEY"),
                           DefinesHeading("SOAK", "SOAK_DPTH", "COMMON")}));
  EXPECT_EQ(dictionary.groups.FindDictGroup("SOAK"), 0);
  const DictGroup& group = dictionary.Of("?SOAK");
  EXPECT_THAT(group.Headings, ElementsAre("?HOLE_ID", "?SOAK_TIME", "?SOAK_DPTH"));
  EXPECT_THAT(group.KeyHeadings, ElementsAre("?HOLE_ID", "?SOAK_TIME"));
  EXPECT_EQ(group.ParentGroup, "HOLE");
  EXPECT_EQ(group.ParentKeyCount, 1);
}

TEST_F(Ags3Groups, NumericKeysAreNamedByTheGroupsOwnRowsOnly) {
  dictionary.Add(Ags3Dict(
      {DefinesGroup("AAAA", "SAMP"), DefinesGroup("BBBB", "SAMP"),
       DefinesHeading("AAAA", "HOLE_ID", "KEY"), DefinesHeading("AAAA", "SAMP_TOP", "KEY"),
       DefinesHeading("BBBB", "SAMP_REF", "KEY"), DefinesHeading("AAAA", "SPEC_DPTH", "COMMON"),
       DefinesHeading("AAAA", "SAMP_TOP", "KEY")}));
  EXPECT_EQ(dictionary.Of("?AAAA").NumericKeyPositions, "?SAMP_TOP,?SPEC_DPTH");
  EXPECT_EQ(dictionary.Of("?BBBB").NumericKeyPositions, "");
}

TEST_F(Ags4Groups, GroupsWithoutTheLocationKeyAreToldByTheirHeadings) {
  dictionary.Add(
      Ags4Dict({DefinesGroup("AAAA", "PROJ"), DefinesGroup("BBBB", "LOCA"),
                DefinesHeading("AAAA", "AAAA_REF", "KEY"), DefinesHeading("BBBB", "LOCA_ID", "KEY"),
                DefinesGroup("CCCC", "PROJ"), DefinesHeading("CCCC", "CCCC_REF", "KEY"),
                DefinesHeading("CCCC", "LOCA_IDX", "OTHER")}));
  EXPECT_TRUE(dictionary.groups.GroupsWithoutLocationKey.contains("AAAA"));
  EXPECT_FALSE(dictionary.groups.GroupsWithoutLocationKey.contains("BBBB"));
  // The key is looked for as text.
  EXPECT_FALSE(dictionary.groups.GroupsWithoutLocationKey.contains("CCCC"));
}

TEST_F(Ags3Groups, MarkedLocationKeyCountsAsLocationKey) {
  dictionary.Add(
      Ags3Dict({DefinesGroup("AAAA", "HOLE"), DefinesHeading("AAAA", "HOLE_ID", "KEY"),
                DefinesGroup("BBBB", "PROJ"), DefinesHeading("BBBB", "BBBB_REF", "KEY")}));
  EXPECT_FALSE(dictionary.groups.GroupsWithoutLocationKey.contains("?AAAA"));
  EXPECT_TRUE(dictionary.groups.GroupsWithoutLocationKey.contains("?BBBB"));
}

TEST_F(Ags4Groups, GroupOfTheDictionaryIsNotAddedAgain) {
  const int count = dictionary.groups.GroupCount();
  dictionary.Add(Ags4Dict({DefinesGroup("SAMP", "PROJ")}));
  EXPECT_EQ(dictionary.groups.GroupCount(), count);
  EXPECT_EQ(dictionary.Of("SAMP").ParentGroup, "LOCA");
}

TEST_F(Ags3Groups, GroupThatTheDictionaryHasWithItsMarkIsNotAddedAgain) {
  const int count = dictionary.groups.GroupCount();
  dictionary.Add(Ags3Dict({DefinesGroup("BKFL", "HOLE"), DefinesHeading("BKFL", "HOLE_ID", "KEY"),
                           DefinesHeading("BKFL", "BKFL_TOP", "KEY"), DefinesGroup("?MONP")}));
  EXPECT_EQ(dictionary.groups.GroupCount(), count);
  EXPECT_THAT(dictionary.Of("?BKFL").KeyHeadings, ElementsAre("?HOLE_ID", "?BKFL_TOP"));
  EXPECT_EQ(dictionary.Of("?BKFL").KeyCount, 2);
}

TEST_F(Ags4Groups, LetterCaseAndBlanksAroundValuesDoNotMatter) {
  dictionary.Add(Ags4Dict({{" Group ", " HVAN ", "", "", " LOCA "},
                           {"heading", " HVAN", " LOCA_ID ", " key ", ""},
                           {"anything", "HVAN", "HVAN_NO", "KEY", ""}}));
  const DictGroup& group = dictionary.Of("HVAN");
  EXPECT_EQ(group.ParentGroup, "LOCA");
  EXPECT_THAT(group.KeyHeadings, ElementsAre("LOCA_ID", "HVAN_NO"));
}

TEST_F(Ags4Groups, StatusMustBeExactlyKey) {
  dictionary.Add(Ags4Dict({DefinesGroup("HVAN", "LOCA"), DefinesHeading("HVAN", "LOCA_ID", "KEY"),
                           DefinesHeading("HVAN", "HVAN_NO", "KEY+REQUIRED"),
                           DefinesHeading("GEOL", "GEOL_OWN", "KEY+REQUIRED")}));
  EXPECT_THAT(dictionary.Of("HVAN").KeyHeadings, ElementsAre("LOCA_ID"));
  EXPECT_EQ(dictionary.Of("GEOL").KeyCount, 3);
}

TEST_F(Ags4Groups, IncompleteRowsAreSkipped) {
  const int count = dictionary.groups.GroupCount();
  dictionary.Add(Ags4Dict({DefinesGroup("HVAN", "LOCA"),
                           {"", "AAAA", "", "", "LOCA"},
                           {"GROUP", "", "", "", "LOCA"},
                           {"", "HVAN", "HVAN_A", "KEY", ""},
                           {"HEADING", "", "HVAN_B", "KEY", ""},
                           {"HEADING", "HVAN", "", "KEY", ""},
                           {"HEADING", "LOCA", "", "KEY", ""},
                           DefinesHeading("HVAN", "LOCA_ID", "KEY")}));
  EXPECT_EQ(dictionary.groups.GroupCount(), count + 1);
  EXPECT_THAT(dictionary.Of("HVAN").Headings, ElementsAre("LOCA_ID"));
  EXPECT_THAT(dictionary.Of("LOCA").KeyHeadings, ElementsAre("LOCA_ID"));
  EXPECT_TRUE(dictionary.added.empty());
}

TEST_F(Ags4Groups, HeadingListedTwiceIsOneHeading) {
  dictionary.Add(Ags4Dict({DefinesGroup("HVAN", "LOCA"), DefinesHeading("HVAN", "LOCA_ID", "OTHER"),
                           DefinesHeading("HVAN", "LOCA_ID", "KEY"),
                           DefinesHeading("HVAN", "LOCA_ID", "KEY")}));
  EXPECT_THAT(dictionary.Of("HVAN").Headings, ElementsAre("LOCA_ID"));
  EXPECT_THAT(dictionary.Of("HVAN").KeyHeadings, ElementsAre("LOCA_ID"));
  EXPECT_EQ(dictionary.Of("HVAN").KeyCount, 1);
}

TEST_F(Ags4Groups, HeadingRowsMayComeBeforeTheirGroup) {
  dictionary.Add(
      Ags4Dict({DefinesHeading("HVAN", "LOCA_ID", "KEY"), DefinesGroup("HVAN", "LOCA")}));
  EXPECT_THAT(dictionary.Of("HVAN").KeyHeadings, ElementsAre("LOCA_ID"));
}

TEST_F(Ags4Groups, OfTwoRowsForOneGroupTheFirstTakesTheHeadings) {
  const int count = dictionary.groups.GroupCount();
  dictionary.Add(Ags4Dict({DefinesGroup("HVAN", "LOCA"), DefinesGroup("HVAN", "SAMP"),
                           DefinesHeading("HVAN", "LOCA_ID", "KEY")}));
  ASSERT_EQ(dictionary.groups.GroupCount(), count + 2);
  EXPECT_EQ(dictionary.groups.FindDictGroup("HVAN"), count + 1);
  EXPECT_EQ(dictionary.groups.Group(count + 1).KeyCount, 1);
  EXPECT_EQ(dictionary.groups.Group(count + 1).ParentGroup, "LOCA");
  EXPECT_EQ(dictionary.groups.Group(count + 2).KeyCount, 0);
  EXPECT_EQ(dictionary.groups.Group(count + 2).ParentGroup, "SAMP");
}

TEST_F(Ags3Groups, ParentIsAGroupOfTheDictionaryOrTakesTheMark) {
  dictionary.Add(Ags3Dict({DefinesGroup("AAAA", "HOLE"), DefinesGroup("BBBB", "MONP"),
                           DefinesGroup("CCCC", "AAAA"), DefinesGroup("DDDD", "ZZZZ"),
                           DefinesHeading("AAAA", "HOLE_ID", "KEY")}));
  EXPECT_EQ(dictionary.Of("?AAAA").ParentGroup, "HOLE");
  EXPECT_EQ(dictionary.Of("?BBBB").ParentGroup, "?MONP");
  EXPECT_EQ(dictionary.Of("?BBBB").ParentKeyCount, 3);
  EXPECT_EQ(dictionary.Of("?CCCC").ParentGroup, "?AAAA");
  EXPECT_EQ(dictionary.Of("?CCCC").ParentKeyCount, 1);
  EXPECT_EQ(dictionary.Of("?DDDD").ParentGroup, "?ZZZZ");
  EXPECT_EQ(dictionary.Of("?DDDD").ParentKeyCount, 0);
}

TEST_F(Ags4Groups, DashMeansNoParent) {
  dictionary.Add(Ags4Dict({DefinesGroup("HVAN", "-"), DefinesHeading("HVAN", "HVAN_REF", "KEY")}));
  EXPECT_EQ(dictionary.Of("HVAN").ParentGroup, "");
}

TEST_F(Ags3Groups, ParentIsReadUnderTheMarkedHeadingOnly) {
  Ags3File file;
  file.Group("DICT", {"dict_type", "DICT_GRP", "DICT_HDNG", "DICT_STAT", "DICT_PGRP"}, {},
             {{"GROUP", "AAAA", "", "", "HOLE"}});
  dictionary.Add(file.Text());
  EXPECT_EQ(dictionary.Of("?AAAA").ParentGroup, "");
}

TEST_F(Ags4Groups, KeyRowExtendsTheKeyOfAStandardGroup) {
  ASSERT_EQ(dictionary.Of("SAMP").KeyCount, 5);
  const int children = dictionary.Of("GCHM").ParentKeyCount;
  ASSERT_EQ(children, 5);
  dictionary.Add(Ags4Dict(
      {DefinesHeading("SAMP", "SAMP_LAYR", "KEY"), DefinesHeading("SAMP", "SAMP_LAYR", "KEY"),
       DefinesHeading("SAMP", "SAMP_TOP", "KEY"), DefinesHeading("SAMP", "SAMP_MAT", "OTHER"),
       DefinesHeading("?SAMP", "SAMP_MARK", "KEY")}));
  EXPECT_EQ(dictionary.Of("SAMP").KeyCount, 7);
  EXPECT_EQ(dictionary.Of("SAMP").KeyHeadings.size(), 7U);
  EXPECT_EQ(dictionary.Of("SAMP").KeyHeadings[5], "SAMP_LAYR");
  EXPECT_EQ(dictionary.Of("SAMP").KeyHeadings[6], "SAMP_MARK");
  EXPECT_EQ(dictionary.Of("GCHM").ParentKeyCount, 7);
}

TEST_F(Ags3Groups, KeyOfAStandardGroupIsKnownWithAndWithoutMark) {
  dictionary.Add(Ags3Dict(
      {DefinesHeading("HOLE", "HOLE_ID", "KEY"), DefinesHeading("BKFL", "BKFL_TOP", "KEY"),
       DefinesHeading("BKFL", "BKFL_BASE", "KEY"), DefinesHeading("GEOL", "GEOL_OWN", "KEY")}));
  EXPECT_THAT(dictionary.Of("HOLE").KeyHeadings, ElementsAre("HOLE_ID"));
  EXPECT_THAT(dictionary.Of("?BKFL").KeyHeadings,
              ElementsAre("?HOLE_ID", "?BKFL_TOP", "?BKFL_BASE"));
  EXPECT_THAT(dictionary.Of("GEOL").KeyHeadings,
              ElementsAre("HOLE_ID", "GEOL_TOP", "GEOL_BASE", "?GEOL_OWN"));
  EXPECT_EQ(dictionary.Of("GEOL").KeyCount, 4);
  EXPECT_TRUE(dictionary.added.empty());
}

TEST_F(Ags4Groups, HeadingsAddedToStandardGroupsAreGathered) {
  dictionary.Add(Ags4Dict(
      {DefinesHeading("LOCA", "LOCA_CHKD", "OTHER"), DefinesHeading("LOCA", "LOCA_GL", "OTHER"),
       DefinesHeading("GEOL", "GEOL_OWN", "KEY"), DefinesHeading("LOCA", "BARG_NAME", ""),
       DefinesGroup("HVAN", "LOCA"), DefinesHeading("HVAN", "HVAN_SU", "OTHER"),
       DefinesHeading("ZZZZ", "ZZZZ_REF", "OTHER")}));
  EXPECT_EQ(dictionary.added.size(), 2U);
  EXPECT_THAT(dictionary.added["LOCA"], ElementsAre("LOCA_CHKD", "BARG_NAME"));
  EXPECT_THAT(dictionary.added["GEOL"], ElementsAre("GEOL_OWN"));
}

TEST_F(Ags4Groups, OnlyTheFirstDictGroupIsRead) {
  dictionary.Add(Ags4Dict({DefinesGroup("AAAA", "LOCA")}) + "\n" +
                 Ags4Dict({DefinesGroup("BBBB", "LOCA")}));
  EXPECT_NE(dictionary.groups.FindDictGroup("AAAA"), 0);
  EXPECT_EQ(dictionary.groups.FindDictGroup("BBBB"), 0);
}

TEST_F(Ags3Groups, BlockEndsAtTheNextGroupAndMayHoldUnitsAndContinuedRows) {
  dictionary.Add(Lines({"\"**PROJ\"", "\"*PROJ_ID\"", "\"<UNITS>\"", "\"P1\"", "", "\"**DICT\"",
                        "\"*DICT_TYPE\",\"*DICT_GRP\",", "\"*DICT_HDNG\",\"*DICT_STAT\"",
                        "\"<UNITS>\",\"\",\"\",\"\"", "\"GROUP\",\"AA\",\"\",\"\"",
                        "\"<CONT>\",\"BB\",\"\",\"\"", "\"HEADING\",\"AABB\",\"AABB_ID\",\"KEY\"",
                        "\"**HOLE\"", "\"*HOLE_ID\"", "\"GROUP\"", "\"<UNITS>\",\"\"",
                        "\"GROUP\",\"XXXX\",\"\",\"\""}));
  EXPECT_THAT(dictionary.Of("?AABB").KeyHeadings, ElementsAre("?AABB_ID"));
  EXPECT_EQ(dictionary.groups.FindDictGroup("?XXXX"), 0);
}

TEST_F(Ags4Groups, BlockEndsAtALineThatHoldsTheStartOfAGroupLineAnywhere) {
  dictionary.Add(Ags4Dict({DefinesGroup("AAAA", "LOCA"), DefinesHeading("AAAA", "**A", "KEY"),
                           DefinesGroup("BBBB", "LOCA")}));
  EXPECT_EQ(dictionary.Of("AAAA").KeyCount, 0);
  EXPECT_EQ(dictionary.groups.FindDictGroup("BBBB"), 0);
}

TEST_F(Ags4Groups, MessagesOfTheReadingAheadAreMuted) {
  Ags4File file;
  file.Group("DICT", {"DICT_TYPE", "DICT_GRP", "DICT_TYPE"}, {""}, {"X", "X"},
             {{"GROUP", "HVAN"}, {"GROUP", "   ", "", "", ""}});
  file.Line("\"DATA\",GROUP,\"AAAA");
  dictionary.Add(file.Text());
  dictionary.log.CloseCheckSection("Test");
  EXPECT_EQ(dictionary.log.ClosedCount(), 0U);
  EXPECT_NE(dictionary.groups.FindDictGroup("HVAN"), 0);
}

TEST_F(Ags4Groups, LogTakesMessagesAgainAfterwards) {
  static constexpr MessageDefinition remark{.id = "test.remark",
                                            .ags3 = {},
                                            .ags4 = {Severity::Fyi, "", "remark"},
                                            .meaning = {},
                                            .remedy = {}};
  dictionary.Add(Ags4Dict({DefinesGroup("HVAN", "LOCA")}));
  dictionary.log.AddMessage(1, remark);
  dictionary.log.CloseCheckSection("Test");
  EXPECT_EQ(dictionary.log.ClosedCount(), 1U);
}

}  // namespace
}  // namespace quorvane::test
