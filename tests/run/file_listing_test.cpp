#include <string>

#include <gtest/gtest.h>

#include "run/run_fixture.h"
#include "support/check_text.h"

namespace quorvane::test {
namespace {

/// A file with one finding of each severity that has a label, and as many of Rule 1 as wanted.
std::string FileOfAllSeverities(std::size_t tabs) {
  // The UNIT group takes no units line: one more line, one FYI.
  return "\xEF\xBB\xBF" + ReplaceAll(Ags3WithTabs(tabs), "\"*UNIT_DESC\"\r\n",
                                     "\"*UNIT_DESC\"\r\n\"<UNITS>\",\"\"\r\n");
}

std::string TabFindings(std::size_t count, const std::string& indent) {
  std::string findings;
  for (std::size_t index = 0; index < count; ++index) {
    findings += indent + "ERROR: Line 4 - character position " + std::to_string(7 + index) + "\r\n";
  }
  return findings;
}

const std::string MarkFinding =
    "WARNING: Line 1 - File begins with a UTF-8 byte order mark.  It was ignored.\r\n";
const std::string UnitsFinding =
    "FYI: Line 8 - <UNITS> line does not apply to group UNIT (Rule 18).\r\n";
const std::string NoticeFinding =
    "No further checks for high or low bit ASCII characters made.\r\n";

/// The part of a log behind the line of the file's version.
std::string BehindVersionLine(const std::string& log) {
  const std::string line = "File AGS Version: 3.1\r\n\r\n";
  const std::size_t found = log.find(line);
  return found == std::string::npos ? "no version line in:\r\n" + log
                                    : log.substr(found + line.size());
}

class FileListingTest : public RunTest {
 protected:
  /// Checks a file and gives what its log has behind the version line.
  std::string ListingOf(const std::string& content) {
    Put("test.ags", content);
    Check("test.ags");
    return BehindVersionLine(run_.LogText());
  }
};

TEST_F(FileListingTest, WithoutFindingsSaysSo) {
  EXPECT_EQ(ListingOf(CleanAgs3()), "SUMMARY:  No problems found in file.\r\n" + ClosingLines);
}

TEST_F(FileListingTest, WithOneFindingHasItsWordingInTheSingular) {
  EXPECT_EQ(ListingOf(Ags3WithTabs(1)),
            "SUMMARY:  1 total error or warning or informational message\r\n"
            "\r\nLow/high bit ASCII characters (Rule 1)   1 error or warning or informational "
            "message\r\n" +
                TabFindings(1, "  ") + "\r\n" + ClosingLines);
}

TEST_F(FileListingTest, WithFyiSuppressedHasItsWordingWithoutIt) {
  services_.window.settings.suppressFyi = true;
  EXPECT_EQ(ListingOf(FileOfAllSeverities(2)),
            "SUMMARY:  3 total errors or warnings\r\n"
            "\r\nFile Name Check   1 error or warning\r\n  " +
                MarkFinding +
                "\r\nLow/high bit ASCII characters (Rule 1)   2 errors or warnings\r\n" +
                TabFindings(2, "  ") + "\r\n" + ClosingLines);
}

TEST_F(FileListingTest, ListsItsFindingsUnderTheChecksThatMadeThem) {
  services_.window.settings.listings = {true, false, false};
  EXPECT_EQ(ListingOf(FileOfAllSeverities(10)),
            "SUMMARY:  12 total errors or warnings or informational messages\r\n"
            "\r\nFile Name Check   1 error or warning or informational message\r\n  " +
                MarkFinding +
                "\r\nLow/high bit ASCII characters (Rule 1)   10 errors or warnings or "
                "informational messages\r\n" +
                TabFindings(10, "  ") +
                "\r\nParsing Structure and Data   1 error or warning or informational message\r\n"
                "  " +
                UnitsFinding + "\r\n" + ClosingLines);
}

TEST_F(FileListingTest, SortsItsFindingsByLineNumber) {
  services_.window.settings.listings = {false, true, false};
  EXPECT_EQ(ListingOf(FileOfAllSeverities(20)),
            "SUMMARY:  23 total errors or warnings or informational messages\r\n"
            "\r\n" +
                std::string(20, '*') + "\r\nMESSAGES SORTED BY LINE NUMBER:\r\n" + NoticeFinding +
                MarkFinding + TabFindings(20, "") + UnitsFinding + ClosingLines);
}

TEST_F(FileListingTest, SortsItsFindingsBySeverity) {
  services_.window.settings.listings = {false, false, true};
  EXPECT_EQ(ListingOf(FileOfAllSeverities(20)),
            "SUMMARY:  23 total errors or warnings or informational messages\r\n"
            "\r\n" +
                std::string(20, '*') + "\r\nMESSAGES SORTED BY SEVERITY:\r\n" +
                TabFindings(20, "") + "\r\n" + MarkFinding + "\r\n" + UnitsFinding + "\r\n" +
                NoticeFinding + ClosingLines);
}

TEST_F(FileListingTest, ShowsAllListingsInTheirOrder) {
  services_.window.settings.listings = {true, true, true};
  const std::string listing = ListingOf(Ags3WithTabs(10));
  EXPECT_EQ(listing,
            "SUMMARY:  10 total errors or warnings or informational messages\r\n"
            "\r\nLow/high bit ASCII characters (Rule 1)   10 errors or warnings or informational "
            "messages\r\n" +
                TabFindings(10, "  ") + "\r\n\r\n" + std::string(20, '*') +
                "\r\nMESSAGES SORTED BY LINE NUMBER:\r\n" + TabFindings(10, "") + "\r\n" +
                std::string(20, '*') + "\r\nMESSAGES SORTED BY SEVERITY:\r\n" +
                TabFindings(10, "") + ClosingLines);
}

TEST_F(FileListingTest, BelowTenFindingsShowsTheGroupedListingOnly) {
  const std::string expected =
      "SUMMARY:  9 total errors or warnings or informational messages\r\n"
      "\r\nLow/high bit ASCII characters (Rule 1)   9 errors or warnings or informational "
      "messages\r\n" +
      TabFindings(9, "  ") + "\r\n" + ClosingLines;
  for (const ListingChoice& choice :
       {ListingChoice{true, true, true}, ListingChoice{false, true, false},
        ListingChoice{false, false, true}}) {
    services_.window.settings.listings = choice;
    EXPECT_EQ(ListingOf(Ags3WithTabs(9)), expected);
  }
}

// What stands behind the listings.

/// An AGS 4 file with a type and a unit that the dictionary has otherwise.
std::string FileOfOtherTypes() {
  std::string text = MinimalAgs4().Text();
  text = ReplaceAll(text, "\"UNIT\",\"\",\"\"\n\"TYPE\",\"ID\",\"X\"\n",
                    "\"UNIT\",\"\",\"m\"\n\"TYPE\",\"ID\",\"ID\"\n");
  text += "\"DATA\",\"m\",\"metre\"\n";  // behind the rows of the UNIT group
  return ReplaceAll(text, "\n", LineBreak);
}

TEST_F(FileListingTest, DifferencesFromACustomDictionaryStandBehindTheListings) {
  services_.window.settings.useCustomDictionary = true;
  services_.window.settings.customDictionary = "/program/ags4 dict.gas";
  Put("test.txt", FileOfOtherTypes());
  Check("test.txt");
  EXPECT_TRUE(run_.LogText().ends_with(
      "  ERROR: File Name must have the extension \".AGS\".\r\n\r\n"
      "Data types in custom dictionary that did not match types in file:\r\n"
      "  PROJ.PROJ_NAME: X <> ID\r\n"
      "Units in custom dictionary that did not match units in file:\r\n"
      "  PROJ.PROJ_NAME:  <> m\r\n" +
      ClosingLines))
      << run_.LogText();
}

TEST_F(FileListingTest, DifferencesAreNotListedWithoutACustomDictionary) {
  Put("test.ags", FileOfOtherTypes());
  Check("test.ags");
  EXPECT_EQ(run_.LogText().find("did not match"), std::string::npos);
}

constexpr std::string_view StatisticsTitle = "DATA STATISTICS\r\n";

TEST_F(FileListingTest, StatisticsFollowTheClosingLineWhenTheyAreWanted) {
  Put("test.ags", CleanAgs3());
  Check("test.ags");
  EXPECT_EQ(run_.LogText().find(StatisticsTitle), std::string::npos);
  services_.window.settings.showStatistics = true;
  Check("test.ags");
  EXPECT_NE(run_.LogText().find("SUMMARY:  No problems found in file.\r\n" + ClosingLines +
                                std::string(StatisticsTitle)),
            std::string::npos)
      << run_.LogText();
}

TEST_F(FileListingTest, StatisticsOfAFileWithWrongRowsAreThoseOfNoData) {
  services_.window.settings.showStatistics = true;
  for (const std::string text : {"\"GROUP\",\"PROJ\"\r\n\"UNIT\",\"\"\r\n\"TYPE\",\"ID\"",
                                 "\"GROUP\",\"PROJ\"\r\n\"HEADING\",\"PROJ_ID\"\r\n"
                                 "\"UNIT\",\"\"\r\n\"TYPE\",\"ID\"\r\n\"DATA\",\"1\"\r\n"
                                 "\"GROUP\",\"TRAN\"\r\n"}) {
    Put("test.ags", text);
    Check("test.ags");
    EXPECT_NE(run_.LogText().find("Could not continue with further checking.\r\n" + ClosingLines +
                                  std::string(StatisticsTitle)),
              std::string::npos)
        << run_.LogText();
    EXPECT_NE(run_.LogText().find("2. Number of records in each group with data.\r\n"
                                  "  There are no data.\r\n"),
              std::string::npos)
        << run_.LogText();
  }
}

TEST_F(FileListingTest, FilesOfUndecidedVersionHaveNoStatistics) {
  services_.window.settings.showStatistics = true;
  Put("other.ags", "nothing");
  Put("large.ags", CleanAgs3());
  services_.disk.statedSizes["large.ags"] = 3000000000;
  Check("missing.ags\nother.ags\nlarge.ags");
  EXPECT_EQ(run_.LogText().find(StatisticsTitle), std::string::npos);
}

}  // namespace
}  // namespace quorvane::test
