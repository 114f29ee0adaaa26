#include "run/environment.h"

#include <gtest/gtest.h>

#include "support/fake_services.h"

namespace quorvane::test {
namespace {

TEST(Environment, TitleLineNamesProgramUserAndComputer) {
  EXPECT_EQ(TitleLine(FixedEnvironment()),
            "Quorvane for AGS Versions 3 and 4, Version 10.00.01.07, running in environment tester "
            "on bench");
}

TEST(Environment, AboutTextHasTheSamePiecesAndTheTime) {
  EXPECT_EQ(AboutText(FixedEnvironment()),
            "Quorvane\r\nfor AGS Versions 3 and 4\r\nVersion 10.00.01.07\r\n"
            "running in environment tester on bench\r\nDate/Time: 01/02/26 03:04:05");
}

}  // namespace
}  // namespace quorvane::test
