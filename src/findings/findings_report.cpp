#include "findings/findings_report.h"

#include <algorithm>

namespace quorvane {

void SeverityCounts::Add(Severity severity) {
  switch (severity) {
    case Severity::Error:
      ++errors;
      break;
    case Severity::Warning:
      ++warnings;
      break;
    case Severity::Fyi:
      ++fyis;
      break;
    case Severity::Plain:
      ++plain;
      break;
  }
}

const LineRecord* FileRecord::FindLine(std::int32_t line) const {
  const auto place = std::lower_bound(
      lines.begin(), lines.end(), line,
      [](const LineRecord& record, std::int32_t wanted) { return record.line < wanted; });
  return place != lines.end() && place->line == line ? &*place : nullptr;
}

std::string_view FileRecord::GroupName(const FindingRecord& finding) const {
  if (finding.group == 0) return {};
  return groups[static_cast<std::size_t>(finding.group - 1)].name;
}

std::string_view FileRecord::HeadingName(const FindingRecord& finding) const {
  if (finding.group == 0 || finding.heading == 0) return {};
  const GroupRecord& group = groups[static_cast<std::size_t>(finding.group - 1)];
  return group.headings[static_cast<std::size_t>(finding.heading - 1)].name;
}

std::string_view FileRecord::Rule(const FindingRecord& finding) const {
  return finding.definition->In(format.value_or(AgsFormat::Ags3)).rule;
}

const std::string& FileRecord::Section(const FindingRecord& finding) const {
  return sections[finding.section];
}

SeverityCounts FindingsReport::Counts() const {
  SeverityCounts counts;
  for (const FileRecord& file : files) {
    counts.errors += file.counts.errors;
    counts.warnings += file.counts.warnings;
    counts.fyis += file.counts.fyis;
    counts.plain += file.counts.plain;
  }
  return counts;
}

std::string_view FindingsReport::WaiverReason(const FindingRecord& finding) const {
  if (finding.state != FindingState::Waived) return {};
  return waivers[static_cast<std::size_t>(finding.waiver)].reason;
}

std::string_view StateWord(FindingState state) {
  switch (state) {
    case FindingState::New:
      return "new";
    case FindingState::Known:
      return "known";
    case FindingState::Waived:
      return "waived";
    case FindingState::None:
      break;
  }
  return {};
}

std::string_view SeverityWord(Severity severity) {
  switch (severity) {
    case Severity::Error:
      return "error";
    case Severity::Warning:
      return "warning";
    case Severity::Fyi:
      return "fyi";
    case Severity::Plain:
      break;
  }
  return "remark";
}

}  // namespace quorvane
