#pragma once

#include <string_view>

#include "report/message_log.h"
#include "report/run_log.h"
#include "rules/checked_file.h"
#include "run/check_file.h"
#include "run/check_window.h"
#include "run/file_intake.h"

namespace quorvane {

/// What the check of one file leaves, while the file is still in memory.
struct FileResult {
  const FileIntake& intake;
  const CheckedFile* checked = nullptr;  // none when the version was not decided
  const MessageLog& log;
  std::string_view failure;  // why the file was not checked to the end; empty when it was
};

/// Takes what a run finds as data, beside the text of its log. The calls come in the order in which
/// they stand here; each file begins and is then either taken or refused.
class FindingsReceiver {
 public:
  virtual ~FindingsReceiver() = default;

  virtual void BeginRun(const CheckSettings& settings) = 0;
  virtual void BeginFile(std::string_view path) = 0;
  virtual void TakeFile(const FileResult& result) = 0;
  virtual void RefuseFile(std::string_view reason) = 0;

  /// Every file has been taken or refused. What is still to be said goes to the end of the run's
  /// log. Returns the status with which the run ends.
  virtual CheckStatus EndRun(CheckStatus status, RunLog& log) = 0;
};

}  // namespace quorvane
