#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "findings/text_store.h"
#include "report/message.h"
#include "run/check_file.h"
#include "run/check_window.h"

namespace quorvane {

/// What a run found, as records: what the writers of all formats and the window's table read. It
/// stands on its own: nothing in it points into the files that were checked. All texts are UTF-8;
/// lines, columns, groups and headings count from 1 and are 0 where there is none.

/// One heading of a group.
struct HeadingRecord {
  std::string name;
  std::string unit;
  std::string type;  // AGS 4 only
};

/// One group of a file.
struct GroupRecord {
  std::string name;  // without the "?" of a non-standard group
  std::vector<HeadingRecord> headings;
};

/// What a run that is compared with an earlier one, or has waivers, knows of a finding.
enum class FindingState : std::uint8_t {
  None,   // nothing was asked
  New,    // the earlier run did not find it
  Known,  // the earlier run found it too
  Waived  // somebody has accepted it
};

/// One finding. Its texts belong to the file's record.
struct FindingRecord {
  const MessageDefinition* definition = nullptr;
  std::string_view text;
  std::string_view key;  // of the row, its values joined by commas; empty without a row
  std::int32_t line = 0;
  std::int32_t column = 0;    // of the cell's first character in the line, in characters
  std::int32_t group = 0;     // in the file's groups
  std::int32_t heading = 0;   // in the group's headings
  std::uint32_t section = 0;  // index into the file's sections
  std::int32_t waiver = 0;    // in the report's waivers, when it is waived
  Severity severity = Severity::Error;
  bool isUnderHeadings = false;  // the line's fields are those of the group's headings, in order
  FindingState state = FindingState::None;

  /// Whether it makes the run one with errors.
  bool Counts() const {
    return severity == Severity::Error &&
           (state == FindingState::None || state == FindingState::New);
  }
};

/// A file that a data file names as belonging to it.
struct AssociatedFile {
  enum class State : std::uint8_t {
    NotLookedFor,
    There,
    InOtherCase,  // its name there differs in letter case
    Missing,
    NoFileName  // what stands in the data file cannot be the name of a file or folder
  };

  std::string fileSet;
  std::string name;
  State state = State::NotLookedFor;
  std::string pathThere;  // below the folder of the data file, with "/": when in another case

  friend bool operator==(const AssociatedFile&, const AssociatedFile&) = default;
};

/// A line of a file with a finding.
struct LineRecord {
  std::int32_t line = 0;
  bool isCut = false;  // it is longer than what is kept of it
  std::string_view text;
};

/// The number of findings of each severity.
struct SeverityCounts {
  std::int64_t errors = 0;
  std::int64_t warnings = 0;
  std::int64_t fyis = 0;
  std::int64_t plain = 0;  // remarks without a label

  void Add(Severity severity);
  std::int64_t Total() const { return errors + warnings + fyis + plain; }

  friend bool operator==(const SeverityCounts&, const SeverityCounts&) = default;
};

/// One file of a run.
struct FileRecord {
  std::string path;
  std::string diskPath;     // the bytes that name it on the disk: the path as the run was given it
  bool isComplete = false;  // it was checked to the end
  std::string reason;       // why it was not

  bool wasRead = false;  // the size and the hash are known
  std::uint64_t size = 0;
  std::string sha256;  // of its bytes, in hexadecimal digits

  std::optional<AgsFormat> format;  // nothing when it was not decided
  std::string statedVersion;        // "3.1", "4.1": what the file itself says; empty when not read
  std::string dictionary;           // path of the schema; empty for the AGS 3 one of the program
  std::string edition;              // of the dictionary, when it comes with the program

  SeverityCounts counts;
  std::vector<std::string> sections;
  std::vector<GroupRecord> groups;
  std::vector<FindingRecord> findings;          // in the order of the report
  std::vector<LineRecord> lines;                // those with findings, ascending
  std::vector<AssociatedFile> associatedFiles;  // each once, in the order of the FILE group

  TextStore texts;  // of findings and lines

  /// The record of a line; nothing when it has no finding.
  const LineRecord* FindLine(std::int32_t line) const;
  /// The names of a finding's group and heading; empty where there is none.
  std::string_view GroupName(const FindingRecord& finding) const;
  std::string_view HeadingName(const FindingRecord& finding) const;
  /// The rule of the format that a finding serves; empty when none.
  std::string_view Rule(const FindingRecord& finding) const;
  const std::string& Section(const FindingRecord& finding) const;
};

/// A finding as the data of an earlier run has it.
struct EarlierFinding {
  std::string_view id;
  std::string_view group;
  std::string_view key;
  std::string_view heading;
  std::string_view text;
  std::int32_t line = 0;
  Severity severity = Severity::Error;
};

/// A file of an earlier run, or a part of its findings.
struct EarlierFile {
  std::string path;
  std::vector<EarlierFinding> findings;
};

/// What comparing a run with an earlier one gave, besides the states of its findings.
struct ComparisonRecord {
  std::string baseline;                  // path of the earlier run's data
  std::vector<EarlierFile> gone;         // files with findings that are no longer found, with these
  std::vector<EarlierFile> notCompared;  // files that this run did not check (to the end)
  TextStore texts;                       // of the findings
};

/// One accepted kind of finding: which ones, and why. A field without value means any.
struct WaiverRecord {
  std::int32_t line = 0;  // of the file with the waivers
  std::string id;
  std::optional<std::string> file;
  std::optional<std::string> group;
  std::optional<std::string> key;
  std::optional<std::string> heading;
  std::string reason;
  std::int64_t matches = 0;  // findings that it fits, those of waivers before it included
};

/// The files below a folder "FILE" that no data file beside it names.
struct UnnamedFiles {
  std::string folder;              // of the data files, with its separator; empty: the current one
  std::vector<std::string> names;  // below that folder, with "/"
  std::vector<std::string> gaps;   // folders that could not be listed, with the reason
};

/// A whole run.
struct FindingsReport {
  std::string programVersion;
  std::chrono::system_clock::time_point start;
  CheckSettings settings;
  std::vector<FileRecord> files;  // in the order of the run, those that could not be read included
  CheckStatus status = CheckStatus::NotDone;

  std::optional<ComparisonRecord> comparison;  // when there is an earlier run to compare with
  std::string waiverFile;                      // empty when there is none
  std::vector<WaiverRecord> waivers;
  std::vector<UnnamedFiles> unnamedFiles;  // when associated files were looked for

  SeverityCounts Counts() const;
  /// Why a finding was accepted; empty when it was not.
  std::string_view WaiverReason(const FindingRecord& finding) const;
};

/// The word for a state in data: "new", "known", "waived"; empty when nothing was asked.
std::string_view StateWord(FindingState state);

/// The word for a severity in data: "error", "warning", "fyi", or "remark" for one without a label.
std::string_view SeverityWord(Severity severity);

}  // namespace quorvane
