#include <algorithm>
#include <numeric>
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

/// The rows of a hole: those with the same first part of their key. Where the hole comes up again
/// behind two others, it is another object.
struct HoleRows {
  std::string part;
  RowRun rows;            // among which some of another hole may stand
  bool isInOrder = true;  // the second part of the key goes up or down throughout
  // Where what was found among the rows stands:
  std::size_t firstFound = 0;
  std::size_t foundCount = 0;
};

/// A hole of which rows may follow.
struct OpenHole {
  bool hasRows = false;
  std::string part;
  std::vector<RowRun> runs;
  KeyOrder order;
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
        key_(table, parts_),
        index_(0, TextOfRow{table, parts_}) {}

  void Find() {
    const RowRun all{1, table_.At(group_).rowCount};
    if (all.last < 2) return;
    if (!FindInHoles()) {
      found_.clear();
      return FindAmong({&all, 1});
    }
    std::sort(holes_.begin(), holes_.end(), [](const HoleRows& left, const HoleRows& right) {
      const int order = left.part.compare(right.part);
      return order != 0 ? order < 0 : left.rows.first < right.rows.first;
    });
    for (auto first = holes_.begin(); first != holes_.end();) {
      const auto next = std::find_if(
          first, holes_.end(), [&](const HoleRows& hole) { return hole.part != first->part; });
      if (!AreInOneOrder({first, next})) FindAcross({first, next});
      first = next;
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

  /// Looks at the rows hole by hole, while they are at hand. False when that does not help: when
  /// the key has one part only, when the holes are short, or when a comma in a first part makes
  /// keys comparable that differ in it.
  bool FindInHoles() {
    if (parts_.size() < 2) return false;
    KeyReader key(table_, std::span(parts_).first(1));
    OpenHole hole{false, {}, {}, KeyOrder(table_, parts_)};
    OpenHole before = hole;  // may go on behind a row of another hole
    const std::int32_t rowCount = table_.At(group_).rowCount;
    const auto mostHoles = static_cast<std::size_t>(rowCount / 2);
    for (std::int32_t row = 1; row <= rowCount; ++row) {
      const RowPlace place{group_, row};
      if (hole.hasRows && hole.order.Take(place) > 0) {
        hole.runs.back().last = row;
      } else if (!key.TurnTo(place) || (hole.hasRows && hole.part == key.Text())) {
        hole.order.TakeUnseen(place);
        hole.runs.back().last = row;
      } else if (before.hasRows && before.part == key.Text()) {
        std::swap(before, hole);
        if (hole.order.Take(place) == 0) hole.order.TakeUnseen(place);
        hole.runs.push_back({row, row});
      } else {
        if (holes_.size() > mostHoles || key.Text().find(',') != std::string_view::npos) {
          return false;
        }
        End(before);
        std::swap(before, hole);
        hole.hasRows = true;
        hole.part = key.Text();
        hole.runs.assign(1, {row, row});
        hole.order.Begin(place);
      }
    }
    End(before);
    End(hole);
    return true;
  }

  /// Ends the rows of a hole: looks at those that may share their keys.
  void End(OpenHole& hole) {
    if (!hole.hasRows) return;
    HoleRows ended{hole.part, {hole.runs.front().first, hole.runs.back().last}};
    ended.firstFound = found_.size();
    for (const OpenRun& open : hole.order.End()) {
      if (open.sharedParts < 2) ended.isInOrder = false;
      KeepWithin(open.rows, hole.runs, within_);
      if (!AreAllDifferent(within_, open.sharedParts)) FindAmong(within_);
    }
    ended.foundCount = found_.size() - ended.firstFound;
    holes_.push_back(std::move(ended));
  }

  /// The parts of runs that lie within a longer one.
  static void KeepWithin(const RowRun& longer, std::span<const RowRun> runs,
                         std::vector<RowRun>& within) {
    within.clear();
    auto run =
        std::lower_bound(runs.begin(), runs.end(), longer.first,
                         [](const RowRun& left, std::int32_t row) { return left.last < row; });
    for (; run != runs.end() && run->first <= longer.last; ++run) {
      within.push_back({std::max(run->first, longer.first), std::min(run->last, longer.last)});
    }
  }

  /// Looks anew at all rows of a hole that comes up several times.
  void FindAcross(std::span<const HoleRows> holes) {
    std::vector<RowRun> runs;
    for (const HoleRows& hole : holes) {
      AddRunsOf(hole, runs);
      for (std::size_t index = 0; index < hole.foundCount; ++index)
        found_[hole.firstFound + index].rows.clear();
    }
    FindAmong(runs);
  }

  void AddRunsOf(const HoleRows& hole, std::vector<RowRun>& runs) const {
    KeyReader key(table_, std::span(parts_).first(1));
    bool isOwn = false;
    for (std::int32_t row = hole.rows.first; row <= hole.rows.last; ++row) {
      const bool goesOn = !key.TurnTo({group_, row}) && isOwn;
      isOwn = goesOn || key.Text() == hole.part;
      if (goesOn) {
        runs.back().last = row;
      } else if (isOwn) {
        runs.push_back({row, row});
      }
    }
  }

  /// Whether the keys of a hole that comes up several times differ from time to time because the
  /// second part goes on in one direction.
  bool AreInOneOrder(std::span<const HoleRows> holes) const {
    if (holes.size() == 1) return true;
    KeyOrder order(table_, parts_);
    order.Begin({group_, holes.front().rows.first});
    for (const HoleRows& hole : holes) {
      const auto [first, last] = hole.rows;
      const bool goesOn = &hole == &holes.front() || order.Take({group_, first}) == 1;
      if (!hole.isInOrder || !goesOn) return false;
      if (last > first && order.Take({group_, last}) == 0) return false;
    }
    return order.End().empty();
  }

  /// Whether it is plain to see that the keys of rows that share their first parts are all
  /// different: by the texts of the other parts, where no number could be written in two ways.
  bool AreAllDifferent(std::span<const RowRun> runs, std::size_t sharedParts) const {
    const auto isNumeric = [](const KeyPart& part) { return part.isNumeric; };
    const std::span<const KeyPart> otherParts = std::span(parts_).subspan(sharedParts);
    if (sharedParts == 0 || std::any_of(otherParts.begin(), otherParts.end(), isNumeric)) {
      return false;
    }
    TextTable<std::monostate> seen(RowCount(runs));
    for (const RowRun& run : runs) {
      for (std::int32_t row = run.first; row <= run.last; ++row) {
        const CellStore::Row cells = table_.RowAt(group_, row);
        const std::size_t sharedLength = cells.LeadingText(sharedParts).size();
        const std::string_view text = cells.LeadingText(parts_.size()).substr(sharedLength);
        if (!seen.TryEmplace(text, {}).second) return false;
      }
    }
    return true;
  }

  static std::size_t RowCount(std::span<const RowRun> runs) {
    return std::accumulate(
        runs.begin(), runs.end(), std::size_t{0},
        [](std::size_t count, const RowRun& run) { return count + run.Count(); });
  }

  void FindAmong(std::span<const RowRun> runs) {
    const std::size_t rowCount = RowCount(runs);
    if (rowCount < 2) return;
    index_.Clear(rowCount);
    std::unordered_map<std::int32_t, std::size_t> foundByFirst;
    for (const RowRun& run : runs) {
      for (std::int32_t row = run.first; row <= run.last; ++row) {
        key_.TurnTo({group_, row});
        const std::optional<RowPlace> first = index_.Insert({group_, row}, key_.Text());
        if (!first) continue;
        const auto [found, isNew] = foundByFirst.try_emplace(first->row, found_.size());
        if (isNew) found_.push_back({std::string(key_.Text()), {first->row}});
        found_[found->second].rows.push_back(row);
      }
    }
  }

  const GroupTable& table_;
  int group_;
  std::vector<KeyPart> parts_;
  KeyReader key_;
  std::vector<HoleRows> holes_;
  std::vector<RowRun> within_;  // of one search
  RowTextIndex<TextOfRow> index_;
  std::vector<AlikeRows> found_;  // no rows where they were looked at anew
};

/// Reports rows that share their key, each with the one before.
void ReportRepeated(CheckedFile& file, int groupIndex, std::span<const std::int32_t> rows) {
  for (std::size_t index = 1; index < rows.size(); ++index) {
    const auto [firstLine, secondLine] =
        std::minmax({file.table.RowLine(groupIndex, rows[index - 1]),
                     file.table.RowLine(groupIndex, rows[index])});
    file.log.AddMessage(
        firstLine, KeyRepeated,
        {file.table.At(groupIndex).name, file.table.KeyText(groupIndex, rows[index]), secondLine},
        {groupIndex, rows[index - 1], 0});
  }
}

}  // namespace

std::vector<std::vector<std::int32_t>> SortGroupRows(const CheckedFile& file, int group) {
  RepeatedKeys repeated(file.table, group);
  repeated.Find();
  std::vector<AlikeRows> found = repeated.TakeFound();
  std::sort(found.begin(), found.end(),
            [](const AlikeRows& left, const AlikeRows& right) { return left.key < right.key; });
  std::vector<std::vector<std::int32_t>> sorted;
  sorted.reserve(found.size());
  for (AlikeRows& alike : found) {
    if (!alike.rows.empty()) sorted.push_back(std::move(alike.rows));
  }
  return sorted;
}

void CheckDuplicateKeys(CheckedFile& file) {
  for (int groupIndex = 1; groupIndex <= file.table.GroupCount(); ++groupIndex) {
    const Group& group = file.table.At(groupIndex);
    if (!group.isKeyed) continue;
    for (const std::vector<std::int32_t>& rows : SortGroupRows(file, groupIndex))
      ReportRepeated(file, groupIndex, rows);
  }
  file.log.CloseCheckSection(file.IsAgs4() ? "Duplicated keys check "
                                           : "Duplicated keys check (Rule 6b)");
}

}  // namespace quorvane
