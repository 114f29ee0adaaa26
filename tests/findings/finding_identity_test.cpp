#include "findings/finding_identity.h"

#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "findings/made_report.h"
#include "support/check_text.h"
#include "support/stopwatch.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

using testing::SizeIs;

/// The fingerprints of all findings of a report, in its order.
std::vector<std::string> FingerprintsOf(const FindingsReport& report) {
  FindingIdentifier identifier;
  std::vector<std::string> fingerprints;
  for (const FileRecord& file : report.files) {
    for (const FindingRecord& finding : file.findings)
      fingerprints.push_back(Fingerprint(identifier.Identify(file, finding)));
  }
  return fingerprints;
}

/// That of the only finding of a report.
std::string FingerprintOf(const MadeReport& made) {
  const std::vector<std::string> fingerprints = FingerprintsOf(made.Report());
  EXPECT_THAT(fingerprints, SizeIs(1));
  return fingerprints.front();
}

TEST(FindingIdentifier, NamesAllPartsThatAFindingHas) {
  MadeReport made("folder/made.ags");
  made.Add("text", "BH1", 7, 2);
  FindingIdentifier identifier;
  const FindingIdentity identity = identifier.Identify(made.File(), made.File().findings.front());
  EXPECT_EQ(identity.fileName, "made.ags");
  EXPECT_EQ(identity.id, "keys.repeated");
  EXPECT_EQ(identity.group, "LOCA");
  EXPECT_EQ(identity.key, "BH1");
  EXPECT_EQ(identity.heading, "LOCA_GL");
  EXPECT_EQ(identity.occurrence, 1);
}

TEST(Fingerprint, IsTheSameWhereverTheLineAndTheFolderOfTheFileAre) {
  const std::string fingerprint = FingerprintOf(MadeReport("a/made.ags").Add("one", "BH1", 7, 2));
  for (const char* path : {"made.ags", "/b/made.ags", "C:\\c\\made.ags"})
    EXPECT_EQ(FingerprintOf(MadeReport(path).Add("other words", "BH1", 8, 2)), fingerprint) << path;
}

TEST(Fingerprint, DiffersInEachPart) {
  std::set<std::string> fingerprints{FingerprintOf(MadeReport().Add("text", "BH1", 7, 2)),
                                     FingerprintOf(MadeReport("b.ags").Add("text", "BH1", 7, 2)),
                                     FingerprintOf(MadeReport().Add("text", "BH2", 7, 2)),
                                     FingerprintOf(MadeReport().Add("text", "BH1", 7, 1)),
                                     FingerprintOf(MadeReport().Add("text", "BH1", 7, 0))};
  MadeReport ofOtherKind;
  ofOtherKind.Add("text", "BH1", 7, 2);
  ofOtherKind.File().findings.front().definition = &ParentKeyMissing;
  fingerprints.insert(FingerprintOf(ofOtherKind));
  EXPECT_THAT(fingerprints, SizeIs(6));
}

TEST(Fingerprint, PartsCannotRunIntoOneAnother) {
  FindingIdentity left{"a", "b", "c", "dx", "e"};
  FindingIdentity right{"a", "b", "c", "d", "xe"};
  EXPECT_NE(Fingerprint(left), Fingerprint(right));
  left = {"a", "b", "c", "d", "1:e"};
  right = {"a", "b", "c", "d1:1", "e"};
  EXPECT_NE(Fingerprint(left), Fingerprint(right));
}

TEST(Fingerprint, StaysWhatItIsFromReleaseToRelease) {
  EXPECT_EQ(Fingerprint({"site.ags", "keys.repeated", "LOCA", "BH1", "LOCA_ID", 2}),
            "a7131bfad032017dde844e8d3802a9e5ff6574f184f324448812be4492d87d87");
}

TEST(FindingIdentifier, CountsFindingsThatAreAlike) {
  MadeReport made;
  made.Add("a", "BH1", 5).Add("b", "BH2", 6).Add("c", "BH1", 7).Add("d", "BH1", 8);
  FindingIdentifier identifier;
  std::vector<std::int64_t> occurrences;
  for (const FindingRecord& finding : made.File().findings)
    occurrences.push_back(identifier.Identify(made.File(), finding).occurrence);
  EXPECT_THAT(occurrences, testing::ElementsAre(1, 1, 2, 3));
}

TEST(FindingIdentifier, CountsOnThroughFilesOfOneName) {
  const std::string text = ReplaceAll(
      MinimalAgs4()
          .Group("LOCA", {"LOCA_ID", "LOCA_GL"}, {"", "m"}, {"ID", "2DP"}, {{"BH1", "deep"}})
          .Text(),
      "\n", LineBreak);
  const FindingsReport report = CollectFindings({{"a/site.ags", text}, {"b/site.ags", text}});
  const std::vector<std::string> fingerprints = FingerprintsOf(report);
  EXPECT_GT(fingerprints.size(), 2U);
  EXPECT_THAT(std::set<std::string>(fingerprints.begin(), fingerprints.end()),
              SizeIs(fingerprints.size()));
}

TEST(FindingIdentifier, CostsNoMoreThanTheNumberOfFindings) {
  constexpr int alikeCount = 200000;
  MadeReport made;
  for (int index = 0; index < alikeCount; ++index)
    made.Add("text", "BH1", index + 1, 2);
  const Stopwatch stopwatch;
  FindingIdentifier identifier;
  std::int64_t last = 0;
  for (const FindingRecord& finding : made.File().findings)
    last = identifier.Identify(made.File(), finding).occurrence;
  EXPECT_EQ(last, alikeCount);
  EXPECT_LT(stopwatch.Seconds(), QuickSeconds);
}

}  // namespace
}  // namespace quorvane::test
