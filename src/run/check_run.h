#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "report/run_log.h"
#include "run/check_file.h"
#include "run/services.h"
#include "statistics/data_statistics.h"

namespace quorvane {

/// A check over the files that the window names. The log of the last run is kept until the next
/// one begins.
class CheckRun {
 public:
  explicit CheckRun(const Services& services) : services_(services) {}

  /// Checks the files one after the other. What keeps a run from starting, or ends it early, is
  /// shown in a box; the status is then NotDone.
  CheckStatus ExecuteChecking();

  /// Whom the next runs hand over what they find; none: only the text is wanted.
  void SetFindingsReceiver(FindingsReceiver* receiver) { services_.findings = receiver; }

  /// The full text of the last run; empty when there was none.
  const std::string& LogText() const;

 private:
  CheckStatus CheckFiles(const CheckSettings& settings);
  CheckStatus CheckEach(std::span<const std::string_view> paths);
  void RefuseRest(std::span<const std::string_view> paths, std::string_view reason);
  void WriteRunHeader(const CheckSettings& settings, std::size_t fileCount);
  void WriteClosingLines();

  Services services_;
  std::unique_ptr<RunLog> log_;
  StatisticsState statistics_;  // not reset between runs
};

/// The list of files in its normal form: lines trimmed, empty ones dropped, CR LF between.
std::string NormaliseFileList(std::string_view files);

}  // namespace quorvane
