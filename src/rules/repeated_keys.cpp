#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

#include "rules/key_messages.h"
#include "rules/key_order.h"
#include "rules/key_text.h"
#include "rules/keys.h"
#include "text/text_table.h"

namespace quorvane {
namespace {

/// Rows with the same first part of their key, and that part.
struct RunOfPart {
  std::string part;
  RowRun rows;
  // Where its rows stand that may share their key with each other:
  std::size_t firstOpenRun = 0;
  std::size_t openRunCount = 0;
};

/// Rows that share their key, in the order of the file, and the key in the form in which keys are
/// compared.
struct AlikeRows {
  std::string key;
  std::vector<std::int32_t> rows;
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
      const RunOfPart& first = *run;
      for (; run != runs.end() && run->part == first.part; ++run)
        alike.push_back(run->rows);
      if (alike.size() == 1) {
        FindWithin(first);
      } else {
        FindAmong(alike);
      }
    }
  }

  /// What was found, in no order of the lists.
  std::vector<AlikeRows> TakeFound() { return std::move(found_); }

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
  bool SplitByFirstPart(std::vector<RunOfPart>& runs) {
    if (parts_.size() < 2) return false;
    const std::span<const KeyPart> firstPart(parts_.data(), 1);
    KeyReader key(table_, firstPart);
    KeyOrder order(table_, parts_);
    const std::int32_t rowCount = table_.At(group_).rowCount;
    const auto mostRuns = static_cast<std::size_t>(rowCount / 2);
    for (std::int32_t row = 1; row <= rowCount; ++row) {
      const RowPlace place{group_, row};
      if (order.Take(place)) continue;
      if (!key.TurnTo(place)) {
        order.TakeUnseen(place);
        continue;
      }
      if (runs.size() > mostRuns || key.Text().find(',') != std::string_view::npos) return false;
      if (!runs.empty()) EndRun(runs.back(), order, row - 1);
      runs.push_back({std::string(key.Text()), {row, row}});
      order.Begin(place);
    }
    EndRun(runs.back(), order, rowCount);
    return true;
  }

  /// Rows that are left to be looked at are so at once, while they are at hand; those whose keys
  /// differ need not be looked for again.
  void EndRun(RunOfPart& run, KeyOrder& order, std::int32_t lastRow) {
    run.rows.last = lastRow;
    run.firstOpenRun = openRuns_.size();
    for (const OpenRun& open : order.End()) {
      if (!AreAllDifferent(open)) openRuns_.push_back(open.rows);
    }
    run.openRunCount = openRuns_.size() - run.firstOpenRun;
  }

  /// Looks at rows that alone have their first part.
  void FindWithin(const RunOfPart& run) {
    for (std::size_t index = 0; index < run.openRunCount; ++index)
      FindAmong({&openRuns_[run.firstOpenRun + index], 1});
  }

  /// Whether it is plain to see that the keys of rows are all different: by the texts of the parts
  /// that they do not share, where no number among these could be written in two ways.
  bool AreAllDifferent(const OpenRun& open) const {
    const auto isNumeric = [](const KeyPart& part) { return part.isNumeric; };
    const std::span<const KeyPart> otherParts = std::span(parts_).subspan(open.sharedParts);
    if (open.sharedParts == 0 || std::any_of(otherParts.begin(), otherParts.end(), isNumeric)) {
      return false;
    }
    const auto leadingText = [&](std::int32_t row, std::size_t parts) {
      return table_.RowAt(group_, row).LeadingText(parts);
    };
    const std::size_t sharedLength = leadingText(open.rows.first, open.sharedParts).size();
    TextTable<std::monostate> seen(open.rows.Count());
    for (std::int32_t row = open.rows.first; row <= open.rows.last; ++row) {
      const std::string_view text = leadingText(row, parts_.size()).substr(sharedLength);
      if (!seen.TryEmplace(text, {}).second) return false;
    }
    return true;
  }

  void FindAmong(std::span<const RowRun> runs) {
    std::size_t rowCount = 0;
    for (const RowRun& run : runs)
      rowCount += run.Count();
    if (rowCount < 2) return;
    index_.Clear(rowCount);
    KeyReader key(table_, parts_);
    for (const RowRun& run : runs) {
      for (std::int32_t row = run.first; row <= run.last; ++row) {
        key.TurnTo({group_, row});
        const std::optional<RowPlace> first = index_.Insert({group_, row}, key.Text());
        if (first) Add(first->row, row, key.Text());
      }
    }
  }

  void Add(std::int32_t first, std::int32_t row, std::string_view key) {
    const auto [place, isNew] = foundByFirst_.try_emplace(first, found_.size());
    if (isNew) found_.push_back({std::string(key), {first}});
    found_[place->second].rows.push_back(row);
  }

  const GroupTable& table_;
  int group_;
  std::vector<KeyPart> parts_;
  std::vector<RowRun> openRuns_;  // of all runs of a first part
  RowTextIndex<TextOfRow> index_;
  std::vector<AlikeRows> found_;
  std::unordered_map<std::int32_t, std::size_t> foundByFirst_;  // index into found_, by first row
};

}  // namespace

std::vector<std::vector<std::int32_t>> SortGroupRows(const CheckedFile& file, int group) {
  RepeatedKeys repeated(file.table, group);
  repeated.Find();
  std::vector<AlikeRows> found = repeated.TakeFound();
  std::sort(found.begin(), found.end(),
            [](const AlikeRows& left, const AlikeRows& right) { return left.key < right.key; });
  std::vector<std::vector<std::int32_t>> sorted;
  sorted.reserve(found.size());
  for (AlikeRows& alike : found)
    sorted.push_back(std::move(alike.rows));
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
