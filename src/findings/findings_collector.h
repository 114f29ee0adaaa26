#pragma once

#include <utility>

#include "findings/findings_report.h"
#include "run/environment.h"
#include "run/findings_receiver.h"

namespace quorvane {

/// Makes the report of a run from what the run hands over.
class FindingsCollector : public FindingsReceiver {
 public:
  /// The environment must outlive the collector.
  explicit FindingsCollector(const Environment& environment) : environment_(environment) {}

  /// The report of the last run; without files when there was none.
  const FindingsReport& Report() const { return report_; }

  /// Gives the report away.
  FindingsReport TakeReport() { return std::move(report_); }

  void BeginRun(const CheckSettings& settings) override;
  void BeginFile(std::string_view path) override;
  void TakeFile(const FileResult& result) override;
  void RefuseFile(std::string_view reason) override;
  void EndRun(CheckStatus status) override;

 private:
  const Environment& environment_;
  FindingsReport report_;
};

}  // namespace quorvane
