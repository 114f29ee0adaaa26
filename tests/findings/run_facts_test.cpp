#include "findings/run_facts.h"

#include <chrono>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::chrono::system_clock::time_point SecondsFromEpoch(double seconds) {
  return std::chrono::system_clock::time_point(
      std::chrono::duration_cast<std::chrono::system_clock::duration>(
          std::chrono::duration<double>(seconds)));
}

TEST(UtcText, HasEveryPartInItsWidth) {
  EXPECT_EQ(UtcText(SecondsFromEpoch(0)), "1970-01-01T00:00:00Z");
  EXPECT_EQ(UtcText(SecondsFromEpoch(951827696)), "2000-02-29T12:34:56Z");
  EXPECT_EQ(UtcText(SecondsFromEpoch(1767225599)), "2025-12-31T23:59:59Z");
}

TEST(UtcText, LeavesOutTheRestOfASecond) {
  EXPECT_EQ(UtcText(SecondsFromEpoch(59.75)), "1970-01-01T00:00:59Z");
  EXPECT_EQ(UtcText(SecondsFromEpoch(-0.25)), "1969-12-31T23:59:59Z");
}

TEST(StatusWord, TellsARunThatEndedEarlyFromOneWithErrors) {
  EXPECT_EQ(StatusWord(CheckStatus::Clean), "clean");
  EXPECT_EQ(StatusWord(CheckStatus::HasErrors), "errors");
  EXPECT_EQ(StatusWord(CheckStatus::NotDone), "not-done");
}

TEST(ListingNames, AreThoseOfTheOption) {
  EXPECT_THAT(ListingNames({true, true, true}), ElementsAre("groups", "lines", "severity"));
  EXPECT_THAT(ListingNames({false, true, false}), ElementsAre("lines"));
  EXPECT_THAT(ListingNames({false, false, false}), IsEmpty());
}

TEST(AgsVersionDigit, IsThatOfTheFormat) {
  EXPECT_EQ(AgsVersionDigit(AgsFormat::Ags3), "3");
  EXPECT_EQ(AgsVersionDigit(AgsFormat::Ags4), "4");
}

}  // namespace
}  // namespace quorvane::test
