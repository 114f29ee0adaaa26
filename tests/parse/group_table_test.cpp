#include "parse/group_table.h"

#include <array>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/random_text.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A group as a test states it.
struct GroupContent {
  std::string name;
  std::vector<std::string> headings;
  std::vector<std::vector<std::string_view>> rows;
};

/// A table with groups in it; row n of a group stands at line 10 times its group plus n.
class FilledTable {
 public:
  FilledTable() = default;
  FilledTable(std::initializer_list<GroupContent> groups)
      : FilledTable(std::vector<GroupContent>(groups)) {}
  explicit FilledTable(const std::vector<GroupContent>& groups) {
    for (const GroupContent& content : groups) {
      const int group = table.AddGroup(content.name, 10 * (table.GroupCount() + 1));
      for (const std::string& heading : content.headings) {
        table.AddHeading(heading);
      }
      for (const std::vector<std::string_view>& row : content.rows) {
        table.AddRow(10 * group + table.At(group).rowCount + 1, row);
      }
    }
  }

  FileText file;
  GroupTable table{file};
};

TEST(GroupTable, CountsGroupsHeadingsAndRowsFromOne) {
  const FilledTable filled{{"PROJ", {"PROJ_ID", "PROJ_NAME"}, {{"P1", "Name"}, {"P2"}}},
                           {"HOLE", {}, {}},
                           {"SAMP", {"HOLE_ID"}, {{"BH1"}}}};
  const GroupTable& table = filled.table;
  EXPECT_EQ(table.GroupCount(), 3);
  EXPECT_EQ(table.At(1).name, "PROJ");
  EXPECT_EQ(table.At(1).line, 10);
  EXPECT_EQ(table.At(1).HeadingCount(), 2);
  EXPECT_EQ(table.At(1).HeadingAt(2).name, "PROJ_NAME");
  EXPECT_EQ(table.At(1).rowCount, 2);
  EXPECT_EQ(table.At(2).rowCount, 0);
  EXPECT_EQ(table.At(2).HeadingCount(), 0);
  EXPECT_EQ(table.Value(1, 1, 2), "Name");
  EXPECT_EQ(table.Value(1, 2, 1), "P2");
  EXPECT_EQ(table.Value(1, 2, 2), "");
  EXPECT_EQ(table.CellCount(1, 2), 1U);
  EXPECT_EQ(table.Value(3, 1, 1), "BH1");
  EXPECT_EQ(table.RowLine(1, 2), 12);
  EXPECT_EQ(table.RowLine(3, 1), 31);
}

TEST(GroupTable, ANewGroupKnowsNothingYet) {
  const FilledTable filled{{"PROJ", {}, {}}};
  const Group& group = filled.table.At(1);
  EXPECT_EQ(group.headingLine, 0);
  EXPECT_EQ(group.unitLine, 0);
  EXPECT_EQ(group.typeLine, 0);
  EXPECT_EQ(group.dictionaryIndex, 0);
  EXPECT_FALSE(group.isKeyed);
  EXPECT_THAT(group.keyColumns, IsEmpty());
}

TEST(GroupTable, AddRegularRowTakesLinesOfTheFileOnly) {
  const FileText file{ByteBuffer("\"a\",\"b\",\"c\"\n\"d\",e")};
  GroupTable table(file);
  table.AddGroup("PROJ", 1);
  table.AddHeading("PROJ_ID");
  table.AddHeading("PROJ_NAME");
  const std::string elsewhere = "\"x\",\"y\"" + std::string(64, ' ');
  EXPECT_EQ(table.AddRegularRow(4, std::string_view(elsewhere).substr(0, 7)), 0U);
  EXPECT_EQ(table.AddRegularRow(5, file.Line(2)), 0U);
  EXPECT_EQ(table.At(1).rowCount, 0);
  EXPECT_EQ(table.AddRegularRow(6, file.Line(1)), 3U);
  EXPECT_EQ(table.At(1).rowCount, 1);
  EXPECT_EQ(table.CellCount(1, 1), 2U);
  EXPECT_EQ(table.Value(1, 1, 3), "");
  EXPECT_TRUE(table.LiesInFile(table.Value(1, 1, 2)));
}

TEST(GroupTable, RemoveLastRowTakesItFromTheLastGroup) {
  FilledTable filled{{"A", {"A_B"}, {{"1"}}}, {"C", {"C_D"}, {{"2"}, {"3"}}}};
  filled.table.RemoveLastRow();
  EXPECT_EQ(filled.table.At(1).rowCount, 1);
  EXPECT_EQ(filled.table.At(2).rowCount, 1);
  filled.table.AddRow(99, {"4"});
  EXPECT_EQ(filled.table.Value(2, 2, 1), "4");
  EXPECT_EQ(filled.table.RowLine(2, 2), 99);
}

TEST(FindGroup, FindsANameWithAndWithoutMark) {
  const FilledTable filled{{"HOLE", {}, {}}, {"?ICCT", {}, {}}, {"HOLE", {}, {}}};
  EXPECT_EQ(filled.table.FindGroup("HOLE"), 1);
  EXPECT_EQ(filled.table.FindGroup("HOLE", 1), 3);
  EXPECT_EQ(filled.table.FindGroup("HOLE", 3), 0);
  EXPECT_EQ(filled.table.FindGroup("ICCT"), 2);
  EXPECT_EQ(filled.table.FindGroup("?ICCT"), 2);
  EXPECT_EQ(filled.table.FindGroup("ICCT", 2), 0);
  EXPECT_EQ(filled.table.FindGroup("?HOLE"), 0);
}

TEST(FindGroup, ComparesLetterCase) {
  const FilledTable filled{{"HOLE", {}, {}}};
  EXPECT_EQ(filled.table.FindGroup("hole"), 0);
  EXPECT_EQ(filled.table.FindGroup("HOL"), 0);
  EXPECT_EQ(filled.table.FindGroup(""), 0);
}

TEST(FindGroup, FindsNothingInAnEmptyTable) {
  const FilledTable filled{};
  EXPECT_EQ(filled.table.FindGroup("HOLE"), 0);
  EXPECT_THAT(filled.table.GroupIndexList("HOLE"), IsEmpty());
  EXPECT_EQ(filled.table.FindHeading("HOLE_ID", 1), 0);
  EXPECT_THAT(filled.table.LocateHeading("HOLE_ID"), IsEmpty());
}

TEST(GroupIndexList, ListsAllGroupsOfAName) {
  const FilledTable filled{
      {"?ICCT", {}, {}}, {"HOLE", {}, {}}, {"ICCT", {}, {}}, {"?ICCT", {}, {}}};
  EXPECT_THAT(filled.table.GroupIndexList("ICCT"), ElementsAre(1, 3, 4));
  EXPECT_THAT(filled.table.GroupIndexList("?ICCT"), ElementsAre(1, 4));
  EXPECT_THAT(filled.table.GroupIndexList("GEOL"), IsEmpty());
}

TEST(FindHeading, IgnoresLetterCase) {
  const FilledTable filled{{"SAMP", {"HOLE_ID", "SAMP_ID"}, {}}};
  EXPECT_EQ(filled.table.FindHeading("samp_id", 1), 2);
  EXPECT_EQ(filled.table.FindHeading("SAMP_ID", 1), 2);
  EXPECT_EQ(filled.table.FindHeading("SAMP_I", 1), 0);
}

TEST(FindHeading, FindsAHeadingWithItsMark) {
  const FilledTable filled{{"SAMP", {"HOLE_ID", "?SAMP_OWN", "SAMP_OWN"}, {}}};
  EXPECT_EQ(filled.table.FindHeading("SAMP_OWN", 1), 2);
  EXPECT_EQ(filled.table.FindHeading("?samp_own", 1), 2);
  EXPECT_EQ(filled.table.FindHeading("?HOLE_ID", 1), 0);
}

TEST(FindHeading, FindsAHeadingWithAMarkBehindIt) {
  const FilledTable filled{{"SAMP", {"HOLE_ID", "SAMP_ID?"}, {}}};
  EXPECT_EQ(filled.table.FindHeading("SAMP_ID", 1), 2);
}

TEST(FindHeading, WantsTheGroupsNameWhenOneIsGiven) {
  const FilledTable filled{{"?SAMP", {"SAMP_ID"}, {}}};
  EXPECT_EQ(filled.table.FindHeading("SAMP_ID", 1, "?SAMP"), 1);
  EXPECT_EQ(filled.table.FindHeading("SAMP_ID", 1, "SAMP"), 0);
  EXPECT_EQ(filled.table.FindHeading("SAMP_ID", 1, ""), 1);
}

TEST(FindHeading, FindsNothingInAGroupThatIsNotThere) {
  const FilledTable filled{{"SAMP", {"SAMP_ID"}, {}}};
  EXPECT_EQ(filled.table.FindHeading("SAMP_ID", 0), 0);
  EXPECT_EQ(filled.table.FindHeading("SAMP_ID", 2), 0);
  EXPECT_EQ(filled.table.FindHeading("SAMP_ID", -1), 0);
}

TEST(FindHeading, GivesTheFirstOfRepeatedHeadings) {
  const FilledTable filled{{"SAMP", {"A_B", "SAMP_ID", "SAMP_ID", "A_B"}, {}}};
  EXPECT_EQ(filled.table.FindHeading("SAMP_ID", 1), 2);
  EXPECT_EQ(filled.table.FindHeading("A_B", 1), 1);
}

const std::vector<GroupContent>& SomeGroups() {
  static const std::vector<GroupContent> groups{{"A", {"A_ID"}, {}},
                                                {"B", {"A_ID", "B_X", "FILE_FSET"}, {}},
                                                {"C", {"?FILE_FSET", "_X"}, {}},
                                                {"A", {"B_X", "PLAIN", "B_X"}, {}}};
  return groups;
}

TEST(LocateHeading, FindsAColumnInAGroup) {
  const FilledTable filled(SomeGroups());
  EXPECT_EQ(filled.table.LocateHeading(2, "file_fset"), 3);
  EXPECT_EQ(filled.table.LocateHeading(3, "FILE_FSET"), 1);
  EXPECT_EQ(filled.table.LocateHeading(1, "FILE_FSET"), 0);
  EXPECT_EQ(filled.table.LocateHeading(4, "PLAIN"), 2);
}

TEST(LocateHeading, FindsTheColumnOfEveryGroup) {
  const FilledTable filled(SomeGroups());
  EXPECT_THAT(filled.table.LocateHeading("FILE_FSET"),
              ElementsAre(HeadingPlace{2, 3}, HeadingPlace{3, 1}));
  EXPECT_THAT(filled.table.LocateHeading("a_id"),
              ElementsAre(HeadingPlace{1, 1}, HeadingPlace{2, 1}));
  EXPECT_THAT(filled.table.LocateHeading("B_X"),
              ElementsAre(HeadingPlace{2, 2}, HeadingPlace{4, 1}));
}

TEST(LocateHeading, OfAHeadingInNoGroupIsEmpty) {
  const FilledTable filled(SomeGroups());
  EXPECT_THAT(filled.table.LocateHeading("SAMP_ID"), IsEmpty());
  EXPECT_EQ(filled.table.LocateHeading(0, "SAMP_ID"), 0);
}

TEST(LocateHeading, WantsAnUnderscoreBehindTheFirstCharacterInAllGroupsOnly) {
  const FilledTable filled(SomeGroups());
  EXPECT_THAT(filled.table.LocateHeading("PLAIN"), IsEmpty());
  EXPECT_THAT(filled.table.LocateHeading("_X"), IsEmpty());
  EXPECT_THAT(filled.table.LocateHeading(""), IsEmpty());
  EXPECT_EQ(filled.table.LocateHeading(3, "_X"), 2);
}

TEST(LocateHeading, InAllGroupsGivesTheFirstColumn) {
  const FilledTable filled(SomeGroups());
  EXPECT_EQ(filled.table.LocateHeading(0, "FILE_FSET"), 3);
  EXPECT_EQ(filled.table.LocateHeading(0, "B_X"), 2);
}

TEST(RowKeyText, JoinsValuesWithoutTrailingBlanks) {
  const FilledTable filled{{"SAMP", {"A_A", "A_B", "A_C"}, {{" BH1 ", "1.50  ", "D"}, {"BH2"}}}};
  EXPECT_EQ(filled.table.RowKeyText(1, 1, std::vector<int>{1, 2, 3}), " BH1,1.50,D");
  EXPECT_EQ(filled.table.RowKeyText(1, 1, std::vector<int>{3, 1}), "D, BH1");
  EXPECT_EQ(filled.table.RowKeyText(1, 1, std::vector<int>{2}), "1.50");
  EXPECT_EQ(filled.table.RowKeyText(1, 2, std::vector<int>{1, 2, 3}), "BH2,,");
  EXPECT_EQ(filled.table.RowKeyText(1, 1, std::vector<int>{}), "");
}

TEST(RowKeyText, JoinsAColumnThatIsListedAgain) {
  const FilledTable filled{{"SAMP", {"A_A", "A_B"}, {{"BH1", "1"}}}};
  EXPECT_EQ(filled.table.RowKeyText(1, 1, std::vector<int>{1, 2, 1}), "BH1,1,BH1");
}

TEST(KeyText, IsTheTextOverTheKeyColumns) {
  FilledTable filled{{"SAMP", {"A_A", "A_B", "A_C"}, {{"BH1", "x", "1.50 "}}}};
  EXPECT_EQ(filled.table.KeyText(1, 1), "");
  filled.table.At(1).keyColumns = {1, 3};
  EXPECT_EQ(filled.table.KeyText(1, 1), "BH1,1.50");
}

/// The look-ups as they are stated: one group and one heading after the other.
int FindGroupPlainly(const std::vector<GroupContent>& groups, const std::string& name, int after) {
  for (std::size_t at = static_cast<std::size_t>(after); at < groups.size(); ++at) {
    if (groups[at].name == name || groups[at].name == "?" + name) return static_cast<int>(at) + 1;
  }
  return 0;
}

int FindHeadingPlainly(const GroupContent& group, const std::string& heading) {
  for (std::size_t at = 0; at < group.headings.size(); ++at) {
    const std::string stored = UpperCase(group.headings[at]);
    const std::string wanted = UpperCase(heading);
    if (stored == wanted || stored == "?" + wanted || stored == wanted + "?") {
      return static_cast<int>(at) + 1;
    }
  }
  return 0;
}

std::vector<HeadingPlace> LocatePlainly(const std::vector<GroupContent>& groups,
                                        const std::string& heading) {
  std::vector<HeadingPlace> places;
  if (heading.find('_', 1) == std::string::npos) return places;
  for (std::size_t at = 0; at < groups.size(); ++at) {
    const int column = FindHeadingPlainly(groups[at], heading);
    if (column != 0) places.push_back({static_cast<int>(at) + 1, column});
  }
  return places;
}

TEST(GroupTable, LookUpsAgreeWithTheirPlainTwins) {
  constexpr std::array<std::string_view, 6> names{"A", "?A", "B", "??A", "?B", "a"};
  constexpr std::array<std::string_view, 10> headings{"A_X", "?A_X", "a_x", "B_Y",   "?B_Y",
                                                      "PL",  "_Z",   "",    "??A_X", "A_X?"};
  RandomText random(121);
  for (int round = 0; round < 500; ++round) {
    std::vector<GroupContent> groups;
    for (std::size_t group = random.Below(7); group > 0; --group) {
      groups.push_back({std::string(random.Pick(names)), {}, {}});
      for (std::size_t heading = random.Below(6); heading > 0; --heading) {
        groups.back().headings.emplace_back(random.Pick(headings));
      }
    }
    const FilledTable filled(groups);
    for (const std::string_view name : names) {
      for (int after = 0; after <= filled.table.GroupCount(); ++after) {
        ASSERT_EQ(filled.table.FindGroup(name, after),
                  FindGroupPlainly(groups, std::string(name), after));
      }
    }
    for (const std::string_view heading : headings) {
      ASSERT_EQ(filled.table.LocateHeading(heading), LocatePlainly(groups, std::string(heading)))
          << heading;
      for (int group = 1; group <= filled.table.GroupCount(); ++group) {
        ASSERT_EQ(
            filled.table.FindHeading(heading, group),
            FindHeadingPlainly(groups[static_cast<std::size_t>(group - 1)], std::string(heading)))
            << heading;
      }
    }
  }
}

TEST(GroupTable, FindsItsWayAmongVeryManyGroupsOfOneName) {
  const FileText file;
  GroupTable table(file);
  for (int group = 1; group <= 100000; ++group) {
    table.AddGroup(group % 2 == 0 ? "?GEOL" : "GEOL", group);
    table.AddHeading("HOLE_ID");
    table.AddHeading("GEOL_TOP");
  }
  EXPECT_EQ(table.GroupIndexList("GEOL").size(), 100000U);
  EXPECT_EQ(table.LocateHeading("GEOL_TOP").size(), 100000U);
  for (int group = 1; group < 100000; ++group) {
    ASSERT_EQ(table.FindGroup("GEOL", group), group + 1);
    ASSERT_EQ(table.FindHeading("GEOL_TOP", group), 2);
  }
}

TEST(GroupTable, FindsItsWayAmongVeryManyHeadings) {
  const FileText file;
  GroupTable table(file);
  table.AddGroup("GEOL", 1);
  for (int heading = 1; heading <= 100000; ++heading) {
    table.AddHeading("GEOL_" + std::to_string(heading));
  }
  for (int heading = 1; heading <= 100000; ++heading) {
    ASSERT_EQ(table.FindHeading("geol_" + std::to_string(heading), 1), heading);
  }
}

}  // namespace
}  // namespace quorvane::test
