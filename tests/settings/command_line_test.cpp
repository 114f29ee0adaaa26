#include "ui/command_line.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Arguments = std::vector<std::string>;

TEST(SplitCommandLine, OfNothingIsEmpty) {
  EXPECT_TRUE(SplitCommandLine(Arguments{}).IsEmpty());
  EXPECT_TRUE(SplitCommandLine(Arguments{"", "  ", "\"\""}).IsEmpty());
}

TEST(SplitCommandLine, TakesADataFileAndTheOptionWord) {
  const CommandLine split = SplitCommandLine(Arguments{"site.ags", "/SETTINGSFILE=settings.txt"});
  EXPECT_THAT(split.dataFiles, ElementsAre("site.ags"));
  EXPECT_THAT(split.pieces, ElementsAre("SETTINGSFILE=settings.txt"));
  EXPECT_FALSE(split.IsEmpty());
}

TEST(SplitCommandLine, IsNotEmptyWithEitherAlone) {
  EXPECT_FALSE(SplitCommandLine(Arguments{"site.ags"}).IsEmpty());
  EXPECT_FALSE(SplitCommandLine(Arguments{"/SETTINGSFILE=settings.txt"}).IsEmpty());
}

TEST(SplitCommandLine, TakesSeveralDataFiles) {
  const CommandLine split = SplitCommandLine(Arguments{"a.ags", "b.ags", "c.ags"});
  EXPECT_THAT(split.dataFiles, ElementsAre("a.ags", "b.ags", "c.ags"));
  EXPECT_THAT(split.pieces, IsEmpty());
}

TEST(SplitCommandLine, TrimsDataFilesAndDropsTheirQuotes) {
  const CommandLine split = SplitCommandLine(Arguments{" \"my site.ags\" ", "\" b\".ags"});
  EXPECT_THAT(split.dataFiles, ElementsAre("my site.ags", "b.ags"));
}

TEST(SplitCommandLine, LeavesPathsWithSlashesWhole) {
  const CommandLine split = SplitCommandLine(
      Arguments{"/data/site.ags", "C:/data/b.ags", "/settingsfile", "/settingsfile.txt", "/OTHER=x",
                "/SETTINGSFILE=/etc/quorvane/settings.txt"});
  EXPECT_THAT(split.dataFiles, ElementsAre("/data/site.ags", "C:/data/b.ags", "/settingsfile",
                                           "/settingsfile.txt", "/OTHER=x"));
  EXPECT_THAT(split.pieces, ElementsAre("SETTINGSFILE=/etc/quorvane/settings.txt"));
}

TEST(SplitCommandLine, TakesTheOptionWordInAnyLetterCase) {
  EXPECT_THAT(SplitCommandLine(Arguments{"/SettingsFile=a.txt"}).pieces,
              ElementsAre("SettingsFile=a.txt"));
}

TEST(SplitCommandLine, FindsTheOptionWordBehindADataFileWithoutABlank) {
  const CommandLine split = SplitCommandLine(Arguments{"site.ags/SETTINGSFILE=settings.txt"});
  EXPECT_THAT(split.dataFiles, ElementsAre("site.ags"));
  EXPECT_THAT(split.pieces, ElementsAre("SETTINGSFILE=settings.txt"));
}

TEST(SplitCommandLine, LetsAPathWithBlanksGoWithoutQuotes) {
  EXPECT_THAT(SplitCommandLine(Arguments{"/SETTINGSFILE=my", "settings", "file.txt"}).pieces,
              ElementsAre("SETTINGSFILE=my settings file.txt"));
}

TEST(SplitCommandLine, KeepsPiecesInTheirOrder) {
  const CommandLine split = SplitCommandLine(Arguments{
      "/SETTINGSFILE=my", "a.txt/SETTINGSFILE=b.txt/settingsfile=c.txt", "/SETTINGSFILE=d.txt"});
  EXPECT_THAT(split.dataFiles, IsEmpty());
  EXPECT_THAT(split.pieces, ElementsAre("SETTINGSFILE=my a.txt", "SETTINGSFILE=b.txt",
                                        "settingsfile=c.txt", "SETTINGSFILE=d.txt"));
}

TEST(SplitCommandLine, KeepsEveryEqualsSign) {
  EXPECT_THAT(SplitCommandLine(Arguments{"/SETTINGSFILE=a=b"}).pieces,
              ElementsAre("SETTINGSFILE=a=b"));
  EXPECT_THAT(SplitCommandLine(Arguments{"/SETTINGSFILE="}).pieces, ElementsAre("SETTINGSFILE="));
}

TEST(SortArguments, LeavesOptionsAndFilesAlone) {
  const SortedArguments sorted = SortArguments(Arguments{"--log", "/tmp/log.txt", "site.ags"});
  EXPECT_THAT(sorted.forOptionWords, IsEmpty());
  EXPECT_THAT(sorted.others, ElementsAre("--log", "/tmp/log.txt", "site.ags"));
}

TEST(SortArguments, EndsAnOptionWordAtTheNextOption) {
  const SortedArguments sorted = SortArguments(Arguments{
      "site.ags", "/settingsfile=my", "settings.txt", "--log", "log.txt", "/SETTINGSFILE=b.txt"});
  EXPECT_THAT(sorted.forOptionWords,
              ElementsAre("/settingsfile=my", "settings.txt", "/SETTINGSFILE=b.txt"));
  EXPECT_THAT(sorted.others, ElementsAre("site.ags", "--log", "log.txt"));
}

TEST(SortArguments, KeepsASingleDashInThePath) {
  const SortedArguments sorted = SortArguments(Arguments{"/SETTINGSFILE=my", "-", "file.txt"});
  EXPECT_THAT(sorted.forOptionWords, ElementsAre("/SETTINGSFILE=my", "-", "file.txt"));
}

}  // namespace
}  // namespace quorvane::test
