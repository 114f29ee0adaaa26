#pragma once

#include <string>
#include <string_view>

#include "findings/findings_report.h"

namespace quorvane::test {

/// A message for findings that no check has raised.
inline const MessageDefinition SomeMessage{.id = "test.some",
                                           .ags3 = {Severity::Error, "1", "some"},
                                           .ags4 = {Severity::Error, "1", "some"},
                                           .meaning = "",
                                           .remedy = ""};

/// Adds a file that was checked to the end, with the groups LOCA and GEOL.
inline FileRecord& AddFile(FindingsReport& report, const std::string& path) {
  FileRecord& file = report.files.emplace_back();
  file.path = path;
  file.isComplete = true;
  file.format = AgsFormat::Ags4;
  file.groups = {{"LOCA", {{"LOCA_ID", "", ""}, {"LOCA_GL", "m", ""}}}, {"GEOL", {}}};
  return file;
}

/// Adds a finding in the first group.
inline FindingRecord& AddFinding(FileRecord& file, std::string_view key, std::int32_t heading,
                                 const MessageDefinition& message = SomeMessage) {
  FindingRecord& finding = file.findings.emplace_back();
  finding.definition = &message;
  finding.severity = message.ags4.severity;
  finding.text = message.ags4.text;
  finding.key = file.texts.Keep(key);
  finding.group = 1;
  finding.heading = heading;
  finding.line = static_cast<std::int32_t>(file.findings.size());
  file.counts.Add(finding.severity);
  return finding;
}

}  // namespace quorvane::test
