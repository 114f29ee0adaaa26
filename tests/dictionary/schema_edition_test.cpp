#include "dictionary/schema_edition.h"

#include <string>

#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

/// The number of an edition that was looked for; "none" where there was none.
std::string NumberOf(const SchemaEdition* edition) {
  return edition == nullptr ? "none" : std::string(edition->edition);
}

std::string Stated(std::string_view version) {
  return NumberOf(FindStatedEdition(version));
}

TEST(FindSchemaEdition, FindsEachByItsExactNumber) {
  for (const SchemaEdition& edition : SchemaEditions)
    EXPECT_EQ(FindSchemaEdition(edition.edition), &edition);
  for (const std::string_view other : {"", "4", "4.0", "4.1.0", " 4.1", "4.1.2", "auto"})
    EXPECT_EQ(NumberOf(FindSchemaEdition(other)), "none") << other;
}

TEST(FindStatedEdition, FindsEachByItsNumber) {
  for (const SchemaEdition& edition : SchemaEditions)
    EXPECT_EQ(Stated(edition.edition), edition.edition);
}

TEST(FindStatedEdition, PassesOverBlanksAndTheNameOfTheFormat) {
  EXPECT_EQ(Stated("  4.1.1 "), "4.1.1");
  EXPECT_EQ(Stated("AGS 4.1"), "4.1");
  EXPECT_EQ(Stated(" ags4.0.4"), "4.0.4");
  EXPECT_EQ(Stated("AGS  4"), "4.0.3");
}

TEST(FindStatedEdition, TakesTheLongestNumberWithWhichTheVersionBegins) {
  EXPECT_EQ(Stated("4.1.0"), "4.1");
  EXPECT_EQ(Stated("4.1.1.0"), "4.1.1");
  EXPECT_EQ(Stated("4.2.0"), "4.2");
  EXPECT_EQ(Stated("4.1.2"), "4.1") << "an issue that is not among them";
  EXPECT_EQ(Stated("4.0.4 (2017)"), "4.0.4");
  EXPECT_EQ(Stated("4.1-2020"), "4.1");
}

TEST(FindStatedEdition, TakesTheOldestForFourAlone) {
  for (const std::string_view version : {"4", "4.0", "4.0.0", "AGS4", "AGS 4.0"})
    EXPECT_EQ(Stated(version), "4.0.3") << version;
}

TEST(FindStatedEdition, DoesNotCutDigits) {
  EXPECT_EQ(Stated("4.10"), "none");
  EXPECT_EQ(Stated("4.0.31"), "none");
  EXPECT_EQ(Stated("4.1.12"), "4.1");
}

TEST(FindStatedEdition, GuessesNothing) {
  for (const std::string_view version : {"", "  ", "AGS", "3.1", "5", "4.3", "4.0.5", "40", "4.",
                                         "v4.1", "the 4.1 edition", "AGS4 4.1", ".0"})
    EXPECT_EQ(Stated(version), "none") << version;
}

TEST(EditionOfSchema, IsToldByTheFileName) {
  EXPECT_EQ(EditionOfSchema("/program/ags4 dict.gas"), "4.0.3");
  EXPECT_EQ(EditionOfSchema("C:\\Program Files\\AGS404 Dict.GAS"), "4.0.4");
  EXPECT_EQ(EditionOfSchema("ags41 dict.gas"), "4.1");
  EXPECT_EQ(EditionOfSchema("a/ags411 dict.gas"), "4.1.1");
  EXPECT_EQ(EditionOfSchema("a/ags42 dict.gas"), "4.2");
}

TEST(EditionOfSchema, IsUnknownForOtherFiles) {
  EXPECT_EQ(EditionOfSchema(""), "");
  EXPECT_EQ(EditionOfSchema("own.gas"), "");
  EXPECT_EQ(EditionOfSchema("ags4 dict.gas/own.gas"), "");
  EXPECT_EQ(EditionOfSchema("my ags4 dict.gas"), "");
}

}  // namespace
}  // namespace quorvane::test
