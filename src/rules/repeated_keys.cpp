#include <algorithm>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <utility>

#include "rules/key_messages.h"
#include "rules/key_text.h"
#include "rules/keys.h"

namespace quorvane {
namespace {

/// Rows that follow each other, both ends included.
struct RowRun {
  std::int32_t first = 0;
  std::int32_t last = 0;

  std::size_t Count() const { return static_cast<std::size_t>(last - first) + 1; }
};

/// Runs of rows among which equal keys are looked for, and a text that orders them.
struct RunOfPart {
  std::string part;
  RowRun rows;
};

/// Finds the rows that share their key. Rows of one hole mostly stand together, so only rows whose
/// keys begin with the same part are held against each other: their index stays in the processor's
/// nearest memory, where one over all rows would not.
class RepeatedKeys {
 public:
  RepeatedKeys(const GroupTable& table, int group)
      : table_(table),
        group_(group),
        parts_(KeyPartsOf(table.At(group))),
        index_(0, TextOfRow{table, parts_}) {}

  void Find() {
    const RowRun all{1, table_.At(group_).rowCount};
    if (all.last < 2) return;
    std::vector<RunOfPart> runs;
    if (!SplitByFirstPart(runs)) return FindAmong({&all, 1});
    std::sort(runs.begin(), runs.end(), [](const RunOfPart& left, const RunOfPart& right) {
      const int order = left.part.compare(right.part);
      return order != 0 ? order < 0 : left.rows.first < right.rows.first;
    });
    std::vector<RowRun> alike;
    for (auto run = runs.begin(); run != runs.end();) {
      alike.clear();
      const std::string& part = run->part;
      for (; run != runs.end() && run->part == part; ++run)
        alike.push_back(run->rows);
      FindAmong(alike);
    }
  }

  /// What was found, each list under its first row.
  std::map<std::int32_t, std::vector<std::int32_t>> TakeRows() { return std::move(rowsByFirst_); }

 private:
  struct TextOfRow {
    const GroupTable& table;
    const std::vector<KeyPart>& parts;

    void operator()(const RowPlace& place, std::string& text) const {
      MakeComparableKey(table, place, parts, text);
    }
  };

  /// Splits the rows into runs with the same first part of the key. False when that does not help:
  /// when the key has one part only, when the runs are short, or when a comma in a first part makes
  /// keys comparable that differ in it.
  bool SplitByFirstPart(std::vector<RunOfPart>& runs) const {
    if (parts_.size() < 2) return false;
    const std::span<const KeyPart> firstPart(parts_.data(), 1);
    KeyTextMaker maker(table_, firstPart);
    const std::int32_t rowCount = table_.At(group_).rowCount;
    const auto mostRuns = static_cast<std::size_t>(rowCount / 2);
    for (std::int32_t row = 1; row <= rowCount; ++row) {
      if (maker.TurnTo({group_, row})) {
        if (runs.size() > mostRuns || maker.Text().find(',') != std::string_view::npos) {
          return false;
        }
        runs.push_back({std::string(maker.Text()), {row, row}});
      }
      runs.back().rows.last = row;
    }
    return true;
  }

  void FindAmong(std::span<const RowRun> runs) {
    std::size_t rowCount = 0;
    for (const RowRun& run : runs)
      rowCount += run.Count();
    if (rowCount < 2) return;
    index_.Clear(rowCount);
    KeyTextMaker maker(table_, parts_);
    for (const RowRun& run : runs) {
      for (std::int32_t row = run.first; row <= run.last; ++row) {
        maker.TurnTo({group_, row});
        if (const auto first = index_.Insert({group_, row}, maker.Text())) Add(first->row, row);
      }
    }
  }

  void Add(std::int32_t first, std::int32_t row) {
    std::vector<std::int32_t>& rows = rowsByFirst_[first];
    if (rows.empty()) rows.push_back(first);
    rows.push_back(row);
  }

  const GroupTable& table_;
  int group_;
  std::vector<KeyPart> parts_;
  RowTextIndex<TextOfRow> index_;
  std::map<std::int32_t, std::vector<std::int32_t>> rowsByFirst_;
};

}  // namespace

std::vector<std::vector<std::int32_t>> SortGroupRows(const CheckedFile& file, int group) {
  RepeatedKeys repeated(file.table, group);
  repeated.Find();

  const std::vector<KeyPart> parts = KeyPartsOf(file.table.At(group));
  std::vector<std::pair<std::string, std::vector<std::int32_t>>> byKey;
  for (auto& [first, rows] : repeated.TakeRows()) {
    std::string text;
    MakeComparableKey(file.table, {group, first}, parts, text);
    byKey.emplace_back(std::move(text), std::move(rows));
  }
  std::sort(byKey.begin(), byKey.end(),
            [](const auto& left, const auto& right) { return left.first < right.first; });

  std::vector<std::vector<std::int32_t>> sorted;
  sorted.reserve(byKey.size());
  for (auto& [text, rows] : byKey)
    sorted.push_back(std::move(rows));
  return sorted;
}

void CheckDuplicateKeys(CheckedFile& file) {
  for (int groupIndex = 1; groupIndex <= file.table.GroupCount(); ++groupIndex) {
    const Group& group = file.table.At(groupIndex);
    if (!group.isKeyed) continue;
    for (const std::vector<std::int32_t>& rows : SortGroupRows(file, groupIndex)) {
      for (std::size_t index = 1; index < rows.size(); ++index) {
        const auto [firstLine, secondLine] =
            std::minmax({file.table.RowLine(groupIndex, rows[index - 1]),
                         file.table.RowLine(groupIndex, rows[index])});
        file.log.AddMessage(firstLine, KeyRepeated,
                            {group.name, file.table.KeyText(groupIndex, rows[index]), secondLine},
                            {groupIndex, rows[index - 1], 0});
      }
    }
  }
  file.log.CloseCheckSection(file.IsAgs4() ? "Duplicated keys check "
                                           : "Duplicated keys check (Rule 6b)");
}

}  // namespace quorvane
