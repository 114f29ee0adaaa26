#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "parse/file_text.h"
#include "report/message_log.h"
#include "support/fake_services.h"
#include "text/text.h"

namespace quorvane::test {

/// A file's text with LF standing for CR LF.
inline FileText TextOf(std::string_view text) {
  return FileText(ByteBuffer(ReplaceAll(text, "\n", LineBreak)));
}

/// The message log of one file, with its findings as text.
struct LoggedFile {
  explicit LoggedFile(AgsFormat format, bool suppressFyi = false) : log(runLog, suppressFyi) {
    log.SetFormat(format);
  }

  /// The findings of all closed sections in their printed form.
  std::vector<std::string> Findings() const {
    std::vector<std::string> findings;
    for (std::size_t index = 0; index < log.ClosedCount(); ++index) {
      const Finding finding = log.ClosedFinding(index);
      findings.push_back(FormatMessage(finding.line, finding.severity, finding.text));
    }
    return findings;
  }

  RecordingProgressBox progressBox;
  RunLog runLog{progressBox};
  MessageLog log;
};

}  // namespace quorvane::test
