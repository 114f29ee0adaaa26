#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "statistics/data_statistics.h"
#include "statistics_text.h"
#include "support/check_text.h"
#include "support/fake_services.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

std::string HolesSection(const std::vector<std::string>& headings, const Rows& rows) {
  return Section(StatisticsOf(HolesText(headings, rows)), HolesTitle);
}

TEST(StatisticsSections, LocationGroupsOfOneNameAreCombined) {
  Ags3File file = Project();
  file.Group("HOLE", {"HOLE_ID", "HOLE_TYPE", "HOLE_FDEP", "HOLE_GL"}, {"", "", "m", "m"},
             {{"BH1", "CP", "10.5", "3"}});
  file.Group("HOLE", {"HOLE_ID", "HOLE_FDEP", "HOLE_TYPE", "HOLE_GL"}, {"", "m", "", "m"},
             {{"BH2", "4", "CP", "1"}, {"BH3", "5", "TP", ""}});
  const std::string statistics = StatisticsOf(file.Text());
  EXPECT_EQ(Section(statistics, LocationsTitle),
            "Total number of HOLE_IDs: 3\n  BH1\n  BH2\n  BH3\n");
  EXPECT_EQ(Section(statistics, CountsTitle), "  HOLE  3\n  PROJ  1\n");
  // No line on combined statistics, as every hole has a type.
  EXPECT_EQ(Section(statistics, HolesTitle), "  CP  2  14.5\n  TP  1  5\n");
  EXPECT_NE(
      Section(statistics, GeometryTitle).find("  HOLE_GL:  Min 1    Max 3    (2 of 3 with data)\n"),
      std::string::npos);
}

TEST(StatisticsSections, CombinedStatisticsAreNamedWhenAHoleHasNoType) {
  Ags3File file = Project();
  file.Group("HOLE", {"HOLE_ID", "HOLE_TYPE", "HOLE_FDEP"}, {"", "", "m"},
             {{"BH1", "CP", "10.5"}, {"BH2", " ", "1.25"}});
  file.Group("HOLE", {"HOLE_ID", "HOLE_TYPE", "HOLE_FDEP"}, {"", "", "m"}, {{"BH3", "", "2"}});
  EXPECT_EQ(Section(StatisticsOf(file.Text()), HolesTitle),
            "  There are 2 HOLE groups in the file.  The combined statistics are shown.\n"
            "  2 holes with no type specified.  The total depth of drilling for these holes is "
            "3.25.\n"
            "  CP  1  10.5\n");
}

TEST(StatisticsSections, HolesWithoutAnyType) {
  EXPECT_EQ(
      HolesSection({"HOLE_ID", "HOLE_TYPE", "HOLE_FDEP"}, {{"BH1", "", "2"}, {"BH2", "", "3"}}),
      "  There are no hole types specified for any hole.  The total depth of drilling is "
      "5.\n");
}

constexpr std::string_view DepthsMissing =
    "  There are holes that did not have values for HOLE_FDEP or the HOLE_FDEP field in one or "
    "more "
    "HOLE groups was missing.  Some or all of the following statistics may be inaccurate.\n";

TEST(StatisticsSections, HoleWithoutANumericDepthStillCountsForItsType) {
  EXPECT_EQ(HolesSection({"HOLE_ID", "HOLE_TYPE", "HOLE_FDEP"},
                         {{"BH1", "CP", "n/a"}, {"BH2", "CP", " 4.5 "}, {"BH3", "", ""}}),
            std::string(DepthsMissing) +
                "  1 holes with no type specified.  The total depth of drilling for these holes is "
                "0.\n"
                "  CP  2  4.5\n");
}

TEST(StatisticsSections, ColumnsMissing) {
  EXPECT_EQ(HolesSection({"HOLE_ID", "HOLE_FDEP"}, {{"BH1", "5"}}),
            "  The HOLE_TYPE field does not exist.\n");
  EXPECT_EQ(HolesSection({"HOLE_ID", "HOLE_TYPE"}, {{"BH1", "CP"}}),
            "  The HOLE_FDEP field does not exist.\n");
  EXPECT_EQ(HolesSection({"HOLE_ID"}, {{"BH1"}}), "  The HOLE_TYPE field does not exist.\n");
}

TEST(StatisticsSections, DepthColumnMissingInOneOfTwoGroups) {
  Ags3File file = Project();
  file.Group("HOLE", {"HOLE_ID", "HOLE_TYPE"}, {"", ""}, {{"BH1", "CP"}});
  file.Group("HOLE", {"HOLE_ID", "HOLE_TYPE", "HOLE_FDEP"}, {"", "", "m"}, {{"BH2", "CP", "3"}});
  EXPECT_EQ(Section(StatisticsOf(file.Text()), HolesTitle),
            std::string(DepthsMissing) + "  CP  1  3\n");
}

TEST(StatisticsSections, TypesAreInByteOrder) {
  EXPECT_EQ(HolesSection({"HOLE_ID", "HOLE_TYPE", "HOLE_FDEP"}, {{"BH1", "wls", "1"},
                                                                 {"BH2", "CP+RC", "1"},
                                                                 {"BH3", "\xC4", "1"},
                                                                 {"BH4", "CP", "1"},
                                                                 {"BH5", "_", "1"}}),
            "  CP  1  1\n  CP+RC  1  1\n  WLS  1  1\n  _  1  1\n  \xC4  1  1\n");
}

TEST(StatisticsSections, SamplesWithoutTypes) {
  Ags3File file = Project();
  file.Group("SAMP", {"HOLE_ID", "SAMP_TYPE"}, {"", ""}, {{"BH1", " "}});
  EXPECT_EQ(Section(StatisticsOf(file.Text()), SamplesTitle), "  No sample types found.\n");
  Ags3File withoutColumn = Project();
  withoutColumn.Group("SAMP", {"HOLE_ID", "SAMP_REF"}, {"", ""}, {{"BH1", "1"}});
  EXPECT_EQ(Section(StatisticsOf(withoutColumn.Text()), SamplesTitle),
            "  No sample types found.\n");
}

TEST(StatisticsSections, SampleGroupsOfOneNameAreCombined) {
  Ags3File file = Project();
  file.Group("SAMP", {"HOLE_ID", "SAMP_TYPE"}, {"", ""}, {{"BH1", "U"}});
  file.Group("SAMP", {"HOLE_ID", "SAMP_TYPE"}, {"", ""}, {{"BH1", "u"}, {"BH1", "D"}});
  EXPECT_EQ(Section(StatisticsOf(file.Text()), SamplesTitle), "  D  1\n  U  2\n");
}

TEST(StatisticsSections, GeometryWithoutANumericValue) {
  const std::string section =
      Section(StatisticsOf(HolesText({"HOLE_ID", "HOLE_GL", "HOLE_NATE"},
                                     {{"BH1", "", " 1E3 "}, {"BH2", "?", ""}})),
              GeometryTitle);
  EXPECT_NE(section.find("  HOLE_GL:  There are no data.\n"), std::string::npos);
  EXPECT_NE(section.find("  HOLE_NATE:  Min 1000    Max 1000    (1 of 2 with data)\n"),
            std::string::npos);
}

TEST(StatisticsSections, IndexTestsMissing) {
  EXPECT_EQ(Section(StatisticsOf(Project().Text()), TestsTitle),
            "  There is no CLSS group in the file.\n");
  const std::vector<std::string> headings{"HOLE_ID", "CLSS_LL"};
  Ags3File withoutValues = Project();
  withoutValues.Group("CLSS", headings, {"", "%"}, {{"BH1", ""}});
  EXPECT_EQ(Section(StatisticsOf(withoutValues.Text()), TestsTitle),
            "  There are no index test data in the CLSS table.\n");
  Ags3File withoutRows = Project();
  withoutRows.Group("CLSS", headings, {"", "%"}, {});
  EXPECT_EQ(Section(StatisticsOf(withoutRows.Text()), TestsTitle),
            "  There are no index test data in the CLSS table.\n");
}

TEST(StatisticsSections, AllIndexTestsInOrderOfTheirLabels) {
  const std::vector<std::string> headings{
      "CLSS_NMC",  "CLSS_LL", "CLSS_PL",  "CLSS_BDEN", "CLSS_DDEN", "CLSS_PD",   "CLSS_425",
      "CLSS_SLIM", "CLSS_LS", "CLSS_HVP", "CLSS_HVR",  "CLSS_PPEN", "CLSS_VNPK", "CLSS_VNRM"};
  const std::vector<std::string> units(headings.size());
  Ags3File file = Project();
  file.Group("CLSS", headings, units, {std::vector<std::string>(headings.size(), "1")});
  file.Group("CLSS", headings, units, {std::vector<std::string>(headings.size(), "x")});
  EXPECT_EQ(Section(StatisticsOf(file.Text()), TestsTitle),
            "% < 0.425mm (CLSS_425)  2\n"
            "Bulk Density (CLSS_BDEN)  2\n"
            "Dry Density (CLSS_DDEN)  2\n"
            "Hand Vane Peak (CLSS_HVP)  2\n"
            "Hand Vane Remoulded (CLSS_HVR)  2\n"
            "Lab Vane Peak (CLSS_VNPK)  2\n"
            "Lab Vane Remoulded (CLSS_VNRM)  2\n"
            "Linear Shrinkage (CLSS_LS)  2\n"
            "Liquid Limit (CLSS_LL)  2\n"
            "Natural Moisture Content (CLSS_NMC)  2\n"
            "Particle Density (CLSS_PD)  2\n"
            "Plastic Limit (CLSS_PL)  2\n"
            "Pocket Pen (CLSS_PPEN)  2\n"
            "Shrinkage Limit (CLSS_SLIM)  2\n");
}

TEST(StatisticsSections, HolesWithoutDataAreComparedAsWrittenButForLetterCase) {
  Ags3File file = Project();
  file.Group("HOLE", {"HOLE_ID"}, {""}, {{"bh1"}, {"BH2 "}, {"BH3"}, {"BH4"}});
  file.Group("GEOL", {"HOLE_ID", "GEOL_TOP"}, {"", "m"}, {{"BH1", "0"}, {"BH2", "0"}});
  file.Group("GEOL", {"HOLE_ID", "GEOL_TOP"}, {"", "m"}, {{"BH3 ", "0"}, {"BH4", "0"}});
  EXPECT_EQ(Section(StatisticsOf(file.Text()), GeolTitle), "  BH3\n");
}

TEST(StatisticsSections, RowsWithoutALocationKeyAreNoLocations) {
  Ags3File file = Project();
  file.Group("HOLE", {"HOLE_ID", "HOLE_TYPE"}, {"", ""}, {{"", "CP"}, {" ", "CP"}});
  file.Group("GEOL", {"HOLE_ID", "GEOL_TOP"}, {"", "m"}, {{"BH1", "0"}});
  const std::string statistics = StatisticsOf(file.Text());
  EXPECT_EQ(Section(statistics, LocationsTitle), "None\n");
  EXPECT_EQ(Section(statistics, GeolTitle), "  There are no HOLE_IDs defined in this file.\n");
  EXPECT_EQ(Section(statistics, SampTitle), "  There are no HOLE_IDs defined in this file.\n");
}

TEST(StatisticsSections, GroupWithoutLocationColumnHasDataForNoHole) {
  Ags3File file = Project();
  file.Group("HOLE", {"HOLE_ID"}, {""}, {{"BH1"}});
  file.Group("GEOL", {"GEOL_TOP"}, {"m"}, {{"0"}});
  EXPECT_EQ(Section(StatisticsOf(file.Text()), GeolTitle), "  BH1\n");
}

// What whole files do not easily lead to: the table and the dictionary are filled by hand.
class DirectStatistics : public testing::Test {
 protected:
  void SetUp() override {
    dictionary_.LocationGroup = "HOLE";
    dictionary_.LocationKey = "HOLE_ID";
  }

  void AddGroup(const std::string& name, const std::vector<std::string>& headings,
                const Rows& rows) {
    const int group = table_.AddGroup(name, 1);
    for (const std::string& heading : headings)
      table_.AddHeading(heading);
    table_.At(group).keyColumns = {1};
    for (const std::vector<std::string>& row : rows) {
      table_.AddRow(++line_, {row.begin(), row.end()});
    }
  }

  void AddToDictionary(const std::string& name) {
    DictGroup group;
    group.Name = name;
    dictionary_.AddGroup(std::move(group));
  }

  std::string Write() {
    RecordingProgressBox box;
    RunLog log(box);
    WriteDataStatistics(log, table_, dictionary_, AgsFormat::Ags3, state_);
    return ReplaceAll(log.FullText(), LineBreak, "\n");
  }

  FileText text_;
  GroupTable table_{text_};
  AgsDictionary dictionary_;
  StatisticsState state_;
  int line_ = 0;
};

TEST_F(DirectStatistics, GroupsThatTheFileDefinesForItselfAreListedWhenItDoesNotHoldThem) {
  AddToDictionary("HOLE");
  AddToDictionary("?ABCD");
  AddToDictionary("?MONP");
  AddToDictionary("WXYZ");
  AddGroup("HOLE", {"HOLE_ID"}, {{"BH1"}});
  AddGroup("?MONP", {"?HOLE_ID"}, {{"BH1"}});
  AddGroup("?WXYZ", {"?HOLE_ID"}, {{"BH1"}});
  EXPECT_EQ(Section(Write(), MissingTitle), "  ?ABCD\n");
}

TEST_F(DirectStatistics, NothingIsMissing) {
  AddToDictionary("HOLE");
  AddGroup("HOLE", {"HOLE_ID"}, {{"BH1"}});
  EXPECT_EQ(Section(Write(), MissingTitle),
            "  All groups had some data and all AGS standard groups are in file.\n");
}

TEST_F(DirectStatistics, GroupsOfOneNameAreEmptyTogetherOnly) {
  AddGroup("HOLE", {"HOLE_ID"}, {});
  AddGroup("GEOL", {"HOLE_ID"}, {});
  AddGroup("HOLE", {"HOLE_ID"}, {{"BH1"}});
  EXPECT_EQ(Section(Write(), MissingTitle), "  GEOL\n");
  EXPECT_FALSE(state_.hasNoLocationData);
}

TEST_F(DirectStatistics, MarkedLocationGroupIsALocationGroupButNotTheOneOfTheState) {
  AddGroup("?HOLE", {"?HOLE_ID"}, {});
  AddGroup("PROJ", {"PROJ_ID"}, {{"P1"}});
  const std::string statistics = Write();
  EXPECT_EQ(Section(statistics, GeolTitle), "  There are no HOLE_IDs defined in this file.\n");
  EXPECT_EQ(Section(statistics, MissingTitle), "  ?HOLE\n");
  EXPECT_FALSE(state_.hasNoLocationData);
}

TEST_F(DirectStatistics, RecordCountsHaveThousandsSeparators) {
  AddGroup("HOLE", {"HOLE_ID"}, Rows(1234, {"BH1"}));
  const std::string statistics = Write();
  EXPECT_EQ(Section(statistics, CountsTitle), "  HOLE  1,234\n");
  EXPECT_TRUE(Section(statistics, LocationsTitle).starts_with("Total number of HOLE_IDs: 1234\n"));
}

TEST_F(DirectStatistics, TotalsAreRoundedToFifteenDigits) {
  AddGroup("HOLE", {"HOLE_ID", "HOLE_TYPE", "HOLE_FDEP"},
           {{"1", "A", "0.1"},
            {"2", "A", "0.2"},
            {"3", "B", "123456789.123456789"},
            {"4", "C", "1e-7"},
            {"5", "D", "1E21"},
            {"6", "E", "-5.50"},
            {"7", "F", "2.5"},
            {"8", "F", "-2.5"}});
  EXPECT_EQ(Section(Write(), HolesTitle),
            "  A  2  0.3\n"
            "  B  1  123456789.123457\n"
            "  C  1  0.0000001\n"
            "  D  1  1000000000000000000000\n"
            "  E  1  -5.5\n"
            "  F  2  0\n");
}

TEST_F(DirectStatistics, ManyDecimalDepthsAddUpCleanly) {
  AddGroup("HOLE", {"HOLE_ID", "HOLE_TYPE", "HOLE_FDEP"}, Rows(10000, {"BH", "CP", "0.1"}));
  EXPECT_EQ(Section(Write(), HolesTitle), "  CP  10000  1000\n");
}

TEST_F(DirectStatistics, DepthsThatNoNumberCanHold) {
  AddGroup("HOLE", {"HOLE_ID", "HOLE_TYPE", "HOLE_FDEP"},
           {{"1", "CP", "1e999"}, {"2", "CP", "5"}, {"3", "TP", "1e-999"}});
  EXPECT_EQ(Section(Write(), HolesTitle), "  CP  2  inf\n  TP  1  0\n");
}

TEST_F(DirectStatistics, SingleValuesAreNotRounded) {
  AddGroup("HOLE", {"HOLE_ID", "HOLE_GL"}, {{"1", "0.12345678901234567"}});
  EXPECT_NE(Section(Write(), GeometryTitle).find("  HOLE_GL:  Min 0.12345678901234566    Max "),
            std::string::npos);
}

}  // namespace
}  // namespace quorvane::test
