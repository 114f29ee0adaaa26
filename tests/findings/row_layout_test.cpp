#include "findings/row_layout.h"

#include <algorithm>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "parse/file_text.h"
#include "support/check_text.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using Texts = std::vector<std::string>;

/// A file with one group of three headings, and a finding at one of its lines.
class RowLayoutTest : public testing::Test {
 protected:
  explicit RowLayoutTest(AgsFormat format = AgsFormat::Ags4) {
    file_.format = format;
    GroupRecord& group = file_.groups.emplace_back();
    group.name = "SAMP";
    group.headings = {{"LOCA_ID", "", "ID"}, {"SAMP_TOP", "m", "2DP"}, {"SAMP_REM", "", "X"}};
    finding_.group = 1;
  }

  /// Lays out the row at a line of these lines.
  RowLayout LayOut(const Texts& lines, std::int32_t line, std::int32_t heading = 0) {
    finding_.line = line;
    finding_.heading = heading;
    const FileText text(ByteBuffer(Join(lines)));
    return LayOutRow(file_, finding_, AllLines(text));
  }

  static std::string Join(const Texts& lines) {
    std::string text;
    for (const std::string& line : lines)
      text.append(line).append(LineBreak);
    return text;
  }

  FileRecord file_;
  FindingRecord finding_;
};

class Ags3RowLayoutTest : public RowLayoutTest {
 protected:
  Ags3RowLayoutTest() : RowLayoutTest(AgsFormat::Ags3) {}
};

Texts Values(const RowLayout& layout) {
  Texts values;
  for (const RowCell& cell : layout.cells)
    values.push_back(cell.value);
  return values;
}

/// The numbers of the cells that are marked.
std::vector<std::size_t> Meant(const RowLayout& layout) {
  std::vector<std::size_t> meant;
  for (std::size_t index = 0; index < layout.cells.size(); ++index) {
    if (layout.cells[index].isMeant) meant.push_back(index + 1);
  }
  return meant;
}

TEST_F(RowLayoutTest, PutsTheFieldsBehindTheLabelUnderTheHeadings) {
  const RowLayout layout = LayOut({R"("DATA","BH1","1.50","a ""b"", c")"}, 1, 2);
  ASSERT_THAT(layout.cells, SizeIs(3));
  EXPECT_EQ(layout.cells[1].heading, "SAMP_TOP");
  EXPECT_EQ(layout.cells[1].unit, "m");
  EXPECT_EQ(layout.cells[1].type, "2DP");
  EXPECT_THAT(Values(layout), ElementsAre("BH1", "1.50", "a \"b\", c"));
  EXPECT_THAT(Meant(layout), ElementsAre(2));
  EXPECT_EQ(layout.firstLine, 1);
  EXPECT_EQ(layout.lastLine, 1);
}

TEST_F(RowLayoutTest, MarksNoCellWhenTheFindingIsAboutTheRow) {
  EXPECT_THAT(Meant(LayOut({R"("DATA","BH1","1.50","")"}, 1)), IsEmpty());
}

TEST_F(RowLayoutTest, LaysOutTheLinesOfTheHeadAsWell) {
  const Texts lines{R"("GROUP","SAMP")", R"("HEADING","LOCA_ID","SAMP_TOP","SAMP_REM")",
                    R"("UNIT","","m","")", R"("TYPE","ID","2DP","X")"};
  EXPECT_THAT(Values(LayOut(lines, 2)), ElementsAre("LOCA_ID", "SAMP_TOP", "SAMP_REM"));
  EXPECT_THAT(Values(LayOut(lines, 3, 2)), ElementsAre("", "m", ""));
  EXPECT_THAT(Meant(LayOut(lines, 3, 2)), ElementsAre(2));
  EXPECT_THAT(Values(LayOut(lines, 4)), ElementsAre("ID", "2DP", "X"));
}

TEST_F(RowLayoutTest, AGroupLineABlankOneAndAnyOtherHaveNoCells) {
  const Texts lines{R"("GROUP","SAMP")", "", "stray words", R"("DATA","BH1","1.50","")"};
  for (const std::int32_t line : {0, 1, 2, 3, 5})
    EXPECT_THAT(LayOut(lines, line).cells, IsEmpty()) << line;
  finding_.group = 0;
  EXPECT_THAT(LayOut(lines, 4).cells, IsEmpty());
}

TEST_F(RowLayoutTest, MissingFieldsAreSaidToBeMissing) {
  const RowLayout layout = LayOut({R"("DATA","BH1","")"}, 1, 3);
  ASSERT_THAT(layout.cells, SizeIs(3));
  EXPECT_TRUE(layout.cells[1].isThere);
  EXPECT_FALSE(layout.cells[2].isThere);
  EXPECT_THAT(Meant(layout), ElementsAre(3));
}

TEST_F(RowLayoutTest, FieldsBeyondTheHeadingsHaveNone) {
  const RowLayout layout = LayOut({R"("DATA","BH1","1.50","","more")"}, 1);
  ASSERT_THAT(layout.cells, SizeIs(4));
  EXPECT_EQ(layout.cells[3].heading, "");
  EXPECT_EQ(layout.cells[3].value, "more");
}

TEST_F(RowLayoutTest, OfVeryManyFieldsTheFirstAreThere) {
  const RowLayout layout = LayOut({"\"DATA\"" + std::string(100'000, ',')}, 1);
  EXPECT_THAT(layout.cells, SizeIs(103));
}

TEST_F(RowLayoutTest, ValuesOfACodePageAreUtf8) {
  EXPECT_THAT(Values(LayOut({"\"DATA\",\"BH\xB0\",\"\",\"\""}, 1)),
              ElementsAre("BH\xC2\xB0", "", ""));
}

TEST_F(RowLayoutTest, ALineThatLacksQuotesIsLaidOutAsFarAsItGoes) {
  EXPECT_THAT(Values(LayOut({R"(DATA,BH1,1.50,"open, end)"}, 1)),
              ElementsAre("BH1", "1.50", "open, end"));
}

TEST_F(RowLayoutTest, TheLineThatAReportKeptIsEnough) {
  finding_.line = 812;
  const RowLayout layout =
      LayOutRow(file_, finding_, SingleLine(812, R"("DATA","BH1","1.50","x")"));
  EXPECT_THAT(Values(layout), ElementsAre("BH1", "1.50", "x"));
  EXPECT_THAT(LayOutRow(file_, finding_, FileLines()).cells, IsEmpty());
}

TEST_F(Ags3RowLayoutTest, TakesTheFieldsFromTheFirstOn) {
  const RowLayout layout = LayOut({R"("BH1","1.50","x")"}, 1, 1);
  EXPECT_THAT(Values(layout), ElementsAre("BH1", "1.50", "x"));
  EXPECT_THAT(Meant(layout), ElementsAre(1));
}

TEST_F(Ags3RowLayoutTest, ContinuationsJoinTheirRowFromWhicheverLine) {
  const Texts lines{R"("BH0","0.50","other")", R"("BH1","1.50","one ")", "",
                    R"("<CONT>","","two ")",   R"("<cont>","","three")", R"("BH2","2.50","next")"};
  for (const std::int32_t line : {2, 4, 5}) {
    const RowLayout layout = LayOut(lines, line, 3);
    EXPECT_THAT(Values(layout), ElementsAre("BH1", "1.50", "one two three")) << line;
    EXPECT_EQ(layout.firstLine, 2);
    EXPECT_EQ(layout.lastLine, 5);
    EXPECT_THAT(Meant(layout), ElementsAre(3));
  }
  EXPECT_THAT(Values(LayOut(lines, 6)), ElementsAre("BH2", "2.50", "next"));
}

TEST_F(Ags3RowLayoutTest, AContinuationAloneShowsWhatItHolds) {
  finding_.line = 9;
  const RowLayout layout = LayOutRow(file_, finding_, SingleLine(9, R"("<CONT>","","two")"));
  EXPECT_THAT(Values(layout), ElementsAre("<CONT>", "", "two"));
}

TEST_F(Ags3RowLayoutTest, HeadingsAndUnitsThatGoOnInTheNextLineAreOneRow) {
  const Texts lines{R"("**SAMP")", R"("*LOCA_ID","*SAMP_TOP",)", R"("*SAMP_REM")", R"("<UNITS>",)",
                    R"("m","")"};
  for (const std::int32_t line : {2, 3})
    EXPECT_THAT(Values(LayOut(lines, line)), ElementsAre("*LOCA_ID", "*SAMP_TOP", "*SAMP_REM"));
  for (const std::int32_t line : {4, 5}) {
    const RowLayout layout = LayOut(lines, line, 3);
    EXPECT_THAT(Values(layout), ElementsAre("<UNITS>", "m", ""));
    EXPECT_EQ(layout.firstLine, 4);
    EXPECT_EQ(layout.lastLine, 5);
  }
}

TEST_F(Ags3RowLayoutTest, ADataRowThatEndsInACommaDoesNotGoOn) {
  const Texts lines{R"("**SAMP")", R"("*LOCA_ID","*SAMP_TOP","*SAMP_REM")", R"("<UNITS>","m","")",
                    R"("BH1","1.50",)", R"("BH2","2.50",)"};
  const RowLayout layout = LayOut(lines, 5);
  EXPECT_THAT(Values(layout), ElementsAre("BH2", "2.50", ""));
  EXPECT_EQ(layout.firstLine, 5);
}

TEST_F(Ags3RowLayoutTest, AGroupLineHasNoCells) {
  EXPECT_THAT(LayOut({R"("**SAMP")"}, 1).cells, IsEmpty());
}

/// What a run reports, laid out in its file: the cell that is marked holds the value that the
/// finding speaks of.
TEST(RowLayoutOfARunTest, MarksTheCellThatTheFindingIsAbout) {
  const std::string text = ReplaceAll(
      MinimalAgs4()
          .Group("LOCA", {"LOCA_ID", "LOCA_GL"}, {"", "m"}, {"ID", "2DP"}, {{"BH1", "deep"}})
          .Text(),
      "\n", LineBreak);
  const FindingsReport report = CollectFindings({{"test.ags", text}});
  const FileRecord& file = report.files.front();
  const auto finding =
      std::find_if(file.findings.begin(), file.findings.end(), [](const FindingRecord& record) {
        return record.text.find("deep") != std::string_view::npos;
      });
  ASSERT_NE(finding, file.findings.end());
  const FileText lines{ByteBuffer(text)};
  const RowLayout layout = LayOutRow(file, *finding, AllLines(lines));
  EXPECT_THAT(Meant(layout), ElementsAre(2));
  EXPECT_EQ(layout.cells[1].value, "deep");
  EXPECT_EQ(layout.cells[1].heading, "LOCA_GL");
}

TEST(IsHeadLine, HeadLinesAreToldFromRows) {
  for (const std::string_view line : {"\"HEADING\",\"LOCA_ID\"", "UNIT,m", "\"TYPE\",\"ID\""})
    EXPECT_TRUE(IsHeadLine(AgsFormat::Ags4, line)) << line;
  EXPECT_FALSE(IsHeadLine(AgsFormat::Ags4, "\"DATA\",\"HEADING\""));
  EXPECT_TRUE(IsHeadLine(AgsFormat::Ags3, "\"*LOCA_ID\",\"*LOCA_GL\""));
  EXPECT_TRUE(IsHeadLine(AgsFormat::Ags3, "\"<UNITS>\",\"m\""));
  EXPECT_FALSE(IsHeadLine(AgsFormat::Ags3, "\"BH1\",\"1.00\""));
}

}  // namespace
}  // namespace quorvane::test
