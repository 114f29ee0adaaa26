#include "run/file_intake.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "run/message_log_fixture.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string Separator = std::string(39, '*') + "\r\n\r\n";

constexpr std::string_view Ags4Text =
    "\"GROUP\",\"PROJ\"\n\"HEADING\",\"PROJ_ID\"\n\"UNIT\",\"\"\n\"TYPE\",\"ID\"\n"
    "\"DATA\",\"1\"\n";
constexpr std::string_view Ags3Text = "\"**PROJ\"\n\"*PROJ_ID\"\n\"<UNITS>\"\n\"1\"\n";

constexpr std::string_view TinySchema =
    "'Vexo Schema for AGS\nLOCA\n\nLOCA_ID\n\nPROJ\n\nPROJ.PROJ_ID\n\nPROJ\n,1\nPROJ_ID\nm\nID\n";

/// Runs the intake alone on files in memory.
class FileIntakeTest : public testing::Test {
 protected:
  FileIntakeTest() {
    services_.disk.files["/program/ags4 dict.gas"] = TinySchema;
    services_.disk.files["/program/ags404 dict.gas"] = TinySchema;
  }

  /// LF in the text stands for CR LF.
  void TakeIn(std::string_view text, const std::string& path = "test.ags") {
    services_.disk.files[path] = ReplaceAll(text, "\n", LineBreak);
    TakeInFile({path, 1, 1});
  }

  void TakeInFile(const FileToCheck& file) {
    CheckFileFailedFnB(services_.All(), dictionaries_, logged_.runLog, logged_.log, file, intake_);
  }

  const std::string& Log() const { return logged_.runLog.FullText(); }

  FakeServices services_;
  DictionaryStore dictionaries_{services_.disk, "/program"};
  LoggedFile logged_{AgsFormat::Ags3};
  FileIntake intake_;
};

TEST_F(FileIntakeTest, TakesInAnAgs4File) {
  TakeIn(Ags4Text);
  EXPECT_FALSE(intake_.hasFailed);
  EXPECT_EQ(intake_.reason, "");
  ASSERT_TRUE(intake_.version.has_value());
  EXPECT_EQ(intake_.version->format, AgsFormat::Ags4);
  EXPECT_FALSE(intake_.version->isAgs404);
  EXPECT_EQ(intake_.schemaPath, InProgramFolder("ags4 dict.gas"));
  EXPECT_EQ(intake_.text.LineCount(), 5);
  EXPECT_EQ(intake_.text.Line(1), "\"**PROJ\"") << "rows are brought into the common form";
  EXPECT_THAT(logged_.Findings(), IsEmpty());
}

TEST_F(FileIntakeTest, TakesInAnAgs3File) {
  TakeIn(Ags3Text);
  EXPECT_FALSE(intake_.hasFailed);
  ASSERT_TRUE(intake_.version.has_value());
  EXPECT_EQ(intake_.version->format, AgsFormat::Ags3);
  EXPECT_EQ(intake_.schemaPath, "");
  EXPECT_EQ(intake_.text.Line(1), "\"**PROJ\"");
  EXPECT_THAT(logged_.Findings(), IsEmpty());
}

TEST_F(FileIntakeTest, WritesTheHeaderBlockInOnePiece) {
  // 1,234 lines and 12,391 bytes.
  std::string text(Ags3Text);
  for (int line = 5; line <= 1234; ++line)
    text += "\"a value\"\n";
  services_.disk.files["sub/test.ags"] = text;
  services_.disk.files["sub/test.ags"].append(12391 - text.size(), '\n');
  TakeInFile({"sub/test.ags", 2, 3});
  EXPECT_EQ(Log(),
            "File:  sub/test.ags (2 of 3)\r\nDate:  01/02/26 03:04:05\r\nSize:  12,391 bytes\r\n"
            "Number of Lines:  1,234\r\n\r\n");
}

TEST_F(FileIntakeTest, CountsTheBytesOfTheFileAndTheLinesOfItsText) {
  TakeIn("\xEF\xBB\xBF" + std::string(Ags3Text) + "\n\n\n");
  // Line ends at the end of the file open no further lines; its bytes are all counted.
  const std::size_t size = services_.disk.files["test.ags"].size();
  EXPECT_EQ(Log(), "File:  test.ags (1 of 1)\r\nDate:  01/02/26 03:04:05\r\nSize:  " +
                       std::to_string(size) + " bytes\r\nNumber of Lines:  4\r\n\r\n");
}

TEST_F(FileIntakeTest, AFileWithAnyLineEndsReadsTheSame) {
  for (const std::string_view lineEnd : {"\r\n", "\n", "\r"}) {
    for (const std::string_view text : {Ags4Text, Ags3Text}) {
      FileIntake intake;
      LoggedFile logged(AgsFormat::Ags3);
      services_.disk.files["test.ags"] = ReplaceAll(text, "\n", lineEnd);
      CheckFileFailedFnB(services_.All(), dictionaries_, logged.runLog, logged.log,
                         {"test.ags", 1, 1}, intake);
      EXPECT_FALSE(intake.hasFailed);
      EXPECT_EQ(intake.text.Line(1), "\"**PROJ\"");
      EXPECT_EQ(intake.text.Line(2), "\"*PROJ_ID\"");
      EXPECT_EQ(intake.text.LineCount(), text == Ags4Text ? 5 : 4);
      EXPECT_THAT(logged.Findings(), IsEmpty());
    }
  }
}

// Files that cannot be taken in.

TEST_F(FileIntakeTest, AMissingFileHasAShortHeader) {
  TakeInFile({"no/such.ags", 2, 7});
  EXPECT_TRUE(intake_.hasFailed);
  EXPECT_EQ(Log(), "File:  no/such.ags (2 of 7)\r\nFile not found\r\n");
  EXPECT_EQ(intake_.reason, "File not found");
  EXPECT_FALSE(intake_.version.has_value());
}

TEST_F(FileIntakeTest, AFolderOrDeviceIsDescribedInTheSystemsWords) {
  services_.disk.obstacles["folder.ags"] = {21, "Is a directory"};
  TakeInFile({"folder.ags", 1, 1});
  EXPECT_TRUE(intake_.hasFailed);
  EXPECT_EQ(Log(), "File:  folder.ags (1 of 1)\r\nIs a directory\r\n");
  EXPECT_EQ(intake_.reason, "Is a directory");
}

TEST_F(FileIntakeTest, AFileThatCannotBeReadIsDescribedInTheSystemsWords) {
  services_.disk.files["locked.ags"] = Ags3Text;
  services_.disk.readFailures["locked.ags"] = {13, "Permission denied"};
  TakeInFile({"locked.ags", 1, 1});
  EXPECT_TRUE(intake_.hasFailed);
  EXPECT_EQ(Log(), "File:  locked.ags (1 of 1)\r\nPermission denied\r\n");
  EXPECT_EQ(intake_.reason, "Permission denied");
}

TEST_F(FileIntakeTest, AFileOfTwoGigabytesIsTooLarge) {
  services_.disk.files["test.ags"] = Ags3Text;
  services_.disk.statedSizes["test.ags"] = 2147483647;
  services_.disk.throwsWhenRead = "test.ags";  // it is not even read
  TakeInFile({"test.ags", 1, 1});
  EXPECT_TRUE(intake_.hasFailed);
  EXPECT_EQ(Log(), "File is too large for free Quorvane ( > 2GB ).\r\n" + Separator);
  EXPECT_EQ(intake_.reason, "File is too large for free Quorvane ( > 2GB ).");
}

TEST_F(FileIntakeTest, AFileOfOneByteLessIsNotTooLarge) {
  services_.disk.statedSizes["test.ags"] = 2147483646;
  TakeIn(Ags3Text);
  EXPECT_FALSE(intake_.hasFailed);
}

TEST_F(FileIntakeTest, AFileOfManyGigabytesIsTooLarge) {
  services_.disk.files["test.ags"] = Ags3Text;
  services_.disk.statedSizes["test.ags"] = 10000000000;
  TakeInFile({"test.ags", 1, 1});
  EXPECT_TRUE(intake_.hasFailed);
}

TEST_F(FileIntakeTest, AFileThatIsNoAgsFileHasNoHeader) {
  for (const std::string& content :
       {std::string(), std::string("x"), std::string("\r\n"), std::string("a,b\r\n1,2\r\n"),
        std::string("\xEF\xBB\xBF"), std::string("\x00\x01\xFF\r\x00\n", 6)}) {
    FileIntake intake;
    LoggedFile logged(AgsFormat::Ags3);
    services_.disk.files["test.txt"] = content;
    CheckFileFailedFnB(services_.All(), dictionaries_, logged.runLog, logged.log,
                       {"test.txt", 1, 1}, intake);
    logged.log.CloseCheckSection("Left open");
    EXPECT_TRUE(intake.hasFailed);
    EXPECT_EQ(logged.runLog.FullText(), "File is not an AGS 3 or 4 format file\r\n" + Separator);
    EXPECT_EQ(intake.reason, "File is not an AGS 3 or 4 format file");
    EXPECT_THAT(logged.Findings(), IsEmpty()) << "not even one about a byte order mark or the name";
  }
}

// The dictionary.

TEST_F(FileIntakeTest, AFileOfEdition404HasItsSchema) {
  TakeIn(std::string(Ags4Text) +
         "\n\"GROUP\",\"TRAN\"\n\"HEADING\",\"TRAN_AGS\"\n\"UNIT\",\"\"\n"
         "\"TYPE\",\"X\"\n\"DATA\",\"4.0.4\"\n");
  EXPECT_TRUE(intake_.version->isAgs404);
  EXPECT_EQ(intake_.schemaPath, InProgramFolder("ags404 dict.gas"));
}

TEST_F(FileIntakeTest, ACustomDictionaryIsTakenWhenItsBoxIsTicked) {
  services_.disk.files["own.gas"] = TinySchema;
  services_.window.settings.customDictionary = " own.gas ";
  services_.window.settings.useCustomDictionary = true;
  TakeIn(Ags3Text);
  EXPECT_EQ(intake_.schemaPath, "own.gas");
}

TEST_F(FileIntakeTest, ACustomDictionaryIsLeftWhenItsBoxIsNotTicked) {
  services_.window.settings.customDictionary = "missing.gas";
  TakeIn(Ags4Text);
  EXPECT_EQ(intake_.schemaPath, InProgramFolder("ags4 dict.gas"));
}

TEST_F(FileIntakeTest, ABlankCustomDictionaryIsNone) {
  services_.window.settings.customDictionary = "   ";
  services_.window.settings.useCustomDictionary = true;
  TakeIn(Ags3Text);
  EXPECT_EQ(intake_.schemaPath, "");
  EXPECT_FALSE(intake_.hasFailed);
}

TEST_F(FileIntakeTest, AMissingDictionaryEndsItBeforeTheHeader) {
  services_.disk.files.erase("/program/ags4 dict.gas");
  EXPECT_THROW(TakeIn(Ags4Text), DictionaryError);
  EXPECT_EQ(Log(), "");
}

TEST_F(FileIntakeTest, TheDictionaryIsLoadedWhenTheRowLabelsAreWrongToo) {
  services_.disk.files.erase("/program/ags4 dict.gas");
  EXPECT_THROW(TakeIn("rubbish\n" + std::string(Ags4Text)), DictionaryError);
}

TEST_F(FileIntakeTest, AnEditionThatIsWantedHasItsSchema) {
  services_.disk.files["/program/ags41 dict.gas"] = TinySchema;
  services_.window.settings.edition = "4.1";
  TakeIn(Ags4Text);
  EXPECT_EQ(intake_.schemaPath, InProgramFolder("ags41 dict.gas"));
  EXPECT_EQ(intake_.dictionary.customSchema, "");
}

TEST_F(FileIntakeTest, TheStatedEditionIsReadBeforeTheRowsAreRewritten) {
  services_.disk.files["/program/ags42 dict.gas"] = TinySchema;
  services_.window.settings.edition = StatedEdition;
  TakeIn(std::string(Ags4Text) +
         "\n\"GROUP\",\"TRAN\"\n\"HEADING\",\"TRAN_AGS\"\n\"UNIT\",\"\"\n"
         "\"TYPE\",\"X\"\n\"DATA\",\"4.2\"\n");
  EXPECT_EQ(intake_.schemaPath, InProgramFolder("ags42 dict.gas"));
}

constexpr DetectedVersion Ags3Version{AgsFormat::Ags3, false};
constexpr DetectedVersion Ags4Version{AgsFormat::Ags4, false};
constexpr DetectedVersion Ags404Version{AgsFormat::Ags4, true};

/// The number of the edition that is chosen; empty for the usual one.
std::string_view EditionChosen(std::string_view tranAgs, const DetectedVersion& version,
                               std::string_view wish) {
  CheckSettings settings;
  settings.edition = wish;
  const FileText file = TextOf("\"GROUP\",\"TRAN\"\n\"HEADING\",\"TRAN_AGS\"\n\"DATA\",\"" +
                               std::string(tranAgs) + "\"\n");
  const DictionaryChoice choice = ChooseDictionary(file, version, settings);
  EXPECT_EQ(choice.customSchema, "");
  EXPECT_EQ(choice.isAgs404, version.isAgs404);
  return choice.edition == nullptr ? std::string_view() : choice.edition->edition;
}

TEST(ChooseDictionary, FollowsVersionAndSettings) {
  const FileText file;
  CheckSettings settings;
  settings.customDictionary = "own.gas";
  EXPECT_EQ(ChooseDictionary(file, Ags404Version, settings).customSchema, "");
  EXPECT_EQ(ChooseDictionary(file, Ags404Version, settings).format, AgsFormat::Ags4);
  EXPECT_TRUE(ChooseDictionary(file, Ags404Version, settings).isAgs404);
  settings.useCustomDictionary = true;
  EXPECT_EQ(ChooseDictionary(file, Ags3Version, settings).customSchema, "own.gas");
}

TEST(ChooseDictionary, PutsACustomDictionaryBeforeAnEdition) {
  CheckSettings settings;
  settings.edition = "4.1";
  settings.customDictionary = "own.gas";
  settings.useCustomDictionary = true;
  const DictionaryChoice choice = ChooseDictionary(FileText(), Ags4Version, settings);
  EXPECT_EQ(choice.customSchema, "own.gas");
  EXPECT_EQ(choice.edition, nullptr);
}

TEST(ChooseDictionary, TakesTheUsualEditionWithoutAWish) {
  EXPECT_EQ(EditionChosen("4.2", Ags4Version, ""), "");
}

TEST(ChooseDictionary, TakesTheEditionThatIsWanted) {
  for (const SchemaEdition& edition : SchemaEditions)
    EXPECT_EQ(EditionChosen("4.0.4", Ags404Version, edition.edition), edition.edition);
}

TEST(ChooseDictionary, TakesTheEditionThatTheFileStates) {
  for (const SchemaEdition& edition : SchemaEditions)
    EXPECT_EQ(EditionChosen(edition.edition, Ags4Version, StatedEdition), edition.edition);
  EXPECT_EQ(EditionChosen("4.0.3", Ags404Version, StatedEdition), "4.0.3")
      << "whatever stands elsewhere in the file";
  EXPECT_EQ(EditionChosen("rubbish", Ags404Version, StatedEdition), "");
  EXPECT_EQ(EditionChosen("", Ags4Version, StatedEdition), "");
}

TEST(ChooseDictionary, HasNoEditionForAgs3) {
  EXPECT_EQ(EditionChosen("4.1", Ags3Version, "4.1"), "");
  EXPECT_EQ(EditionChosen("4.1", Ags3Version, StatedEdition), "");
}

// The file's name.

std::vector<std::string> NameFindings(std::string_view path) {
  LoggedFile logged(AgsFormat::Ags4);
  CheckFileName(logged.log, path);
  logged.log.CloseCheckSection("Section");
  return logged.Findings();
}

TEST(FileName, PassesWithTheExtensionInAnyLetterCase) {
  for (const std::string_view path :
       {"data.ags", "data.AGS", "data.AgS", "my data.v2.ags", ".ags", "a/b.c/data.ags",
        "C:\\x.txt\\data.ags", "a\\b/c.ags", "a/b\\c.ags"}) {
    EXPECT_THAT(NameFindings(path), IsEmpty()) << path;
  }
}

TEST(FileName, IsWrongWithAnotherExtension) {
  for (const std::string_view path : {"data.txt", "data.ags.bak", "data.", "data.agsx", "data.ags ",
                                      "folder.ags/data.csv", "C:\\folder.ags\\data.csv"}) {
    EXPECT_THAT(NameFindings(path),
                ElementsAre("ERROR: File Name must have the extension \".AGS\"."))
        << path;
  }
}

TEST(FileName, IsWrongWithoutAnExtension) {
  for (const std::string_view path : {"data", "folder.ags/data", "C:\\folder.ags\\data", ""}) {
    EXPECT_THAT(NameFindings(path),
                ElementsAre("ERROR: File Name has no extension.  It must be \".AGS\"."))
        << path;
  }
}

TEST_F(FileIntakeTest, ReportsTheNameInItsSection) {
  TakeIn(Ags3Text, "data.txt");
  EXPECT_FALSE(intake_.hasFailed);
  EXPECT_THAT(logged_.Findings(),
              ElementsAre("ERROR: File Name must have the extension \".AGS\"."));
  EXPECT_THAT(logged_.log.Sections(), ElementsAre("File Name Check"));
}

// A byte order mark.

TEST_F(FileIntakeTest, AByteOrderMarkIsTheFirstFinding) {
  TakeIn("\xEF\xBB\xBF" + std::string(Ags3Text), "data.txt");
  EXPECT_FALSE(intake_.hasFailed);
  EXPECT_EQ(intake_.text.Line(1), "\"**PROJ\"");
  EXPECT_THAT(
      logged_.Findings(),
      ElementsAre("WARNING: Line 1 - File begins with a UTF-8 byte order mark.  It was ignored.",
                  "ERROR: File Name must have the extension \".AGS\"."));
  EXPECT_THAT(logged_.log.Sections(), ElementsAre("File Name Check"));
}

TEST_F(FileIntakeTest, AByteOrderMarkStandsWithWrongRowLabels) {
  TakeIn("\xEF\xBB\xBFtext\n" + std::string(Ags4Text));
  EXPECT_TRUE(intake_.hasFailed);
  EXPECT_THAT(
      logged_.Findings(),
      ElementsAre("WARNING: Line 1 - File begins with a UTF-8 byte order mark.  It was ignored.",
                  "ERROR: \r\nUnknown row label (text), line 1 (Rule 3)"));
  EXPECT_THAT(logged_.log.Sections(), ElementsAre("Row Label Check"));
}

TEST_F(FileIntakeTest, AByteOrderMarkElsewhereIsNone) {
  TakeIn(std::string(Ags3Text) + "\xEF\xBB\xBF");
  EXPECT_THAT(logged_.Findings(), IsEmpty());
}

// Row labels and row order.

TEST_F(FileIntakeTest, WrongRowLabelsAreFatal) {
  TakeIn("text\n" + std::string(Ags4Text), "data");
  EXPECT_TRUE(intake_.hasFailed);
  EXPECT_NE(intake_.reason, "");
  EXPECT_TRUE(intake_.version.has_value());
  EXPECT_THAT(logged_.Findings(),
              ElementsAre("ERROR: \r\nUnknown row label (text), line 1 (Rule 3)",
                          "ERROR: File Name has no extension.  It must be \".AGS\"."));
  EXPECT_THAT(logged_.log.Sections(), ElementsAre("Row Label Check", "File Name Check"));
  EXPECT_NE(Log().find("Number of Lines:  6\r\n"), std::string::npos)
      << "the header block is written all the same";
  EXPECT_EQ(intake_.text.Line(2), "\"GROUP\",\"PROJ\"") << "rows are not rewritten";
}

TEST_F(FileIntakeTest, WrongRowOrderIsFatal) {
  TakeIn(std::string(Ags4Text) + std::string(Ags4Text));
  EXPECT_TRUE(intake_.hasFailed);
  EXPECT_NE(intake_.reason, "");
  EXPECT_EQ(logged_.Findings().size(), 4U);
  EXPECT_EQ(logged_.Findings().front(),
            "ERROR: \"GROUP\",\"PROJ\"\r\n    Line out of order. Expected \"DATA\",\"...");
  EXPECT_THAT(logged_.log.Sections(), ElementsAre("File Name Check"));
}

TEST_F(FileIntakeTest, TextBeforeTheFirstGroupIsNotFatal) {
  // Row labels are in order but for the quotes, which make the lines no group row.
  TakeIn("GROUP,PROJ\nHEADING,PROJ_ID\nUNIT,\nTYPE,ID\nDATA,1\n");
  EXPECT_FALSE(intake_.hasFailed);
  EXPECT_THAT(logged_.Findings(),
              ElementsAre("ERROR: Unknown data in file header:\r\nGROUP,PROJ\r\nHEADING,PROJ_ID"
                          "\r\nUNIT,\r\nTYPE,ID\r\nDATA,1"));
}

TEST_F(FileIntakeTest, Ags3FilesHaveNoRowLabels) {
  TakeIn("any text\n" + std::string(Ags3Text) + "\"DATA\",\"GROUP\"\n");
  EXPECT_FALSE(intake_.hasFailed);
  EXPECT_THAT(logged_.Findings(), IsEmpty());
}

}  // namespace
}  // namespace quorvane::test
