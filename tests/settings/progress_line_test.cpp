#include "ui/progress_line.h"

#include <string>

#include <gtest/gtest.h>

#include "text/utf8.h"

namespace quorvane::test {
namespace {

TEST(ProgressTextTest, NamesTheFileAndItsPlaceInTheRun) {
  EXPECT_EQ(ProgressText("data/site a/one.ags", 3, 25), "Checking 3 of 25: one.ags");
  EXPECT_EQ(ProgressText("data\\one.ags", 1, 1), "Checking 1 of 1: one.ags");
}

TEST(ProgressTextTest, FitsIntoALineOfATerminal) {
  std::string name;
  for (int letter = 0; letter < 100; ++letter)
    name.append("\xC3\xA4");
  const std::string text = ProgressText(name, 1, 10000);
  EXPECT_EQ(CharacterCount(text), 79U);
  EXPECT_TRUE(text.ends_with("\xC3\xA4"));
}

TEST(ProgressTextTest, GivesTheTerminalNoOrders) {
  EXPECT_EQ(ProgressText("a\x1B[2J.ags", 1, 1), "Checking 1 of 1: a\\x1B[2J.ags");
}

TEST(ProgressLineTest, IsNotWrittenWhereThereIsNoTerminal) {
  testing::internal::CaptureStderr();
  {
    ProgressLine line;
    line.Show("a.ags", 1, 1);
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace quorvane::test
