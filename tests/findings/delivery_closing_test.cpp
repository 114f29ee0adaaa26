#include "findings/delivery_closing.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "run/check_run.h"
#include "support/check_text.h"
#include "support/fake_services.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// A file with one error: the key BH1 occurs twice.
std::string WithRepeatedKey() {
  return ReplaceAll(MinimalAgs3().Line("\"BH1\",\"CP\",\"11.00\"").Text(), "\n", LineBreak);
}

/// The waiver of that error, and the error as an earlier run has it.
const std::string Waiver = "keys.repeated | * | HOLE | BH1 | * | one hole, drilled twice\r\n";

class DeliveryClosingTest : public testing::Test {
 protected:
  DeliveryClosingTest() {
    services_.disk.files["a.ags"] = WithRepeatedKey();
    services_.window.settings.filesToCheck = "a.ags";
  }

  /// Runs the check; the text behind the last file's is kept.
  CheckStatus Check() {
    DeliveryClosing closing(services_.disk, options_);
    EXPECT_TRUE(closing.Prepare(services_.messages));
    FindingsCollector collector(services_.environment, &closing);
    Services services = services_.All();
    services.findings = &collector;
    CheckRun run(services);
    const CheckStatus status = run.ExecuteChecking();
    report_ = collector.TakeReport();
    const std::string lastLine = std::string(39, '*') + "\r\n\r\n";
    text_ = run.LogText().substr(run.LogText().rfind(lastLine) + lastLine.size());
    return status;
  }

  bool Prepare() { return DeliveryClosing(services_.disk, options_).Prepare(services_.messages); }

  FakeServices services_;
  DeliveryOptions options_;
  FindingsReport report_;
  std::string text_;
};

TEST_F(DeliveryClosingTest, WithoutWishesTheTextAndTheStatusStay) {
  EXPECT_EQ(Check(), CheckStatus::HasErrors);
  EXPECT_EQ(text_, "");
}

TEST_F(DeliveryClosingTest, TheSummaryIsTheLastOfTheSections) {
  options_ = {true, true, "", "waivers.txt"};
  services_.disk.files["waivers.txt"] = Waiver;
  Check();
  EXPECT_THAT(text_, HasSubstr("\r\n\r\nSummary of all files:\r\n"));
  EXPECT_TRUE(text_.starts_with("Associated files of a.ags:  0 named, 0 missing\r\n"));
  EXPECT_TRUE(text_.ends_with("1 of 1\r\n"));
  EXPECT_LT(text_.find("Findings waived"), text_.find("Summary"));
}

TEST_F(DeliveryClosingTest, WaivedErrorsAreListedAndDoNotCount) {
  options_.waivers = "waivers.txt";
  services_.disk.files["waivers.txt"] =
      "# accepted\r\n" + Waiver + "keys.repeated | b.ags | * | * | * | of another file\r\n";
  EXPECT_EQ(Check(), CheckStatus::Clean);
  EXPECT_EQ(report_.status, CheckStatus::Clean);
  EXPECT_THAT(text_,
              HasSubstr("Findings waived by waivers.txt:  1\r\na.ags\r\n  ERROR: Line 17 - "));
  EXPECT_THAT(text_, HasSubstr("\r\n    Reason (line 2): one hole, drilled twice\r\n"));
  EXPECT_THAT(text_,
              HasSubstr("Waivers that match nothing:  1\r\n"
                        "  Line 3: keys.repeated | b.ags | * | * | * | of another file\r\n"));
}

TEST_F(DeliveryClosingTest, OneErrorThatIsNotWaivedCounts) {
  options_.waivers = "waivers.txt";
  services_.disk.files["waivers.txt"] = "keys.repeated | * | HOLE | BH2 | * | why\r\n";
  EXPECT_EQ(Check(), CheckStatus::HasErrors);
}

TEST_F(DeliveryClosingTest, KnownErrorsDoNotCount) {
  options_.baseline = "old.json";
  services_.disk.files["old.json"] = R"({"format": "quorvane-findings", "formatVersion": 1,
      "files": [{"path": "elsewhere/a.ags", "findings": [
        {"id": "keys.repeated", "severity": "error", "line": 3, "group": "HOLE", "key": "BH1",
         "text": "as now"},
        {"id": "keys.repeated", "severity": "error", "line": 5, "group": "HOLE", "key": "BH9",
         "text": "mended"}]},
       {"path": "b.ags", "findings": [{"id": "keys.repeated", "severity": "error"}]}]})";
  EXPECT_EQ(Check(), CheckStatus::Clean);
  EXPECT_EQ(text_,
            "Compared with old.json:  0 new, 1 known, 1 gone\r\n"
            "\r\n"
            "Findings that are gone:\r\n"
            "elsewhere/a.ags\r\n"
            "  ERROR: Line 5 - mended\r\n"
            "\r\n"
            "Files of the earlier run that this one did not check to the end:\r\n"
            "  b.ags:  1 finding not compared\r\n"
            "\r\n");
}

TEST_F(DeliveryClosingTest, NewErrorsCountAndAreListed) {
  options_.baseline = "old.json";
  services_.disk.files["old.json"] =
      R"({"format": "quorvane-findings", "formatVersion": 1, "files": []})";
  EXPECT_EQ(Check(), CheckStatus::HasErrors);
  EXPECT_THAT(text_, HasSubstr("Compared with old.json:  1 new, 0 known, 0 gone\r\n\r\n"
                               "Findings that are new:\r\na.ags\r\n  ERROR: Line 17 - "));
}

TEST_F(DeliveryClosingTest, AFindingThatIsWaivedIsNotNew) {
  options_.baseline = "old.json";
  options_.waivers = "waivers.txt";
  services_.disk.files["old.json"] =
      R"({"format": "quorvane-findings", "formatVersion": 1, "files": []})";
  services_.disk.files["waivers.txt"] = Waiver;
  EXPECT_EQ(Check(), CheckStatus::Clean);
  EXPECT_THAT(text_, HasSubstr("0 new, 0 known, 0 gone"));
}

TEST_F(DeliveryClosingTest, AFileThatCannotBeCheckedCountsAllTheSame) {
  options_.waivers = "waivers.txt";
  services_.disk.files["waivers.txt"] = Waiver;
  services_.window.settings.filesToCheck = "a.ags\r\nmissing.ags";
  EXPECT_EQ(Check(), CheckStatus::HasErrors);
}

TEST_F(DeliveryClosingTest, ARunWithoutItsDictionaryIsStillNotDone) {
  options_.waivers = "waivers.txt";
  services_.disk.files["waivers.txt"] = Waiver;
  services_.disk.files["b.ags"] = ReplaceAll(MinimalAgs4().Text(), "\n", LineBreak);
  services_.window.settings.filesToCheck = "b.ags";
  EXPECT_EQ(Check(), CheckStatus::NotDone);
}

TEST_F(DeliveryClosingTest, AMissingAssociatedFileCountsAndAnUnnamedOneDoesNot) {
  options_.lookForFiles = true;
  services_.disk.files["d/FILE/FS1/a.jpg"];
  services_.disk.files["d/FILE/FS1/b.jpg"];
  Ags3File file = MinimalAgs3();
  file.Group("FILE", {"FILE_FSET", "FILE_NAME", "FILE_DESC"}, {"", "", ""},
             {{"FS1", "a.jpg", "A picture"}});
  services_.disk.files["d/a.ags"] = ReplaceAll(file.Text(), "\n", LineBreak);
  services_.window.settings.filesToCheck = "d/a.ags";
  EXPECT_EQ(Check(), CheckStatus::Clean);
  EXPECT_THAT(text_, HasSubstr("Not named: FILE/FS1/b.jpg"));
  services_.disk.files.erase("d/FILE/FS1/a.jpg");
  EXPECT_EQ(Check(), CheckStatus::HasErrors);
}

TEST_F(DeliveryClosingTest, FilesThatCannotBeUsedAreRefusedBeforeTheRun) {
  options_.baseline = "old.json";
  EXPECT_FALSE(Prepare());
  services_.disk.files["old.json"] = "[]";
  EXPECT_FALSE(Prepare());
  options_ = {false, false, "", "waivers.txt"};
  services_.disk.files["waivers.txt"] = "keys.repeated | why";
  EXPECT_FALSE(Prepare());
  services_.disk.readFailures["waivers.txt"] = {5, "Input/output error"};
  EXPECT_FALSE(Prepare());
  EXPECT_THAT(services_.messages.boxes,
              ElementsAre("Quorvane: Baseline file 'old.json' does not exist.",
                          "Quorvane: Baseline file 'old.json' is not a file that --format json "
                          "has written",
                          "Quorvane: Waivers file 'waivers.txt' cannot be used:\r\n"
                          "line 1: the number of fields is 2 and not 6: "
                          "id | file | group | key | heading | reason",
                          "Quorvane: Waivers file 'waivers.txt' cannot be read: "
                          "Input/output error"));
}

TEST_F(DeliveryClosingTest, OfVeryManyMistakesTheFirstOnesAreShown) {
  options_.waivers = "waivers.txt";
  for (int line = 0; line < 1000; ++line)
    services_.disk.files["waivers.txt"] += "x\r\n";
  EXPECT_FALSE(Prepare());
  EXPECT_THAT(services_.messages.boxes, ElementsAre(HasSubstr("\r\nand 980 more")));
}

}  // namespace
}  // namespace quorvane::test
