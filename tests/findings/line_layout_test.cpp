#include "findings/line_layout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

using testing::SizeIs;

const GroupRecord Group{"LOCA", {{"LOCA_ID", "", "ID"}, {"LOCA_GL", "m", "2DP"}}};

TEST(LineLayoutTest, FieldsOfAnAgs4LineStandBehindItsLabel) {
  const std::vector<LaidOutCell> cells =
      LayOutLine(Group, AgsFormat::Ags4, R"("DATA","BH ""1""","1.00")");
  ASSERT_THAT(cells, SizeIs(2));
  EXPECT_EQ(cells[0].heading, "LOCA_ID");
  EXPECT_EQ(cells[0].value, "BH \"1\"");
  EXPECT_EQ(cells[1].unit, "m");
  EXPECT_EQ(cells[1].type, "2DP");
  EXPECT_EQ(cells[1].value, "1.00");
}

TEST(LineLayoutTest, AnAgs3LineHasNoLabel) {
  const std::vector<LaidOutCell> cells = LayOutLine(Group, AgsFormat::Ags3, R"("BH1","1.00")");
  ASSERT_THAT(cells, SizeIs(2));
  EXPECT_EQ(cells[0].value, "BH1");
  EXPECT_EQ(cells[1].value, "1.00");
}

TEST(LineLayoutTest, WhatIsMissingOrTooMuchIsThere) {
  const std::vector<LaidOutCell> tooFew = LayOutLine(Group, AgsFormat::Ags4, R"("DATA","BH1")");
  ASSERT_THAT(tooFew, SizeIs(2));
  EXPECT_TRUE(tooFew[0].isThere);
  EXPECT_FALSE(tooFew[1].isThere);
  EXPECT_EQ(tooFew[1].heading, "LOCA_GL");
  const std::vector<LaidOutCell> tooMany = LayOutLine(Group, AgsFormat::Ags4, "DATA,1,2,3");
  ASSERT_THAT(tooMany, SizeIs(3));
  EXPECT_EQ(tooMany[2].heading, "");
  EXPECT_EQ(tooMany[2].value, "3");
}

TEST(LineLayoutTest, HeadLinesAreToldFromRows) {
  for (const std::string_view line : {"\"HEADING\",\"LOCA_ID\"", "UNIT,m", "\"TYPE\",\"ID\""})
    EXPECT_TRUE(IsHeadLine(AgsFormat::Ags4, line)) << line;
  EXPECT_FALSE(IsHeadLine(AgsFormat::Ags4, "\"DATA\",\"HEADING\""));
  EXPECT_TRUE(IsHeadLine(AgsFormat::Ags3, "\"*LOCA_ID\",\"*LOCA_GL\""));
  EXPECT_TRUE(IsHeadLine(AgsFormat::Ags3, "\"<UNITS>\",\"m\""));
  EXPECT_FALSE(IsHeadLine(AgsFormat::Ags3, "\"BH1\",\"1.00\""));
}

}  // namespace
}  // namespace quorvane::test
