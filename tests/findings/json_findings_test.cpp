#include "findings/json_findings.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "findings/made_report.h"
#include "support/check_text.h"

namespace quorvane::test {
namespace {

using testing::Contains;
using testing::Key;
using testing::Not;

using Json = nlohmann::ordered_json;

Json Written(const FindingsReport& report) {
  return Json::parse(JsonFindings(report));
}

Json OnlyFinding(const MadeReport& made) {
  return Written(made.Report())["files"][0]["findings"][0];
}

TEST(JsonFindings, NamesFormatProgramAndRun) {
  FindingsReport report;
  report.programVersion = "1.2.3.4";
  report.settings.listings = {true, false, true};
  report.settings.suppressFyi = true;
  report.status = CheckStatus::Clean;
  const Json written = Written(report);
  EXPECT_EQ(written["format"], "quorvane-findings");
  EXPECT_EQ(written["formatVersion"], 1);
  EXPECT_EQ(written["program"], Json({{"name", "Quorvane"}, {"version", "1.2.3.4"}}));
  EXPECT_EQ(written["run"]["start"], "1970-01-01T00:00:00Z");
  EXPECT_EQ(written["run"]["status"], "clean");
  EXPECT_EQ(written["run"]["options"],
            Json({{"listings", {"groups", "severity"}}, {"noFyi", true}, {"statistics", false}}));
  EXPECT_EQ(written["files"], Json::array());
}

TEST(JsonFindings, NamesTheDictionaryOfTheOptionOnlyWhenItIsUsed) {
  FindingsReport report;
  report.settings.customDictionary = "own \xFC.gas";
  EXPECT_FALSE(Written(report)["run"]["options"].contains("dictionary"));
  report.settings.useCustomDictionary = true;
  EXPECT_EQ(Written(report)["run"]["options"]["dictionary"], "own \xC3\xBC.gas");
}

TEST(JsonFindings, NamesTheEditionOfTheOption) {
  FindingsReport report;
  EXPECT_FALSE(Written(report)["run"]["options"].contains("edition"));
  report.settings.edition = "4.1";
  EXPECT_EQ(Written(report)["run"]["options"]["edition"], "4.1");
}

TEST(JsonFindings, NamesAFileWithAllThatIsKnown) {
  MadeReport made("folder/made.ags");
  FileRecord& file = made.Add("text").File();
  file.wasRead = true;
  file.size = 5'000'000'000;
  file.sha256 = std::string(64, 'a');
  file.statedVersion = "4.1";
  file.dictionary = "bin/ags41 dict.gas";
  file.edition = "4.1";
  const Json written = Written(made.Report())["files"][0];
  EXPECT_EQ(written["path"], "folder/made.ags");
  EXPECT_EQ(written["checkedToTheEnd"], true);
  EXPECT_EQ(written["size"], 5'000'000'000);
  EXPECT_EQ(written["sha256"], std::string(64, 'a'));
  EXPECT_EQ(written["agsVersion"], "4");
  EXPECT_EQ(written["statedVersion"], "4.1");
  EXPECT_EQ(written["dictionary"], "bin/ags41 dict.gas");
  EXPECT_EQ(written["edition"], "4.1");
  EXPECT_EQ(written["counts"], Json({{"error", 1}, {"warning", 0}, {"fyi", 0}, {"remark", 0}}));
  EXPECT_FALSE(written.contains("reason"));
}

TEST(JsonFindings, LeavesOutWhatIsNotKnownOfAFile) {
  FindingsReport report;
  FileRecord& file = report.files.emplace_back();
  file.path = "missing.ags";
  file.reason = "File not found";
  const Json written = Written(report)["files"][0];
  EXPECT_EQ(written["checkedToTheEnd"], false);
  EXPECT_EQ(written["reason"], "File not found");
  for (const char* name :
       {"size", "sha256", "agsVersion", "statedVersion", "dictionary", "edition"})
    EXPECT_FALSE(written.contains(name)) << name;
  EXPECT_EQ(written["findings"], Json::array());
}

TEST(JsonFindings, SumsUpTheFiles) {
  FindingsReport report = CollectFindings({{"no.ags", "neither"}, {"a.txt", "\"**PROJ\"\r\n"}});
  const Json summary = Written(report)["summary"];
  EXPECT_EQ(summary["files"], 2);
  EXPECT_EQ(summary["filesCheckedToTheEnd"], 1);
  EXPECT_EQ(summary["counts"]["error"], report.Counts().errors);
  EXPECT_GT(report.Counts().errors, 0);
}

TEST(JsonFindings, AFindingHasItsWholePlace) {
  MadeReport made;
  made.Add("Key is repeated", "BH1,2.00", 7, 2).File().findings.front().column = 14;
  EXPECT_EQ(OnlyFinding(made), Json({{"id", "keys.repeated"},
                                     {"rule", "6b"},
                                     {"severity", "error"},
                                     {"section", "Made up"},
                                     {"line", 7},
                                     {"column", 14},
                                     {"group", "LOCA"},
                                     {"key", "BH1,2.00"},
                                     {"heading", "LOCA_GL"},
                                     {"text", "Key is repeated"}}));
}

TEST(JsonFindings, LeavesOutWhatAFindingDoesNotHave) {
  MadeReport made;
  made.Add("");
  EXPECT_EQ(OnlyFinding(made), Json({{"id", "keys.repeated"},
                                     {"rule", "6b"},
                                     {"severity", "error"},
                                     {"section", "Made up"},
                                     {"text", ""}}));
}

TEST(JsonFindings, AnyTextComesBackAsItWas) {
  using namespace std::string_literals;
  for (const std::string& text :
       {"quotes \" and \\ and '"s, "lines\r\nof\ntext\r"s, "nul \0 tab \t esc \x1B[2J del \x7F"s,
        "\xC3\xBC \xE2\x82\xAC \xF0\x9F\x98\x80 \xE2\x80\xA8"s, std::string(1'000'000, 'x')}) {
    MadeReport made("a \"b\"\n.ags");
    made.Add(text, text, 1);
    const Json finding = OnlyFinding(made);
    EXPECT_EQ(finding["text"], text);
    EXPECT_EQ(finding["key"], text);
    EXPECT_EQ(Written(made.Report())["files"][0]["path"], "a \"b\"\n.ags");
  }
}

TEST(JsonFindings, BytesThatAreNoUtf8DoNotStopIt) {
  MadeReport made;
  made.Add(
      "a\xFF"
      "b");
  EXPECT_EQ(OnlyFinding(made)["text"],
            "a\xEF\xBF\xBD"
            "b");
}

TEST(JsonFindings, EveryFindingStandsOnALineOfItsOwn) {
  MadeReport made;
  made.Add("first\r\nsecond").Add("third");
  const std::string text = JsonFindings(made.Report());
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 4);  // run, file, and two findings
  EXPECT_EQ(text.find('\r'), std::string::npos);
}

}  // namespace
}  // namespace quorvane::test
