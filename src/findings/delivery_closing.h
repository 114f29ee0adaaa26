#pragma once

#include <optional>
#include <string>
#include <vector>

#include "findings/earlier_run.h"
#include "findings/findings_collector.h"
#include "report/disk.h"
#include "report/user_interface.h"

namespace quorvane {

/// What is wanted of a run beside the text on each file.
struct DeliveryOptions {
  bool showSummary = false;
  bool lookForFiles = false;  // the associated files
  std::string baseline;       // path of an earlier run's JSON; empty for none
  std::string waivers;        // path of a list of waivers; empty for none

  bool Any() const { return showSummary || lookForFiles || !baseline.empty() || !waivers.empty(); }
};

/// Judges a whole delivery once its last file is checked, and writes the sections that are wanted
/// to the end of the log. Findings that are known or waived make no run one with errors; a missing
/// associated file does.
class DeliveryClosing : public RunClosing {
 public:
  /// The disk must outlive the object.
  DeliveryClosing(Disk& disk, DeliveryOptions options)
      : disk_(disk), options_(std::move(options)) {}

  /// Reads the files that the options name, before anything is checked. False when one of them
  /// cannot be used: a box says why, and there must be no run.
  bool Prepare(UserMessages& messages);

  void Close(FindingsReport& report, RunLog& log) override;

 private:
  bool ReadBaseline(UserMessages& messages);
  bool ReadWaiverList(UserMessages& messages);
  void MarkFindings(FindingsReport& report);

  Disk& disk_;
  DeliveryOptions options_;
  std::optional<EarlierRun> earlier_;
  std::optional<std::vector<WaiverRecord>> waivers_;
};

}  // namespace quorvane
