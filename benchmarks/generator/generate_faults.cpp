#include "generate_faults.h"

#include <algorithm>
#include <array>
#include <limits>
#include <numeric>
#include <optional>

namespace quorvane::generate {

namespace {

constexpr std::size_t kNowhere = std::numeric_limits<std::size_t>::max();

/// A row to be spoilt, and the liberties a fault takes with its line.
struct SpoiltRow {
  const Group& group;
  std::span<const std::string> previousKey;
  Random& random;
  std::vector<std::string> cells = {};
  std::size_t unquoted = kNowhere;  // cell without its quotes
  bool openEnd = false;             // no quote at the end of the line
  bool oneLine = false;             // never continued, however long
  bool fitsOneLine = false;         // only if the line is no longer than AGS 3 allows
};

bool IsNumberType(std::string_view type) {
  return type == "U" || type.ends_with("DP") || type.ends_with("SF");
}

/// A cell outside the key that the test accepts, searched from a random place on.
template <typename Test>
std::optional<std::size_t> FindCell(SpoiltRow& row, Test test) {
  const std::size_t first = row.group.keyCount;
  const std::size_t count = row.group.columns.size() - first;
  if (count == 0) return std::nullopt;
  const std::size_t start = row.random.Below(static_cast<std::uint32_t>(count));
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t cell = first + (start + i) % count;
    if (test(row.group.columns[cell], row.cells[cell])) return cell;
  }
  return std::nullopt;
}

/// Puts the text into a cell that the test accepts.
template <typename Test>
bool Replace(SpoiltRow& row, std::string_view text, Test test) {
  const std::optional<std::size_t> cell = FindCell(row, test);
  if (cell) row.cells[*cell] = text;
  return cell.has_value();
}

bool DropQuotes(SpoiltRow& row) {
  const std::optional<std::size_t> cell = FindCell(row, [](const Column&, std::string_view value) {
    return !value.empty() && value.find_first_of(",\"") == std::string_view::npos;
  });
  if (!cell) return false;
  row.unquoted = *cell;
  row.fitsOneLine = true;
  return true;
}

bool DropLastQuote(SpoiltRow& row) {
  row.openEnd = true;
  row.fitsOneLine = true;
  return true;
}

bool BlankField(SpoiltRow& row) {
  return Replace(row, "   ", [](const Column&, std::string_view value) { return value.empty(); });
}

bool AddField(SpoiltRow& row) {
  row.cells.emplace_back("surplus");
  row.fitsOneLine = true;
  return true;
}

bool DropField(SpoiltRow& row) {
  if (!row.cells.back().empty()) return false;
  row.cells.pop_back();
  row.fitsOneLine = true;
  return true;
}

bool RepeatKey(SpoiltRow& row) {
  if (row.group.hasChildren || row.previousKey.empty()) return false;
  std::copy(row.previousKey.begin(), row.previousKey.end(), row.cells.begin());
  return true;
}

bool LoseParent(SpoiltRow& row) {
  if (row.group.hasChildren) return false;
  row.cells[0].push_back('X');
  return true;
}

bool WrongDecimals(SpoiltRow& row) {
  const std::optional<std::size_t> cell =
      FindCell(row, [](const Column& column, std::string_view value) {
        return column.type.ends_with("DP") && !value.empty();
      });
  if (!cell) return false;
  const bool whole = row.cells[*cell].find('.') == std::string::npos;
  row.cells[*cell].append(whole ? ".0" : "0");
  return true;
}

bool WrongFigures(SpoiltRow& row) {
  const std::optional<std::size_t> cell =
      FindCell(row, [](const Column& column, std::string_view value) {
        return column.type.ends_with("SF") && !value.empty();
      });
  if (!cell) return false;
  const bool whole = row.cells[*cell].find('.') == std::string::npos;
  row.cells[*cell].append(whole ? ".55" : "55");
  return true;
}

bool NotANumber(SpoiltRow& row) {
  return Replace(row, "n/a", [](const Column& column, std::string_view value) {
    return IsNumberType(column.type) && !value.empty();
  });
}

bool BadDate(SpoiltRow& row) {
  return Replace(row, "2021-02-30", [](const Column& column, std::string_view value) {
    return column.type == "DT" && !value.empty();
  });
}

bool BadDuration(SpoiltRow& row) {
  return Replace(row, "1h30", [](const Column& column, std::string_view value) {
    return column.type == "T" && !value.empty();
  });
}

bool LowerCaseYesNo(SpoiltRow& row) {
  return Replace(row, "y",
                 [](const Column& column, std::string_view) { return column.type == "YN"; });
}

bool UnlistedUnit(SpoiltRow& row) {
  return Replace(row, "furlong", [](const Column& column, std::string_view value) {
    return column.type == "PU" && !value.empty();
  });
}

bool NoRequiredValue(SpoiltRow& row) {
  return Replace(row, "", [](const Column& column, std::string_view value) {
    return (column.heading == "MOND_UNIT" || column.heading == "ERES_RUNI") && !value.empty();
  });
}

bool UnlistedAbbreviation(SpoiltRow& row) {
  return Replace(row, "QQ", [](const Column& column, std::string_view) {
    return column.source == Source::Coded;
  });
}

bool UnlistedContaminant(SpoiltRow& row) {
  for (std::size_t i = 0; i < row.group.keyCount; ++i) {
    if (row.group.columns[i].heading != "CNMT_TYPE") continue;
    row.cells[i] = "QQ";
    return true;
  }
  return false;
}

bool UnknownFileSet(SpoiltRow& row) {
  return Replace(row, "FS0", [](const Column& column, std::string_view value) {
    return column.heading == "FILE_FSET" && value.empty();
  });
}

bool BrokenLink(SpoiltRow& row) {
  return Replace(row, "LOCA|BH0",
                 [](const Column& column, std::string_view) { return column.type == "RL"; });
}

bool LongLine(SpoiltRow& row) {
  row.oneLine = true;
  return Replace(row, std::string(Format::kMaxLine, 'x'),
                 [](const Column& column, std::string_view) {
                   return column.type == "X" && column.heading != "FILE_FSET" &&
                          column.source != Source::Coded;
                 });
}

bool Tab(SpoiltRow& row) {
  const std::optional<std::size_t> cell =
      FindCell(row, [](const Column& column, std::string_view value) {
        return column.type == "X" && value.find(' ') != std::string_view::npos;
      });
  if (!cell) return false;
  row.cells[*cell][row.cells[*cell].find(' ')] = '\t';
  return true;
}

struct Kind {
  std::string_view name;
  bool ags3;
  bool ags4;
  bool (*spoil)(SpoiltRow&);  // false: the row does not allow this kind
  std::uint64_t limit = std::numeric_limits<std::uint64_t>::max();
};

// Tabs are limited because the scan for such characters ends at the twentieth.
constexpr std::array kKinds{
    Kind{"quotes missing", true, true, DropQuotes},
    Kind{"last quote missing", true, true, DropLastQuote},
    Kind{"blank-only field", true, true, BlankField},
    Kind{"field too many", true, true, AddField},
    Kind{"field too few", true, true, DropField},
    Kind{"repeated key", true, true, RepeatKey},
    Kind{"parent missing", true, true, LoseParent},
    Kind{"wrong decimals", false, true, WrongDecimals},
    Kind{"wrong significant figures", false, true, WrongFigures},
    Kind{"not a number", false, true, NotANumber},
    Kind{"bad date", false, true, BadDate},
    Kind{"bad duration", false, true, BadDuration},
    Kind{"yes/no in lower case", false, true, LowerCaseYesNo},
    Kind{"required value missing", false, true, NoRequiredValue},
    Kind{"broken record link", false, true, BrokenLink},
    Kind{"unlisted unit value", true, true, UnlistedUnit},
    Kind{"unlisted abbreviation", true, true, UnlistedAbbreviation},
    Kind{"unknown file set", true, true, UnknownFileSet},
    Kind{"unlisted contaminant", true, false, UnlistedContaminant},
    Kind{"line too long", true, false, LongLine},
    Kind{"tab", true, false, Tab, 15},
};

void AppendSpoiltLine(std::string& text, const SpoiltRow& row, const Format& format) {
  format.AppendRowLabel(text);
  for (std::size_t i = 0; i < row.cells.size(); ++i) {
    if (i > 0) text.push_back(',');
    const bool quoted = i != row.unquoted;
    if (quoted) text.push_back('"');
    text.append(row.cells[i]);
    const bool open = row.openEnd && i + 1 == row.cells.size();
    if (quoted && !open) text.push_back('"');
  }
  format.AppendLineEnd(text);
}

/// Whether the row, as its line or lines are written, is as the fault means it.
bool AppendIfWhole(std::string& text, const SpoiltRow& row, const Format& format,
                   std::size_t& lines) {
  if (!row.oneLine && !row.fitsOneLine) {
    const std::vector<std::string_view> cells(row.cells.begin(), row.cells.end());
    lines = format.AppendRow(text, cells);
    return true;
  }
  const std::size_t start = text.size();
  AppendSpoiltLine(text, row, format);
  lines = 1;
  if (row.oneLine || format.Version() == 4 || text.size() - start <= Format::kMaxLine) return true;
  text.resize(start);
  return false;
}

}  // namespace

FaultMaker::FaultMaker(const Format& format, int perMille, std::uint64_t seed)
    : format_(format), perMille_(perMille), random_(Combine(seed, 77)) {
  for (std::size_t i = 0; i < kKinds.size(); ++i) {
    if (format.Version() == 4 ? !kKinds[i].ags4 : !kKinds[i].ags3) continue;
    kinds_.push_back(i);
    counts_.push_back({kKinds[i].name, 0});
  }
}

bool FaultMaker::Draw() {
  return static_cast<int>(random_.Below(1000)) < perMille_;
}

std::size_t FaultMaker::AppendSpoilt(std::string& text, const Group& group,
                                     std::span<const std::string_view> cells,
                                     std::span<const std::string> previousKey) {
  std::vector<std::size_t> order(kinds_.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(), [this](std::size_t left, std::size_t right) {
    return counts_[left].faults < counts_[right].faults;
  });
  for (const std::size_t candidate : order) {
    const Kind& kind = kKinds[kinds_[candidate]];
    if (counts_[candidate].faults >= kind.limit) continue;
    SpoiltRow row{group, previousKey, random_, {cells.begin(), cells.end()}};
    std::size_t lines = 0;
    if (!kind.spoil(row) || !AppendIfWhole(text, row, format_, lines)) continue;
    ++counts_[candidate].faults;
    return lines;
  }
  return format_.AppendRow(text, cells);
}

}  // namespace quorvane::generate
