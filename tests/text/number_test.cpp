#include "text/number.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <regex>

#include <gtest/gtest.h>

#include "support/random_text.h"

namespace quorvane::test {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();

bool IsNumericPlainly(const std::string& text) {
  static const std::regex form(R"([+-]?([0-9]+\.?[0-9]*|\.[0-9]+)([eE][+-]?[0-9]+)?)");
  return std::regex_match(text, form);
}

/// The value as the C library reads it; tests run in the C locale.
double ValuePlainly(const std::string& text) {
  return std::strtod(text.c_str(), nullptr);
}

/// Texts that are numbers or nearly so.
std::string RandomNumberText(RandomText& random) {
  constexpr std::array<std::string_view, 16> pieces{"0", "1", "9", "25", "00", "317", ".", ".",
                                                    "-", "+", "e", "E",  " ",  "x",   ",", "e-"};
  constexpr std::array<std::string_view, 5> digits{"0", "1", "5", "09", "999"};
  if (random.OneIn(3)) return random.Joined(pieces, random.Below(8));
  std::string text(random.Pick(std::array<std::string_view, 3>{"", "-", "+"}));
  text += random.Joined(digits, random.Below(5));
  if (random.OneIn(2)) text += "." + random.Joined(digits, random.Below(5));
  if (random.OneIn(3)) {
    text += random.Pick(std::array<std::string_view, 4>{"e", "E-", "e+", "E"});
    text += std::to_string(random.Below(random.OneIn(2) ? 30 : 400));
  }
  return text;
}

TEST(IsNumeric, TakesTheFormsOfNumbers) {
  for (const std::string_view text :
       {"0", "5", "-5", "+5", "5.", ".5", "-.5", "+5.", "1.50", "007", "1e3", "1E3", "1e+3",
        "1.5E-03", "5.e3", ".5e3", "12345678901234567890123"}) {
    EXPECT_TRUE(IsNumeric(text)) << text;
    EXPECT_TRUE(NumericValue(text).has_value()) << text;
  }
}

TEST(IsNumeric, TakesNothingElse) {
  for (const std::string_view text :
       {"",      ".",   "-",   "+",    "-.",    "e3",  ".e3",   "1e",   "1e+",
        "1.2.3", "--1", "+-1", " 1",   "1 ",    "1 2", "1,000", "0x10", "inf",
        "nan",   "INF", "1d3", "1.5m", "1e3.5", "\t1", "1_000"}) {
    EXPECT_FALSE(IsNumeric(text)) << text;
    EXPECT_FALSE(NumericValue(text).has_value()) << text;
  }
}

TEST(IsNumeric, AgreesWithItsPlainTwin) {
  RandomText random(31);
  int numbers = 0;
  for (int round = 0; round < 50000; ++round) {
    const std::string text = RandomNumberText(random);
    EXPECT_EQ(IsNumeric(text), IsNumericPlainly(text)) << text;
    numbers += IsNumeric(text) ? 1 : 0;
  }
  EXPECT_GT(numbers, 10000);
}

TEST(NumericValue, AgreesWithItsPlainTwin) {
  RandomText random(32);
  for (int round = 0; round < 50000; ++round) {
    const std::string text = RandomNumberText(random);
    const std::optional<double> value = NumericValue(text);
    ASSERT_EQ(value.has_value(), IsNumericPlainly(text)) << text;
    if (!value) continue;
    EXPECT_EQ(*value, ValuePlainly(text)) << text;
  }
}

TEST(NumericValue, ReachesTheEndsOfTheRange) {
  EXPECT_EQ(NumericValue("1.7976931348623157e308"), std::numeric_limits<double>::max());
  EXPECT_EQ(NumericValue("4.9e-324"), std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(NumericValue("2.2250738585072014e-308"), std::numeric_limits<double>::min());
}

TEST(NumericValue, TooLargeIsInfiniteAndTooSmallIsZero) {
  EXPECT_EQ(NumericValue("1e400"), Infinity);
  EXPECT_EQ(NumericValue("-1e400"), -Infinity);
  EXPECT_EQ(NumericValue("+1e99999999999999999999"), Infinity);
  EXPECT_EQ(NumericValue(std::string(400, '1')), Infinity);
  EXPECT_EQ(NumericValue("-" + std::string(400, '9') + ".5"), -Infinity);
  EXPECT_EQ(NumericValue("1e-400"), 0.0);
  EXPECT_EQ(NumericValue("-1e-400"), 0.0);
  EXPECT_EQ(NumericValue("1e-99999999999999999999"), 0.0);
  EXPECT_EQ(NumericValue("0." + std::string(400, '0') + "1"), 0.0);
  EXPECT_EQ(NumericValue("0e99999999999999999999"), 0.0);
}

TEST(NumericValue, TooLargeIsInfiniteWhateverTheSignOfTheExponent) {
  EXPECT_EQ(NumericValue("1" + std::string(400, '0') + "e-10"), Infinity);
  EXPECT_EQ(NumericValue("-1" + std::string(400, '0') + ".0E-1"), -Infinity);
}

TEST(NumericValue, TooSmallIsZeroWhateverTheSignOfTheExponent) {
  EXPECT_EQ(NumericValue("0." + std::string(400, '0') + "1e5"), 0.0);
  EXPECT_EQ(NumericValue("-." + std::string(400, '0') + "1e+5"), 0.0);
}

TEST(IsWholeNumber, IsANumberWithoutFraction) {
  for (const std::string_view text : {"3", "-3", "3.", "3.0", "3.000", "1e3", "1.5e1", "0", "-0.0",
                                      "30e-1", "123456789012345678901"}) {
    EXPECT_TRUE(IsWholeNumber(text)) << text;
  }
  for (const std::string_view text : {"3.1", "-0.5", ".5", "1.5e-1", "1e-3", "", "x", "3 ", " 3"}) {
    EXPECT_FALSE(IsWholeNumber(text)) << text;
  }
}

TEST(WholeNumberValue, TakesTheLongestNumericPrefixCutTowardZero) {
  EXPECT_EQ(WholeNumberValue("3.1 RTA (1.1)"), 3);
  EXPECT_EQ(WholeNumberValue("3.7"), 3);
  EXPECT_EQ(WholeNumberValue("-3.7"), -3);
  EXPECT_EQ(WholeNumberValue("+3"), 3);
  EXPECT_EQ(WholeNumberValue("  4.0.3"), 4);
  EXPECT_EQ(WholeNumberValue("1e3x"), 1000);
  EXPECT_EQ(WholeNumberValue("1e+"), 1);
  EXPECT_EQ(WholeNumberValue("25e-1"), 2);
  EXPECT_EQ(WholeNumberValue(".9"), 0);
  EXPECT_EQ(WholeNumberValue("-.9"), 0);
  EXPECT_EQ(WholeNumberValue("12,5"), 12);
}

TEST(WholeNumberValue, IsZeroWithoutAPrefix) {
  for (const std::string_view text : {"", "   ", "x3", "-", ".", "- 3", "\t3", "e3", "AGS 4"}) {
    EXPECT_EQ(WholeNumberValue(text), 0) << text;
  }
}

TEST(WholeNumberValue, StaysInItsRange) {
  EXPECT_GT(WholeNumberValue("1e400"), 1000000000000000000);
  EXPECT_LT(WholeNumberValue("-1e400"), -1000000000000000000);
  EXPECT_GT(WholeNumberValue("99999999999999999999"), 1000000000000000000);
  EXPECT_EQ(WholeNumberValue("4000000000000000000"), 4000000000000000000);
}

std::int64_t WholeNumberValuePlainly(std::string text) {
  while (text.starts_with(' '))
    text.erase(0, 1);
  while (!text.empty() && !IsNumericPlainly(text))
    text.pop_back();
  return static_cast<std::int64_t>(std::trunc(ValuePlainly(text)));
}

TEST(WholeNumberValue, AgreesWithItsPlainTwin) {
  RandomText random(33);
  constexpr std::array<std::string_view, 5> endings{"", " RTA", ".1", "e", "E-x"};
  for (int round = 0; round < 20000; ++round) {
    std::string text = RandomNumberText(random) + std::string(random.Pick(endings));
    if (random.OneIn(4)) text.insert(0, "  ");
    const std::optional<double> value = NumericValue(text);
    const bool isFarOut =
        std::abs(value.value_or(0.0)) > 8e18 || std::abs(ValuePlainly(text)) > 8e18;
    if (isFarOut) continue;
    EXPECT_EQ(WholeNumberValue(text), WholeNumberValuePlainly(text)) << text;
  }
}

TEST(PlainNumber, HasNoExponentAndNoPointInAWholeValue) {
  EXPECT_EQ(PlainNumber(0.0), "0");
  EXPECT_EQ(PlainNumber(-0.0), "0");
  EXPECT_EQ(PlainNumber(3.0), "3");
  EXPECT_EQ(PlainNumber(-3.0), "-3");
  EXPECT_EQ(PlainNumber(1.5), "1.5");
  EXPECT_EQ(PlainNumber(-0.25), "-0.25");
  EXPECT_EQ(PlainNumber(0.1), "0.1");
  EXPECT_EQ(PlainNumber(100000.0), "100000");
  EXPECT_EQ(PlainNumber(1e15), "1000000000000000");
  EXPECT_EQ(PlainNumber(1e-7), "0.0000001");
  EXPECT_EQ(PlainNumber(123456.789), "123456.789");
}

TEST(PlainNumber, ReachesTheEndsOfTheRange) {
  for (const double value :
       {std::numeric_limits<double>::max(), std::numeric_limits<double>::denorm_min(),
        -std::numeric_limits<double>::denorm_min()}) {
    const std::string text = PlainNumber(value);
    EXPECT_EQ(text.find_first_not_of("-0123456789."), std::string::npos) << text;
    EXPECT_EQ(ValuePlainly(text), value);
  }
}

/// The first number of decimals with which the printed value reads back as the same double.
std::string ShortestPlainly(double value) {
  std::array<char, 800> text{};
  for (int decimals = 0; decimals < 400; ++decimals) {
    std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
    if (ValuePlainly(text.data()) == value) break;
  }
  return text.data();
}

TEST(PlainNumber, IsTheShortestTextThatReadsBack) {
  RandomText random(34);
  for (int round = 0; round < 5000; ++round) {
    const double scale = std::pow(10.0, static_cast<double>(random.Below(12)) - 6.0);
    const double value = (static_cast<double>(random.Below(2000000)) - 1000000.0) * scale / 7.0;
    const std::string text = PlainNumber(value);
    EXPECT_EQ(ValuePlainly(text), value) << text;
    if (value == 0.0) continue;
    EXPECT_EQ(text.size(), ShortestPlainly(value).size()) << text;
  }
}

TEST(PlainNumber, ReadsBackForAnyDouble) {
  RandomText random(35);
  for (int round = 0; round < 5000; ++round) {
    const std::uint64_t bits = std::uint64_t{random.Below(std::size_t{1} << 32U)} << 32U |
                               random.Below(std::size_t{1} << 32U);
    const auto value = std::bit_cast<double>(bits);
    if (!std::isfinite(value) || value == 0.0) continue;
    const std::string text = PlainNumber(value);
    EXPECT_EQ(ValuePlainly(text), value) << text;
    EXPECT_EQ(text.find_first_of("eE"), std::string::npos) << text;
    EXPECT_EQ(text.find('.') == std::string::npos, value == std::trunc(value)) << text;
  }
}

TEST(CompareShortNumbers, ComparesByValue) {
  EXPECT_TRUE(CompareShortNumbers("9.50", "10.00") < 0);
  EXPECT_TRUE(CompareShortNumbers("1.25", "1.3") < 0);
  EXPECT_TRUE(CompareShortNumbers("2", "1.99") > 0);
  EXPECT_TRUE(CompareShortNumbers("01.50", "1.5") == 0);
  EXPECT_TRUE(CompareShortNumbers(".5", "0.50") == 0);
  EXPECT_TRUE(CompareShortNumbers("0", "0.0") == 0);
}

TEST(CompareShortNumbers, TellsOfShortNumbersWithoutSignOrExponentOnly) {
  for (const char* text : {"", "x", "-1", "+1", "1e1", "1.", "1..2", "1.00000000000000", " 1"}) {
    const bool isShort = std::string_view(text) == "1.";
    EXPECT_EQ(CompareShortNumbers(text, "2") < 0, isShort) << text;
    EXPECT_EQ(CompareShortNumbers("2", text) > 0, isShort) << text;
    EXPECT_FALSE(CompareShortNumbers(text, text) < 0) << text;
  }
}

TEST(CompareShortNumbers, AgreesWithTheNumbersValues) {
  constexpr std::array<std::string_view, 8> pieces{"0", "1", "5", "10", ".", ".0", "00", "99"};
  RandomText random(85);
  int comparedCount = 0;
  for (int round = 0; round < 100000; ++round) {
    const std::string left = random.Joined(pieces, 1 + random.Below(4));
    const std::string right = random.Joined(pieces, 1 + random.Below(4));
    const std::partial_ordering order = CompareShortNumbers(left, right);
    const std::optional<double> leftValue = NumericValue(left);
    const std::optional<double> rightValue = NumericValue(right);
    ASSERT_EQ(order == std::partial_ordering::unordered, !leftValue || !rightValue)
        << left << " " << right;
    if (!leftValue || !rightValue) continue;
    ASSERT_EQ(order, *leftValue <=> *rightValue) << left << " " << right;
    ++comparedCount;
  }
  EXPECT_GT(comparedCount, 10000);
}

TEST(CanonicalNumber, IsTheSameForEqualValues) {
  for (const std::string_view text : {"1.5", "1.50", "01.5", "+1.5", "001.500", "15e-1", ".15E1"}) {
    EXPECT_EQ(CanonicalNumber(text), "1.5") << text;
  }
  for (const std::string_view text : {"10", "010", "10.", "10.00", "1e1", "+10", "100E-1"}) {
    EXPECT_EQ(CanonicalNumber(text), "10") << text;
  }
  for (const std::string_view text : {"0", "-0", "0.00", "-0.0", "+0.", ".0", "0e5", "000000"}) {
    EXPECT_EQ(CanonicalNumber(text), "0") << text;
  }
  EXPECT_EQ(CanonicalNumber("-.50"), "-0.5");
  EXPECT_EQ(CanonicalNumber("-1."), "-1");
}

TEST(CanonicalNumber, GivesOtherTextsBack) {
  for (const std::string_view text :
       {"", " ", "BH1", "1.5 ", " 1.5", "1,5", ".", "-", "-.", "1.5.0", "1e", "00x"}) {
    EXPECT_EQ(CanonicalNumber(text), text);
  }
}

TEST(CanonicalNumber, AgreesWithItsPlainTwin) {
  RandomText random(36);
  for (int round = 0; round < 50000; ++round) {
    const std::string text = RandomNumberText(random);
    const std::string expected = IsNumericPlainly(text) ? PlainNumber(ValuePlainly(text)) : text;
    EXPECT_EQ(CanonicalNumber(text), expected) << text;
  }
}

TEST(CanonicalNumber, TakesDigitsOnEitherSideOfTheShortForm) {
  // Up to 15 characters a number's digits are its value; longer ones are read as a double.
  EXPECT_EQ(CanonicalNumber("999999999999999"), "999999999999999");
  EXPECT_EQ(CanonicalNumber("9999999999999999"), "10000000000000000");
  EXPECT_EQ(CanonicalNumber("0.0000000000001"), "0.0000000000001");
  EXPECT_EQ(CanonicalNumber("-0.0000000000001"), "-0.0000000000001");
  EXPECT_EQ(CanonicalNumber("0000000000000001.50"), "1.5");
}

TEST(AppendCanonicalNumber, LeavesWhatStandsBefore) {
  std::string text = "BH1,";
  AppendCanonicalNumber(text, "01.50");
  text += ',';
  AppendCanonicalNumber(text, "x");
  AppendCanonicalNumber(text, "");
  EXPECT_EQ(text, "BH1,1.5,x");
}

TEST(GroupedCount, HasCommasBetweenThousands) {
  EXPECT_EQ(GroupedCount(0), "0");
  EXPECT_EQ(GroupedCount(7), "7");
  EXPECT_EQ(GroupedCount(999), "999");
  EXPECT_EQ(GroupedCount(1000), "1,000");
  EXPECT_EQ(GroupedCount(1234567), "1,234,567");
  EXPECT_EQ(GroupedCount(100000), "100,000");
  EXPECT_EQ(GroupedCount(2147483647), "2,147,483,647");
  EXPECT_EQ(GroupedCount(18446744073709551615U), "18,446,744,073,709,551,615");
}

}  // namespace
}  // namespace quorvane::test
