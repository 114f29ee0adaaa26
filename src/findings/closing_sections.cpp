#include "findings/closing_sections.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "findings/associated_files.h"
#include "text/number.h"
#include "text/text.h"

namespace quorvane {
namespace {

/// Takes the lines of a section.
class SectionText {
 public:
  template <typename... Parts>
  void Line(const Parts&... parts) {
    (text_.append(parts), ...);
    text_.append(LineBreak);
  }

  void EmptyLine() { text_.append(LineBreak); }
  std::string Take() { return std::move(text_); }

 private:
  std::string text_;
};

std::string CountText(std::size_t count) {
  return GroupedCount(count);
}

std::string FindingsCount(std::size_t count) {
  return CountText(count) + (count == 1 ? " finding" : " findings");
}

// Associated files

/// How a data file names an associated file: where the format wants it.
std::string NamedPlace(const AssociatedFile& file) {
  return file.fileSet.empty() ? file.name : file.fileSet + "/" + file.name;
}

void WriteAssociatedFile(SectionText& text, const AssociatedFile& file) {
  switch (file.state) {
    case AssociatedFile::State::Missing:
      text.Line("  Missing: FILE/", NamedPlace(file));
      break;
    case AssociatedFile::State::InOtherCase:
      text.Line("  In other letters: FILE/", NamedPlace(file), " is there as ", file.pathThere);
      break;
    case AssociatedFile::State::NoFileName:
      text.Line("  Cannot be the name of a file: file set \"", file.fileSet, "\", name \"",
                file.name, "\"");
      break;
    case AssociatedFile::State::There:
    case AssociatedFile::State::NotLookedFor:
      break;
  }
}

void WriteAssociatedFilesOf(SectionText& text, const FileRecord& file) {
  const std::vector<AssociatedFile>& files = file.associatedFiles;
  if (!KnowsAssociatedFiles(file)) {
    text.Line("Associated files of ", file.path, ":  not known, as the file could not be checked");
    text.EmptyLine();
    return;
  }
  const auto missing =
      static_cast<std::size_t>(std::count_if(files.begin(), files.end(), IsMissing));
  text.Line("Associated files of ", file.path, ":  ", CountText(files.size()), " named, ",
            CountText(missing), " missing");
  if (file.format == AgsFormat::Ags3 && !files.empty())
    text.Line("  Looked for beside the file and in FILE/<file set>.");
  if (missing == 0 && !files.empty()) text.Line("  All of them are there.");
  for (const AssociatedFile& associated : files)
    WriteAssociatedFile(text, associated);
  text.EmptyLine();
}

void WriteUnnamedFiles(SectionText& text, const UnnamedFiles& unnamed) {
  text.Line("Files below ", unnamed.folder,
            "FILE that no data file beside it names:  ", CountText(unnamed.names.size()));
  for (const std::string& name : unnamed.names)
    text.Line("  Not named: ", name);
  for (const std::string& gap : unnamed.gaps)
    text.Line("  Could not be listed: ", gap);
  text.EmptyLine();
}

// Findings

void WriteFinding(SectionText& text, const FindingRecord& finding) {
  text.Line("  ", FormatMessage(finding.line, finding.severity, finding.text));
}

std::size_t CountState(const FindingsReport& report, FindingState state) {
  std::size_t count = 0;
  for (const FileRecord& file : report.files) {
    count += static_cast<std::size_t>(
        std::count_if(file.findings.begin(), file.findings.end(),
                      [state](const FindingRecord& finding) { return finding.state == state; }));
  }
  return count;
}

/// Calls use(finding) for the findings of a state, those of each file behind the file's path.
template <typename Use>
void WriteFindings(SectionText& text, const FindingsReport& report, FindingState state,
                   const Use& use) {
  for (const FileRecord& file : report.files) {
    bool isFirst = true;
    for (const FindingRecord& finding : file.findings) {
      if (finding.state != state) continue;
      if (isFirst) text.Line(file.path);
      isFirst = false;
      use(finding);
    }
  }
}

// Waivers

std::string FieldText(const std::optional<std::string>& value) {
  if (!value) return "*";
  std::string text = ReplaceAll(*value, "\\", "\\\\");
  text = ReplaceAll(text, "|", "\\|");
  return text == "*" ? "\\*" : text;
}

std::string WaiverText(const WaiverRecord& waiver) {
  std::string text = waiver.id;
  for (const auto* field : {&waiver.file, &waiver.group, &waiver.key, &waiver.heading})
    text.append(" | ").append(FieldText(*field));
  return text.append(" | ").append(waiver.reason);
}

void WriteIdleWaivers(SectionText& text, const std::vector<WaiverRecord>& waivers) {
  const auto isIdle = [](const WaiverRecord& waiver) { return waiver.matches == 0; };
  const auto count = std::count_if(waivers.begin(), waivers.end(), isIdle);
  if (count == 0) return;
  text.Line("Waivers that match nothing:  ", CountText(static_cast<std::size_t>(count)));
  for (const WaiverRecord& waiver : waivers) {
    if (isIdle(waiver)) text.Line("  Line ", std::to_string(waiver.line), ": ", WaiverText(waiver));
  }
  text.EmptyLine();
}

// Comparison

std::size_t CountFindings(const std::vector<EarlierFile>& files) {
  std::size_t count = 0;
  for (const EarlierFile& file : files)
    count += file.findings.size();
  return count;
}

void WriteGone(SectionText& text, const std::vector<EarlierFile>& files) {
  if (files.empty()) return;
  text.Line("Findings that are gone:");
  for (const EarlierFile& file : files) {
    text.Line(file.path);
    for (const EarlierFinding& finding : file.findings)
      text.Line("  ", FormatMessage(finding.line, finding.severity, finding.text));
  }
  text.EmptyLine();
}

void WriteNotCompared(SectionText& text, const std::vector<EarlierFile>& files) {
  if (files.empty()) return;
  text.Line("Files of the earlier run that this one did not check to the end:");
  for (const EarlierFile& file : files)
    text.Line("  ", file.path, ":  ", FindingsCount(file.findings.size()), " not compared");
  text.EmptyLine();
}

}  // namespace

std::string AssociatedFilesText(const FindingsReport& report) {
  SectionText text;
  for (const FileRecord& file : report.files)
    WriteAssociatedFilesOf(text, file);
  for (const UnnamedFiles& unnamed : report.unnamedFiles)
    WriteUnnamedFiles(text, unnamed);
  return text.Take();
}

std::string WaiversText(const FindingsReport& report) {
  SectionText text;
  text.Line("Findings waived by ", report.waiverFile, ":  ",
            CountText(CountState(report, FindingState::Waived)));
  WriteFindings(text, report, FindingState::Waived, [&](const FindingRecord& finding) {
    const WaiverRecord& waiver = report.waivers[static_cast<std::size_t>(finding.waiver)];
    WriteFinding(text, finding);
    text.Line("    Reason (line ", std::to_string(waiver.line), "): ", waiver.reason);
  });
  text.EmptyLine();
  WriteIdleWaivers(text, report.waivers);
  return text.Take();
}

std::string ComparisonText(const FindingsReport& report) {
  const ComparisonRecord& comparison = *report.comparison;
  const std::size_t newCount = CountState(report, FindingState::New);
  SectionText text;
  text.Line("Compared with ", comparison.baseline, ":  ", CountText(newCount), " new, ",
            CountText(CountState(report, FindingState::Known)), " known, ",
            CountText(CountFindings(comparison.gone)), " gone");
  text.EmptyLine();
  if (newCount > 0) {
    text.Line("Findings that are new:");
    WriteFindings(text, report, FindingState::New,
                  [&](const FindingRecord& finding) { WriteFinding(text, finding); });
    text.EmptyLine();
  }
  WriteGone(text, comparison.gone);
  WriteNotCompared(text, comparison.notCompared);
  return text.Take();
}

}  // namespace quorvane
