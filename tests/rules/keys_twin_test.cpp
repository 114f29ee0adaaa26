#include <algorithm>
#include <map>
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

/// Fills a file with a parent group, once or twice, and a group that refers to it. Few different
/// values occur, mostly one hole behind the other, some of them with commas or in small letters.
class RandomKeys {
 public:
  explicit RandomKeys(std::uint32_t seed) : random_(seed) {}

  void Fill(CheckedFile& file) {
    DictGroup samples;
    samples.Name = "SAMP";
    DictGroup limits;
    limits.Name = "LLPL";
    limits.ParentGroup = "SAMP";
    file.dictionary.AddGroup(samples);
    file.dictionary.AddGroup(limits);
    const bool isSplit = random_.OneIn(3);
    AddGroup(file.table, "SAMP", 1, 3);
    if (isSplit) AddGroup(file.table, "SAMP", 1, random_.OneIn(2) ? 3 : 2);
    AddGroup(file.table, "LLPL", 2, 4);
  }

 private:
  void AddGroup(GroupTable& table, const std::string& name, int dictionaryIndex, int keyLength) {
    const int group = table.AddGroup(name, line_);
    table.At(group).isKeyed = true;
    table.At(group).dictionaryIndex = dictionaryIndex;
    for (int column = 1; column <= keyLength; ++column) {
      table.AddHeading(std::vector<std::string>{"LOCA_ID", "SAMP_TOP", "SAMP_REF",
                                                "SPEC_REF"}[static_cast<std::size_t>(column - 1)]);
      table.At(group).keyColumns.push_back(column);
      if (column == 2) table.At(group).numericKeyColumns.push_back(column);
    }
    const std::size_t rowCount = random_.Below(40);
    for (std::size_t row = 0; row < rowCount; ++row)
      table.AddRow(++line_, Values(static_cast<std::size_t>(keyLength)));
  }

  std::vector<std::string_view> Values(std::size_t count) {
    static constexpr std::string_view holes[] = {"BH1", "BH2", "bh1", "BH1,1", "", "BH1 "};
    static constexpr std::string_view depths[] = {"1",   "1.0", "1.00", "2.50",   "2.5", "x",
                                                  "1,2", "",    "+1",   "0.1e1 ", "-0"};
    static constexpr std::string_view names[] = {"A", "a", "B", "", "2", "1,A"};
    if (random_.OneIn(4)) hole_ = random_.Pick(holes);
    std::vector<std::string_view> values{hole_, random_.Pick(depths), random_.Pick(names),
                                         random_.Pick(names)};
    values.resize(count);
    return values;
  }

  RandomText random_;
  std::int32_t line_ = 0;
  std::string_view hole_ = "BH1";
};

std::string PlainKey(const GroupTable& table, int group, std::int32_t row, bool isComparable) {
  std::string key;
  for (const int column : table.At(group).keyColumns) {
    if (column != 1) key += ",";
    const std::string_view value = TrimRight(table.Value(group, row, column));
    key += isComparable && column == 2 ? CanonicalNumber(value) : std::string(value);
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
  for (std::uint32_t seed = 1; seed <= 400; ++seed) {
    CheckDirectly(AgsFormat::Ags4, [seed](CheckedFile& file) {
      RandomKeys(seed).Fill(file);
      for (int group = 1; group <= file.table.GroupCount(); ++group) {
        EXPECT_EQ(SortGroupRows(file, group), PlainSort(file.table, group)) << "seed " << seed;
      }
    });
  }
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
  for (std::uint32_t seed = 1; seed <= 400; ++seed) {
    const auto fill = [seed](CheckedFile& file) {
      RandomKeys(seed).Fill(file);
      file.table.At(1).dictionaryIndex = 0;  // what SAMP's own parents are is not asked
    };
    const CheckResult checked = CheckDirectly(AgsFormat::Ags4, [&](CheckedFile& file) {
      fill(file);
      CheckParentKeys(file);
    });
    const CheckResult plain = CheckDirectly(AgsFormat::Ags4, [&](CheckedFile& file) {
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
