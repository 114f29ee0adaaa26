#include "ui/settings_file.h"

#include <filesystem>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_services.h"
#include "text/comma_list.h"
#include "ui/written_path.h"

namespace quorvane {

static void PrintTo(SettingsOutcome outcome, std::ostream* stream) {
  *stream << static_cast<int>(outcome);
}

}  // namespace quorvane

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// On Windows a path with "\" is used as it stands.
constexpr bool HasBackslashPaths = std::filesystem::path::preferred_separator == '\\';

RunSettings Applied(std::string_view text, RunSettings settings = {}) {
  ApplySettings(text, settings);
  return settings;
}

/// The listings that are wanted, as letters.
std::string ListingsOf(const RunSettings& settings) {
  const ListingChoice& listings = settings.controls.listings;
  return std::string(listings.scanGroupings ? "G" : "") + (listings.lineNumberInFile ? "L" : "") +
         (listings.severity ? "S" : "");
}

// The text of a settings file.

TEST(ApplySettings, SetsEveryControl) {
  const RunSettings settings = Applied(
      "FILESTOCHECK=site.ags\r\n"
      "MESGLIST_SCANGROUPINGS=TRUE\r\n"
      "MESGLIST_LINENUMBERINFILE=TRUE\r\n"
      "MESGLIST_SEVERITY=TRUE\r\n"
      "SUPPRESSFYIMESGS=TRUE\r\n"
      "SHOWDATASTATS=TRUE\r\n"
      "CUSTOMDICTIONARY=own.gas\r\n"
      "LOGFILE=log.txt\r\n");
  EXPECT_EQ(settings.controls.filesToCheck, "site.ags");
  EXPECT_EQ(ListingsOf(settings), "GLS");
  EXPECT_TRUE(settings.controls.suppressFyi);
  EXPECT_TRUE(settings.controls.showStatistics);
  EXPECT_EQ(settings.controls.customDictionary, "own.gas");
  EXPECT_EQ(settings.logFile, "log.txt");
}

TEST(ApplySettings, ClearsEveryBox) {
  RunSettings before;
  before.controls.listings = {true, true, true};
  before.controls.suppressFyi = true;
  before.controls.showStatistics = true;
  const RunSettings settings = Applied(
      "MESGLIST_SCANGROUPINGS=FALSE\r\nMESGLIST_LINENUMBERINFILE=0\r\nMESGLIST_SEVERITY=yes\r\n"
      "SUPPRESSFYIMESGS=no\r\nSHOWDATASTATS=\r\n",
      before);
  EXPECT_EQ(ListingsOf(settings), "S");
  EXPECT_FALSE(settings.controls.suppressFyi);
  EXPECT_FALSE(settings.controls.showStatistics);
}

TEST(ApplySettings, TakesTruthInAllItsForms) {
  for (const std::string word : {"TRUE", "true", "T", "YES", "y", "On", "1", "-1", " 1 "}) {
    EXPECT_TRUE(Applied("SHOWDATASTATS=" + word).controls.showStatistics) << word;
  }
  for (const std::string word : {"FALSE", "no", "off", "0", "", "perhaps"}) {
    EXPECT_FALSE(Applied("SHOWDATASTATS=" + word).controls.showStatistics) << word;
  }
}

TEST(ApplySettings, LeavesWhatItDoesNotNameAsItWas) {
  RunSettings before;
  before.controls.filesToCheck = "site.ags";
  before.controls.suppressFyi = true;
  before.controls.customDictionary = "own.gas";
  before.logFile = "log.txt";
  const RunSettings settings = Applied("SHOWDATASTATS=TRUE", before);
  EXPECT_EQ(settings.controls.filesToCheck, "site.ags");
  EXPECT_TRUE(settings.controls.suppressFyi);
  EXPECT_EQ(settings.controls.customDictionary, "own.gas");
  EXPECT_EQ(settings.logFile, "log.txt");
}

TEST(ApplySettings, KeysMayBeInAnyLetterCaseWithBlanksAround) {
  const RunSettings settings =
      Applied("  showdatastats = TRUE \r\n SuppressFyiMesgs=true\r\nfilesToCheck  =  a b.ags  ");
  EXPECT_TRUE(settings.controls.showStatistics);
  EXPECT_TRUE(settings.controls.suppressFyi);
  EXPECT_EQ(settings.controls.filesToCheck, "a b.ags");
}

TEST(ApplySettings, WantsTheWholeKey) {
  const RunSettings settings = Applied("MYLOGFILE=a\r\nLOGFILES=b\r\nLOG FILE=c\r\n=d");
  EXPECT_EQ(settings.logFile, "");
}

TEST(ApplySettings, SplitsAtTheFirstEqualsSignOnly) {
  EXPECT_EQ(Applied("FILESTOCHECK=a=b=c.ags").controls.filesToCheck, "a=b=c.ags");
  EXPECT_EQ(Applied("LOGFILE==x").logFile, "=x");
}

TEST(ApplySettings, PassesOverUnknownKeysAndLinesWithoutASign) {
  const RunSettings settings =
      Applied("COLOUR=red\r\n\r\n   \r\n; a remark\r\nSHOWDATASTATS\r\n[section]\r\nLOGFILE=a");
  EXPECT_FALSE(settings.controls.showStatistics);
  EXPECT_EQ(settings.logFile, "a");
}

TEST(ApplySettings, LetsTheLastOfSeveralLinesWin) {
  EXPECT_EQ(Applied("LOGFILE=a\r\nLOGFILE=b").logFile, "b");
}

TEST(ApplySettings, TakesDoubleQuotesOutOfTheLogPath) {
  EXPECT_EQ(Applied("LOGFILE=\"my logs/the log.txt\"").logFile, "my logs/the log.txt");
  EXPECT_EQ(Applied("LOGFILE=\"a\" \"b\"").logFile, "a b");
}

TEST(ApplySettings, KeepsDoubleQuotesOfOtherPaths) {
  const RunSettings settings = Applied("CUSTOMDICTIONARY=\"own.gas\"\r\nFILESTOCHECK=\"a.ags\"");
  EXPECT_EQ(settings.controls.customDictionary, "\"own.gas\"");
  EXPECT_EQ(settings.controls.filesToCheck, "\"a.ags\"");
}

TEST(ApplySettings, FillsInTheDictionaryWithoutTickingItsBox) {
  EXPECT_FALSE(Applied("CUSTOMDICTIONARY=own.gas").controls.useCustomDictionary);
  RunSettings ticked;
  ticked.controls.useCustomDictionary = true;
  EXPECT_TRUE(Applied("CUSTOMDICTIONARY=own.gas", ticked).controls.useCustomDictionary);
}

TEST(ApplySettings, ReadsEveryKindOfLineEnd) {
  for (const std::string lineEnd : {"\r\n", "\n", "\r"}) {
    const RunSettings settings =
        Applied(Join(std::vector<std::string>{"SHOWDATASTATS=1", "LOGFILE=a",
                                              "FILESTOCHECK=<ARRAY>", "a.ags", "b.ags", "</ARRAY>"},
                     lineEnd));
    EXPECT_TRUE(settings.controls.showStatistics);
    EXPECT_EQ(settings.logFile, "a");
    EXPECT_EQ(settings.controls.filesToCheck, "a.ags\r\nb.ags");
  }
}

TEST(ApplySettings, DropsAByteOrderMark) {
  EXPECT_EQ(Applied("\xEF\xBB\xBFLOGFILE=a").logFile, "a");
}

TEST(ApplySettings, KeepsBytesBeyondAscii) {
  EXPECT_EQ(Applied("LOGFILE=\xFC\xC3\xA4.txt").logFile, "\xFC\xC3\xA4.txt");
}

// Blocks.

TEST(ApplySettings, JoinsTheEntriesOfABlock) {
  const RunSettings settings = Applied(
      "FILESTOCHECK=<ARRAY>\r\n"
      "  a.ags \r\n"
      "\r\n"
      "   \r\n"
      "my data/b.ags\r\n"
      "</ARRAY>\r\n"
      "LOGFILE=log.txt\r\n");
  EXPECT_EQ(settings.controls.filesToCheck, "a.ags\r\nmy data/b.ags");
  EXPECT_EQ(settings.logFile, "log.txt");
}

TEST(ApplySettings, ReadsBlockMarkersInAnyLetterCaseWithWhateverFollows) {
  EXPECT_EQ(
      Applied("filestocheck = <Array>not this.ags\r\na.ags\r\n  </aRRay>  ").controls.filesToCheck,
      "a.ags");
}

TEST(ApplySettings, TakesKeyLinesInABlockAsEntries) {
  const RunSettings settings = Applied(
      "FILESTOCHECK=<ARRAY>\r\nLOGFILE=a\r\nSHOWDATASTATS=<ARRAY>\r\n</ARRAY> b\r\n</ARRAY>");
  EXPECT_EQ(settings.controls.filesToCheck, "LOGFILE=a\r\nSHOWDATASTATS=<ARRAY>\r\n</ARRAY> b");
  EXPECT_EQ(settings.logFile, "");
}

TEST(ApplySettings, AppliesNothingForABlockThatIsNotClosed) {
  RunSettings before;
  before.controls.filesToCheck = "site.ags";
  const RunSettings settings =
      Applied("SHOWDATASTATS=1\r\nFILESTOCHECK=<ARRAY>\r\na.ags\r\nLOGFILE=a\r\n", before);
  EXPECT_EQ(settings.controls.filesToCheck, "site.ags");
  EXPECT_TRUE(settings.controls.showStatistics);
  EXPECT_EQ(settings.logFile, "");
}

TEST(ApplySettings, EmptiesTheListForABlockWithoutEntries) {
  RunSettings before;
  before.controls.filesToCheck = "site.ags";
  EXPECT_EQ(Applied("FILESTOCHECK=<ARRAY>\r\n</ARRAY>", before).controls.filesToCheck, "");
}

TEST(ApplySettings, AppliesABlockToAnyKey) {
  const RunSettings settings = Applied(
      "LOGFILE=<ARRAY>\r\n\"my log.txt\"\r\n</ARRAY>\r\n"
      "SHOWDATASTATS=<ARRAY>\r\nTRUE\r\n</ARRAY>\r\n"
      "COLOUR=<ARRAY>\r\nLOGFILE=red\r\n</ARRAY>\r\n"
      "CUSTOMDICTIONARY=own.gas");
  EXPECT_EQ(settings.logFile, "my log.txt");
  EXPECT_TRUE(settings.controls.showStatistics);
  EXPECT_EQ(settings.controls.customDictionary, "own.gas");
}

TEST(ApplySettings, PassesOverABlockEndWithoutABlock) {
  EXPECT_EQ(Applied("</ARRAY>\r\nLOGFILE=a").logFile, "a");
}

TEST(ApplySettings, OpensABlockOnlyWhereTheValueBeginsWithItsMarker) {
  EXPECT_EQ(Applied("LOGFILE=a<ARRAY>\r\nb").logFile, "a<ARRAY>");
}

// Listings.

TEST(ApplySettings, WantsTheListingsOfTheFileOnly) {
  EXPECT_EQ(ListingsOf(RunSettings{}), "G");
  EXPECT_EQ(ListingsOf(Applied("MESGLIST_SEVERITY=TRUE")), "S");
  EXPECT_EQ(ListingsOf(Applied("MESGLIST_LINENUMBERINFILE=1")), "L");
  RunSettings before;
  before.controls.listings = {true, true, true};
  EXPECT_EQ(ListingsOf(Applied("MESGLIST_SEVERITY=TRUE", before)), "S");
}

TEST(ApplySettings, WantsScanGroupingsWhereNoListingIsNamed) {
  EXPECT_EQ(ListingsOf(Applied("SHOWDATASTATS=TRUE")), "G");
  EXPECT_EQ(ListingsOf(Applied("")), "G");
  EXPECT_EQ(ListingsOf(Applied("MESGLIST_SCANGROUPINGS=FALSE\r\nMESGLIST_SEVERITY=0")), "G");
  EXPECT_EQ(ListingsOf(Applied("MESGLIST_SEVERITY=TRUE\r\nMESGLIST_SEVERITY=FALSE")), "G");
  RunSettings before;
  before.controls.listings = {false, true, true};
  EXPECT_EQ(ListingsOf(Applied("SHOWDATASTATS=TRUE", before)), "G");
}

// The file.

class SettingsFileTest : public testing::Test {
 protected:
  SettingsOutcome Load(const std::vector<std::string>& pieces) {
    return LoadSettingsFile(disk_, messages_, SettingsFileOption, CommandLine{{}, pieces},
                            settings_);
  }

  MemoryDisk disk_;
  RecordingMessages messages_;
  RunSettings settings_;
};

TEST_F(SettingsFileTest, IsApplied) {
  disk_.files["settings.txt"] = "LOGFILE=log.txt\r\n";
  EXPECT_EQ(Load({"SETTINGSFILE=settings.txt"}), SettingsOutcome::Applied);
  EXPECT_EQ(settings_.logFile, "log.txt");
  EXPECT_THAT(messages_.boxes, IsEmpty());
  EXPECT_THAT(messages_.notes, IsEmpty());
}

TEST_F(SettingsFileTest, NeedNotBeNamed) {
  EXPECT_EQ(Load({}), SettingsOutcome::NotNamed);
  EXPECT_EQ(Load({"OTHER=settings.txt"}), SettingsOutcome::NotNamed);
  EXPECT_THAT(messages_.boxes, IsEmpty());
  EXPECT_THAT(messages_.notes, IsEmpty());
}

TEST_F(SettingsFileTest, MayBeNamedWithQuotesAndBlanks) {
  disk_.files["my settings.txt"] = "LOGFILE=log.txt";
  EXPECT_EQ(Load({"settingsfile = \"my settings.txt\" "}), SettingsOutcome::Applied);
  EXPECT_EQ(settings_.logFile, "log.txt");
}

TEST_F(SettingsFileTest, IsIgnoredWithoutExactlyOneEqualsSign) {
  disk_.files["a"] = "LOGFILE=log.txt";
  disk_.files["a=b"] = "LOGFILE=log.txt";
  for (const std::string piece : {"SETTINGSFILE", "SETTINGSFILE a", "SETTINGSFILE=a=b"}) {
    messages_ = {};
    EXPECT_EQ(Load({piece}), SettingsOutcome::NotApplied) << piece;
    EXPECT_THAT(messages_.notes, ElementsAre(HasSubstr("/" + piece + ": ignored")));
    EXPECT_THAT(messages_.boxes, IsEmpty());
    EXPECT_EQ(settings_.logFile, "");
    EXPECT_EQ(ListingsOf(settings_), "G");
  }
}

TEST_F(SettingsFileTest, ThatDoesNotExistIsNamedInABox) {
  settings_.controls.filesToCheck = "site.ags";
  settings_.controls.listings = {false, true, false};
  EXPECT_EQ(Load({"SETTINGSFILE= \"no\\such.txt\""}), SettingsOutcome::Missing);
  EXPECT_THAT(
      messages_.boxes,
      ElementsAre("Settings File Command Line: Settings file 'no\\such.txt' does not exist."));
  EXPECT_EQ(settings_.controls.filesToCheck, "site.ags");
  EXPECT_EQ(ListingsOf(settings_), "L");
}

TEST_F(SettingsFileTest, WithoutAPathDoesNotExist) {
  EXPECT_EQ(Load({"SETTINGSFILE="}), SettingsOutcome::Missing);
  EXPECT_THAT(messages_.boxes,
              ElementsAre("Settings File Command Line: Settings file '' does not exist."));
}

TEST_F(SettingsFileTest, ThatCannotBeReadIsNamedInABox) {
  disk_.files["settings.txt"] = "LOGFILE=log.txt";
  disk_.readFailures["settings.txt"] = {5, "Input/output error"};
  EXPECT_EQ(Load({"SETTINGSFILE=settings.txt"}), SettingsOutcome::Missing);
  EXPECT_THAT(messages_.boxes,
              ElementsAre("Settings File Command Line: Settings file 'settings.txt' cannot be "
                          "read: Input/output error"));
  EXPECT_EQ(settings_.logFile, "");
}

TEST_F(SettingsFileTest, MayFollowAnother) {
  disk_.files["a.txt"] = "LOGFILE=a.log\r\nSHOWDATASTATS=1\r\nMESGLIST_SEVERITY=1";
  disk_.files["b.txt"] = "LOGFILE=b.log\r\nMESGLIST_LINENUMBERINFILE=1";
  EXPECT_EQ(Load({"SETTINGSFILE=a.txt", "SETTINGSFILE=b.txt"}), SettingsOutcome::Applied);
  EXPECT_EQ(settings_.logFile, "b.log");
  EXPECT_TRUE(settings_.controls.showStatistics);
  EXPECT_EQ(ListingsOf(settings_), "L");
}

TEST_F(SettingsFileTest, IsAppliedTogetherWithAllOthersOrNotAtAll) {
  disk_.files["a.txt"] = "LOGFILE=a.log";
  EXPECT_EQ(Load({"SETTINGSFILE=a.txt", "SETTINGSFILE=no.txt"}), SettingsOutcome::Missing);
  EXPECT_EQ(settings_.logFile, "");
  EXPECT_EQ(Load({"SETTINGSFILE=a.txt", "SETTINGSFILE=a=b"}), SettingsOutcome::NotApplied);
  EXPECT_EQ(settings_.logFile, "");
}

TEST_F(SettingsFileTest, BehindAnOptionWordWithAFaultIsNotRead) {
  disk_.files["a.txt"] = "LOGFILE=a.log";
  EXPECT_EQ(Load({"SETTINGSFILE=no.txt", "SETTINGSFILE=a.txt"}), SettingsOutcome::Missing);
  EXPECT_EQ(Load({"SETTINGSFILE=a=b", "SETTINGSFILE=a.txt"}), SettingsOutcome::NotApplied);
  EXPECT_EQ(settings_.logFile, "");
  EXPECT_EQ(messages_.boxes.size(), 1u);
}

// Paths written for Windows.

TEST_F(SettingsFileTest, MayNameFilesWithBackslashes) {
  disk_.files["my/settings.txt"] = disk_.files["my\\settings.txt"] =
      "FILESTOCHECK=<ARRAY>\r\ndata\\a.ags\r\ndata\\none.ags\r\nb.ags\r\n</ARRAY>\r\n"
      "CUSTOMDICTIONARY=data\\own.gas\r\nLOGFILE=\"logs\\new log.txt\"";
  disk_.files["data/a.ags"] = disk_.files["data/own.gas"] = "";
  EXPECT_EQ(Load({"SETTINGSFILE=my\\settings.txt"}), SettingsOutcome::Applied);
  if (HasBackslashPaths) {
    EXPECT_EQ(settings_.controls.filesToCheck, "data\\a.ags\r\ndata\\none.ags\r\nb.ags");
    EXPECT_EQ(settings_.controls.customDictionary, "data\\own.gas");
    EXPECT_EQ(settings_.logFile, "logs\\new log.txt");
  } else {
    EXPECT_EQ(settings_.controls.filesToCheck, "data/a.ags\r\ndata\\none.ags\r\nb.ags");
    EXPECT_EQ(settings_.controls.customDictionary, "data/own.gas");
    EXPECT_EQ(settings_.logFile, "logs/new log.txt");
  }
}

TEST_F(SettingsFileTest, IsFoundUnderItsNameWithSlashesToo) {
  if (HasBackslashPaths) GTEST_SKIP() << "the system itself takes both";
  disk_.files["my/settings.txt"] = "LOGFILE=log.txt";
  EXPECT_EQ(Load({"SETTINGSFILE=my\\settings.txt"}), SettingsOutcome::Applied);
  EXPECT_EQ(settings_.logFile, "log.txt");
}

TEST(PathToRead, PrefersTheFileOfThatVeryName) {
  MemoryDisk disk;
  disk.files["data\\a.ags"] = disk.files["data/a.ags"] = "";
  EXPECT_EQ(PathToRead(disk, "data\\a.ags"), "data\\a.ags");
  EXPECT_EQ(PathToRead(disk, "data/a.ags"), "data/a.ags");
  EXPECT_EQ(PathToRead(disk, "no\\such.ags"), "no\\such.ags");
}

}  // namespace
}  // namespace quorvane::test
