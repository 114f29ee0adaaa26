#include "report/message_log.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "text/text.h"

namespace quorvane {
namespace {

constexpr std::size_t SectionBuilderSize = 10000;
constexpr std::string_view SectionIndent = "  ";

/// Below this many findings the sorted listings say nothing that the grouped one does not show.
constexpr std::size_t FewestForSortedListings = 10;

}  // namespace

MessageLog::MessageLog(RunLog& runLog, bool suppressFyi)
    : runLog_(runLog), suppressFyi_(suppressFyi) {
  openSection_.StringInit(SectionBuilderSize, SectionBuilderSize, false, false);
}

void MessageLog::AddMessage(std::int64_t line, const MessageDefinition& definition,
                            MessageValues values, MessagePlace place) {
  if (muted_) return;
  const MessageForm& form = definition.In(format_);
  const auto fileLine = static_cast<std::int32_t>(line);
  if (suppressFyi_ && form.severity == Severity::Fyi) return;
  new_.line = fileLine;
  new_.text.assign(SectionIndent);
  AppendMessageLabel(new_.text, fileLine, form.severity);
  new_.textStart = new_.text.size();
  AppendMessageText(new_.text, form.text, values);
  new_.text.append(LineBreak);
  if (new_.line == last_.line && new_.RepeatsTextOf(last_)) return;

  openSection_.StringAdd(new_.text);
  records_.push_back({&definition, fileLine, place, static_cast<std::uint32_t>(sections_.size()),
                      static_cast<std::uint16_t>(new_.textStart), form.severity});
  last_.text.swap(new_.text);
  last_.textStart = new_.textStart;
  last_.line = new_.line;
}

void MessageLog::CloseCheckSection(std::string_view title) {
  const std::size_t sectionCount = records_.size() - closedCount_;
  if (sectionCount == 0) return;
  std::string head(LineBreak);
  head.append(title)
      .append("   ")
      .append(std::to_string(sectionCount))
      .append(MessageCountWording(static_cast<std::int64_t>(sectionCount), suppressFyi_))
      .append(LineBreak);
  closedSections_.push_back({closedCount_, std::move(head), std::move(openSection_)});
  openSection_.StringInit(SectionBuilderSize, SectionBuilderSize, false, false);
  sections_.emplace_back(title);
  closedCount_ = records_.size();
}

std::string_view MessageLog::TextOf(std::size_t index) const {
  const Record& record = records_[index];
  const ClosedSection& section = closedSections_[record.section];
  std::string_view text = section.findings.Piece(index - section.firstFinding);
  text.remove_prefix(record.textStart);
  text.remove_suffix(LineBreak.size());
  return text;
}

Finding MessageLog::ClosedFinding(std::size_t index) const {
  const Record& record = records_[index];
  return {record.definition, record.line,    record.severity,
          record.place,      record.section, TextOf(index)};
}

void MessageLog::WriteSummary() {
  std::string summary = "SUMMARY:  ";
  if (closedCount_ > 0) {
    summary += std::to_string(closedCount_) + " total" +
               MessageCountWording(static_cast<std::int64_t>(closedCount_), suppressFyi_);
  } else {
    summary += "No problems found in file.";
  }
  runLog_.AppendProgress(summary);
}

void MessageLog::ListFileMessages(const ListingChoice& choice) {
  if (closedCount_ == 0) return;
  const bool areFew = closedCount_ < FewestForSortedListings;
  if (choice.scanGroupings || areFew) ListSections();
  if (areFew || !(choice.lineNumberInFile || choice.severity)) return;

  std::vector<std::uint32_t> order = OrderByLine();
  if (choice.lineNumberInFile) PrintMessageList("Messages sorted by line number:", false, order);
  if (!choice.severity) return;
  OrderBySeverity(order);
  PrintMessageList("Messages sorted by severity:", true, order);
}

/// Findings may be very many: their texts are copied where they stand, into the log of the run.
void MessageLog::ListSections() {
  std::vector<std::string_view> parts;
  for (const ClosedSection& section : closedSections_) {
    parts.push_back(section.head);
    section.findings.ListText(parts);
  }
  runLog_.AppendProgress(parts);
}

std::vector<std::uint32_t> MessageLog::OrderByLine() const {
  std::vector<std::uint32_t> order(closedCount_);
  std::iota(order.begin(), order.end(), 0U);
  std::stable_sort(order.begin(), order.end(), [this](std::uint32_t left, std::uint32_t right) {
    return records_[left].line < records_[right].line;
  });
  return order;
}

void MessageLog::OrderBySeverity(std::vector<std::uint32_t>& order) const {
  std::stable_sort(order.begin(), order.end(), [this](std::uint32_t left, std::uint32_t right) {
    return records_[left].severity > records_[right].severity;
  });
}

void MessageLog::PrintMessageList(std::string_view title, bool separateSeverities,
                                  const std::vector<std::uint32_t>& order) {
  runLog_.AppendProgress("");
  runLog_.AppendProgress(std::string(20, '*'));
  runLog_.AppendProgress(UpperCase(title));
  Severity severity = records_[order.front()].severity;
  std::string line;
  for (const std::uint32_t index : order) {
    const Record& record = records_[index];
    if (separateSeverities && record.severity != severity) runLog_.AppendProgress("");
    severity = record.severity;
    line.clear();
    AppendMessageLabel(line, record.line, record.severity);
    line.append(TextOf(index));
    runLog_.AppendProgress(line);
  }
}

}  // namespace quorvane
