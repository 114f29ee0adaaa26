#include "findings/csv_findings.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "findings/run_facts.h"
#include "text/comma_list.h"
#include "text/terminal_text.h"
#include "text/text.h"
#include "text/utf8.h"

namespace quorvane {
namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

constexpr std::string_view ColumnNames =
    "record,file,line,column,severity,id,rule,section,group,key,heading,message,state,reason";

/// What formulas begin with, in the wide form of East Asian texts too.
constexpr std::array<std::string_view, 10> FormulaSigns{
    "=", "+", "-", "@", "\t", "\n", "\xEF\xBC\x9D", "\xEF\xBC\x8B", "\xEF\xBC\x8D", "\xEF\xBC\xA0"};

/// Whether a spreadsheet might take a text for a formula; blanks in front do not count.
bool LooksLikeFormula(std::string_view text) {
  text = text.substr(std::min(text.find_first_not_of(' '), text.size()));
  return std::any_of(FormulaSigns.begin(), FormulaSigns.end(),
                     [text](std::string_view sign) { return text.starts_with(sign); });
}

/// A text without control characters, its line breaks as spreadsheets have them inside a cell.
std::string PlainText(std::string_view text) {
  std::string plain;
  for (const std::string_view line : Split(text, LineBreak)) {
    if (line.data() != text.data()) plain.push_back('\n');
    plain.append(TerminalText(line));
  }
  return plain;
}

/// The table in the making, field by field.
class CsvTable {
 public:
  CsvTable() : text_(ByteOrderMark) { text_.append(ColumnNames).append(LineBreak); }

  /// A word of ours: nothing in it needs care.
  CsvTable& Word(std::string_view word) {
    text_.append(word).push_back(',');
    return *this;
  }

  /// A number from 1 on; 0 stands for none.
  CsvTable& Number(std::int64_t number) { return Word(number == 0 ? "" : std::to_string(number)); }

  /// Any text.
  CsvTable& Text(std::string_view text) {
    if (text.empty()) return Word("");
    const std::string plain = PlainText(text);
    text_.append("\"");
    if (LooksLikeFormula(plain)) text_.append("'");
    text_.append(ReplaceAll(plain, "\"", "\"\"")).append("\",");
    return *this;
  }

  /// Fields without content.
  CsvTable& Skip(std::size_t count) {
    text_.append(count, ',');
    return *this;
  }

  void EndRow() {
    text_.pop_back();
    text_.append(LineBreak);
  }

  std::string TakeText() { return std::move(text_); }

 private:
  std::string text_;
};

/// Adds the facts of the run, or of a file, each in a row.
class FactRows {
 public:
  /// The table and the texts must outlive the object.
  FactRows(CsvTable& table, std::string_view record, std::string_view path)
      : table_(table), record_(record), path_(path) {}

  void Add(std::string_view name, std::string_view value) {
    table_.Word(record_).Text(path_).Skip(3).Word(name).Skip(5).Text(value).Skip(2).EndRow();
  }

  void AddIfAny(std::string_view name, std::string_view value) {
    if (!value.empty()) Add(name, value);
  }

  void AddYesOrNo(std::string_view name, bool isSo) { Add(name, isSo ? "yes" : "no"); }

  void AddCounts(const SeverityCounts& counts) {
    Add("errors", std::to_string(counts.errors));
    Add("warnings", std::to_string(counts.warnings));
    Add("fyis", std::to_string(counts.fyis));
    Add("remarks", std::to_string(counts.plain));
  }

 private:
  CsvTable& table_;
  std::string_view record_;
  std::string_view path_;
};

void AddRun(CsvTable& table, const FindingsReport& report) {
  const CheckSettings& settings = report.settings;
  FactRows rows(table, "run", "");
  rows.Add("program", "Quorvane " + report.programVersion);
  rows.Add("start", UtcText(report.start));
  rows.Add("listings", Join(ListingNames(settings.listings), ","));
  rows.AddYesOrNo("no-fyi", settings.suppressFyi);
  rows.AddYesOrNo("statistics", settings.showStatistics);
  if (settings.useCustomDictionary) rows.Add("dictionary", ToUtf8(settings.customDictionary));
  rows.AddIfAny("edition", settings.edition);
  rows.Add("status", StatusWord(report.status));
  rows.Add("files", std::to_string(report.files.size()));
  rows.AddCounts(report.Counts());
  for (const UnnamedFiles& files : report.unnamedFiles) {
    for (const std::string& name : files.names)
      rows.Add("unnamed-file", files.folder + name);
  }
}

void AddFile(CsvTable& table, const FileRecord& file) {
  FactRows rows(table, "file", file.path);
  rows.AddYesOrNo("checked-to-the-end", file.isComplete);
  rows.AddIfAny("reason", file.reason);
  if (file.wasRead) {
    rows.Add("size", std::to_string(file.size));
    rows.Add("sha256", file.sha256);
  }
  if (file.format) rows.Add("ags-version", AgsVersionDigit(*file.format));
  rows.AddIfAny("stated-version", file.statedVersion);
  rows.AddIfAny("dictionary", file.dictionary);
  rows.AddIfAny("edition", file.edition);
  rows.AddCounts(file.counts);
  for (const AssociatedFile& associated : file.associatedFiles) {
    if (associated.state == AssociatedFile::State::Missing)
      rows.Add("missing-file", associated.fileSet + "/" + associated.name);
  }
}

void AddFinding(CsvTable& table, const FindingsReport& report, const FileRecord& file,
                const FindingRecord& finding) {
  table.Word("finding").Text(file.path).Number(finding.line).Number(finding.column);
  table.Word(SeverityWord(finding.severity)).Word(finding.definition->id);
  table.Text(file.Rule(finding)).Text(file.Section(finding)).Text(file.GroupName(finding));
  table.Text(finding.key).Text(file.HeadingName(finding)).Text(finding.text);
  table.Word(StateWord(finding.state)).Text(report.WaiverReason(finding)).EndRow();
}

/// The findings of an earlier run that are no longer there.
void AddGoneFindings(CsvTable& table, const EarlierFile& file) {
  for (const EarlierFinding& finding : file.findings) {
    table.Word("gone").Text(file.path).Number(finding.line).Skip(1);
    table.Word(SeverityWord(finding.severity)).Text(finding.id).Skip(2).Text(finding.group);
    table.Text(finding.key).Text(finding.heading).Text(finding.text).Skip(2).EndRow();
  }
}

}  // namespace

std::string CsvFindings(const FindingsReport& report) {
  CsvTable table;
  AddRun(table, report);
  for (const FileRecord& file : report.files) {
    AddFile(table, file);
    for (const FindingRecord& finding : file.findings)
      AddFinding(table, report, file, finding);
  }
  if (report.comparison) {
    for (const EarlierFile& file : report.comparison->gone)
      AddGoneFindings(table, file);
  }
  return table.TakeText();
}

}  // namespace quorvane
