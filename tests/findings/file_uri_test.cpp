#include "findings/file_uri.h"

#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

std::string PosixUri(std::string_view path) {
  return FileUri(path, PathStyle::Posix);
}

std::string WindowsUri(std::string_view path) {
  return FileUri(path, PathStyle::Windows);
}

TEST(FileUri, ARelativePathStaysRelative) {
  EXPECT_EQ(PosixUri("site.ags"), "site.ags");
  EXPECT_EQ(PosixUri("data/site.ags"), "data/site.ags");
  EXPECT_EQ(PosixUri("../site.ags"), "../site.ags");
}

TEST(FileUri, AnAbsolutePathNamesTheScheme) {
  EXPECT_EQ(PosixUri("/data/site.ags"), "file:///data/site.ags");
}

TEST(FileUri, PartsThatSayNothingAreLeftOut) {
  EXPECT_EQ(PosixUri("./site.ags"), "site.ags");
  EXPECT_EQ(PosixUri("data/./a//site.ags"), "data/a/site.ags");
  EXPECT_EQ(PosixUri("//data/site.ags"), "file:///data/site.ags");
}

TEST(FileUri, BytesWithAMeaningInUrisAreEncoded) {
  EXPECT_EQ(PosixUri("a b#c?d%e.ags"), "a%20b%23c%3Fd%25e.ags");
  EXPECT_EQ(PosixUri("\xC3\xBC.ags"), "%C3%BC.ags");
  EXPECT_EQ(PosixUri("-._~AZaz09"), "-._~AZaz09");
}

TEST(FileUri, AColonMakesNoScheme) {
  EXPECT_EQ(PosixUri("a:b.ags"), "a%3Ab.ags");
  EXPECT_EQ(WindowsUri("C:site.ags"), "C%3Asite.ags");
}

TEST(FileUri, ABackslashPartsFoldersOnWindowsOnly) {
  EXPECT_EQ(PosixUri("a\\b.ags"), "a%5Cb.ags");
  EXPECT_EQ(WindowsUri("a\\b/c.ags"), "a/b/c.ags");
}

TEST(FileUri, WindowsPathsHaveDrivesAndServers) {
  EXPECT_EQ(WindowsUri("C:\\my data\\site.ags"), "file:///C:/my%20data/site.ags");
  EXPECT_EQ(WindowsUri("c:/site.ags"), "file:///c:/site.ags");
  EXPECT_EQ(WindowsUri("\\\\server\\share\\site.ags"), "file://server/share/site.ags");
  EXPECT_EQ(WindowsUri("\\data\\site.ags"), "file:///data/site.ags");
}

}  // namespace
}  // namespace quorvane::test
