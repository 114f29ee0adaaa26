#include "findings/file_names.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(FileNamesTest, AreTheLastPartsOfThePaths) {
  EXPECT_THAT(FileNames({"/data/site/a.ags", "C:\\other\\b.ags", "c.ags"}),
              ElementsAre("a.ags", "b.ags", "c.ags"));
  EXPECT_THAT(FileNames({}), IsEmpty());
}

TEST(FileNamesTest, FilesOfOneNameAreToldApartBelowTheCommonFolderOfAll) {
  EXPECT_THAT(FileNames({"/d/x/a.ags", "/d/y/z/a.ags", "/d/b.ags"}),
              ElementsAre("x/a.ags", "y/z/a.ags", "b.ags"));
}

TEST(FileNamesTest, AreTheSameInAnotherFolderAndOnAnotherSystem) {
  EXPECT_EQ(FileNames({"/d/x/a.ags", "/d/y/a.ags"}),
            FileNames({"E:\\job\\x\\a.ags", "E:\\job\\y\\a.ags"}));
}

TEST(FileNamesTest, TheCommonFolderEndsAtAFolder) {
  EXPECT_THAT(FileNames({"d/xa/a.ags", "d/xb/a.ags"}), ElementsAre("xa/a.ags", "xb/a.ags"));
}

TEST(FileNamesTest, APathThatComesAgainHasItsCount) {
  EXPECT_THAT(FileNames({"d/a.ags", "d/a.ags", "d/a.ags"}),
              ElementsAre("a.ags", "a.ags (2)", "a.ags (3)"));
}

}  // namespace
}  // namespace quorvane::test
