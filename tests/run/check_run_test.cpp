#include "run/check_run.h"

#include <stdexcept>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "run/run_fixture.h"
#include "support/check_text.h"
#include "text/comma_list.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string TitleAndDate =
    "Quorvane for AGS Versions 3 and 4, Version 10.00.01.07, running in environment tester on "
    "bench\r\n\r\n01/02/26 03:04:05";
const std::string Legend =
    "ERROR = Broke a specified AGS rule.\r\n"
    "WARNING = Condition that could compromise data quality.\r\n";
const std::string FyiLegend =
    "FYI = For Your Information only.\r\n"
    "      Unnecessary or redundant data or missing, non-critical, descriptive data.\r\n";
const std::string ViewReportLine =
    "Click on the [View Report] button to save the entire messaging log and view and/or print it.";
const std::string OverflowLine = "Full messaging log could not fit in the display.\r\n";

std::string MissingFileText(const std::string& path, int number, int count) {
  return "File:  " + path + " (" + std::to_string(number) + " of " + std::to_string(count) +
         ")\r\nFile not found\r\nCould not continue with further checking.\r\n" + ClosingLines;
}

/// The whole text that a clean AGS 3 file gives.
std::string CleanFileText(const std::string& path, int number, int count) {
  return "File:  " + path + " (" + std::to_string(number) + " of " + std::to_string(count) +
         ")\r\nDate:  01/02/26 03:04:05\r\nSize:  " + std::to_string(CleanAgs3().size()) +
         " bytes\r\nNumber of Lines:  17\r\n\r\nFile AGS Version: 3.1\r\n\r\n"
         "SUMMARY:  No problems found in file.\r\n" +
         ClosingLines;
}

// The list of files.

TEST(NormaliseFileList, SplitsAtAnyLineEnd) {
  EXPECT_EQ(NormaliseFileList("a.ags\r\nb.ags\nc.ags\rd.ags"), "a.ags\r\nb.ags\r\nc.ags\r\nd.ags");
}

TEST(NormaliseFileList, TrimsLinesAndDropsEmptyOnes) {
  EXPECT_EQ(NormaliseFileList("\r\n  a b.ags  \r\n\r\n   \n b.ags\n\n\r"), "a b.ags\r\nb.ags");
  EXPECT_EQ(NormaliseFileList("\ta.ags\t"), "\ta.ags\t") << "only blanks are trimmed";
}

TEST(NormaliseFileList, OfNothingIsEmpty) {
  EXPECT_EQ(NormaliseFileList(""), "");
  EXPECT_EQ(NormaliseFileList(" \r\n  \n\r"), "");
}

TEST(NormaliseFileList, KeepsOrderRepeatsAndBytes) {
  EXPECT_EQ(NormaliseFileList("b,\"x\".ags\na\xE9.ags\nb,\"x\".ags"),
            "b,\"x\".ags\r\na\xE9.ags\r\nb,\"x\".ags");
}

// What keeps a run from starting.

TEST_F(RunTest, NothingToCheckIsSaidInABox) {
  for (const std::string_view files : {"", "  \r\n \n"}) {
    services_.window.settings.filesToCheck = files;
    EXPECT_EQ(run_.ExecuteChecking(), CheckStatus::NotDone);
    EXPECT_EQ(services_.window.settings.filesToCheck, "") << "the list is written back";
  }
  EXPECT_THAT(services_.messages.boxes, ElementsAre("Check Files: Supply files to check",
                                                    "Check Files: Supply files to check"));
  EXPECT_THAT(services_.window.events, IsEmpty());
  EXPECT_EQ(services_.progressBox.shown, "");
  EXPECT_EQ(services_.progressBox.pendingMessageCalls, 0);
  EXPECT_EQ(run_.LogText(), "");
}

TEST_F(RunTest, NoListingIsSaidInABoxAndGetsTheFocus) {
  services_.window.settings.filesToCheck = "a.ags";
  services_.window.settings.listings = {false, false, false};
  EXPECT_EQ(run_.ExecuteChecking(), CheckStatus::NotDone);
  EXPECT_THAT(services_.messages.boxes,
              ElementsAre("Check Files: Select one or more message listings"));
  EXPECT_THAT(services_.window.events, ElementsAre("focus first listing"));
  EXPECT_EQ(run_.LogText(), "");
}

TEST_F(RunTest, NothingToCheckIsSaidBeforeMissingListings) {
  services_.window.settings.filesToCheck = "";
  services_.window.settings.listings = {false, false, false};
  run_.ExecuteChecking();
  EXPECT_THAT(services_.messages.boxes, ElementsAre("Check Files: Supply files to check"));
  EXPECT_THAT(services_.window.events, IsEmpty());
}

TEST_F(RunTest, AnyOneListingIsEnough) {
  Put("a.ags", CleanAgs3());
  for (const ListingChoice& choice :
       {ListingChoice{true, false, false}, ListingChoice{false, true, false},
        ListingChoice{false, false, true}}) {
    services_.window.settings.listings = choice;
    EXPECT_EQ(Check("a.ags"), CheckStatus::Clean);
  }
  EXPECT_THAT(services_.messages.boxes, IsEmpty());
}

TEST_F(RunTest, ABoxLeavesTheLogOfTheRunBefore) {
  Put("a.ags", CleanAgs3());
  Check("a.ags");
  const std::string log = run_.LogText();
  ASSERT_FALSE(log.empty());
  EXPECT_EQ(Check(""), CheckStatus::NotDone);
  EXPECT_EQ(run_.LogText(), log);
}

// The text of a run.

TEST_F(RunTest, HeaderStandsBeforeTheFirstFile) {
  Put("a.ags", CleanAgs3());
  EXPECT_EQ(Check("a.ags"), CheckStatus::Clean);
  EXPECT_EQ(run_.LogText(),
            TitleAndDate + " (1 files)\r\n" + Legend + FyiLegend + CleanFileText("a.ags", 1, 1));
}

TEST_F(RunTest, LegendLeavesOutTheFyiThatIsSuppressed) {
  Put("a.ags", CleanAgs3());
  services_.window.settings.suppressFyi = true;
  Check("a.ags");
  EXPECT_EQ(run_.LogText(),
            TitleAndDate + " (1 files)\r\n" + Legend + CleanFileText("a.ags", 1, 1));
}

TEST_F(RunTest, ThreeFilesAreNumbered) {
  Put("a.ags", CleanAgs3());
  Put("c.ags", CleanAgs3());
  EXPECT_EQ(Check(" a.ags\nb.ags\n\nc.ags\r\n"), CheckStatus::HasErrors);
  EXPECT_EQ(run_.LogText(), TitleAndDate + " (3 files)\r\n" + Legend + FyiLegend +
                                CleanFileText("a.ags", 1, 3) + MissingFileText("b.ags", 2, 3) +
                                CleanFileText("c.ags", 3, 3));
  EXPECT_EQ(services_.window.settings.filesToCheck, "a.ags\r\nb.ags\r\nc.ags");
}

TEST_F(RunTest, AFileThatIsNamedTwiceIsCheckedTwice) {
  Put("a.ags", CleanAgs3());
  Check("a.ags\na.ags");
  EXPECT_THAT(run_.LogText(),
              HasSubstr(CleanFileText("a.ags", 1, 2) + CleanFileText("a.ags", 2, 2)));
}

TEST_F(RunTest, FindingsDoNotCarryOverToTheNextFile) {
  Put("bad.txt", Ags3WithTabs(3));
  Put("a.ags", CleanAgs3());
  Check("bad.txt\na.ags");
  EXPECT_TRUE(run_.LogText().ends_with(CleanFileText("a.ags", 2, 2))) << run_.LogText();
}

TEST_F(RunTest, TheNextRunReplacesTheLog) {
  Put("a.ags", CleanAgs3());
  Check("a.ags");
  const std::string first = run_.LogText();
  Check("b.ags");
  EXPECT_EQ(run_.LogText(),
            TitleAndDate + " (1 files)\r\n" + Legend + FyiLegend + MissingFileText("b.ags", 1, 1));
  EXPECT_EQ(services_.progressBox.shown, run_.LogText() + ViewReportLine);
  Check("a.ags");
  EXPECT_EQ(run_.LogText(), first);
}

// What the window and its progress box see.

TEST_F(RunTest, TheWindowIsToldStepByStep) {
  Put("a.ags", CleanAgs3());
  Check("a.ags\nfolder/b.ags");
  EXPECT_THAT(services_.window.events,
              ElementsAre("begin run", "file a.ags 1 of 2", "file folder/b.ags 2 of 2",
                          "end checking", "end run"));
  EXPECT_EQ(services_.progressBox.pendingMessageCalls, 1) << "once, when the box was emptied";
}

TEST_F(RunTest, TheBoxShowsTheLogAndTheClosingLine) {
  Put("a.ags", CleanAgs3());
  services_.progressBox.shown = "what an earlier run left";
  Check("a.ags");
  EXPECT_EQ(services_.progressBox.shown, run_.LogText() + ViewReportLine);
}

/// A list of missing files whose run gives a log of exactly this many characters.
std::string MissingFilesFor(std::size_t logLength) {
  constexpr int count = 400;
  std::vector<std::string> names;
  std::size_t length = (TitleAndDate + " (400 files)\r\n" + Legend + FyiLegend).size();
  for (int number = 1; number <= count; ++number) {
    names.push_back("m");
    length += MissingFileText("m", number, count).size();
  }
  EXPECT_LT(length, logLength);
  if (length < logLength) names.back().append(logLength - length, 'm');
  return Join(names, LineBreak);
}

TEST_F(RunTest, ALogOf60000CharactersFitsTheBox) {
  Check(MissingFilesFor(60000));
  EXPECT_EQ(run_.LogText().size(), 60000U);
  EXPECT_EQ(services_.progressBox.shown, run_.LogText() + ViewReportLine);
}

TEST_F(RunTest, ALongerLogLeavesOnlyTheClosingLinesInTheBox) {
  Check(MissingFilesFor(60001));
  EXPECT_EQ(run_.LogText().size(), 60001U);
  EXPECT_EQ(services_.progressBox.shown, OverflowLine + ViewReportLine);
  EXPECT_EQ(services_.progressBox.pendingMessageCalls, 2);
}

TEST_F(RunTest, TheLogIsNeverCutAndHoldsNoClosingLines) {
  const std::string files = MissingFilesFor(200000);
  Check(files);
  EXPECT_EQ(run_.LogText().size(), 200000U);
  EXPECT_TRUE(run_.LogText().starts_with(TitleAndDate));
  EXPECT_EQ(run_.LogText().find("Full messaging log"), std::string::npos);
  EXPECT_EQ(run_.LogText().find("Click on the"), std::string::npos);
  EXPECT_EQ(services_.progressBox.shown, OverflowLine + ViewReportLine);
}

TEST_F(RunTest, AnOverflowIsForgottenByTheNextRun) {
  Check(MissingFilesFor(70000));
  Put("a.ags", CleanAgs3());
  Check("a.ags");
  EXPECT_EQ(services_.progressBox.shown, run_.LogText() + ViewReportLine);
}

// Dictionaries.

TEST_F(RunTest, AMissingDictionaryEndsTheRunAndKeepsItsLog) {
  services_.disk.files.erase("/program/ags4 dict.gas");
  Put("a.ags", CleanAgs3());
  Put("b.ags", MinimalAgs4().Text());
  EXPECT_EQ(Check("a.ags\nb.ags\na.ags"), CheckStatus::NotDone);
  EXPECT_THAT(services_.messages.boxes,
              ElementsAre("AGS Dictionary Load: LoadAgsDataDictionaryFnS: No such file or "
                          "directory"));
  EXPECT_EQ(run_.LogText(),
            TitleAndDate + " (3 files)\r\n" + Legend + FyiLegend + CleanFileText("a.ags", 1, 3));
  EXPECT_THAT(services_.window.events, ElementsAre("begin run", "file a.ags 1 of 3",
                                                   "file b.ags 2 of 3", "end checking", "end run"));
  EXPECT_EQ(services_.progressBox.shown, run_.LogText() + ViewReportLine);
}

TEST_F(RunTest, ADictionaryThatIsUnusableEndsTheRunToo) {
  Put("own.gas", "no schema");
  Put("a.ags", CleanAgs3());
  services_.window.settings.useCustomDictionary = true;
  services_.window.settings.customDictionary = "own.gas";
  EXPECT_EQ(Check("a.ags"), CheckStatus::NotDone);
  EXPECT_THAT(services_.messages.boxes,
              ElementsAre("AGS Dictionary Load: Not a Vexo AGS Schema file, first line not\r\n"
                          "'Vexo Schema for AGS"));
  EXPECT_EQ(run_.LogText(), TitleAndDate + " (1 files)\r\n" + Legend + FyiLegend);
}

TEST_F(RunTest, AFailedRunOutranksFilesWithErrors) {
  services_.disk.files.erase("/program/ags4 dict.gas");
  Put("b.ags", MinimalAgs4().Text());
  EXPECT_EQ(Check("missing.ags\nb.ags"), CheckStatus::NotDone);
}

TEST_F(RunTest, ASchemaIsReadOncePerRun) {
  Put("a.ags", MinimalAgs4().Text());
  Put("b.ags", MinimalAgs4().Text());
  EXPECT_EQ(Check("a.ags\nb.ags\na.ags"), CheckStatus::Clean);
  EXPECT_EQ(services_.disk.reads[InProgramFolder("ags4 dict.gas")], 1);
  EXPECT_EQ(services_.disk.reads[InProgramFolder("ags404 dict.gas")], 0);
  EXPECT_EQ(Check("a.ags"), CheckStatus::Clean);
  EXPECT_EQ(services_.disk.reads[InProgramFolder("ags4 dict.gas")], 2) << "it may have been mended";
}

// Unexpected failures.

/// A window that fails when a file begins.
class FailingWindow : public RecordingWindow {
 public:
  void BeginFile(std::string_view path, int number, int count) override {
    RecordingWindow::BeginFile(path, number, count);
    throw std::runtime_error("the window is broken");
  }
};

TEST_F(RunTest, AnUnexpectedFailureEndsTheRunAndEnablesTheButtons) {
  FailingWindow window;
  window.settings.filesToCheck = "a.ags\nb.ags";
  CheckRun run(services_.With(window));
  EXPECT_EQ(run.ExecuteChecking(), CheckStatus::HasErrors);
  EXPECT_THAT(services_.messages.boxes,
              ElementsAre("Quorvane Error: Error in ExecuteChecking: the window is broken"));
  EXPECT_THAT(services_.messages.kinds, ElementsAre(BoxKind::Critical));
  EXPECT_THAT(window.events,
              ElementsAre("begin run", "file a.ags 1 of 2", "end checking", "end run"));
  EXPECT_EQ(run.LogText(), TitleAndDate + " (2 files)\r\n" + Legend + FyiLegend);
}

/// A window that fails when a run begins.
class WindowThatCannotBegin : public RecordingWindow {
 public:
  void BeginRun() override {
    RecordingWindow::BeginRun();
    throw std::runtime_error("no wait pointer");
  }
};

TEST_F(RunTest, AnUnexpectedFailureWhenTheRunBeginsIsShownAndEnablesTheButtons) {
  WindowThatCannotBegin window;
  window.settings.filesToCheck = "a.ags";
  CheckRun run(services_.With(window));
  ASSERT_NO_THROW(EXPECT_EQ(run.ExecuteChecking(), CheckStatus::HasErrors));
  EXPECT_THAT(services_.messages.boxes,
              ElementsAre("Quorvane Error: Error in ExecuteChecking: no wait pointer"));
  EXPECT_THAT(window.events, testing::Contains("end checking"));
}

TEST_F(RunTest, AnUnexpectedFailureInIntakeEndsThatFileOnly) {
  Put("a.ags", CleanAgs3());
  Put("b.ags", CleanAgs3());
  services_.disk.throwsWhenRead = "a.ags";
  EXPECT_EQ(Check("a.ags\nb.ags"), CheckStatus::HasErrors);
  EXPECT_THAT(services_.messages.boxes,
              ElementsAre("Quorvane Error: Error in CheckFileFailedFnB: the disk is on fire"));
  EXPECT_THAT(services_.messages.kinds, ElementsAre(BoxKind::Critical));
  EXPECT_EQ(run_.LogText(), TitleAndDate + " (2 files)\r\n" + Legend + FyiLegend +
                                "Could not continue with further checking.\r\n" + ClosingLines +
                                CleanFileText("b.ags", 2, 2));
}

// The status.

TEST_F(RunTest, TheHighestStatusIsTheRuns) {
  Put("clean.ags", CleanAgs3());
  Put("bad.ags", Ags3WithTabs(1));
  Put("warned.ags", "\xEF\xBB\xBF" + CleanAgs3());
  EXPECT_EQ(Check("clean.ags"), CheckStatus::Clean);
  EXPECT_EQ(Check("warned.ags"), CheckStatus::Clean) << "a warning is no error";
  EXPECT_EQ(Check("bad.ags"), CheckStatus::HasErrors);
  EXPECT_EQ(Check("bad.ags\nclean.ags\nwarned.ags"), CheckStatus::HasErrors);
  EXPECT_EQ(Check("clean.ags\nmissing.ags"), CheckStatus::HasErrors);
}

TEST(CheckStatusNumbers, AreExitStatuses) {
  EXPECT_EQ(static_cast<int>(CheckStatus::Clean), 0);
  EXPECT_EQ(static_cast<int>(CheckStatus::HasErrors), 1);
  EXPECT_EQ(static_cast<int>(CheckStatus::NotDone), 2);
}

}  // namespace
}  // namespace quorvane::test
