#include "run/check_run.h"

#include <algorithm>
#include <vector>

#include "dictionary/dictionary_store.h"
#include "report/routine_guard.h"
#include "run/findings_receiver.h"
#include "text/comma_list.h"
#include "text/text.h"

namespace quorvane {
namespace {

/// Nothing may pass the outermost guard.
class NoException {};

}  // namespace

std::string NormaliseFileList(std::string_view files) {
  std::vector<std::string_view> paths;
  for (const std::string_view line : SplitLines(files)) {
    if (const std::string_view path = Trim(line); !path.empty()) paths.push_back(path);
  }
  return Join(paths, LineBreak);
}

const std::string& CheckRun::LogText() const {
  static const std::string noText;
  return log_ ? log_->FullText() : noText;
}

CheckStatus CheckRun::ExecuteChecking() {
  CheckSettings settings = services_.window.Settings();
  settings.filesToCheck = NormaliseFileList(settings.filesToCheck);
  services_.window.SetFilesToCheck(settings.filesToCheck);
  if (settings.filesToCheck.empty()) {
    services_.messages.ShowBox("Check Files", "Supply files to check", BoxKind::Information);
    return CheckStatus::NotDone;
  }
  if (!settings.listings.Any()) {
    services_.messages.ShowBox("Check Files", "Select one or more message listings",
                               BoxKind::Information);
    services_.window.FocusFirstListing();
    return CheckStatus::NotDone;
  }

  log_ = std::make_unique<RunLog>(services_.progressBox);
  CheckStatus status = CheckStatus::HasErrors;
  GuardRoutine<NoException>(services_.messages, "ExecuteChecking",
                            [&] { status = CheckFiles(settings); });
  services_.window.EndChecking();
  WriteClosingLines();
  services_.window.EndRun();
  return status;
}

CheckStatus CheckRun::CheckFiles(const CheckSettings& settings) {
  services_.window.BeginRun();
  services_.progressBox.Clear();
  services_.progressBox.ProcessPendingMessages();
  const std::vector<std::string_view> paths = Split(settings.filesToCheck, LineBreak);
  WriteRunHeader(settings, paths.size());
  if (services_.findings != nullptr) services_.findings->BeginRun(settings);
  const CheckStatus status = CheckEach(paths);
  return services_.findings == nullptr ? status : services_.findings->EndRun(status, *log_);
}

CheckStatus CheckRun::CheckEach(std::span<const std::string_view> paths) {
  DictionaryStore dictionaries(services_.disk, services_.environment.ProgramFolder());
  CheckStatus status = CheckStatus::Clean;
  std::size_t index = 0;
  try {
    for (; index < paths.size(); ++index) {
      const FileToCheck file{std::string(paths[index]), static_cast<int>(index + 1),
                             static_cast<int>(paths.size())};
      services_.window.BeginFile(file.path, file.number, file.count);
      if (services_.findings != nullptr) services_.findings->BeginFile(file.path);
      status = std::max(status, CheckAGSFile(services_, dictionaries, *log_, statistics_, file));
    }
  } catch (const DictionaryError& failure) {
    // Without its dictionary a file cannot be checked, and neither can those behind it.
    services_.messages.ShowBox("AGS Dictionary Load", failure.what(), BoxKind::Critical);
    status = CheckStatus::NotDone;
    RefuseRest(paths.subspan(index), failure.what());
  }
  return status;
}

/// The first of the files has begun.
void CheckRun::RefuseRest(std::span<const std::string_view> paths, std::string_view reason) {
  if (services_.findings == nullptr) return;
  services_.findings->RefuseFile(reason);
  for (const std::string_view path : paths.subspan(1)) {
    services_.findings->BeginFile(path);
    services_.findings->RefuseFile(reason);
  }
}

void CheckRun::WriteRunHeader(const CheckSettings& settings, std::size_t fileCount) {
  const Environment& environment = services_.environment;
  log_->AppendProgress(TitleLine(environment) + std::string(LineBreak));
  log_->AppendProgress(environment.FormatDateTime(environment.Now()) + " (" +
                       std::to_string(fileCount) + " files)");
  log_->AppendProgress("ERROR = Broke a specified AGS rule.");
  log_->AppendProgress("WARNING = Condition that could compromise data quality.");
  if (settings.suppressFyi) return;
  log_->AppendProgress("FYI = For Your Information only.");
  log_->AppendProgress(
      "      Unnecessary or redundant data or missing, non-critical, descriptive data.");
}

void CheckRun::WriteClosingLines() {
  // For whoever looks at the box only: they are no part of the log.
  if (log_->HasOverflowed()) {
    services_.progressBox.Insert("Full messaging log could not fit in the display.\r\n");
  }
  services_.progressBox.Insert(
      "Click on the [View Report] button to save the entire messaging log and view and/or print "
      "it.");
}

}  // namespace quorvane
