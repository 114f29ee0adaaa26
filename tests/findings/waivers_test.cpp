#include "findings/waivers.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "findings/report_builder.h"
#include "run/message_catalogue.h"
#include "support/stopwatch.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Optional;
using testing::SizeIs;

/// A kind of finding that there is.
const MessageDefinition& KnownMessage() {
  return *MessageCatalogue().front();
}

/// A waiver's line for that kind.
std::string LineFor(const std::string& rest) {
  return std::string(KnownMessage().id) + " | " + rest;
}

TEST(ReadWaiversTest, TakesTheFieldsOfEachLine) {
  const WaiverReading reading =
      ReadWaivers("\xEF\xBB\xBF# accepted in 2026\r\n\r\n" +
                  LineFor("a.ags|LOCA | BH1,2|\tLOCA_GL |  as agreed\r\n"));
  EXPECT_THAT(reading.mistakes, IsEmpty());
  ASSERT_THAT(reading.waivers, SizeIs(1));
  const WaiverRecord& waiver = reading.waivers[0];
  EXPECT_EQ(waiver.line, 3);
  EXPECT_EQ(waiver.id, KnownMessage().id);
  EXPECT_THAT(waiver.file, Optional(std::string("a.ags")));
  EXPECT_THAT(waiver.group, Optional(std::string("LOCA")));
  EXPECT_THAT(waiver.key, Optional(std::string("BH1,2")));
  EXPECT_THAT(waiver.heading, Optional(std::string("LOCA_GL")));
  EXPECT_EQ(waiver.reason, "as agreed");
}

TEST(ReadWaiversTest, AStarMeansAnyAndAnEmptyFieldNone) {
  const WaiverRecord waiver = ReadWaivers(LineFor("* | | * | | why")).waivers.at(0);
  EXPECT_EQ(waiver.file, std::nullopt);
  EXPECT_THAT(waiver.group, Optional(std::string()));
  EXPECT_EQ(waiver.key, std::nullopt);
  EXPECT_THAT(waiver.heading, Optional(std::string()));
}

TEST(ReadWaiversTest, BackslashesTakeTheMeaningFromBarsAndStars) {
  const WaiverRecord waiver =
      ReadWaivers(LineFor(R"(\* | G | a\|b\\c\d | a*b | see C:\x \| y)")).waivers.at(0);
  EXPECT_THAT(waiver.file, Optional(std::string("*")));
  EXPECT_THAT(waiver.key, Optional(std::string(R"(a|b\c\d)")));
  EXPECT_THAT(waiver.heading, Optional(std::string("a*b")));
  EXPECT_EQ(waiver.reason, R"(see C:\x | y)");
}

TEST(ReadWaiversTest, OtherBytesThanUtf8AreTakenAsWindows1252) {
  EXPECT_THAT(ReadWaivers(LineFor("* | * | M\xFChle | * | why")).waivers.at(0).key,
              Optional(std::string("M\xC3\xBChle")));
}

TEST(ReadWaiversTest, EveryMistakeIsNamedWithItsLine) {
  const WaiverReading reading =
      ReadWaivers("no.such-id | * | * | * | * | why\n" + LineFor("* | * | * | * |  \n") +
                  LineFor("* | * | * | why\n") + "* | * | * | * | * | why\n" +
                  LineFor("* | LOCA | * | * | first\n") + LineFor("*|LOCA|*|*|second\n") +
                  LineFor("*|LOCA||*|another\n"));
  EXPECT_THAT(reading.mistakes,
              ElementsAre("line 1: there is no message with the id \"no.such-id\"",
                          "line 2: a waiver needs a reason",
                          HasSubstr("line 3: the number of fields is 5 and not 6"),
                          "line 4: there is no message with the id \"*\"",
                          "line 6: waives the same as line 5"));
  EXPECT_THAT(reading.waivers, SizeIs(2));
}

class ApplyWaiversTest : public testing::Test {
 protected:
  void Apply(const std::string& list) {
    ApplyWaivers(report_, ReadWaivers(list).waivers, "waivers.txt");
  }

  /// The reasons for which the findings of a file are waived; empty for one that is not.
  std::vector<std::string> Reasons(std::size_t file = 0) const {
    std::vector<std::string> reasons;
    for (const FindingRecord& finding : report_.files[file].findings) {
      const bool isWaived = finding.state == FindingState::Waived;
      reasons.push_back(isWaived ? report_.waivers[static_cast<std::size_t>(finding.waiver)].reason
                                 : "");
    }
    return reasons;
  }

  FindingsReport report_;
};

TEST_F(ApplyWaiversTest, AWaiverFitsWhereAllItsFieldsDo) {
  FileRecord& file = AddFile(report_, "data/a.ags");
  AddFinding(file, "BH1", 2, KnownMessage());
  AddFinding(file, "BH2", 2, KnownMessage());
  AddFinding(file, "BH1", 1, KnownMessage());
  AddFinding(file, "BH1", 2);
  Apply(LineFor("a.ags | LOCA | BH1 | LOCA_GL | why"));
  EXPECT_THAT(Reasons(), ElementsAre("why", "", "", ""));
  EXPECT_EQ(report_.waivers[0].matches, 1);
  EXPECT_EQ(report_.waiverFile, "waivers.txt");
}

TEST_F(ApplyWaiversTest, TheFirstOfSeveralGivesTheReasonAndNoneOfThemIsIdle) {
  FileRecord& file = AddFile(report_, "a.ags");
  AddFinding(file, "BH1", 2, KnownMessage());
  AddFinding(file, "BH2", 2, KnownMessage());
  Apply(LineFor("* | * | BH1 | * | narrow\n") + LineFor("* | * | * | * | wide\n") +
        LineFor("* | * | BH3 | * | idle\n"));
  EXPECT_THAT(Reasons(), ElementsAre("narrow", "wide"));
  EXPECT_EQ(report_.waivers[0].matches, 1);
  EXPECT_EQ(report_.waivers[1].matches, 2);
  EXPECT_EQ(report_.waivers[2].matches, 0);
}

TEST_F(ApplyWaiversTest, FilesOfOneNameMayBeNamedWithTheirFolders) {
  AddFinding(AddFile(report_, "d/x/a.ags"), "BH1", 2, KnownMessage());
  AddFinding(AddFile(report_, "d/y/a.ags"), "BH1", 2, KnownMessage());
  Apply(LineFor("y/a.ags | * | * | * | one\n") + LineFor("a.ags | * | * | * | both\n"));
  EXPECT_THAT(Reasons(0), ElementsAre("both"));
  EXPECT_THAT(Reasons(1), ElementsAre("one"));
}

TEST_F(ApplyWaiversTest, AnEmptyFieldFitsWhereThereIsNothingOnly) {
  FileRecord& file = AddFile(report_, "a.ags");
  AddFinding(file, "", 0, KnownMessage());
  AddFinding(file, "BH1", 0, KnownMessage());
  Apply(LineFor("* | * | | | why"));
  EXPECT_THAT(Reasons(), ElementsAre("why", ""));
}

TEST_F(ApplyWaiversTest, ManyWaiversForManyFindingsCostLittle) {
  constexpr int count = 100000;
  FileRecord& file = AddFile(report_, "a.ags");
  std::string list;
  for (int index = 0; index < count; ++index) {
    const std::string key = "BH" + std::to_string(index);
    AddFinding(file, key, 2, KnownMessage());
    list += LineFor("* | * | " + key + " | * | why\n");
  }
  const Stopwatch stopwatch;
  Apply(list);
  EXPECT_LT(stopwatch.Seconds(), QuickSeconds);
  EXPECT_EQ(report_.waivers.back().matches, 1);
}

}  // namespace
}  // namespace quorvane::test
