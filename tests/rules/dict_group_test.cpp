#include "rules/dict_group.h"

#include <chrono>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/check_text.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Texts = std::vector<std::string>;

constexpr std::string_view Ags4Title = "Check of the DICT group";
constexpr std::string_view Ags3Title = "Check of the DICT group (Rule 21)";

Texts DictFindings(const CheckResult& result) {
  Texts findings = result.FindingsOf(Ags4Title);
  const Texts others = result.FindingsOf(Ags3Title);
  findings.insert(findings.end(), others.begin(), others.end());
  return findings;
}

/// A finding at a line; 0 for none.
std::string At(std::string_view label, int line, std::string_view text) {
  std::string finding = std::string(label) + ": ";
  if (line > 0) finding += "Line " + std::to_string(line) + " - ";
  return finding + std::string(text);
}

const Texts DictHeadings{"DICT_TYPE", "DICT_GRP",  "DICT_HDNG", "DICT_STAT",
                         "DICT_DESC", "DICT_UNIT", "DICT_EXMP"};

/// The line of the group line of a group that is added next.
template <typename File>
int NextGroupLine(const File& file) {
  return file.LineCount() + 2;
}

void AddDict(Ags3File& file, const std::vector<Texts>& rows, const Texts& headings = DictHeadings) {
  file.Group("DICT", headings, {}, rows);
}

void AddDict(Ags4File& file, const std::vector<Texts>& rows, const Texts& headings = DictHeadings) {
  file.Group("DICT", headings, Texts(headings.size()), Texts(headings.size(), "X"), rows);
}

/// Adds a group with one row of ones; returns the line of its group line.
int AddGroup(Ags3File& file, std::string_view name, const Texts& headings) {
  const int line = NextGroupLine(file);
  file.Group(name, headings, Texts(headings.size()), {Texts(headings.size(), "1")});
  return line;
}

int AddGroup(Ags4File& file, std::string_view name, const Texts& headings) {
  const int line = NextGroupLine(file);
  file.Group(name, headings, Texts(headings.size()), Texts(headings.size(), "X"),
             {Texts(headings.size(), "1")});
  return line;
}

Texts GroupRow(const std::string& group, const std::string& description = "Described") {
  return {"GROUP", group, "", "", description, "", ""};
}

Texts HeadingRow(const std::string& group, const std::string& heading,
                 const std::string& status = "COMMON", const std::string& description = "Described",
                 const std::string& example = "Example") {
  return {"HEADING", group, heading, status, description, "", example};
}

TEST(DictGroupCheck, StandardFilesHaveNeitherFindingNorSection) {
  for (const std::string& text : {MinimalAgs4().Text(), MinimalAgs3().Text()}) {
    const CheckResult result = CheckText(text);
    EXPECT_THAT(DictFindings(result), IsEmpty());
    EXPECT_FALSE(result.HasSection(Ags4Title) || result.HasSection(Ags3Title));
  }
}

TEST(DictGroupCheck, SectionBearsTheRuleInAgs3Only) {
  Ags3File ags3 = MinimalAgs3();
  AddGroup(ags3, "GEOL", {"HOLE_ID", "GEOL_TOP", "GEOL_BASE", "?GEOL_OWN"});
  EXPECT_TRUE(CheckText(ags3.Text()).HasSection(Ags3Title));
  Ags4File ags4 = MinimalAgs4();
  AddGroup(ags4, "LOCA", {"LOCA_ID", "LOCA_OWN"});
  EXPECT_TRUE(CheckText(ags4.Text()).HasSection(Ags4Title));
}

// No DICT group.

TEST(DictGroupCheck, Ags3ListsHeadingsOfStandardAndOwnGroupsInFileOrder) {
  Ags3File file = MinimalAgs3();
  AddGroup(file, "?SOAK", {"?HOLE_ID", "SOAK_TIME", "?SOAK_DPTH"});
  AddGroup(file, "GEOL", {"HOLE_ID", "GEOL_TOP", "GEOL_BASE", "?GEOL_OWN"});
  AddGroup(file, "?PITS", {"?HOLE_ID"});
  EXPECT_THAT(
      DictFindings(CheckText(file.Text())),
      ElementsAre("ERROR: The following non-standard groups and/or headings are in the file but "
                  "there is no DICT group that defines them (Rule 21).\r\n"
                  "  Non-Standard Groups:\r\n"
                  "    ?SOAK\r\n"
                  "    ?PITS\r\n"
                  "  Non-Standard Headings:\r\n"
                  "    ?SOAK.?HOLE_ID\r\n"
                  "    ?SOAK.?SOAK_TIME\r\n"
                  "    ?SOAK.?SOAK_DPTH\r\n"
                  "    GEOL.?GEOL_OWN\r\n"
                  "    ?PITS.?HOLE_ID"));
}

TEST(DictGroupCheck, Ags4ListsGroupsAndHeadingsOfStandardGroups) {
  Ags4File file = MinimalAgs4();
  AddGroup(file, "SOAK", {"LOCA_ID", "SOAK_TIME"});
  AddGroup(file, "LOCA", {"LOCA_ID", "LOCA_OWN", "?LOCA_MINE"});
  EXPECT_THAT(
      DictFindings(CheckText(file.Text())),
      ElementsAre("ERROR: The following non-standard groups and/or headings are in the file but "
                  "there is no DICT group that defines them.\r\n"
                  "  Non-Standard Groups:\r\n"
                  "    SOAK\r\n"
                  "  Non-Standard Headings:\r\n"
                  "    LOCA.LOCA_OWN\r\n"
                  "    LOCA.LOCA_MINE"));
}

TEST(DictGroupCheck, ListsThatWouldBeEmptyAreLeftOut) {
  const std::string start =
      "ERROR: The following non-standard groups and/or headings are in the file but there is no "
      "DICT group that defines them.\r\n";
  Ags4File groups = MinimalAgs4();
  AddGroup(groups, "SOAK", {"LOCA_ID"});
  EXPECT_THAT(DictFindings(CheckText(groups.Text())),
              ElementsAre(start + "  Non-Standard Groups:\r\n    SOAK"));
  Ags4File headings = MinimalAgs4();
  AddGroup(headings, "LOCA", {"LOCA_ID", "LOCA_OWN"});
  EXPECT_THAT(DictFindings(CheckText(headings.Text())),
              ElementsAre(start + "  Non-Standard Headings:\r\n    LOCA.LOCA_OWN"));
}

TEST(DictGroupCheck, EachEntryIsALineOfTheListing) {
  // An AGS 4 group with a question mark that the dictionary does not know is recorded twice.
  Ags4File file = MinimalAgs4();
  AddGroup(file, "?SOAK", {"LOCA_ID"});
  EXPECT_THAT(
      DictFindings(CheckText(file.Text())),
      ElementsAre("ERROR: The following non-standard groups and/or headings are in the file but "
                  "there is no DICT group that defines them.\r\n"
                  "  Non-Standard Groups:\r\n    ?SOAK\r\n    ?SOAK"));
}

// A DICT group that cannot be used.

TEST(DictGroupCheck, DictGroupWithoutRowsIsReported) {
  const std::string text =
      "ERROR: There are non-standard groups or headings in the file but the DICT group that define "
      "them has no data";
  Ags3File ags3 = MinimalAgs3();
  AddDict(ags3, {});
  AddGroup(ags3, "?SOAK", {"?HOLE_ID"});
  EXPECT_THAT(DictFindings(CheckText(ags3.Text())), ElementsAre(text + " (Rule 21)."));
  Ags4File ags4 = MinimalAgs4();
  AddDict(ags4, {});
  AddGroup(ags4, "LOCA", {"LOCA_ID", "LOCA_OWN"});
  EXPECT_THAT(DictFindings(CheckText(ags4.Text())), ElementsAre(text + "."));
}

TEST(DictGroupCheck, MissingKeyHeadingEndsTheCheck) {
  Ags4File file = MinimalAgs4();
  AddDict(file, {{"GROUP", "SOAK", ""}}, {"DICT_TYPE", "DICT_GRP", "DICT_HDNG"});
  AddGroup(file, "LOCA", {"LOCA_ID", "LOCA_OWN"});
  EXPECT_THAT(
      DictFindings(CheckText(file.Text())),
      ElementsAre("ERROR: There are non-standard groups or headings in the file but the DICT group "
                  "is missing the following key heading(s): DICT_STAT.  Cannot check."));
}

TEST(DictGroupCheck, MissingKeyHeadingsAreListedInTheirOrder) {
  Ags3File file = MinimalAgs3();
  AddDict(file, {{"Described"}}, {"DICT_DESC"});
  AddGroup(file, "?SOAK", {"?HOLE_ID"});
  EXPECT_THAT(
      DictFindings(CheckText(file.Text())),
      ElementsAre("ERROR: There are non-standard groups or headings in the file but the DICT group "
                  "is missing the following key heading(s): DICT_TYPE, DICT_GRP, DICT_HDNG, "
                  "DICT_STAT.  Cannot check."));
}

TEST(DictGroupCheck, MissingDescriptiveHeadingsSwitchTheirChecksOff) {
  Ags4File file = MinimalAgs4();
  AddDict(file, {{"HEADING", "LOCA", "LOCA_OWN", "OTHER", ""}},
          {"DICT_TYPE", "DICT_GRP", "DICT_HDNG", "DICT_STAT", "DICT_DESC"});
  const int line = AddGroup(file, "LOCA", {"LOCA_ID", "LOCA_OWN"});
  EXPECT_THAT(
      DictFindings(CheckText(file.Text())),
      ElementsAre("WARNING: There are non-standard groups or headings in the file but the DICT "
                  "group is missing the following descriptive heading(s): DICT_UNIT, DICT_EXMP.  "
                  "Without these data documentation of the non-standard groups/headings is "
                  "incomplete.",
                  At("WARNING", line,
                     "Heading 'LOCA_OWN' in group 'LOCA' has no description in the DICT group.")));
}

TEST(DictGroupCheck, ColumnsAreFoundInAnyOrderLetterCaseAndWithAMark) {
  Ags3File file = MinimalAgs3();
  AddDict(
      file, {{"Example", "SOAK", "GROUP", "", "", "Described", ""}},
      {"?DICT_EXMP", "DICT_GRP", "DICT_TYPE", "DICT_HDNG", "DICT_STAT", "DICT_DESC", "DICT_UNIT"});
  const int line = AddGroup(file, "?SOAK", {"?HOLE_ID"});
  EXPECT_THAT(DictFindings(CheckText(file.Text())),
              ElementsAre(At("ERROR", line,
                             "Heading 'HOLE_ID' in group 'SOAK' is not defined in the DICT group "
                             "(Rule 21).")));
}

// Definitions.

TEST(DictGroupCheck, CompleteDefinitionsAreNoFinding) {
  Ags3File ags3 = MinimalAgs3();
  AddDict(ags3, {GroupRow("SOAK"), HeadingRow("SOAK", "HOLE_ID", "KEY"),
                 HeadingRow("SOAK", "SOAK_TIME"), HeadingRow("HOLE", "HOLE_OWN")});
  AddGroup(ags3, "?SOAK", {"?HOLE_ID", "?SOAK_TIME"});
  AddGroup(ags3, "HOLE", {"HOLE_ID", "?HOLE_OWN"});
  EXPECT_THAT(DictFindings(CheckText(ags3.Text())), IsEmpty());
  Ags4File ags4 = MinimalAgs4();
  AddDict(ags4, {GroupRow("SOAK"), HeadingRow("SOAK", "LOCA_ID", "KEY"),
                 HeadingRow("LOCA", "LOCA_OWN", "OTHER")});
  AddGroup(ags4, "LOCA", {"LOCA_ID", "LOCA_OWN"});
  AddGroup(ags4, "SOAK", {"LOCA_ID"});
  EXPECT_THAT(DictFindings(CheckText(ags4.Text())), IsEmpty());
}

TEST(DictGroupCheck, GroupThatIsNotDefinedIsReportedWithoutItsHeadings) {
  Ags3File ags3 = MinimalAgs3();
  AddDict(ags3, {HeadingRow("SOAK", "HOLE_ID", "KEY")});
  const int line3 = AddGroup(ags3, "?SOAK", {"?HOLE_ID", "SOAK_TIME"});
  EXPECT_THAT(
      DictFindings(CheckText(ags3.Text())),
      ElementsAre(At("ERROR", line3, "Group SOAK not defined in the DICT group (Rule 21).")));
  Ags4File ags4 = MinimalAgs4();
  AddDict(ags4, {GroupRow("PITS")});
  const int line4 = AddGroup(ags4, "SOAK", {"LOCA_ID"});
  EXPECT_THAT(DictFindings(CheckText(ags4.Text())),
              ElementsAre(At("ERROR", line4, "Group SOAK not defined in the DICT group.")));
}

TEST(DictGroupCheck, GroupsAreDefinedInAnyLetterCaseOfTheTypeButByTheirExactName) {
  for (const std::string type : {"group", "Group", "GROUP"}) {
    Ags3File file = MinimalAgs3();
    AddDict(file,
            {{type, "SOAK", "", "", "Described", "", ""}, HeadingRow("SOAK", "HOLE_ID", "KEY")});
    AddGroup(file, "?SOAK", {"?HOLE_ID"});
    EXPECT_THAT(DictFindings(CheckText(file.Text())), IsEmpty()) << type;
  }
  for (const std::string name : {"Soak", "?SOAK", "SOAKS"}) {
    Ags3File file = MinimalAgs3();
    AddDict(file, {GroupRow(name), HeadingRow("SOAK", "HOLE_ID", "KEY")});
    AddGroup(file, "?SOAK", {"?HOLE_ID"});
    EXPECT_TRUE(CheckText(file.Text()).HasText("Group SOAK not defined in the DICT group")) << name;
  }
}

TEST(DictGroupCheck, GroupWithoutDescriptionIsAWarning) {
  Ags3File file = MinimalAgs3();
  AddDict(file, {GroupRow("SOAK", ""), HeadingRow("SOAK", "HOLE_ID", "KEY")});
  const int line = AddGroup(file, "?SOAK", {"?HOLE_ID"});
  EXPECT_THAT(DictFindings(CheckText(file.Text())),
              ElementsAre(At("WARNING", line, "Group SOAK has no description in the DICT group.")));
}

TEST(DictGroupCheck, HeadingWithoutMarkIsReportedAndStillLookedFor) {
  Ags3File file = MinimalAgs3();
  AddDict(file, {GroupRow("SOAK", ""), HeadingRow("SOAK", "HOLE_ID", "KEY")});
  const int line = AddGroup(file, "?SOAK", {"HOLE_ID", "SOAK_TIME"});
  EXPECT_THAT(
      DictFindings(CheckText(file.Text())),
      ElementsAre(
          At("ERROR", line,
             "Field name HOLE_ID in non-standard group SOAK is missing the leading '?' (Rule 22)"),
          At("ERROR", line,
             "Field name SOAK_TIME in non-standard group SOAK is missing the leading '?' (Rule "
             "22)"),
          At("WARNING", line, "Group SOAK has no description in the DICT group."),
          At("ERROR", line,
             "Heading 'SOAK_TIME' in group 'SOAK' is not defined in the DICT group (Rule 21).")));
}

TEST(DictGroupCheck, HeadingsOfStandardGroupsMustBeDefined) {
  Ags3File ags3 = MinimalAgs3();
  AddDict(ags3, {HeadingRow("GEOL", "GEOL_own"),
                 HeadingRow("HOLE", "GEOL_OWN"),
                 {"GROUP", "GEOL", "GEOL_OWN", "", "", "", ""}});
  const int line3 = AddGroup(ags3, "GEOL", {"HOLE_ID", "GEOL_TOP", "GEOL_BASE", "?GEOL_OWN"});
  EXPECT_THAT(DictFindings(CheckText(ags3.Text())),
              ElementsAre(At("ERROR", line3,
                             "Heading 'GEOL_OWN' in group 'GEOL' is not defined in the DICT group "
                             "(Rule 21).")));
  Ags4File ags4 = MinimalAgs4();
  AddDict(ags4, {HeadingRow("LOCA", "LOCA_OTHR")});
  const int line4 = AddGroup(ags4, "LOCA", {"LOCA_ID", "LOCA_OWN"});
  EXPECT_THAT(
      DictFindings(CheckText(ags4.Text())),
      ElementsAre(At("ERROR", line4,
                     "Heading 'LOCA_OWN' in group 'LOCA' is not defined in the DICT group.")));
}

TEST(DictGroupCheck, Ags4HeadingsOfOwnGroupsMustBeDefined) {
  Ags4File file = MinimalAgs4();
  AddDict(file, {GroupRow("SOAK"), HeadingRow("SOAK", "LOCA_ID", "KEY")});
  const int line = AddGroup(file, "SOAK", {"LOCA_ID", "SOAK_TIME"});
  EXPECT_THAT(
      DictFindings(CheckText(file.Text())),
      ElementsAre(At("ERROR", line,
                     "Heading 'SOAK_TIME' in group 'SOAK' is not defined in the DICT group.")));
}

TEST(DictGroupCheck, EmptyValuesOfAHeadingRowAreReportedInTheirOrder) {
  Ags4File ags4 = MinimalAgs4();
  AddDict(ags4, {{"heading", "LOCA", "LOCA_OWN", "", "", "", ""}});
  const int line4 = AddGroup(ags4, "LOCA", {"LOCA_ID", "LOCA_OWN"});
  EXPECT_THAT(
      DictFindings(CheckText(ags4.Text())),
      ElementsAre(At("ERROR", line4,
                     "Heading 'LOCA_OWN' in group 'LOCA' has no heading status (KEY or COMMON) in "
                     "the DICT group."),
                  At("WARNING", line4,
                     "Heading 'LOCA_OWN' in group 'LOCA' has no description in the DICT group."),
                  At("FYI", line4,
                     "Heading 'LOCA_OWN' in group 'LOCA' has no example in the DICT group.")));
  Ags3File ags3 = MinimalAgs3();
  AddDict(ags3, {GroupRow("SOAK"), HeadingRow("SOAK", "HOLE_ID", "", "", "")});
  const int line3 = AddGroup(ags3, "?SOAK", {"?HOLE_ID"});
  EXPECT_THAT(
      DictFindings(CheckText(ags3.Text())),
      ElementsAre(
          At("ERROR", line3,
             "Heading 'HOLE_ID' in group 'SOAK' has no heading status (KEY or COMMON) in "
             "the DICT group."),
          At("WARNING", line3,
             "Heading 'HOLE_ID' in group 'SOAK' has no description in the DICT group."),
          At("FYI", line3, "Heading 'HOLE_ID' in group 'SOAK' has no example in the DICT group.")));
}

TEST(DictGroupCheck, FirstOfTwoDefinitionsCounts) {
  Ags3File file = MinimalAgs3();
  AddDict(file, {GroupRow("SOAK"), GroupRow("SOAK", ""), HeadingRow("SOAK", "HOLE_ID", "KEY"),
                 HeadingRow("SOAK", "HOLE_ID", "", "", ""), HeadingRow("GEOL", "GEOL_OWN", ""),
                 HeadingRow("GEOL", "GEOL_OWN")});
  AddGroup(file, "?SOAK", {"?HOLE_ID"});
  const int line = AddGroup(file, "GEOL", {"HOLE_ID", "GEOL_TOP", "GEOL_BASE", "?GEOL_OWN"});
  EXPECT_THAT(DictFindings(CheckText(file.Text())),
              ElementsAre(At("ERROR", line,
                             "Heading 'GEOL_OWN' in group 'GEOL' has no heading status (KEY or "
                             "COMMON) in the DICT group.")));
}

TEST(DictGroupCheck, HeadingsOfStandardGroupsComeBeforeThoseOfOwnGroups) {
  Ags3File file = MinimalAgs3();
  AddDict(file, {GroupRow("SOAK")});
  const int soak = AddGroup(file, "?SOAK", {"?HOLE_ID"});
  const int geol = AddGroup(file, "GEOL", {"HOLE_ID", "GEOL_TOP", "GEOL_BASE", "?GEOL_OWN"});
  EXPECT_THAT(
      DictFindings(CheckText(file.Text())),
      ElementsAre(At("ERROR", geol,
                     "Heading 'GEOL_OWN' in group 'GEOL' is not defined in the DICT group (Rule "
                     "21)."),
                  At("ERROR", soak,
                     "Heading 'HOLE_ID' in group 'SOAK' is not defined in the DICT group (Rule "
                     "21).")));
}

TEST(DictGroupCheck, DefinitionsOfWhatTheFileDoesNotHoldAreNoFinding) {
  Ags3File file = MinimalAgs3();
  AddDict(file, {GroupRow("PITS", ""), HeadingRow("PITS", "PITS_NO", "", "", ""),
                 HeadingRow("HOLE", "HOLE_OTHR", "", "", ""), GroupRow("SOAK"),
                 HeadingRow("SOAK", "HOLE_ID", "KEY")});
  AddGroup(file, "?SOAK", {"?HOLE_ID"});
  const CheckResult result = CheckText(file.Text());
  EXPECT_THAT(DictFindings(result), IsEmpty());
  EXPECT_FALSE(result.HasText("not referenced in the data"));
}

TEST(DictGroupCheck, OnlyTheFirstDictGroupCounts) {
  Ags3File file = MinimalAgs3();
  AddDict(file, {GroupRow("PITS")});
  AddDict(file, {GroupRow("SOAK"), HeadingRow("SOAK", "HOLE_ID", "KEY")});
  AddGroup(file, "?SOAK", {"?HOLE_ID"});
  EXPECT_TRUE(
      CheckText(file.Text()).HasText("Group SOAK not defined in the DICT group (Rule 21)."));
}

TEST(DictGroupCheck, LargeDictGroupIsFast) {
  // 200,000 definitions, each of them looked up: minutes when rows are searched one by one.
  constexpr int count = 200000;
  Texts headings{"LOCA_ID"};
  std::vector<Texts> rows;
  for (int number = 0; number < count; ++number) {
    headings.push_back("LOCA_" + std::to_string(number));
    rows.push_back(HeadingRow("LOCA", headings.back(), "OTHER", number == 7 ? "" : "Described"));
  }
  Ags4File file = MinimalAgs4();
  AddGroup(file, "LOCA", headings);
  AddDict(file, rows);
  const auto start = std::chrono::steady_clock::now();
  const CheckResult result = CheckText(file.Text());
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  EXPECT_LT(seconds.count(), 30);
  EXPECT_EQ(DictFindings(result).size(), 1U);
}

}  // namespace
}  // namespace quorvane::test
