#include "findings/source_file.h"

#include <string>

#include <gtest/gtest.h>

#include "findings/sha256.h"
#include "support/fake_services.h"

namespace quorvane::test {
namespace {

/// A disk that counts what is read from it.
class CountingDisk : public MemoryDisk {
 public:
  FileFacts Examine(const std::string& path) override {
    FileFacts facts = MemoryDisk::Examine(path);
    facts.lastChange = lastChange;
    return facts;
  }

  Reading Read(const std::string& path) override {
    ++reads;
    return MemoryDisk::Read(path);
  }

  int reads = 0;
  FileTime lastChange;
};

class SourceFileTest : public testing::Test {
 protected:
  /// Puts a file on the disk and gives its record as a run over it makes it.
  FileRecord Check(const std::string& path, const std::string& content) {
    disk_.files[path] = content;
    FileRecord file;
    file.path = "shown";
    file.diskPath = path;
    file.wasRead = true;
    file.size = content.size();
    file.sha256 = Sha256(content);
    return file;
  }

  CountingDisk disk_;
  SourceFile source_{disk_};
};

TEST_F(SourceFileTest, AFileThatIsAsItWasIsReadOnce) {
  const FileRecord file = Check("a.ags", "one\r\ntwo");
  ASSERT_EQ(source_.Open(file), SourceState::AsChecked);
  EXPECT_EQ(source_.Text().Line(2), "two");
  ASSERT_EQ(source_.Open(file), SourceState::AsChecked);
  EXPECT_EQ(source_.Text().Line(1), "one");
  EXPECT_EQ(disk_.reads, 1);
}

TEST_F(SourceFileTest, AnotherFileTakesItsPlace) {
  const FileRecord first = Check("a.ags", "one");
  const FileRecord second = Check("b.ags", "two");
  ASSERT_EQ(source_.Open(first), SourceState::AsChecked);
  ASSERT_EQ(source_.Open(second), SourceState::AsChecked);
  EXPECT_EQ(source_.Text().Line(1), "two");
  ASSERT_EQ(source_.Open(first), SourceState::AsChecked);
  EXPECT_EQ(source_.Text().Line(1), "one");
  EXPECT_EQ(disk_.reads, 3);
}

TEST_F(SourceFileTest, OtherBytesOfTheSameSizeAreSeen) {
  const FileRecord file = Check("a.ags", "one");
  disk_.files["a.ags"] = "two";
  EXPECT_EQ(source_.Open(file), SourceState::Changed);
}

TEST_F(SourceFileTest, AnotherSizeIsSeenWithoutReading) {
  const FileRecord file = Check("a.ags", "one");
  disk_.files["a.ags"] = "three";
  EXPECT_EQ(source_.Open(file), SourceState::Changed);
  EXPECT_EQ(disk_.reads, 0);
}

TEST_F(SourceFileTest, AChangeAfterTheFirstLookIsSeen) {
  const FileRecord file = Check("a.ags", "one");
  ASSERT_EQ(source_.Open(file), SourceState::AsChecked);
  disk_.files["a.ags"] = "two";
  disk_.lastChange += std::chrono::seconds(1);
  EXPECT_EQ(source_.Open(file), SourceState::Changed);
  disk_.files["a.ags"] = "one";
  EXPECT_EQ(source_.Open(file), SourceState::AsChecked);
}

TEST_F(SourceFileTest, AFileThatIsGoneOrCannotBeReadIsUnreadable) {
  const FileRecord file = Check("a.ags", "one");
  disk_.readFailures["a.ags"] = {5, "Input/output error"};
  EXPECT_EQ(source_.Open(file), SourceState::Unreadable);
  disk_.readFailures.clear();
  disk_.obstacles["a.ags"] = {13, "Permission denied"};
  EXPECT_EQ(source_.Open(file), SourceState::Unreadable);
  disk_.obstacles.clear();
  ASSERT_EQ(source_.Open(file), SourceState::AsChecked);
  disk_.files.clear();
  EXPECT_EQ(source_.Open(file), SourceState::Unreadable);
}

TEST_F(SourceFileTest, WhatIsForgottenIsReadAgain) {
  const FileRecord file = Check("a.ags", "one");
  ASSERT_EQ(source_.Open(file), SourceState::AsChecked);
  source_.Forget();
  ASSERT_EQ(source_.Open(file), SourceState::AsChecked);
  EXPECT_EQ(disk_.reads, 2);
}

}  // namespace
}  // namespace quorvane::test
