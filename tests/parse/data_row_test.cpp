#include "parse/data_row.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "read_rows.h"

namespace quorvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto Ags3 = AgsFormat::Ags3;
constexpr auto Ags4 = AgsFormat::Ags4;

constexpr const char* NullField =
    "ERROR: Line 1 - null field are to be included as \"\" with no internal spaces (Rule 15)";
constexpr const char* FieldCount =
    "ERROR: Line 1 - does not have the same number of fields as the number of headers ";

TEST(AddDataRow, ReadsALineIntoARow) {
  for (const AgsFormat format : {Ags3, Ags4}) {
    ReadRows rows(format, 3, {R"("BH1","1.00","")", R"("BH2","a, b","c")"});
    EXPECT_EQ(rows.RowCount(), 2);
    EXPECT_THAT(rows.Row(1), ElementsAre("BH1", "1.00", ""));
    EXPECT_THAT(rows.Row(2), ElementsAre("BH2", "a, b", "c"));
    EXPECT_EQ(rows.LineOf(2), 2);
    EXPECT_THAT(rows.Findings(), IsEmpty());
  }
}

TEST(AddDataRow, KeepsDoubledQuotesAsPairsInAgs4) {
  ReadRows rows(Ags4, 2, {R"("BH1","5"" pipe")", R"("BH2","a ""b"" c")"});
  EXPECT_THAT(rows.Row(1), ElementsAre("BH1", R"(5"" pipe)"));
  EXPECT_THAT(rows.Row(2), ElementsAre("BH2", R"(a ""b"" c)"));
  EXPECT_THAT(rows.Findings(), IsEmpty());
}

TEST(AddDataRow, LetsDoubledQuotesStandAtTheEndsOfValuesInAgs4) {
  ReadRows rows(Ags4, 3, {R"("""A""","B""","""")", R"("""","""""","""a")"});
  EXPECT_THAT(rows.Row(1), ElementsAre(R"(""A"")", R"(B"")", R"("")"));
  EXPECT_THAT(rows.Row(2), ElementsAre(R"("")", R"("""")", R"(""a)"));
  EXPECT_THAT(rows.Findings(), IsEmpty());
}

TEST(AddDataRow, LetsDoubledQuotesStandBesideCommasInAgs4) {
  ReadRows rows(Ags4, 2, {R"("a"",""b","c"",")", R"(",""","""",)"});
  EXPECT_THAT(rows.Row(1), ElementsAre(R"(a"",""b)", R"(c"",)"));
  EXPECT_THAT(rows.Findings().size(), 3U);  // the second line ends with a comma
}

TEST(AddDataRow, ReadsAnAgs4LineWithOneUnsoundFieldByTheSteps) {
  ReadRows rows(Ags4, 3, {R"("a ""b"" c",X,"d"" e")"});
  EXPECT_THAT(rows.Row(1), ElementsAre(R"(a ""b"" c)", "X", R"(d"" e)"));
  EXPECT_THAT(rows.Findings(),
              ElementsAre("ERROR: Line 1 - 'X' - missing surrounding quotes (Rule 8)."));
}

TEST(AddDataRow, ReadsAgs3LinesByTheStepsAlways) {
  ReadRows rows(Ags3, 2, {R"("a ""b"" c","d")"});
  EXPECT_THAT(rows.Row(1), ElementsAre(R"(a ""b"" c)", "d"));
  EXPECT_THAT(rows.Findings(),
              ElementsAre("ERROR: Line 1 - 'a \"\"b\"\" c' - has internal quotes (Rule 8)."));
  ReadRows last(Ags3, 2, {R"("a","5"" pipe")"});
  EXPECT_THAT(last.Row(1), ElementsAre("a", R"(5"" pipe")"));
  EXPECT_THAT(last.Findings(), ElementsAre("ERROR: Line 1 - '5\"\" pipe\"' - missing surrounding "
                                           "quotes (Rule 8)."));
}

TEST(AddDataRow, ValuesLikePlaceholdersStayInSoundAgs4Lines) {
  ReadRows rows(Ags4, 2, {R"("#`~#","!@#$,")", R"("%^&*","a ""b""")"});
  EXPECT_THAT(rows.Row(1), ElementsAre("#`~#", "!@#$,"));
  EXPECT_THAT(rows.Row(2), ElementsAre("%^&*", R"(a ""b"")"));
  EXPECT_THAT(rows.Findings(), IsEmpty());
}

TEST(AddDataRow, AnEmptyLastFieldIsSound) {
  for (const AgsFormat format : {Ags3, Ags4}) {
    ReadRows rows(format, 2, {R"("BH1","")"});
    EXPECT_THAT(rows.Row(1), ElementsAre("BH1", ""));
    EXPECT_THAT(rows.Findings(), IsEmpty());
  }
}

TEST(AddDataRow, TwoQuotesAloneAreOneEmptyField) {
  for (const AgsFormat format : {Ags3, Ags4}) {
    ReadRows rows(format, 1, {R"("")"});
    EXPECT_EQ(rows.RowCount(), 1);
    EXPECT_THAT(rows.Row(1), ElementsAre(""));
    EXPECT_THAT(rows.Findings(), IsEmpty());
  }
}

TEST(AddDataRow, AFieldOfBlanksIsReportedAndEmpty) {
  for (const AgsFormat format : {Ags3, Ags4}) {
    ReadRows rows(format, 3, {R"("BH1","   ","c")"});
    EXPECT_THAT(rows.Row(1), ElementsAre("BH1", "", "c"));
    EXPECT_THAT(rows.Findings(), ElementsAre(NullField));
    EXPECT_EQ(rows.Places().front().heading, 2);
  }
}

TEST(AddDataRow, AnUnquotedFieldIsReported) {
  for (const AgsFormat format : {Ags3, Ags4}) {
    ReadRows rows(format, 2, {R"("BH1",1.00)"});
    EXPECT_THAT(rows.Row(1), ElementsAre("BH1", "1.00"));
    EXPECT_THAT(rows.Findings(),
                ElementsAre("ERROR: Line 1 - '1.00' - missing surrounding quotes (Rule 8)."));
  }
}

TEST(AddDataRow, OneFieldTooManyIsReportedOnce) {
  for (const AgsFormat format : {Ags3, Ags4}) {
    for (const char* line : {R"("a","b","c")", R"(" a"," b","c")", R"("a","b","c","d","e")"}) {
      ReadRows rows(format, 2, {line});
      EXPECT_THAT(rows.Findings(), ElementsAre(FieldCount)) << line;
    }
  }
}

TEST(AddDataRow, FieldsThatAreMissingAreReportedAndEmpty) {
  for (const AgsFormat format : {Ags3, Ags4}) {
    for (const char* line : {R"("a")", R"(" a")"}) {
      ReadRows rows(format, 3, {line});
      EXPECT_THAT(rows.Findings(), ElementsAre(FieldCount)) << line;
      EXPECT_EQ(rows.Row(1)[1], "");
      EXPECT_EQ(rows.Row(1)[2], "");
    }
  }
}

TEST(AddDataRow, LooksAtNoFieldBeyondTheLastHeading) {
  for (const AgsFormat format : {Ags3, Ags4}) {
    ReadRows blanks(format, 1, {R"("a","   ")"});
    EXPECT_THAT(blanks.Findings(), ElementsAre(FieldCount));
    ReadRows unquoted(format, 1, {R"("a",b,  ,"c)"});
    EXPECT_THAT(unquoted.Row(1), ElementsAre("a"));
    EXPECT_THAT(unquoted.Findings(), ElementsAre(FieldCount));
  }
}

TEST(AddDataRow, ACommaAtTheEndIsOneFieldMore) {
  for (const AgsFormat format : {Ags3, Ags4}) {
    ReadRows tooMany(format, 1, {R"("a",)"});
    EXPECT_THAT(tooMany.Findings(), ElementsAre(FieldCount));
    ReadRows unquoted(format, 2, {R"("a",)"});
    EXPECT_THAT(unquoted.Row(1), ElementsAre("a", ""));
    EXPECT_THAT(unquoted.Findings(),
                ElementsAre("ERROR: Line 1 - '' - missing surrounding quotes (Rule 8)."));
  }
}

TEST(AddDataRow, QuotingComesBeforeTheFieldCount) {
  ReadRows rows(Ags3, 3, {R"("  ",b)"});
  EXPECT_THAT(rows.Findings(),
              ElementsAre(NullField, "ERROR: Line 1 - 'b' - missing surrounding quotes (Rule 8).",
                          FieldCount));
}

TEST(AddDataRow, ContinuesTheRowAboveInAnyLetterCase) {
  for (const AgsFormat format : {Ags3, Ags4}) {
    ReadRows rows(format, 3,
                  {R"("BH1","some","x")", R"("<CONT>"," more","")", R"("<Cont>"," text","y")",
                   R"("<cont>","","z")", R"("BH2","other","")"});
    EXPECT_EQ(rows.RowCount(), 2);
    EXPECT_THAT(rows.Row(1), ElementsAre("BH1", "some more text", "xyz"));
    EXPECT_THAT(rows.Row(2), ElementsAre("BH2", "other", ""));
    EXPECT_EQ(rows.LineOf(1), 1);
    EXPECT_EQ(rows.LineOf(2), 5);
    EXPECT_THAT(rows.Findings(), IsEmpty());
  }
}

TEST(AddDataRow, ContinuesWithAnUnquotedMarkToo) {
  ReadRows rows(Ags3, 2, {R"("BH1","a")", R"(<CONT>,"b")"});
  EXPECT_EQ(rows.RowCount(), 1);
  EXPECT_THAT(rows.Row(1), ElementsAre("BH1", "ab"));
  EXPECT_THAT(rows.Findings(),
              ElementsAre("ERROR: Line 2 - '<CONT>' - missing surrounding quotes (Rule 8)."));
}

TEST(AddDataRow, ContinuesWithTextsThatWereRewritten) {
  ReadRows rows(Ags4, 3,
                {R"("BH1","a","b")", R"("<CONT>"," 5"" pipe",x)", R"("<CONT>",", ""q"" end",y)"});
  EXPECT_THAT(rows.Row(1), ElementsAre("BH1", R"(a 5"" pipe, ""q"" end)", "bxy"));
}

TEST(AddDataRow, ContinuesInTheOrderOfTheLines) {
  std::vector<std::string> lines{R"("BH1","from ","")"};
  std::string numbers = "from ";
  std::string odds;
  for (int line = 1; line <= 300; ++line) {
    const std::string number = std::to_string(line) + ";";
    const std::string odd = line % 2 == 1 ? number : "";
    lines.emplace_back(R"("<CONT>",")").append(number).append("\",\"").append(odd).append("\"");
    numbers += number;
    odds += odd;
  }
  const ReadRows rows(Ags3, 3, lines);
  EXPECT_EQ(rows.RowCount(), 1);
  EXPECT_THAT(rows.Row(1), ElementsAre("BH1", numbers, odds));
}

TEST(AddDataRow, ContinuesColumnsThatTheRowDidNotHave) {
  ReadRows rows(Ags3, 4, {R"("BH1","a")", R"("<CONT>","","b","")", R"("<CONT>","","","c")"});
  EXPECT_THAT(rows.Row(1), ElementsAre("BH1", "a", "b", "c"));
  EXPECT_THAT(rows.Findings(), ElementsAre(FieldCount));
}

TEST(AddDataRow, CountsTheFieldsOfContinuationLinesToo) {
  ReadRows rows(Ags3, 2, {R"("BH1","a")", R"("<CONT>")", R"("<CONT>","b","c")"});
  EXPECT_THAT(rows.Row(1), ElementsAre("BH1", "ab"));
  EXPECT_THAT(
      rows.Findings(),
      ElementsAre(
          "ERROR: Line 2 - does not have the same number of fields as the number of headers ",
          "ERROR: Line 3 - does not have the same number of fields as the number of headers "));
}

TEST(AddDataRow, ChecksContinuationFieldsForBlanks) {
  ReadRows rows(Ags3, 2, {R"("BH1","a")", R"("<CONT>","  ")"});
  EXPECT_THAT(rows.Row(1), ElementsAre("BH1", "a"));
  EXPECT_THAT(rows.Findings(), ElementsAre("ERROR: Line 2 - null field are to be included as \"\" "
                                           "with no internal spaces (Rule 15)"));
}

TEST(AddDataRow, AContinuationWithoutARowStartsOne) {
  for (const AgsFormat format : {Ags3, Ags4}) {
    ReadRows rows(format, 2, {R"("<CONT>","a")", R"("<CONT>","b")", R"("BH1","c")"});
    EXPECT_EQ(rows.RowCount(), 2);
    EXPECT_THAT(rows.Row(1), ElementsAre("", "ab"));
    EXPECT_THAT(rows.Row(2), ElementsAre("BH1", "c"));
    EXPECT_EQ(rows.LineOf(1), 1);
    EXPECT_THAT(rows.Findings(), IsEmpty());
  }
}

TEST(AddDataRow, OnlyTheWholeMarkContinuesARow) {
  for (const AgsFormat format : {Ags3, Ags4}) {
    ReadRows rows(format, 1,
                  {R"("a")", R"("<CONT>x")", R"(" <CONT>")", R"("<CONT> ")", R"("CONT")"});
    EXPECT_EQ(rows.RowCount(), 5);
    EXPECT_THAT(rows.Row(2), ElementsAre("<CONT>x"));
    EXPECT_THAT(rows.Row(3), ElementsAre(" <CONT>"));
    EXPECT_THAT(rows.Row(4), ElementsAre("<CONT> "));
  }
}

TEST(AddDataRow, OnlyTheFirstFieldContinuesARow) {
  ReadRows rows(Ags3, 2, {R"("a","b")", R"("","<CONT>")"});
  EXPECT_EQ(rows.RowCount(), 2);
  EXPECT_THAT(rows.Row(2), ElementsAre("", "<CONT>"));
}

TEST(AddDataRow, AGroupsFirstLineContinuesNoRowOfTheGroupBefore) {
  const FileText file{ByteBuffer("\"a\",\"b\"\n\"<CONT>\",\"c\"\n\"<CONT>\",\"d\"\n\"e\",\"f\"")};
  GroupTable table(file);
  RecordedLog recorded;
  DataRowReader reader(table, recorded.Log(), Ags3);
  for (std::int32_t number = 1; number <= 4; ++number) {
    if (number == 1 || number == 3) {
      reader.FinishRow();
      table.AddGroup("GEOL", number);
      table.AddHeading("GEOL_A");
      table.AddHeading("GEOL_B");
    }
    reader.AddDataRow(number, file.Line(number));
  }
  reader.FinishRow();
  EXPECT_EQ(table.Value(1, 1, 2), "bc");
  EXPECT_EQ(table.At(2).rowCount, 2);
  EXPECT_EQ(table.Value(2, 1, 1), "");
  EXPECT_EQ(table.Value(2, 1, 2), "d");
  EXPECT_EQ(table.Value(2, 2, 2), "f");
}

TEST(AddDataRow, KnowsTheRowOfWhatItFinds) {
  ReadRows rows(Ags3, 2, {R"("a","b")", R"("c","d","e")", R"("f",g)", R"("<CONT>",h)", R"("i",j)"});
  std::vector<int> rowNumbers;
  for (const MessagePlace& place : rows.Places()) {
    EXPECT_EQ(place.group, 1);
    rowNumbers.push_back(place.row);
  }
  EXPECT_THAT(rowNumbers, ElementsAre(2, 3, 3, 4));
}

TEST(AddDataRow, KnowsTheRowOfALineThatOnlyLooksContinued) {
  ReadRows rows(Ags3, 2, {R"("a","b")", R"("<CONT>x",c)"});
  EXPECT_EQ(rows.RowCount(), 2);
  EXPECT_EQ(rows.Places().front().row, 2);
}

TEST(AddDataRow, ValuesOfSoundLinesAreViewsIntoTheFile) {
  const ReadRows rows(Ags4, 2, {R"("BH1","5"" pipe")", R"("BH2","x")"});
  for (std::int32_t row = 1; row <= 2; ++row) {
    for (int column = 1; column <= 2; ++column) {
      EXPECT_TRUE(rows.Table().LiesInFile(rows.Table().Value(1, row, column)));
    }
  }
}

}  // namespace
}  // namespace quorvane::test
