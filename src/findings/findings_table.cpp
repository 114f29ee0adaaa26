#include "findings/findings_table.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <numeric>
#include <tuple>
#include <unordered_map>

#include "text/text.h"

namespace quorvane {
namespace {

/// Looks for a text without regard to letter case, in very many texts.
class TextFinder {
 public:
  explicit TextFinder(std::string_view wanted)
      : lower_(LowerCase(wanted)), upper_(UpperCase(wanted)) {}

  bool IsIn(std::string_view text) const {
    if (lower_.empty()) return true;
    if (text.size() < lower_.size()) return false;
    const std::size_t last = text.size() - lower_.size();
    for (std::size_t at = 0; at <= last; ++at) {
      if ((text[at] == lower_[0] || text[at] == upper_[0]) && StandsAt(text, at)) return true;
    }
    return false;
  }

 private:
  bool StandsAt(std::string_view text, std::size_t at) const {
    for (std::size_t index = 1; index < lower_.size(); ++index) {
      const char letter = text[at + index];
      if (letter != lower_[index] && letter != upper_[index]) return false;
    }
    return true;
  }

  std::string lower_;
  std::string upper_;
};

/// Whether a line's number holds a text; a finding without a line has no number.
class LineFinder {
 public:
  explicit LineFinder(std::string_view wanted)
      : wanted_(wanted), isNumber_(std::all_of(wanted.begin(), wanted.end(), IsDigit)) {}

  bool IsIn(std::int32_t line) const {
    if (!isNumber_ || line <= 0) return false;
    char digits[16];
    const char* end = std::to_chars(std::begin(digits), std::end(digits), line).ptr;
    const std::string_view number(digits, static_cast<std::size_t>(end - digits));
    return number.find(wanted_) != std::string_view::npos;
  }

 private:
  std::string_view wanted_;
  bool isNumber_;
};

/// Looks for the filter's text in the findings of one file. What many findings share is looked
/// through once.
class FileSearch {
 public:
  FileSearch(const FileRecord& file, std::string_view wanted)
      : file_(file), text_(wanted), line_(wanted), isInPath_(text_.IsIn(file.path)) {
    for (const std::string& section : file.sections)
      isInSection_.push_back(text_.IsIn(section));
  }

  bool Finds(const FindingRecord& finding) {
    return isInPath_ || isInSection_[finding.section] || IsInRule(finding) ||
           line_.IsIn(finding.line) || text_.IsIn(finding.text);
  }

 private:
  bool IsInRule(const FindingRecord& finding) {
    const auto [known, isNew] = isInRule_.try_emplace(finding.definition, false);
    if (isNew) known->second = text_.IsIn(file_.Rule(finding));
    return known->second;
  }

  const FileRecord& file_;
  TextFinder text_;
  LineFinder line_;
  bool isInPath_;
  std::vector<bool> isInSection_;
  std::unordered_map<const MessageDefinition*, bool> isInRule_;
};

/// Rules by their number, then by what follows it: 6b, 7, 10.
struct RuleOrder {
  bool operator()(std::string_view left, std::string_view right) const {
    const unsigned leftNumber = TakeNumber(left);
    const unsigned rightNumber = TakeNumber(right);
    return std::tie(leftNumber, left) < std::tie(rightNumber, right);
  }

 private:
  static unsigned TakeNumber(std::string_view& rule) {
    unsigned number = 0;
    const char* end = std::from_chars(rule.data(), rule.data() + rule.size(), number).ptr;
    rule.remove_prefix(static_cast<std::size_t>(end - rule.data()));
    return number;
  }
};

/// Turns values of which there are few into numbers that sort as they do.
template <typename Value, typename Order = std::less<Value>>
class Ranking {
 public:
  void Add(const Value& value) { ranks_.try_emplace(value, 0); }

  void Complete() {
    std::uint32_t rank = 0;
    for (auto& entry : ranks_)
      entry.second = rank++;
  }

  std::uint32_t RankOf(const Value& value) const { return ranks_.at(value); }

 private:
  std::map<Value, std::uint32_t, Order> ranks_;
};

/// Calls a routine with every finding and its file, in the order of the report.
template <typename Use>
void ForEachFinding(const FindingsReport& report, Use&& use) {
  for (const FileRecord& file : report.files) {
    for (const FindingRecord& finding : file.findings)
      use(file, finding);
  }
}

std::vector<std::uint32_t> FileKeys(const FindingsReport& report) {
  using NameAndPath = std::pair<std::string_view, std::string_view>;
  const auto nameOf = [](const FileRecord& file) {
    return NameAndPath(FileNameOf(file.path), file.path);
  };
  Ranking<NameAndPath> names;
  for (const FileRecord& file : report.files)
    names.Add(nameOf(file));
  names.Complete();
  std::vector<std::uint32_t> keys;
  for (const FileRecord& file : report.files)
    keys.insert(keys.end(), file.findings.size(), names.RankOf(nameOf(file)));
  return keys;
}

std::vector<std::uint32_t> SectionKeys(const FindingsReport& report) {
  Ranking<std::string_view> titles;
  for (const FileRecord& file : report.files) {
    for (const std::string& section : file.sections)
      titles.Add(section);
  }
  titles.Complete();
  std::vector<std::uint32_t> keys;
  for (const FileRecord& file : report.files) {
    std::vector<std::uint32_t> ranks;
    for (const std::string& section : file.sections)
      ranks.push_back(titles.RankOf(section));
    for (const FindingRecord& finding : file.findings)
      keys.push_back(ranks[finding.section]);
  }
  return keys;
}

std::vector<std::uint32_t> RuleKeys(const FindingsReport& report) {
  using Kind = std::pair<const MessageDefinition*, std::optional<AgsFormat>>;
  std::map<Kind, std::string_view> ruleOfKind;
  Ranking<std::string_view, RuleOrder> rules;
  ForEachFinding(report, [&](const FileRecord& file, const FindingRecord& finding) {
    const auto [known, isNew] = ruleOfKind.try_emplace({finding.definition, file.format});
    if (!isNew) return;
    known->second = file.Rule(finding);
    rules.Add(known->second);
  });
  rules.Complete();
  std::vector<std::uint32_t> keys;
  ForEachFinding(report, [&](const FileRecord& file, const FindingRecord& finding) {
    keys.push_back(rules.RankOf(ruleOfKind.at({finding.definition, file.format})));
  });
  return keys;
}

std::vector<std::uint32_t> LineKeys(const FindingsReport& report) {
  std::vector<std::uint32_t> keys;
  ForEachFinding(report, [&keys](const FileRecord&, const FindingRecord& finding) {
    keys.push_back(static_cast<std::uint32_t>(finding.line));
  });
  return keys;
}

std::vector<std::uint32_t> SeverityKeys(const FindingsReport& report) {
  constexpr int mostSerious = static_cast<int>(Severity::Error);
  std::vector<std::uint32_t> keys;
  ForEachFinding(report, [&keys](const FileRecord&, const FindingRecord& finding) {
    keys.push_back(static_cast<std::uint32_t>(mostSerious - static_cast<int>(finding.severity)));
  });
  return keys;
}

/// The findings in the order of their keys; equal ones in their own order.
std::vector<std::uint32_t> KeyOrder(const std::vector<std::uint32_t>& keys,
                                    SortDirection direction) {
  constexpr unsigned indexBits = 32;
  const std::uint32_t turned = direction == SortDirection::Descending ? ~std::uint32_t{0} : 0;
  std::vector<std::uint64_t> entries;
  entries.reserve(keys.size());
  for (const std::uint32_t key : keys)
    entries.push_back(std::uint64_t{key ^ turned} << indexBits | entries.size());
  std::sort(entries.begin(), entries.end());
  std::vector<std::uint32_t> order;
  order.reserve(entries.size());
  for (const std::uint64_t entry : entries)
    order.push_back(static_cast<std::uint32_t>(entry));
  return order;
}

}  // namespace

bool FindingsFilter::Accepts(Severity severity) const {
  switch (severity) {
    case Severity::Error:
      return errors;
    case Severity::Warning:
      return warnings;
    case Severity::Fyi:
    case Severity::Plain:
      break;
  }
  return others;
}

FindingsTable::FindingsTable(const FindingsReport& report) : report_(&report) {
  std::size_t count = 0;
  for (const FileRecord& file : report.files) {
    firstFindings_.push_back(static_cast<std::uint32_t>(count));
    count += file.findings.size();
  }
  order_.resize(count);
  isAccepted_.assign(count, 1);
  SortAsReported();
}

std::optional<std::size_t> FindingsTable::RowOfFinding(std::uint32_t finding) const {
  const auto found = std::find(shown_.begin(), shown_.end(), finding);
  if (found == shown_.end()) return std::nullopt;
  return static_cast<std::size_t>(found - shown_.begin());
}

PlacedFinding FindingsTable::Find(std::uint32_t finding) const {
  // The last file that begins at the finding or before it: those before that begin there are empty.
  const auto next = std::upper_bound(firstFindings_.begin(), firstFindings_.end(), finding);
  const auto index = static_cast<std::size_t>(next - firstFindings_.begin()) - 1;
  const FileRecord& file = report_->files[index];
  return {file, file.findings[finding - firstFindings_[index]]};
}

void FindingsTable::SortBy(FindingsColumn column, SortDirection direction) {
  order_ = column == FindingsColumn::Message ? TextOrder(Messages(), direction)
                                             : KeyOrder(SortKeys(column), direction);
  ShowAccepted();
}

void FindingsTable::SortAsReported() {
  std::iota(order_.begin(), order_.end(), 0U);
  ShowAccepted();
}

void FindingsTable::Filter(const FindingsFilter& filter) {
  auto accepted = isAccepted_.begin();
  for (const FileRecord& file : report_->files) {
    FileSearch search(file, filter.text);
    for (const FindingRecord& finding : file.findings)
      *accepted++ = filter.Accepts(finding.severity) && search.Finds(finding) ? 1 : 0;
  }
  ShowAccepted();
}

std::vector<std::string_view> FindingsTable::Messages() const {
  std::vector<std::string_view> messages;
  messages.reserve(Count());
  ForEachFinding(*report_, [&messages](const FileRecord&, const FindingRecord& finding) {
    messages.push_back(finding.text);
  });
  return messages;
}

std::vector<std::uint32_t> FindingsTable::SortKeys(FindingsColumn column) const {
  switch (column) {
    case FindingsColumn::File:
      return FileKeys(*report_);
    case FindingsColumn::Line:
      return LineKeys(*report_);
    case FindingsColumn::Severity:
      return SeverityKeys(*report_);
    case FindingsColumn::Section:
      return SectionKeys(*report_);
    case FindingsColumn::Rule:
      return RuleKeys(*report_);
    case FindingsColumn::Message:
      break;  // sorted by its text
  }
  return {};
}

void FindingsTable::ShowAccepted() {
  shown_.clear();
  std::copy_if(order_.begin(), order_.end(), std::back_inserter(shown_),
               [this](std::uint32_t finding) { return isAccepted_[finding] != 0; });
}

std::string_view FileNameOf(std::string_view path) {
  return path.substr(path.find_last_of("\\/") + 1);
}

}  // namespace quorvane
