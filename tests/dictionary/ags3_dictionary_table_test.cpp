#include "dictionary/ags3_dictionary_table.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "text/comma_list.h"
#include "text/number.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;

using Texts = std::vector<std::string_view>;

const Ags3DictionaryRow* FindRow(std::string_view group) {
  const auto rows = Ags3DictionaryRows();
  const auto found = std::find_if(rows.begin(), rows.end(), [group](const Ags3DictionaryRow& row) {
    return row.Group == group;
  });
  return found == rows.end() ? nullptr : &*found;
}

std::string_view KeyItemOf(std::string_view group) {
  const Ags3DictionaryRow* row = FindRow(group);
  return row == nullptr ? "no such group" : row->KeyItem;
}

TEST(Ags3DictionaryTable, HasTheGroupsOfEdition31) {
  const auto rows = Ags3DictionaryRows();
  EXPECT_EQ(rows.size(), 73U);
  EXPECT_EQ(rows.front().Group, "ABBR");
  EXPECT_EQ(rows[64].Group, "WSTK");
  Texts added;
  std::set<std::string_view> names;
  for (const Ags3DictionaryRow& row : rows) {
    if (row.Group.starts_with('?')) added.push_back(row.Group);
    names.insert(row.Group);
  }
  EXPECT_EQ(names.size(), 73U);
  EXPECT_THAT(added,
              ElementsAre("?BKFL", "?HDPH", "?IFID", "?ICCT", "?IPID", "?MONP", "?MONR", "?TREM"));
}

TEST(Ags3DictionaryTable, GroupsStandByNameAndTheAddedOnesBehind) {
  const auto rows = Ags3DictionaryRows();
  EXPECT_TRUE(std::is_sorted(rows.begin(), rows.begin() + 65,
                             [](const Ags3DictionaryRow& left, const Ags3DictionaryRow& right) {
                               return left.Group < right.Group;
                             }));
}

// The sums over all groups: a heading or flag that is lost or added by mistake changes them.
TEST(Ags3DictionaryTable, HasTheHeadingsOfEdition31) {
  std::size_t headingCount = 0;
  std::size_t numericCount = 0;
  std::int64_t keyCount = 0;
  std::set<std::string> numericNames;
  for (const Ags3DictionaryRow& row : Ags3DictionaryRows()) {
    const Texts headings = Split(row.Headings, ",");
    const Texts flags = Split(row.NumericFlags, ",");
    ASSERT_EQ(headings.size(), flags.size()) << row.Group;
    headingCount += headings.size();
    keyCount += WholeNumberValue(Split(row.KeyItem, ",")[1]);
    for (std::size_t index = 0; index < flags.size(); ++index) {
      EXPECT_TRUE(flags[index] == "0" || flags[index] == "-1") << row.Group;
      if (flags[index] != "-1") continue;
      ++numericCount;
      numericNames.emplace(headings[index]);
    }
  }
  EXPECT_EQ(headingCount, 880U);
  EXPECT_EQ(numericCount, 459U);
  EXPECT_EQ(numericNames.size(), 406U);
  EXPECT_EQ(keyCount, 288);
}

TEST(Ags3DictionaryTable, EveryRowHoldsTogether) {
  for (const Ags3DictionaryRow& row : Ags3DictionaryRows()) {
    const Texts headings = Split(row.Headings, ",");
    EXPECT_EQ(std::set<std::string_view>(headings.begin(), headings.end()).size(), headings.size())
        << row.Group << " has a heading twice";
    const bool isAdded = row.Group.starts_with('?');
    for (const std::string_view heading : headings) {
      EXPECT_EQ(heading.starts_with('?'), isAdded) << row.Group << " " << heading;
      EXPECT_EQ(heading.find_first_of("! "), std::string_view::npos) << heading;
    }

    const Texts key = Split(row.KeyItem, ",");
    ASSERT_EQ(key.size(), 3U) << row.Group;
    if (!key[0].empty()) {
      EXPECT_NE(FindRow(key[0]), nullptr) << row.Group << " has the parent " << key[0];
    }
    const std::int64_t keyCount = WholeNumberValue(key[1]);
    EXPECT_GE(keyCount, 1) << row.Group;
    EXPECT_LE(keyCount, std::ssize(headings)) << row.Group;
    if (key[2].empty()) continue;
    const Texts flags = Split(row.NumericFlags, ",");
    for (const std::string_view position : Split(key[2], "|")) {
      const std::int64_t number = WholeNumberValue(position);
      ASSERT_GE(number, 1) << row.Group;
      ASSERT_LE(number, keyCount) << row.Group;
      EXPECT_EQ(flags[static_cast<std::size_t>(number - 1)], "-1") << row.Group;
    }
  }
}

TEST(Ags3DictionaryTable, TellingKeys) {
  for (const std::string_view group : {"ABBR", "CODE", "DICT", "FILE", "HOLE", "PROJ", "UNIT"}) {
    EXPECT_TRUE(KeyItemOf(group).starts_with(',')) << group << " is at the top";
  }
  EXPECT_EQ(KeyItemOf("HOLE"), ",1,");
  EXPECT_EQ(KeyItemOf("ABBR"), ",2,");
  EXPECT_EQ(KeyItemOf("DICT"), ",3,");
  EXPECT_EQ(KeyItemOf("SAMP"), "HOLE,4,2");
  for (const std::string_view group : {"CBRG", "CLSS", "CMPG", "CONG", "FRST", "MCVG", "RELD",
                                       "ROCK", "SHBG", "SUCT", "TNPC", "TRIG"}) {
    EXPECT_EQ(KeyItemOf(group), "SAMP,6,2|6") << group;
  }
  EXPECT_EQ(KeyItemOf("CBRT"), "CBRG,7,2|6");
  EXPECT_EQ(KeyItemOf("CMPT"), "CMPG,7,2|6");
  EXPECT_EQ(KeyItemOf("CONS"), "CONG,7,2|6");
  EXPECT_EQ(KeyItemOf("MCVT"), "MCVG,7,2|6");
  EXPECT_EQ(KeyItemOf("SHBT"), "SHBG,7,2|6");
  EXPECT_EQ(KeyItemOf("TRIX"), "TRIG,7,2|6");
  EXPECT_EQ(KeyItemOf("GRAD"), "SAMP,7,2|6|7");
  EXPECT_EQ(KeyItemOf("CHLK"), "SAMP,7,2|6");
  EXPECT_EQ(KeyItemOf("PTST"), "SAMP,7,2|6");
  EXPECT_EQ(KeyItemOf("CNMT"), "SAMP,8,2|6");
  EXPECT_EQ(KeyItemOf("HPGO"), "HPGI,5,5");
  EXPECT_EQ(KeyItemOf("PRTD"), "PRTG,4,3");
  EXPECT_EQ(KeyItemOf("PRTL"), "PRTG,4,3");
  EXPECT_EQ(KeyItemOf("PRTG"), "HOLE,3,3");
  EXPECT_EQ(KeyItemOf("?ICCT"), "?MONP,7,2");
  EXPECT_EQ(KeyItemOf("?MONR"), "?MONP,5,2");
  EXPECT_EQ(KeyItemOf("?MONP"), "HOLE,3,2");
}

TEST(Ags3DictionaryTable, TellingHeadings) {
  ASSERT_NE(FindRow("SAMP"), nullptr);
  EXPECT_EQ(FindRow("SAMP")->Headings,
            "HOLE_ID,SAMP_TOP,SAMP_REF,SAMP_TYPE,SAMP_DIA,SAMP_BASE,SAMP_DESC,SAMP_UBLO,SAMP_REM,"
            "SAMP_DATE,SAMP_TIME,SAMP_BAR,SAMP_WDEP,SAMP_TEMP,SAMP_PRES,SAMP_FLOW,GEOL_STAT,"
            "FILE_FSET");
  EXPECT_EQ(FindRow("SAMP")->NumericFlags, "0,-1,0,0,-1,-1,0,0,0,-1,-1,-1,-1,-1,-1,-1,0,0");
  ASSERT_NE(FindRow("?BKFL"), nullptr);
  EXPECT_EQ(FindRow("?BKFL")->Headings,
            "?HOLE_ID,?BKFL_TOP,?BKFL_BASE,?BKFL_LEG,?BKFL_DATE,?BKFL_REM,?FILE_FSET");
  EXPECT_EQ(FindRow("?BKFL")->NumericFlags, "0,-1,-1,0,-1,0,0");
}

}  // namespace
}  // namespace quorvane::test
