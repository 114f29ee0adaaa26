#include "findings/delivery_closing.h"

#include <algorithm>
#include <utility>

#include "findings/associated_files.h"
#include "findings/baseline.h"
#include "findings/closing_sections.h"
#include "findings/summary_table.h"
#include "findings/waivers.h"
#include "text/text.h"
#include "text/utf8.h"

namespace quorvane {
namespace {

/// Shows why a file that an option names cannot be used; returns false.
bool Refuse(UserMessages& messages, std::string_view kind, const std::string& path,
            const std::string& reason) {
  messages.ShowBox("Quorvane", std::string(kind) + " '" + path + "' " + reason, BoxKind::Critical);
  return false;
}

/// Reads a file that an option names; nothing when it cannot be read, which a box says.
std::optional<ByteBuffer> ReadNamedFile(Disk& disk, UserMessages& messages, std::string_view kind,
                                        const std::string& path) {
  if (!disk.Examine(path).exists) {
    Refuse(messages, kind, path, "does not exist.");
    return std::nullopt;
  }
  Disk::Reading reading = disk.Read(path);
  if (reading.failure) {
    Refuse(messages, kind, path, "cannot be read: " + reading.failure->description);
    return std::nullopt;
  }
  return std::move(reading.content);
}

/// The mistakes as lines, the first ones if there are many: the file may be no list at all.
std::string ListMistakes(const std::vector<std::string>& mistakes) {
  constexpr std::size_t mostShown = 20;
  std::string text;
  for (std::size_t index = 0; index < std::min(mistakes.size(), mostShown); ++index)
    text.append(LineBreak).append(mistakes[index]);
  if (mistakes.size() > mostShown) {
    text.append(LineBreak).append("and ");
    text.append(std::to_string(mistakes.size() - mostShown)).append(" more");
  }
  return text;
}

/// The status of a run that came to its end, by the findings that count.
CheckStatus StatusOf(const FindingsReport& report) {
  const auto hasErrors = [](const FileRecord& file) {
    return !file.isComplete ||
           std::any_of(file.findings.begin(), file.findings.end(),
                       [](const FindingRecord& finding) { return finding.Counts(); });
  };
  return std::any_of(report.files.begin(), report.files.end(), hasErrors) ? CheckStatus::HasErrors
                                                                          : CheckStatus::Clean;
}

bool LacksFiles(const FindingsReport& report) {
  return std::any_of(report.files.begin(), report.files.end(), [](const FileRecord& file) {
    return std::any_of(file.associatedFiles.begin(), file.associatedFiles.end(), IsMissing);
  });
}

}  // namespace

bool DeliveryClosing::Prepare(UserMessages& messages) {
  return ReadBaseline(messages) && ReadWaiverList(messages);
}

bool DeliveryClosing::ReadBaseline(UserMessages& messages) {
  constexpr std::string_view kind = "Baseline file";
  if (options_.baseline.empty()) return true;
  const auto content = ReadNamedFile(disk_, messages, kind, options_.baseline);
  if (!content) return false;
  EarlierRunReading reading = ReadEarlierRun(content->View());
  if (reading.failure) return Refuse(messages, kind, options_.baseline, *reading.failure);
  earlier_ = std::move(reading.run);
  return true;
}

bool DeliveryClosing::ReadWaiverList(UserMessages& messages) {
  constexpr std::string_view kind = "Waivers file";
  if (options_.waivers.empty()) return true;
  const auto content = ReadNamedFile(disk_, messages, kind, options_.waivers);
  if (!content) return false;
  WaiverReading reading = ReadWaivers(content->View());
  if (!reading.mistakes.empty()) {
    return Refuse(messages, kind, options_.waivers,
                  "cannot be used:" + ListMistakes(reading.mistakes));
  }
  waivers_ = std::move(reading.waivers);
  return true;
}

/// Waivers have the last word: a finding that is accepted is no news.
void DeliveryClosing::MarkFindings(FindingsReport& report) {
  if (!earlier_ && !waivers_) return;
  if (earlier_) CompareWithEarlierRun(report, std::move(*earlier_), ToUtf8(options_.baseline));
  if (waivers_) ApplyWaivers(report, std::move(*waivers_), ToUtf8(options_.waivers));
  if (report.status != CheckStatus::NotDone) report.status = StatusOf(report);
}

void DeliveryClosing::Close(FindingsReport& report, RunLog& log) {
  MarkFindings(report);
  if (options_.lookForFiles) {
    LookForAssociatedFiles(disk_, report);
    if (LacksFiles(report)) report.status = std::max(report.status, CheckStatus::HasErrors);
  }
  std::string text;
  if (options_.lookForFiles) text.append(AssociatedFilesText(report));
  if (!options_.waivers.empty()) text.append(WaiversText(report));
  if (report.comparison) text.append(ComparisonText(report));
  if (options_.showSummary) text.append(SummaryTable(report));
  // The log ends its last line itself.
  if (text.ends_with(LineBreak)) text.resize(text.size() - LineBreak.size());
  if (!text.empty()) log.AppendProgress(text);
}

}  // namespace quorvane
