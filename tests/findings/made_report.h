#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "findings/findings_report.h"
#include "rules/key_messages.h"

namespace quorvane::test {

/// A report of one AGS 4 file with findings of Rule 6b, one section and a group LOCA with the
/// headings LOCA_ID and LOCA_GL, put together by hand.
class MadeReport {
 public:
  explicit MadeReport(std::string path = "made.ags") {
    report_.programVersion = "1.2.3.4";
    report_.status = CheckStatus::HasErrors;
    FileRecord& file = report_.files.emplace_back();
    file.path = std::move(path);
    file.isComplete = true;
    file.format = AgsFormat::Ags4;
    file.sections.emplace_back("Made up");
    file.groups.push_back({"LOCA", {{"LOCA_ID", "", "ID"}, {"LOCA_GL", "m", "2DP"}}});
  }

  /// Adds a finding at a heading of LOCA (0 for none). Its texts may go away after the call.
  MadeReport& Add(std::string_view text, std::string_view key = "", std::int32_t line = 0,
                  std::int32_t heading = 0) {
    FileRecord& file = report_.files.front();
    FindingRecord finding;
    finding.definition = &KeyRepeated;
    finding.text = file.texts.Keep(text);
    finding.key = file.texts.Keep(key);
    finding.line = line;
    finding.group = heading > 0 ? 1 : 0;
    finding.heading = heading;
    file.counts.Add(finding.severity);
    file.findings.push_back(finding);
    return *this;
  }

  FindingsReport& Report() { return report_; }
  const FindingsReport& Report() const { return report_; }
  FileRecord& File() { return report_.files.front(); }

 private:
  FindingsReport report_;
};

}  // namespace quorvane::test
