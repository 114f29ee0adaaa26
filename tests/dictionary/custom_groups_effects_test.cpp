// What the checks that come later make of the groups that a file defines for itself.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "dictionary/custom_dictionary.h"
#include "run/check_run.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

std::string WithLocations(const std::string& dict, const std::string& groups) {
  Ags4File file = MinimalAgs4();
  file.Group("LOCA", {"LOCA_ID", "LOCA_TYPE"}, {"", ""}, {"ID", "X"},
             {{"BH1", "CP"}, {"BH2", "CP"}});
  return file.Text() + "\n" + dict + "\n" + groups;
}

std::string HvanDict(const std::string& parent = "LOCA") {
  return Ags4Dict({DefinesGroup("HVAN", parent), DefinesHeading("HVAN", "LOCA_ID", "KEY"),
                   DefinesHeading("HVAN", "HVAN_DPTH", "KEY"),
                   DefinesHeading("HVAN", "HVAN_SU", "OTHER")});
}

std::string HvanGroup(const std::vector<std::string>& headings,
                      const std::vector<std::vector<std::string>>& rows) {
  Ags4File file;
  const std::vector<std::string> empty(headings.size());
  file.Group("HVAN", headings, empty, std::vector<std::string>(headings.size(), "X"), rows);
  return file.Text();
}

TEST(CustomGroupEffects, CompleteGroupIsNoFinding) {
  const CheckResult result = CheckText(WithLocations(
      HvanDict(), HvanGroup({"LOCA_ID", "HVAN_DPTH", "HVAN_SU"}, {{"BH1", "0.80", "46"}})));
  EXPECT_FALSE(result.HasText("HVAN"));
  EXPECT_THAT(result.notes, IsEmpty());
}

TEST(CustomGroupEffects, KeyHeadingsAreRequired) {
  const CheckResult result =
      CheckText(WithLocations(HvanDict(), HvanGroup({"LOCA_ID", "HVAN_SU"}, {{"BH1", "46"}})));
  EXPECT_TRUE(result.HasText("Group 'HVAN' is missing the follow key heading(s): HVAN_DPTH"));
}

TEST(CustomGroupEffects, RepeatedKeysAndMissingParentsAreFound) {
  const CheckResult result = CheckText(WithLocations(
      HvanDict(),
      HvanGroup({"LOCA_ID", "HVAN_DPTH"}, {{"BH1", "0.80"}, {"BH1", "0.80"}, {"BH9", "1.00"}})));
  EXPECT_TRUE(result.HasText("Group HVAN key 'BH1,0.80' is repeated in line "));
  EXPECT_TRUE(result.HasText(
      "Group HVAN key 'BH9' does not have an associated key in the parent group (LOCA)."));
}

TEST(CustomGroupEffects, ParentFoundByItsKeyIsCheckedToo) {
  const CheckResult result = CheckText(
      WithLocations(HvanDict(""), HvanGroup({"LOCA_ID", "HVAN_DPTH"}, {{"BH9", "0.80"}})));
  EXPECT_TRUE(result.HasText(
      "Group HVAN key 'BH9' does not have an associated key in the parent group (LOCA)."));
}

TEST(CustomGroupEffects, LocationKeyComesFirstWhereTheGroupHasIt) {
  const CheckResult result =
      CheckText(WithLocations(HvanDict(), HvanGroup({"HVAN_DPTH", "LOCA_ID"}, {{"0.80", "BH1"}})));
  EXPECT_TRUE(result.HasText("Group 'HVAN' does not have 'LOCA_ID' as the first field"));
  const std::string dict =
      Ags4Dict({DefinesGroup("HVAN", "PROJ"), DefinesHeading("HVAN", "HVAN_REF", "KEY")});
  const CheckResult other = CheckText(WithLocations(dict, HvanGroup({"HVAN_REF"}, {{"1"}})));
  EXPECT_FALSE(other.HasText("as the first field"));
}

TEST(CustomGroupEffects, HeadingsStandInTheOrderOfTheDictGroup) {
  const CheckResult result = CheckText(WithLocations(
      HvanDict(), HvanGroup({"LOCA_ID", "HVAN_SU", "HVAN_DPTH"}, {{"BH1", "46", "0.80"}})));
  EXPECT_TRUE(result.HasText("Headings are out of order in group 'HVAN'."));
}

std::string LocationsWithAddedHeading(const std::vector<std::string>& headings) {
  Ags4File file = MinimalAgs4();
  file.Group("LOCA", headings, std::vector<std::string>(headings.size()),
             std::vector<std::string>(headings.size(), "X"),
             {std::vector<std::string>(headings.size(), "1")});
  return file.Text() + "\n" + Ags4Dict({DefinesHeading("LOCA", "LOCA_CHKD", "OTHER")});
}

TEST(CustomGroupEffects, AddedHeadingsStandBehindThoseOfTheDictionary) {
  const std::string outOfOrder = "Headings are out of order in group 'LOCA'.";
  EXPECT_FALSE(CheckText(LocationsWithAddedHeading({"LOCA_ID", "LOCA_TYPE", "LOCA_CHKD"}))
                   .HasText(outOfOrder));
  EXPECT_TRUE(CheckText(LocationsWithAddedHeading({"LOCA_ID", "LOCA_CHKD", "LOCA_TYPE"}))
                  .HasText(outOfOrder));
  // A heading that neither the dictionary nor DICT knows may stand anywhere.
  EXPECT_FALSE(CheckText(LocationsWithAddedHeading({"LOCA_ID", "LOCA_OTHR", "LOCA_TYPE"}))
                   .HasText(outOfOrder));
}

TEST(CustomGroupEffects, KeyAddedToAStandardGroupIsRequiredAndTellsRowsApart) {
  Ags4File file = MinimalAgs4();
  file.Group("LOCA", {"LOCA_ID", "LOCA_PART"}, {"", ""}, {"ID", "X"},
             {{"BH1", "a"}, {"BH1", "b"}, {"BH1", "b"}});
  const std::string dict = "\n" + Ags4Dict({DefinesHeading("LOCA", "LOCA_PART", "KEY")});
  const CheckResult result = CheckText(file.Text() + dict);
  EXPECT_EQ(result.Count("is repeated in line"), 1);
  EXPECT_TRUE(result.HasText("Group LOCA key 'BH1,b' is repeated in line "));
  Ags4File without = MinimalAgs4();
  without.Group("LOCA", {"LOCA_ID"}, {""}, {"ID"}, {{"BH1"}});
  EXPECT_TRUE(CheckText(without.Text() + dict)
                  .HasText("Group 'LOCA' is missing the follow key heading(s): LOCA_PART"));
}

std::string SoakFile(const std::string& parent,
                     const std::vector<std::vector<std::string>>& soakRows) {
  Ags3File soak;
  soak.Group("?SOAK", {"?HOLE_ID", "?SAMP_TOP", "?SOAK_NO"}, {"", "m", ""}, soakRows);
  return MinimalAgs3().Text() + "\n" +
         Ags3Dict({DefinesGroup("SOAK", parent), DefinesHeading("SOAK", "HOLE_ID", "KEY"),
                   DefinesHeading("SOAK", "SAMP_TOP", "KEY"),
                   DefinesHeading("SOAK", "SOAK_NO", "KEY")}) +
         "\n" + soak.Text();
}

TEST(CustomGroupEffects, Ags3KeysThatOtherGroupsHoldAsNumbersAreComparedByValue) {
  const CheckResult result = CheckText(
      SoakFile("HOLE", {{"BH1", "1.50", "1"}, {"BH1", "1.5", "1"}, {"BH1", "1.5", "01"}}));
  EXPECT_EQ(result.Count("is repeated in line"), 1);
  EXPECT_TRUE(result.HasText("Group ?SOAK key 'BH1,1.5,1' is repeated in line "));
}

TEST(CustomGroupEffects, Ags3GroupIsKnownAndItsParentIsFound) {
  const CheckResult result = CheckText(SoakFile("", {{"BH1", "1.50", "1"}, {"BH7", "1.50", "1"}}));
  EXPECT_FALSE(result.HasText("is not an AGS group"));
  EXPECT_TRUE(result.HasText(
      "Group ?SOAK key 'BH7' does not have an associated key in the parent group (HOLE)."));
  EXPECT_THAT(result.notes,
              ElementsAre("test.ags: group ?SOAK names no parent group; HOLE was taken"));
}

CheckStatus RunOn(FakeServices& services, const std::vector<std::string>& texts) {
  std::string paths;
  for (std::size_t index = 0; index < texts.size(); ++index) {
    const std::string path = "file" + std::to_string(index + 1) + ".ags";
    services.disk.files[path] = ReplaceAll(texts[index], "\n", LineBreak);
    paths += path + "\r\n";
  }
  services.window.settings.filesToCheck = paths;
  CheckRun run(services.All());
  const CheckStatus status = run.ExecuteChecking();
  services.progressBox.shown = run.LogText();
  return status;
}

TEST(CustomGroupEffects, UserIsAskedForTheParentAndHeldToTheAnswer) {
  FakeServices services;
  services.parentChoice.answers["?SOAK"] = "DPRG";
  RunOn(services, {SoakFile("", {{"BH1", "1.50", "1"}})});
  ASSERT_EQ(services.parentChoice.questions.size(), 1U);
  EXPECT_EQ(services.parentChoice.questions.front().file, "file1.ags");
  EXPECT_THAT(services.progressBox.shown,
              HasSubstr("Group DPRG is the parent of group ?SOAK and is not found in the data "
                        "file."));
  EXPECT_THAT(services.messages.notes, IsEmpty());
}

TEST(CustomGroupEffects, FailureIsShownAndTheRunGoesOn) {
  FakeServices services;
  services.parentChoice.throwsForGroup = "?SOAK";
  const CheckStatus status =
      RunOn(services, {SoakFile("", {{"BH1", "1", "1"}, {"BH1", "1", "1"}})});
  EXPECT_EQ(status, CheckStatus::HasErrors);
  EXPECT_THAT(services.messages.boxes,
              ElementsAre("Quorvane Error: Error in BuildCustomGroupProps: the user pulled the "
                          "plug"));
  EXPECT_THAT(services.progressBox.shown, HasSubstr("Group ?SOAK key 'BH1,1,1' is repeated"));
}

TEST(CustomGroupEffects, GroupsDoNotCarryOverToTheNextFile) {
  FakeServices services;
  Ags3File undefined = MinimalAgs3();
  undefined.Group("?SOAK", {"?HOLE_ID"}, {""}, {{"BH1"}});
  RunOn(services, {SoakFile("HOLE", {{"BH1", "1.50", "1"}}), undefined.Text()});
  const std::string unknown = "group '?SOAK' is not an AGS group.";
  const std::size_t secondFile = services.progressBox.shown.find("file2.ags");
  ASSERT_NE(secondFile, std::string::npos);
  EXPECT_THAT(services.progressBox.shown.substr(0, secondFile), Not(HasSubstr(unknown)));
  EXPECT_THAT(services.progressBox.shown.substr(secondFile), HasSubstr(unknown));
}

TEST(CustomGroupEffects, GroupsOfASchemaOfTheUsersAreAskedForToo) {
  const std::string schema = Lines({"'Vexo Schema for AGS",
                                    "LOCA",
                                    "",
                                    "LOCA_ID",
                                    "",
                                    "PROJ",
                                    "",
                                    "PROJ.PROJ_ID",
                                    "",
                                    "PROJ",
                                    ",1",
                                    "PROJ_ID",
                                    "m",
                                    "ID",
                                    "LOCA",
                                    ",1",
                                    "LOCA_ID",
                                    "m",
                                    "ID",
                                    "DPRG",
                                    "LOCA,1",
                                    "LOCA_ID",
                                    "m",
                                    "ID",
                                    "HVAN",
                                    ",2",
                                    "LOCA_ID,HVAN_NO",
                                    ",m",
                                    "ID,X"});
  const std::string proj =
      "\"GROUP\",\"PROJ\"\n\"HEADING\",\"PROJ_ID\"\n\"UNIT\",\"\"\n"
      "\"TYPE\",\"ID\"\n\"DATA\",\"P1\"\n\n";
  EXPECT_THAT(
      CheckTextAgainst(schema, proj + Ags4Dict({DefinesHeading("LOCA", "LOCA_X", "")})).notes,
      Contains("test.ags: group HVAN names no parent group; LOCA was taken"));
  // Without a DICT group the dictionary stays as it is.
  EXPECT_THAT(CheckTextAgainst(schema, proj).notes, Not(Contains(HasSubstr("no parent group"))));
}

}  // namespace
}  // namespace quorvane::test
