#include "findings/findings_collector.h"

#include <algorithm>
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
using testing::SizeIs;

std::string WithCrLf(std::string_view text) {
  return ReplaceAll(text, "\n", LineBreak);
}

/// The records of a run over one file with LF standing for CR LF.
FileRecord RecordOf(std::string_view text) {
  FindingsReport report = CollectFindings({{"test.ags", WithCrLf(text)}});
  EXPECT_THAT(report.files, SizeIs(1));
  return std::move(report.files.front());
}

/// The first finding whose text holds the words.
FindingRecord FindingWith(const FileRecord& file, std::string_view words) {
  const auto found = std::find_if(file.findings.begin(), file.findings.end(),
                                  [words](const FindingRecord& finding) {
                                    return finding.text.find(words) != std::string_view::npos;
                                  });
  if (found != file.findings.end()) return *found;
  ADD_FAILURE() << "no finding says: " << words;
  return {};
}

/// A sample whose second row has a depth that is no number.
std::string Ags4WithABadNumber() {
  return MinimalAgs4()
      .Group("LOCA", {"LOCA_ID", "LOCA_GL"}, {"", "m"}, {"ID", "2DP"},
             {{"BH1", "1.00"}, {"BH2", "deep"}})
      .Text();
}

TEST(FindingsCollectorTest, AFindingInACellCarriesItsWholePlace) {
  const FileRecord file = RecordOf(Ags4WithABadNumber());
  const FindingRecord finding = FindingWith(file, "deep");
  EXPECT_EQ(file.GroupName(finding), "LOCA");
  EXPECT_EQ(file.HeadingName(finding), "LOCA_GL");
  EXPECT_EQ(finding.key, "BH2");
  EXPECT_EQ(finding.severity, Severity::Error);
  EXPECT_THAT(file.Section(finding), HasSubstr("TYPE"));
  ASSERT_NE(file.FindLine(finding.line), nullptr);
  EXPECT_EQ(file.FindLine(finding.line)->text, R"("DATA","BH2","deep")");
  EXPECT_EQ(finding.column, 14);
}

TEST(FindingsCollectorTest, AnAgs3RowHasNoLabelInFrontOfItsCells) {
  const FileRecord file = RecordOf(
      MinimalAgs3().Group("HOLE", {"HOLE_ID", "HOLE_GL"}, {}, {{"BH1", "1"}, {"BH1", "2"}}).Text());
  const FindingRecord finding = FindingWith(file, "BH1");
  EXPECT_EQ(file.GroupName(finding), "HOLE");
  EXPECT_EQ(finding.key, "BH1");
  EXPECT_EQ(finding.column, 0);  // it is about the row
}

TEST(FindingsCollectorTest, AFindingOfALineIsPutIntoItsGroupAndRow) {
  std::string text = Ags4WithABadNumber() + "\"DATA\",\"BH3\",1.00\n";
  const FileRecord file = RecordOf(text);
  const auto lineCount = static_cast<std::int32_t>(std::count(text.begin(), text.end(), '\n'));
  const auto found =
      std::find_if(file.findings.begin(), file.findings.end(),
                   [&](const FindingRecord& finding) { return finding.line == lineCount; });
  ASSERT_NE(found, file.findings.end());
  EXPECT_EQ(file.GroupName(*found), "LOCA");
  EXPECT_EQ(found->key, "BH3");
}

TEST(FindingsCollectorTest, AFindingOfTheWholeFileHasNoPlace) {
  const FindingsReport report = CollectFindings({{"test.txt", WithCrLf(MinimalAgs4().Text())}});
  const FileRecord& file = report.files.front();
  ASSERT_THAT(file.findings, SizeIs(1));
  const FindingRecord& finding = file.findings.front();
  EXPECT_EQ(finding.line, 0);
  EXPECT_EQ(file.GroupName(finding), "");
  EXPECT_EQ(finding.key, "");
  EXPECT_EQ(file.Section(finding), "File Name Check");
}

TEST(FindingsCollectorTest, AFileIsNamedWithSizeHashVersionAndDictionary) {
  const std::string text = WithCrLf(MinimalAgs4().Text());
  const FindingsReport report = CollectFindings({{"test.ags", text}});
  const FileRecord& file = report.files.front();
  EXPECT_EQ(file.path, "test.ags");
  EXPECT_TRUE(file.isComplete);
  EXPECT_TRUE(file.wasRead);
  EXPECT_EQ(file.size, text.size());
  EXPECT_THAT(file.sha256, SizeIs(64));
  EXPECT_EQ(file.format, AgsFormat::Ags4);
  EXPECT_THAT(file.dictionary, HasSubstr("dict.gas"));
  EXPECT_THAT(file.edition, HasSubstr("4.0"));
  EXPECT_THAT(file.statedVersion, HasSubstr("4"));
  EXPECT_EQ(report.programVersion, ProgramVersion);
}

TEST(FindingsCollectorTest, CountsAreThoseOfTheFindings) {
  const FileRecord file = RecordOf(Ags4WithABadNumber());
  SeverityCounts counts;
  for (const FindingRecord& finding : file.findings)
    counts.Add(finding.severity);
  EXPECT_EQ(file.counts, counts);
  EXPECT_GT(counts.errors, 0);
  EXPECT_EQ(counts.Total(), static_cast<std::int64_t>(file.findings.size()));
}

TEST(FindingsCollectorTest, AFileThatCannotBeCheckedIsThereWithTheReason) {
  const FindingsReport report =
      CollectFindings({{"no.ags", "neither"}, {"test.ags", WithCrLf(MinimalAgs4().Text())}});
  ASSERT_THAT(report.files, SizeIs(2));
  EXPECT_FALSE(report.files[0].isComplete);
  EXPECT_EQ(report.files[0].reason, "File is not an AGS 3 or 4 format file");
  EXPECT_EQ(report.files[0].format, std::nullopt);
  EXPECT_EQ(report.files[0].size, 7U);
  EXPECT_TRUE(report.files[1].isComplete);
  EXPECT_EQ(report.status, CheckStatus::HasErrors);
}

TEST(FindingsCollectorTest, AFileThatIsMissingHasNoSize) {
  FakeServices fakes;
  fakes.window.settings.filesToCheck = "missing.ags";
  FindingsCollector collector(fakes.environment);
  Services services = fakes.All();
  services.findings = &collector;
  CheckRun(services).ExecuteChecking();
  ASSERT_THAT(collector.Report().files, SizeIs(1));
  EXPECT_FALSE(collector.Report().files[0].wasRead);
  EXPECT_EQ(collector.Report().files[0].reason, "File not found");
}

TEST(FindingsCollectorTest, WithoutADictionaryAllFilesAreThereAsNotDone) {
  FakeServices fakes;  // its disk holds no schema
  fakes.disk.files["one.ags"] = WithCrLf(MinimalAgs4().Text());
  fakes.disk.files["two.ags"] = fakes.disk.files["one.ags"];
  fakes.window.settings.filesToCheck = "one.ags\r\ntwo.ags";
  FindingsCollector collector(fakes.environment);
  Services services = fakes.All();
  services.findings = &collector;
  CheckRun(services).ExecuteChecking();
  ASSERT_THAT(collector.Report().files, SizeIs(2));
  EXPECT_EQ(collector.Report().status, CheckStatus::NotDone);
  for (const FileRecord& file : collector.Report().files) {
    EXPECT_FALSE(file.isComplete);
    EXPECT_THAT(file.reason, HasSubstr("LoadAgsDataDictionaryFnS"));
  }
}

TEST(FindingsCollectorTest, LinesAreThoseOfTheFileAndLongOnesAreCut) {
  const std::string note(5000, 'x');
  const FileRecord file = RecordOf(Ags4WithABadNumber() + "\"DATA\",\"BH3\",\"" + note + "\"\n");
  const FindingRecord finding = FindingWith(file, "xxx");
  const LineRecord* line = file.FindLine(finding.line);
  ASSERT_NE(line, nullptr);
  EXPECT_TRUE(line->isCut);
  EXPECT_EQ(line->text.substr(0, 14), "\"DATA\",\"BH3\",\"");
  EXPECT_LT(line->text.size(), note.size());
}

TEST(FindingsCollectorTest, TextsAreUtf8) {
  const FileRecord file = RecordOf(
      MinimalAgs4()
          .Group("LOCA", {"LOCA_ID", "LOCA_GL"}, {"", "m"}, {"ID", "2DP"}, {{"BH\xB0", "4\xB0"}})
          .Text());
  const FindingRecord finding = FindingWith(file, "4\xC2\xB0");
  EXPECT_EQ(finding.key, "BH\xC2\xB0");
  EXPECT_EQ(finding.column, 14);
}

TEST(FindingsCollectorTest, AFileCanBeFoundOnTheDiskByTheBytesOfItsPath) {
  const FindingsReport report = CollectFindings({{"\xB0.ags", WithCrLf(MinimalAgs4().Text())}});
  EXPECT_EQ(report.files.front().path, "\xC2\xB0.ags");
  EXPECT_EQ(report.files.front().diskPath, "\xB0.ags");
}

TEST(FindingsCollectorTest, AFindingInAHeadingPointsAtIt) {
  const FileRecord file = RecordOf(
      MinimalAgs4()
          .Group("LOCA", {"LOCA_ID", "LOCA_gl"}, {"", "m"}, {"ID", "2DP"}, {{"BH1", "1.00"}})
          .Text());
  const FindingRecord finding = FindingWith(file, "LOCA_gl");
  EXPECT_EQ(file.HeadingName(finding), "LOCA_GL");
  EXPECT_EQ(finding.column, 21);
  EXPECT_EQ(finding.key, "");
}

TEST(FindingsCollectorTest, ARunWithoutFilesHasNone) {
  EXPECT_THAT(CollectFindings({}).files, IsEmpty());
}

}  // namespace
}  // namespace quorvane::test
