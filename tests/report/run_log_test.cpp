#include "report/run_log.h"

#include <array>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "support/fake_services.h"

namespace quorvane::test {
namespace {

/// A log whose full text has a length.
void FillTo(RunLog& log, std::size_t length) {
  log.AppendProgress(std::string(length - log.FullText().size() - 2, 'x'));
}

TEST(RunLog, EndsEachTextWithALineBreak) {
  RecordingProgressBox box;
  RunLog log(box);
  log.AppendProgress("first");
  log.AppendProgress("");
  log.AppendProgress("second\r\n");
  EXPECT_EQ(log.FullText(), "first\r\n\r\nsecond\r\n\r\n");
  EXPECT_EQ(box.shown, log.FullText());
  EXPECT_FALSE(log.HasOverflowed());
  EXPECT_EQ(box.pendingMessageCalls, 0);
}

TEST(RunLog, OfTheLimitsLengthIsShownWhole) {
  RecordingProgressBox box;
  RunLog log(box);
  FillTo(log, 60000);
  ASSERT_EQ(log.FullText().size(), 60000U);
  EXPECT_FALSE(log.HasOverflowed());
  EXPECT_EQ(box.shown, log.FullText());
  EXPECT_EQ(box.pendingMessageCalls, 0);
}

TEST(RunLog, BeyondTheLimitEmptiesTheBoxAndLetsTheWindowBreathe) {
  RecordingProgressBox box;
  RunLog log(box);
  FillTo(log, 60001);
  EXPECT_TRUE(log.HasOverflowed());
  EXPECT_EQ(box.shown, "");
  EXPECT_EQ(box.pendingMessageCalls, 1);
}

TEST(RunLog, OnceBeyondTheLimitLeavesTheBoxEmptyAndLosesNothing) {
  RecordingProgressBox box;
  RunLog log(box);
  FillTo(log, 59990);
  log.AppendProgress("0123456789");
  log.AppendProgress("short");
  EXPECT_EQ(box.shown, "");
  EXPECT_TRUE(log.HasOverflowed());
  EXPECT_EQ(log.FullText().size(), 59990U + 12U + 7U);
  EXPECT_TRUE(log.FullText().ends_with("\r\n0123456789\r\nshort\r\n"));
}

/// A box that writes down what is done to it.
class CallsOfBox : public ProgressBox {
 public:
  void Insert(std::string_view text) override {
    calls += "insert " + std::to_string(text.size()) + ";";
  }
  void Clear() override { calls += "clear;"; }
  void ProcessPendingMessages() override { calls += "pending;"; }

  std::string calls;
};

TEST(RunLog, InsertsClearsAndWaitsInThatOrder) {
  CallsOfBox box;
  RunLog log(box);
  FillTo(log, 60001);
  log.AppendProgress("");
  EXPECT_EQ(box.calls, "insert 60001;clear;pending;insert 2;clear;pending;");
}

TEST(RunLog, WritesATextInPartsAsOne) {
  CallsOfBox box;
  RunLog log(box);
  const std::array<std::string_view, 3> parts{"one ", "", "text"};
  log.AppendProgress(parts);
  EXPECT_EQ(log.FullText(), "one text\r\n");
  EXPECT_EQ(box.calls, "insert 10;");
}

TEST(RunLog, KeepsItsTextWhenItGrowsByVeryMuch) {
  RecordingProgressBox box;
  RunLog log(box);
  std::string expected;
  for (const std::size_t length : {3U, 70000U, 5000000U, 1U, 4000000U}) {
    const std::string text(length, static_cast<char>('a' + length % 26));
    log.AppendProgress(text);
    expected.append(text).append("\r\n");
  }
  EXPECT_EQ(log.FullText(), expected);
}

}  // namespace
}  // namespace quorvane::test
