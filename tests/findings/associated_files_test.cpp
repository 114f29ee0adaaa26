#include "findings/associated_files.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "findings/closing_sections.h"
#include "support/check_text.h"
#include "support/fake_services.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

using State = AssociatedFile::State;
using Rows = std::vector<std::vector<std::string>>;  // file set, name

NamedFile Ags4(const std::string& path, const Rows& rows) {
  Ags4File file = MinimalAgs4();
  file.Group("FILE", {"FILE_FSET", "FILE_NAME"}, {"", ""}, {"X", "X"}, rows);
  return {path, ReplaceAll(file.Text(), "\n", LineBreak)};
}

NamedFile Ags3(const std::string& path, const Rows& rows) {
  Ags3File file = MinimalAgs3();
  file.Group("FILE", {"FILE_FSET", "FILE_NAME"}, {}, rows);
  return {path, ReplaceAll(file.Text(), "\n", LineBreak)};
}

/// A disk that takes letter cases for the same, as Windows does.
class CaselessDisk : public MemoryDisk {
 public:
  FileFacts Examine(const std::string& path) override {
    FileFacts facts;
    for (const auto& [name, content] : files)
      facts.exists = facts.exists || EqualsIgnoringCase(name, ReplaceAll(path, "\\", "/"));
    return facts;
  }
};

class AssociatedFilesTest : public testing::Test {
 protected:
  void Look(const std::vector<NamedFile>& files, MemoryDisk& disk) {
    report_ = CollectFindings(files);
    for (const NamedFile& file : files)
      disk.files[file.name] = file.content;
    LookForAssociatedFiles(disk, report_);
  }
  void Look(const std::vector<NamedFile>& files) { Look(files, disk_); }

  std::vector<State> States(std::size_t file = 0) const {
    std::vector<State> states;
    for (const AssociatedFile& associated : report_.files[file].associatedFiles)
      states.push_back(associated.state);
    return states;
  }

  MemoryDisk disk_;
  FindingsReport report_;
};

TEST_F(AssociatedFilesTest, AreThoseThatTheFileGroupNamesEachOnce) {
  Look({Ags4("a.ags", {{"FS1", "a.jpg"},
                       {"FS1", " b.jpg "},
                       {"FS1", "a.jpg"},
                       {"FS2", "a.jpg"},
                       {"FS2", ""},
                       {"", "m\xFC.pdf"}})});
  std::vector<std::string> named;
  for (const AssociatedFile& file : report_.files[0].associatedFiles)
    named.push_back(file.fileSet + "/" + file.name);
  EXPECT_THAT(named, ElementsAre("FS1/a.jpg", "FS1/b.jpg", "FS2/a.jpg", "/m\xC3\xBC.pdf"));
}

TEST_F(AssociatedFilesTest, AreLookedForInTheFolderOfTheirSetBesideTheDataFile) {
  disk_.files["d/FILE/FS1/a b.jpg"];
  disk_.files["d/FILE/FS2/other.jpg"];
  disk_.files["d/FILE/top.pdf"];
  disk_.files["FILE/FS1/c.jpg"];
  Look({Ags4("d/a.ags",
             {{"FS1", "a b.jpg"}, {"FS1", "other.jpg"}, {"FS1", "c.jpg"}, {"", "top.pdf"}})});
  EXPECT_THAT(States(), ElementsAre(State::There, State::Missing, State::Missing, State::There));
  ASSERT_THAT(report_.unnamedFiles, SizeIs(1));
  EXPECT_EQ(report_.unnamedFiles[0].folder, "d/");
  EXPECT_THAT(report_.unnamedFiles[0].names, ElementsAre("FILE/FS2/other.jpg"));
}

TEST_F(AssociatedFilesTest, OfAFileInTheCurrentFolderAreFoundToo) {
  disk_.files["./FILE/FS1/a.jpg"];
  disk_.files["FILE/FS1/a.jpg"];
  Look({Ags4("a.ags", {{"FS1", "a.jpg"}})});
  EXPECT_THAT(States(), ElementsAre(State::There));
}

TEST_F(AssociatedFilesTest, InAnotherLetterCaseAreNamedAsTheyAre) {
  disk_.files["d/file/fs1/A.JPG"];
  Look({Ags4("d/a.ags", {{"FS1", "a.jpg"}})});
  EXPECT_THAT(States(), ElementsAre(State::InOtherCase));
  EXPECT_EQ(report_.files[0].associatedFiles[0].pathThere, "file/fs1/A.JPG");
  EXPECT_FALSE(IsMissing(report_.files[0].associatedFiles[0]));
  EXPECT_THAT(report_.unnamedFiles, IsEmpty());
  EXPECT_THAT(AssociatedFilesText(report_),
              HasSubstr("  In other letters: FILE/FS1/a.jpg is there as file/fs1/A.JPG\r\n"));
}

TEST_F(AssociatedFilesTest, InAnotherLetterCaseAreThereWhereTheSystemDoesNotTellCases) {
  CaselessDisk disk;
  disk.files["d/FILE/FS1/A.JPG"];
  Look({Ags4("d/a.ags", {{"FS1", "a.jpg"}})}, disk);
  EXPECT_THAT(States(), ElementsAre(State::There));
}

TEST_F(AssociatedFilesTest, OfTwoThatDifferInCaseTheExactOneIsTheOneNamed) {
  disk_.files["d/FILE/FS1/a.jpg"];
  disk_.files["d/FILE/FS1/A.jpg"];
  Look({Ags4("d/a.ags", {{"FS1", "a.jpg"}})});
  EXPECT_THAT(States(), ElementsAre(State::There));
  EXPECT_THAT(report_.unnamedFiles.at(0).names, ElementsAre("FILE/FS1/A.jpg"));
}

TEST_F(AssociatedFilesTest, NeverLeadOutOfTheFolder) {
  disk_.files["d/secret.txt"];
  disk_.files["secret.txt"];
  disk_.files["d/FILE/FS1/sub/x.jpg"];
  Look({Ags4("d/a.ags", {{"..", "secret.txt"},
                         {"FS1", "../../secret.txt"},
                         {"FS1", ".."},
                         {"FS1", "sub/x.jpg"},
                         {"FS1", "sub\\x.jpg"},
                         {"a/..", "x"},
                         {"FS1", "/secret.txt"},
                         {"FS1", "a..b"}})});
  EXPECT_THAT(States(), ElementsAre(State::NoFileName, State::NoFileName, State::NoFileName,
                                    State::NoFileName, State::NoFileName, State::NoFileName,
                                    State::NoFileName, State::Missing));
  EXPECT_TRUE(IsMissing(report_.files[0].associatedFiles[0]));
  EXPECT_THAT(report_.unnamedFiles.at(0).names, ElementsAre("FILE/FS1/sub/x.jpg"));
}

TEST_F(AssociatedFilesTest, OfAgs3FilesMayStandBesideTheDataFile) {
  disk_.files["d/a.jpg"];
  disk_.files["d/FILE/FS1/b.jpg"];
  disk_.files["d/readme.txt"];
  Look({Ags3("d/a.ags", {{"FS1", "a.jpg"}, {"FS1", "b.jpg"}, {"FS1", "c.jpg"}})});
  EXPECT_THAT(States(), ElementsAre(State::There, State::There, State::Missing));
  EXPECT_THAT(report_.unnamedFiles, IsEmpty());
  EXPECT_THAT(AssociatedFilesText(report_), HasSubstr("Looked for beside the file"));
}

TEST_F(AssociatedFilesTest, OfAgs4FilesMayNot) {
  disk_.files["d/a.jpg"];
  Look({Ags4("d/a.ags", {{"FS1", "a.jpg"}})});
  EXPECT_THAT(States(), ElementsAre(State::Missing));
}

TEST_F(AssociatedFilesTest, AreUnnamedOnlyWhenNoDataFileOfTheFolderNamesThem) {
  disk_.files["d/FILE/FS1/a.jpg"];
  disk_.files["d/FILE/FS1/b.jpg"];
  disk_.files["d/FILE/FS1/c.jpg"];
  disk_.files["e/FILE/FS1/a.jpg"];
  Look({Ags4("d/a.ags", {{"FS1", "a.jpg"}}), Ags4("d/b.ags", {{"FS1", "b.jpg"}}),
        Ags4("e/c.ags", {{"FS1", "a.jpg"}})});
  ASSERT_THAT(report_.unnamedFiles, SizeIs(1));
  EXPECT_EQ(report_.unnamedFiles[0].folder, "d/");
  EXPECT_THAT(report_.unnamedFiles[0].names, ElementsAre("FILE/FS1/c.jpg"));
}

TEST_F(AssociatedFilesTest, OfAFileThatCannotBeCheckedAreNotKnown) {
  disk_.files["d/FILE/FS1/a.jpg"];
  Look({{"d/a.ags", "nothing"}});
  EXPECT_THAT(report_.unnamedFiles, IsEmpty());
  EXPECT_EQ(AssociatedFilesText(report_),
            "Associated files of d/a.ags:  not known, as the file could not be checked\r\n\r\n");
}

TEST_F(AssociatedFilesTest, AFolderThatCannotBeListedIsNamed) {
  disk_.files["d/FILE/FS1/a.jpg"];
  disk_.listFailures["d/FILE/FS1"] = {13, "Permission denied"};
  Look({Ags4("d/a.ags", {{"FS1", "a.jpg"}})});
  EXPECT_THAT(States(), ElementsAre(State::Missing));
  EXPECT_THAT(AssociatedFilesText(report_), HasSubstr("FS1: Permission denied\r\n"));
}

TEST_F(AssociatedFilesTest, AreListedInTheText) {
  disk_.files["d/FILE/FS1/a.jpg"];
  disk_.files["d/FILE/FS1/new.jpg"];
  Look({Ags4("d/a.ags", {{"FS1", "a.jpg"}}), Ags4("d/b.ags", {{"FS1", "b.jpg"}, {"..", "c"}}),
        Ags4("d/c.ags", {})});
  EXPECT_EQ(AssociatedFilesText(report_),
            "Associated files of d/a.ags:  1 named, 0 missing\r\n"
            "  All of them are there.\r\n"
            "\r\n"
            "Associated files of d/b.ags:  2 named, 2 missing\r\n"
            "  Missing: FILE/FS1/b.jpg\r\n"
            "  Cannot be the name of a file: file set \"..\", name \"c\"\r\n"
            "\r\n"
            "Associated files of d/c.ags:  0 named, 0 missing\r\n"
            "\r\n"
            "Files below d/FILE that no data file beside it names:  1\r\n"
            "  Not named: FILE/FS1/new.jpg\r\n"
            "\r\n");
}

}  // namespace
}  // namespace quorvane::test
