#include "text/typed_value.h"

#include <cmath>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "text/comma_list.h"
#include "text/number.h"

namespace quorvane::test {
namespace {

struct Verdict {
  std::string value;
  bool isValid;
};

struct DigitsVerdict {
  std::int64_t digits;
  std::string value;
  bool isValid;
};

TEST(DataTypes, AreReadInExactLetterCase) {
  const std::vector<std::pair<std::string, DataType>> table{
      {"DMS", {ValueKind::DegreesMinutesSeconds, 0}},
      {"DT", {ValueKind::DateTime, 0}},
      {"ID", {ValueKind::Identifier, 0}},
      {"RL", {ValueKind::RecordLink, 0}},
      {"MC", {ValueKind::MoistureContent, 0}},
      {"U", {ValueKind::Number, 0}},
      {"T", {ValueKind::ElapsedTime, 0}},
      {"X", {ValueKind::Unchecked, 0}},
      {"XN", {ValueKind::Unchecked, 0}},
      {"PA", {ValueKind::Unchecked, 0}},
      {"PT", {ValueKind::Unchecked, 0}},
      {"PU", {ValueKind::Unchecked, 0}},
      {"YN", {ValueKind::YesNo, 0}},
      {"0DP", {ValueKind::DecimalPlaces, 0}},
      {"2DP", {ValueKind::DecimalPlaces, 2}},
      {"10SF", {ValueKind::SignificantFigures, 10}},
      {"3SCI", {ValueKind::Scientific, 3}},
      {"2.9DP", {ValueKind::DecimalPlaces, 2}},
      {"2 DP", {ValueKind::DecimalPlaces, 2}},
      {"1E1SF", {ValueKind::SignificantFigures, 10}},
      {"2XDP", {ValueKind::DecimalPlaces, 2}},
      {"", {}},
      {"DP", {}},
      {"dp", {}},
      {"2dp", {}},
      {"x", {}},
      {"yn", {}},
      {" X", {}},
      {"X ", {}},
      {"2", {}},
      {"2DPX", {}},
      {"2SCi", {}},
      {"+2DP", {}},
      {"MCX", {}}};
  for (const auto& [code, type] : table)
    EXPECT_EQ(ReadDataType(code), type) << code;
}

TEST(DegreesMinutesSeconds, Table) {
  const std::vector<Verdict> table{
      {"359:59:59.9", true},  {"360:00:00", false},  {"-359:59:59", true},   {"-360:00:00", false},
      {"0:0:0", true},        {"00:00:00", true},    {"+51:30:26.5", true},  {"10:60:00", false},
      {"10:59:00", true},     {"10:00:60", false},   {"10:00:59.999", true}, {"10.5:00:00", false},
      {"10.0:00:00", true},   {"10:00.5:00", false}, {"10:30.0:00", true},   {"10:-1:00", false},
      {"10:00:-1", false},    {"10:-0:00", true},    {"10:00", false},       {"10", false},
      {"10:00:00:00", false}, {"10:00:", false},     {":00:00", false},      {"::", false},
      {"10: 00:00", false},   {"10:00:00 ", false},  {"ab:00:00", false},    {"1E1:1E1:1E1", true},
      {"51 30 26", false},    {"10:00:5.", true},    {"359.5:00:00", false}, {"10:00:00N", false}};
  for (const auto& [value, isValid] : table)
    EXPECT_EQ(IsDegreesMinutesSeconds(value), isValid) << value;
}

TEST(MoistureContent, Table) {
  const std::vector<Verdict> table{
      {"10", true},    {"10.0", false},  {"10.", false},  {"9.5", true}, {"9", false},
      {"9.55", false}, {"7.5", true},    {"7.", true},    {"7", false},  {"7.25", false},
      {"123", true},   {"99.9", false},  {"0.0", true},   {"0", false},  {".5", true},
      {"-5.0", true},  {"-50", false},   {"-50.0", true}, {"+12", true}, {"+9.5", true},
      {"010", true},   {"09.5", true},   {"9.9", true},   {"1E1", true}, {"1.0E1", false},
      {"1.E1", false}, {"99E-1", false}, {"", false},     {".", false},  {"9,5", false},
      {" 12", false},  {"<1", false},    {"NP", false}};
  for (const auto& [value, isValid] : table)
    EXPECT_EQ(IsMoistureContent(value), isValid) << value;
}

TEST(YesNo, Table) {
  const std::vector<Verdict> table{{"Y", true},    {"N", true},  {"", true},
                                   {"y", false},   {"n", false}, {"YN", false},
                                   {"Yes", false}, {" ", false}, {"Y ", false}};
  for (const auto& [value, isValid] : table)
    EXPECT_EQ(IsYesNo(value), isValid) << value;
}

TEST(DecimalPlaces, Table) {
  const std::vector<DigitsVerdict> table{{2, "1.5", false},
                                         {2, "1.50", true},
                                         {2, "1.5E1", false},
                                         {2, "1.500", false},
                                         {2, "-1.50", true},
                                         {2, "+1.50", true},
                                         {2, ".50", true},
                                         {2, "-.50", true},
                                         {2, "1", false},
                                         {2, "1.", false},
                                         {2, "0.00", true},
                                         {2, "00.00", true},
                                         {2, "1.5a", false},
                                         {2, "a.50", false},
                                         {2, "1.50 ", false},
                                         {2, " 1.50", false},
                                         {2, "1,50", false},
                                         {2, "1.2.34", false},
                                         {2, "--1.50", false},
                                         {2, "1.5-", false},
                                         {0, "12", true},
                                         {0, "12.", true},
                                         {0, "12.0", false},
                                         {0, "0", true},
                                         {0, "-0", true},
                                         {0, "-12", true},
                                         {0, "+12.", true},
                                         {0, "", false},
                                         {0, "-", false},
                                         {0, ".", false},
                                         {0, "-.", false},
                                         {0, "1E3", false},
                                         {0, "1e3", false},
                                         {0, "1 000", false},
                                         {0, "1,000", false},
                                         {0, "<5", false},
                                         {1, "5.1", true},
                                         {1, ".1", true},
                                         {1, "5.", false},
                                         {1, "12345678901.2", true},
                                         {10, "0.0123456789", true},
                                         {3, "1.234", true},
                                         {3, "1.23", false}};
  for (const auto& [digits, value, isValid] : table)
    EXPECT_EQ(HasDecimalPlaces(value, digits), isValid) << digits << "DP " << value;
}

TEST(SignificantFigures, Table) {
  const std::vector<DigitsVerdict> table{
      {2, "0.0", true},     {2, "0", false},     {2, "0.00", false},  {2, "00.0", false},
      {2, "-0.0", true},    {2, "+0.0", true},   {1, "0.", true},     {1, "0", false},
      {3, "0.00", true},    {3, "0.0", false},   {1, ".0", false},    {2, "-0.012", true},
      {2, "1200", true},    {2, "1201", false},  {2, "12", true},     {2, "1", false},
      {2, "1.2", true},     {2, "1.20", false},  {2, "12.", true},    {2, "120.", false},
      {3, "0.00120", true}, {3, "1.20", true},   {4, "120.5", true},  {3, "12300", true},
      {3, "12345", false},  {3, "12340", false}, {4, "12340", true},  {3, "012", true},
      {2, "012", false},    {2, "0100", true},   {2, "0110", false},  {2, ".12", true},
      {2, "00.12", true},   {2, "010.", true},   {2, "1.2E3", false}, {2, "1e3", false},
      {2, "--12", false},   {2, "+12", true},    {2, "-12", true},    {2, "1-2", false},
      {2, "", false},       {2, "-", false},     {2, ".", false},     {2, "12 ", false},
      {3, "10.05", false},  {4, "10.05", true},  {0, "0", false},     {0, "0.", false},
      {0, "5", false},      {0, "5.", false},    {3, "0.000", false}, {1, "500", true},
      {1, "0.5", true},     {1, "0.50", false},  {2, "abc", false},   {2, "<12", false}};
  for (const auto& [digits, value, isValid] : table)
    EXPECT_EQ(HasSignificantFigures(value, digits), isValid) << digits << "SF " << value;
}

TEST(Scientific, Table) {
  const std::vector<DigitsVerdict> table{
      {2, "1.20E3", true},   {2, "1.20e-3", true}, {2, "1.20E+03", true},  {2, "1.2E3", false},
      {2, "1.200E3", false}, {2, "1.20", false},   {2, "120E3", false},    {0, "1E3", true},
      {0, "1.E3", true},     {0, "1.0E3", false},  {0, "E3", false},       {0, "1E", false},
      {0, "1E+", false},     {1, "-1.5E3", true},  {1, "+.5E3", true},     {1, "1.5E3.0", false},
      {1, "1.5EE3", false},  {1, "1.5 E3", false}, {1, "1.5x10E3", false}, {3, "9.999E99", true},
      {0, "", false},        {1, "1.5E3 ", false}};
  for (const auto& [digits, value, isValid] : table)
    EXPECT_EQ(IsScientific(value, digits), isValid) << digits << "SCI " << value;
}

// Twins written step by step, without regard to cost, against which the routines are held.

bool HasExponent(const std::string& value) {
  return value.find_first_of("Ee") != std::string::npos;
}

bool PlainDecimalPlaces(const std::string& value, std::int64_t places) {
  if (!NumericValue(value) || HasExponent(value)) return false;
  const std::size_t point = value.find('.');
  if (point == std::string::npos) return places == 0;
  return static_cast<std::int64_t>(value.substr(point + 1).size()) == places;
}

std::string StripZeros(std::string text) {
  while (!text.empty() && text.front() == '0')
    text.erase(0, 1);
  return text;
}

bool PlainSignificantFigures(const std::string& value, std::int64_t figures) {
  const std::optional<double> number = NumericValue(value);
  if (!number || HasExponent(value)) return false;
  std::string text = value;
  if (text[0] == '-' || text[0] == '+') text.erase(0, 1);
  const auto wanted = static_cast<std::size_t>(figures);
  if (*number == 0.0) return figures > 0 && text == "0." + std::string(wanted - 1, '0');
  if (text.find('.') == std::string::npos) {
    if (text.size() < wanted) return false;
    return text.size() == wanted || *NumericValue(text.substr(wanted)) == 0.0;
  }
  text = StripZeros(text);
  if (text[0] == '.') {
    text = StripZeros(text.substr(1));
  } else {
    text.erase(text.find('.'), 1);
  }
  return text.size() == wanted;
}

bool PlainScientific(const std::string& value, std::int64_t places) {
  if (!NumericValue(value) || !HasExponent(value)) return false;
  const std::string mantissa = value.substr(0, value.find_first_of("Ee"));
  const std::size_t point = mantissa.find('.');
  if (point == std::string::npos) return places == 0;
  return static_cast<std::int64_t>(mantissa.size() - point - 1) == places;
}

bool PlainMoistureContent(const std::string& value) {
  const std::optional<double> number = NumericValue(value);
  if (!number) return false;
  const std::size_t point = value.find('.');
  if (*number >= 10.0) return point == std::string::npos;
  return point != std::string::npos && value.substr(point + 1).size() <= 1;
}

bool PlainDegreesMinutesSeconds(const std::string& value) {
  std::vector<double> numbers;
  for (const std::string_view part : Split(value, ":")) {
    const std::optional<double> number = NumericValue(part);
    if (!number) return false;
    numbers.push_back(*number);
  }
  const auto isWhole = [](double number) { return number == std::floor(number); };
  return numbers.size() == 3 && isWhole(numbers[0]) && std::abs(numbers[0]) <= 359 &&
         isWhole(numbers[1]) && numbers[1] >= 0 && numbers[1] < 60 && numbers[2] >= 0 &&
         numbers[2] < 60;
}

/// The text with "d" for every run of digits, "+" for every sign and "E" for every exponent letter.
std::string Shape(const std::string& text) {
  std::string shape;
  for (const char letter : text) {
    if (letter >= '0' && letter <= '9') {
      if (!shape.ends_with('d')) shape += 'd';
    } else if (letter == '-') {
      shape += '+';
    } else {
      shape += letter == 'e' ? 'E' : letter;
    }
  }
  return shape;
}

bool PlainNumeric(const std::string& value) {
  // No text of a test has the letter d.
  const std::string shape = Shape(value);
  for (const std::string_view sign : {"", "+"}) {
    for (const std::string_view digits : {"d", "d.", "d.d", ".d"}) {
      for (const std::string_view exponent : {"", "Ed", "E+d"}) {
        if (shape == Join(std::vector{sign, digits, exponent}, "")) return true;
      }
    }
  }
  return false;
}

/// Texts that are numbers, nearly numbers, or neither.
class NumberLikeTexts {
 public:
  std::string Next() {
    static constexpr std::string_view characters = "0000011225699....+-Ee :a";
    std::string text;
    const std::size_t length = 1 + Pick(9);
    for (std::size_t index = 0; index < length; ++index) {
      // A sign is rarely anywhere but in front.
      const std::size_t letters = characters.size() - (index > 0 && Pick(4) > 0 ? 7 : 0);
      text += characters[Pick(letters)];
    }
    if (Pick(6) == 0) text += "E" + std::to_string(static_cast<int>(Pick(7)) - 3);
    return text;
  }

  std::size_t Pick(std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
  }

 private:
  std::mt19937 random_{20260114};
};

TEST(TypedValues, AgreeWithTheirTwinsOnRandomTexts) {
  NumberLikeTexts texts;
  int valid[5] = {};
  for (int round = 0; round < 150000; ++round) {
    const std::string text = texts.Next();
    const auto digits = static_cast<std::int64_t>(texts.Pick(5));
    ASSERT_EQ(IsNumeric(text), PlainNumeric(text)) << text;
    ASSERT_EQ(HasDecimalPlaces(text, digits), PlainDecimalPlaces(text, digits))
        << digits << "DP " << text;
    ASSERT_EQ(HasSignificantFigures(text, digits), PlainSignificantFigures(text, digits))
        << digits << "SF " << text;
    ASSERT_EQ(IsScientific(text, digits), PlainScientific(text, digits))
        << digits << "SCI " << text;
    ASSERT_EQ(IsMoistureContent(text), PlainMoistureContent(text)) << text;
    valid[0] += PlainNumeric(text);
    valid[1] += PlainDecimalPlaces(text, digits);
    valid[2] += PlainSignificantFigures(text, digits);
    valid[3] += PlainScientific(text, digits);
    valid[4] += PlainMoistureContent(text);
  }
  for (const int count : valid)
    EXPECT_GT(count, 1000);  // both verdicts came up
}

TEST(TypedValues, AnglesAgreeWithTheirTwinOnRandomTexts) {
  NumberLikeTexts texts;
  const std::vector<std::string> parts{"0",    "59",   "60",    "-1", "359", "360",
                                       "-359", "-360", "5.5",   "5.", "",    "1x",
                                       "+7",   "1E1",  "59.99", "00", "12",  "30"};
  int valid = 0;
  for (int round = 0; round < 100000; ++round) {
    std::string text = parts[texts.Pick(parts.size())];
    const std::size_t more = texts.Pick(8) == 0 ? texts.Pick(5) : 2;
    for (std::size_t index = 0; index < more; ++index)
      text += ":" + parts[texts.Pick(parts.size())];
    ASSERT_EQ(IsDegreesMinutesSeconds(text), PlainDegreesMinutesSeconds(text)) << text;
    valid += PlainDegreesMinutesSeconds(text);
  }
  EXPECT_GT(valid, 1000);
}

}  // namespace
}  // namespace quorvane::test
