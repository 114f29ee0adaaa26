#include "findings/html_page.h"

#include <fstream>
#include <iterator>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string PagePart(const std::string& name) {
  const std::string folder = std::string(QUORVANE_SOURCE_FOLDER) + "/src/findings/html_page/";
  std::ifstream file(folder + name);
  EXPECT_TRUE(file) << name;
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(HtmlPageTest, StyleAndScriptAreThoseOfTheSource) {
  EXPECT_EQ(HtmlStyle, PagePart("report.css"));
  EXPECT_EQ(HtmlScript, PagePart("report.js"));
}

TEST(HtmlPageTest, NeitherEndsItsElementOrLoadsAnything) {
  for (const std::string_view part : {HtmlStyle, HtmlScript}) {
    for (const std::string_view word : {"</", "<!--", "http", "url(", "@import", "fetch", "eval"})
      EXPECT_THAT(std::string(part), Not(HasSubstr(word)));
  }
}

// The values are those of "openssl dgst -sha256 -binary | base64".
TEST(HtmlPageTest, APolicySourceIsTheHashInBase64) {
  EXPECT_EQ(PolicySource(""), "'sha256-47DEQpj8HBSa+/TImW+5JCeuQeRkm5NMpJWZG3hSuFU='");
  EXPECT_EQ(PolicySource("abc"), "'sha256-ungWv48Bz+pBQUDeXa4iI7ADYaOWF3qctBD/YfIAFa0='");
}

}  // namespace
}  // namespace quorvane::test
