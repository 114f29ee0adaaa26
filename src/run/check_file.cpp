#include "run/check_file.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "dictionary/custom_groups.h"
#include "report/message_log.h"
#include "report/routine_guard.h"
#include "rules/abbreviations.h"
#include "rules/contaminant_codes.h"
#include "rules/dict_group.h"
#include "rules/file_sets.h"
#include "rules/keys.h"
#include "rules/names.h"
#include "rules/required_content.h"
#include "rules/types.h"
#include "rules/units.h"
#include "run/findings_receiver.h"
#include "run/row_order.h"
#include "run/structure_rules.h"
#include "text/text.h"

namespace quorvane {
namespace {

const std::string ClosingLine = std::string(39, '*') + "\r\n";

/// The files to which a step of the sequence applies.
enum class AppliesTo { All, Ags3, Ags4 };

/// A step of the sequence, with the name under which its failure is shown.
struct CheckStep {
  std::string_view routine;
  AppliesTo appliesTo;
  void (*run)(CheckedFile&);
};

/// The checks that need no more than the dictionary of the file's version.
constexpr std::array ChecksBeforeCustomGroups{
    CheckStep{"CheckRequiredGroups", AppliesTo::All, CheckRequiredGroups},
};

/// The checks up to the file's version line, in their order.
constexpr std::array ChecksBeforeVersion{
    CheckStep{"CheckLowHighAscii", AppliesTo::Ags3,
              [](CheckedFile& file) { CheckLowHighAscii(file.text, file.log); }},
    CheckStep{"CheckLineLengths", AppliesTo::Ags3,
              [](CheckedFile& file) { CheckLineLengths(file.text, file.log); }},
    CheckStep{"CheckAGSFile", AppliesTo::All, ParseStructure},
    CheckStep{"CheckFieldOrder", AppliesTo::All, CheckFieldOrder},
    CheckStep{"CheckProjGroup", AppliesTo::All, CheckProjGroup},
    CheckStep{"CheckRequiredFields", AppliesTo::All, CheckRequiredFields},
    CheckStep{"CheckTranGroup", AppliesTo::Ags4, CheckTranGroup},
};

/// The checks behind it.
constexpr std::array ChecksAfterVersion{
    CheckStep{"CheckParentKeys", AppliesTo::All, CheckParentKeys},
    CheckStep{"CheckDuplicateKeys", AppliesTo::All, CheckDuplicateKeys},
    CheckStep{"CheckDictGroup", AppliesTo::All, CheckDictGroup},
    CheckStep{"CheckAbbrGroup", AppliesTo::All, CheckAbbrGroup},
    CheckStep{"CheckFileSets", AppliesTo::All, CheckFileSets},
    CheckStep{"CheckUnitGroup", AppliesTo::All, CheckUnitGroup},
    CheckStep{"CheckContaminantCodes", AppliesTo::Ags3, CheckContaminantCodes},
    CheckStep{"CheckTypeGroup", AppliesTo::All, CheckTypeGroup},
};

bool Applies(const CheckStep& step, const CheckedFile& file) {
  return step.appliesTo == AppliesTo::All || (step.appliesTo == AppliesTo::Ags4) == file.IsAgs4();
}

class FileCheck {
 public:
  FileCheck(const Services& services, DictionaryStore& dictionaries, RunLog& runLog,
            StatisticsState& statistics, const FileToCheck& file)
      : services_(services),
        dictionaries_(dictionaries),
        runLog_(runLog),
        statistics_(statistics),
        file_(file),
        settings_(services.window.Settings()),
        log_(runLog, settings_.suppressFyi) {}

  CheckStatus Run() {
    Guard("CheckFileFailedFnB",
          [this] { CheckFileFailedFnB(services_, dictionaries_, runLog_, log_, file_, intake_); });
    if (intake_.version) PrepareFile();
    if (!intake_.hasFailed) RunChecks(*checked_);
    if (!intake_.hasFailed || log_.ClosedCount() > 0) {
      log_.WriteSummary();
      log_.ListFileMessages(settings_.listings);
    }
    if (checked_) WriteDifferences(*checked_);
    if (intake_.hasFailed) {
      runLog_.AppendProgress("Could not continue with further checking.");
      Note(intake_.reason);
    }
    runLog_.AppendProgress(ClosingLine);
    if (settings_.showStatistics && checked_) WriteStatistics(*checked_);
    HandOver();
    return Status();
  }

 private:
  template <typename Routine>
  void Guard(std::string_view name, Routine&& routine) {
    if (GuardRoutine<DictionaryError>(services_.messages, name, routine)) return;
    hasFailedRoutine_ = true;
  }

  template <std::size_t Count>
  void RunSteps(const std::array<CheckStep, Count>& steps, CheckedFile& file) {
    for (const CheckStep& step : steps) {
      if (Applies(step, file)) Guard(step.routine, [&] { step.run(file); });
    }
  }

  /// A file that cannot be checked further keeps its dictionary and an empty group table.
  void PrepareFile() {
    const DetectedVersion& version = *intake_.version;
    const DictionaryChoice& choice = intake_.dictionary;
    checked_.emplace(intake_.text, version.format, dictionaries_.Get(choice), log_);
    checked_->versionText = checked_->IsAgs4() ? "4" : "3";
    checked_->isDictionaryNamed = !Trim(choice.customSchema).empty();
  }

  void RunChecks(CheckedFile& file) {
    RunSteps(ChecksBeforeCustomGroups, file);
    Guard("BuildCustomGroupProps", [&] {
      BuildCustomGroupProps({file.text, file.format, file_.path, file.dictionary,
                             file.addedHeadings, file.log, services_.parentChoice});
    });
    RunSteps(ChecksBeforeVersion, file);
    if (file.delimiter.empty()) file.delimiter = "|";
    if (file.concatenator.empty()) file.concatenator = "+";
    runLog_.AppendProgress("File AGS Version: " + file.versionText + std::string(LineBreak));
    NoteEdition(file);
    RunSteps(ChecksAfterVersion, file);
  }

  void WriteStatistics(const CheckedFile& file) {
    Guard("WriteDataStatistics", [&] {
      WriteDataStatistics(runLog_, file.table, file.dictionary, file.format, statistics_);
    });
  }

  /// Whoever reads an unattended run's output should know against which edition an AGS 4 file was
  /// checked where the file names another one or its own was to be found out.
  void NoteEdition(const CheckedFile& file) const {
    const std::string_view edition = EditionOfSchema(intake_.schemaPath);
    if (!file.IsAgs4() || edition.empty()) return;
    if (settings_.edition == StatedEdition && !file.isDictionaryNamed) {
      NoteStatedEdition(edition);
    } else {
      NoteOtherEdition(edition, Trim(file.versionText));
    }
  }

  void NoteStatedEdition(std::string_view edition) const {
    const std::string against = "the file was checked against the schema of edition ";
    if (intake_.dictionary.edition != nullptr) {
      Note(against + std::string(edition) + ", as TRAN_AGS says");
    } else {
      Note("TRAN_AGS names no edition that comes with the program, " + against +
           std::string(edition));
    }
  }

  void NoteOtherEdition(std::string_view edition, std::string_view stated) const {
    if (stated == "4" || stated == edition) return;
    Note("TRAN_AGS is \"" + std::string(stated) +
         "\", the file was checked against the schema of edition " + std::string(edition));
  }

  void Note(const std::string& remark) const {
    services_.messages.Note(file_.path + ": " + remark);
  }

  void WriteDifferences(const CheckedFile& file) {
    WriteDifferences("Data types in custom dictionary that did not match types in file:",
                     file.TypeDifferences);
    WriteDifferences("Units in custom dictionary that did not match units in file:",
                     file.UnitDifferences);
  }

  void WriteDifferences(std::string_view title, const std::string& differences) {
    if (!differences.empty()) runLog_.AppendProgress(std::string(title) + differences);
  }

  void HandOver() {
    if (services_.findings == nullptr) return;
    const std::string_view failure = intake_.hasFailed   ? std::string_view(intake_.reason)
                                     : hasFailedRoutine_ ? "unexpected failure"
                                                         : "";
    services_.findings->TakeFile({intake_, checked_ ? &*checked_ : nullptr, log_, failure});
  }

  CheckStatus Status() const {
    if (intake_.hasFailed || hasFailedRoutine_) return CheckStatus::HasErrors;
    for (std::size_t index = 0; index < log_.ClosedCount(); ++index) {
      if (log_.ClosedFinding(index).severity == Severity::Error) return CheckStatus::HasErrors;
    }
    return CheckStatus::Clean;
  }

  const Services& services_;
  DictionaryStore& dictionaries_;
  RunLog& runLog_;
  StatisticsState& statistics_;
  const FileToCheck& file_;
  CheckSettings settings_;
  MessageLog log_;
  FileIntake intake_;
  std::optional<CheckedFile> checked_;  // when the version was decided
  bool hasFailedRoutine_ = false;
};

}  // namespace

CheckStatus CheckAGSFile(const Services& services, DictionaryStore& dictionaries, RunLog& runLog,
                         StatisticsState& statistics, const FileToCheck& file) {
  CheckStatus status = CheckStatus::HasErrors;
  const bool isDone = GuardRoutine<DictionaryError>(services.messages, "CheckAGSFile", [&] {
    status = FileCheck(services, dictionaries, runLog, statistics, file).Run();
  });
  if (!isDone && services.findings != nullptr) services.findings->RefuseFile("unexpected failure");
  return status;
}

}  // namespace quorvane
