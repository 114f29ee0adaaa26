#include "run/version_detection.h"

#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "text/text.h"

namespace quorvane::test {
namespace {

/// The version of a file with exactly these bytes: "4", "4.0.4", "3" or "none".
std::string VersionOf(const std::string& bytes) {
  const FileText file{ByteBuffer(bytes)};
  const std::optional<DetectedVersion> version = DetectVersion(file);
  if (!version) return "none";
  if (version->format == AgsFormat::Ags3) return version->isAgs404 ? "3 with 4.0.4" : "3";
  return version->isAgs404 ? "4.0.4" : "4";
}

TEST(VersionDetection, UnitAndTypeLinesMakeAgs4) {
  EXPECT_EQ(VersionOf("\"GROUP\",\"PROJ\"\r\n\"UNIT\",\"\"\r\n\"TYPE\",\"ID\"\r\n"), "4");
  EXPECT_EQ(VersionOf("\"TYPE\",\"ID\"\r\n\"UNIT\",\"\""), "4") << "in any order";
  EXPECT_EQ(VersionOf("\"UNIT\"\r\n\"TYPE\""), "4");
}

TEST(VersionDetection, LinesWithoutQuotesMakeAgs4) {
  EXPECT_EQ(VersionOf("GROUP,PROJ\r\nHEADING,PROJ_ID\r\nUNIT,\r\nTYPE,ID\r\nDATA,1\r\n"), "4");
}

TEST(VersionDetection, LetterCaseDoesNotMatter) {
  EXPECT_EQ(VersionOf("\"Unit\",\"\"\r\n\"tYpE\",\"ID\""), "4");
  EXPECT_EQ(VersionOf("unit,\r\ntype,ID"), "4");
}

TEST(VersionDetection, LinesNeedOnlyBeginWithTheWords) {
  EXPECT_EQ(VersionOf("UNITS of measure\r\nTYPEFACE"), "4");
  EXPECT_EQ(VersionOf("\"UNIT\"x\r\n\"TYPE\"y"), "4");
}

TEST(VersionDetection, BothWordsMustBeQuotedOrBothNot) {
  EXPECT_EQ(VersionOf("\"UNIT\",\"\"\r\nTYPE,ID"), "none");
  EXPECT_EQ(VersionOf("UNIT,\r\n\"TYPE\",\"ID\""), "none");
  EXPECT_EQ(VersionOf("\"UNIT,\"\"\r\n\"TYPE,\"ID\""), "none") << "the quotes must close";
}

TEST(VersionDetection, OneWordIsNotEnough) {
  EXPECT_EQ(VersionOf("\"UNIT\",\"\"\r\n\"UNIT\",\"\""), "none");
  EXPECT_EQ(VersionOf("TYPE,ID"), "none");
}

TEST(VersionDetection, WordsInsideALineDoNotCount) {
  EXPECT_EQ(VersionOf("x \"UNIT\"\r\nx \"TYPE\""), "none");
  EXPECT_EQ(VersionOf(" UNIT\r\n TYPE"), "none");
}

TEST(VersionDetection, GroupLinesWithAsterisksMakeAgs3) {
  EXPECT_EQ(VersionOf("\"**PROJ\"\r\n\"*PROJ_ID\"\r\n"), "3") << "as the first line";
  EXPECT_EQ(VersionOf("Title\r\n\r\n**PROJ\r\n"), "3");
  EXPECT_EQ(VersionOf("Title\r\n\"**PROJ\""), "3");
  EXPECT_EQ(VersionOf("**"), "3");
}

TEST(VersionDetection, AsterisksInsideALineDoNotCount) {
  EXPECT_EQ(VersionOf("a **PROJ\r\n\"*PROJ_ID\"\r\n*PROJ_ID"), "none");
  EXPECT_EQ(VersionOf(" \"**PROJ\""), "none");
}

TEST(VersionDetection, Ags4GoesBeforeAgs3) {
  EXPECT_EQ(VersionOf("\"**PROJ\"\r\nUNIT,\r\nTYPE,"), "4");
}

TEST(VersionDetection, AgsThreeFilesMayHoldAUnitGroup) {
  EXPECT_EQ(VersionOf("\"**UNIT\"\r\n\"*UNIT_UNIT\"\r\n\"m\""), "3");
}

TEST(VersionDetection, OtherFilesAreNeither) {
  EXPECT_EQ(VersionOf(""), "none");
  EXPECT_EQ(VersionOf("\r\n\r\n"), "none");
  EXPECT_EQ(VersionOf("U"), "none");
  EXPECT_EQ(VersionOf("\""), "none");
  EXPECT_EQ(VersionOf("Date,Level\r\n2026-01-02,1.5\r\n"), "none");
  EXPECT_EQ(VersionOf(std::string("\x00\xFF\x01*\x00", 5)), "none");
}

TEST(VersionDetection, LineEndsOfAllKindsBeginLines) {
  for (const std::string_view lineEnd : {"\r\n", "\n", "\r"}) {
    EXPECT_EQ(VersionOf(ReplaceAll("x|UNIT|TYPE|", "|", lineEnd)), "4");
    EXPECT_EQ(VersionOf(ReplaceAll("x|**PROJ|", "|", lineEnd)), "3");
  }
}

TEST(VersionDetection, LoneLineEndsDoNotBeginLinesBesideCrLf) {
  EXPECT_EQ(VersionOf("x\r\ny\nUNIT\nTYPE"), "none");
  EXPECT_EQ(VersionOf("x\r\ny\r**PROJ"), "none");
  EXPECT_EQ(VersionOf("x\ry\n**PROJ"), "none") << "lines end with CR when no CR LF is there";
}

TEST(VersionDetection, AByteOrderMarkHidesNothing) {
  EXPECT_EQ(VersionOf("\xEF\xBB\xBF\"**PROJ\"\r\n"), "3");
  EXPECT_EQ(VersionOf("\xEF\xBB\xBFUNIT\r\nTYPE\r\n"), "4");
}

// The edition 4.0.4.

const std::string Ags4Lines = "\"UNIT\",\"\"\r\n\"TYPE\",\"ID\"\r\n";

TEST(VersionDetection, Edition404StandsBehindTranAgs) {
  EXPECT_EQ(VersionOf(Ags4Lines + "\"TRAN_AGS\"\r\n\"4.0.4\""), "4.0.4");
  EXPECT_EQ(VersionOf("\"HEADING\",\"TRAN_AGS\"\r\n" + Ags4Lines + "\"DATA\",\"4.0.4\""), "4.0.4");
}

TEST(VersionDetection, Edition404MayStandOutsideTheTranGroup) {
  EXPECT_EQ(VersionOf(Ags4Lines + "\"HEADING\",\"TRAN_AGS\"\r\n\"DATA\",\"4.0.3\"\r\n\r\n"
                                  "\"GROUP\",\"PROJ\"\r\n\"DATA\",\"4.0.4\"\r\n"),
            "4.0.4");
}

TEST(VersionDetection, Edition404MustStandBehindTheFirstTranAgs) {
  EXPECT_EQ(VersionOf("\"4.0.4\"\r\n" + Ags4Lines + "\"TRAN_AGS\"\r\n\"4.0.3\""), "4");
  EXPECT_EQ(VersionOf(Ags4Lines + "TRAN_AGS\r\n\"4.0.4\"\r\nTRAN_AGS\r\n"), "4.0.4");
  EXPECT_EQ(VersionOf(Ags4Lines + "\"4.0.4\""), "4") << "without TRAN_AGS";
}

TEST(VersionDetection, Edition404IsSoughtInExactLetterCaseAndQuotes) {
  EXPECT_EQ(VersionOf(Ags4Lines + "\"tran_ags\"\r\n\"4.0.4\""), "4");
  EXPECT_EQ(VersionOf(Ags4Lines + "\"TRAN_AGS\"\r\n4.0.4"), "4");
  EXPECT_EQ(VersionOf(Ags4Lines + "\"TRAN_AGS\"\r\n\"4.0.4 \""), "4");
  EXPECT_EQ(VersionOf(Ags4Lines + "\"TRAN_AGS\"\r\n\"AGS 4.0.4\""), "4");
  EXPECT_EQ(VersionOf(Ags4Lines + "\"TRAN_AGS\"\r\n\"4x0x4\",\"410.4\",\"4.0.4"), "4");
}

TEST(VersionDetection, Edition404DoesNotMakeAnAgs3FileAnother) {
  EXPECT_EQ(VersionOf("\"**PROJ\"\r\n\"TRAN_AGS\"\r\n\"4.0.4\""), "3");
}

// The text is searched block by block: it must be found wherever it lies, and at the very end.
TEST(VersionDetection, Edition404IsFoundAtEveryDistance) {
  const std::string form = Ags4Lines + "\"TRAN_AGS\"\r\n@\"4.0.4\"";
  for (std::size_t distance = 4050; distance <= 4130; ++distance) {
    const std::string filler(distance, '4');
    EXPECT_EQ(VersionOf(ReplaceAll(form, "@", filler)), "4.0.4") << distance;
    EXPECT_EQ(VersionOf(ReplaceAll(form, "@", filler) + filler), "4.0.4") << distance;
    std::string cut = ReplaceAll(form, "@", filler);
    cut.pop_back();
    EXPECT_EQ(VersionOf(cut), "4") << distance;
  }
}

}  // namespace
}  // namespace quorvane::test
