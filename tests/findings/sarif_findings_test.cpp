#include "findings/sarif_findings.h"

#include <nlohmann/json.hpp>
#include <set>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "findings/finding_identity.h"
#include "findings/made_report.h"
#include "run/message_catalogue.h"
#include "support/check_text.h"

namespace quorvane::test {
namespace {

using testing::SizeIs;

using Json = nlohmann::ordered_json;

/// The only run of the log.
Json LoggedRun(const FindingsReport& report) {
  const Json log = Json::parse(SarifFindings(report));
  EXPECT_EQ(log["version"], "2.1.0");
  EXPECT_THAT(log["runs"], SizeIs(1));
  return log["runs"][0];
}

Json OnlyResult(const MadeReport& made) {
  const Json results = LoggedRun(made.Report())["results"];
  EXPECT_THAT(results, SizeIs(1));
  return results[0];
}

TEST(SarifFindings, NamesTheToolWithItsRules) {
  FindingsReport report;
  report.programVersion = "1.02.3.4";
  const Json run = LoggedRun(report);
  const Json& driver = run["tool"]["driver"];
  EXPECT_EQ(driver["name"], "Quorvane");
  EXPECT_EQ(driver["version"], "1.02.3.4");
  EXPECT_FALSE(driver.contains("semanticVersion"));
  EXPECT_EQ(run["columnKind"], "unicodeCodePoints");

  const std::vector<const MessageDefinition*> catalogue = MessageCatalogue();
  ASSERT_THAT(driver["rules"], SizeIs(catalogue.size()));
  std::set<std::string> names;
  for (std::size_t index = 0; index < catalogue.size(); ++index) {
    const Json& rule = driver["rules"][index];
    EXPECT_EQ(rule["id"], catalogue[index]->id);
    EXPECT_EQ(rule["fullDescription"]["text"], catalogue[index]->meaning);
    EXPECT_EQ(rule["help"]["text"], catalogue[index]->remedy);
    EXPECT_TRUE(
        catalogue[index]->meaning.starts_with(rule["shortDescription"]["text"].get<std::string>()));
    names.insert(rule["name"]);
  }
  EXPECT_THAT(names, SizeIs(catalogue.size()));
}

TEST(SarifFindings, ARuleTellsItsLevelAndTheRulesOfTheFormats) {
  const Json run = LoggedRun({});
  for (const Json& rule : run["tool"]["driver"]["rules"]) {
    if (rule["id"] != "keys.repeated") continue;
    EXPECT_EQ(rule["name"], "KeysRepeated");
    EXPECT_EQ(rule["defaultConfiguration"]["level"], "error");
    EXPECT_EQ(rule["properties"]["agsRule"]["ags4"], "6b");
  }
}

TEST(SarifFindings, AResultHasItsWholePlace) {
  MadeReport made("my data/made.ags");
  made.Add("Key is repeated", "BH1", 7, 2).File().findings.front().column = 14;
  const Json run = LoggedRun(made.Report());
  const Json result = OnlyResult(made);
  EXPECT_EQ(result["ruleId"], "keys.repeated");
  EXPECT_EQ(run["tool"]["driver"]["rules"][result["ruleIndex"].get<std::size_t>()]["id"],
            "keys.repeated");
  EXPECT_EQ(result["level"], "error");
  EXPECT_FALSE(result.contains("kind"));
  EXPECT_EQ(result["message"]["text"], "Key is repeated");
  const Json& location = result["locations"][0];
  EXPECT_EQ(location["physicalLocation"]["artifactLocation"],
            Json({{"uri", "my%20data/made.ags"}, {"index", 0}}));
  EXPECT_EQ(location["physicalLocation"]["region"], Json({{"startLine", 7}, {"startColumn", 14}}));
  EXPECT_EQ(location["logicalLocations"], Json::array({{{"fullyQualifiedName", "LOCA.LOCA_GL"}}}));
  EXPECT_EQ(result["properties"],
            Json({{"section", "Made up"}, {"agsRule", "6b"}, {"key", "BH1"}}));
}

TEST(SarifFindings, AResultWithoutALineHasNoRegion) {
  const Json location = OnlyResult(MadeReport().Add("text"))["locations"][0];
  EXPECT_FALSE(location["physicalLocation"].contains("region"));
  EXPECT_FALSE(location.contains("logicalLocations"));
}

TEST(SarifFindings, EverySeverityHasItsLevel) {
  MadeReport made;
  made.Add("error").Add("warning").Add("fyi").Add("remark");
  made.File().findings[1].severity = Severity::Warning;
  made.File().findings[2].severity = Severity::Fyi;
  made.File().findings[3].severity = Severity::Plain;
  const Json results = LoggedRun(made.Report())["results"];
  EXPECT_EQ(results[0]["level"], "error");
  EXPECT_EQ(results[1]["level"], "warning");
  EXPECT_EQ(results[2]["level"], "note");
  EXPECT_EQ(results[3]["level"], "none");
  EXPECT_EQ(results[3]["kind"], "informational");
}

TEST(SarifFindings, FingerprintsAreThoseOfTheIdentities) {
  MadeReport made;
  made.Add("one", "BH1", 7, 2).Add("two", "BH1", 8, 2);
  const Json results = LoggedRun(made.Report())["results"];
  FindingIdentifier identifier;
  for (std::size_t index = 0; index < 2; ++index) {
    EXPECT_EQ(results[index]["partialFingerprints"]["quorvane/v1"],
              Fingerprint(identifier.Identify(made.File(), made.File().findings[index])));
  }
}

TEST(SarifFindings, AMessageHoldsNoPlacesForValuesAndNoLinks) {
  EXPECT_EQ(OnlyResult(MadeReport().Add("{0} and }"))["message"]["text"], "{{0}} and }}");
  EXPECT_EQ(OnlyResult(MadeReport().Add("see [here](http://x)"))["message"]["text"],
            "see [here\\](http://x)");
  EXPECT_EQ(OnlyResult(MadeReport().Add("[a] (b)"))["message"]["text"], "[a] (b)");
}

TEST(SarifFindings, AnyTextComesBackAsItWas) {
  using namespace std::string_literals;
  for (const std::string& text : {"\"quotes\" \\ \r\n lines"s, "nul \0 esc \x1B"s,
                                  "\xC3\xBC \xF0\x9F\x98\x80"s, std::string(1'000'000, 'x')})
    EXPECT_EQ(OnlyResult(MadeReport().Add(text))["message"]["text"], text);
}

TEST(SarifFindings, AFileIsAnArtifactWithSizeHashAndWhatIsKnown) {
  MadeReport made;
  FileRecord& file = made.Add("text").File();
  file.wasRead = true;
  file.size = 5'000'000'000;
  file.sha256 = std::string(64, 'a');
  const Json artifact = LoggedRun(made.Report())["artifacts"][0];
  EXPECT_EQ(artifact["location"]["uri"], "made.ags");
  EXPECT_EQ(artifact["length"], 5'000'000'000);
  EXPECT_EQ(artifact["hashes"]["sha-256"], std::string(64, 'a'));
  EXPECT_EQ(artifact["properties"]["agsVersion"], "4");
  EXPECT_EQ(artifact["properties"]["checkedToTheEnd"], true);
  EXPECT_EQ(artifact["properties"]["counts"]["error"], 1);
}

TEST(SarifFindings, AFileThatIsCheckedTwiceIsOneArtifact) {
  const FindingsReport report = CollectFindings(
      {{"a.txt", "\"**PROJ\"\r\n"}, {"b.txt", "\"**PROJ\"\r\n"}, {"a.txt", "\"**PROJ\"\r\n"}});
  const Json run = LoggedRun(report);
  ASSERT_THAT(run["artifacts"], SizeIs(2));
  EXPECT_EQ(run["artifacts"][1]["location"]["uri"], "b.txt");
  const Json& last = run["results"].back()["locations"][0]["physicalLocation"]["artifactLocation"];
  EXPECT_EQ(last, Json({{"uri", "a.txt"}, {"index", 0}}));
}

TEST(SarifFindings, TheInvocationTellsHowTheRunEnded) {
  FindingsReport report;
  report.status = CheckStatus::HasErrors;
  EXPECT_EQ(LoggedRun(report)["invocations"][0]["executionSuccessful"], true);
  EXPECT_EQ(LoggedRun(report)["invocations"][0]["exitCode"], 1);
  report.status = CheckStatus::NotDone;
  EXPECT_EQ(LoggedRun(report)["invocations"][0]["executionSuccessful"], false);
  EXPECT_EQ(LoggedRun(report)["invocations"][0]["exitCode"], 2);
}

TEST(SarifFindings, AFileThatCannotBeCheckedIsNotified) {
  const FindingsReport report =
      CollectFindings({{"no.ags", "neither"}, {"a.txt", "\"**PROJ\"\r\n"}});
  const Json notifications = LoggedRun(report)["invocations"][0]["toolExecutionNotifications"];
  ASSERT_THAT(notifications, SizeIs(1));
  EXPECT_EQ(notifications[0]["level"], "error");
  EXPECT_EQ(notifications[0]["message"]["text"], "File is not an AGS 3 or 4 format file");
  EXPECT_EQ(notifications[0]["locations"][0]["physicalLocation"]["artifactLocation"],
            Json({{"uri", "no.ags"}, {"index", 0}}));
}

TEST(SarifFindings, AFailureWithoutAReasonIsNotifiedToo) {
  MadeReport made;
  made.File().isComplete = false;
  const Json notifications =
      LoggedRun(made.Report())["invocations"][0]["toolExecutionNotifications"];
  EXPECT_EQ(notifications[0]["message"]["text"], "unexpected failure");
}

}  // namespace
}  // namespace quorvane::test
