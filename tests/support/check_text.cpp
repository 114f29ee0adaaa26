#include "support/check_text.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <vector>

#include "dictionary/schema_edition.h"
#include "findings/findings_collector.h"
#include "run/check_run.h"
#include "support/fake_services.h"
#include "text/comma_list.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

std::string ReadWhole(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path);
  return {std::istreambuf_iterator<char>(file), {}};
}

void AddSchemas(MemoryDisk& disk) {
  static const std::vector<std::string> contents = [] {
    std::vector<std::string> read;
    for (const SchemaEdition& edition : SchemaEditions)
      read.push_back(ReadWhole(QUORVANE_SCHEMA_FOLDER "/" + std::string(edition.fileName)));
    return read;
  }();
  for (std::size_t index = 0; index < contents.size(); ++index) {
    disk.files["/program/" + std::string(SchemaEditions[index].fileName)] = contents[index];
  }
}

bool IsSectionLine(std::string_view line) {
  const std::size_t count = line.rfind("   ");
  return count != std::string_view::npos && !line.starts_with(' ') &&
         line.find("error", count) != std::string_view::npos;
}

bool IsFindingStart(std::string_view line) {
  for (const std::string_view label : {"  ERROR: ", "  WARNING: ", "  FYI: ", "  No further "}) {
    if (line.starts_with(label)) return true;
  }
  return false;
}

/// Reads the grouped listing back from the log.
void ReadListing(CheckResult& result) {
  bool isInListing = false;
  for (const std::string_view line : Split(result.log, LineBreak)) {
    if (line.starts_with("SUMMARY:")) {
      isInListing = true;
    } else if (line.starts_with(std::string(20, '*')) || line.starts_with("Could not continue") ||
               line.find(" in custom dictionary that did not match") != std::string_view::npos) {
      isInListing = false;
    } else if (isInListing && IsSectionLine(line)) {
      result.sections.emplace_back(line.substr(0, line.rfind("   ")));
    } else if (isInListing && IsFindingStart(line)) {
      result.findings.emplace_back(line.substr(2));
      result.sectionOf.push_back(result.sections.size() - 1);
    } else if (isInListing && !line.empty() && !result.findings.empty()) {
      result.findings.back().append(LineBreak).append(line);
    }
  }
}

/// Puts the files on the disk and names them as those to check.
void PutFiles(FakeServices& services, const std::vector<NamedFile>& files, CheckSettings settings) {
  std::vector<std::string> names;
  for (const NamedFile& file : files) {
    services.disk.files[file.name] = file.content;
    names.push_back(file.name);
  }
  settings.filesToCheck = Join(names, LineBreak);
  services.window.settings = std::move(settings);
  AddSchemas(services.disk);
}

CheckResult Run(FakeServices& services, const std::vector<NamedFile>& files,
                CheckSettings settings) {
  PutFiles(services, files, std::move(settings));
  FindingsCollector collector(services.environment);
  Services all = services.All();
  all.findings = &collector;
  CheckRun run(all);
  CheckResult result;
  result.status = static_cast<int>(run.ExecuteChecking());
  result.report = std::make_shared<const FindingsReport>(collector.TakeReport());
  result.log = run.LogText();
  result.boxes = services.messages.boxes;
  result.notes = services.messages.notes;
  ReadListing(result);
  return result;
}

NamedFile WithCrLf(const std::string& name, std::string_view text) {
  return {name, ReplaceAll(text, "\n", LineBreak)};
}

std::string QuotedFields(const std::vector<std::string>& values) {
  std::string line;
  for (const std::string& value : values) {
    if (!line.empty()) line += ',';
    line.append("\"").append(value).append("\"");
  }
  return line;
}

std::string LabelledFields(std::string_view label, const std::vector<std::string>& values) {
  std::vector<std::string> fields{std::string(label)};
  fields.insert(fields.end(), values.begin(), values.end());
  return QuotedFields(fields);
}

}  // namespace

bool CheckResult::Has(std::string_view finding) const {
  return std::find(findings.begin(), findings.end(), finding) != findings.end();
}

bool CheckResult::HasText(std::string_view part) const {
  return Count(part) > 0;
}

int CheckResult::Count(std::string_view part) const {
  return static_cast<int>(std::count_if(
      findings.begin(), findings.end(),
      [part](const std::string& finding) { return finding.find(part) != std::string::npos; }));
}

bool CheckResult::HasSection(std::string_view title) const {
  return std::find(sections.begin(), sections.end(), title) != sections.end();
}

std::vector<std::string> CheckResult::FindingsOf(std::string_view sectionTitle) const {
  std::vector<std::string> found;
  for (std::size_t index = 0; index < findings.size(); ++index) {
    if (sections[sectionOf[index]] == sectionTitle) found.push_back(findings[index]);
  }
  return found;
}

CheckResult CheckText(std::string_view text, CheckSettings settings, const std::string& path) {
  FakeServices services;
  return Run(services, {WithCrLf(path, text)}, std::move(settings));
}

CheckResult CheckFiles(const std::vector<NamedFile>& files, CheckSettings settings) {
  FakeServices services;
  return Run(services, files, std::move(settings));
}

CheckResult CheckFilesAgainst(std::string_view schema, const std::vector<NamedFile>& files,
                              CheckSettings settings) {
  FakeServices services;
  services.disk.files["custom.gas"] = schema;
  settings.useCustomDictionary = true;
  settings.customDictionary = "custom.gas";
  return Run(services, files, std::move(settings));
}

CheckResult CheckTextAgainst(std::string_view schema, std::string_view text,
                             CheckSettings settings) {
  return CheckFilesAgainst(ReplaceAll(schema, "\n", LineBreak), {WithCrLf("test.ags", text)},
                           std::move(settings));
}

FindingsReport CollectFindings(const std::vector<NamedFile>& files, CheckSettings settings) {
  FakeServices fakes;
  PutFiles(fakes, files, std::move(settings));
  FindingsCollector collector(fakes.environment);
  Services services = fakes.All();
  services.findings = &collector;
  CheckRun(services).ExecuteChecking();
  return collector.TakeReport();
}

std::string Lines(std::initializer_list<std::string_view> lines) {
  std::string text;
  for (const std::string_view line : lines)
    text.append(line).append("\n");
  return text;
}

Ags4File& Ags4File::Line(std::string_view line) {
  text_.append(line).append("\n");
  ++lineCount_;
  return *this;
}

Ags4File& Ags4File::Group(std::string_view name, const std::vector<std::string>& headings,
                          const std::vector<std::string>& units,
                          const std::vector<std::string>& types,
                          const std::vector<std::vector<std::string>>& rows) {
  if (lineCount_ > 0) Line("");
  Line(LabelledFields("GROUP", {std::string(name)}));
  Line(LabelledFields("HEADING", headings));
  Line(LabelledFields("UNIT", units));
  Line(LabelledFields("TYPE", types));
  for (const std::vector<std::string>& row : rows)
    Line(LabelledFields("DATA", row));
  return *this;
}

Ags3File& Ags3File::Line(std::string_view line) {
  text_.append(line).append("\n");
  ++lineCount_;
  return *this;
}

Ags3File& Ags3File::Group(std::string_view name, const std::vector<std::string>& headings,
                          const std::vector<std::string>& units,
                          const std::vector<std::vector<std::string>>& rows) {
  if (lineCount_ > 0) Line("");
  Line("\"**" + std::string(name) + "\"");
  std::vector<std::string> starred;
  for (const std::string& heading : headings)
    starred.push_back("*" + heading);
  Line(QuotedFields(starred));
  if (!units.empty()) {
    std::vector<std::string> marked = units;
    marked.front() = "<UNITS>";
    Line(QuotedFields(marked));
  }
  for (const std::vector<std::string>& row : rows)
    Line(QuotedFields(row));
  return *this;
}

Ags4File MinimalAgs4() {
  Ags4File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_NAME"}, {"", ""}, {"ID", "X"}, {{"P1", "Test project"}});
  file.Group("TRAN",
             {"TRAN_ISNO", "TRAN_DATE", "TRAN_PROD", "TRAN_STAT", "TRAN_DESC", "TRAN_AGS",
              "TRAN_RECV", "TRAN_DLIM", "TRAN_RCON"},
             {"", "yyyy-mm-dd", "", "", "", "", "", "", ""},
             {"X", "DT", "X", "X", "X", "X", "X", "X", "X"},
             {{"1", "2026-01-02", "Maker", "Final", "Test", "4.0.3", "Client", "|", "+"}});
  file.Group("TYPE", {"TYPE_TYPE", "TYPE_DESC"}, {"", ""}, {"X", "X"},
             {{"ID", "Unique identifier"}, {"X", "Text"}, {"DT", "Date and time"}});
  file.Group("UNIT", {"UNIT_UNIT", "UNIT_DESC"}, {"", ""}, {"X", "X"},
             {{"yyyy-mm-dd", "Year month day"}});
  return file;
}

Ags3File MinimalAgs3() {
  Ags3File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_NAME", "PROJ_AGS"}, {"", "", ""},
             {{"P1", "Test project", "3.1"}});
  file.Group("UNIT", {"UNIT_UNIT", "UNIT_DESC"}, {}, {{"m", "metre"}});
  file.Group("ABBR", {"ABBR_HDNG", "ABBR_CODE", "ABBR_DESC"}, {}, {{"HOLE_TYPE", "CP", "Cable"}});
  file.Group("HOLE", {"HOLE_ID", "HOLE_TYPE", "HOLE_FDEP"}, {"", "", "m"},
             {{"BH1", "CP", "10.00"}});
  return file;
}

}  // namespace quorvane::test
