#include "findings/baseline.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "findings/report_builder.h"
#include "support/stopwatch.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using enum FindingState;

EarlierFinding Earlier(std::string_view key, std::string_view heading, std::int32_t line = 0) {
  return {SomeMessage.id, "LOCA", key, heading, "some", line, Severity::Error};
}

class BaselineTest : public testing::Test {
 protected:
  void Compare() { CompareWithEarlierRun(report_, std::move(earlier_), "old.json"); }

  std::vector<FindingState> States(std::size_t file = 0) const {
    std::vector<FindingState> states;
    for (const FindingRecord& finding : report_.files[file].findings)
      states.push_back(finding.state);
    return states;
  }

  FindingsReport report_;
  EarlierRun earlier_;
};

TEST_F(BaselineTest, FindingsAreNewKnownOrGoneWhateverTheirLines) {
  FileRecord& file = AddFile(report_, "new/a.ags");
  AddFinding(file, "BH1", 2);
  AddFinding(file, "BH2", 2);
  earlier_.files = {{"old/a.ags", {Earlier("BH2", "LOCA_GL", 99), Earlier("BH3", "LOCA_GL", 7)}}};
  Compare();
  EXPECT_THAT(States(), ElementsAre(New, Known));
  ASSERT_THAT(report_.comparison->gone, SizeIs(1));
  EXPECT_EQ(report_.comparison->gone[0].path, "old/a.ags");
  ASSERT_THAT(report_.comparison->gone[0].findings, SizeIs(1));
  EXPECT_EQ(report_.comparison->gone[0].findings[0].line, 7);
  EXPECT_EQ(report_.comparison->baseline, "old.json");
}

TEST_F(BaselineTest, EveryPartOfTheIdentityCounts) {
  FileRecord& file = AddFile(report_, "a.ags");
  for (int count = 0; count < 5; ++count)
    AddFinding(file, "BH1", 2);
  file.findings[4].group = 2;
  file.findings[4].heading = 0;
  EarlierFinding otherId = Earlier("BH1", "LOCA_GL");
  otherId.id = "test.other";
  EarlierFinding otherGroup = Earlier("BH1", "LOCA_GL");
  otherGroup.group = "GEOL";
  earlier_.files = {{"a.ags",
                     {otherId, otherGroup, Earlier("BH2", "LOCA_GL"), Earlier("BH1", "LOCA_ID"),
                      Earlier("BH1", "")}}};
  Compare();
  EXPECT_THAT(States(), ElementsAre(New, New, New, New, New));
  EXPECT_THAT(report_.comparison->gone.at(0).findings, SizeIs(5));
}

TEST_F(BaselineTest, OfFindingsThatAreAlikeAsManyAreKnownAsThereWere) {
  FileRecord& more = AddFile(report_, "more.ags");
  for (int count = 0; count < 3; ++count)
    AddFinding(more, "BH1", 2);
  AddFinding(AddFile(report_, "fewer.ags"), "BH1", 2);
  earlier_.files = {{"more.ags", {Earlier("BH1", "LOCA_GL"), Earlier("BH1", "LOCA_GL")}},
                    {"fewer.ags", {Earlier("BH1", "LOCA_GL", 1), Earlier("BH1", "LOCA_GL", 2)}}};
  Compare();
  EXPECT_THAT(States(0), ElementsAre(Known, Known, New));
  EXPECT_THAT(States(1), ElementsAre(Known));
  ASSERT_THAT(report_.comparison->gone, SizeIs(1));
  ASSERT_THAT(report_.comparison->gone[0].findings, SizeIs(1));
  EXPECT_EQ(report_.comparison->gone[0].findings[0].line, 2);
}

TEST_F(BaselineTest, FilesOfOneNameAreComparedByTheirFolders) {
  AddFinding(AddFile(report_, "/new/x/a.ags"), "BH1", 2);
  AddFinding(AddFile(report_, "/new/y/a.ags"), "BH1", 2);
  earlier_.files = {{"C:\\old\\y\\a.ags", {Earlier("BH1", "LOCA_GL")}},
                    {"C:\\old\\x\\a.ags", {Earlier("BH2", "LOCA_GL")}}};
  Compare();
  EXPECT_THAT(States(0), ElementsAre(New));
  EXPECT_THAT(States(1), ElementsAre(Known));
}

TEST_F(BaselineTest, NothingIsGoneInFilesThatWereNotCheckedToTheEnd) {
  FileRecord& broken = AddFile(report_, "broken.ags");
  broken.isComplete = false;
  AddFinding(broken, "BH1", 2);
  earlier_.files = {{"absent.ags", {Earlier("BH1", "LOCA_GL")}},
                    {"clean.ags", {}},
                    {"broken.ags", {Earlier("BH1", "LOCA_GL"), Earlier("BH2", "LOCA_GL")}}};
  Compare();
  EXPECT_THAT(States(), ElementsAre(Known));
  EXPECT_THAT(report_.comparison->gone, IsEmpty());
  ASSERT_THAT(report_.comparison->notCompared, SizeIs(2));
  EXPECT_EQ(report_.comparison->notCompared[0].path, "broken.ags");
  EXPECT_THAT(report_.comparison->notCompared[0].findings, SizeIs(1));
  EXPECT_EQ(report_.comparison->notCompared[1].path, "absent.ags");
}

TEST_F(BaselineTest, WithoutFyiMessagesThoseOfTheEarlierRunAreNotGone) {
  AddFile(report_, "a.ags");
  report_.settings.suppressFyi = true;
  EarlierFinding fyi = Earlier("BH1", "LOCA_GL");
  fyi.severity = Severity::Fyi;
  earlier_.files = {{"a.ags", {fyi}}};
  Compare();
  EXPECT_THAT(report_.comparison->gone, IsEmpty());
}

TEST_F(BaselineTest, ManyFindingsThatAreAlikeCostLittle) {
  constexpr std::size_t count = 200000;
  FileRecord& file = AddFile(report_, "a.ags");
  for (std::size_t index = 0; index < count; ++index)
    AddFinding(file, "BH1", 2);
  earlier_.files = {{"a.ags", std::vector<EarlierFinding>(count, Earlier("BH1", "LOCA_GL"))}};
  const Stopwatch stopwatch;
  Compare();
  EXPECT_LT(stopwatch.Seconds(), QuickSeconds);
  EXPECT_EQ(report_.files[0].findings.back().state, Known);
  EXPECT_THAT(report_.comparison->gone, IsEmpty());
}

}  // namespace
}  // namespace quorvane::test
