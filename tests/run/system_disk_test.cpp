#include "run/system_disk.h"

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <system_error>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#if !defined(_WIN32)
#include <sys/stat.h>
#endif

#include "run/check_run.h"
#include "support/check_text.h"
#include "support/fake_services.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::Field;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

testing::Matcher<FolderEntry> IsEntry(const std::string& name, bool isFolder, bool isLink) {
  return AllOf(Field(&FolderEntry::name, name), Field(&FolderEntry::isFolder, isFolder),
               Field(&FolderEntry::isLink, isLink));
}

/// The words that the system has for a failure.
std::string Words(std::errc failure) {
  return std::make_error_code(failure).message();
}

/// A folder of its own for each test, which goes with it. Its name holds blanks.
class SystemDiskTest : public testing::Test {
 protected:
  void SetUp() override {
    std::random_device random;
    folder_ = fs::temp_directory_path() / ("quorvane disk test " + std::to_string(random()));
    fs::create_directory(folder_);
  }

  void TearDown() override {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
  }

  std::string PathOf(const std::string& name) const { return (folder_ / name).string(); }

  /// Writes a file and returns its path.
  std::string Put(const std::string& name, const std::string& content) const {
    std::ofstream(folder_ / name, std::ios::binary) << content;
    return PathOf(name);
  }

  std::string BytesOf(const std::string& path) const {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  /// Examines and reads a file that has this content.
  void ExpectReadable(const std::string& name, const std::string& content) {
    const std::string path = Put(name, content);
    const FileFacts facts = disk_.Examine(path);
    EXPECT_TRUE(facts.exists) << path;
    EXPECT_FALSE(facts.obstacle.has_value()) << path;
    EXPECT_EQ(facts.size, content.size()) << path;
    const Disk::Reading reading = disk_.Read(path);
    EXPECT_FALSE(reading.failure.has_value()) << path;
    EXPECT_EQ(std::string(reading.content.View()), content) << path;
  }

  fs::path folder_;
  SystemDisk disk_;
};

TEST_F(SystemDiskTest, ReadsFilesByteForByte) {
  ExpectReadable("crlf.ags", "one\r\ntwo\r\n");
  ExpectReadable("lf.ags", "one\ntwo\n");
  ExpectReadable("cr.ags", "one\rtwo\r");
  ExpectReadable("empty.ags", "");
  ExpectReadable("one.ags", "x");
  ExpectReadable("end.ags",
                 "a\x1A"
                 "b");
  ExpectReadable("zero.ags", std::string("\0a\0", 3));
}

TEST_F(SystemDiskTest, ReadsBinaryRubbish) {
  std::string rubbish;
  for (int index = 0; index < 100000; ++index)
    rubbish += static_cast<char>(index * 31 % 257);
  ExpectReadable("rubbish.bin", rubbish);
}

TEST_F(SystemDiskTest, ReadsFilesWhateverTheirNames) {
  ExpectReadable("two words.ags", "x");
  ExpectReadable("  blanks around  ", "x");
  ExpectReadable(
      "Stra\xC3\x9F"
      "e.ags",
      "x");  // UTF-8
#if !defined(_WIN32)
  ExpectReadable(
      "Stra\xDF"
      "e.ags",
      "x");  // a single-byte code page
  ExpectReadable("quote\" and \\ and *.ags", "x");
  ExpectReadable("line\nend.ags", "x");
#endif
}

TEST_F(SystemDiskTest, KnowsWhenAFileWasChanged) {
  const auto before = std::chrono::system_clock::now() - std::chrono::seconds(5);
  const std::string path = Put("now.ags", "x");
  const auto after = std::chrono::system_clock::now() + std::chrono::seconds(5);
  const FileFacts facts = disk_.Examine(path);
  EXPECT_GE(facts.lastChange, before);
  EXPECT_LE(facts.lastChange, after);

  fs::last_write_time(path, fs::last_write_time(path) - std::chrono::hours(48));
  EXPECT_EQ(facts.lastChange - disk_.Examine(path).lastChange, std::chrono::hours(48));
}

TEST_F(SystemDiskTest, AMissingFileDoesNotExist) {
  const FileFacts facts = disk_.Examine(PathOf("missing.ags"));
  EXPECT_FALSE(facts.exists);
  EXPECT_FALSE(facts.obstacle.has_value());
  const Disk::Reading reading = disk_.Read(PathOf("missing.ags"));
  ASSERT_TRUE(reading.failure.has_value());
  EXPECT_EQ(reading.failure->number, ENOENT);
  EXPECT_EQ(reading.failure->description, Words(std::errc::no_such_file_or_directory));
  EXPECT_EQ(reading.content.Size(), 0U);
}

TEST_F(SystemDiskTest, AFileInAMissingFolderDoesNotExist) {
  EXPECT_FALSE(disk_.Examine(PathOf("missing/file.ags")).exists);
  EXPECT_TRUE(disk_.Read(PathOf("missing/file.ags")).failure.has_value());
}

TEST_F(SystemDiskTest, AFileBelowAFileDoesNotExist) {
  Put("file.ags", "x");
  EXPECT_FALSE(disk_.Examine(PathOf("file.ags/other.ags")).exists);
  EXPECT_TRUE(disk_.Read(PathOf("file.ags/other.ags")).failure.has_value());
}

TEST_F(SystemDiskTest, AnEmptyPathDoesNotExist) {
  EXPECT_FALSE(disk_.Examine("").exists);
  EXPECT_TRUE(disk_.Read("").failure.has_value());
}

TEST_F(SystemDiskTest, AFolderCannotBeRead) {
  fs::create_directory(folder_ / "folder.ags");
  for (const std::string& path : {folder_.string(), PathOf("folder.ags"), PathOf("folder.ags/")}) {
    const FileFacts facts = disk_.Examine(path);
    EXPECT_TRUE(facts.exists);
    ASSERT_TRUE(facts.obstacle.has_value());
    EXPECT_EQ(facts.obstacle->number, EISDIR);
    EXPECT_EQ(facts.obstacle->description, Words(std::errc::is_a_directory));
    const Disk::Reading reading = disk_.Read(path);
    ASSERT_TRUE(reading.failure.has_value());
    EXPECT_EQ(reading.failure->number, EISDIR);
    EXPECT_EQ(reading.content.Size(), 0U);
  }
}

TEST_F(SystemDiskTest, OnlyFoldersAreFolders) {
  EXPECT_TRUE(disk_.Examine(folder_.string()).isFolder);
  EXPECT_FALSE(disk_.Examine(Put("file.ags", "x")).isFolder);
  EXPECT_FALSE(disk_.Examine(PathOf("missing.ags")).isFolder);
}

TEST_F(SystemDiskTest, ListsAFolder) {
  // Its paths are UTF-8 on Windows too.
  ASSERT_FALSE(disk_.Write(folder_.string() + "/Stra\xC3\x9F\x65 1.ags", "x", "").has_value());
  fs::create_directory(folder_ / "folder");
  Put("folder/deeper.ags", "x");
  const Disk::Listing listing = disk_.List(folder_.string());
  EXPECT_FALSE(listing.failure.has_value());
  EXPECT_THAT(listing.entries, UnorderedElementsAre(IsEntry("Stra\xC3\x9F\x65 1.ags", false, false),
                                                    IsEntry("folder", true, false)));
}

TEST_F(SystemDiskTest, CannotListWhatIsNoFolder) {
  EXPECT_EQ(disk_.List(PathOf("missing")).failure->number, ENOENT);
  const Disk::Listing listing = disk_.List(Put("file.ags", "x"));
  EXPECT_TRUE(listing.failure.has_value());
  EXPECT_THAT(listing.entries, IsEmpty());
}

TEST_F(SystemDiskTest, WritesBothTexts) {
  const std::string path = PathOf("new log.txt");
  EXPECT_FALSE(disk_.Write(path, "one\r\ntwo\xB5\r\n", "\r\n").has_value());
  EXPECT_EQ(BytesOf(path), "one\r\ntwo\xB5\r\n\r\n");
}

TEST_F(SystemDiskTest, ReplacesWhatAFileHeld) {
  const std::string path = Put("log.txt", "a much longer text than the one that replaces it");
  EXPECT_FALSE(disk_.Write(path, "short", "").has_value());
  EXPECT_EQ(BytesOf(path), "short");
  EXPECT_FALSE(disk_.Write(path, "", "").has_value());
  EXPECT_EQ(BytesOf(path), "");
}

TEST_F(SystemDiskTest, WritesLargeTexts) {
  const std::string text(5000000, 'x');
  EXPECT_FALSE(disk_.Write(PathOf("log.txt"), text, "end").has_value());
  EXPECT_EQ(fs::file_size(PathOf("log.txt")), text.size() + 3);
}

TEST_F(SystemDiskTest, CannotWriteOverAFolder) {
  const auto failure = disk_.Write(folder_.string(), "text", "");
  ASSERT_TRUE(failure.has_value());
#if !defined(_WIN32)
  EXPECT_EQ(failure->number, EISDIR);
  EXPECT_EQ(failure->description, Words(std::errc::is_a_directory));
#endif
  EXPECT_TRUE(fs::is_directory(folder_));
}

TEST_F(SystemDiskTest, CannotWriteIntoAMissingFolder) {
  const auto failure = disk_.Write(PathOf("missing/log.txt"), "text", "");
  ASSERT_TRUE(failure.has_value());
  EXPECT_EQ(failure->number, ENOENT);
  EXPECT_EQ(failure->description, Words(std::errc::no_such_file_or_directory));
}

#if !defined(_WIN32)
TEST_F(SystemDiskTest, ADeviceCannotBeRead) {
  const FileFacts facts = disk_.Examine("/dev/null");
  EXPECT_TRUE(facts.exists);
  ASSERT_TRUE(facts.obstacle.has_value());
  EXPECT_FALSE(facts.obstacle->description.empty());
  EXPECT_TRUE(disk_.Read("/dev/null").failure.has_value());
}

TEST_F(SystemDiskTest, APipeIsRefusedWithoutWaitingForIt) {
  const std::string path = PathOf("pipe.ags");
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  EXPECT_TRUE(disk_.Examine(path).obstacle.has_value());
  EXPECT_TRUE(disk_.Read(path).failure.has_value());
}

TEST_F(SystemDiskTest, ReadsWhatALinkPointsTo) {
  Put("file.ags", "content");
  fs::create_symlink("file.ags", folder_ / "link.ags");
  fs::create_symlink("missing.ags", folder_ / "dangling.ags");
  fs::create_symlink("loop.ags", folder_ / "loop.ags");
  const Disk::Reading reading = disk_.Read(PathOf("link.ags"));
  EXPECT_EQ(reading.content.View(), "content");
  EXPECT_EQ(disk_.Examine(PathOf("link.ags")).size, 7U);
  EXPECT_FALSE(disk_.Examine(PathOf("dangling.ags")).exists);
  const FileFacts loop = disk_.Examine(PathOf("loop.ags"));
  EXPECT_TRUE(loop.exists) << "it is there, but cannot be followed";
  ASSERT_TRUE(loop.obstacle.has_value());
  EXPECT_EQ(loop.obstacle->number, ELOOP);
}

TEST_F(SystemDiskTest, ListsLinksAsSuch) {
  Put("file.ags", "x");
  fs::create_symlink("file.ags", folder_ / "link.ags");
  fs::create_symlink("missing.ags", folder_ / "dangling.ags");
  fs::create_directory_symlink(".", folder_ / "loop");
  EXPECT_THAT(
      disk_.List(folder_.string()).entries,
      UnorderedElementsAre(IsEntry("file.ags", false, false), IsEntry("link.ags", false, true),
                           IsEntry("dangling.ags", false, true), IsEntry("loop", true, true)));
}

TEST_F(SystemDiskTest, APathThatIsTooLongIsRefusedInTheSystemsWords) {
  const FileFacts facts = disk_.Examine(PathOf(std::string(5000, 'x')));
  EXPECT_TRUE(facts.exists);
  ASSERT_TRUE(facts.obstacle.has_value());
  EXPECT_EQ(facts.obstacle->description, Words(std::errc::filename_too_long));
}

TEST_F(SystemDiskTest, ADiskThatIsFullIsNoticed) {
  if (!fs::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
  for (const std::size_t size : {std::size_t{1}, std::size_t{1000000}}) {
    const auto failure = disk_.Write("/dev/full", std::string(size, 'x'), "\r\n");
    ASSERT_TRUE(failure.has_value()) << size;
    EXPECT_EQ(failure->number, ENOSPC);
    EXPECT_EQ(failure->description, Words(std::errc::no_space_on_device));
  }
}
#endif

// A whole run over real files.

class RealFiles : public SystemDiskTest {
 protected:
  /// The log of a run on one file.
  std::string LogOf(const std::string& path) {
    FakeServices fakes;
    SystemDisk disk;
    fakes.window.settings.filesToCheck = path;
    CheckRun run({disk, fakes.environment, fakes.messages, fakes.progressBox, fakes.window,
                  fakes.parentChoice});
    status_ = run.ExecuteChecking();
    notes_ = fakes.messages.notes;
    return run.LogText();
  }

  CheckStatus status_ = CheckStatus::Clean;
  std::vector<std::string> notes_;
};

TEST_F(RealFiles, WithAnyLineEndsAreCheckedAlike) {
  const std::string text = MinimalAgs3().Text();
  for (const std::string_view lineEnd : {"\r\n", "\n", "\r"}) {
    const std::string log = LogOf(Put("d\xE4ta file.ags", ReplaceAll(text, "\n", lineEnd)));
    EXPECT_EQ(status_, CheckStatus::Clean) << log;
    EXPECT_NE(log.find("SUMMARY:  No problems found in file.\r\n"), std::string::npos) << log;
    EXPECT_NE(log.find("File:  " + PathOf("d\xE4ta file.ags") + " (1 of 1)\r\n"),
              std::string::npos);
  }
}

TEST_F(RealFiles, ThatAreFoldersAreNamedInTheSystemsWords) {
  const std::string words = Words(std::errc::is_a_directory);
  const std::string log = LogOf(folder_.string());
  EXPECT_TRUE(log.ends_with("File:  " + folder_.string() + " (1 of 1)\r\n" + words +
                            "\r\nCould not continue with further checking.\r\n" +
                            std::string(39, '*') + "\r\n\r\n"))
      << log;
  EXPECT_EQ(status_, CheckStatus::HasErrors);
  EXPECT_EQ(notes_, std::vector<std::string>{folder_.string() + ": " + words});
}

TEST_F(RealFiles, OfAlmostNothingAreNoAgsFiles) {
  for (const std::string& content : {std::string(), std::string("x"), std::string("\xFF\x00", 2)}) {
    const std::string log = LogOf(Put("tiny.ags", content));
    EXPECT_NE(log.find("File is not an AGS 3 or 4 format file\r\n"), std::string::npos);
    EXPECT_EQ(status_, CheckStatus::HasErrors);
  }
}

}  // namespace
}  // namespace quorvane::test
