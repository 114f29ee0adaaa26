#include "report/message_log.h"

#include <algorithm>
#include <array>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_services.h"
#include "support/random_text.h"
#include "support/recorded_log.h"
#include "text/comma_list.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr MessageDefinition Of(Severity severity) {
  return {.id = "test",
          .ags3 = {severity, "", "{0}"},
          .ags4 = {severity, "", "{0} (AGS 4)"},
          .meaning = "",
          .remedy = ""};
}

constexpr MessageDefinition Wrong = Of(Severity::Error);
constexpr MessageDefinition Doubtful = Of(Severity::Warning);
constexpr MessageDefinition Told = Of(Severity::Fyi);
constexpr MessageDefinition Said = Of(Severity::Plain);

/// Adds a number of findings at lines that count down, so that no order but their own is theirs.
void AddErrors(MessageLog& log, int count) {
  for (int finding = count; finding > 0; --finding) {
    log.AddMessage(finding, Wrong, {"finding"});
  }
}

std::string Listing(RecordedLog& recorded, const ListingChoice& choice) {
  const std::size_t start = recorded.Written().size();
  recorded.Log().ListFileMessages(choice);
  return recorded.Written().substr(start);
}

constexpr ListingChoice Grouped{true, false, false};
constexpr ListingChoice BySeverity{false, false, true};
constexpr ListingChoice ByLine{false, true, false};
constexpr ListingChoice ByBoth{false, true, true};

TEST(AddMessage, DropsTheSameTextAtTheSameLine) {
  RecordedLog recorded;
  recorded.Log().AddMessage(5, Wrong, {"text"});
  recorded.Log().AddMessage(5, Wrong, {"text"});
  recorded.Log().AddMessage(5, Wrong, {"text"});
  EXPECT_THAT(recorded.Findings(), ElementsAre("ERROR: Line 5 - text"));
}

TEST(AddMessage, KeepsTheSameTextAtAnotherLine) {
  RecordedLog recorded;
  recorded.Log().AddMessage(5, Wrong, {"text"});
  recorded.Log().AddMessage(6, Wrong, {"text"});
  EXPECT_THAT(recorded.Findings(), ElementsAre("ERROR: Line 5 - text", "ERROR: Line 6 - text"));
}

TEST(AddMessage, KeepsARepeatBehindAnotherFinding) {
  RecordedLog recorded;
  recorded.Log().AddMessage(5, Wrong, {"text"});
  recorded.Log().AddMessage(5, Wrong, {"other"});
  recorded.Log().AddMessage(5, Wrong, {"text"});
  EXPECT_THAT(recorded.Findings(), SizeIs(3));
}

TEST(AddMessage, ComparesTextAndLineButNotSeverity) {
  RecordedLog recorded;
  recorded.Log().AddMessage(5, Wrong, {"text"});
  recorded.Log().AddMessage(5, Doubtful, {"text"});
  EXPECT_THAT(recorded.Findings(), ElementsAre("ERROR: Line 5 - text"));
}

TEST(AddMessage, DropsARepeatThatOpensTheNextSection) {
  RecordedLog recorded;
  recorded.Log().AddMessage(5, Wrong, {"text"});
  recorded.Log().CloseCheckSection("First");
  recorded.Log().AddMessage(5, Wrong, {"text"});
  recorded.Log().CloseCheckSection("Second");
  EXPECT_THAT(recorded.Log().Sections(), ElementsAre("First"));
}

TEST(AddMessage, DiscardsEverythingWhileMuted) {
  RecordedLog recorded;
  recorded.Log().SetMuted(true);
  recorded.Log().AddMessage(5, Wrong, {"text"});
  recorded.Log().SetMuted(false);
  recorded.Log().AddMessage(5, Wrong, {"text"});
  EXPECT_THAT(recorded.Findings(), ElementsAre("ERROR: Line 5 - text"));
}

TEST(AddMessage, AMutedFindingIsNotTheOneStoredBefore) {
  RecordedLog recorded;
  recorded.Log().AddMessage(5, Wrong, {"text"});
  recorded.Log().SetMuted(true);
  recorded.Log().AddMessage(5, Wrong, {"other"});
  recorded.Log().SetMuted(false);
  recorded.Log().AddMessage(5, Wrong, {"text"});
  EXPECT_THAT(recorded.Findings(), SizeIs(1));
}

TEST(AddMessage, NeitherStoresNorCountsSuppressedFyi) {
  RecordedLog recorded(AgsFormat::Ags3, true);
  recorded.Log().AddMessage(5, Told, {"told"});
  recorded.Log().AddMessage(5, Wrong, {"wrong"});
  recorded.Log().AddMessage(6, Told, {"told"});
  EXPECT_THAT(recorded.Findings(), ElementsAre("ERROR: Line 5 - wrong"));
  EXPECT_TRUE(recorded.Log().SuppressesFyi());
}

TEST(AddMessage, ASuppressedFyiIsNotTheOneStoredBefore) {
  RecordedLog recorded(AgsFormat::Ags3, true);
  recorded.Log().AddMessage(5, Wrong, {"wrong"});
  recorded.Log().AddMessage(5, Told, {"told"});
  recorded.Log().AddMessage(5, Wrong, {"wrong"});
  EXPECT_THAT(recorded.Findings(), SizeIs(1));
}

TEST(AddMessage, KeepsPlainTextWhenFyiIsSuppressed) {
  RecordedLog recorded(AgsFormat::Ags3, true);
  recorded.Log().AddMessage(0, Said, {"No further checks."});
  EXPECT_THAT(recorded.Findings(), ElementsAre("No further checks."));
}

TEST(AddMessage, TakesTheFormOfTheFormat) {
  RecordedLog recorded(AgsFormat::Ags4);
  recorded.Log().AddMessage(1, Wrong, {"text"});
  EXPECT_EQ(recorded.Log().Format(), AgsFormat::Ags4);
  EXPECT_THAT(recorded.Findings(), ElementsAre("ERROR: Line 1 - text (AGS 4)"));
}

TEST(ClosedFinding, HasAllThatIsKnown) {
  RecordedLog recorded;
  recorded.Log().AddMessage(3, Doubtful, {"first"});
  recorded.Log().CloseCheckSection("One");
  recorded.Log().AddMessage(9, Wrong, {"second\r\nline"}, {4, 5, 6});
  recorded.Log().AddMessage(10, Wrong, {"third"});
  recorded.Log().CloseCheckSection("Two");
  const Finding finding = recorded.Log().ClosedFinding(1);
  EXPECT_EQ(finding.definition, &Wrong);
  EXPECT_EQ(finding.line, 9);
  EXPECT_EQ(finding.severity, Severity::Error);
  EXPECT_EQ(finding.place.group, 4);
  EXPECT_EQ(finding.place.row, 5);
  EXPECT_EQ(finding.place.heading, 6);
  EXPECT_EQ(finding.section, 1U);
  EXPECT_EQ(finding.text, "second\r\nline");
  EXPECT_EQ(recorded.Log().ClosedFinding(0).text, "first");
  EXPECT_EQ(recorded.Log().ClosedFinding(0).section, 0U);
  EXPECT_EQ(recorded.Log().ClosedFinding(2).text, "third");
}

TEST(ClosedFinding, OwnsTheTextOfItsValues) {
  RecordedLog recorded;
  std::string value = "value";
  recorded.Log().AddMessage(1, Wrong, {value});
  value.assign(5, 'x');
  EXPECT_THAT(recorded.Findings(), ElementsAre("ERROR: Line 1 - value"));
}

TEST(CloseCheckSection, LeavesNoTraceWithoutFindings) {
  RecordedLog recorded;
  recorded.Log().CloseCheckSection("Nothing");
  EXPECT_THAT(recorded.Log().Sections(), IsEmpty());
  EXPECT_EQ(Listing(recorded, Grouped), "");
}

TEST(CloseCheckSection, WritesTitleCountAndFindings) {
  RecordedLog recorded;
  recorded.Log().AddMessage(12, Wrong, {"first"});
  recorded.Log().AddMessage(0, Doubtful, {"second"});
  recorded.Log().CloseCheckSection("Parsing Structure and Data");
  recorded.Log().CloseCheckSection("Nothing in between");
  recorded.Log().AddMessage(3, Told, {"third"});
  recorded.Log().CloseCheckSection("Checking Required Groups");
  EXPECT_EQ(Listing(recorded, Grouped),
            "\r\nParsing Structure and Data   2 errors or warnings or informational messages\r\n"
            "  ERROR: Line 12 - first\r\n"
            "  WARNING: second\r\n"
            "\r\nChecking Required Groups   1 error or warning or informational message\r\n"
            "  FYI: Line 3 - third\r\n"
            "\r\n");
}

TEST(CloseCheckSection, LeavesOutTheFyiWordsWhenTheyAreSuppressed) {
  RecordedLog recorded(AgsFormat::Ags3, true);
  recorded.Log().AddMessage(1, Wrong, {"first"});
  recorded.Log().AddMessage(2, Told, {"told"});
  recorded.Log().CloseCheckSection("Title");
  EXPECT_EQ(Listing(recorded, Grouped),
            "\r\nTitle   1 error or warning\r\n  ERROR: Line 1 - first\r\n\r\n");
}

TEST(CloseCheckSection, TwoSectionsMayBearOneTitle) {
  RecordedLog recorded;
  recorded.Log().AddMessage(1, Wrong, {"first"});
  recorded.Log().CloseCheckSection("Title");
  recorded.Log().AddMessage(2, Wrong, {"second"});
  recorded.Log().CloseCheckSection("Title");
  EXPECT_THAT(recorded.Log().Sections(), ElementsAre("Title", "Title"));
}

TEST(CloseCheckSection, OnlyFindingsOfClosedSectionsCount) {
  RecordedLog recorded;
  recorded.Log().AddMessage(1, Wrong, {"first"});
  recorded.Log().CloseCheckSection("Closed");
  recorded.Log().AddMessage(2, Wrong, {"second"});
  EXPECT_EQ(recorded.Log().ClosedCount(), 1U);
  EXPECT_EQ(Listing(recorded, Grouped).find("second"), std::string::npos);
  recorded.Log().WriteSummary();
  EXPECT_TRUE(recorded.Written().ends_with(
      "SUMMARY:  1 total error or warning or informational message\r\n"));
}

TEST(WriteSummary, SaysThatThereWereNoProblems) {
  RecordedLog recorded;
  recorded.Log().WriteSummary();
  EXPECT_EQ(recorded.Written(), "SUMMARY:  No problems found in file.\r\n");
}

TEST(WriteSummary, CountsTheFindings) {
  RecordedLog recorded;
  AddErrors(recorded.Log(), 12);
  recorded.Log().CloseCheckSection("Title");
  recorded.Log().WriteSummary();
  EXPECT_EQ(recorded.Written(),
            "SUMMARY:  12 total errors or warnings or informational messages\r\n");
}

TEST(WriteSummary, LeavesOutTheFyiWordsWhenTheyAreSuppressed) {
  RecordedLog recorded(AgsFormat::Ags3, true);
  AddErrors(recorded.Log(), 2);
  recorded.Log().CloseCheckSection("Title");
  recorded.Log().WriteSummary();
  EXPECT_EQ(recorded.Written(), "SUMMARY:  2 total errors or warnings\r\n");
}

TEST(ListFileMessages, WritesNothingWithoutFindings) {
  RecordedLog recorded;
  EXPECT_EQ(Listing(recorded, {true, true, true}), "");
}

TEST(ListFileMessages, BelowTenFindingsIsGroupedWhateverTheChoice) {
  for (const ListingChoice& choice : {Grouped, BySeverity, ByLine, ByBoth, ListingChoice{}}) {
    RecordedLog recorded;
    AddErrors(recorded.Log(), 9);
    recorded.Log().CloseCheckSection("Title");
    const std::string listing = Listing(recorded, choice);
    EXPECT_TRUE(listing.starts_with("\r\nTitle   9 errors"));
    EXPECT_EQ(listing.find("MESSAGES SORTED"), std::string::npos);
  }
}

TEST(ListFileMessages, FromTenFindingsOnIsAsChosen) {
  const auto listing = [](const ListingChoice& choice) {
    RecordedLog recorded;
    AddErrors(recorded.Log(), 10);
    recorded.Log().CloseCheckSection("Title");
    return Listing(recorded, choice);
  };
  const std::string grouped = "\r\nTitle   10 errors";
  const std::string byLine = "MESSAGES SORTED BY LINE NUMBER:";
  const std::string bySeverity = "MESSAGES SORTED BY SEVERITY:";
  const auto holds = [&](const ListingChoice& choice, const std::string& part) {
    return listing(choice).find(part) != std::string::npos;
  };
  EXPECT_TRUE(holds(Grouped, grouped));
  EXPECT_FALSE(holds(Grouped, "MESSAGES SORTED"));
  EXPECT_FALSE(holds(ByBoth, grouped));
  EXPECT_TRUE(holds(ByBoth, byLine));
  EXPECT_TRUE(holds(ByBoth, bySeverity));
  EXPECT_TRUE(holds(ByLine, byLine));
  EXPECT_FALSE(holds(ByLine, bySeverity));
  EXPECT_FALSE(holds(BySeverity, byLine));
  EXPECT_TRUE(holds(BySeverity, bySeverity));
  EXPECT_EQ(listing({false, false, false}), "");
  const std::string all = listing({true, true, true});
  EXPECT_LT(all.find(grouped), all.find(byLine));
  EXPECT_LT(all.find(byLine), all.find(bySeverity));
}

/// Ten findings of all severities at few lines.
void AddTenFindings(MessageLog& log) {
  log.AddMessage(30, Told, {"a"});
  log.AddMessage(0, Doubtful, {"b"});
  log.AddMessage(10, Wrong, {"c"});
  log.AddMessage(10, Told, {"d\r\n    more"});
  log.CloseCheckSection("First");
  log.AddMessage(0, Said, {"e"});
  log.AddMessage(30, Wrong, {"f"});
  log.AddMessage(10, Wrong, {"g"});
  log.AddMessage(2, Doubtful, {"h"});
  log.AddMessage(30, Told, {"i"});
  log.AddMessage(0, Wrong, {"j"});
  log.CloseCheckSection("Second");
}

TEST(ListFileMessages, SortedByLineKeepsTheOrderWithinALine) {
  RecordedLog recorded;
  AddTenFindings(recorded.Log());
  EXPECT_EQ(Listing(recorded, ByLine),
            "\r\n"
            "********************\r\n"
            "MESSAGES SORTED BY LINE NUMBER:\r\n"
            "WARNING: b\r\n"
            "e\r\n"
            "ERROR: j\r\n"
            "WARNING: Line 2 - h\r\n"
            "ERROR: Line 10 - c\r\n"
            "FYI: Line 10 - d\r\n    more\r\n"
            "ERROR: Line 10 - g\r\n"
            "FYI: Line 30 - a\r\n"
            "ERROR: Line 30 - f\r\n"
            "FYI: Line 30 - i\r\n");
}

TEST(ListFileMessages, SortedBySeverityKeepsTheOrderOfLinesAndSeparatesSeverities) {
  RecordedLog recorded;
  AddTenFindings(recorded.Log());
  EXPECT_EQ(Listing(recorded, BySeverity),
            "\r\n"
            "********************\r\n"
            "MESSAGES SORTED BY SEVERITY:\r\n"
            "ERROR: j\r\n"
            "ERROR: Line 10 - c\r\n"
            "ERROR: Line 10 - g\r\n"
            "ERROR: Line 30 - f\r\n"
            "\r\n"
            "WARNING: b\r\n"
            "WARNING: Line 2 - h\r\n"
            "\r\n"
            "FYI: Line 10 - d\r\n    more\r\n"
            "FYI: Line 30 - a\r\n"
            "FYI: Line 30 - i\r\n"
            "\r\n"
            "e\r\n");
}

/// A finding as a plain program would keep it, and the bubble sorts and listings of one.
struct PlainRecord {
  int line;
  int severity;
  std::string text;
};

template <typename IsOutOfOrder>
void BubbleSort(std::vector<PlainRecord>& records, IsOutOfOrder&& isOutOfOrder) {
  const std::size_t total = records.size();
  for (std::size_t pass = 1; pass + 1 <= total; ++pass) {
    bool hasSwapped = false;
    for (std::size_t at = 0; at + pass < total; ++at) {
      if (!isOutOfOrder(records[at], records[at + 1])) continue;
      std::swap(records[at], records[at + 1]);
      hasSwapped = true;
    }
    if (!hasSwapped) return;
  }
}

std::string PrintPlainly(const std::string& title, bool separate,
                         const std::vector<PlainRecord>& records) {
  constexpr std::array<std::string_view, 4> labels{"", "FYI: ", "WARNING: ", "ERROR: "};
  std::string text = "\r\n********************\r\n" + title + "\r\n";
  int severity = records.front().severity;
  for (const PlainRecord& record : records) {
    if (separate && record.severity != severity) text += "\r\n";
    severity = record.severity;
    const int label = severity + 1;
    text += labels[static_cast<std::size_t>(label)];
    if (record.line > 0) text += "Line " + std::to_string(record.line) + " - ";
    text += record.text + "\r\n";
  }
  return text;
}

TEST(ListFileMessages, SortsLikeTheBubbleSortsOfAPlainProgram) {
  const std::array<const MessageDefinition*, 4> definitions{&Said, &Told, &Doubtful, &Wrong};
  RandomText random(51);
  for (int round = 0; round < 300; ++round) {
    RecordedLog recorded;
    std::vector<PlainRecord> records;
    for (std::size_t count = 10 + random.Below(60); count > 0; --count) {
      const std::size_t severity = random.Below(4);
      const int line = static_cast<int>(random.Below(12));
      const std::string text = "finding " + std::to_string(count);
      recorded.Log().AddMessage(line, *definitions[severity], {text});
      records.push_back({line, static_cast<int>(severity) - 1, text});
      if (random.OneIn(8)) recorded.Log().CloseCheckSection("Some");
    }
    recorded.Log().CloseCheckSection("Rest");
    BubbleSort(records, [](const PlainRecord& left, const PlainRecord& right) {
      return left.line > right.line;
    });
    std::string expected = PrintPlainly("MESSAGES SORTED BY LINE NUMBER:", false, records);
    BubbleSort(records, [](const PlainRecord& left, const PlainRecord& right) {
      return left.severity < right.severity;
    });
    expected += PrintPlainly("MESSAGES SORTED BY SEVERITY:", true, records);
    ASSERT_EQ(Listing(recorded, ByBoth), expected);
  }
}

TEST(MessageLog, TakesHundredsOfThousandsOfFindings) {
  RecordedLog recorded;
  AddErrors(recorded.Log(), 300000);
  recorded.Log().CloseCheckSection("Title");
  EXPECT_EQ(recorded.Log().ClosedCount(), 300000U);
  EXPECT_EQ(recorded.Log().ClosedFinding(299999).line, 1);
  const std::string listing = Listing(recorded, ByBoth);
  EXPECT_EQ(std::count(listing.begin(), listing.end(), '\n'), 600000 + 6);
}

TEST(ListingChoice, KnowsWhetherAnyIsChosen) {
  EXPECT_TRUE(ListingChoice{}.Any());
  EXPECT_TRUE(ByLine.Any());
  EXPECT_TRUE(BySeverity.Any());
  EXPECT_FALSE((ListingChoice{false, false, false}).Any());
}

}  // namespace
}  // namespace quorvane::test
