#include "findings/summary_table.h"

#include <gtest/gtest.h>

#include "findings/report_builder.h"

namespace quorvane::test {
namespace {

FindingsReport TwoFiles() {
  FindingsReport report;
  FileRecord& file = AddFile(report, "M\xC3\xBChle.ags");
  file.statedVersion = "4.0.4";
  file.counts = {1234, 5, 67, 2};
  FileRecord& missing = report.files.emplace_back();
  missing.path = "a/missing.ags";
  missing.reason = "File not found";
  return report;
}

TEST(SummaryTableTest, HasALineForEachFileAndOneForAll) {
  EXPECT_EQ(SummaryTable(TwoFiles()),
            "Summary of all files:\r\n"
            "\r\n"
            "File            Version  Errors  Warnings  FYI  Checked\r\n"
            "M\xC3\xBChle.ags       4.0.4     1,234         5   67  yes\r\n"
            "a/missing.ags   -             -         -    -  File not found\r\n"
            "Total: 2 files            1,234         5   67  1 of 2\r\n");
}

TEST(SummaryTableTest, WithoutFyiMessagesThereIsNoColumnForThem) {
  FindingsReport report = TwoFiles();
  report.settings.suppressFyi = true;
  EXPECT_EQ(SummaryTable(report),
            "Summary of all files:\r\n"
            "\r\n"
            "File            Version  Errors  Warnings  Checked\r\n"
            "M\xC3\xBChle.ags       4.0.4     1,234         5  yes\r\n"
            "a/missing.ags   -             -         -  File not found\r\n"
            "Total: 2 files            1,234         5  1 of 2\r\n");
}

TEST(SummaryTableTest, AFileOfWhichTheCheckEndedEarlyHasItsCounts) {
  FindingsReport report;
  FileRecord& file = AddFile(report, "a.ags");
  file.isComplete = false;
  file.reason = "dictionary\r\nmissing";
  file.statedVersion = "4\t1";
  file.counts.errors = 1;
  EXPECT_EQ(SummaryTable(report),
            "Summary of all files:\r\n"
            "\r\n"
            "File           Version  Errors  Warnings  FYI  Checked\r\n"
            "a.ags          4 1           1         0    0  dictionary missing\r\n"
            "Total: 1 file                1         0    0  0 of 1\r\n");
}

}  // namespace
}  // namespace quorvane::test
