#include "rules/keys.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/check_text.h"
#include "support/direct_check.h"
#include "text/number.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

using Rows = std::vector<std::vector<std::string>>;

/// An AGS 3 file with a hole and a group of geology, whose rows begin at line 22.
CheckResult Geology3(const Rows& rows) {
  return CheckText(MinimalAgs3()
                       .Group("GEOL", {"HOLE_ID", "GEOL_TOP", "GEOL_BASE"}, {"", "m", "m"}, rows)
                       .Text());
}

/// An AGS 4 file with these locations (from line 31 on) and, behind them, geology.
CheckResult Geology4(const Rows& locations, const Rows& rows) {
  return CheckText(MinimalAgs4()
                       .Group("LOCA", {"LOCA_ID"}, {""}, {"ID"}, locations)
                       .Group("GEOL", {"LOCA_ID", "GEOL_TOP", "GEOL_BASE"}, {"", "m", "m"},
                              {"ID", "2DP", "2DP"}, rows)
                       .Text());
}

constexpr auto RepeatedSection3 = "Duplicated keys check (Rule 6b)";
constexpr auto RepeatedSection4 = "Duplicated keys check ";
constexpr auto ParentSection4 = "Parent keys check ";

TEST(RepeatedKeys, ThreeRowsOfOneKeyGiveTwoFindings) {
  EXPECT_EQ(Geology4({{"BH1"}},
                     {{"BH1", "1.00", "2.00"}, {"BH1", "1.00", "2.00"}, {"BH1", "1.00", "2.00"}})
                .FindingsOf(RepeatedSection4),
            (std::vector<std::string>{
                "ERROR: Line 37 - Group GEOL key 'BH1,1.00,2.00' is repeated in line 38.",
                "ERROR: Line 38 - Group GEOL key 'BH1,1.00,2.00' is repeated in line 39."}));
}

TEST(RepeatedKeys, NumbersAreComparedByValueInAgs3) {
  EXPECT_EQ(Geology3({{"BH1", "1.5", "2"}, {"BH1", "1.50", "02"}}).FindingsOf(RepeatedSection3),
            std::vector<std::string>{
                "ERROR: Line 22 - Group GEOL key 'BH1,1.50,02' is repeated in line 23."});
}

TEST(RepeatedKeys, TextsInNumericColumnsAreComparedAsTexts) {
  EXPECT_EQ(Geology3({{"BH1", "1.5 ", "x"}, {"BH1", "1.5", "x"}, {"BH1", "1.5", "X"}})
                .FindingsOf(RepeatedSection3),
            std::vector<std::string>{
                "ERROR: Line 22 - Group GEOL key 'BH1,1.5,x' is repeated in line 23."});
}

TEST(RepeatedKeys, SchemaGroupsCompareByTextAlone) {
  EXPECT_FALSE(Geology4({{"BH1"}}, {{"BH1", "1.0", "2.00"}, {"BH1", "1.00", "2.00"}})
                   .HasSection(RepeatedSection4));
}

TEST(RepeatedKeys, LetterCaseTellsKeysApart) {
  EXPECT_FALSE(Geology4({{"BH1"}, {"bh1"}}, {{"BH1", "1.00", "2.00"}, {"bh1", "1.00", "2.00"}})
                   .HasSection(RepeatedSection4));
}

TEST(RepeatedKeys, StandInTheOrderOfTheKeys) {
  const CheckResult result = Geology4({{"BH1"}, {"BH2"}}, {{"BH2", "1.00", "2.00"},
                                                           {"BH1", "5.00", "6.00"},
                                                           {"BH2", "1.00", "2.00"},
                                                           {"BH1", "5.00", "6.00"}});
  EXPECT_EQ(result.FindingsOf(RepeatedSection4),
            (std::vector<std::string>{
                "ERROR: Line 39 - Group GEOL key 'BH1,5.00,6.00' is repeated in line 41.",
                "ERROR: Line 38 - Group GEOL key 'BH2,1.00,2.00' is repeated in line 40."}));
}

TEST(RepeatedKeys, EmptyKeysAreRepeatedKeysToo) {
  EXPECT_TRUE(Geology4({{"BH1"}}, {{"", "", ""}, {"", "", ""}})
                  .Has("ERROR: Line 37 - Group GEOL key ',,' is repeated in line 38."));
}

TEST(RepeatedKeys, GroupsWithMissingKeyHeadingsArePassedOver) {
  const CheckResult result =
      CheckText(MinimalAgs3()
                    .Group("GEOL", {"HOLE_ID", "GEOL_TOP"}, {"", "m"}, {{"BH1", "1"}, {"BH1", "1"}})
                    .Text());
  EXPECT_TRUE(result.HasText("missing the follow key heading(s): GEOL_BASE (Rule 6)"));
  EXPECT_FALSE(result.HasSection(RepeatedSection3));
}

/// The described order: rows sorted by comparable key text, and a finding for each neighbour pair.
std::vector<std::string> PlainRepeats(const Rows& rows) {
  std::vector<std::pair<std::string, std::size_t>> sorted;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    std::string key(TrimRight(rows[row][0]));
    for (const std::size_t column : {std::size_t{1}, std::size_t{2}}) {
      key += "," + CanonicalNumber(TrimRight(rows[row][column]));
    }
    sorted.emplace_back(key, row);
  }
  std::sort(sorted.begin(), sorted.end());
  std::vector<std::string> findings;
  for (std::size_t index = 1; index < sorted.size(); ++index) {
    if (sorted[index].first != sorted[index - 1].first) continue;
    const std::vector<std::string>& row = rows[sorted[index].second];
    findings.push_back("ERROR: Line " + std::to_string(22 + sorted[index - 1].second) +
                       " - Group GEOL key '" + std::string(TrimRight(row[0])) + "," +
                       std::string(TrimRight(row[1])) + "," + std::string(TrimRight(row[2])) +
                       "' is repeated in line " + std::to_string(22 + sorted[index].second) + ".");
  }
  return findings;
}

TEST(RepeatedKeys, AgreeWithThePlainSortOnRandomRows) {
  std::mt19937 random(7);
  const std::vector<std::string> names{"BH1", "BH1 ", "bh1", "BH2", ""};
  const std::vector<std::string> numbers{"1",  "1.0", "01", "-0", "0",  "+1", "1e0",
                                         "10", "9",   "x",  "",   "1.", ".5", "0.50"};
  const auto pick = [&](const std::vector<std::string>& from) {
    return from[random() % from.size()];
  };
  for (int round = 0; round < 50; ++round) {
    Rows rows;
    for (int row = 0; row < 40; ++row)
      rows.push_back({pick(names), pick(numbers), pick(numbers)});
    EXPECT_EQ(Geology3(rows).FindingsOf(RepeatedSection3), PlainRepeats(rows)) << round;
  }
}

TEST(ParentKeys, MatchThatDiffersInCaseOnlyIsInformation) {
  EXPECT_EQ(
      Geology4({{"BH1"}, {"Bh2"}, {"bH2"}}, {{"BH2", "1.00", "2.00"}}).FindingsOf(ParentSection4),
      std::vector<std::string>{"FYI: Line 39 - Group GEOL key BH2 does not match the case of "
                               "the associated key in the parent group (LOCA:  Bh2)."});
}

TEST(ParentKeys, ExactMatchInALaterGroupOfTheNameWins) {
  Ags4File file = MinimalAgs4();
  file.Group("LOCA", {"LOCA_ID"}, {""}, {"ID"}, {{"bh1"}});
  file.Group("LOCA", {"LOCA_ID"}, {""}, {"ID"}, {{"BH1"}});
  file.Group("GEOL", {"LOCA_ID", "GEOL_TOP", "GEOL_BASE"}, {"", "m", "m"}, {"ID", "2DP", "2DP"},
             {{"BH1", "1.00", "2.00"}});
  EXPECT_FALSE(CheckText(file.Text()).HasSection(ParentSection4));
}

TEST(ParentKeys, EmptyKeyIsNotSearched) {
  EXPECT_FALSE(Geology4({{"BH1"}}, {{"", "1.00", "2.00"}}).HasSection(ParentSection4));
}

TEST(ParentKeys, AreFoundByHeadingWhateverTheOrder) {
  // SAMP and its child have their key columns in different orders.
  Ags4File file = MinimalAgs4();
  file.Group("LOCA", {"LOCA_ID"}, {""}, {"ID"}, {{"BH1"}});
  file.Group("SAMP", {"LOCA_ID", "SAMP_TYPE", "SAMP_TOP", "SAMP_REF", "SAMP_ID"},
             {"", "", "m", "", ""}, {"ID", "PA", "2DP", "X", "ID"},
             {{"BH1", "D", "1.00", "7", "S1"}});
  file.Group("LNMC",
             {"LOCA_ID", "SAMP_TOP", "SAMP_REF", "SAMP_TYPE", "SAMP_ID", "SPEC_REF", "SPEC_DPTH"},
             {"", "m", "", "", "", "", "m"}, {"ID", "2DP", "X", "PA", "ID", "X", "2DP"},
             {{"BH1", "1.00", "7", "D", "S1", "1", "1.00"}});
  EXPECT_FALSE(CheckText(file.Text()).HasSection(ParentSection4));
}

TEST(ParentKeys, MissingParentGroupIsReportedOncePerGroup) {
  Ags4File file = MinimalAgs4();
  file.Group("GEOL", {"LOCA_ID", "GEOL_TOP", "GEOL_BASE"}, {"", "m", "m"}, {"ID", "2DP", "2DP"},
             {{"BH1", "1.00", "2.00"}, {"BH1", "2.00", "3.00"}});
  EXPECT_EQ(
      CheckText(file.Text()).FindingsOf(ParentSection4),
      std::vector<std::string>{
          "ERROR: Group LOCA is the parent of group GEOL and is not found in the data file."});
}

TEST(ParentKeys, KeyedGroupWithoutRowsStillMissesItsParent) {
  Ags3File file = MinimalAgs3();
  file.Group("CLSS", {"HOLE_ID", "SAMP_TOP", "SAMP_REF", "SAMP_TYPE", "SPEC_REF", "SPEC_DPTH"},
             {"", "m", "", "", "", "m"}, {});
  EXPECT_TRUE(CheckText(file.Text())
                  .Has("ERROR: Group SAMP is the parent of group CLSS and is not found in the data "
                       "file."));
}

TEST(ParentKeys, FollowTheAgs3Edition) {
  const auto parentOf = [](const std::string& version, const std::string& group) {
    Ags3File file;
    file.Group("PROJ", {"PROJ_ID", "PROJ_AGS"}, {"", ""}, {{"P1", version}});
    file.Group(group, {"HOLE_ID", "SAMP_TOP", "SAMP_REF", "SAMP_TYPE", "SPEC_REF", "SPEC_DPTH"},
               {"", "m", "", "", "", "m"}, {});
    const CheckResult result = CheckText(file.Text());
    for (const char* parent : {"SAMP", "CLSS"}) {
      if (result.HasText("Group " + std::string(parent) + " is the parent"))
        return std::string(parent);
    }
    return std::string();
  };
  EXPECT_EQ(parentOf("3.1", "RELD"), "SAMP");
  EXPECT_EQ(parentOf("3.1 RTA 1.1", "RELD"), "CLSS");
  EXPECT_EQ(parentOf("3.1 NZ", "RELD"), "CLSS");
  // ROCK keeps its parent in the NZ edition.
  EXPECT_EQ(parentOf("3.1 RTA 1.1", "ROCK"), "CLSS");
  EXPECT_EQ(parentOf("3.1 NZ", "ROCK"), "SAMP");
}

TEST(ParentKeys, ManyGroupsOfOneNameStayCheap) {
  std::string text = MinimalAgs4().Text();
  for (int group = 0; group < 20000; ++group) {
    const std::string id = "BH" + std::to_string(group);
    text +=
        "\n\"GROUP\",\"LOCA\"\n\"HEADING\",\"LOCA_ID\"\n\"UNIT\",\"\"\n\"TYPE\",\"ID\"\n\"DATA\","
        "\"" +
        id +
        "\"\n\n\"GROUP\",\"GEOL\"\n\"HEADING\",\"LOCA_ID\",\"GEOL_TOP\",\"GEOL_BASE\"\n"
        "\"UNIT\",\"\",\"m\",\"m\"\n\"TYPE\",\"ID\",\"2DP\",\"2DP\"\n\"DATA\",\"" +
        id + "\",\"1.00\",\"2.00\"\n";
  }
  EXPECT_FALSE(CheckText(text).HasSection(ParentSection4));
}

TEST(KeyHeadings, QuestionMarkBeforeTheLocationKeyPasses) {
  Ags3File file = MinimalAgs3();
  file.Group("?TREM", {"?HOLE_ID", "?TREM_DATE", "?TREM_TIME", "?TREM_REM"}, {"", "", "", ""},
             {{"BH1", "01/01/2020", "12:00", "r"}});
  EXPECT_EQ(CheckText(file.Text()).Count("as the first field"), 0);
}

TEST(KeyHeadings, ColumnsStandInFileOrderWhenAllAreThere) {
  std::vector<int> columns;
  std::vector<int> incomplete;
  CheckDirectly(AgsFormat::Ags3, [&](CheckedFile& file) {
    DictGroup dictGroup;
    dictGroup.Name = "XXXX";
    dictGroup.Headings = {"A", "B", "C"};
    dictGroup.KeyHeadings = {"A", "B", "C"};
    file.dictionary.AddGroup(dictGroup);
    const auto add = [&file](const std::vector<std::string>& headings) {
      const int group = file.table.AddGroup("XXXX", 1);
      for (const std::string& heading : headings)
        file.table.AddHeading(heading);
      file.table.At(group).dictionaryIndex = 1;
      CheckKeyHeadings(file, group, false);
      return file.table.At(group).keyColumns;
    };
    columns = add({"C", "B", "Z", "A"});
    incomplete = add({"C", "A"});
  });
  EXPECT_EQ(columns, (std::vector<int>{1, 2, 4}));
  EXPECT_EQ(incomplete, (std::vector<int>{2, 1}));  // in key list order
}

}  // namespace
}  // namespace quorvane::test
