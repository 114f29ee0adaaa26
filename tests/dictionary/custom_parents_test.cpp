#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "dictionary/custom_dictionary.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Ags3Parents = Ags3DictTest;
using Ags4Parents = Ags4DictTest;

TEST_F(Ags4Parents, KeyOfOwnHeadingsOnlyGivesNoParentAndNoQuestion) {
  dictionary.Add(Ags4Dict({DefinesGroup("HVAN"), DefinesHeading("HVAN", "HVAN_REF", "KEY"),
                           DefinesHeading("HVAN", "LOCA_ID", "OTHER")}));
  EXPECT_EQ(dictionary.Of("HVAN").ParentGroup, "");
  EXPECT_EQ(dictionary.Of("HVAN").ParentKeyCount, 0);
  EXPECT_THAT(dictionary.Questions(), IsEmpty());
}

TEST_F(Ags4Parents, OnlyCandidateIsTakenWithoutAsking) {
  dictionary.Add(Ags4Dict({DefinesGroup("HVAN"), DefinesHeading("HVAN", "STND_REF", "KEY"),
                           DefinesHeading("HVAN", "HVAN_NO", "KEY")}));
  EXPECT_EQ(dictionary.Of("HVAN").ParentGroup, "STND");
  EXPECT_EQ(dictionary.Of("HVAN").ParentKeyCount, 1);
  EXPECT_THAT(dictionary.Questions(), IsEmpty());
}

TEST_F(Ags4Parents, LongerKeyWinsWithoutAsking) {
  dictionary.Add(Ags4Dict(
      {DefinesGroup("HVAN"), DefinesHeading("HVAN", "LOCA_ID", "KEY"),
       DefinesHeading("HVAN", "SAMP_TOP", "KEY"), DefinesHeading("HVAN", "SAMP_REF", "KEY"),
       DefinesHeading("HVAN", "SAMP_TYPE", "KEY"), DefinesHeading("HVAN", "SAMP_ID", "KEY"),
       DefinesHeading("HVAN", "HVAN_NO", "KEY")}));
  EXPECT_EQ(dictionary.Of("HVAN").ParentGroup, "SAMP");
  EXPECT_EQ(dictionary.Of("HVAN").ParentKeyCount, 5);
  EXPECT_THAT(dictionary.Questions(), IsEmpty());
}

TEST_F(Ags4Parents, MissingCandidateLeavesTheGroupWithoutParent) {
  // A group without key headings is no candidate: no key could refer to it.
  dictionary.Add(Ags4Dict({DefinesGroup("AAAA", "LOCA"), DefinesHeading("AAAA", "AAAA_A", "OTHER"),
                           DefinesGroup("HVAN"), DefinesHeading("HVAN", "ZZZZ_REF", "KEY"),
                           DefinesHeading("HVAN", "HVAN_NO", "KEY")}));
  EXPECT_EQ(dictionary.Of("HVAN").ParentGroup, "");
  EXPECT_THAT(dictionary.Questions(), IsEmpty());
}

TEST_F(Ags3Parents, TwoEquallyGoodCandidatesBringUpTheQuestion) {
  dictionary.services.parentChoice.answers["?SOAK"] = "DPRG";
  dictionary.Add(Ags3Dict({DefinesGroup("SOAK"), DefinesHeading("SOAK", "HOLE_ID", "KEY"),
                           DefinesHeading("SOAK", "SOAK_TIME", "KEY")}));
  ASSERT_EQ(dictionary.Questions().size(), 1U);
  const RecordingParentChoice::Question& question = dictionary.Questions().front();
  EXPECT_EQ(question.file, "test.ags");
  EXPECT_EQ(question.group, "?SOAK");
  EXPECT_EQ(question.label, "Group ?SOAK does not have a parent.\r\nSpecify one below.");
  EXPECT_THAT(question.lists[0], IsEmpty());
  EXPECT_THAT(question.lists[1], ElementsAre("DPRG", "HOLE"));
  EXPECT_TRUE(question.showsSecondList);
  EXPECT_EQ(question.preselected, "DPRG");
  EXPECT_EQ(dictionary.Of("?SOAK").ParentGroup, "DPRG");
  EXPECT_EQ(dictionary.Of("?SOAK").ParentKeyCount, 1);
  EXPECT_THAT(dictionary.services.messages.notes, IsEmpty());
}

TEST_F(Ags3Parents, CandidatesWithTheGroupsOwnKeyCountStandInTheFirstList) {
  dictionary.Add(Ags3Dict({DefinesGroup("AAAA", "HOLE"), DefinesHeading("AAAA", "HOLE_ID", "KEY"),
                           DefinesGroup("SOAK"), DefinesHeading("SOAK", "HOLE_ID", "KEY")}));
  ASSERT_EQ(dictionary.Questions().size(), 1U);
  const RecordingParentChoice::Question& question = dictionary.Questions().front();
  EXPECT_THAT(question.lists[0], ElementsAre("DPRG", "HOLE", "?AAAA"));
  EXPECT_THAT(question.lists[1], IsEmpty());
  EXPECT_FALSE(question.showsSecondList);
  EXPECT_EQ(question.preselected, "DPRG");
}

TEST_F(Ags3Parents, UserMayLeaveTheGroupWithoutParent) {
  dictionary.services.parentChoice.answers["?SOAK"] = "";
  dictionary.Add(Ags3Dict({DefinesGroup("SOAK"), DefinesHeading("SOAK", "HOLE_ID", "KEY")}));
  EXPECT_EQ(dictionary.Of("?SOAK").ParentGroup, "");
  EXPECT_EQ(dictionary.Of("?SOAK").ParentKeyCount, 0);
}

TEST_F(Ags3Parents, MarksCountForCandidatesWhoseNameHasOne) {
  dictionary.Add(Ags3Dict(
      {DefinesGroup("AAAA"), DefinesHeading("AAAA", "HOLE_ID", "KEY"),
       DefinesHeading("AAAA", "MONP_DIS", "KEY"), DefinesHeading("AAAA", "MONP_ID", "KEY"),
       DefinesHeading("AAAA", "AAAA_NO", "KEY"), DefinesGroup("BBBB"),
       DefinesHeading("BBBB", "HOLE_ID", "KEY"), DefinesHeading("BBBB", "INST_TDEP", "KEY"),
       DefinesHeading("BBBB", "INST_ID", "KEY"), DefinesHeading("BBBB", "BBBB_NO", "KEY")}));
  EXPECT_EQ(dictionary.Of("?AAAA").ParentGroup, "?MONP");
  EXPECT_EQ(dictionary.Of("?BBBB").ParentGroup, "INST");
  EXPECT_THAT(dictionary.Questions(), IsEmpty());
}

TEST_F(Ags4Parents, StandardGroupWhoseKeyWasExtendedMayGetAParent) {
  dictionary.Add(Ags4Dict({DefinesHeading("STND", "LBSG_REF", "KEY")}));
  EXPECT_EQ(dictionary.Of("STND").ParentGroup, "LBSG");
  EXPECT_EQ(dictionary.Of("STND").ParentKeyCount, 1);
  EXPECT_EQ(dictionary.Of("LOCA").ParentGroup, "");
}

TEST_F(Ags3Parents, FailureOfTheQuestionLeavesTheGroupsMadeSoFar) {
  dictionary.services.parentChoice.throwsForGroup = "?SOAK";
  EXPECT_THROW(
      dictionary.Add(Ags3Dict({DefinesGroup("SOAK"), DefinesHeading("SOAK", "HOLE_ID", "KEY")})),
      std::runtime_error);
  EXPECT_THAT(dictionary.Of("?SOAK").KeyHeadings, ElementsAre("?HOLE_ID"));
}

}  // namespace
}  // namespace quorvane::test
