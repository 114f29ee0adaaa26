#include <algorithm>
#include <iterator>
#include <map>
#include <span>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "rules/key_messages.h"
#include "rules/keys.h"
#include "support/direct_check.h"
#include "support/random_text.h"
#include "text/number.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

using Values = std::vector<std::string_view>;

/// A parent group, once or twice, and a group that refers to it. Few different values occur, mostly
/// one hole behind the other, some of them with commas or in small letters; in some files the keys
/// of a hole go up or down, in some only by several rows at a time, and in some a row of another
/// hole stands in between. Some rows stand in the file as regular lines, others do not; in some
/// files all do, and none of the values keeps keys from being compared by their lines' text.
class RandomKeys {
 public:
  explicit RandomKeys(std::uint32_t seed) : random_(seed), isNumeric_(random_.OneIn(2)) {
    isOrdered_ = random_.OneIn(2);
    isPlain_ = random_.OneIn(2);
    hasOthersBetween_ = random_.OneIn(2);
    rowsOfDepth_ = random_.OneIn(2) ? 1 : 4;
    groups_.push_back(MakeGroup("SAMP", 1, 3));
    if (random_.OneIn(3)) groups_.push_back(MakeGroup("SAMP", 1, random_.OneIn(2) ? 3 : 2));
    groups_.push_back(MakeGroup("LLPL", 2, 4));
  }

  /// The rows as lines of a file.
  std::string Text() const {
    std::string text;
    for (const RandomGroup& group : groups_) {
      for (const RandomRow& row : group.rows) {
        for (const std::string_view value : row.values)
          text.append(&value == row.values.data() ? "\"" : ",\"").append(value).append("\"");
        text += '\n';
      }
    }
    return text + "\"end\"";  // lines that are empty at the end would not be the file's
  }

  void Fill(CheckedFile& file) const {
    DictGroup samples;
    samples.Name = "SAMP";
    DictGroup limits;
    limits.Name = "LLPL";
    limits.ParentGroup = "SAMP";
    file.dictionary.AddGroup(samples);
    file.dictionary.AddGroup(limits);
    std::int32_t line = 0;
    for (const RandomGroup& group : groups_)
      AddGroup(file, group, line);
  }

 private:
  struct RandomRow {
    Values values;
    bool isLine = false;
  };

  struct RandomGroup {
    std::string name;
    int dictionaryIndex = 0;
    int keyLength = 0;
    std::vector<RandomRow> rows;
  };

  RandomGroup MakeGroup(const std::string& name, int dictionaryIndex, int keyLength) {
    RandomGroup group{name, dictionaryIndex, keyLength, {}};
    const std::size_t rowCount = random_.Below(40);
    for (std::size_t row = 0; row < rowCount; ++row)
      group.rows.push_back(
          {MakeValues(row, static_cast<std::size_t>(keyLength)), isPlain_ || !random_.OneIn(4)});
    return group;
  }

  void AddGroup(CheckedFile& file, const RandomGroup& random, std::int32_t& line) const {
    GroupTable& table = file.table;
    const int group = table.AddGroup(random.name, line);
    table.At(group).isKeyed = true;
    table.At(group).dictionaryIndex = random.dictionaryIndex;
    for (int column = 1; column <= random.keyLength; ++column) {
      table.AddHeading(std::vector<std::string>{"LOCA_ID", "SAMP_TOP", "SAMP_REF",
                                                "SPEC_REF"}[static_cast<std::size_t>(column - 1)]);
      table.At(group).keyColumns.push_back(column);
      if (column == 2 && isNumeric_) table.At(group).numericKeyColumns.push_back(column);
    }
    for (const RandomRow& row : random.rows) {
      ++line;
      if (!row.isLine || table.AddRegularRow(line, file.text.Line(line)) == 0)
        table.AddRow(line, row.values);
    }
  }

  Values MakeValues(std::size_t row, std::size_t count) {
    static constexpr std::string_view holes[] = {"BH1", "BH2", "bh1", "BH1,1", "", "BH1 "};
    static constexpr std::string_view depths[] = {"1",   "1.0", "1.00", "2.50",   "2.5", "x",
                                                  "1,2", "",    "+1",   "0.1e1 ", "-0"};
    static constexpr std::string_view names[] = {"A", "a", "B", "", "2", "1,A"};
    static constexpr std::string_view rising[] = {"0.063", "0.15", "0.2", "0.212", "1",   "1.25",
                                                  "1.3",   "2",    "9",   "10",    "10.5"};
    static constexpr std::string_view plainHoles[] = {"BH1", "BH2", "BH10"};
    static constexpr std::string_view plainDepths[] = {"1", "1.0", "1.00", "2.50", "2.5", "10"};
    static constexpr std::string_view plainNames[] = {"A", "B", "2", "10", "2.0"};
    using Choices = std::span<const std::string_view>;
    const Choices anyHole = isPlain_ ? Choices(plainHoles) : Choices(holes);
    const Choices anyDepth = isPlain_ ? Choices(plainDepths) : Choices(depths);
    const Choices anyName = isPlain_ ? Choices(plainNames) : Choices(names);
    if (random_.OneIn(isOrdered_ ? 12 : 4)) hole_ = random_.Pick(anyHole);
    const bool isOther = hasOthersBetween_ && random_.OneIn(8);
    Values values{isOther ? random_.Pick(anyHole) : hole_, random_.Pick(anyDepth),
                  random_.Pick(anyName), random_.Pick(anyName)};
    if (isOrdered_ && !random_.OneIn(10)) {
      values[1] = rising[row / rowsOfDepth_ % std::size(rising)];
      if (rowsOfDepth_ == 1) values[2] = names[row / std::size(rising)];
    }
    values.resize(count);
    return values;
  }

  RandomText random_;
  bool isNumeric_;
  bool isOrdered_ = false;
  std::size_t rowsOfDepth_ = 1;
  bool hasOthersBetween_ = false;
  bool isPlain_ = false;
  std::string_view hole_ = "BH1";
  std::vector<RandomGroup> groups_;
};

bool IsNumericPart(const GroupTable& table, int group, int column) {
  const std::vector<int>& numeric = table.At(group).numericKeyColumns;
  return std::find(numeric.begin(), numeric.end(), column) != numeric.end();
}

std::string PlainKey(const GroupTable& table, int group, std::int32_t row, bool isComparable) {
  std::string key;
  for (const int column : table.At(group).keyColumns) {
    if (column != 1) key += ",";
    const std::string_view value = TrimRight(table.Value(group, row, column));
    key += isComparable && IsNumericPart(table, group, column) ? CanonicalNumber(value)
                                                               : std::string(value);
  }
  return key;
}

/// The rows that repeat a key, by sorting all rows.
std::vector<std::vector<std::int32_t>> PlainSort(const GroupTable& table, int group) {
  std::map<std::string, std::vector<std::int32_t>> rowsByKey;
  for (std::int32_t row = 1; row <= table.At(group).rowCount; ++row)
    rowsByKey[PlainKey(table, group, row, true)].push_back(row);
  std::vector<std::vector<std::int32_t>> repeated;
  for (const auto& [key, rows] : rowsByKey) {
    if (rows.size() > 1) repeated.push_back(rows);
  }
  return repeated;
}

TEST(RepeatedKeysTwin, FindsWhatSortingAllRowsFinds) {
  for (std::uint32_t seed = 1; seed <= 1000; ++seed) {
    const RandomKeys keys(seed);
    CheckDirectly(AgsFormat::Ags4, keys.Text(), [&](CheckedFile& file) {
      keys.Fill(file);
      for (int group = 1; group <= file.table.GroupCount(); ++group) {
        EXPECT_EQ(SortGroupRows(file, group), PlainSort(file.table, group)) << "seed " << seed;
      }
    });
  }
}

/// The rows that share their keys, of a group whose rows are given with bars between the values;
/// the second part of the key may be numeric.
std::vector<std::vector<std::int32_t>> Repeated(const std::vector<std::string>& rows,
                                                bool isNumeric = false) {
  std::string text;
  for (const std::string& row : rows)
    text += "\"" + ReplaceAll(row, "|", "\",\"") + "\"\n";
  std::vector<std::vector<std::int32_t>> repeated;
  CheckDirectly(AgsFormat::Ags4, text, [&](CheckedFile& file) {
    GroupTable& table = file.table;
    Group& group = table.At(table.AddGroup("SAMP", 1));
    for (const char* heading : {"LOCA_ID", "SAMP_TOP", "SAMP_REF"})
      table.AddHeading(heading);
    group.isKeyed = true;
    group.keyColumns = {1, 2, 3};
    if (isNumeric) group.numericKeyColumns = {2};
    for (std::int32_t line = 1; line <= file.text.LineCount(); ++line)
      EXPECT_EQ(table.AddRegularRow(line, file.text.Line(line)), 3U) << rows[0];
    repeated = SortGroupRows(file, 1);
  });
  return repeated;
}

using Lists = std::vector<std::vector<std::int32_t>>;

TEST(SortGroupRows, FindsEachRepetitionInAHoleOnce) {
  EXPECT_EQ(Repeated({"BH1|1|A", "BH1|1|A", "BH1|2|A", "BH1|3|A", "BH1|3|A"}),
            (Lists{{1, 2}, {4, 5}}));
  EXPECT_EQ(Repeated({"BH1|1|A", "BH1|1|C", "BH1|1|B", "BH1|1|C", "BH1|2|A"}), (Lists{{2, 4}}));
  EXPECT_EQ(Repeated({"BH1|1|A", "BH1|2|A", "BH1|2|C", "BH1|2|B", "BH1|1|A"}), (Lists{{1, 5}}));
}

TEST(SortGroupRows, FindsNumbersWrittenInTwoWays) {
  EXPECT_EQ(Repeated({"BH1|1|A", "BH1|2|A", "BH1|1.0|A"}, true), (Lists{{1, 3}}));
  EXPECT_EQ(Repeated({"BH1|1|A", "BH1|2|A", "BH1|1.0|A"}, false), Lists{});
}

TEST(SortGroupRows, FindsValuesWithBlanksBehindThem) {
  EXPECT_EQ(Repeated({"BH1|1 |A", "BH1|1|A"}), (Lists{{1, 2}}));
  EXPECT_EQ(Repeated({"BH1|1|A ", "BH1|2|A", "BH1|1|A"}), (Lists{{1, 3}}));
  EXPECT_EQ(Repeated({"BH1|1|A", "BH1 |1|A"}), (Lists{{1, 2}}));
}

TEST(SortGroupRows, FindsRepetitionsInAHoleThatARowOfAnotherCutsInTwo) {
  EXPECT_EQ(Repeated({"BH1|1|A", "BH1|2|A", "BH1X|2|B", "BH1|2|A", "BH1|3|A"}), (Lists{{2, 4}}));
  EXPECT_EQ(Repeated({"BH1|1|A", "BH1|1|C", "BH1X|1|C", "BH1|1|B", "BH1|1|C", "BH1X|1|C"}),
            (Lists{{2, 5}, {3, 6}}));
}

TEST(SortGroupRows, FindsRepetitionsInAHoleThatComesUpAgain) {
  const std::vector<std::string> others{"BH2|1|A", "BH2|2|A", "BH3|1|A", "BH3|2|A"};
  const auto withOthers = [&](std::vector<std::string> before,
                              const std::vector<std::string>& after) {
    before.insert(before.end(), others.begin(), others.end());
    before.insert(before.end(), after.begin(), after.end());
    return Repeated(before);
  };
  EXPECT_EQ(withOthers({"BH1|1|A", "BH1|5|A", "BH1|2|A"}, {"BH1|3|A", "BH1|5|A"}), (Lists{{2, 9}}));
  EXPECT_EQ(withOthers({"BH1|1|A", "BH1|1|C", "BH1|1|B"}, {"BH1|1|C"}), (Lists{{2, 8}}));
  EXPECT_EQ(withOthers({"BH1|1|A", "BH1|1|A", "BH1|2|A"}, {"BH1|3|A", "BH1|3|A"}),
            (Lists{{1, 2}, {8, 9}}));
  EXPECT_EQ(withOthers({"BH1|1|A", "BH1|2|A", "BH1|2|A"}, {"BH1|2|A", "BH1|1|A"}),
            (Lists{{1, 9}, {2, 3, 8}}));
}

/// A row's key over the parts of its parent's key, which are its own first parts.
std::string PlainParentKey(const GroupTable& table, std::int32_t row, bool isComparable) {
  const int group = table.GroupCount();
  std::string key = PlainKey(table, group, row, isComparable);
  const std::string last = "," + std::string(TrimRight(table.Value(group, row, 4)));
  key.erase(key.size() - last.size());
  return key;
}

/// Looks for each row's parent among all rows of all parent groups.
void PlainParentCheck(CheckedFile& file) {
  const GroupTable& table = file.table;
  const int group = table.GroupCount();
  for (std::int32_t row = 1; row <= table.At(group).rowCount; ++row) {
    const std::string key = PlainParentKey(table, row, true);
    if (Without(key, ',').empty()) continue;
    bool isThere = false;
    std::string otherCase;
    for (const int parent : table.GroupIndexList("SAMP")) {
      for (std::int32_t at = 1; at <= table.At(parent).rowCount; ++at) {
        const std::string other = PlainKey(table, parent, at, true);
        isThere |= other == key;
        if (otherCase.empty() && EqualsIgnoringCase(other, key)) {
          otherCase = PlainKey(table, parent, at, false);
        }
      }
    }
    if (isThere) continue;
    const std::string asWritten = PlainParentKey(table, row, false);
    const std::int32_t line = table.RowLine(group, row);
    if (otherCase.empty()) {
      file.log.AddMessage(line, ParentKeyMissing, {"LLPL", asWritten, "SAMP"});
    } else {
      file.log.AddMessage(line, ParentKeyCaseDiffers, {"LLPL", asWritten, "SAMP", otherCase});
    }
  }
}

TEST(ParentKeysTwin, FindsWhatASearchOfAllParentsFinds) {
  std::size_t findingCount = 0;
  for (std::uint32_t seed = 1; seed <= 1000; ++seed) {
    const RandomKeys keys(seed);
    const auto fill = [&keys](CheckedFile& file) {
      keys.Fill(file);
      file.table.At(1).dictionaryIndex = 0;  // what SAMP's own parents are is not asked
    };
    const CheckResult checked = CheckDirectly(AgsFormat::Ags4, keys.Text(), [&](CheckedFile& file) {
      fill(file);
      CheckParentKeys(file);
    });
    const CheckResult plain = CheckDirectly(AgsFormat::Ags4, keys.Text(), [&](CheckedFile& file) {
      fill(file);
      PlainParentCheck(file);
    });
    EXPECT_EQ(checked.findings, plain.findings) << "seed " << seed;
    findingCount += plain.findings.size();
  }
  EXPECT_GT(findingCount, 1000U);
}

}  // namespace
}  // namespace quorvane::test
