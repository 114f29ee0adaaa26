#include "parse/field.h"

#include <array>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "parse/field_messages.h"
#include "plain_reading.h"
#include "support/random_text.h"
#include "support/recorded_log.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The fields of a line and what was found in them.
struct Reading {
  std::vector<std::string> values;
  std::vector<std::string> findings;
};

Reading ReadAll(std::string_view line, bool restore = false) {
  RecordedLog recorded;
  Reading reading;
  std::size_t position = 1;
  while (position != 0) {
    std::string restored;
    reading.values.emplace_back(
        GetNextField({recorded.Log(), 7, line, restore, {}}, position, restored));
  }
  reading.findings = recorded.Findings();
  return reading;
}

constexpr const char* NullField =
    "ERROR: Line 7 - null field are to be included as \"\" with no internal spaces (Rule 15)";

TEST(GetNextField, ReadsQuotedFields) {
  const Reading reading = ReadAll(R"("BH1","1.00","")");
  EXPECT_THAT(reading.values, ElementsAre("BH1", "1.00", ""));
  EXPECT_THAT(reading.findings, IsEmpty());
}

TEST(GetNextField, MovesBehindTheCommaAndEndsAtZero) {
  RecordedLog recorded;
  const FieldSource source{recorded.Log(), 1, R"("A","B")", false, {}};
  std::string restored;
  std::size_t position = 1;
  EXPECT_EQ(GetNextField(source, position, restored), "A");
  EXPECT_EQ(position, 5U);
  EXPECT_EQ(GetNextField(source, position, restored), "B");
  EXPECT_EQ(position, 0U);
}

TEST(GetNextField, ACommaInsideAQuotedValueIsPartOfIt) {
  EXPECT_THAT(ReadAll(R"("a,b",",","c")").values, ElementsAre("a,b", ",", "c"));
}

TEST(GetNextField, GivesAViewIntoTheLine) {
  RecordedLog recorded;
  const std::string_view line = R"("A","B")";
  std::string restored;
  std::size_t position = 5;
  const std::string_view value =
      GetNextField({recorded.Log(), 1, line, false, {}}, position, restored);
  EXPECT_EQ(value.data(), line.data() + 5);
  EXPECT_EQ(restored, "");
}

TEST(GetNextField, AnEmptyLastFieldIsNoNullFieldWithSpaces) {
  const Reading reading = ReadAll(R"("A","")");
  EXPECT_THAT(reading.values, ElementsAre("A", ""));
  EXPECT_THAT(reading.findings, IsEmpty());
}

TEST(GetNextField, AFieldOfBlanksIsReportedAndEmpty) {
  const Reading reading = ReadAll(R"("A","   ","B")");
  EXPECT_THAT(reading.values, ElementsAre("A", "", "B"));
  EXPECT_THAT(reading.findings, ElementsAre(NullField));
}

TEST(GetNextField, ATabIsNoBlank) {
  const Reading reading = ReadAll("\"A\",\"\t\"");
  EXPECT_THAT(reading.values, ElementsAre("A", "\t"));
  EXPECT_THAT(reading.findings, IsEmpty());
}

TEST(GetNextField, AnUnquotedFieldEndsAtTheNextComma) {
  const Reading reading = ReadAll(R"(A,"B",C)");
  EXPECT_THAT(reading.values, ElementsAre("A", "B", "C"));
  EXPECT_THAT(reading.findings,
              ElementsAre("ERROR: Line 7 - 'A' - missing surrounding quotes (Rule 8).",
                          "ERROR: Line 7 - 'C' - missing surrounding quotes (Rule 8)."));
}

TEST(GetNextField, ABlankBeforeTheQuoteMakesAFieldUnquoted) {
  const Reading reading = ReadAll(R"("A", "B,C")");
  EXPECT_THAT(reading.values, ElementsAre("A", " \"B", "C\""));
  EXPECT_THAT(reading.findings,
              ElementsAre("ERROR: Line 7 - ' \"B' - missing surrounding quotes (Rule 8).",
                          "ERROR: Line 7 - 'C\"' - missing surrounding quotes (Rule 8)."));
}

TEST(GetNextField, AnUnquotedFieldOfBlanksHasBothFaults) {
  const Reading reading = ReadAll(R"("A",  ,"B")");
  EXPECT_THAT(reading.values, ElementsAre("A", "", "B"));
  EXPECT_THAT(reading.findings,
              ElementsAre(NullField, "ERROR: Line 7 - '' - missing surrounding quotes (Rule 8)."));
}

TEST(GetNextField, AFieldWithoutEndTakesTheRestOfTheLine) {
  const Reading reading = ReadAll(R"("A","B,C)");
  EXPECT_THAT(reading.values, ElementsAre("A", "B,C"));
  EXPECT_THAT(reading.findings,
              ElementsAre("ERROR: Line 7 - 'B,C' - missing surrounding quotes (Rule 8)."));
}

TEST(GetNextField, ACommaAtTheEndOpensAnEmptyUnquotedField) {
  const Reading reading = ReadAll(R"("A",)");
  EXPECT_THAT(reading.values, ElementsAre("A", ""));
  EXPECT_THAT(reading.findings,
              ElementsAre("ERROR: Line 7 - '' - missing surrounding quotes (Rule 8)."));
}

TEST(GetNextField, AnEmptyLineIsOneEmptyUnquotedField) {
  const Reading reading = ReadAll("");
  EXPECT_THAT(reading.values, ElementsAre(""));
  EXPECT_THAT(reading.findings,
              ElementsAre("ERROR: Line 7 - '' - missing surrounding quotes (Rule 8)."));
}

TEST(GetNextField, AQuoteAloneHasNoEnd) {
  const Reading reading = ReadAll("\"");
  EXPECT_THAT(reading.values, ElementsAre(""));
  EXPECT_THAT(reading.findings,
              ElementsAre("ERROR: Line 7 - '' - missing surrounding quotes (Rule 8)."));
}

TEST(GetNextField, TwoQuotesAreAnEmptyField) {
  const Reading reading = ReadAll("\"\"");
  EXPECT_THAT(reading.values, ElementsAre(""));
  EXPECT_THAT(reading.findings, IsEmpty());
}

TEST(GetNextField, AQuoteInsideAValueIsReportedWhereAnotherEndsTheField) {
  const Reading reading = ReadAll(R"("A 5" pipe","B")");
  EXPECT_THAT(reading.values, ElementsAre("A 5\" pipe", "B"));
  EXPECT_THAT(reading.findings,
              ElementsAre("ERROR: Line 7 - 'A 5\" pipe' - has internal quotes (Rule 8)."));
}

TEST(GetNextField, AQuoteInsideTheLastValueLeavesItWithoutEnd) {
  const Reading reading = ReadAll(R"("A","5" pipe")");
  EXPECT_THAT(reading.values, ElementsAre("A", "5\" pipe\""));
  EXPECT_THAT(reading.findings,
              ElementsAre("ERROR: Line 7 - '5\" pipe\"' - missing surrounding quotes (Rule 8)."));
}

TEST(GetNextField, AQuoteInsideAValueWithACommaBehindItLeavesItWithoutEnd) {
  const Reading reading = ReadAll(R"("A 5" pipe, long","B")");
  EXPECT_THAT(reading.values, ElementsAre(R"(A 5" pipe, long","B")"));
  EXPECT_THAT(reading.findings, ElementsAre("ERROR: Line 7 - 'A 5\" pipe, long\",\"B\"' - missing "
                                            "surrounding quotes (Rule 8)."));
}

TEST(GetNextField, ABlankBehindTheClosingQuoteIsAnInternalQuote) {
  const Reading reading = ReadAll(R"("A" ,"B","C")");
  // The comma behind the blank does not end the field: no quote stands before it.
  EXPECT_THAT(reading.values, ElementsAre(R"(A" ,"B","C")"));
  EXPECT_THAT(reading.findings, ElementsAre("ERROR: Line 7 - 'A\" ,\"B\",\"C\"' - missing "
                                            "surrounding quotes (Rule 8)."));
}

TEST(GetNextField, DoubledQuotesAreInternalOnesUnlessPutAside) {
  const Reading reading = ReadAll(R"("a ""b"" c","d")");
  EXPECT_THAT(reading.values, ElementsAre(R"(a ""b"" c)", "d"));
  EXPECT_THAT(reading.findings,
              ElementsAre("ERROR: Line 7 - 'a \"\"b\"\" c' - has internal quotes (Rule 8)."));
}

TEST(GetNextField, PutsPlaceholdersBackWhenAskedTo) {
  const Reading reading = ReadAll("\"a #`~#b#`~#\",\"c\"", true);
  EXPECT_THAT(reading.values, ElementsAre("a \"\"b\"\"", "c"));
  EXPECT_THAT(reading.findings, IsEmpty());
  EXPECT_THAT(ReadAll("\"a #`~#\"", false).values, ElementsAre("a #`~#"));
}

TEST(GetNextField, ShowsValuesWithTheirPlaceholdersPutBack) {
  const Reading reading = ReadAll("a #`~#,\"c\"", true);
  EXPECT_THAT(reading.findings,
              ElementsAre("ERROR: Line 7 - 'a \"\"' - missing surrounding quotes (Rule 8)."));
}

TEST(GetNextField, KeepsBlanksAroundAValue) {
  EXPECT_THAT(ReadAll(R"(" A ","  B")").values, ElementsAre(" A ", "  B"));
}

constexpr std::array<std::string_view, 9> LinePieces{"\"", "\"", ",",     "\",\"", "\"\"",
                                                     " ",  "a",  "b\xE4", "#`~#"};

TEST(GetNextField, AgreesWithItsPlainTwin) {
  RandomText random(61);
  for (int round = 0; round < 50000; ++round) {
    const std::string line = random.Joined(LinePieces, random.Below(14));
    const bool restore = random.OneIn(2);
    RecordedLog recorded;
    std::size_t position = 1;
    std::vector<std::string> faults;
    while (position != 0) {
      const PlainField expected = ReadFieldPlainly(line, position, restore);
      std::string restored;
      const std::string_view value =
          GetNextField({recorded.Log(), 0, line, restore, {}}, position, restored);
      ASSERT_EQ(value, expected.value) << line;
      ASSERT_EQ(position, expected.next) << line;
      for (const std::string& fault : expected.faults) {
        const std::string finding = "ERROR: " + fault;
        if (faults.empty() || faults.back() != finding) faults.push_back(finding);
      }
    }
    ASSERT_EQ(recorded.Findings(), faults) << line;
  }
}

TEST(FindClosingQuote, IsTheNextQuoteAtTheEndOrBeforeAComma) {
  const ClosingQuote atEnd = FindClosingQuote(R"("A","B")", 5);
  EXPECT_EQ(atEnd.start, 6U);
  EXPECT_EQ(atEnd.end, 7U);
  EXPECT_FALSE(atEnd.missingQuote);
  EXPECT_FALSE(atEnd.internalQuote);
  EXPECT_EQ(FindClosingQuote(R"("A","B")", 1).end, 3U);
}

TEST(FindClosingQuote, TellsWhatIsWrong) {
  const ClosingQuote none = FindClosingQuote("\"A", 1);
  EXPECT_EQ(none.start, 2U);
  EXPECT_EQ(none.end, 0U);
  EXPECT_TRUE(none.missingQuote);
  const ClosingQuote internal = FindClosingQuote(R"("A"B",)", 1);
  EXPECT_EQ(internal.end, 5U);
  EXPECT_TRUE(internal.internalQuote);
  EXPECT_FALSE(internal.missingQuote);
  const ClosingQuote open = FindClosingQuote(R"("A"B,)", 1);
  EXPECT_EQ(open.end, 0U);
  EXPECT_TRUE(open.missingQuote);
}

TEST(ProtectDoubledQuotes, PutsThoseInsideValuesAside) {
  const ProtectedLine line = ProtectDoubledQuotes(R"("a ""b"" c","","")");
  EXPECT_EQ(line.text, "\"a #`~#b#`~# c\",\"\",\"\"");
  EXPECT_TRUE(line.restoreDoubledQuotes);
}

TEST(ProtectDoubledQuotes, LeavesEmptyFieldsAndOtherLines) {
  for (const char* text : {R"("a","","b","")", R"("","")", R"("a")", "", "abc", "\""}) {
    const ProtectedLine line = ProtectDoubledQuotes(text);
    EXPECT_EQ(line.text, text);
    EXPECT_FALSE(line.restoreDoubledQuotes) << text;
  }
}

/// The replacements one after the other, whatever the line holds.
std::string ProtectPlainly(std::string_view line) {
  std::string text = ReplaceAll(line, "\"\",", "!@#$,");
  if (text.ends_with(",\"\"")) text = text.substr(0, text.size() - 2) + "%^&*";
  text = ReplaceAll(text, "\"\"", "#`~#");
  return ReplaceAll(ReplaceAll(text, "!@#$,", "\"\","), "%^&*", "\"\"");
}

TEST(ProtectDoubledQuotes, GivesWhatTheReplacementsGive) {
  constexpr std::string_view pieces[] = {"\"", "\"\"", ",", "a", "\",\"", "!@#$,", "%^&*", "#`~#"};
  RandomText random(1);
  std::size_t protectedCount = 0;
  for (int round = 0; round < 20000; ++round) {
    const std::string line = random.Joined(pieces, random.Below(9));
    const ProtectedLine result = ProtectDoubledQuotes(line);
    EXPECT_EQ(result.text, ProtectPlainly(line)) << line;
    EXPECT_EQ(result.restoreDoubledQuotes, result.text != line) << line;
    protectedCount += result.restoreDoubledQuotes ? 1 : 0;
  }
  EXPECT_GT(protectedCount, 1000U);
  EXPECT_LT(protectedCount, 19000U);
}

TEST(ProtectDoubledQuotes, TakesTextsLikeThePlaceholdersOfEmptyFieldsForThem) {
  EXPECT_EQ(ProtectDoubledQuotes("\"!@#$,%^&*\"").text, "\"\"\",\"\"\"");
  EXPECT_TRUE(ProtectDoubledQuotes("\"!@#$,%^&*\"").restoreDoubledQuotes);
}

TEST(ReadWellFormedFields, AddsAllOrNothing) {
  std::vector<std::string_view> values{"before"};
  EXPECT_TRUE(ReadWellFormedFields(R"("a","b ""c"", d","")", 5, values));
  EXPECT_THAT(values, ElementsAre("before", R"(b ""c"", d)", ""));
  for (const std::string_view line :
       {R"("a",b)", R"("a","b" )", R"("a","b"c")", R"("a",)", R"("a)", ""})
    EXPECT_FALSE(ReadWellFormedFields(line, 1, values)) << line;
  EXPECT_EQ(values.size(), 3U);
}

TEST(SplitFields, GivesTheValuesOfALine) {
  EXPECT_THAT(SplitFields(R"("DATA","a, b","","c")"), ElementsAre("DATA", "a, b", "", "c"));
  EXPECT_THAT(SplitFields(R"("DATA")"), ElementsAre("DATA"));
  EXPECT_THAT(SplitFields("DATA,1,2"), ElementsAre("DATA", "1", "2"));
  EXPECT_THAT(SplitFields(""), ElementsAre(""));
}

TEST(SplitFields, TakesBlanksForNoValueAndKeepsThoseAroundOne) {
  EXPECT_THAT(SplitFields(R"("DATA","  "," a ")"), ElementsAre("DATA", "", " a "));
}

TEST(SplitFields, LeavesDoubledQuotesInsideValues) {
  EXPECT_THAT(SplitFields(R"("DATA","a ""b"", c","d")"), ElementsAre("DATA", R"(a ""b"", c)", "d"));
}

TEST(QuoteField, QuotesOnlyWhereItMust) {
  EXPECT_EQ(QuoteField("plain value", ",", true), "plain value");
  EXPECT_EQ(QuoteField("", ",", true), "");
  EXPECT_EQ(QuoteField("a,b", ",", true), "\"a,b\"");
  EXPECT_EQ(QuoteField("a,b", ";", true), "a,b");
  EXPECT_EQ(QuoteField("say \"a\"", ",", true), "\"say \"\"a\"\"\"");
  EXPECT_EQ(QuoteField("a\nb", ",", true), "\"a\nb\"");
  EXPECT_EQ(QuoteField("a\rb", ",", true), "a\rb");
}

TEST(QuoteField, MakesLineFeedsOfLineBreaks) {
  EXPECT_EQ(QuoteField("a\r\nb\r\n", ",", true), "\"a\nb\n\"");
}

TEST(QuoteField, PutsTheDelimiterInFrontOfAllButTheFirst) {
  EXPECT_EQ(QuoteField("a", ",", false), ",a");
  EXPECT_EQ(QuoteField("a,b", ",", false), ",\"a,b\"");
  EXPECT_EQ(QuoteField("", ", ", false), ", ");
  EXPECT_EQ(QuoteField("a, b", ", ", false), ", \"a, b\"");
}

TEST(JoinFields, JoinsARangeOfValues) {
  const std::vector<std::string> values{"a", "b,c", "", "d\"e"};
  EXPECT_EQ(JoinFields(",", values, 0, -1), "a,\"b,c\",,\"d\"\"e\"");
  EXPECT_EQ(JoinFields(",", values, 0, 3), "a,\"b,c\",,\"d\"\"e\"");
  EXPECT_EQ(JoinFields(",", values, 1, 2), "\"b,c\",");
  EXPECT_EQ(JoinFields(";", values, 1, 1), "b,c");
  EXPECT_EQ(JoinFields(",", std::vector<std::string>{}, 0, -1), "");
}

TEST(CountFields, CountsPartsBetweenCommas) {
  EXPECT_EQ(CountFields(""), 0U);
  EXPECT_EQ(CountFields("a"), 1U);
  EXPECT_EQ(CountFields(","), 2U);
  EXPECT_EQ(CountFields("a,,b"), 3U);
  EXPECT_EQ(CountFields(" "), 1U);
}

}  // namespace
}  // namespace quorvane::test
