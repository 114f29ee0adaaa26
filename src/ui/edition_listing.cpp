#include "ui/edition_listing.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "run/check_file.h"
#include "run/check_run.h"
#include "run/data_file.h"
#include "run/edition_count.h"
#include "run/version_detection.h"
#include "text/comma_list.h"
#include "text/text.h"
#include "ui/console.h"
#include "ui/progress_line.h"

namespace quorvane {
namespace {

class EditionListing {
 public:
  EditionListing(Disk& disk, const Environment& environment)
      : disk_(disk), dictionaries_(disk, environment.ProgramFolder()) {}

  /// Lists a file; Clean, or HasErrors when it could not be looked at. Throws DictionaryError.
  CheckStatus List(const std::string& path) {
    const DataFile file = ReadDataFile(disk_, path);
    if (!file.refusal.empty()) return Refuse(path, file.refusal);
    const std::optional<DetectedVersion> version = DetectVersion(file.text);
    if (!version) return Refuse(path, NotAnAgsFile);
    const std::string listed = version->format == AgsFormat::Ags4
                                   ? EditionTable(file.text, dictionaries_)
                                   : "  AGS 3: editions do not apply" + std::string(LineBreak);
    output_.Write(path + std::string(LineBreak) + listed);
    return CheckStatus::Clean;
  }

  /// Brings the list to its end; whether all of it was written.
  bool Finish() { return !output_.IsLost(messages_); }

  UserMessages& Messages() { return messages_; }

 private:
  CheckStatus Refuse(const std::string& path, std::string_view reason) {
    messages_.Note(path + ": " + std::string(reason));
    return CheckStatus::HasErrors;
  }

  Disk& disk_;
  DictionaryStore dictionaries_;
  StandardOutput output_;
  ProgressLine progress_;
  ConsoleMessages messages_{output_, progress_};
};

}  // namespace

int ListEditionsOnConsole(Disk& disk, const Environment& environment, const std::string& files) {
  EditionListing listing(disk, environment);
  const std::string paths = NormaliseFileList(files);
  CheckStatus status = CheckStatus::Clean;
  if (paths.empty()) {
    listing.Messages().ShowBox("Check Files", "Supply files to check", BoxKind::Information);
    status = CheckStatus::NotDone;
  }
  try {
    for (const std::string_view path : SplitLines(paths))
      status = std::max(status, listing.List(std::string(path)));
  } catch (const DictionaryError& failure) {
    listing.Messages().ShowBox("AGS Dictionary Load", failure.what(), BoxKind::Critical);
    status = CheckStatus::NotDone;
  }
  if (!listing.Finish()) status = CheckStatus::NotDone;
  return static_cast<int>(status);
}

}  // namespace quorvane
