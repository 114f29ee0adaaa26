#pragma once

#include <utility>

#include "findings/findings_report.h"
#include "run/environment.h"
#include "run/findings_receiver.h"

namespace quorvane {

/// Works on the report of a run once its last file is checked.
class RunClosing {
 public:
  virtual ~RunClosing() = default;

  /// May mark the findings, change the status and write to the end of the log.
  virtual void Close(FindingsReport& report, RunLog& log) = 0;
};

/// Makes the report of a run from what the run hands over.
class FindingsCollector : public FindingsReceiver {
 public:
  /// The environment, and a closing that is wanted, must outlive the collector.
  explicit FindingsCollector(const Environment& environment, RunClosing* closing = nullptr)
      : environment_(environment), closing_(closing) {}

  /// The report of the last run; without files when there was none.
  const FindingsReport& Report() const { return report_; }

  /// Gives the report away.
  FindingsReport TakeReport() { return std::move(report_); }

  void BeginRun(const CheckSettings& settings) override;
  void BeginFile(std::string_view path) override;
  void TakeFile(const FileResult& result) override;
  void RefuseFile(std::string_view reason) override;
  CheckStatus EndRun(CheckStatus status, RunLog& log) override;

 private:
  const Environment& environment_;
  RunClosing* closing_;
  FindingsReport report_;
};

}  // namespace quorvane
