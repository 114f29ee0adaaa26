#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/check_text.h"

namespace quorvane::test {
namespace {

using Findings = std::vector<std::string>;
using Rows = std::vector<std::vector<std::string>>;

constexpr std::string_view Section = "File codes check (Rule 24)";

template <typename File>
Findings FindingsOf(const File& file) {
  return CheckText(file.Text()).FindingsOf(Section);
}

std::string NotDefined(int line, const std::string& fileSet, const std::string& group) {
  return "ERROR: Line " + std::to_string(line) + " - FILE_FSET " + fileSet + " in group '" + group +
         "' not defined in the FILE group.";
}

std::string Unused(const std::string& fileSets) {
  return "FYI: The following FILE_FSET values are in the FILE group but not found in any of the "
         "data groups:\r\n" +
         fileSets;
}

std::string BodyTooLong(int line, const std::string& name) {
  return "ERROR: Line " + std::to_string(line) + " - '" + name +
         "' Main body of file name must be 8 or less characters.";
}

std::string ExtensionTooLong(int line, const std::string& name) {
  return "ERROR: Line " + std::to_string(line) + " - '" + name +
         "' File name extension must be 3 or less characters.";
}

Ags3File Ags3WithFiles(const Rows& rows) {
  Ags3File file = MinimalAgs3();
  file.Group("FILE", {"FILE_FSET", "FILE_NAME", "FILE_DESC"}, {"", "", ""}, rows);
  return file;
}

Ags4File Ags4WithFiles(const Rows& rows) {
  Ags4File file = MinimalAgs4();
  file.Group("FILE", {"FILE_FSET", "FILE_NAME", "FILE_DESC"}, {"", "", ""}, {"X", "X", "X"}, rows);
  return file;
}

/// Adds a group whose rows refer to the file sets, one row each; returns the line of the last.
int Refer(Ags3File& file, const std::vector<std::string>& fileSets) {
  Rows rows;
  for (const std::string& fileSet : fileSets) {
    rows.push_back({"BH" + std::to_string(rows.size() + 1), fileSet});
  }
  return file.Group("HOLE", {"HOLE_ID", "FILE_FSET"}, {"", ""}, rows).LineCount();
}

int Refer(Ags4File& file, const std::vector<std::string>& fileSets) {
  Rows rows;
  for (const std::string& fileSet : fileSets) {
    rows.push_back({"BH" + std::to_string(rows.size() + 1), fileSet});
  }
  return file.Group("LOCA", {"LOCA_ID", "FILE_FSET"}, {"", ""}, {"ID", "X"}, rows).LineCount();
}

// --- References and definitions ---

TEST(FileSets, ThatAreDefinedRaiseNothing) {
  Ags3File ags3 = Ags3WithFiles({{"FS1", "A.TXT", "notes"}, {"FS2", "B.TXT", "notes"}});
  Refer(ags3, {"FS1", "", "FS2", "FS1"});
  EXPECT_EQ(FindingsOf(ags3), Findings{});
  Ags4File ags4 = Ags4WithFiles({{"FS1", "A.TXT", "notes"}});
  Refer(ags4, {"FS1"});
  EXPECT_EQ(FindingsOf(ags4), Findings{});
}

TEST(FileSets, AreComparedInAnyLetterCase) {
  Ags4File file = Ags4WithFiles({{"FS1", "A.TXT", "notes"}, {"fs2", "B.TXT", "notes"}});
  Refer(file, {"fs1", "Fs2"});
  EXPECT_EQ(FindingsOf(file), Findings{});
}

TEST(FileSets, AreComparedWithoutTheBlanksAroundThem) {
  Ags4File file = Ags4WithFiles({{" FS1 ", "A.TXT", "notes"}, {"FS 2", "B.TXT", "notes"}});
  const int last = Refer(file, {"FS1", "  FS1", " FS 2", "FS2"});
  EXPECT_EQ(FindingsOf(file), Findings{NotDefined(last, "FS2", "LOCA")});
}

TEST(FileSets, ThatAreNotDefinedAreReportedInUpperCaseAtTheirRows) {
  Ags3File ags3 = Ags3WithFiles({{"FS1", "A.TXT", "notes"}});
  const int last3 = Refer(ags3, {"FS1", "photos", "Fs3"});
  EXPECT_EQ(FindingsOf(ags3),
            (Findings{NotDefined(last3 - 1, "PHOTOS", "HOLE"), NotDefined(last3, "FS3", "HOLE")}));
  Ags4File ags4 = Ags4WithFiles({{"FS1", "A.TXT", "notes"}});
  const int last4 = Refer(ags4, {"photos", "FS1"});
  EXPECT_EQ(FindingsOf(ags4), Findings{NotDefined(last4 - 1, "PHOTOS", "LOCA")});
}

TEST(FileSets, AreNotDefinedByAFileGroupWithoutThem) {
  Ags4File file = MinimalAgs4();
  file.Group("FILE", {"FILE_NAME", "FILE_DESC"}, {"", ""}, {"X", "X"}, {{"A.TXT", "notes"}});
  const int last = Refer(file, {"FS1"});
  EXPECT_EQ(FindingsOf(file), Findings{NotDefined(last, "FS1", "LOCA")});
}

TEST(FileSets, OfBlanksOnlyAreNone) {
  Ags4File file = Ags4WithFiles({{"  ", "A.TXT", ""}});
  Refer(file, {"  "});
  EXPECT_EQ(FindingsOf(file), Findings{});
  Ags4File without = MinimalAgs4();
  Refer(without, {"  "});
  EXPECT_EQ(FindingsOf(without), Findings{});
}

TEST(FileSets, AreReadFromACompactionGroupsOwnHeading) {
  Ags3File file = Ags3WithFiles({{"FS1", "A.TXT", "notes"}});
  file.Group("CMPG", {"HOLE_ID", "CMPG_FSET"}, {"", ""}, {{"BH1", "FS1"}, {"BH1", "FS2"}});
  EXPECT_EQ(FindingsOf(file), Findings{NotDefined(file.LineCount(), "FS2", "CMPG")});
}

TEST(FileSets, AreNotReadFromACompactionHeadingBesideTheGeneralOne) {
  Ags3File file = Ags3WithFiles({{"FS1", "A.TXT", "notes"}});
  file.Group("CMPG", {"HOLE_ID", "CMPG_FSET", "FILE_FSET"}, {"", "", ""}, {{"BH1", "FS2", "FS1"}});
  EXPECT_EQ(FindingsOf(file), Findings{});
}

TEST(FileSets, AreReadFromAQuestionMarkHeading) {
  Ags3File file = Ags3WithFiles({{"FS1", "A.TXT", "notes"}});
  file.Group("?MONP", {"?HOLE_ID", "?FILE_FSET"}, {"", ""}, {{"BH1", "FS1"}, {"BH1", "FS2"}});
  EXPECT_EQ(FindingsOf(file), Findings{NotDefined(file.LineCount(), "FS2", "?MONP")});
}

TEST(FileSets, OfGroupsBeforeTheFileGroupAreChecked) {
  Ags3File file = MinimalAgs3();
  const int last = Refer(file, {"FS1", "FS2"});
  file.Group("FILE", {"FILE_FSET", "FILE_NAME", "FILE_DESC"}, {"", "", ""},
             {{"FS1", "A.TXT", "notes"}});
  EXPECT_EQ(FindingsOf(file), Findings{NotDefined(last, "FS2", "HOLE")});
}

TEST(FileSets, OfASecondFileGroupCountAsWell) {
  Ags4File file = Ags4WithFiles({{"FS1", "A.TXT", "notes"}});
  file.Group("FILE", {"FILE_FSET", "FILE_NAME"}, {"", ""}, {"X", "X"}, {{"FS2", "B.TXT"}});
  Refer(file, {"FS1", "FS2"});
  EXPECT_EQ(FindingsOf(file), Findings{"WARNING: No 'FILE_DESC' heading found in the FILE group"});
}

TEST(FileSets, OfAGroupCalledQuestionMarkFileAreReferences) {
  Ags3File file = MinimalAgs3();
  file.Group("?FILE", {"?FILE_FSET", "?FILE_DESC"}, {"", ""}, {{"FS1", "notes"}});
  EXPECT_EQ(
      FindingsOf(file),
      Findings{"ERROR: There are FILE_FSET data but no FILE group found.\r\nFILE_FSET data in "
               "the following lines:\r\n" +
               std::to_string(file.LineCount())});
}

// --- No FILE group ---

TEST(FileGroup, ThatIsMissingIsReportedOnceWithTheLines) {
  const std::string start =
      "ERROR: There are FILE_FSET data but no FILE group found.\r\nFILE_FSET data in the following "
      "lines:\r\n";
  Ags3File ags3 = MinimalAgs3();
  const int hole = Refer(ags3, {"FS1", "", "FS2"});
  ags3.Group("CMPG", {"HOLE_ID", "CMPG_FSET"}, {"", ""}, {{"BH1", ""}, {"BH1", "FS1"}});
  EXPECT_EQ(FindingsOf(ags3),
            Findings{start + std::to_string(hole - 2) + ", " + std::to_string(hole) + ", " +
                     std::to_string(ags3.LineCount())});
  Ags4File ags4 = MinimalAgs4();
  const int loca = Refer(ags4, {"FS1"});
  EXPECT_EQ(FindingsOf(ags4), Findings{start + std::to_string(loca)});
}

TEST(FileGroup, MayBeMissingWhereNothingRefersToIt) {
  for (const std::string& text : {MinimalAgs3().Text(), MinimalAgs4().Text()}) {
    EXPECT_FALSE(CheckText(text).HasSection(Section));
  }
  Ags4File file = MinimalAgs4();
  Refer(file, {"", ""});
  EXPECT_FALSE(CheckText(file.Text()).HasSection(Section));
}

// --- Descriptions ---

TEST(FileDescriptions, ThatAreMissingNameTheSetsAsWrittenOncePerFile) {
  const std::string expected =
      "WARNING: The following FILE_FSET values did not have FILE_DESC values in the FILE "
      "group:\r\nfs1\r\nFS1\r\nFs2";
  const Rows rows{{" fs1", "A.TXT", ""},
                  {"FS1", "B.TXT", ""},
                  {"Fs2", "C.TXT", ""},
                  {"FS3", "D.TXT", "notes"},
                  {"", "E.TXT", ""}};
  Ags3File ags3 = Ags3WithFiles(rows);
  Refer(ags3, {"FS1", "FS2", "FS3"});
  EXPECT_EQ(FindingsOf(ags3), Findings{expected});
  Ags4File ags4 = Ags4WithFiles(rows);
  Refer(ags4, {"FS1", "FS2", "FS3"});
  EXPECT_EQ(FindingsOf(ags4), Findings{expected});
}

TEST(FileDescriptions, NeedTheirHeading) {
  Ags3File ags3 = MinimalAgs3();
  ags3.Group("FILE", {"FILE_FSET", "FILE_NAME"}, {"", ""}, {{"FS1", "A.TXT"}});
  Refer(ags3, {"FS1"});
  const Findings expected{"WARNING: No 'FILE_DESC' heading found in the FILE group"};
  EXPECT_EQ(FindingsOf(ags3), expected);
  Ags4File ags4 = MinimalAgs4();
  ags4.Group("FILE", {"FILE_FSET", "FILE_NAME"}, {"", ""}, {"X", "X"}, {{"FS1", "A.TXT"}});
  Refer(ags4, {"FS1"});
  EXPECT_EQ(FindingsOf(ags4), expected);
}

// --- File sets that nothing refers to ---

TEST(UnusedFileSets, AreListedInUpperCaseWithCommasBetween) {
  const Rows rows{{"zz", "A.TXT", "x"}, {"FS1", "B.TXT", "x"}, {"bb", "C.TXT", "x"}};
  Ags3File ags3 = Ags3WithFiles(rows);
  Refer(ags3, {"FS1"});
  EXPECT_EQ(FindingsOf(ags3), Findings{Unused("ZZ,BB")});
  Ags4File ags4 = Ags4WithFiles(rows);
  EXPECT_EQ(FindingsOf(ags4), Findings{Unused("ZZ,FS1,BB")});
}

TEST(UnusedFileSets, AreListedOnceThoughTheyHaveSeveralFiles) {
  Ags4File file = Ags4WithFiles({{"FS1", "A.TXT", "x"},
                                 {"fs1", "B.TXT", "x"},
                                 {"FS2", "C.TXT", "x"},
                                 {"FS1 ", "D.TXT", "x"}});
  EXPECT_EQ(FindingsOf(file), Findings{Unused("FS1,FS2")});
}

TEST(UnusedFileSets, ComeBehindTheOtherFindings) {
  Ags3File file = Ags3WithFiles({{"FS1", "LONGFILENAME.TXT", ""}});
  const int row = file.LineCount();
  const int last = Refer(file, {"FS2"});
  EXPECT_EQ(FindingsOf(file),
            (Findings{BodyTooLong(row, "LONGFILENAME.TXT"), NotDefined(last, "FS2", "HOLE"),
                      "WARNING: The following FILE_FSET values did not have FILE_DESC values in "
                      "the FILE group:\r\nFS1",
                      Unused("FS1")}));
}

// --- Names of associated files ---

Findings FileNameFindings(const std::string& name, const std::string& edition = "3.1") {
  Ags3File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_AGS"}, {"", ""}, {{"P1", edition}});
  file.Group("UNIT", {"UNIT_UNIT", "UNIT_DESC"}, {}, {{"m", "metre"}});
  file.Group("FILE", {"FILE_FSET", "FILE_NAME", "FILE_DESC"}, {"", "", ""}, {{"FS1", name, "x"}});
  Refer(file, {"FS1"});
  return FindingsOf(file);
}

constexpr int FileNameLine = 13;

TEST(FileNames, OfEightCharactersAndThreeMorePass) {
  for (const char* name : {"A", "A.B", "ABCDEFGH.TXT", "ABCDEFGH", "ABCDEFGH.", ".TXT", ".", ""}) {
    EXPECT_EQ(FileNameFindings(name), Findings{}) << name;
  }
}

TEST(FileNames, WithoutAPointMayHaveNineCharacters) {
  EXPECT_EQ(FileNameFindings("ABCDEFGHI"), Findings{});
  EXPECT_EQ(FileNameFindings("ABCDEFGHIJ"), Findings{BodyTooLong(FileNameLine, "ABCDEFGHIJ")});
}

TEST(FileNames, WithAPointMayHaveEightBeforeIt) {
  EXPECT_EQ(FileNameFindings("ABCDEFGHI.TXT"),
            Findings{BodyTooLong(FileNameLine, "ABCDEFGHI.TXT")});
  EXPECT_EQ(FileNameFindings("ABCDEFGHI."), Findings{BodyTooLong(FileNameLine, "ABCDEFGHI.")});
}

TEST(FileNames, MayHaveThreeBehindTheLastPoint) {
  EXPECT_EQ(FileNameFindings("ABCDEFGH.TEXT"),
            Findings{ExtensionTooLong(FileNameLine, "ABCDEFGH.TEXT")});
  EXPECT_EQ(FileNameFindings("A.B.TEXT"), Findings{ExtensionTooLong(FileNameLine, "A.B.TEXT")});
  EXPECT_EQ(FileNameFindings("A.BCDE.TXT"), Findings{});
  EXPECT_EQ(FileNameFindings("A.BCDEFGH.TXT"),
            Findings{BodyTooLong(FileNameLine, "A.BCDEFGH.TXT")});
}

TEST(FileNames, MayBreakBothRules) {
  EXPECT_EQ(FileNameFindings("ABCDEFGHI.TEXT"),
            (Findings{BodyTooLong(FileNameLine, "ABCDEFGHI.TEXT"),
                      ExtensionTooLong(FileNameLine, "ABCDEFGHI.TEXT")}));
}

TEST(FileNames, AreMeasuredWithoutTheBlanksAroundThem) {
  EXPECT_EQ(FileNameFindings("  ABCDEFGH.TXT "), Findings{});
  EXPECT_EQ(FileNameFindings("  ABCDEFGH.TEXT "),
            Findings{ExtensionTooLong(FileNameLine, "ABCDEFGH.TEXT")});
  EXPECT_EQ(FileNameFindings("A B C D E.TXT"),
            Findings{BodyTooLong(FileNameLine, "A B C D E.TXT")});
  EXPECT_EQ(FileNameFindings("   "), Findings{});
}

TEST(FileNames, MayBeOfAnyLengthInTheRegionalEditions) {
  EXPECT_EQ(FileNameFindings("ABCDEFGHI.TEXT", "3.1 RTA (1.1)"), Findings{});
  EXPECT_EQ(FileNameFindings("ABCDEFGHI.TEXT", "3.1 NZ (1.1)"), Findings{});
  EXPECT_EQ(FileNameFindings("ABCDEFGHI.TEXT", "3").size(), 2U);
}

TEST(FileNames, MayBeOfAnyLengthInAgs4) {
  Ags4File file = Ags4WithFiles({{"FS1", "ABCDEFGHI.TEXT", "x"}, {"FS1", "ABCDEFGHIJ", "x"}});
  Refer(file, {"FS1"});
  EXPECT_EQ(FindingsOf(file), Findings{});
}

TEST(FileNames, AreCheckedWithoutFileSets) {
  Ags3File file = MinimalAgs3();
  file.Group("FILE", {"FILE_NAME", "FILE_DESC"}, {"", ""}, {{"ABCDEFGH.TEXT", "x"}});
  EXPECT_EQ(FindingsOf(file), Findings{ExtensionTooLong(file.LineCount(), "ABCDEFGH.TEXT")});
  Ags3File empty = Ags3WithFiles({{"", "ABCDEFGH.TEXT", "x"}});
  EXPECT_EQ(FindingsOf(empty), Findings{ExtensionTooLong(empty.LineCount(), "ABCDEFGH.TEXT")});
}

// --- Large files ---

/// Rows of a group whose last column is FILE_FSET.
std::string ReferringRows(int rowCount, int fileSetCount) {
  std::string rows;
  for (int row = 0; row < rowCount; ++row) {
    rows += "\"DATA\",\"BH1\",\"fs" + std::to_string(row % fileSetCount) + "\"\n";
  }
  return rows;
}

TEST(LargeFileOfFileSets, OfManyRowsAndManyFileSetsIsReadInOnePass) {
  constexpr int FileSetCount = 20000;
  constexpr int RowCount = 500000;
  Rows rows;
  for (int number = 0; number < FileSetCount; ++number) {
    rows.push_back({"FS" + std::to_string(number), "A.TXT", "x"});
  }
  rows.push_back({"OTHER", "A.TXT", "x"});
  Ags4File file = Ags4WithFiles(rows);
  Refer(file, {"no such"});
  EXPECT_EQ(CheckText(file.Text() + ReferringRows(RowCount, FileSetCount)).FindingsOf(Section),
            (Findings{NotDefined(file.LineCount(), "NO SUCH", "LOCA"), Unused("OTHER")}));
}

TEST(LargeFileOfFileSets, WithoutFileGroupListsEveryLine) {
  constexpr int RowCount = 500000;
  Ags4File file = MinimalAgs4();
  Refer(file, {});
  const Findings findings =
      CheckText(file.Text() + ReferringRows(RowCount, 1000)).FindingsOf(Section);
  ASSERT_EQ(findings.size(), 1U);
  std::string lines;
  for (int row = 1; row <= RowCount; ++row) {
    if (row > 1) lines += ", ";
    lines += std::to_string(file.LineCount() + row);
  }
  EXPECT_TRUE(findings.front().ends_with("\r\n" + lines));
}

}  // namespace
}  // namespace quorvane::test
