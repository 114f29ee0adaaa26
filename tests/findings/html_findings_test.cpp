#include "findings/html_findings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/check_text.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string WithCrLf(std::string_view text) {
  return ReplaceAll(text, "\n", LineBreak);
}

std::string PageOf(std::string_view text, const std::string& path = "test.ags") {
  return HtmlFindings(CollectFindings({{path, WithCrLf(text)}}));
}

std::size_t CountOf(std::string_view page, std::string_view part) {
  std::size_t count = 0;
  for (std::size_t at = page.find(part); at != std::string_view::npos;
       at = page.find(part, at + part.size()))
    ++count;
  return count;
}

/// A file with rows of the LOCA group, which have an ID and two levels of type 2DP.
std::string FileWithRows(const std::vector<std::vector<std::string>>& rows) {
  return MinimalAgs4()
      .Group("LOCA", {"LOCA_ID", "LOCA_GL", "LOCA_FDEP"}, {"", "m", "m"}, {"ID", "2DP", "2DP"},
             rows)
      .Text();
}

TEST(HtmlFindingsTest, AFindingIsShownWithItsPlaceAndItsLine) {
  const std::string page = PageOf(FileWithRows({{"BH1", "deep", "2.00"}}));
  EXPECT_THAT(page, HasSubstr("<li class=\"error\"><b>ERROR</b><span>Line 31, column 14</span>"));
  EXPECT_THAT(page, HasSubstr("Group <bdi>LOCA</bdi> \xC2\xB7 Heading <bdi>LOCA_GL</bdi> "
                              "\xC2\xB7 Key <bdi>BH1</bdi>"));
  EXPECT_THAT(page, HasSubstr("<pre>\"DATA\",\"BH1\",\"deep\",\"2.00\"</pre>"));
  EXPECT_THAT(page, HasSubstr("<tr aria-current=\"true\"><th scope=\"row\">LOCA_GL<td>m<td>2DP"
                              "<td>deep"));
  EXPECT_THAT(page, HasSubstr("<tr><th scope=\"row\">LOCA_FDEP<td>m<td>2DP<td>2.00"));
}

TEST(HtmlFindingsTest, AnAgs3LineHasNoTypes) {
  const std::string page = PageOf(
      MinimalAgs3().Group("HOLE", {"HOLE_ID", "HOLE_GL"}, {}, {{"BH1", "1"}, {"BH1", "2"}}).Text());
  EXPECT_THAT(page, HasSubstr("<th scope=\"row\">HOLE_GL<td><td>1"));
  EXPECT_THAT(page, Not(HasSubstr("<th scope=\"col\">Type")));
}

TEST(HtmlFindingsTest, ALineIsWrittenOutOnce) {
  const std::string page = PageOf(FileWithRows({{"BH1", "deep", "deeper"}}));
  EXPECT_EQ(CountOf(page, "<pre>\"DATA\",\"BH1\""), 1U);
  EXPECT_EQ(CountOf(page, "id=\"line-1-31\""), 1U);
  EXPECT_THAT(page, HasSubstr("<details data-line=\"line-1-31\" data-cell=\"3\">"));
  EXPECT_THAT(page, HasSubstr("<tr aria-current=\"true\"><th scope=\"row\">LOCA_FDEP"));
}

TEST(HtmlFindingsTest, ALineOfTheHeadIsNamedSo) {
  const std::string page =
      PageOf(MinimalAgs4()
                 .Group("LOCA", {"LOCA_ID", "LOCA_gl"}, {"", "m"}, {"ID", "2DP"}, {{"BH1", "1.00"}})
                 .Text());
  EXPECT_THAT(page, HasSubstr("<th scope=\"col\">In this line"));
  EXPECT_THAT(page, HasSubstr("<td>LOCA_gl"));
}

TEST(HtmlFindingsTest, ARowThatEndsEarlySaysWhatIsMissing) {
  const std::string page = PageOf(FileWithRows({{"BH1", "1.00"}}));
  EXPECT_THAT(page, HasSubstr("LOCA_FDEP<td>m<td>2DP<td><i>missing</i>"));
}

TEST(HtmlFindingsTest, FileContentCannotBecomeMarkup) {
  const std::string evil = "</script><img src=x onerror=alert(1)><!-- & \xE2\x80\xAE \xE2\x80\xA8";
  const std::string page = PageOf(FileWithRows({{evil, evil, "1.00"}}), evil + ".ags");
  EXPECT_EQ(CountOf(page, "</script>"), 1U);
  EXPECT_THAT(page, Not(HasSubstr("<img")));
  EXPECT_THAT(page, Not(HasSubstr("<!--")));
  EXPECT_THAT(page, Not(HasSubstr("\xE2\x80\xAE")));
  EXPECT_THAT(page, Not(HasSubstr("\xE2\x80\xA8")));
  EXPECT_THAT(page, HasSubstr("&lt;/script&gt;&lt;img src=x onerror=alert(1)&gt;&lt;!-- &amp; "
                              "[U+202E] [U+2028]"));
}

TEST(HtmlFindingsTest, ANulInTheFileIsShown) {
  const std::string page = PageOf(FileWithRows({{"BH1",
                                                 std::string("1\0"
                                                             "2",
                                                             3),
                                                 "1.00"}}));
  EXPECT_EQ(page.find('\0'), std::string::npos);
  EXPECT_THAT(page, HasSubstr("1\xE2\x90\x80"
                              "2"));
}

TEST(HtmlFindingsTest, ThePageAsksForNothingBesideItself) {
  const std::string page = PageOf(FileWithRows({{"BH1", "deep", "1.00"}}));
  for (const std::string_view word : {"http:", "https:", " src=", "<link", "<iframe", "@import"})
    EXPECT_THAT(page, Not(HasSubstr(word)));
  EXPECT_THAT(page, HasSubstr("content=\"default-src 'none'; style-src 'sha256-"));
}

TEST(HtmlFindingsTest, FilesAreNamedWithWhatIsKnownOfThem) {
  const std::string page = HtmlFindings(
      CollectFindings({{"a.ags", WithCrLf(MinimalAgs4().Text())}, {"b.ags", "neither"}}));
  EXPECT_THAT(page, HasSubstr("<a href=\"#file-1\">a.ags</a>"));
  EXPECT_THAT(page, HasSubstr("<td>4.0.3</td><td>AGS 4.0.3, of the program</td>"));
  EXPECT_THAT(page, HasSubstr("<td>yes</td>"));
  EXPECT_THAT(page, HasSubstr("<td class=\"number\">7 bytes</td><td>not known</td><td>none</td>"));
  EXPECT_THAT(page, HasSubstr("<td>NO: File is not an AGS 3 or 4 format file</td>"));
  EXPECT_THAT(page, HasSubstr("Not checked to the end: 1 file."));
}

TEST(HtmlFindingsTest, ARunIsNamedWithTimeVersionAndOptions) {
  CheckSettings settings;
  settings.suppressFyi = true;
  const FindingsReport report = CollectFindings({{"a.ags", "neither"}}, settings);
  const std::string page = HtmlFindings(report);
  EXPECT_THAT(page, HasSubstr("<dd>1970-01-01T00:00:00Z</dd>"));
  EXPECT_THAT(page, HasSubstr("<dd>Quorvane " + report.programVersion + "</dd>"));
  EXPECT_THAT(page, HasSubstr("FYI suppressed"));
}

TEST(HtmlFindingsTest, APageWithoutFindingsHasNoControls) {
  const std::string page = PageOf(MinimalAgs4().Text());
  EXPECT_THAT(page, HasSubstr("no findings"));
  EXPECT_THAT(page, Not(HasSubstr("id=\"controls\"")));
  EXPECT_THAT(HtmlFindings(CollectFindings({})), HasSubstr("No file was checked."));
}

TEST(HtmlFindingsTest, KindsOfFindingAreExplainedOnce) {
  const std::string page = PageOf(FileWithRows({{"BH1", "deep", "deeper"}}));
  EXPECT_EQ(CountOf(page, "<section id=\"kind-types.value-mismatch\">"), 1U);
  EXPECT_GE(CountOf(page, "<a href=\"#kind-types.value-mismatch\">"), 2U);
}

TEST(HtmlFindingsTest, WithVeryManyFindingsLinesStandAsTheyAre) {
  std::vector<std::vector<std::string>> rows;
  for (std::size_t row = 0; row <= MostFindingsWithCells; ++row)
    rows.push_back({"BH" + std::to_string(row), "deep", "1.00"});
  const std::string page = PageOf(FileWithRows(rows));
  EXPECT_THAT(page, HasSubstr("With more than 5,000 findings in the file"));
  EXPECT_EQ(CountOf(page, "\">\"DATA\",\"BH"), MostFindingsWithCells + 1);
  EXPECT_EQ(CountOf(page, "<table class=\"cells\">"), 0U);
  rows.resize(10);
  const std::string small = PageOf(FileWithRows(rows));
  EXPECT_THAT(small, Not(HasSubstr("With more than")));
  EXPECT_EQ(CountOf(small, "<pre>\"DATA\",\"BH"), 10U);
  EXPECT_THAT(small, HasSubstr("<table class=\"cells\">"));
}

TEST(HtmlFindingsTest, ALineThatWasCutSaysSo) {
  const std::string page = PageOf(FileWithRows({{"BH1", std::string(5000, 'x'), "1.00"}}));
  EXPECT_THAT(page, HasSubstr("The line is longer than what is shown of it."));
  EXPECT_THAT(page, Not(HasSubstr("<i>missing</i>")));
}

}  // namespace
}  // namespace quorvane::test
