#include "run/stated_version.h"

#include <gtest/gtest.h>

#include "run/message_log_fixture.h"

namespace quorvane::test {
namespace {

/// The version that a file states; LF in the text stands for CR LF.
std::string VersionIn(std::string_view text) {
  return StatedVersion(TextOf(text));
}

const std::string Project =
    "\"GROUP\",\"PROJ\"\n\"HEADING\",\"PROJ_ID\",\"TRAN_AGS\"\n\"DATA\",\"P1\",\"4.0.3\"\n\n";
const std::string TranGroup = "\"GROUP\",\"TRAN\"\n";
const std::string TranHead =
    TranGroup +
    "\"HEADING\",\"TRAN_ISNO\",\"TRAN_AGS\"\n\"UNIT\",\"\",\"\"\n\"TYPE\",\"X\",\"X\"\n";

TEST(StatedVersion, StandsUnderTranAgsInTheFirstDataRow) {
  EXPECT_EQ(VersionIn(TranHead + "\"DATA\",\"1\",\"4.1\"\n"), "4.1");
  EXPECT_EQ(VersionIn(Project + TranHead + "\"DATA\",\"1\",\"4.1\"\n\"DATA\",\"2\",\"4.2\"\n"),
            "4.1");
}

TEST(StatedVersion, IsTrimmed) {
  EXPECT_EQ(VersionIn(TranHead + "\"DATA\",\"1\",\"  AGS 4.1 \"  \n"), "AGS 4.1");
}

TEST(StatedVersion, IsReadByTheRulesOfFields) {
  EXPECT_EQ(VersionIn(TranHead + "\"DATA\",\"a, \"\"b\"\", c\",\"4.2\"\n"), "4.2");
  EXPECT_EQ(VersionIn(TranHead + "\"DATA\",1,4.2\n"), "4.2");
}

TEST(StatedVersion, DoesNotDependOnLetterCaseOrBlanksOfNames) {
  EXPECT_EQ(VersionIn("\"Group\",\" Tran \"\n\"heading\",\" tran_ags \"\n\"data\",\"4.1\"\n"),
            "4.1");
}

TEST(StatedVersion, IsEmptyWhereTheGroupStatesNone) {
  EXPECT_EQ(VersionIn(""), "");
  EXPECT_EQ(VersionIn(Project), "") << "no TRAN group";
  EXPECT_EQ(VersionIn(TranGroup), "");
  EXPECT_EQ(VersionIn(TranHead), "") << "no data row";
  EXPECT_EQ(VersionIn(TranHead + "\"DATA\",\"1\"\n"), "") << "a short row";
  EXPECT_EQ(VersionIn(TranHead + "\"DATA\",\"1\",\"\"\n"), "");
  EXPECT_EQ(VersionIn(TranGroup + "\"HEADING\",\"TRAN_ISNO\"\n\"DATA\",\"4.1\"\n"), "");
  EXPECT_EQ(VersionIn(TranGroup + "\"DATA\",\"4.1\"\n"), "") << "no heading row";
}

TEST(StatedVersion, IsNotTakenFromAnotherGroup) {
  EXPECT_EQ(VersionIn(TranHead + Project), "");
  EXPECT_EQ(VersionIn(TranHead + "\n" + TranHead + "\"DATA\",\"1\",\"4.1\"\n"), "")
      << "nor from a second TRAN group";
  EXPECT_EQ(VersionIn("\"GROUP\",\"TRANS\"\n\"HEADING\",\"TRAN_AGS\"\n\"DATA\",\"4.1\"\n"), "");
}

TEST(StatedVersion, NeedsRowLabels) {
  EXPECT_EQ(VersionIn("\"**TRAN\"\n\"*TRAN_AGS\"\n\"4.1\"\n"), "");
}

}  // namespace
}  // namespace quorvane::test
