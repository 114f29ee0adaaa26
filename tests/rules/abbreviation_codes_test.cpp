#include "rules/abbreviation_codes.h"

#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

/// The plain meaning of "a value uses a code": one search for one code.
bool Uses(const std::string& value, const std::string& code, const std::string& concatenator) {
  const auto enclosed = [&](const std::string& text) { return concatenator + text + concatenator; };
  return enclosed(value).find(enclosed(code)) != std::string::npos ||
         enclosed(" " + value + " ").find(enclosed(" " + code + " ")) != std::string::npos;
}

std::vector<std::string> UsedCodes(const std::vector<std::string>& values,
                                   const std::vector<std::string>& codes,
                                   const std::string& concatenator) {
  AbbreviationCodes index(concatenator);
  for (const std::string& code : codes)
    index.Add(code);
  for (const std::string& value : values)
    index.MarkUsed(value);
  std::vector<std::string> used;
  for (const std::string& code : codes) {
    if (index.IsUsed(code)) used.push_back(code);
  }
  return used;
}

std::vector<std::string> PlainlyUsedCodes(const std::vector<std::string>& values,
                                          const std::vector<std::string>& codes,
                                          const std::string& concatenator) {
  std::vector<std::string> used;
  for (const std::string& code : codes) {
    for (const std::string& value : values) {
      if (!Uses(value, code, concatenator)) continue;
      used.push_back(code);
      break;
    }
  }
  return used;
}

class RandomTexts {
 public:
  explicit RandomTexts(unsigned seed) : random_(seed) {}

  std::size_t Below(std::size_t limit) { return random_() % limit; }

  std::string Text(std::string_view alphabet, std::size_t shortest, std::size_t longest) {
    std::string text(shortest + Below(longest - shortest + 1), ' ');
    for (char& letter : text)
      letter = alphabet[Below(alphabet.size())];
    return text;
  }

  std::vector<std::string> Texts(std::size_t count, std::string_view alphabet, std::size_t shortest,
                                 std::size_t longest) {
    std::vector<std::string> texts;
    for (std::size_t index = 0; index < count; ++index) {
      texts.push_back(Text(alphabet, shortest, longest));
    }
    return texts;
  }

 private:
  std::mt19937 random_;
};

TEST(AbbreviationCodes, ValueThatIsACodeUsesIt) {
  EXPECT_EQ(UsedCodes({"B"}, {"A", "B"}, "+"), std::vector<std::string>{"B"});
}

TEST(AbbreviationCodes, ListUsesEachOfItsCodes) {
  const std::vector<std::string> codes{"A", "B", "U"};
  const std::vector<std::string> used{"B", "U"};
  EXPECT_EQ(UsedCodes({"B+U"}, codes, "+"), used);
  EXPECT_EQ(UsedCodes({"B + U"}, codes, "+"), used);
}

TEST(AbbreviationCodes, PartOfACodeIsNotUsed) {
  EXPECT_TRUE(UsedCodes({"BLK", "ABLK+LKB"}, {"LK", "B"}, "+").empty());
}

TEST(AbbreviationCodes, BlankOnOneSideOnlyDoesNotMatch) {
  EXPECT_TRUE(UsedCodes({"A+B +U", "A+ B+U"}, {"B"}, "+").empty());
  EXPECT_EQ(UsedCodes({"A+B +U"}, {"B "}, "+"), std::vector<std::string>{"B "});
}

TEST(AbbreviationCodes, CodeMayHoldTheConcatenator) {
  EXPECT_EQ(UsedCodes({"X+A+B+Y"}, {"A+B", "B+Y", "X+B", "X+A+B"}, "+"),
            (std::vector<std::string>{"A+B", "B+Y", "X+A+B"}));
  EXPECT_EQ(UsedCodes({"A++B"}, {"A+", "+B", "+"}, "+"), (std::vector<std::string>{"A+", "+B"}));
}

TEST(AbbreviationCodes, ConcatenatorMayOverlapItself) {
  EXPECT_EQ(UsedCodes({"A+++B"}, {"A", "A+", "+B", "B"}, "++"),
            (std::vector<std::string>{"A", "A+", "+B", "B"}));
}

TEST(AbbreviationCodes, CodeIsAddedOnce) {
  AbbreviationCodes codes("+");
  EXPECT_TRUE(codes.Add("A"));
  EXPECT_FALSE(codes.Add("A"));
  EXPECT_TRUE(codes.Contains("A"));
  EXPECT_FALSE(codes.Contains("B"));
  EXPECT_FALSE(codes.IsUsed("B"));
}

TEST(AbbreviationCodes, CodesAddedBetweenValuesAreMarkedFromThenOn) {
  AbbreviationCodes codes("+");
  codes.Add("A");
  codes.MarkUsed("A+B");
  codes.Add("B");
  EXPECT_FALSE(codes.IsUsed("B"));
  codes.MarkUsed("B");
  EXPECT_TRUE(codes.IsUsed("B"));
}

TEST(AbbreviationCodes, PiecesOfAValueAreTrimmedAndNotEmpty) {
  std::vector<std::string> pieces;
  ForEachCode(" B + U++ +D+ ", "+", [&](std::string_view code) { pieces.emplace_back(code); });
  EXPECT_EQ(pieces, (std::vector<std::string>{"B", "U", "D"}));
  pieces.clear();
  ForEachCode("   ", "+", [&](std::string_view code) { pieces.emplace_back(code); });
  EXPECT_TRUE(pieces.empty());
}

// Short texts over few letters hold every kind of overlap between codes, values, blanks and
// concatenators.
TEST(AbbreviationCodes, IndexFindsWhatSearchingForEachCodeFinds) {
  RandomTexts random(20260102);
  int usedCodes = 0;
  int unusedCodes = 0;
  for (const std::string concatenator :
       {"+", "++", "+-+", " ", "  ", "+ ", " +", " + ", "A", "AA", "ABA", "+A+"}) {
    for (const std::string_view alphabet : {"A+", "A +", "AB +", "AB+-", "ABC + "}) {
      for (int trial = 0; trial < 1500; ++trial) {
        const auto codes = random.Texts(1 + random.Below(8), alphabet, 1, 6);
        const auto values = random.Texts(1 + random.Below(4), alphabet, 0, 12);
        const auto expected = PlainlyUsedCodes(values, codes, concatenator);
        ASSERT_EQ(UsedCodes(values, codes, concatenator), expected)
            << "concatenator '" << concatenator << "' codes " << testing::PrintToString(codes)
            << " values " << testing::PrintToString(values);
        usedCodes += static_cast<int>(expected.size());
        unusedCodes += static_cast<int>(codes.size() - expected.size());
      }
    }
  }
  // The trials are worth something only when both outcomes are frequent.
  EXPECT_GT(usedCodes, 10000);
  EXPECT_GT(unusedCodes, 10000);
}

}  // namespace
}  // namespace quorvane::test
