#include "run/structure_rules.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "dictionary/dictionary_store.h"
#include "run/message_log_fixture.h"
#include "run/row_order.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view Schema =
    "'Vexo Schema for AGS\nLOCA\n\nLOCA_ID\n\nPROJ\n\nPROJ.PROJ_ID\n\n"
    "PROJ\n,1\nPROJ_ID,PROJ_NAME\nx,x\nID,X\n"
    "LOCA\n,1\nLOCA_ID,LOCA_GL\nx,m\nID,2DP\n"
    "SAMP\nLOCA,2\nLOCA_ID,SAMP_TOP,SAMP_REM\nx,m,x\nID,2DP,X\n";

AgsDictionary DictionaryOf(AgsFormat format) {
  MemoryDisk disk;
  disk.files["/program/ags4 dict.gas"] = Schema;
  return BuildAgsDictionary(disk, {format, false, {}}, "/program");
}

/// A file whose structure is read under the rules.
class ParsedFile {
 public:
  ParsedFile(AgsFormat format, std::string_view text)
      : text_(TextOf(text)),
        logged_(format),
        file_(text_, format, DictionaryOf(format), logged_.log) {
    if (format == AgsFormat::Ags4) ConvertAgs4Rows(text_, logged_.log);
    ParseStructure(file_);
  }

  std::vector<std::string> Findings() const { return logged_.Findings(); }
  const std::vector<std::string>& Sections() const { return logged_.log.Sections(); }
  const CheckedFile& File() const { return file_; }
  const GroupTable& Table() const { return file_.table; }

 private:
  FileText text_;
  LoggedFile logged_;
  CheckedFile file_;
};

ParsedFile ParseAgs3(std::string_view text) {
  return {AgsFormat::Ags3, text};
}
ParsedFile ParseAgs4(std::string_view text) {
  return {AgsFormat::Ags4, text};
}

TEST(StructureRules, CloseOneSectionWhenThereAreFindings) {
  const ParsedFile sound = ParseAgs3("\"**PROJ\"\n\"*PROJ_ID\"\n\"<UNITS>\"\n\"P1\"\n");
  EXPECT_THAT(sound.Findings(), IsEmpty());
  EXPECT_THAT(sound.Sections(), IsEmpty());
  const ParsedFile unsound = ParseAgs3("\"**PROJ\"\n\"*PROJ_ID\"\n\"<UNITS>\"\n");
  EXPECT_THAT(unsound.Sections(), ElementsAre("Parsing Structure and Data"));
}

TEST(StructureRules, GroupsAreKeptUnderTheirCorrectedNamesAndKnown) {
  const ParsedFile parsed = ParseAgs3("\"**proj\"\n\"*PROJ_ID\"\n\"<UNITS>\"\n\"P1\"\n");
  EXPECT_THAT(parsed.Findings(),
              ElementsAre("ERROR: Line 1 - Group name proj must be composed of uppercase "
                          "characters (Rule 22)"));
  ASSERT_EQ(parsed.Table().GroupCount(), 1);
  EXPECT_EQ(parsed.Table().At(1).name, "PROJ");
  EXPECT_EQ(parsed.Table().At(1).dictionaryIndex, parsed.File().dictionary.FindDictGroup("PROJ"));
  EXPECT_EQ(parsed.File().singletons.proj, 1);
}

TEST(StructureRules, HeadingsAreKeptUnderTheirCorrectedNames) {
  const ParsedFile parsed = ParseAgs3(
      "\"**HOLE\"\n\"*HOLE_ID\",\"*hole_gl\",\"*HOLE_GL\"\n\"<UNITS>\",\"m\",\"m\"\n"
      "\"BH1\",\"1\",\"2\"\n");
  EXPECT_THAT(parsed.Findings(),
              ElementsAre("ERROR: Line 2 - Heading 'hole_gl' in Group 'HOLE' must be composed of "
                          "uppercase characters (Rule 23)",
                          "ERROR: Line 2 - Field 'HOLE_GL' is repeated."));
  EXPECT_EQ(parsed.Table().At(1).HeadingAt(2).name, "HOLE_GL");
}

TEST(StructureRules, AHeadingIsLookedUpWhenItIsSoundAndItsGroupKnown) {
  EXPECT_THAT(ParseAgs3("\"**HOLE\"\n\"*HOLE_ID\",\"*HOLE_XXX\"\n\"<UNITS>\",\"\"\n\"BH1\",\"1\"\n")
                  .Findings(),
              ElementsAre("ERROR: Line 2 - 'HOLE_XXX' in group 'HOLE' is not an AGS heading "
                          "(Rule 5)."));
}

TEST(StructureRules, AnUnsoundHeadingIsNotLookedUp) {
  EXPECT_THAT(ParseAgs3("\"**HOLE\"\n\"*HOLE_ID\",\"*hole_xxx\"\n\"<UNITS>\",\"\"\n\"BH1\",\"1\"\n")
                  .Findings(),
              ElementsAre("ERROR: Line 2 - Heading 'hole_xxx' in Group 'HOLE' must be composed of "
                          "uppercase characters (Rule 23)"));
}

TEST(StructureRules, HeadingsOfAnUnknownGroupAreNotLookedUp) {
  EXPECT_THAT(ParseAgs3("\"**XXXX\"\n\"*HOLE_ID\",\"*XXXX_A\"\n\"<UNITS>\",\"\"\n\"BH1\",\"1\"\n")
                  .Findings(),
              ElementsAre("ERROR: Line 1 - group 'XXXX' is not an AGS group. (Rule 5)."));
}

TEST(StructureRules, UnknownAgs4HeadingsAreLeftToLaterChecks) {
  const ParsedFile parsed = ParseAgs4(
      "\"GROUP\",\"LOCA\"\n\"HEADING\",\"LOCA_ID\",\"LOCA_XXX\"\n\"UNIT\",\"\",\"\"\n"
      "\"TYPE\",\"ID\",\"X\"\n\"DATA\",\"BH1\",\"1\"\n");
  EXPECT_THAT(parsed.Findings(), IsEmpty());
  ASSERT_EQ(parsed.File().NonStandardHeadingList.size(), 1U);
  EXPECT_EQ(parsed.File().NonStandardHeadingList.front().heading, "LOCA_XXX");
}

TEST(StructureRules, MissingKeyHeadingsAreReportedWithTheFirstDataRow) {
  const std::string headers =
      "\"GROUP\",\"SAMP\"\n\"HEADING\",\"LOCA_ID\"\n\"UNIT\",\"\"\n\"TYPE\",\"ID\"\n";
  EXPECT_THAT(ParseAgs4(headers + "\"DATA\",\"BH1\"\n\"DATA\",\"BH2\"\n").Findings(),
              ElementsAre("ERROR: Line 2 - Group 'SAMP' is missing the follow key heading(s): "
                          "SAMP_TOP"));
  EXPECT_THAT(ParseAgs4(headers).Findings(),
              ElementsAre("ERROR: Line 1 - No data found in the SAMP group (Rule 2)."));
}

TEST(StructureRules, AGroupWithoutDataHasItsHeadersAndKeysAllTheSame) {
  const ParsedFile parsed = ParseAgs4(
      "\"GROUP\",\"SAMP\"\n\"HEADING\",\"LOCA_ID\",\"SAMP_REM\",\"SAMP_TOP\"\n"
      "\"UNIT\",\"\",\"\",\"m\"\n\"TYPE\",\"ID\",\"X\",\"2DP\"\n");
  const Group& group = parsed.Table().At(1);
  EXPECT_EQ(group.HeadingAt(3).unit, "m");
  EXPECT_EQ(group.HeadingAt(3).type, "2DP");
  EXPECT_THAT(group.keyColumns, ElementsAre(1, 3));
  EXPECT_TRUE(group.isKeyed);
  EXPECT_EQ(group.rowCount, 0);
}

TEST(StructureRules, AnEmptyGroupIsReportedBeforeWhatIsWrongWithTheNextGroupLine) {
  EXPECT_THAT(ParseAgs3("\"**HOLE\"\n\"*HOLE_ID\"\n\"**geol\"\n\"*HOLE_ID\"\n").Findings(),
              ElementsAre("FYI: Line 1 - No data found in the HOLE group.",
                          "ERROR: Line 3 - Group name geol must be composed of uppercase "
                          "characters (Rule 22)",
                          "FYI: Line 3 - No data found in the GEOL group."));
}

TEST(StructureRules, HeadingPrefixesAreDecidedWhenTheLastLineWasRead) {
  // ZZZZ is no group here; MONP is one further down.
  EXPECT_THAT(ParseAgs3("\"**HOLE\"\n\"*HOLE_ID\",\"*?ZZZZ_A\",\"*?TTTT_B\"\n"
                        "\"<UNITS>\",\"\",\"\"\n\"BH1\",\"x\",\"y\"\n\n"
                        "\"**?TTTT\"\n\"*?TTTT_B\"\n\"<UNITS>\"\n")
                  .Findings(),
              ElementsAre("ERROR: Line 6 - group '?TTTT' is not an AGS group. (Rule 5).",
                          "FYI: Line 6 - No data found in the ?TTTT group.",
                          "ERROR: Line 2 - Heading 'ZZZZ_A' in Group 'HOLE' must start with the "
                          "group name or that of another group (Rule 23)"));
}

TEST(StructureRules, ReferenceGroupsOfTheDictionaryTakeNoUnits) {
  EXPECT_THAT(ParseAgs3("\"**UNIT\"\n\"*UNIT_UNIT\",\"*UNIT_DESC\"\n\"m\",\"metre\"\n").Findings(),
              IsEmpty());
  EXPECT_THAT(ParseAgs3("\"**PROJ\"\n\"*PROJ_ID\"\n\"P1\"\n").Findings(),
              ElementsAre("ERROR: Line 3 - <UNITS> line missing for group 'PROJ' (Rule 18)"));
}

TEST(StructureRules, AFileWithoutAnyLineHasNoGroups) {
  const ParsedFile parsed = ParseAgs3("");
  EXPECT_EQ(parsed.Table().GroupCount(), 0);
  EXPECT_THAT(parsed.Findings(), IsEmpty());
}

}  // namespace
}  // namespace quorvane::test
