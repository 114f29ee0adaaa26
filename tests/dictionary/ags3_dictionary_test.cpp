#include "dictionary/ags3_dictionary.h"

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "dictionary/ags3_dictionary_table.h"
#include "text/comma_list.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

class Ags3Dictionary : public testing::Test {
 protected:
  Ags3Dictionary()
      : stream_(BuildAgs3Dictionary("!", lists_)),
        dictionary_(ParseDictionaryStream(AgsFormat::Ags3, stream_, "!", lists_)) {}

  const DictGroup& Find(std::string_view name) const {
    static const DictGroup noGroup;
    const int index = dictionary_.FindDictGroup(name);
    EXPECT_NE(index, 0) << name;
    return index == 0 ? noGroup : dictionary_.Group(index);
  }

  DictionaryLists lists_;
  std::string stream_;
  AgsDictionary dictionary_;
};

TEST_F(Ags3Dictionary, StreamHoldsFourItemsPerGroupAndNoLeadingSeparator) {
  EXPECT_TRUE(stream_.starts_with("ABBR!,2,!ABBR_HDNG,ABBR_CODE,ABBR_DESC!0,0,0!CBRG!SAMP,6,2|6!"));
  EXPECT_TRUE(stream_.ends_with(
      "!?TREM!HOLE,3,!?HOLE_ID,?TREM_DATE,?TREM_TIME,?TREM_REM,?FILE_FSET!0,-1,-1,0,0"));
  EXPECT_EQ(Split(stream_, "!").size(), 4U * 73U);
}

TEST_F(Ags3Dictionary, StreamTakesAnySeparator) {
  DictionaryLists lists;
  EXPECT_EQ(Split(BuildAgs3Dictionary("::", lists), "::"), Split(stream_, "!"));
}

TEST_F(Ags3Dictionary, ParsesWithEveryGroupAsTheTableHasIt) {
  const auto rows = Ags3DictionaryRows();
  ASSERT_EQ(dictionary_.GroupCount(), static_cast<int>(rows.size()));
  for (std::size_t index = 0; index < rows.size(); ++index) {
    const DictGroup& group = dictionary_.Group(static_cast<int>(index) + 1);
    EXPECT_EQ(group.Name, rows[index].Group);
    EXPECT_EQ(Join(group.Headings, ","), rows[index].Headings);
    EXPECT_EQ(Join(group.Units, ","), rows[index].NumericFlags);
    EXPECT_THAT(group.Types, IsEmpty());
    EXPECT_EQ(group.KeyHeadings.size(), static_cast<std::size_t>(group.KeyCount));
    const std::string key =
        group.ParentGroup + "," + std::to_string(group.KeyCount) + "," + group.NumericKeyPositions;
    EXPECT_EQ(key, rows[index].KeyItem);
  }
}

TEST_F(Ags3Dictionary, HasTheKeysOfSamplesAndSpecimens) {
  EXPECT_THAT(Find("SAMP").KeyHeadings,
              ElementsAre("HOLE_ID", "SAMP_TOP", "SAMP_REF", "SAMP_TYPE"));
  EXPECT_THAT(Find("TRIG").KeyHeadings,
              ElementsAre("HOLE_ID", "SAMP_TOP", "SAMP_REF", "SAMP_TYPE", "SPEC_REF", "SPEC_DPTH"));
  EXPECT_EQ(Find("TRIX").KeyHeadings.back(), "TRIX_TESN");
  EXPECT_EQ(Find("GRAD").KeyHeadings.back(), "GRAD_SIZE");
}

TEST_F(Ags3Dictionary, KnowsTheKeyCountsOfParents) {
  EXPECT_EQ(Find("SAMP").ParentKeyCount, 1);
  EXPECT_EQ(Find("TRIG").ParentKeyCount, 4);
  EXPECT_EQ(Find("TRIX").ParentKeyCount, 6);
  EXPECT_EQ(Find("?MONR").ParentKeyCount, 3);
  EXPECT_EQ(Find("HOLE").ParentKeyCount, 0);
}

TEST_F(Ags3Dictionary, MarkedNamesAreKeptWithTheirMark) {
  EXPECT_EQ(Find("?ICCT").ParentGroup, "?MONP");
  EXPECT_EQ(Find("?MONR").ParentGroup, "?MONP");
  EXPECT_EQ(dictionary_.FindDictGroup("MONP"), 0);
  EXPECT_EQ(Find("?MONP").HeadingPosition("?MONP_DIS"), 2);
  EXPECT_EQ(Find("?MONP").HeadingPosition("MONP_DIS"), 0);
}

TEST_F(Ags3Dictionary, HasTheListsOfTheVersion) {
  EXPECT_THAT(dictionary_.RequiredGroups, ElementsAre("PROJ"));
  EXPECT_THAT(dictionary_.RequiredFields, IsEmpty());
  EXPECT_THAT(dictionary_.ReferenceGroups, ElementsAre("ABBR", "CODE", "DICT", "UNIT"));
  EXPECT_EQ(dictionary_.LocationGroup, "HOLE");
  EXPECT_EQ(dictionary_.LocationKey, "HOLE_ID");
  EXPECT_THAT(dictionary_.PickListHeadings,
              UnorderedElementsAre("BKFL_LEG", "CNMT_TTYP", "DISC_TERM", "FILE_DOCT", "GEOL_LEG",
                                   "GRAD_TYPE", "HOLE_TYPE", "INST_TYPE", "ISPT_TYPE", "MONP_TYPE",
                                   "PREF_TYPE", "PROF_TYPE", "PRTD_TYPE", "ROCK_PLTF", "SAMP_TYPE",
                                   "STCN_TYPE", "TRIG_TYPE"));
  EXPECT_THAT(dictionary_.UnitFields,
              ElementsAre(Pair("DICT", "DICT_UNIT"), Pair("CNMT", "CNMT_UNIT"),
                          Pair("?ICCT", "?ICCT_UNIT")));
}

TEST_F(Ags3Dictionary, NumericHeadingsAreThoseFlagged) {
  EXPECT_EQ(dictionary_.NumericHeadings.size(), 406U);
  EXPECT_TRUE(dictionary_.NumericHeadings.contains("HOLE_FDEP"));
  EXPECT_TRUE(dictionary_.NumericHeadings.contains("?MONP_DIS"));
  EXPECT_FALSE(dictionary_.NumericHeadings.contains("HOLE_ID"));
  EXPECT_FALSE(dictionary_.NumericHeadings.contains("ISPT_NVAL"));
}

TEST_F(Ags3Dictionary, LinkKeyHeadingsAreMarkedAndNamedOnce) {
  EXPECT_THAT(
      dictionary_.LinkKeyHeadings,
      ElementsAre("?SAMP_TOP", "?SPEC_DPTH", "?CDIA_CDEP", "?CHIS_FROM", "?CORE_TOP", "?CORE_BOT",
                  "?DETL_TOP", "?DETL_BASE", "?DISC_TOP", "?DISC_BASE", "?DPRB_DPTH", "?DREM_DPTH",
                  "?FLSH_FROM", "?FLSH_TO", "?FRAC_TOP", "?FRAC_BASE", "?GEOL_TOP", "?GEOL_BASE",
                  "?GRAD_SIZE", "?HDIA_HDEP", "?HPGO_DIS", "?ICBR_DPTH", "?IDEN_DPTH", "?INST_TDEP",
                  "?IPRM_TOP", "?IPRM_BASE", "?IRDX_DPTH", "?IRES_DPTH", "?ISPT_TOP", "?IVAN_DPTH",
                  "?PREF_TDEP", "?PRTD_DPTH", "?STCN_DPTH", "?WETH_TOP", "?WETH_BASE", "?WSTK_DEP",
                  "?WSTK_NMIN", "?BKFL_TOP", "?HDPH_TOP", "?IFID_DPTH", "?MONP_DIS", "?IPID_DPTH"));
}

TEST_F(Ags3Dictionary, GroupsWithoutHoles) {
  EXPECT_THAT(dictionary_.GroupsWithoutLocationKey,
              UnorderedElementsAre("ABBR", "CODE", "DICT", "FILE", "PROJ", "UNIT"));
}

TEST_F(Ags3Dictionary, SpecimenTestsAreRelatedToClassification) {
  for (const std::string_view name :
       {"CBRG", "CMPG", "CNMT", "CONG", "MCVG", "PTST", "RELD", "SHBG", "SUCT", "TNPC", "TRIG"}) {
    EXPECT_EQ(Find(name).RelatedGroup, "CLSS") << name;
    EXPECT_EQ(Find(name).SecondRelatedGroup, "CLSS") << name;
  }
  // ROCK is in the first list only.
  EXPECT_EQ(Find("ROCK").RelatedGroup, "CLSS");
  EXPECT_EQ(Find("ROCK").SecondRelatedGroup, "");
  EXPECT_EQ(Find("GRAD").RelatedGroup, "?GRAG");
  EXPECT_EQ(Find("GRAD").SecondRelatedGroup, "");
  int related = 0;
  for (const DictGroup& group : dictionary_.Groups) {
    if (!group.RelatedGroup.empty()) ++related;
  }
  EXPECT_EQ(related, 13);
}

}  // namespace
}  // namespace quorvane::test
