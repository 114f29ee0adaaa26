#include "findings/earlier_run.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

const std::string Head = R"("format": "quorvane-findings", "formatVersion": 1, )";

/// Why a text is no data of an earlier run; empty when it is.
std::string FailureOf(const std::string& text) {
  return ReadEarlierRun(text).failure.value_or("");
}

TEST(EarlierRunTest, TakesWhatTellsAFinding) {
  const EarlierRunReading reading =
      ReadEarlierRun("{" + Head + R"("files": [{"path": "a \u00e4.ags", "findings": [
        {"id": "x.y", "rule": "8", "severity": "warning", "section": "s", "line": 12, "column": 3,
         "group": "LOCA", "key": "BH1", "heading": "LOCA_GL", "text": "said \"so\""}]}]})");
  ASSERT_EQ(reading.failure, std::nullopt);
  ASSERT_THAT(reading.run.files, SizeIs(1));
  EXPECT_EQ(reading.run.files[0].path, "a \xC3\xA4.ags");
  ASSERT_THAT(reading.run.files[0].findings, SizeIs(1));
  const EarlierFinding& finding = reading.run.files[0].findings[0];
  EXPECT_EQ(finding.id, "x.y");
  EXPECT_EQ(finding.severity, Severity::Warning);
  EXPECT_EQ(finding.line, 12);
  EXPECT_EQ(finding.group, "LOCA");
  EXPECT_EQ(finding.key, "BH1");
  EXPECT_EQ(finding.heading, "LOCA_GL");
  EXPECT_EQ(finding.text, "said \"so\"");
}

TEST(EarlierRunTest, MembersMayBeAbsentOrNullOrInAnyOrder) {
  const EarlierRunReading reading = ReadEarlierRun(
      R"({"files": [{"findings": [{"line": null, "key": null, "id": "x.y"}], "path": "a.ags"},
          {"path": "b.ags", "findings": []}, {"path": "c.ags"}],
          "formatVersion": 1, "format": "quorvane-findings"})");
  ASSERT_EQ(reading.failure, std::nullopt);
  ASSERT_THAT(reading.run.files, SizeIs(3));
  EXPECT_EQ(reading.run.files[0].path, "a.ags");
  EXPECT_EQ(reading.run.files[0].findings[0].line, 0);
  EXPECT_EQ(reading.run.files[0].findings[0].key, "");
  EXPECT_THAT(reading.run.files[1].findings, IsEmpty());
}

TEST(EarlierRunTest, PassesOverWhatItDoesNotKnowHoweverItIsNested) {
  const EarlierRunReading reading = ReadEarlierRun(
      R"({"more": {"files": [{"findings": [{"x": 1}]}], "format": "other"}, )" + Head +
      R"("files": [7, ["a"], {"path": "a.ags", "more": {"path": "b.ags", "findings": [{}]},
          "findings": ["a", [1, {"id": 2}], {"id": "x.y", "more": {"id": "z", "line": 9},
          "line": -1, "text": {"text": "t"}}]}]})");
  ASSERT_EQ(reading.failure, std::nullopt);
  ASSERT_THAT(reading.run.files, SizeIs(1));
  EXPECT_EQ(reading.run.files[0].path, "a.ags");
  ASSERT_THAT(reading.run.files[0].findings, SizeIs(1));
  EXPECT_EQ(reading.run.files[0].findings[0].id, "x.y");
  EXPECT_EQ(reading.run.files[0].findings[0].line, 0);
  EXPECT_EQ(reading.run.files[0].findings[0].text, "");
}

TEST(EarlierRunTest, ALineOutOfRangeIsHeldWithinIt) {
  const EarlierRunReading reading = ReadEarlierRun(
      "{" + Head + R"("files": [{"findings": [{"id": "a", "line": 18446744073709551615}]}]})");
  EXPECT_EQ(reading.run.files.at(0).findings.at(0).line, 2147483647);
}

TEST(EarlierRunTest, RefusesWhatIsNoSuchData) {
  EXPECT_THAT(FailureOf(""), HasSubstr("is no JSON"));
  EXPECT_THAT(FailureOf("PK\x03"), HasSubstr("is no JSON"));
  EXPECT_THAT(FailureOf("{" + Head + "\"files\": ["), HasSubstr("is no JSON"));
  EXPECT_THAT(FailureOf("{" + Head + "\"files\": [\"\xFF\"]}"), HasSubstr("is no JSON"));
  EXPECT_THAT(FailureOf("{}"), HasSubstr("--format json"));
  EXPECT_THAT(FailureOf("[]"), HasSubstr("--format json"));
  EXPECT_THAT(FailureOf(R"({"format": "other", "formatVersion": 1, "files": []})"),
              HasSubstr("--format json"));
  EXPECT_THAT(FailureOf(R"({"format": "quorvane-findings", "formatVersion": 2, "files": []})"),
              HasSubstr("version"));
  EXPECT_THAT(FailureOf("{" + Head + "\"files\": null}"), HasSubstr("no list of files"));
  EXPECT_THAT(FailureOf("{" + Head + R"("files": [{"findings": [{"line": 1}]}]})"),
              HasSubstr("without its id"));
}

}  // namespace
}  // namespace quorvane::test
