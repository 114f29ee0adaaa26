#include "findings/findings_collector.h"

#include <algorithm>

#include "dictionary/dictionary_store.h"
#include "findings/associated_files.h"
#include "findings/line_fields.h"
#include "findings/sha256.h"
#include "text/text.h"
#include "text/utf8.h"

namespace quorvane {
namespace {

/// So much of a line is kept: enough for every row that people read, little of a line that is no
/// row at all.
constexpr std::size_t MostLineBytes = 4000;

/// Of the AGS 3 dictionary that the program carries itself.
constexpr std::string_view Ags3Edition = "3.1";

std::string WithoutQuestionMark(std::string_view name) {
  return ToUtf8(name.starts_with('?') ? name.substr(1) : name);
}

std::vector<GroupRecord> RecordGroups(const GroupTable& table) {
  std::vector<GroupRecord> records;
  records.reserve(static_cast<std::size_t>(table.GroupCount()));
  for (int index = 1; index <= table.GroupCount(); ++index) {
    const Group& group = table.At(index);
    GroupRecord& record = records.emplace_back();
    record.name = WithoutQuestionMark(group.name);
    record.headings.reserve(group.headings.size());
    for (const Heading& heading : group.headings) {
      record.headings.push_back(
          {WithoutQuestionMark(heading.name), ToUtf8(heading.unit), ToUtf8(heading.type)});
    }
  }
  return records;
}

/// Finds the place in the table for findings that were raised at a line.
class PlaceFinder {
 public:
  explicit PlaceFinder(const CheckedFile& file) : file_(file), table_(file.table) {}

  /// The place of a finding, completed from its line as far as that tells.
  MessagePlace Complete(MessagePlace place, std::int32_t line) const {
    if (line == 0) return place;
    if (place.group == 0) place = {GroupOfLine(line), 0, 0};
    if (place.group != 0 && place.row == 0) place.row = RowOfLine(place.group, line);
    return place;
  }

  /// The column of the finding's cell in its line; 0 when the cell does not stand there.
  std::int32_t Column(const MessagePlace& place, std::int32_t lineNumber,
                      std::string_view line) const {
    if (place.heading == 0 || !HoldsFields(place, lineNumber)) return 0;
    const std::size_t labelCount = file_.IsAgs4() ? 1 : 0;
    const std::size_t field = static_cast<std::size_t>(place.heading) + labelCount;
    return static_cast<std::int32_t>(FieldColumn(line, field));
  }

  /// Whether the fields of the finding's row, or of a line of its group's head, begin at the line.
  bool HoldsFields(const MessagePlace& place, std::int32_t line) const {
    if (line == 0 || place.group == 0) return false;
    const Group& group = table_.At(place.group);
    if (place.row != 0) return table_.RowLine(place.group, place.row) == line;
    return line == group.headingLine || line == group.unitLine || line == group.typeLine;
  }

 private:
  /// The last group that begins at the line or before it.
  int GroupOfLine(std::int32_t line) const {
    int low = 0;
    int high = table_.GroupCount();
    while (low < high) {
      const int middle = (low + high + 1) / 2;
      if (table_.At(middle).line <= line) {
        low = middle;
      } else {
        high = middle - 1;
      }
    }
    return low;
  }

  /// The row of a group that begins at the line; 0 when none does.
  std::int32_t RowOfLine(int group, std::int32_t line) const {
    std::int32_t low = 1;
    std::int32_t high = table_.At(group).rowCount;
    while (low < high) {
      const std::int32_t middle = low + (high - low) / 2;
      if (table_.RowLine(group, middle) < line) {
        low = middle + 1;
      } else {
        high = middle;
      }
    }
    return high > 0 && table_.RowLine(group, low) == line ? low : 0;
  }

  const CheckedFile& file_;
  const GroupTable& table_;
};

/// The lines of a file that are asked for, as they stand in it: the checks may have rewritten them.
std::vector<LineRecord> KeepLines(const FileText& text, std::vector<std::int32_t> numbers,
                                  TextStore& texts) {
  std::sort(numbers.begin(), numbers.end());
  numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
  std::vector<LineRecord> records;
  records.reserve(numbers.size());
  OriginalLines lines(text);
  for (const std::int32_t number : numbers) {
    const std::string_view line = lines.Line(number);
    const bool isCut = line.size() > MostLineBytes;
    records.push_back({number, isCut, texts.Keep(ToUtf8(line.substr(0, MostLineBytes)))});
  }
  return records;
}

/// Fills in the record of a file that was read.
class FileRecorder {
 public:
  FileRecorder(const FileResult& result, FileRecord& record) : result_(result), record_(record) {}

  void Record() {
    record_.reason = ToUtf8(result_.failure);
    RecordFile();
    // Last: what fails on the way leaves a file that is not complete.
    record_.isComplete = result_.failure.empty();
  }

 private:
  void RecordFile() {
    const FileIntake& intake = result_.intake;
    if (intake.wasRead) {
      record_.wasRead = true;
      record_.size = intake.text.Bytes().size();
      record_.sha256 = Sha256(intake.text.Bytes());
    }
    if (!intake.version) return;
    record_.format = intake.version->format;
    record_.dictionary = ToUtf8(intake.schemaPath);
    const bool isOwnDictionary = intake.schemaPath.empty() && record_.format == AgsFormat::Ags3;
    record_.edition = isOwnDictionary ? Ags3Edition : EditionOfSchema(intake.schemaPath);
    if (result_.checked != nullptr) {
      record_.statedVersion = ToUtf8(Trim(result_.checked->versionText));
      record_.groups = RecordGroups(result_.checked->table);
      record_.associatedFiles = NamedFiles(result_.checked->table);
    }
    for (const std::string& section : result_.log.Sections())
      record_.sections.push_back(ToUtf8(Trim(section)));
    RecordFindings();
  }

  void RecordFindings() {
    const std::size_t count = result_.log.ClosedCount();
    record_.findings.reserve(count);
    std::vector<std::int32_t> lines;
    for (std::size_t index = 0; index < count; ++index) {
      const Finding finding = result_.log.ClosedFinding(index);
      record_.counts.Add(finding.severity);
      record_.findings.push_back(RecordOf(finding));
      if (finding.line > 0 && finding.line <= result_.intake.text.LineCount())
        lines.push_back(finding.line);
    }
    record_.lines = KeepLines(result_.intake.text, std::move(lines), record_.texts);
    FindColumns();
  }

  FindingRecord RecordOf(const Finding& finding) {
    FindingRecord record;
    record.definition = finding.definition;
    record.text = record_.texts.Keep(ToUtf8(finding.text));
    record.line = finding.line;
    record.section = finding.section;
    record.severity = finding.severity;
    if (result_.checked == nullptr) return record;
    const PlaceFinder finder(*result_.checked);
    const MessagePlace place = finder.Complete(finding.place, finding.line);
    record.group = place.group;
    record.isUnderHeadings = finder.HoldsFields(place, finding.line);
    const bool isInTable =
        place.group != 0 && place.heading <= result_.checked->table.At(place.group).HeadingCount();
    record.heading = isInTable ? place.heading : 0;
    if (place.row != 0) {
      record.key =
          record_.texts.Keep(ToUtf8(result_.checked->table.KeyText(place.group, place.row)));
    }
    return record;
  }

  /// Once the lines are there.
  void FindColumns() {
    if (result_.checked == nullptr) return;
    const PlaceFinder finder(*result_.checked);
    for (std::size_t index = 0; index < record_.findings.size(); ++index) {
      FindingRecord& record = record_.findings[index];
      const LineRecord* line = record.heading == 0 ? nullptr : record_.FindLine(record.line);
      if (line == nullptr) continue;
      const MessagePlace raised = result_.log.ClosedFinding(index).place;
      record.column = finder.Column(finder.Complete(raised, record.line), record.line, line->text);
    }
  }

  const FileResult& result_;
  FileRecord& record_;
};

}  // namespace

void FindingsCollector::BeginRun(const CheckSettings& settings) {
  report_ = FindingsReport();
  report_.programVersion = ProgramVersion;
  report_.start = environment_.Now();
  report_.settings = settings;
}

void FindingsCollector::BeginFile(std::string_view path) {
  FileRecord& file = report_.files.emplace_back();
  file.path = ToUtf8(path);
  file.diskPath = path;
}

void FindingsCollector::TakeFile(const FileResult& result) {
  FileRecorder(result, report_.files.back()).Record();
}

void FindingsCollector::RefuseFile(std::string_view reason) {
  report_.files.back().reason = ToUtf8(reason);
}

CheckStatus FindingsCollector::EndRun(CheckStatus status, RunLog& log) {
  report_.status = status;
  if (closing_ != nullptr) closing_->Close(report_, log);
  return report_.status;
}

}  // namespace quorvane
