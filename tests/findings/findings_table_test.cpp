#include "findings/findings_table.h"

#include <chrono>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/made_report.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Texts = std::vector<std::string>;

Texts ShownTexts(const FindingsTable& table) {
  Texts texts;
  for (std::size_t row = 0; row < table.ShownCount(); ++row)
    texts.emplace_back(table.Find(table.FindingOfRow(row)).finding.text);
  return texts;
}

FindingsReport TwoFiles() {
  std::vector<FileRecord> files;
  files.push_back(MadeFile("/b/site.ags", {"Units check", "Keys check"},
                           {{"delta", 20, Severity::Warning, 0, "10"},
                            {"Alpha", 0, Severity::Fyi, 1, ""},
                            {"beta", 3, Severity::Error, 0, "6b"}}));
  files.push_back(MadeFile("/b/empty.ags", {"Keys check"}, {}));
  files.push_back(
      MadeFile("/a/more.ags", {"Keys check"},
               {{"gamma", 3, Severity::Plain, 0, "7"}, {"beta", 100, Severity::Error, 0, "6b"}}));
  return MadeReport(std::move(files));
}

/// What a filter for a text leaves of the two files.
Texts Filtered(const std::string& text) {
  const FindingsReport report = TwoFiles();
  FindingsTable table(report);
  FindingsFilter filter;
  filter.text = text;
  table.Filter(filter);
  return ShownTexts(table);
}

/// The two files sorted by a column.
Texts Sorted(FindingsColumn column, SortDirection direction) {
  const FindingsReport report = TwoFiles();
  FindingsTable table(report);
  table.SortBy(column, direction);
  return ShownTexts(table);
}

constexpr auto Up = SortDirection::Ascending;
constexpr auto Down = SortDirection::Descending;

TEST(FindingsTable, ShowsAllFindingsInTheOrderOfTheReportAtFirst) {
  const FindingsReport report = TwoFiles();
  const FindingsTable table(report);
  EXPECT_EQ(table.Count(), 5U);
  EXPECT_THAT(ShownTexts(table), ElementsAre("delta", "Alpha", "beta", "gamma", "beta"));
  EXPECT_EQ(table.Find(2).file.path, "/b/site.ags");
  EXPECT_EQ(table.Find(3).file.path, "/a/more.ags");
}

TEST(FindingsTable, OfAReportWithoutFindingsIsEmpty) {
  const FindingsReport report;
  FindingsTable table(report);
  table.Filter({"x"});
  table.SortBy(FindingsColumn::Message, Down);
  EXPECT_EQ(table.Count(), 0U);
  EXPECT_EQ(table.ShownCount(), 0U);
}

TEST(FindingsTable, FilesAreSortedByName) {
  EXPECT_THAT(Sorted(FindingsColumn::File, Up),
              ElementsAre("gamma", "beta", "delta", "Alpha", "beta"));
}

TEST(FindingsTable, LinesAreSortedByNumber) {
  EXPECT_THAT(Sorted(FindingsColumn::Line, Up),
              ElementsAre("Alpha", "beta", "gamma", "delta", "beta"));
  EXPECT_THAT(Sorted(FindingsColumn::Line, Down),
              ElementsAre("beta", "delta", "beta", "gamma", "Alpha"));
}

TEST(FindingsTable, SeveritiesAreSortedFromErrorToRemark) {
  EXPECT_THAT(Sorted(FindingsColumn::Severity, Up),
              ElementsAre("beta", "beta", "delta", "Alpha", "gamma"));
}

TEST(FindingsTable, SectionsAreSortedByTitleAcrossFiles) {
  EXPECT_THAT(Sorted(FindingsColumn::Section, Up),
              ElementsAre("Alpha", "gamma", "beta", "delta", "beta"));
}

TEST(FindingsTable, RulesAreSortedByTheirNumber) {
  EXPECT_THAT(Sorted(FindingsColumn::Rule, Up),
              ElementsAre("Alpha", "beta", "beta", "gamma", "delta"));
}

TEST(FindingsTable, MessagesAreSortedByTheirText) {
  EXPECT_THAT(Sorted(FindingsColumn::Message, Up),
              ElementsAre("Alpha", "beta", "beta", "delta", "gamma"));
  EXPECT_THAT(Sorted(FindingsColumn::Message, Down),
              ElementsAre("gamma", "delta", "beta", "beta", "Alpha"));
}

TEST(FindingsTable, WhatIsEqualStaysInTheOrderOfTheReportInEitherDirection) {
  const FindingsReport report = TwoFiles();
  for (const SortDirection direction : {Up, Down}) {
    for (const auto column : {FindingsColumn::Message, FindingsColumn::Rule}) {
      FindingsTable table(report);
      table.SortBy(FindingsColumn::Line, Down);  // leaves no trace
      table.SortBy(column, direction);
      EXPECT_LT(table.RowOfFinding(2), table.RowOfFinding(4));
    }
  }
}

TEST(FindingsTable, TheOrderOfTheReportCanBeHadAgain) {
  const FindingsReport report = TwoFiles();
  FindingsTable table(report);
  table.SortBy(FindingsColumn::Message, Up);
  table.SortAsReported();
  EXPECT_THAT(ShownTexts(table), ElementsAre("delta", "Alpha", "beta", "gamma", "beta"));
}

TEST(FindingsTable, TheFilterLooksIntoEveryColumnButTheSeverity) {
  EXPECT_THAT(Filtered("alp"), ElementsAre("Alpha"));
  EXPECT_THAT(Filtered("/A/"), ElementsAre("gamma", "beta"));
  EXPECT_THAT(Filtered("UNITS"), ElementsAre("delta", "beta"));
  EXPECT_THAT(Filtered("6b"), ElementsAre("beta", "beta"));
  EXPECT_THAT(Filtered("20"), ElementsAre("delta"));
  EXPECT_THAT(Filtered("0"), ElementsAre("delta", "beta"));  // no line is not line 0
  EXPECT_THAT(Filtered("error"), IsEmpty());
}

TEST(FindingsTable, TheFilterTakesAnyCaseOfLettersAndNothingElseForTheSame) {
  EXPECT_THAT(Filtered("BETA"), ElementsAre("beta", "beta"));
  EXPECT_THAT(Filtered("betas"), IsEmpty());
  EXPECT_THAT(Filtered("[b]eta"), IsEmpty());
}

TEST(FindingsTable, TheFilterTakesSeveritiesOut) {
  const FindingsReport report = TwoFiles();
  FindingsTable table(report);
  table.Filter({"", true, false, false});
  EXPECT_THAT(ShownTexts(table), ElementsAre("beta", "beta"));
  table.Filter({"", false, true, false});
  EXPECT_THAT(ShownTexts(table), ElementsAre("delta"));
  table.Filter({"", false, false, true});
  EXPECT_THAT(ShownTexts(table), ElementsAre("Alpha", "gamma"));
  EXPECT_EQ(table.Count(), 5U);
}

TEST(FindingsTable, OrderAndFilterDoNotDisturbEachOther) {
  const FindingsReport report = TwoFiles();
  FindingsTable table(report);
  table.Filter({"eta"});
  table.SortBy(FindingsColumn::Line, Down);
  EXPECT_THAT(ShownTexts(table), ElementsAre("beta", "beta"));
  EXPECT_EQ(table.FindingOfRow(0), 4U);
  EXPECT_EQ(table.RowOfFinding(2), 1U);
  EXPECT_EQ(table.RowOfFinding(0), std::nullopt);
  table.Filter({});
  EXPECT_THAT(ShownTexts(table), ElementsAre("beta", "delta", "beta", "gamma", "Alpha"));
}

/// The limits are far above what a usual computer needs, and far below what any way would take that
/// does not grow with the number of findings alone.
TEST(FindingsTable, AMillionFindingsAreSortedAndFilteredWithoutDelay) {
  constexpr std::chrono::seconds limit(10);
  const FindingsReport report = ReportOfAMillion();
  const auto measure = [&](const std::string& what, const auto& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    const auto time = std::chrono::steady_clock::now() - start;
    EXPECT_LT(time, limit) << what;
    RecordProperty(what, static_cast<int>(time / std::chrono::milliseconds(1)));
  };
  FindingsTable table(report);
  measure("fill", [&] { table = FindingsTable(report); });
  ASSERT_EQ(table.Count(), 1'000'000U);
  for (const auto& [name, column] : {std::pair("file", FindingsColumn::File),
                                     {"line", FindingsColumn::Line},
                                     {"severity", FindingsColumn::Severity},
                                     {"section", FindingsColumn::Section},
                                     {"rule", FindingsColumn::Rule},
                                     {"message", FindingsColumn::Message}}) {
    measure(std::string("sort_") + name, [&, by = column] { table.SortBy(by, Down); });
    measure(std::string("sort_up_") + name, [&, by = column] { table.SortBy(by, Up); });
  }
  measure("filter_rare", [&] { table.Filter({"bh123456'"}); });
  EXPECT_GT(table.ShownCount(), 0U);
  EXPECT_LT(table.ShownCount(), 10U);
  measure("filter_frequent", [&] { table.Filter({"GEOL_TOP"}); });
  EXPECT_EQ(table.ShownCount(), 333'334U);
  measure("filter_number", [&] { table.Filter({"77"}); });
  measure("filter_none", [&] { table.Filter({}); });
  EXPECT_EQ(table.ShownCount(), table.Count());
}

}  // namespace
}  // namespace quorvane::test
