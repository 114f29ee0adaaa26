#include "run/folder_walk.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_services.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST(FolderWalkTest, ListsFilesOfAllDepthsInByteOrderOfTheirPaths) {
  MemoryDisk disk;
  for (const std::string path :
       {"d/b", "d/a/z", "d/a-b/x", "d/a/B/c", "d/a/b/c", "d/a.b", "other/x"})
    disk.files[path];
  EXPECT_THAT(WalkFolder(disk, "d").files,
              ElementsAre("a-b/x", "a.b", "a/B/c", "a/b/c", "a/z", "b"));
}

TEST(FolderWalkTest, LinksToFoldersAreLeftOut) {
  MemoryDisk disk;
  disk.files["d/a"];
  disk.folderLinks.insert("d/loop.ags");
  EXPECT_THAT(WalkFolder(disk, "d").files, ElementsAre("a"));
}

TEST(FolderWalkTest, AFolderThatCannotBeListedIsNamedAndTheOthersAreListed) {
  MemoryDisk disk;
  disk.files["d/a/x"];
  disk.files["d/b/x"];
  const std::string closed = PathBelow("d", "a");
  disk.listFailures[closed] = {13, "Permission denied"};
  const FolderContent content = WalkFolder(disk, "d");
  EXPECT_THAT(content.files, ElementsAre("b/x"));
  ASSERT_THAT(content.gaps, SizeIs(1));
  EXPECT_EQ(content.gaps[0].path, closed);
  EXPECT_EQ(content.gaps[0].failure.description, "Permission denied");
}

TEST(FolderWalkTest, AnEmptyFolderHoldsNothing) {
  MemoryDisk disk;
  disk.folders.insert("d/e");
  const FolderContent content = WalkFolder(disk, "d");
  EXPECT_THAT(content.files, IsEmpty());
  EXPECT_THAT(content.gaps, IsEmpty());
}

TEST(FolderWalkTest, PathsBelowAFolderHaveOneSeparatorBetween) {
  EXPECT_EQ(PathBelow("d/", "x"), "d/x");
  EXPECT_EQ(PathBelow("", "x"), "x");
  EXPECT_EQ(PathBelow("d", "x").size(), 3U);
}

}  // namespace
}  // namespace quorvane::test
