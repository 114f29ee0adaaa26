#include "run/data_files.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_services.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DataFilesTest : public testing::Test {
 protected:
  /// The files found, with "/" between folders on every system.
  std::vector<std::string> Find(const std::vector<std::string>& paths) {
    DataFiles found = FindDataFiles(disk_, messages_, paths);
    isComplete_ = found.isComplete;
    for (std::string& path : found.paths)
      path = ReplaceAll(path, "\\", "/");
    return found.paths;
  }

  MemoryDisk disk_;
  RecordingMessages messages_;
  bool isComplete_ = false;
};

TEST_F(DataFilesTest, AFolderMeansEveryAgsFileBelowItInAnyLetterCase) {
  for (const std::string path :
       {"d/two.AGS", "d/one.ags", "d/deep/er/x.Ags", "d/ags", "d/x.ags.txt", "d/x.agsx", "e/y.ags"})
    disk_.files[path];
  EXPECT_THAT(Find({"d"}), ElementsAre("d/deep/er/x.Ags", "d/one.ags", "d/two.AGS"));
  EXPECT_TRUE(isComplete_);
  EXPECT_THAT(messages_.notes, IsEmpty());
}

TEST_F(DataFilesTest, OtherPathsStayAndAllKeepTheOrderInWhichTheyAreNamed) {
  disk_.files["d/one.ags"];
  disk_.files["notes.txt"];
  EXPECT_THAT(Find({"notes.txt", "d/", "missing.ags"}),
              ElementsAre("notes.txt", "d/one.ags", "missing.ags"));
}

TEST_F(DataFilesTest, AFolderWithoutDataFilesIsNamed) {
  disk_.files["d/readme.txt"];
  EXPECT_THAT(Find({"d"}), IsEmpty());
  EXPECT_TRUE(isComplete_);
  EXPECT_THAT(messages_.notes, ElementsAre("d: No .ags files in this folder"));
}

TEST_F(DataFilesTest, AFolderThatCannotBeListedIsNamedWithTheReason) {
  disk_.files["d/one.ags"];
  disk_.listFailures["d"] = {13, "Permission denied"};
  EXPECT_THAT(Find({"d"}), IsEmpty());
  EXPECT_FALSE(isComplete_);
  EXPECT_THAT(messages_.notes, ElementsAre("d: Permission denied"));
}

}  // namespace
}  // namespace quorvane::test
