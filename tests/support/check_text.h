#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "findings/findings_report.h"
#include "run/check_window.h"

namespace quorvane::test {

/// What a check of one file gave.
struct CheckResult {
  std::string log;                    // the full log text
  std::vector<std::string> sections;  // section lines of the grouped listing, title only
  std::vector<std::string> findings;  // of the grouped listing, without the indent; a finding of
                                      // several lines is one text with CR LF inside
  std::vector<std::string> boxes;     // "TITLE: TEXT"
  std::vector<std::string> notes;
  int status = 0;                                // 0 clean, 1 errors, 2 not done
  std::shared_ptr<const FindingsReport> report;  // what a run handed over as data

  bool Has(std::string_view finding) const;       // exactly this finding, label and line included
  bool HasText(std::string_view part) const;      // some finding contains this text
  int Count(std::string_view part) const;         // findings that contain this text
  bool HasSection(std::string_view title) const;  // exactly this title
  std::vector<std::string> FindingsOf(std::string_view sectionTitle) const;

  std::vector<std::size_t> sectionOf;  // per finding: index into sections
};

/// Runs the whole check on one file in memory, named "test.ags" unless said otherwise. LF in the
/// text stands for CR LF. The program folder holds the schema files of the build.
CheckResult CheckText(std::string_view text, CheckSettings settings = {},
                      const std::string& path = "test.ags");

/// A file of a run, with its bytes as they are.
struct NamedFile {
  std::string name;
  std::string content;
};

/// Runs the whole check on some files in memory.
CheckResult CheckFiles(const std::vector<NamedFile>& files, CheckSettings settings = {});

/// Runs it with a schema file in memory, with its bytes as they are, as custom dictionary.
CheckResult CheckFilesAgainst(std::string_view schema, const std::vector<NamedFile>& files,
                              CheckSettings settings = {});

/// The same for a single file and with LF standing for CR LF.
CheckResult CheckTextAgainst(std::string_view schema, std::string_view text,
                             CheckSettings settings = {});

/// What a run over some files in memory, with their bytes as they are, hands over as data.
FindingsReport CollectFindings(const std::vector<NamedFile>& files, CheckSettings settings = {});

/// Joins lines with LF: CheckText(Lines({"...", "..."})).
std::string Lines(std::initializer_list<std::string_view> lines);

/// A test file built group by group, so that a test states only what it is about. Values are quoted
/// by the builder; line numbers of the result count from 1.
class Ags4File {
 public:
  /// Adds a group with a blank line before it (unless it is the first). Each row is the values
  /// behind the label, unquoted.
  Ags4File& Group(std::string_view name, const std::vector<std::string>& headings,
                  const std::vector<std::string>& units, const std::vector<std::string>& types,
                  const std::vector<std::vector<std::string>>& rows);
  /// Adds a line as it stands.
  Ags4File& Line(std::string_view line);
  /// The number of lines so far: that of the line added last.
  int LineCount() const { return lineCount_; }
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
  int lineCount_ = 0;
};

class Ags3File {
 public:
  /// Adds a group; units empty: no <UNITS> line, else one entry per heading whose first (the
  /// location key's) is replaced by "<UNITS>".
  Ags3File& Group(std::string_view name, const std::vector<std::string>& headings,
                  const std::vector<std::string>& units,
                  const std::vector<std::vector<std::string>>& rows);
  Ags3File& Line(std::string_view line);
  int LineCount() const { return lineCount_; }
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
  int lineCount_ = 0;
};

/// The groups that every file needs, each ready to be put in front of what a test is about, so that
/// a file of them alone has no finding.
Ags4File MinimalAgs4();
Ags3File MinimalAgs3();

}  // namespace quorvane::test
