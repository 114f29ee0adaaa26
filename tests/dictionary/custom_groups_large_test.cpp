#include <chrono>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "dictionary/custom_dictionary.h"

namespace quorvane::test {
namespace {

using testing::IsEmpty;

using LargeAgs3Dict = Ags3DictTest;
using LargeAgs4Dict = Ags4DictTest;

// Very large DICT groups. Each of these would take minutes with a search through all groups, rows
// or headings per group, row or heading.

class Stopwatch {
 public:
  double Seconds() const {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
  }

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

constexpr double LongestSeconds = 15;  // for builds with sanitizers too
constexpr int ManyRows = 200000;

std::string NumberedName(int number) {
  std::string name = std::to_string(number);
  return "G" + std::string(6 - name.size(), '0') + name;
}

TEST_F(LargeAgs4Dict, ManyGroupsOfOneParentAreFast) {
  std::vector<CustomRow> rows;
  for (int number = 0; number < ManyRows / 4; ++number) {
    const std::string name = NumberedName(number);
    rows.push_back(DefinesGroup(name));
    rows.push_back(DefinesHeading(name, "STND_REF", "KEY"));
    rows.push_back(DefinesHeading(name, name + "_NO", "KEY"));
    rows.push_back(DefinesHeading(name, name + "_REM", "OTHER"));
  }
  const std::string text = Ags4Dict(rows);
  const Stopwatch stopwatch;
  dictionary.Add(text);
  EXPECT_LT(stopwatch.Seconds(), LongestSeconds);
  EXPECT_EQ(dictionary.Of(NumberedName(ManyRows / 4 - 1)).ParentGroup, "STND");
}

TEST_F(LargeAgs4Dict, ManyGroupsThatCouldAllBeParentsOfEachOtherAreFast) {
  std::vector<CustomRow> rows;
  for (int number = 0; number < ManyRows / 2; ++number) {
    rows.push_back(DefinesGroup(NumberedName(number)));
    rows.push_back(DefinesHeading(NumberedName(number), "LOCA_ID", "KEY"));
  }
  const std::string text = Ags4Dict(rows);
  UnattendedParentChoice choice(dictionary.services.messages);
  const Stopwatch stopwatch;
  dictionary.Add(text, choice);
  EXPECT_LT(stopwatch.Seconds(), LongestSeconds);
  EXPECT_EQ(dictionary.Of(NumberedName(17)).ParentGroup, "LOCA");
  EXPECT_EQ(dictionary.services.messages.notes.size(), static_cast<std::size_t>(ManyRows / 2));
}

TEST_F(LargeAgs4Dict, ManyGroupsThatShareOneHeadingAreFast) {
  std::vector<CustomRow> rows;
  for (int number = 0; number < ManyRows / 3; ++number) {
    const std::string name = NumberedName(number);
    rows.push_back(DefinesGroup(name));
    rows.push_back(DefinesHeading(name, "ZZZZ_REF", "KEY"));
    rows.push_back(DefinesHeading(name, "YYYY_" + name, "KEY"));
  }
  const std::string text = Ags4Dict(rows);
  const Stopwatch stopwatch;
  dictionary.Add(text);
  EXPECT_LT(stopwatch.Seconds(), LongestSeconds);
  EXPECT_THAT(dictionary.Questions(), IsEmpty());
  EXPECT_EQ(dictionary.Of(NumberedName(17)).ParentGroup, "");
}

TEST_F(LargeAgs4Dict, VeryLongKeysAreFast) {
  std::vector<CustomRow> rows{DefinesGroup("HVAN", "LOCA")};
  for (int number = 0; number < ManyRows / 2; ++number) {
    rows.push_back(DefinesHeading("HVAN", "HVAN_" + std::to_string(number), "KEY"));
    rows.push_back(DefinesHeading("LOCA", "LOCA_" + std::to_string(number), "KEY"));
  }
  const std::string text = Ags4Dict(rows);
  const Stopwatch stopwatch;
  dictionary.Add(text);
  EXPECT_LT(stopwatch.Seconds(), LongestSeconds);
  EXPECT_EQ(dictionary.Of("HVAN").KeyCount, ManyRows / 2);
  EXPECT_EQ(dictionary.Of("LOCA").KeyCount, ManyRows / 2 + 1);
  EXPECT_EQ(dictionary.Of("HVAN").ParentKeyCount, ManyRows / 2 + 1);
  EXPECT_EQ(dictionary.added["LOCA"].size(), static_cast<std::size_t>(ManyRows / 2));
}

TEST_F(LargeAgs3Dict, OneHeadingListedVeryOftenIsFast) {
  std::vector<CustomRow> rows{DefinesGroup("SOAK", "HOLE")};
  for (int number = 0; number < ManyRows; ++number) {
    rows.push_back(DefinesHeading("SOAK", "SAMP_TOP", "KEY"));
  }
  const std::string text = Ags3Dict(rows);
  const Stopwatch stopwatch;
  dictionary.Add(text);
  EXPECT_LT(stopwatch.Seconds(), LongestSeconds);
  EXPECT_EQ(dictionary.Of("?SOAK").NumericKeyPositions, "?SAMP_TOP");
}

}  // namespace
}  // namespace quorvane::test
