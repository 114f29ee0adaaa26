#pragma once

#include <string>
#include <vector>

#include "report/message_log.h"
#include "support/fake_services.h"

namespace quorvane::test {

/// A message log for code that is tested without a whole check around it.
class RecordedLog {
 public:
  explicit RecordedLog(AgsFormat format = AgsFormat::Ags3, bool suppressFyi = false)
      : log_(runLog_, suppressFyi) {
    log_.SetFormat(format);
  }

  MessageLog& Log() { return log_; }

  /// What stands in the run's log so far.
  const std::string& Written() const { return runLog_.FullText(); }

  /// All findings so far as they are printed, without indent. Ends the open section.
  std::vector<std::string> Findings() {
    log_.CloseCheckSection("Recorded");
    std::vector<std::string> findings;
    for (std::size_t index = 0; index < log_.ClosedCount(); ++index) {
      const Finding finding = log_.ClosedFinding(index);
      findings.push_back(FormatMessage(finding.line, finding.severity, finding.text));
    }
    return findings;
  }

  /// The place of each finding. Ends the open section.
  std::vector<MessagePlace> Places() {
    log_.CloseCheckSection("Recorded");
    std::vector<MessagePlace> places;
    for (std::size_t index = 0; index < log_.ClosedCount(); ++index) {
      places.push_back(log_.ClosedFinding(index).place);
    }
    return places;
  }

 private:
  RecordingProgressBox box_;
  RunLog runLog_{box_};
  MessageLog log_;
};

}  // namespace quorvane::test
