#include "ui/program_start.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_services.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ProgramStartTest : public testing::Test {
 protected:
  ProgramStart Start(const std::vector<std::string>& arguments) {
    return ReadCommandLine(disk_, messages_, arguments);
  }

  MemoryDisk disk_;
  RecordingMessages messages_;
};

TEST_F(ProgramStartTest, WithoutACommandLineHasTheDefaults) {
  const ProgramStart start = Start({});
  EXPECT_FALSE(start.isCommandLineMode);
  EXPECT_FALSE(start.RunsUnattended());
  EXPECT_EQ(start.outcome, SettingsOutcome::NotNamed);
  EXPECT_EQ(start.settings.controls.filesToCheck, "");
  EXPECT_TRUE(start.settings.controls.listings.scanGroupings);
  EXPECT_FALSE(start.settings.controls.listings.lineNumberInFile);
  EXPECT_FALSE(start.settings.controls.listings.severity);
  EXPECT_FALSE(start.settings.controls.suppressFyi);
  EXPECT_FALSE(start.settings.controls.showStatistics);
  EXPECT_FALSE(start.settings.controls.useCustomDictionary);
}

TEST_F(ProgramStartTest, TakesDataFilesThatExistAndNamesTheOthers) {
  disk_.files["a.ags"] = disk_.files["my data/b.ags"] = "";
  const ProgramStart start = Start({"a.ags", "none.ags", "\"my data/b.ags\""});
  EXPECT_TRUE(start.isCommandLineMode);
  EXPECT_FALSE(start.RunsUnattended());
  EXPECT_EQ(start.settings.controls.filesToCheck, "a.ags\r\nmy data/b.ags");
  EXPECT_THAT(messages_.notes, ElementsAre("none.ags: File not found"));
  EXPECT_THAT(messages_.boxes, IsEmpty());
}

TEST_F(ProgramStartTest, IsInCommandLineModeEvenWhenNoDataFileExists) {
  const ProgramStart start = Start({"none.ags"});
  EXPECT_TRUE(start.isCommandLineMode);
  EXPECT_EQ(start.settings.controls.filesToCheck, "");
}

TEST_F(ProgramStartTest, TakesWhatIsNoFileToo) {
  // The run says why a folder cannot be checked.
  disk_.obstacles["data"] = {21, "Is a directory"};
  EXPECT_EQ(Start({"data"}).settings.controls.filesToCheck, "data");
}

TEST_F(ProgramStartTest, ChecksTheDataFileWithTheSettings) {
  disk_.files["a.ags"] = "";
  disk_.files["settings.txt"] = "SHOWDATASTATS=TRUE\r\nLOGFILE=log.txt";
  const ProgramStart start = Start({"a.ags", "/SETTINGSFILE=settings.txt"});
  EXPECT_EQ(start.outcome, SettingsOutcome::Applied);
  EXPECT_EQ(start.settings.controls.filesToCheck, "a.ags");
  EXPECT_TRUE(start.settings.controls.showStatistics);
  EXPECT_EQ(start.settings.logFile, "log.txt");
  EXPECT_TRUE(start.RunsUnattended());
  EXPECT_THAT(messages_.notes, IsEmpty());
}

TEST_F(ProgramStartTest, LetsTheSettingsFilesListTakeThePlaceOfTheDataFiles) {
  disk_.files["a.ags"] = disk_.files["b.ags"] = "";
  disk_.files["settings.txt"] = "FILESTOCHECK=<ARRAY>\r\nb.ags\r\nc.ags\r\n</ARRAY>";
  const ProgramStart start = Start({"a.ags", "b.ags", "/SETTINGSFILE=settings.txt"});
  EXPECT_EQ(start.settings.controls.filesToCheck, "b.ags\r\nc.ags");
  EXPECT_THAT(messages_.notes,
              ElementsAre("a.ags: not checked, as the settings file names the files to check"));
}

TEST_F(ProgramStartTest, IsAttendedWithoutALogFile) {
  disk_.files["settings.txt"] = "FILESTOCHECK=a.ags";
  const ProgramStart start = Start({"/SETTINGSFILE=settings.txt"});
  EXPECT_TRUE(start.isCommandLineMode);
  EXPECT_FALSE(start.RunsUnattended());
}

TEST_F(ProgramStartTest, WithoutItsSettingsFileHasTheDefaults) {
  disk_.files["a.ags"] = "";
  const ProgramStart start = Start({"a.ags", "/SETTINGSFILE=none.txt"});
  EXPECT_EQ(start.outcome, SettingsOutcome::Missing);
  EXPECT_TRUE(start.isCommandLineMode);
  EXPECT_FALSE(start.RunsUnattended());
  EXPECT_TRUE(start.settings.controls.listings.scanGroupings);
  EXPECT_THAT(messages_.boxes,
              ElementsAre("Settings File Command Line: Settings file 'none.txt' does not exist."));
}

TEST_F(ProgramStartTest, ChecksTheDataFilesWithoutAnIgnoredOptionWord) {
  disk_.files["a.ags"] = "";
  const ProgramStart start = Start({"a.ags", "/SETTINGSFILE=a=b"});
  EXPECT_EQ(start.outcome, SettingsOutcome::NotApplied);
  EXPECT_EQ(start.settings.controls.filesToCheck, "a.ags");
  EXPECT_EQ(messages_.notes.size(), 1u);
  EXPECT_THAT(messages_.boxes, IsEmpty());
}

TEST_F(ProgramStartTest, NamesADictionaryThatIsNotUsed) {
  disk_.files["settings.txt"] = "CUSTOMDICTIONARY=own.gas";
  Start({"/SETTINGSFILE=settings.txt"});
  EXPECT_THAT(
      messages_.notes,
      ElementsAre("CUSTOMDICTIONARY own.gas: not used, as Use Custom Dictionary is not ticked"));
}

TEST(NoteUnusedDictionary, SaysNothingWhereTheBoxIsTickedOrNoPathIsGiven) {
  RecordingMessages messages;
  CheckSettings controls;
  NoteUnusedDictionary(messages, controls);
  controls.customDictionary = "  ";
  NoteUnusedDictionary(messages, controls);
  controls.customDictionary = "own.gas";
  controls.useCustomDictionary = true;
  NoteUnusedDictionary(messages, controls);
  EXPECT_THAT(messages.notes, IsEmpty());
}

}  // namespace
}  // namespace quorvane::test
