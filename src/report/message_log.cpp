#include "report/message_log.h"

#include <algorithm>
#include <numeric>

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
  newText_.clear();
  AppendMessageText(newText_, form.text, values);
  if (newText_ == lastText_ && fileLine == lastLine_) return;
  if (suppressFyi_ && form.severity == Severity::Fyi) return;

  newPiece_.assign(SectionIndent);
  AppendMessageLabel(newPiece_, fileLine, form.severity);
  const std::size_t textStart = newPiece_.size();
  newPiece_.append(newText_);
  openSection_.StringAdd(newPiece_);
  records_.push_back({&definition, textStart, static_cast<std::uint32_t>(newText_.size()), fileLine,
                      place, static_cast<std::uint32_t>(sections_.size()), form.severity});
  lastLine_ = fileLine;
  lastText_.swap(newText_);
}

void MessageLog::CloseCheckSection(std::string_view title) {
  const std::size_t sectionCount = records_.size() - closedCount_;
  if (sectionCount == 0) return;
  groupedReport_.append(LineBreak)
      .append(title)
      .append("   ")
      .append(std::to_string(sectionCount))
      .append(MessageCountWording(static_cast<std::int64_t>(sectionCount), suppressFyi_))
      .append(LineBreak);
  for (std::size_t index = 0; index < sectionCount; ++index) {
    if (index > 0) groupedReport_.append(LineBreak);
    records_[closedCount_ + index].textStart += groupedReport_.size();
    groupedReport_.append(openSection_.Piece(index));
  }
  groupedReport_.append(LineBreak);
  openSection_.StringInit(SectionBuilderSize, SectionBuilderSize, false, false);
  sections_.emplace_back(title);
  closedCount_ = records_.size();
}

std::string_view MessageLog::TextOf(const Record& record) const {
  return std::string_view(groupedReport_).substr(record.textStart, record.textLength);
}

Finding MessageLog::ClosedFinding(std::size_t index) const {
  const Record& record = records_[index];
  return {record.definition, record.line,    record.severity,
          record.place,      record.section, TextOf(record)};
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
  if (choice.scanGroupings || areFew) runLog_.AppendProgress(groupedReport_);
  if (areFew || !(choice.lineNumberInFile || choice.severity)) return;

  std::vector<std::uint32_t> order = OrderByLine();
  if (choice.lineNumberInFile) PrintMessageList("Messages sorted by line number:", false, order);
  if (!choice.severity) return;
  OrderBySeverity(order);
  PrintMessageList("Messages sorted by severity:", true, order);
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
    line.append(TextOf(record));
    runLog_.AppendProgress(line);
  }
}

}  // namespace quorvane
