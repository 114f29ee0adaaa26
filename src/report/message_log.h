#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "report/message.h"
#include "report/run_log.h"
#include "report/string_build.h"
#include "text/large_block.h"

namespace quorvane {

/// Which listings of a file's findings are wanted.
struct ListingChoice {
  bool scanGroupings = true;
  bool lineNumberInFile = false;
  bool severity = false;

  bool Any() const { return scanGroupings || lineNumberInFile || severity; }
};

/// One finding of a file. The text belongs to the log that holds the finding.
struct Finding {
  const MessageDefinition* definition = nullptr;
  std::int32_t line = 0;  // from 1; 0 when the finding belongs to no line
  Severity severity = Severity::Error;
  MessagePlace place;
  std::uint32_t section = 0;  // index into Sections()
  std::string_view text;
};

/// The findings of one file: takes them, drops immediate repeats and unwanted FYI messages, gathers
/// them in sections and lists them. A fresh log is made for every file.
class MessageLog {
 public:
  /// The run's log must outlive the message log.
  MessageLog(RunLog& runLog, bool suppressFyi);

  /// From here on findings are raised in the form they have for this format.
  void SetFormat(AgsFormat format) { format_ = format; }
  AgsFormat Format() const { return format_; }

  /// While muted, AddMessage discards everything.
  void SetMuted(bool muted) { muted_ = muted; }

  /// Records a finding at a line (0 for none). A finding with the line and text of the one stored
  /// just before it is dropped, and so is an FYI when FYI messages are suppressed.
  void AddMessage(std::int64_t line, const MessageDefinition& definition, MessageValues values = {},
                  MessagePlace place = {});

  /// Ends the open section; one without findings leaves no trace.
  void CloseCheckSection(std::string_view title);

  /// The number of findings in closed sections: only these are counted and listed.
  std::size_t ClosedCount() const { return closedCount_; }

  /// A finding of a closed section, counted from 0 in the order of recording. The view of its text
  /// ends with the next change of the log.
  Finding ClosedFinding(std::size_t index) const;

  const std::vector<std::string>& Sections() const { return sections_; }

  bool SuppressesFyi() const { return suppressFyi_; }

  /// Writes to the run's log: "SUMMARY:  " and the total, or that there were no problems.
  void WriteSummary();

  /// Writes the wanted listings. Below 10 findings only the grouped listing is ever written,
  /// whatever the choice says.
  void ListFileMessages(const ListingChoice& choice);

 private:
  struct Record {
    const MessageDefinition* definition;
    std::int32_t line;
    MessagePlace place;
    std::uint32_t section;
    std::uint16_t textStart;  // behind what is printed before the text
    Severity severity;
  };

  /// A finding as it is printed in its section.
  struct PrintedFinding {
    std::string text;  // indented, with its label and the line break behind it
    std::size_t textStart = 0;
    std::int32_t line = 0;

    bool RepeatsTextOf(const PrintedFinding& other) const {
      return std::string_view(text).substr(textStart) ==
             std::string_view(other.text).substr(other.textStart);
    }
  };

  /// A section as it is listed.
  struct ClosedSection {
    std::size_t firstFinding = 0;
    std::string head;
    CStringBuild findings;
  };

  std::string_view TextOf(std::size_t index) const;
  void ListSections();
  std::vector<std::uint32_t> OrderByLine() const;
  void OrderBySeverity(std::vector<std::uint32_t>& order) const;
  void PrintMessageList(std::string_view title, bool separateSeverities,
                        const std::vector<std::uint32_t>& order);

  RunLog& runLog_;
  bool suppressFyi_;
  bool muted_ = false;
  AgsFormat format_ = AgsFormat::Ags3;
  LargeVector<Record> records_;
  std::size_t closedCount_ = 0;
  // The last finding and the one being added, as they are printed; kept between calls so that a
  // finding needs no allocation.
  PrintedFinding last_;
  PrintedFinding new_;
  CStringBuild openSection_;
  std::vector<std::string> sections_;
  std::vector<ClosedSection> closedSections_;  // of the titles in sections_
};

}  // namespace quorvane
