#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "findings/findings_report.h"
#include "findings/text_order.h"

namespace quorvane {

/// The columns of the table of findings.
enum class FindingsColumn { File, Line, Severity, Section, Rule, Message };

/// What a finding must be like to be shown.
struct FindingsFilter {
  std::string text;  // is in its file's path, line number, section, rule or message, in any case of
                     // the letters A-Z; empty: anything
  bool errors = true;
  bool warnings = true;
  bool others = true;  // for information, and remarks without a label

  bool Accepts(Severity severity) const;
};

/// A finding with the file that it belongs to.
struct PlacedFinding {
  const FileRecord& file;
  const FindingRecord& finding;
};

/// The findings of a report as the rows of a table that can be sorted and filtered. Findings are
/// counted through all files from 0, in the order of the report; so are the rows that are shown.
class FindingsTable {
 public:
  /// Shows all findings in the order of the report. The report must outlive the table, stay
  /// unchanged, and hold fewer than 2^32 findings.
  explicit FindingsTable(const FindingsReport& report);

  std::size_t Count() const { return order_.size(); }
  std::size_t ShownCount() const { return shown_.size(); }

  /// The finding that a row shows.
  std::uint32_t FindingOfRow(std::size_t row) const { return shown_[row]; }

  /// The row that shows a finding; nothing when none does.
  std::optional<std::size_t> RowOfFinding(std::uint32_t finding) const;

  /// A finding by its number.
  PlacedFinding Find(std::uint32_t finding) const;

  /// Sorts the rows by a column, severities from error to remark; what is equal there stays in the
  /// order of the report, in either direction.
  void SortBy(FindingsColumn column, SortDirection direction);
  void SortAsReported();

  /// Shows the findings that a filter lets through, in the order that holds.
  void Filter(const FindingsFilter& filter);

 private:
  std::vector<std::string_view> Messages() const;
  std::vector<std::uint32_t> SortKeys(FindingsColumn column) const;
  void ShowAccepted();

  const FindingsReport* report_;
  std::vector<std::uint32_t> firstFindings_;  // of each file
  std::vector<std::uint32_t> order_;          // all findings, sorted
  std::vector<std::uint8_t> isAccepted_;      // by finding: the filter lets it through
  std::vector<std::uint32_t> shown_;          // the accepted ones, sorted
};

/// The part of a path behind its folders.
std::string_view FileNameOf(std::string_view path);

}  // namespace quorvane
