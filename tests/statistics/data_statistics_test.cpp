#include "statistics/data_statistics.h"

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "run/check_run.h"
#include "statistics_text.h"
#include "support/check_text.h"
#include "support/fake_services.h"
#include "text/comma_list.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

std::string Golden(std::string_view sections) {
  return std::string(Preamble).append(sections).append(ClosingLine);
}

TEST(DataStatistics, OfAnAgs3File) {
  Ags3File file = Project();
  file.Group(
      "HOLE",
      {"HOLE_ID", "HOLE_TYPE", "HOLE_NATE", "HOLE_NATN", "HOLE_GL", "HOLE_FDEP", "HOLE_LOCX"},
      {"", "", "m", "m", "m", "m", "m"},
      {{"BH2", "CP", "523145.20", "174200.10", "12.50", "0.1", ""},
       {"BH1", "cp ", "523150", "174190.5", "-0.50", "0.2", "n/a"},
       {"TP1", "TP", "", "174205", "13.05", "3.50", ""}});
  file.Group("GEOL", {"HOLE_ID", "GEOL_TOP", "GEOL_BASE", "GEOL_DESC"}, {"", "m", "m", ""},
             {{"BH1", "0.00", "10.00", "CLAY"},
              {"bh2", "0.00", "10.00", "CLAY"},
              {"TP1", "0.00", "3.50", "SAND"}});
  file.Group("SAMP", {"HOLE_ID", "SAMP_TOP", "SAMP_REF", "SAMP_TYPE"}, {"", "m", "", ""},
             {{"BH1", "1.00", "1", "U"},
              {"BH1", "2.00", "2", "b"},
              {"BH1", "3.00", "3", "B "},
              {"BH1", "4.00", "4", ""}});
  file.Group("CLSS",
             {"HOLE_ID", "SAMP_TOP", "SAMP_REF", "SAMP_TYPE", "SPEC_REF", "SPEC_DPTH", "CLSS_NMC",
              "CLSS_LL", "CLSS_425"},
             {"", "m", "", "", "", "m", "%", "%", "%"},
             {{"BH1", "1.00", "1", "U", "", "", "21", "45", "98"},
              {"BH1", "2.00", "2", "B", "", "", "24", "", ""}});
  file.Group("ABBR", {"ABBR_HDNG", "ABBR_CODE", "ABBR_DESC"}, {}, {});
  const std::string expected = Golden(
      "\n1. List of HOLE_IDs in the file.\n"
      "Total number of HOLE_IDs: 3\n"
      "  BH2\n"
      "  BH1\n"
      "  TP1\n"
      "\n2. Number of records in each group with data.\n"
      "  CLSS  2\n"
      "  GEOL  3\n"
      "  HOLE  3\n"
      "  PROJ  1\n"
      "  SAMP  4\n"
      "\n3. Number of holes of each type with total drilling length.\n"
      "  CP  2  0.3\n"
      "  TP  1  3.5\n"
      "\n4. Number of samples of each type.\n"
      "  B  2\n"
      "  U  1\n"
      "\n5. Site Geometry\n"
      "  HOLE_LOCX:  There are no data.\n"
      "  HOLE_LOCY:  There are no data.\n"
      "  HOLE_LOCZ:  There are no data.\n"
      "  HOLE_NATE:  Min 523145.2    Max 523150    (2 of 3 with data)\n"
      "  HOLE_NATN:  Min 174190.5    Max 174205    (3 of 3 with data)\n"
      "  HOLE_GL:  Min -0.5    Max 13.05    (3 of 3 with data)\n"
      "\n6. Number of Index tests in CLSS group.\n"
      "% < 0.425mm (CLSS_425)  1\n"
      "Liquid Limit (CLSS_LL)  1\n"
      "Natural Moisture Content (CLSS_NMC)  2\n"
      "\n7. Holes with no data in 'GEOL' group.\n"
      "  All Holes have data in this group.\n"
      "\n8. Holes with no data in 'SAMP' group.\n"
      "  BH2\n"
      "  TP1\n"
      "\n9. Groups with no data or standard AGS groups missing from file.\n"
      "  ?BKFL\n  ?HDPH\n  ?ICCT\n  ?IFID\n  ?IPID\n  ?MONP\n  ?MONR\n  ?TREM\n"
      "  ABBR\n  CBRG\n  CBRT\n  CDIA\n  CHIS\n  CHLK\n  CMPG\n  CMPT\n  CNMT\n  CODE\n  CONG\n"
      "  CONS\n  CORE\n  DETL\n  DICT\n  DISC\n  DPRB\n  DPRG\n  DREM\n  FILE\n  FLSH\n  FRAC\n"
      "  FRST\n  GRAD\n  HDIA\n  HPGI\n  HPGO\n  ICBR\n  IDEN\n  INST\n  IOBS\n  IPRM\n  IRDX\n"
      "  IRES\n  ISPT\n  IVAN\n  MCVG\n  MCVT\n  POBS\n  PREF\n  PROB\n  PROF\n  PRTD\n  PRTG\n"
      "  PRTL\n  PTIM\n  PTST\n  PUMP\n  RELD\n  ROCK\n  SHBG\n  SHBT\n  STCN\n  SUCT\n  TNPC\n"
      "  TRIG\n  TRIX\n  UNIT\n  WETH\n  WSTK\n");
  EXPECT_EQ(StatisticsOf(file.Text()), expected);
}

constexpr std::string_view SmallSchema =
    "'Vexo Schema for AGS\nLOCA\n\nLOCA_ID\n\nPROJ\n\n\n"
    "PROJ\n,1\nPROJ_ID,PROJ_NAME\n,\nID,X\n"
    "LOCA\n,1\nLOCA_ID,LOCA_TYPE,LOCA_FDEP,LOCA_NATE,LOCA_GL\n,,m,m,m\nID,PA,2DP,2DP,2DP\n"
    "GEOL\nLOCA,2\nLOCA_ID,GEOL_TOP\n,m\nID,2DP\n"
    "SAMP\nLOCA,2\nLOCA_ID,SAMP_TYPE\n,\nID,PA\n"
    "ISPT\nLOCA,2\nLOCA_ID,ISPT_TOP\n,m\nID,2DP\n";

TEST(DataStatistics, OfAnAgs4File) {
  Ags4File file = MinimalAgs4();
  file.Group(
      "LOCA", {"LOCA_ID", "LOCA_TYPE", "LOCA_FDEP", "LOCA_NATE", "LOCA_GL"},
      {"", "", "m", "m", "m"}, {"ID", "PA", "2DP", "2DP", "2DP"},
      {{"BH1", "CP+RC", "25.00", "523145.20", "4.00"}, {"BH2", "TP", "3.25", "523100", "4"}});
  file.Group("CLSS", {"LOCA_ID", "CLSS_LL"}, {"", "%"}, {"ID", "0DP"}, {{"BH1", "45"}});
  file.Group("GEOL", {"LOCA_ID", "GEOL_TOP"}, {"", "m"}, {"ID", "2DP"}, {{"BH2", "0.00"}});
  const std::string expected = Golden(
      "\n1. List of LOCA_IDs in the file.\n"
      "Total number of LOCA_IDs: 2\n"
      "  BH1\n"
      "  BH2\n"
      "\n2. Number of records in each group with data.\n"
      "  CLSS  1\n"
      "  GEOL  1\n"
      "  LOCA  2\n"
      "  PROJ  1\n"
      "  TRAN  1\n"
      "  TYPE  3\n"
      "  UNIT  1\n"
      "\n3. Number of holes of each type with total drilling length.\n"
      "  CP+RC  1  25\n"
      "  TP  1  3.25\n"
      "\n4. Number of samples of each type.\n"
      "  There is no SAMP group in the file.\n"
      "\n5. Site Geometry\n"
      "  LOCA_LOCX:  There are no data.\n"
      "  LOCA_LOCY:  There are no data.\n"
      "  LOCA_LOCZ:  There are no data.\n"
      "  LOCA_NATE:  Min 523100    Max 523145.2    (2 of 2 with data)\n"
      "  LOCA_NATN:  There are no data.\n"
      "  LOCA_GL:  Min 4    Max 4    (2 of 2 with data)\n"
      "\n6. Holes with no data in 'GEOL' group.\n"
      "  BH1\n"
      "\n7. Holes with no data in 'SAMP' group.\n"
      "  The 'SAMP' group does not exist in this file.\n"
      "\n8. Groups with no data or standard AGS groups missing from file.\n"
      "  ISPT\n"
      "  SAMP\n");
  EXPECT_EQ(LastStatistics(CheckTextAgainst(SmallSchema, file.Text(), WithStatistics()).log),
            expected);
}

TEST(DataStatistics, OfAFileWithoutLocationGroup) {
  Ags4File file = MinimalAgs4();
  file.Group("SAMP", {"LOCA_ID", "SAMP_TYPE"}, {"", ""}, {"ID", "PA"}, {{"BH1", "U"}});
  const std::string expected = Golden(
      "\n1. List of LOCA_IDs in the file.\n"
      "None\n"
      "\n2. Number of records in each group with data.\n"
      "  PROJ  1\n"
      "  SAMP  1\n"
      "  TRAN  1\n"
      "  TYPE  3\n"
      "  UNIT  1\n"
      "\n3. Number of holes of each type with total drilling length.\n"
      "  There is no LOCA group in the file.\n"
      "\n4. Number of samples of each type.\n"
      "  U  1\n"
      "\n5. Site Geometry\n"
      "  There is no LOCA group in the file.\n"
      "\n6. Holes with no data in 'GEOL' group.\n"
      "  There is no LOCA group in the file.\n"
      "\n7. Holes with no data in 'SAMP' group.\n"
      "  There is no LOCA group in the file.\n"
      "\n8. Groups with no data or standard AGS groups missing from file.\n"
      "  GEOL\n"
      "  ISPT\n"
      "  LOCA\n");
  EXPECT_EQ(LastStatistics(CheckTextAgainst(SmallSchema, file.Text(), WithStatistics()).log),
            expected);
}

const std::string NoDataAtAll = Golden(
    "\n1. List of HOLE_IDs in the file.\n"
    "None\n"
    "\n2. Number of records in each group with data.\n"
    "  There are no data.\n");

TEST(DataStatistics, OfAFileWithoutAnyData) {
  Ags3File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_AGS"}, {"", ""}, {});
  file.Group("HOLE", {"HOLE_ID", "HOLE_TYPE"}, {"", ""}, {});
  EXPECT_EQ(StatisticsOf(file.Text()), NoDataAtAll);
}

TEST(DataStatistics, FollowTheClosingLineOfTheReport) {
  const CheckResult result = CheckText(HolesText({"HOLE_ID"}, {{"BH1"}}), WithStatistics());
  EXPECT_NE(result.log.find(std::string(39, '*') + "\r\n\r\nDATA STATISTICS\r\n"),
            std::string::npos);
}

TEST(DataStatistics, AreWrittenOnlyWhenWanted) {
  EXPECT_EQ(CheckText(HolesText({"HOLE_ID"}, {{"BH1"}})).log.find("STATISTICS"), std::string::npos);
}

TEST(DataStatistics, OfAFileThatCannotBeCheckedFurtherHaveAnEmptyTable) {
  const std::string wrongLabel = MinimalAgs4().Line("\"REMARK\",\"unchecked\"").Text();
  const std::string wrongOrder = MinimalAgs4().Line("\"UNIT\",\"\"").Text();
  for (const std::string& text : {wrongLabel, wrongOrder}) {
    const CheckResult result = CheckText(text, WithStatistics());
    EXPECT_NE(result.log.find("Could not continue with further checking."), std::string::npos);
    EXPECT_EQ(LastStatistics(result.log), Golden("\n1. List of LOCA_IDs in the file.\n"
                                                 "None\n"
                                                 "\n2. Number of records in each group with data.\n"
                                                 "  There are no data.\n"));
  }
}

TEST(DataStatistics, AreNotWrittenForWhatIsNoAgsFile) {
  EXPECT_EQ(StatisticsOf("A letter.\n"), "");
  EXPECT_EQ(StatisticsOf(""), "");
}

TEST(DataStatistics, OfAMissingFileAreNotWritten) {
  FakeServices services;
  services.window.settings = WithStatistics();
  services.window.settings.filesToCheck = "nowhere.ags";
  CheckRun run(services.All());
  run.ExecuteChecking();
  EXPECT_EQ(LastStatistics(run.LogText()), "");
}

/// Runs over files with statistics, one run after the other in one program.
class Program {
 public:
  Program() : run_(services_.All()) { services_.window.settings = WithStatistics(); }

  /// The statistics of each file of a run, with LF for CR LF.
  std::vector<std::string> Run(const std::vector<std::string>& texts) {
    std::vector<std::string> names;
    for (const std::string& text : texts) {
      names.push_back("file" + std::to_string(names.size() + 1) + ".ags");
      services_.disk.files[names.back()] = ReplaceAll(text, "\n", LineBreak);
    }
    services_.window.settings.filesToCheck = Join(names, LineBreak);
    run_.ExecuteChecking();
    std::vector<std::string> statistics;
    const std::string log = ReplaceAll(run_.LogText(), LineBreak, "\n");
    for (std::size_t start = log.find(Preamble); start != std::string::npos;
         start = log.find(Preamble, start + 1)) {
      const std::size_t end = log.find(ClosingLine, start) + ClosingLine.size();
      statistics.push_back(log.substr(start, end - start));
    }
    return statistics;
  }

 private:
  FakeServices services_;
  CheckRun run_;
};

const std::string NoLocationData = "  There are no HOLE group data records.\n";

void ExpectLocationSectionsAreSkipped(const std::string& statistics) {
  EXPECT_EQ(Section(statistics, LocationsTitle), "None\n");
  for (const std::string_view title : {HolesTitle, GeometryTitle, GeolTitle, SampTitle}) {
    EXPECT_EQ(Section(statistics, title), NoLocationData) << title;
  }
}

TEST(DataStatistics, EmptyLocationGroupShowsInTheNextFile) {
  const std::string withHoles =
      HolesText({"HOLE_ID", "HOLE_TYPE", "HOLE_FDEP"}, {{"BH1", "CP", "5"}});
  const std::string withoutRows = HolesText({"HOLE_ID", "HOLE_TYPE", "HOLE_FDEP"}, {});
  Program program;
  const std::vector<std::string> statistics = program.Run({withoutRows, withHoles, withHoles});
  ASSERT_EQ(statistics.size(), 3U);
  // Of the first file the flag is not yet set.
  EXPECT_EQ(Section(statistics[0], LocationsTitle), "None\n");
  EXPECT_EQ(Section(statistics[0], HolesTitle), "");
  EXPECT_EQ(Section(statistics[0], GeolTitle), "  There are no HOLE_IDs defined in this file.\n");
  ExpectLocationSectionsAreSkipped(statistics[1]);
  EXPECT_EQ(Section(statistics[1], CountsTitle), "  HOLE  1\n  PROJ  1\n");
  EXPECT_EQ(Section(statistics[2], LocationsTitle), "Total number of HOLE_IDs: 1\n  BH1\n");
  EXPECT_EQ(Section(statistics[2], HolesTitle), "  CP  1  5\n");
}

TEST(DataStatistics, EmptyLocationGroupShowsInTheNextRun) {
  const std::string withHoles = HolesText({"HOLE_ID"}, {{"BH1"}});
  Program program;
  program.Run({HolesText({"HOLE_ID"}, {})});
  ExpectLocationSectionsAreSkipped(program.Run({withHoles}).at(0));
  EXPECT_EQ(Section(program.Run({withHoles}).at(0), LocationsTitle),
            "Total number of HOLE_IDs: 1\n  BH1\n");
}

TEST(DataStatistics, FileWithoutDataLeavesTheStateAsItWas) {
  const std::string withHoles = HolesText({"HOLE_ID"}, {{"BH1"}});
  const std::string withoutRows = HolesText({"HOLE_ID"}, {});
  const std::string nothing = Ags3File().Group("PROJ", {"PROJ_ID"}, {""}, {}).Text();
  const std::vector<std::string> statistics = Program().Run({withoutRows, nothing, withHoles});
  ASSERT_EQ(statistics.size(), 3U);
  EXPECT_EQ(statistics[1], NoDataAtAll);
  ExpectLocationSectionsAreSkipped(statistics[2]);
}

TEST(DataStatistics, FileWithoutLocationGroupEndsTheNoDataState) {
  const std::string withHoles = HolesText({"HOLE_ID"}, {{"BH1"}});
  const std::vector<std::string> statistics =
      Program().Run({HolesText({"HOLE_ID"}, {}), Project().Text(), withHoles});
  ASSERT_EQ(statistics.size(), 3U);
  EXPECT_EQ(Section(statistics[1], HolesTitle), "  There is no HOLE group in the file.\n");
  EXPECT_EQ(Section(statistics[2], LocationsTitle), "Total number of HOLE_IDs: 1\n  BH1\n");
}

}  // namespace
}  // namespace quorvane::test
