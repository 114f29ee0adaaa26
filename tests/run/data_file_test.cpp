#include "run/data_file.h"

#include <gtest/gtest.h>

#include "support/fake_services.h"

namespace quorvane::test {
namespace {

TEST(ReadDataFile, GivesLinesAndSize) {
  MemoryDisk disk;
  disk.files["a.ags"] = "one\r\ntwo\r\n";
  const DataFile file = ReadDataFile(disk, "a.ags");
  EXPECT_EQ(file.refusal, "");
  EXPECT_FALSE(file.isTooLarge);
  EXPECT_EQ(file.size, 10U);
  ASSERT_EQ(file.text.LineCount(), 2);
  EXPECT_EQ(file.text.Line(2), "two");
}

TEST(ReadDataFile, SaysWhyAFileCannotBeRead) {
  MemoryDisk disk;
  disk.obstacles["folder"] = {21, "Is a directory"};
  disk.files["locked.ags"] = "one";
  disk.readFailures["locked.ags"] = {13, "Permission denied"};
  EXPECT_EQ(ReadDataFile(disk, "missing.ags").refusal, "File not found");
  EXPECT_EQ(ReadDataFile(disk, "folder").refusal, "Is a directory");
  EXPECT_EQ(ReadDataFile(disk, "locked.ags").refusal, "Permission denied");
  EXPECT_FALSE(ReadDataFile(disk, "locked.ags").isTooLarge);
}

TEST(ReadDataFile, LeavesAFileOfTwoGigabytesUnread) {
  MemoryDisk disk;
  disk.files["large.ags"] = "one";
  disk.statedSizes["large.ags"] = 2147483647;
  disk.throwsWhenRead = "large.ags";
  const DataFile file = ReadDataFile(disk, "large.ags");
  EXPECT_TRUE(file.isTooLarge);
  EXPECT_EQ(file.refusal, "File is too large for free Quorvane ( > 2GB ).");
  EXPECT_EQ(file.text.LineCount(), 0);
}

}  // namespace
}  // namespace quorvane::test
