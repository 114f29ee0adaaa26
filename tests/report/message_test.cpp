#include "report/message.h"

#include <limits>

#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

TEST(FormatMessage, HasLabelLineAndText) {
  EXPECT_EQ(FormatMessage(12, Severity::Error, "the text"), "ERROR: Line 12 - the text");
  EXPECT_EQ(FormatMessage(1, Severity::Warning, "the text"), "WARNING: Line 1 - the text");
  EXPECT_EQ(FormatMessage(2147483647, Severity::Fyi, "the text"),
            "FYI: Line 2147483647 - the text");
}

TEST(FormatMessage, LeavesOutALineThatIsNotThere) {
  EXPECT_EQ(FormatMessage(0, Severity::Warning, "the text"), "WARNING: the text");
  EXPECT_EQ(FormatMessage(-1, Severity::Error, "the text"), "ERROR: the text");
}

TEST(FormatMessage, PlainTextHasNoLabel) {
  EXPECT_EQ(FormatMessage(0, Severity::Plain, "the text"), "the text");
  EXPECT_EQ(FormatMessage(7, Severity::Plain, "the text"), "Line 7 - the text");
}

TEST(FormatMessage, KeepsTheTextAsItIs) {
  EXPECT_EQ(FormatMessage(0, Severity::Error, "\r\na\r\n  b "), "ERROR: \r\na\r\n  b ");
  EXPECT_EQ(FormatMessage(3, Severity::Error, ""), "ERROR: Line 3 - ");
}

TEST(AppendMessageLabel, StandsBehindWhatIsThere) {
  std::string text = "  ";
  AppendMessageLabel(text, 5, Severity::Fyi);
  EXPECT_EQ(text, "  FYI: Line 5 - ");
}

TEST(MessageCountWording, DecidesBothHalvesByTheCount) {
  EXPECT_EQ(MessageCountWording(1, false), " error or warning or informational message");
  EXPECT_EQ(MessageCountWording(2, false), " errors or warnings or informational messages");
  EXPECT_EQ(MessageCountWording(12, false), " errors or warnings or informational messages");
}

TEST(MessageCountWording, AZeroIsPluralInTheFirstHalfOnly) {
  EXPECT_EQ(MessageCountWording(0, false), " errors or warnings or informational message");
}

TEST(MessageCountWording, LeavesTheFyiWordsOutWhenTheyAreSuppressed) {
  EXPECT_EQ(MessageCountWording(0, true), " errors or warnings");
  EXPECT_EQ(MessageCountWording(1, true), " error or warning");
  EXPECT_EQ(MessageCountWording(2, true), " errors or warnings");
}

std::string MessageText(std::string_view form, MessageValues values) {
  std::string text;
  AppendMessageText(text, form, values);
  return text;
}

TEST(AppendMessageText, PutsValuesIntoTheirPlaces) {
  EXPECT_EQ(MessageText("'{0}' in {1}", {"A", "B"}), "'A' in B");
  EXPECT_EQ(MessageText("{1}{0}{1}", {"A", "B"}), "BAB");
  EXPECT_EQ(MessageText("no value", {}), "no value");
  EXPECT_EQ(MessageText("one of {0}", {"A", "B"}), "one of A");
  EXPECT_EQ(MessageText("{0}{1}{2}{3}{4}{5}{6}{7}{8}{9}",
                        {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"}),
            "abcdefghij");
}

TEST(AppendMessageText, NeverReadsAValueAsAForm) {
  EXPECT_EQ(MessageText("<{0}|{1}>", {"{1}", "{0}{x"}), "<{1}|{0}{x>");
}

TEST(AppendMessageText, StandsBehindWhatIsThere) {
  std::string text = "Line 3 - ";
  AppendMessageText(text, "{0}.", {"A"});
  EXPECT_EQ(text, "Line 3 - A.");
}

TEST(MessageValue, TakesTextsAndWholeNumbers) {
  const std::string text = "text";
  EXPECT_EQ(MessageText("{0}{1}{2}", {text, std::string_view(" view"), " literal"}),
            "text view literal");
  EXPECT_EQ(MessageText("{0},{1},{2}", {0, -7, std::int16_t{12}}), "0,-7,12");
  EXPECT_EQ(MessageText("{0}", {std::size_t{4000000000}}), "4000000000");
  EXPECT_EQ(MessageText("{0}", {std::numeric_limits<std::int64_t>::min()}), "-9223372036854775808");
  EXPECT_EQ(MessageText("<{0}>", {""}), "<>");
}

TEST(MessageForm, WithoutTextDoesNotExist) {
  constexpr MessageDefinition definition{
      .id = "test.one",
      .ags3 = {Severity::Fyi, "5", "text 3"},
      .ags4 = {},
      .meaning = "",
      .remedy = "",
  };
  EXPECT_TRUE(definition.In(AgsFormat::Ags3).Exists());
  EXPECT_FALSE(definition.In(AgsFormat::Ags4).Exists());
  EXPECT_EQ(definition.In(AgsFormat::Ags3).text, "text 3");
  EXPECT_EQ(definition.In(AgsFormat::Ags3).severity, Severity::Fyi);
}

TEST(Severity, HasItsNumbers) {
  EXPECT_EQ(static_cast<int>(Severity::Error), 2);
  EXPECT_EQ(static_cast<int>(Severity::Warning), 1);
  EXPECT_EQ(static_cast<int>(Severity::Fyi), 0);
  EXPECT_EQ(static_cast<int>(Severity::Plain), -1);
}

}  // namespace
}  // namespace quorvane::test
