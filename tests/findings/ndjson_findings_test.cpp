#include "findings/ndjson_findings.h"

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "findings/json_findings.h"
#include "findings/made_report.h"
#include "support/check_text.h"
#include "text/comma_list.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

using Json = nlohmann::ordered_json;

/// The objects of all lines.
std::vector<Json> Written(const FindingsReport& report) {
  const std::string text = NdjsonFindings(report);
  EXPECT_TRUE(text.ends_with('\n'));
  std::vector<Json> lines;
  for (const std::string_view line : Split(std::string_view(text).substr(0, text.size() - 1), "\n"))
    lines.push_back(Json::parse(line));
  return lines;
}

std::vector<std::string> TypesOf(const std::vector<Json>& lines) {
  std::vector<std::string> types;
  for (const Json& line : lines)
    types.push_back(line["type"]);
  return types;
}

TEST(NdjsonFindings, ARunWithoutFilesHasBeginningAndEnd) {
  EXPECT_THAT(TypesOf(Written({})), ElementsAre("run", "end"));
}

TEST(NdjsonFindings, FindingsStandBehindTheirFile) {
  FindingsReport report = CollectFindings({{"no.ags", "neither"}, {"a.txt", "\"**PROJ\"\r\n"}});
  const std::vector<Json> lines = Written(report);
  ASSERT_GT(lines.size(), 4U);
  EXPECT_EQ(lines[0]["type"], "run");
  EXPECT_EQ(lines[1]["path"], "no.ags");
  EXPECT_EQ(lines[2]["path"], "a.txt");
  for (std::size_t index = 3; index + 1 < lines.size(); ++index) {
    EXPECT_EQ(lines[index]["type"], "finding");
    EXPECT_EQ(lines[index]["file"], "a.txt");
  }
  EXPECT_EQ(lines.back()["type"], "end");
}

/// Takes the members that only lines have away from a line.
Json Plain(Json line) {
  line.erase("type");
  line.erase("file");
  return line;
}

TEST(NdjsonFindings, LinesSayWhatTheJsonFormSays) {
  MadeReport made;
  made.Add("Key \"is\"\r\nrepeated", "BH1", 7, 2).Add("other");
  Json whole = Json::parse(JsonFindings(made.Report()));
  const std::vector<Json> lines = Written(made.Report());
  ASSERT_THAT(lines, SizeIs(5));
  EXPECT_EQ(Plain(lines[2]), whole["files"][0]["findings"][0]);
  EXPECT_EQ(Plain(lines[3]), whole["files"][0]["findings"][1]);
  whole["files"][0].erase("findings");
  EXPECT_EQ(Plain(lines[1]), whole["files"][0]);
  EXPECT_EQ(lines[0]["program"], whole["program"]);
  EXPECT_EQ(lines[0]["start"], whole["run"]["start"]);
  EXPECT_EQ(lines[0]["options"], whole["run"]["options"]);
  EXPECT_EQ(lines[4]["status"], whole["run"]["status"]);
  EXPECT_EQ(lines[4]["counts"], whole["summary"]["counts"]);
}

}  // namespace
}  // namespace quorvane::test
