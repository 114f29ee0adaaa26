#include "support/direct_check.h"

#include "support/fake_services.h"

namespace quorvane::test {

CheckResult CheckDirectly(AgsFormat format, const std::function<void(CheckedFile&)>& check) {
  return CheckDirectly(format, "", check);
}

CheckResult CheckDirectly(AgsFormat format, std::string_view text,
                          const std::function<void(CheckedFile&)>& check) {
  RecordingProgressBox box;
  RunLog runLog(box);
  MessageLog log(runLog, false);
  log.SetFormat(format);
  const FileText fileText{ByteBuffer(text)};
  CheckedFile file(fileText, format, AgsDictionary(), log);
  check(file);
  log.CloseCheckSection("Direct check");
  CheckResult result;
  for (std::size_t index = 0; index < log.ClosedCount(); ++index) {
    const Finding finding = log.ClosedFinding(index);
    result.findings.push_back(FormatMessage(finding.line, finding.severity, finding.text));
    result.sectionOf.push_back(0);
  }
  result.sections.emplace_back("Direct check");
  return result;
}

}  // namespace quorvane::test
