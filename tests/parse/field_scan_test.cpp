#include "parse/field_scan.h"

#include <algorithm>
#include <array>

#include <gtest/gtest.h>

#include "parse/field.h"
#include "report/disk.h"
#include "support/random_text.h"
#include "support/recorded_log.h"

namespace quorvane::test {
namespace {

using Offsets = std::vector<FieldOffset>;
using Scan = std::size_t (*)(std::string_view, FieldOffset*);

/// The offsets that a scan writes; empty when it does not take the line. A scan that writes more
/// than it may is found out by what stands behind the room that it has.
Offsets OffsetsOf(Scan scan, std::string_view line) {
  constexpr FieldOffset guard = 0xABCD;
  Offsets offsets(MostFieldOffsets(line.size()) + 8, guard);
  const std::size_t count = scan(line, offsets.data());
  const auto behind = offsets.begin() + static_cast<std::ptrdiff_t>(MostFieldOffsets(line.size()));
  EXPECT_EQ(std::count(behind, offsets.end(), guard), 8) << line;
  offsets.resize(count == 0 ? 0 : count + 1);
  return offsets;
}

/// A line in the middle of others, as it lies in a file: what stands around it must not matter.
class LineInFile {
 public:
  LineInFile(std::string_view before, std::string_view line, std::string_view behind)
      : bytes_(std::string(before) + std::string(line) + std::string(behind)),
        line_(bytes_.View().substr(before.size(), line.size())) {}

  std::string_view Line() const { return line_; }

 private:
  ByteBuffer bytes_;
  std::string_view line_;
};

Offsets FastOffsets(std::string_view line) {
  return OffsetsOf(ScanRegularFields, LineInFile("", line, "").Line());
}

TEST(ScanRegularFields, GivesTheStartsOfValuesAndTheEnd) {
  EXPECT_EQ(FastOffsets(R"("BH1","1.00","")"), (Offsets{1, 7, 14, 17}));
  EXPECT_EQ(FastOffsets(R"("A")"), (Offsets{1, 5}));
  EXPECT_EQ(FastOffsets(R"("")"), (Offsets{1, 4}));
  EXPECT_EQ(FastOffsets(R"("","","")"), (Offsets{1, 4, 7, 10}));
  EXPECT_EQ(FastOffsets(R"("a,b"," c")"), Offsets{});
  EXPECT_EQ(FastOffsets(R"("a,b","c ")"), (Offsets{1, 7, 12}));
}

TEST(ScanRegularFields, TakesNoLineOfAnotherForm) {
  for (const char* line : {"",
                           "\"",
                           "a",
                           "\"a",
                           "a\"",
                           "\"a\",",
                           ",\"a\"",
                           "\"a\",b",
                           "a,\"b\"",
                           "\"a\", \"b\"",
                           "\"a\" ,\"b\"",
                           "\"a\"\"b\"",
                           "\"a\"b\",\"c\"",
                           "\" a\"",
                           "\"a\",\" b\"",
                           "\" \"",
                           "\"a\",\"",
                           "\"\",\"",
                           "\"\"\"",
                           "\"\"\"\"",
                           "\"a\",,\"b\"",
                           "\"a\"\"\",\"b\"",
                           "\"a\",\"\"\"b\"",
                           "\"a\";\"b\"",
                           "\"a\",\"b\" "}) {
    EXPECT_EQ(FastOffsets(line), Offsets{}) << line;
    EXPECT_EQ(OffsetsOf(ScanRegularFieldsPlainly, line), Offsets{}) << line;
  }
}

TEST(ScanRegularFields, TakesLinesUpToTheLongestOnly) {
  const std::string longest = "\"" + std::string(LongestRegularLine - 2, 'x') + "\"";
  EXPECT_EQ(FastOffsets(longest), (Offsets{1, 65535}));
  EXPECT_EQ(OffsetsOf(ScanRegularFieldsPlainly, longest), (Offsets{1, 65535}));
  const std::string longer = "\"" + longest.substr(1, longest.size() - 2) + "x\"";
  EXPECT_EQ(FastOffsets(longer), Offsets{});
  EXPECT_EQ(OffsetsOf(ScanRegularFieldsPlainly, longer), Offsets{});
}

TEST(ScanRegularFields, TakesALineOfManyEmptyFields) {
  std::string line = "\"\"";
  while (line.size() + 3 <= LongestRegularLine)
    line += ",\"\"";
  const Offsets offsets = FastOffsets(line);
  EXPECT_EQ(offsets.size(), (line.size() + 1) / 3 + 1);
  EXPECT_EQ(offsets, OffsetsOf(ScanRegularFieldsPlainly, line));
}

constexpr std::array<std::string_view, 7> Behind{"",
                                                 "\",\"\",\"\",\"\",\"",
                                                 "\r\n\"a\",\" b\"",
                                                 "                    ",
                                                 ",\"   \",\"\"\"\"\"\"\"\"\"\"",
                                                 "\"\"\"\"\"\"\"\"\"\"\"\"\"\"\"\"\"\"\"\"\"\"\"\"",
                                                 "\",\" x"};

TEST(ScanRegularFields, OfEveryLengthIsTheSameAsTheTwinWhateverStandsAround) {
  for (std::size_t length = 0; length < 70; ++length) {
    for (std::size_t before = 0; before < 17; ++before) {
      for (const std::string_view behind : Behind) {
        const std::string line = "\"" + std::string(length, 'v') + "\"";
        const LineInFile single(std::string(before, '"'), line, behind);
        ASSERT_EQ(OffsetsOf(ScanRegularFields, single.Line()),
                  OffsetsOf(ScanRegularFieldsPlainly, line))
            << line << behind;
        const LineInFile pair(std::string(before, ','), line + ",\"w\"", behind);
        ASSERT_EQ(OffsetsOf(ScanRegularFields, pair.Line()),
                  OffsetsOf(ScanRegularFieldsPlainly, line + ",\"w\""))
            << line << behind;
      }
    }
  }
}

/// Whether a field holds a comma and nothing else: then three quotes stand with single commas
/// between.
bool HoldsQuotedComma(std::string_view line) {
  return line.find("\",\",\"") != std::string_view::npos || line.starts_with("\",\"");
}

void ExpectAgreement(std::string_view line) {
  if (HoldsQuotedComma(line)) return;  // has a test of its own
  EXPECT_EQ(FastOffsets(line), OffsetsOf(ScanRegularFieldsPlainly, line)) << line;
}

/// With other lengths of the first value, each place comes to lie on each side of the blocks' ends.
TEST(ScanRegularFields, FindsAFaultAtEveryPlace) {
  for (std::size_t length = 1; length <= 64; ++length) {
    const std::string sound =
        "\"" + std::string(length, 'f') + R"(","","third","4.00","","a,b","last one of the line")";
    ASSERT_EQ(FastOffsets(sound).size(), 8U);
    for (std::size_t at = 0; at < sound.size(); ++at) {
      for (const char letter : {'"', ',', ' ', 'x'}) {
        std::string line = sound;
        line[at] = letter;
        ExpectAgreement(line);
        line = sound;
        line.insert(at, 1, letter);
        ExpectAgreement(line);
      }
      std::string line = sound;
      line.erase(at, 1);
      ExpectAgreement(line);
    }
  }
}

constexpr std::array<std::string_view, 9> ValuePieces{"a",  "b", "12.50",           ", ",  " ",
                                                      ",x", "(", "long value here", "\xE4"};

std::string RandomValue(RandomText& random) {
  return random.Joined(ValuePieces, random.Below(random.OneIn(4) ? 6 : 2));
}

std::string RandomRegularLine(RandomText& random) {
  std::string line = "\"" + RandomValue(random) + "\"";
  for (std::size_t field = random.Below(9); field > 0; --field) {
    line += ",\"" + RandomValue(random) + "\"";
  }
  return line;
}

/// A line of regular form with, often, something done to it.
std::string RandomLine(RandomText& random) {
  constexpr std::array<std::string_view, 6> letters{"\"", ",", " ", "x", "\"\"", "\",\""};
  std::string line = RandomRegularLine(random);
  for (std::size_t change = random.Below(3); change > 0; --change) {
    const std::size_t at = random.Below(line.size());
    if (random.OneIn(2)) line.erase(at, 1 + random.Below(3));
    line.insert(std::min(at, line.size()), random.Pick(letters));
  }
  return line;
}

TEST(ScanRegularFields, AgreesWithItsPlainTwin) {
  RandomText random(71);
  int taken = 0;
  for (int round = 0; round < 100000; ++round) {
    const std::string line = RandomLine(random);
    if (HoldsQuotedComma(line)) continue;
    const LineInFile inFile(std::string(random.Below(17), '\n'), line, random.Pick(Behind));
    const Offsets offsets = OffsetsOf(ScanRegularFields, inFile.Line());
    ASSERT_EQ(offsets, OffsetsOf(ScanRegularFieldsPlainly, line)) << line;
    taken += offsets.empty() ? 0 : 1;
  }
  EXPECT_GT(taken, 20000);
}

TEST(ScanRegularFields, AgreesWithItsPlainTwinAboutValuesThatAreAComma) {
  for (const char* line :
       {R"(",")", R"(",","a")", R"("a",",")", R"("a",",","b")", R"(",",",",",")", R"("",",","")"}) {
    EXPECT_EQ(FastOffsets(line), OffsetsOf(ScanRegularFieldsPlainly, line)) << line;
  }
}

TEST(ScanRegularFields, NeverTakesALineDifferentlyFromItsPlainTwin) {
  constexpr std::array<std::string_view, 5> letters{"\"", "\"", ",", ",", "a"};
  RandomText random(72);
  for (int round = 0; round < 200000; ++round) {
    const std::string line = random.Joined(letters, random.Below(14));
    const Offsets offsets = FastOffsets(line);
    if (offsets.empty()) continue;
    ASSERT_EQ(offsets, OffsetsOf(ScanRegularFieldsPlainly, line)) << line;
  }
}

/// What the reading field by field makes of a line.
std::vector<std::string> ReadFieldByField(std::string_view line, std::size_t& findingCount) {
  RecordedLog recorded;
  std::vector<std::string> values;
  std::size_t position = 1;
  while (position != 0) {
    std::string restored;
    values.emplace_back(GetNextField({recorded.Log(), 1, line, false, {}}, position, restored));
  }
  findingCount = recorded.Findings().size();
  return values;
}

std::vector<std::string> ValuesOf(std::string_view line, const Offsets& offsets) {
  std::vector<std::string> values;
  for (std::size_t field = 0; field + 1 < offsets.size(); ++field) {
    const std::size_t start = offsets[field];
    values.emplace_back(line.substr(start, offsets[field + 1] - 3U - start));
  }
  return values;
}

TEST(ScanRegularFields, GivesWhatTheReadingFieldByFieldGives) {
  RandomText random(73);
  for (const Scan scan : {ScanRegularFields, ScanRegularFieldsPlainly}) {
    int taken = 0;
    for (int round = 0; round < 50000; ++round) {
      const LineInFile inFile("", RandomLine(random), random.Pick(Behind));
      const Offsets offsets = OffsetsOf(scan, inFile.Line());
      if (offsets.empty()) continue;
      std::size_t findingCount = 0;
      ASSERT_EQ(ValuesOf(inFile.Line(), offsets), ReadFieldByField(inFile.Line(), findingCount));
      ASSERT_EQ(findingCount, 0U) << inFile.Line();
      ++taken;
    }
    EXPECT_GT(taken, 10000);
  }
}

}  // namespace
}  // namespace quorvane::test
