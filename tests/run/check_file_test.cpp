#include "run/check_file.h"

#include <stdexcept>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "run/run_fixture.h"
#include "support/check_text.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class CheckFileTest : public RunTest {};

// The sequence of checks.

TEST(CheckSequence, OfAnAgs3FileIsFixed) {
  Ags3File file;
  file.Group("HOLE", {"HOLE_ID", "HOLE_TYPE", "HOLE_REM", "FILE_FSET"}, {"", "", "", ""},
             {{"BH1", "CP", "\t", "FS1"}, {"BH1", "CP", std::string(241, 'x'), ""}});
  file.Group("GEOL", {"HOLE_ID", "GEOL_TOP", "GEOL_BASE"}, {"", "m", "m"}, {{"BH2", "0", "1"}});
  file.Group("CNMT", {"HOLE_ID", "SAMP_TOP", "CNMT_TYPE"}, {"", "m", ""}, {{"BH1", "1", "PB"}});
  file.Group("?YYYY", {"?HOLE_ID"}, {""}, {{"BH1"}});
  EXPECT_THAT(CheckText(file.Text(), {}, "test.txt").sections,
              ElementsAre("File Name Check", "Checking Required Groups",
                          "Low/high bit ASCII characters (Rule 1)",
                          "Scanning Line Lengths (must be <=240 characters; Rules 12, 13, 18a)",
                          "Parsing Structure and Data", "Parent keys check (Rule 6c)",
                          "Duplicated keys check (Rule 6b)", "Check of the DICT group (Rule 21)",
                          "Abbreviations check (Rule 20)", "File codes check (Rule 24)",
                          "Units check (Rule 18b)", "Contaminant Codes Check (Rule 25)"));
}

TEST(CheckSequence, OfAnAgs4FileIsFixed) {
  Ags4File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_NAME"}, {"", ""}, {"ID", "X"}, {{"P1", ""}, {"", "Two"}});
  file.Group("TRAN", {"TRAN_ISNO", "TRAN_AGS"}, {"", ""}, {"X", "X"},
             {{"1", "4.0.3"}, {"2", "4.0.3"}});
  file.Group("UNIT", {"UNIT_UNIT", "UNIT_DESC"}, {"", ""}, {"X", "X"}, {{"kPa", "kilopascal"}});
  file.Group("ABBR", {"ABBR_HDNG", "ABBR_CODE", "ABBR_DESC"}, {"", "", ""}, {"X", "X", "X"},
             {{"LOCA_TYPE", "TP", "Trial pit"}});
  file.Group("LOCA", {"LOCA_ID", "LOCA_GL", "LOCA_TYPE", "FILE_FSET"}, {"", "m", "", ""},
             {"ID", "2DP", "PA", "X"}, {{"BH1", "1.00", "CP", "FS1"}, {"BH1", "1.00", "CP", ""}});
  file.Group("GEOL", {"LOCA_ID", "GEOL_TOP", "GEOL_BASE"}, {"", "m", "m"}, {"ID", "2DP", "2DP"},
             {{"BH2", "0", "1.00"}});
  file.Group("SAMP", {"LOCA_ID"}, {""}, {"ID"}, {});
  file.Group("YYYY", {"LOCA_ID"}, {""}, {"ID"}, {{"BH1"}});
  EXPECT_THAT(
      CheckText(file.Text(), {}, "test.txt").sections,
      ElementsAre("File Name Check", "Checking Required Groups", "Parsing Structure and Data",
                  "Checking Field Order", "Checking PROJ Group", "Checking Required Fields",
                  "Checking TRAN Group", "Parent keys check ", "Duplicated keys check ",
                  "Check of the DICT group", "Abbreviations check ", "File codes check (Rule 24)",
                  "Units check", "TYPE check "));
}

/// An AGS 3 file whose value is not of its dictionary's type.
const std::string BadAgs3Value =
    "\"**GEOL\"\n\"*LOCA_ID\",\"*GEOL_TOP\"\n\"<UNITS>\",\"m\"\n\"BH1\",\"deep\"\n";

TEST_F(CheckFileTest, OfAgs3HasItsTypesCheckedAgainstANamedDictionaryOnly) {
  Put("test.ags", ReplaceAll(BadAgs3Value, "\n", LineBreak));
  Check("test.ags");
  EXPECT_THAT(run_.LogText(), Not(HasSubstr("TYPE check")));
  services_.window.settings.useCustomDictionary = true;
  services_.window.settings.customDictionary = "/program/ags4 dict.gas";
  Check("test.ags");
  EXPECT_THAT(run_.LogText(), HasSubstr("\r\nTYPE check    1 error or warning or informational "
                                        "message\r\n"));
  services_.window.settings.useCustomDictionary = false;
  Check("test.ags");
  EXPECT_THAT(run_.LogText(), Not(HasSubstr("TYPE check")));
}

TEST(CheckSequence, ContaminantCodesAreCheckedInAgs3Only) {
  const std::string rule = "(Rule 25)";
  Ags3File ags3 = MinimalAgs3();
  ags3.Group("CNMT", {"HOLE_ID", "CNMT_TYPE"}, {"", ""}, {{"BH1", "PB"}});
  EXPECT_TRUE(CheckText(ags3.Text()).HasText(rule));
  Ags4File ags4 = MinimalAgs4();
  ags4.Group("CNMT", {"LOCA_ID", "CNMT_TYPE"}, {"", ""}, {"ID", "X"}, {{"BH1", "PB"}});
  EXPECT_FALSE(CheckText(ags4.Text()).HasText(rule));
}

TEST(CheckSequence, CharactersAndLineLengthsAreCheckedInAgs3Only) {
  const std::string unclean = "\xB0" + std::string(300, 'x');
  const CheckResult ags3 = CheckText(Ags3WithProjectName(unclean));
  EXPECT_TRUE(ags3.Has("ERROR: Line 4 - character position 7"));
  EXPECT_TRUE(ags3.HasText(" characters"));
  const CheckResult ags4 = CheckText(ReplaceAll(MinimalAgs4().Text(), "Test project", unclean));
  EXPECT_FALSE(ags4.HasText("character"));
  EXPECT_EQ(ags4.status, 0) << ags4.log;
}

TEST(CheckSequence, LaterChecksRunWhateverEarlierOnesFound) {
  const CheckResult result =
      CheckText("\"**HOLE\"\n\"*HOLE_ID\"\n\"<UNITS>\"\n\"BH\t1\"\n\"BH\t1\"\n");
  EXPECT_TRUE(result.HasSection("Checking Required Groups"));
  EXPECT_TRUE(result.HasSection("Low/high bit ASCII characters (Rule 1)"));
  EXPECT_TRUE(result.HasSection("Duplicated keys check (Rule 6b)"));
}

TEST_F(CheckFileTest, DoesNotDependOnTheFilesBeforeIt) {
  Ags4File defining = MinimalAgs4();
  defining.Group(
      "DICT", {"DICT_TYPE", "DICT_GRP", "DICT_HDNG", "DICT_STAT", "DICT_DTYP", "DICT_DESC"},
      {"", "", "", "", "", ""}, {"PA", "X", "X", "PA", "PT", "X"},
      {{"GROUP", "YYYY", "", "", "", "Own"}, {"HEADING", "YYYY", "YYYY_ID", "KEY", "X", "Key"}});
  Ags4File user = MinimalAgs4();
  user.Group("YYYY", {"YYYY_ID"}, {""}, {"X"}, {{"1"}, {"1"}});
  const std::vector<std::string> contents{defining.Text(), user.Text(),
                                          CleanAgs3(),     Ags3WithTabs(30),
                                          "nothing",       "\"GROUP\",\"PROJ\"\r\nUNIT\r\nTYPE"};
  const auto textOfLast = [this](const std::string& files) {
    Check(files);
    const std::string& log = run_.LogText();
    return ReplaceAll(log.substr(log.find("\r\nFile:  last.ags")), " (2 of 2)", " (1 of 1)");
  };
  for (const std::string& last : contents) {
    if (last == "nothing") continue;
    Put("last.ags", last);
    const std::string alone = textOfLast("last.ags");
    for (const std::string& first : contents) {
      Put("first.ags", first);
      EXPECT_EQ(textOfLast("first.ags\nlast.ags"), alone);
    }
  }
}

// The version line.

std::string VersionLineOf(const std::string& log) {
  const std::size_t start = log.find("File AGS Version: ");
  if (start == std::string::npos) return "";
  return log.substr(start, log.find("SUMMARY:", start) - start);
}

TEST(VersionLine, HasWhatTheFileStates) {
  EXPECT_EQ(VersionLineOf(CheckText(MinimalAgs4().Text()).log), "File AGS Version: 4.0.3\r\n\r\n");
  EXPECT_EQ(VersionLineOf(CheckText(MinimalAgs3().Text()).log), "File AGS Version: 3.1\r\n\r\n");
  EXPECT_EQ(VersionLineOf(
                CheckText(ReplaceAll(MinimalAgs3().Text(), "\"3.1\"", "\"3.1 RTA (1.1)\"")).log),
            "File AGS Version: 3.1 RTA (1.1)\r\n\r\n");
}

TEST(VersionLine, HasTheFormatWhereTheFileStatesNothing) {
  EXPECT_EQ(VersionLineOf(CheckText("\"**HOLE\"\n\"*HOLE_ID\"\n\"<UNITS>\"\n\"BH1\"\n").log),
            "File AGS Version: 3\r\n\r\n");
  EXPECT_EQ(VersionLineOf(CheckText(ReplaceAll(MinimalAgs3().Text(), "\"3.1\"", "\"\"")).log),
            "File AGS Version: 3\r\n\r\n");
  EXPECT_EQ(VersionLineOf(CheckText(ReplaceAll(MinimalAgs4().Text(), "\"4.0.3\"", "\"\"")).log),
            "File AGS Version: 4\r\n\r\n");
}

TEST(VersionLine, IsNotWrittenForAFileThatCouldNotBeTakenIn) {
  EXPECT_EQ(VersionLineOf(CheckText("text\n" + MinimalAgs4().Text()).log), "");
  EXPECT_EQ(VersionLineOf(CheckText("nothing").log), "");
}

// The edition that an AGS 4 file is checked against.

CheckResult CheckWithEdition(std::string_view tranAgs, std::string_view edition) {
  CheckSettings settings;
  settings.edition = edition;
  return CheckText(
      ReplaceAll(MinimalAgs4().Text(), "\"4.0.3\"", "\"" + std::string(tranAgs) + "\""), settings);
}

TEST(EditionNote, NamesAnotherEditionThanTheFiles) {
  EXPECT_THAT(CheckWithEdition("4.1", "").notes,
              ElementsAre("test.ags: TRAN_AGS is \"4.1\", the file was checked against the schema "
                          "of edition 4.0.3"));
  EXPECT_THAT(CheckWithEdition("4.1", "4.2").notes,
              ElementsAre("test.ags: TRAN_AGS is \"4.1\", the file was checked against the schema "
                          "of edition 4.2"));
  EXPECT_THAT(CheckWithEdition("4.1", "4.1").notes, IsEmpty());
}

TEST(EditionNote, NamesTheEditionThatWasFoundOut) {
  EXPECT_THAT(CheckWithEdition("AGS 4.1.0", StatedEdition).notes,
              ElementsAre("test.ags: the file was checked against the schema of edition 4.1, as "
                          "TRAN_AGS says"));
  EXPECT_THAT(CheckWithEdition("4.0.3", StatedEdition).notes,
              ElementsAre("test.ags: the file was checked against the schema of edition 4.0.3, as "
                          "TRAN_AGS says"));
}

TEST(EditionNote, SaysWhereNoEditionCouldBeFoundOut) {
  for (const std::string_view tranAgs : {"4.9", "", "rubbish"}) {
    EXPECT_THAT(CheckWithEdition(tranAgs, StatedEdition).notes,
                ElementsAre("test.ags: TRAN_AGS names no edition that comes with the program, the "
                            "file was checked against the schema of edition 4.0.3"))
        << tranAgs;
  }
}

TEST(EditionNote, IsNotMadeForAgs3) {
  for (const std::string_view edition : {std::string_view("4.1"), StatedEdition}) {
    CheckSettings settings;
    settings.edition = edition;
    const CheckResult result = CheckText(MinimalAgs3().Text(), settings);
    EXPECT_THAT(result.notes, IsEmpty());
    EXPECT_EQ(result.log, CheckText(MinimalAgs3().Text()).log);
  }
}

// Files that cannot be checked, whole.

std::string BehindLegend(const std::string& log) {
  const std::string end = "descriptive data.\r\n";
  return log.substr(log.find(end) + end.size());
}

TEST(FailedIntake, OfANonAgsFileGivesTwoClosingLines) {
  const CheckResult result = CheckText("nothing\n");
  EXPECT_EQ(BehindLegend(result.log), "File is not an AGS 3 or 4 format file\r\n" + ClosingLines +
                                          "Could not continue with further checking.\r\n" +
                                          ClosingLines);
  EXPECT_THAT(result.notes, ElementsAre("test.ags: File is not an AGS 3 or 4 format file"));
  EXPECT_THAT(result.boxes, IsEmpty());
  EXPECT_EQ(result.status, 1);
}

TEST_F(CheckFileTest, ThatIsTooLargeGivesTwoClosingLines) {
  Put("test.ags", CleanAgs3());
  services_.disk.statedSizes["test.ags"] = 2147483647;
  EXPECT_EQ(Check("test.ags"), CheckStatus::HasErrors);
  EXPECT_EQ(BehindLegend(run_.LogText()),
            "File is too large for free Quorvane ( > 2GB ).\r\n" + ClosingLines +
                "Could not continue with further checking.\r\n" + ClosingLines);
  EXPECT_THAT(services_.messages.notes,
              ElementsAre("test.ags: File is too large for free Quorvane ( > 2GB )."));
}

TEST_F(CheckFileTest, ThatIsMissingIsNamed) {
  EXPECT_EQ(Check("missing.ags"), CheckStatus::HasErrors);
  EXPECT_EQ(BehindLegend(run_.LogText()),
            "File:  missing.ags (1 of 1)\r\nFile not found\r\n"
            "Could not continue with further checking.\r\n" +
                ClosingLines);
  EXPECT_THAT(services_.messages.notes, ElementsAre("missing.ags: File not found"));
  EXPECT_THAT(services_.messages.boxes, IsEmpty());
}

TEST_F(CheckFileTest, ThatIsAFolderIsNamedInTheSystemsWords) {
  services_.disk.obstacles["folder"] = {21, "Is a directory"};
  EXPECT_EQ(Check("folder"), CheckStatus::HasErrors);
  EXPECT_EQ(BehindLegend(run_.LogText()),
            "File:  folder (1 of 1)\r\nIs a directory\r\n"
            "Could not continue with further checking.\r\n" +
                ClosingLines);
  EXPECT_THAT(services_.messages.notes, ElementsAre("folder: Is a directory"));
}

TEST_F(CheckFileTest, ThatCannotBeReadIsNamedInTheSystemsWords) {
  Put("locked.ags", CleanAgs3());
  services_.disk.readFailures["locked.ags"] = {5, "Input/output error"};
  EXPECT_EQ(Check("locked.ags"), CheckStatus::HasErrors);
  EXPECT_EQ(BehindLegend(run_.LogText()),
            "File:  locked.ags (1 of 1)\r\nInput/output error\r\n"
            "Could not continue with further checking.\r\n" +
                ClosingLines);
  EXPECT_THAT(services_.messages.notes, ElementsAre("locked.ags: Input/output error"));
}

TEST(FailedIntake, ByRowLabelsGivesTheReportSoFar) {
  const std::string text =
      ReplaceAll("\"GROUP\",\"PROJ\"\n\"UNIT\",\"\"\n\"TYPE\",\"ID\"\n", "\n", LineBreak);
  const CheckResult result = CheckFiles({{"data", text}});
  EXPECT_EQ(
      BehindLegend(result.log),
      "File:  data (1 of 1)\r\nDate:  01/02/26 03:04:05\r\nSize:  " + std::to_string(text.size()) +
          " bytes\r\nNumber of Lines:  3\r\n\r\n"
          "SUMMARY:  2 total errors or warnings or informational messages\r\n"
          "\r\nRow Label Check   1 error or warning or informational message\r\n"
          "  ERROR: \r\nRow label 'UNIT' out of order, line 2 (Rule 2b)\r\n"
          "\r\nFile Name Check   1 error or warning or informational message\r\n"
          "  ERROR: File Name has no extension.  It must be \".AGS\".\r\n"
          "\r\n"
          "Could not continue with further checking.\r\n" +
          ClosingLines);
  EXPECT_THAT(result.notes, ElementsAre(StartsWith("data: ")));
  EXPECT_EQ(result.status, 1);
}

TEST(FailedIntake, ByRowOrderGivesTheReportSoFar) {
  const std::string text = ReplaceAll(
      "\"GROUP\",\"PROJ\"\n\"HEADING\",\"PROJ_ID\"\n\"UNIT\",\"\"\n\"TYPE\",\"ID\"\n"
      "\"DATA\",\"1\"\n\"GROUP\",\"TRAN\"\n",
      "\n", LineBreak);
  const CheckResult result = CheckFiles({{"data.ags", text}});
  EXPECT_EQ(BehindLegend(result.log),
            "File:  data.ags (1 of 1)\r\nDate:  01/02/26 03:04:05\r\nSize:  " +
                std::to_string(text.size()) +
                " bytes\r\nNumber of Lines:  6\r\n\r\n"
                "SUMMARY:  1 total error or warning or informational message\r\n"
                "\r\nFile Name Check   1 error or warning or informational message\r\n"
                "  ERROR: \"GROUP\",\"TRAN\"\r\n"
                "    Line out of order. Expected \"DATA\",\"...\r\n"
                "\r\n"
                "Could not continue with further checking.\r\n" +
                ClosingLines);
  EXPECT_THAT(result.notes, ElementsAre(StartsWith("data.ags: ")));
  EXPECT_EQ(result.status, 1);
}

TEST(CheckedFiles, AreNotNamedInNotes) {
  EXPECT_THAT(CheckText(MinimalAgs3().Text()).notes, IsEmpty());
  EXPECT_THAT(CheckText(Ags3WithTabs(3)).notes, IsEmpty());
}

// Unexpected failures.

TEST_F(CheckFileTest, WhoseIntakeFailsUnexpectedlyIsNamedWithTheReason) {
  Put("a.ags", CleanAgs3());
  services_.disk.throwsWhenRead = "a.ags";
  Check("a.ags");
  ASSERT_EQ(services_.messages.notes.size(), 1U);
  EXPECT_THAT(services_.messages.notes.front(), StartsWith("a.ags: "));
  EXPECT_NE(services_.messages.notes.front(), "a.ags: ") << "the reason is missing";
}

/// A window that fails once when a file's check asks for its settings.
class UnreliableWindow : public RecordingWindow {
 public:
  CheckSettings Settings() const override {
    if (++calls_ == 2) throw std::runtime_error("the controls are gone");
    return settings;
  }

 private:
  mutable int calls_ = 0;
};

TEST_F(CheckFileTest, ThatFailsUnexpectedlyEndsAndTheNextOneFollows) {
  Put("a.ags", CleanAgs3());
  Put("b.ags", CleanAgs3());
  UnreliableWindow window;
  window.settings.filesToCheck = "a.ags\nb.ags";
  CheckRun run(services_.With(window));
  EXPECT_EQ(run.ExecuteChecking(), CheckStatus::HasErrors);
  EXPECT_THAT(services_.messages.boxes,
              ElementsAre("Quorvane Error: Error in CheckAGSFile: the controls are gone"));
  EXPECT_THAT(services_.messages.kinds, ElementsAre(BoxKind::Critical));
  EXPECT_THAT(run.LogText(), Not(HasSubstr("a.ags")));
  EXPECT_THAT(run.LogText(), HasSubstr("File:  b.ags (2 of 2)\r\n"));
  EXPECT_TRUE(run.LogText().ends_with("SUMMARY:  No problems found in file.\r\n" + ClosingLines));
}

// The status.

TEST(FileStatus, IsToldByTheSeverityOfFindings) {
  EXPECT_EQ(CheckText(MinimalAgs3().Text()).status, 0);
  EXPECT_EQ(CheckText(MinimalAgs4().Text()).status, 0);
  EXPECT_EQ(CheckFiles({{"a.ags", "\xEF\xBB\xBF" + CleanAgs3()}}).status, 0) << "a warning";
  const std::string heading = "\"*UNIT_DESC\"\r\n";
  const CheckResult informed =
      CheckFiles({{"a.ags", ReplaceAll(CleanAgs3(), heading, heading + "\"<UNITS>\",\"\"\r\n")}});
  EXPECT_THAT(informed.findings, ElementsAre(StartsWith("FYI: ")));
  EXPECT_EQ(informed.status, 0);
  EXPECT_EQ(CheckText(Ags3WithTabs(1)).status, 1);
  EXPECT_EQ(CheckText(MinimalAgs3().Text(), {}, "a.txt").status, 1);
}

// The edition that a file states and the one that it is checked against.

CheckResult CheckEdition(const std::string& stated, const CheckSettings& settings = {}) {
  return CheckText(ReplaceAll(MinimalAgs4().Text(), "\"4.0.3\"", "\"" + stated + "\""), settings);
}

TEST(StatedEdition, OtherThanTheSchemasIsNoted) {
  for (const std::string stated : {"4.1", "4.1.1", "4.2", "4.0.2"}) {
    const CheckResult result = CheckEdition(stated);
    EXPECT_THAT(result.notes,
                ElementsAre(testing::AllOf(StartsWith("test.ags: "),
                                           HasSubstr("\"" + stated + "\""), HasSubstr("4.0.3"))));
    EXPECT_THAT(result.log, Not(HasSubstr("schema of edition"))) << "the log has no such line";
  }
}

TEST(StatedEdition, ThatIsTheSchemasIsNotNoted) {
  EXPECT_THAT(CheckEdition("4.0.3").notes, IsEmpty());
  EXPECT_THAT(CheckEdition(" 4.0.3 ").notes, IsEmpty());
  EXPECT_THAT(CheckEdition("4.0.4").notes, IsEmpty()) << "such files have a schema of their own";
}

TEST(StatedEdition, Of404IsTakenForTheSchemaOnlyInExactQuotes) {
  EXPECT_THAT(CheckEdition(" 4.0.4").notes, ElementsAre(HasSubstr("4.0.3")));
}

TEST(StatedEdition, ThatIsMissingIsNotNoted) {
  EXPECT_THAT(CheckEdition("").notes, IsEmpty());
}

TEST_F(CheckFileTest, StatedEditionIsComparedWithTheCustomSchemasToo) {
  services_.window.settings.useCustomDictionary = true;
  services_.window.settings.customDictionary = "/program/ags41 dict.gas";
  Put("test.ags", MinimalAgs4().Text());
  Check("test.ags");
  EXPECT_THAT(services_.messages.notes,
              ElementsAre(testing::AllOf(HasSubstr("\"4.0.3\""), HasSubstr("4.1"))));
  services_.messages.notes.clear();
  Put("test.ags", ReplaceAll(MinimalAgs4().Text(), "\"4.0.3\"", "\"4.1\""));
  Check("test.ags");
  EXPECT_THAT(services_.messages.notes, IsEmpty());
}

TEST_F(CheckFileTest, StatedEditionIsNotComparedWithASchemaOfUnknownEdition) {
  services_.disk.files["own.gas"] = services_.disk.files["/program/ags41 dict.gas"];
  services_.window.settings.useCustomDictionary = true;
  services_.window.settings.customDictionary = "own.gas";
  Put("test.ags", MinimalAgs4().Text());
  Check("test.ags");
  EXPECT_THAT(services_.messages.notes, IsEmpty());
}

TEST_F(CheckFileTest, StatedVersionOfAnAgs3FileIsNotComparedWithASchema) {
  services_.window.settings.useCustomDictionary = true;
  services_.window.settings.customDictionary = "/program/ags41 dict.gas";
  Put("test.ags", CleanAgs3());
  Check("test.ags");
  EXPECT_THAT(services_.messages.notes, IsEmpty());
}

}  // namespace
}  // namespace quorvane::test
