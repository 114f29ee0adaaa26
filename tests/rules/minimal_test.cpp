#include <gtest/gtest.h>

#include "support/check_text.h"

namespace quorvane::test {
namespace {

TEST(MinimalFiles, HaveNoFinding) {
  EXPECT_EQ(CheckText(MinimalAgs4().Text()).findings, std::vector<std::string>{});
  EXPECT_EQ(CheckText(MinimalAgs3().Text()).findings, std::vector<std::string>{});
}

TEST(MinimalFiles, AreCheckedToTheEnd) {
  EXPECT_EQ(CheckText(MinimalAgs4().Text()).status, 0);
  EXPECT_NE(CheckText(MinimalAgs3().Text()).log.find("File AGS Version: 3.1\r\n"),
            std::string::npos);
}

}  // namespace
}  // namespace quorvane::test
