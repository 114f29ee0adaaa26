#include "findings/csv_findings.h"

#include <map>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "findings/made_report.h"
#include "support/check_text.h"
#include "support/csv_reader.h"

namespace quorvane::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t ColumnCount = 14;

/// The rows behind that of the columns' names.
std::vector<CsvRow> Written(const FindingsReport& report) {
  const std::string text = CsvFindings(report);
  EXPECT_TRUE(text.starts_with(ByteOrderMark));
  CsvReader reader(std::string_view(text).substr(ByteOrderMark.size()));
  std::vector<CsvRow> rows = reader.Rows();
  EXPECT_TRUE(reader.IsSound());
  EXPECT_THAT(rows, Each(SizeIs(ColumnCount)));
  EXPECT_THAT(rows.front(),
              ElementsAre("record", "file", "line", "column", "severity", "id", "rule", "section",
                          "group", "key", "heading", "message", "state", "reason"));
  rows.erase(rows.begin());
  return rows;
}

CsvRow LastRow(const MadeReport& made) {
  return Written(made.Report()).back();
}

/// What the cell of a message holds.
std::string Cell(std::string_view text) {
  return LastRow(MadeReport().Add(text))[11];
}

using Facts = std::map<std::string, std::string>;

/// The facts of the run, or of all files, by their names.
Facts FactsOf(const FindingsReport& report, std::string_view record) {
  Facts facts;
  for (const CsvRow& row : Written(report)) {
    if (row[0] == record) facts[row[5]] = row[11];
  }
  return facts;
}

TEST(CsvFindings, AFindingIsARow) {
  MadeReport made("folder/made.ags");
  made.Add("Key is repeated", "BH1,2.00", 7, 2).File().findings.front().column = 14;
  EXPECT_THAT(LastRow(made),
              ElementsAre("finding", "folder/made.ags", "7", "14", "error", "keys.repeated", "6b",
                          "Made up", "LOCA", "BH1,2.00", "LOCA_GL", "Key is repeated", "", ""));
}

TEST(CsvFindings, WhatAFindingDoesNotHaveIsAnEmptyCell) {
  EXPECT_THAT(LastRow(MadeReport().Add("text")),
              ElementsAre("finding", "made.ags", "", "", "error", "keys.repeated", "6b", "Made up",
                          "", "", "", "text", "", ""));
}

TEST(CsvFindings, AFindingHasItsStateAndWhyItWasAccepted) {
  MadeReport made;
  made.Add("text");
  made.Report().waivers.emplace_back().reason = "=agreed";
  FindingRecord& finding = made.File().findings.front();
  finding.state = FindingState::New;
  EXPECT_EQ(LastRow(made)[12], "new");
  EXPECT_EQ(LastRow(made)[13], "");
  finding.state = FindingState::Waived;
  EXPECT_EQ(LastRow(made)[12], "waived");
  EXPECT_EQ(LastRow(made)[13], "'=agreed");
}

TEST(CsvFindings, WhatIsGoneIsARow) {
  MadeReport made;
  made.Report().comparison.emplace();
  made.Report().comparison->gone.push_back(
      {"old.ags", {{"keys.repeated", "LOCA", "BH1", "LOCA_GL", "as it was", 7, Severity::Error}}});
  EXPECT_THAT(LastRow(made), ElementsAre("gone", "old.ags", "7", "", "error", "keys.repeated", "",
                                         "", "LOCA", "BH1", "LOCA_GL", "as it was", "", ""));
}

TEST(CsvFindings, AssociatedFilesThatAreMissingOrUnnamedAreFacts) {
  MadeReport made;
  made.File().associatedFiles = {{"F1", "log.pdf", AssociatedFile::State::Missing, ""},
                                 {"F1", "there.pdf", AssociatedFile::State::There, ""}};
  made.Report().unnamedFiles.push_back({"d/", {"FILE/F1/stray.pdf"}, {}});
  EXPECT_EQ(FactsOf(made.Report(), "file").at("missing-file"), "F1/log.pdf");
  EXPECT_EQ(FactsOf(made.Report(), "run").at("unnamed-file"), "d/FILE/F1/stray.pdf");
}

TEST(CsvFindings, NamesTheRunWithItsOptions) {
  FindingsReport report;
  report.programVersion = "1.2.3.4";
  report.settings.listings = {true, true, false};
  report.settings.useCustomDictionary = true;
  report.settings.customDictionary = "own.gas";
  report.settings.edition = "4.1";
  EXPECT_EQ(FactsOf(report, "run"), (Facts{{"program", "Quorvane 1.2.3.4"},
                                           {"start", "1970-01-01T00:00:00Z"},
                                           {"listings", "groups,lines"},
                                           {"no-fyi", "no"},
                                           {"statistics", "no"},
                                           {"dictionary", "own.gas"},
                                           {"edition", "4.1"},
                                           {"status", "not-done"},
                                           {"files", "0"},
                                           {"errors", "0"},
                                           {"warnings", "0"},
                                           {"fyis", "0"},
                                           {"remarks", "0"}}));
}

TEST(CsvFindings, NamesAFileWithAllThatIsKnown) {
  MadeReport made;
  FileRecord& file = made.Add("text").File();
  file.wasRead = true;
  file.size = 5'000'000'000;
  file.sha256 = std::string(64, 'a');
  file.statedVersion = "4.1";
  file.dictionary = "bin/ags41 dict.gas";
  file.edition = "4.1";
  EXPECT_EQ(FactsOf(made.Report(), "file"), (Facts{{"checked-to-the-end", "yes"},
                                                   {"size", "5000000000"},
                                                   {"sha256", std::string(64, 'a')},
                                                   {"ags-version", "4"},
                                                   {"stated-version", "4.1"},
                                                   {"dictionary", "bin/ags41 dict.gas"},
                                                   {"edition", "4.1"},
                                                   {"errors", "1"},
                                                   {"warnings", "0"},
                                                   {"fyis", "0"},
                                                   {"remarks", "0"}}));
}

TEST(CsvFindings, SaysWhyAFileWasNotChecked) {
  const FindingsReport report = CollectFindings({{"no.ags", "neither"}});
  const Facts facts = FactsOf(report, "file");
  EXPECT_EQ(facts.at("checked-to-the-end"), "no");
  EXPECT_EQ(facts.at("reason"), "File is not an AGS 3 or 4 format file");
  EXPECT_FALSE(facts.contains("ags-version"));
}

TEST(CsvFindings, QuotesAndCommasComeBack) {
  for (const char* text : {"a,b", "a \"b\" c", "\"", "\"\"", ",", " blanks ", "a;b"})
    EXPECT_EQ(Cell(text), text);
}

TEST(CsvFindings, NoTextIsAFormula) {
  for (const std::string text : {"=1+1", "+1", "-1", "@SUM(A1)", "\t=1", " =1", "  -1",
                                 "\xEF\xBC\x9D"
                                 "1"})
    EXPECT_EQ(Cell(text), "'" + text);
  for (const char* text : {"a=1", "1-1", "'=1", "1", " a"})
    EXPECT_EQ(Cell(text), text);
  EXPECT_EQ(Cell("\r\n=1"), "'\n=1");
}

TEST(CsvFindings, NoColumnHoldsAFormula) {
  MadeReport made("=path.ags");
  made.Add("=text", "=key", 7, 2);
  FileRecord& file = made.File();
  file.sections.front() = "=section";
  file.groups.front().name = "=group";
  file.groups.front().headings[1].name = "=heading";
  file.reason = "=reason";
  file.statedVersion = "=version";
  file.dictionary = "=dictionary";
  file.edition = "=edition";
  made.Report().settings.useCustomDictionary = true;
  made.Report().settings.customDictionary = "=own";
  made.Report().programVersion = "=1";
  for (const CsvRow& row : Written(made.Report())) {
    for (const std::string& cell : row)
      EXPECT_FALSE(cell.starts_with('=')) << cell;
  }
  EXPECT_EQ(LastRow(made)[1], "'=path.ags");
  EXPECT_EQ(LastRow(made)[8], "'=group");
  EXPECT_EQ(LastRow(made)[9], "'=key");
  EXPECT_EQ(LastRow(made)[10], "'=heading");
}

TEST(CsvFindings, LineBreaksInsideATextAreThoseOfCells) {
  EXPECT_EQ(Cell("first\r\nsecond\r\n\r\nthird"), "first\nsecond\n\nthird");
}

TEST(CsvFindings, ControlCharactersAreShown) {
  using namespace std::string_literals;
  EXPECT_EQ(Cell("a\0b\x1B[2Jc\x7F"
                 "d\re\nf"s),
            R"(a\x00b\x1B[2Jc\x7Fd\x0De\x0Af)");
  EXPECT_EQ(Cell("a\tb"), "a\tb");
}

TEST(CsvFindings, LettersAndLongTextsStay) {
  const std::string letters = "\xC3\xBC \xE2\x82\xAC \xF0\x9F\x98\x80";
  EXPECT_EQ(Cell(letters), letters);
  const std::string longText(1'000'000, 'x');
  EXPECT_EQ(Cell(longText), longText);
}

TEST(CsvFindings, ARunWithoutFilesHasNoOtherRows) {
  for (const CsvRow& row : Written({}))
    EXPECT_EQ(row[0], "run");
}

}  // namespace
}  // namespace quorvane::test
