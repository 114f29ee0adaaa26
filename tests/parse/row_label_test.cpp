#include "parse/row_label.h"

#include <array>

#include <gtest/gtest.h>

#include "support/random_text.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

TEST(IsRowLabel, TakesALabelInAnyLetterCase) {
  EXPECT_TRUE(IsGroupRow(R"("GROUP","PROJ")"));
  EXPECT_TRUE(IsGroupRow(R"("group","PROJ")"));
  EXPECT_TRUE(IsHeadingRow(R"("Heading","PROJ_ID")"));
  EXPECT_TRUE(IsUnitRow(R"("UNIT","")"));
  EXPECT_TRUE(IsTypeRow(R"("TYPE","ID")"));
  EXPECT_TRUE(IsDataRow(R"("DATA","P1")"));
}

TEST(IsRowLabel, TakesALineOfTheLabelAlone) {
  EXPECT_TRUE(IsGroupRow(R"("GROUP")"));
  EXPECT_TRUE(IsDataRow(R"("DATA",)"));
}

TEST(IsRowLabel, WantsTheQuotedLabelAsFirstField) {
  EXPECT_FALSE(IsGroupRow(R"(GROUP,"PROJ")"));
  EXPECT_FALSE(IsGroupRow(R"( "GROUP","PROJ")"));
  EXPECT_FALSE(IsGroupRow(R"("GROUP" ,"PROJ")"));
  EXPECT_FALSE(IsGroupRow(R"("GROUPS","PROJ")"));
  EXPECT_FALSE(IsGroupRow(R"("GROUP)"));
  EXPECT_FALSE(IsGroupRow(""));
  EXPECT_FALSE(IsDataRow(R"("GROUP","DATA")"));
}

TEST(IsRowLabel, AgreesWithACommaPutBehindTheLine) {
  constexpr std::array<std::string_view, 8> pieces{"\"UNIT\"", "\"unit\"", "\"UNIT", "\"",
                                                   ",",        " ",        "UNIT",   "Unit"};
  RandomText random(91);
  for (int round = 0; round < 20000; ++round) {
    const std::string line = random.Joined(pieces, random.Below(4));
    EXPECT_EQ(IsUnitRow(line), UpperCase(line + ",").starts_with("\"UNIT\",")) << line;
  }
}

TEST(NameInGroupRow, IsTrimmedAndInUpperCase) {
  EXPECT_EQ(NameInGroupRow(R"("GROUP","PROJ")"), "PROJ");
  EXPECT_EQ(NameInGroupRow(R"("group"," Proj ","x")"), "PROJ");
  EXPECT_EQ(NameInGroupRow(R"("GROUP",PROJ)"), "PROJ") << "without its quotes";
}

TEST(NameInGroupRow, IsEmptyWhereThereIsNone) {
  EXPECT_EQ(NameInGroupRow(R"("GROUP")"), "");
  EXPECT_EQ(NameInGroupRow(R"("GROUP",)"), "");
  EXPECT_EQ(NameInGroupRow(R"("GROUP","  ","X")"), "");
}

TEST(IsGroupLine, BeginsWithTwoAsterisks) {
  EXPECT_TRUE(IsGroupLine(R"("**PROJ")"));
  EXPECT_TRUE(IsGroupLine("**PROJ"));
  EXPECT_TRUE(IsGroupLine("**"));
  EXPECT_FALSE(IsGroupLine(R"("*PROJ_ID")"));
  EXPECT_FALSE(IsGroupLine(R"( "**PROJ")"));
  EXPECT_FALSE(IsGroupLine(R"(""**PROJ")"));
  EXPECT_FALSE(IsGroupLine("*"));
  EXPECT_FALSE(IsGroupLine(""));
}

}  // namespace
}  // namespace quorvane::test
