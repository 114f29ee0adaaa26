#include "findings/line_fields.h"

#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

using testing::ElementsAre;

std::vector<std::string> Raw(std::string_view line) {
  std::vector<std::string> fields;
  for (const LineField& field : SplitLineFields(line))
    fields.emplace_back(field.raw);
  return fields;
}

TEST(SplitLineFieldsTest, CommasInQuotesBelongToTheirField) {
  EXPECT_THAT(Raw(R"("DATA","a,b","")"), ElementsAre(R"("DATA")", R"("a,b")", R"("")"));
}

TEST(SplitLineFieldsTest, AnEmptyLineIsOneEmptyField) {
  EXPECT_THAT(Raw(""), ElementsAre(""));
}

TEST(SplitLineFieldsTest, AQuoteThatIsNotClosedTakesTheRestIn) {
  EXPECT_THAT(Raw(R"("a","b,c)"), ElementsAre(R"("a")", R"("b,c)"));
}

TEST(SplitLineFieldsTest, ACommaAtTheEndBeginsAnEmptyField) {
  EXPECT_THAT(Raw("a,b,"), ElementsAre("a", "b", ""));
}

TEST(SplitLineFieldsTest, TellsWhereFieldsStart) {
  const std::vector<LineField> fields = SplitLineFields(R"("DATA" ,"x")");
  ASSERT_EQ(fields.size(), 2U);
  EXPECT_EQ(fields[1].start, 8U);
}

TEST(FieldValueTest, IsWithoutQuotesAndBlanksAround) {
  EXPECT_EQ(FieldValue(R"( "a ""b"" " )"), R"(a "b" )");
  EXPECT_EQ(FieldValue(" plain "), "plain");
  EXPECT_EQ(FieldValue(R"("open)"), "open");
  EXPECT_EQ(FieldValue(R"(")"), "");
}

TEST(FieldColumnTest, CountsCharacters) {
  const std::string_view line =
      "\"DATA\",\"Stra\xC3\x9F"
      "e\",\"x\"";
  EXPECT_EQ(FieldColumn(line, 1), 1U);
  EXPECT_EQ(FieldColumn(line, 2), 8U);
  EXPECT_EQ(FieldColumn(line, 3), 17U);
  EXPECT_EQ(FieldColumn(line, 4), 0U);
}

}  // namespace
}  // namespace quorvane::test
