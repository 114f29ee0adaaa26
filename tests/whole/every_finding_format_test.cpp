#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "findings/csv_findings.h"
#include "findings/html_findings.h"
#include "findings/json_findings.h"
#include "findings/ndjson_findings.h"
#include "findings/sarif_findings.h"
#include "support/all_provocations.h"
#include "support/csv_reader.h"
#include "text/comma_list.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

using Json = nlohmann::json;

/// A finding as every format gives it back: the kind and the words.
using KindAndText = std::pair<std::string, std::string>;
using Findings = std::vector<KindAndText>;

/// What the run of a provocation handed over. A few are raised by a routine alone: their finding
/// stands in a report by itself.
class ProvokedReport {
 public:
  explicit ProvokedReport(const Provocation& provocation) : result_(provocation.check()) {
    if (!result_.report) MakeReport(provocation);
  }

  const FindingsReport& Report() const { return result_.report ? *result_.report : made_; }

 private:
  void MakeReport(const Provocation& provocation) {
    FileRecord& file = made_.files.emplace_back();
    file.path = "test.ags";
    file.format = provocation.format;
    file.sections.emplace_back("Test");
    FindingRecord& finding = file.findings.emplace_back();
    finding.definition = provocation.definition;
    finding.severity = provocation.definition->In(provocation.format).severity;
    finding.text = file.texts.Keep(provocation.finding);
  }

  CheckResult result_;
  FindingsReport made_;
};

Findings OfRecords(const FindingsReport& report) {
  Findings findings;
  for (const FileRecord& file : report.files) {
    for (const FindingRecord& finding : file.findings)
      findings.emplace_back(finding.definition->id, finding.text);
  }
  return findings;
}

Findings OfJson(const FindingsReport& report) {
  Findings findings;
  const Json written = Json::parse(JsonFindings(report));
  for (const Json& file : written["files"]) {
    for (const Json& finding : file["findings"])
      findings.emplace_back(finding["id"], finding["text"]);
  }
  return findings;
}

Findings OfNdjson(const FindingsReport& report) {
  Findings findings;
  const std::string text = NdjsonFindings(report);
  for (const std::string_view line : SplitLines(text)) {
    const Json written = Json::parse(line);
    if (written["type"] == "finding") findings.emplace_back(written["id"], written["text"]);
  }
  return findings;
}

Findings OfSarif(const FindingsReport& report) {
  Findings findings;
  const Json run = Json::parse(SarifFindings(report))["runs"][0];
  for (const Json& result : run["results"])
    findings.emplace_back(result["ruleId"], result["message"]["text"]);
  return findings;
}

Findings OfCsv(const FindingsReport& report) {
  Findings findings;
  const std::string text = CsvFindings(report);
  CsvReader reader(text);
  for (const CsvRow& row : reader.Rows()) {
    if (row[0] == "finding") findings.emplace_back(row[5], row[11]);
  }
  EXPECT_TRUE(reader.IsSound());
  return findings;
}

/// What stands between two marks, of which the first one is searched from a place on; the place is
/// moved behind them.
std::string_view Between(std::string_view page, std::size_t& at, std::string_view before,
                         std::string_view behind) {
  const std::size_t start = page.find(before, at);
  const std::size_t end = page.find(behind, start);
  if (start == std::string_view::npos || end == std::string_view::npos) {
    ADD_FAILURE() << "not in the page: " << before << behind;
    return {};
  }
  at = end + behind.size();
  return page.substr(start + before.size(), end - start - before.size());
}

std::string FromHtml(std::string_view html) {
  std::string text = ReplaceAll(html, "<br>", LineBreak);
  text = ReplaceAll(text, "&lt;", "<");
  text = ReplaceAll(text, "&gt;", ">");
  text = ReplaceAll(text, "\xE2\x90\x89", "\t");
  return ReplaceAll(text, "&amp;", "&");
}

Findings OfHtml(const FindingsReport& report) {
  constexpr std::string_view start = "\n<li class=\"";
  Findings findings;
  const std::string page = HtmlFindings(report);
  for (std::size_t at = page.find(start); at != std::string::npos; at = page.find(start, at)) {
    const std::string text = FromHtml(Between(page, at, "<div><p>", "</p>"));
    const std::string id(Between(page, at, "<a href=\"#kind-", "\">"));
    findings.emplace_back(id, text);
  }
  return findings;
}

/// The findings with what CSV does to a text.
Findings InCells(Findings findings) {
  for (KindAndText& finding : findings) {
    std::string& text = finding.second;
    text = ReplaceAll(text, LineBreak, "\n");
    if (text.starts_with('\n')) text.insert(0, "'");
  }
  return findings;
}

TEST(EveryFinding, IsInTheRecordsOfItsRun) {
  for (const Provocation& provocation : AllProvocations()) {
    const ProvokedReport provoked(provocation);
    const Findings findings = OfRecords(provoked.Report());
    EXPECT_TRUE(std::any_of(findings.begin(), findings.end(), [&](const KindAndText& finding) {
      return finding.first == provocation.definition->id &&
             provocation.finding.ends_with(finding.second);
    })) << provocation.finding;
  }
}

TEST(EveryFinding, ComesBackFromEveryFormat) {
  for (const Provocation& provocation : AllProvocations()) {
    const ProvokedReport provoked(provocation);
    const FindingsReport& report = provoked.Report();
    const Findings findings = OfRecords(report);
    EXPECT_EQ(OfJson(report), findings) << provocation.finding;
    EXPECT_EQ(OfNdjson(report), findings) << provocation.finding;
    EXPECT_EQ(OfSarif(report), findings) << provocation.finding;
    EXPECT_EQ(OfHtml(report), findings) << provocation.finding;
    EXPECT_EQ(OfCsv(report), InCells(findings)) << provocation.finding;
  }
}

}  // namespace
}  // namespace quorvane::test
