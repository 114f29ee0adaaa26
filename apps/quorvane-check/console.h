#pragma once

#include <string>
#include <string_view>

#include "run/check_window.h"

namespace quorvane {

/// The console in the place of the main window: the options are its controls, standard output its
/// progress box, the error stream its message boxes.
class Console : public CheckWindow, public ProgressBox, public UserMessages {
 public:
  explicit Console(CheckSettings settings) : settings_(std::move(settings)) {}

  CheckSettings Settings() const override { return settings_; }
  void SetFilesToCheck(const std::string& files) override { settings_.filesToCheck = files; }
  void FocusFirstListing() override {}
  void BeginRun() override { isLogComplete_ = false; }
  void BeginFile(std::string_view, int, int) override {}
  /// The log is written: what is still said to the progress box is about the window's buttons.
  void EndChecking() override { isLogComplete_ = true; }
  void EndRun() override {}

  void Insert(std::string_view text) override;
  void Clear() override {}
  void ProcessPendingMessages() override {}

  void ShowBox(std::string_view title, std::string_view text, BoxKind kind) override;
  void Note(std::string_view text) override;

 private:
  CheckSettings settings_;
  bool isLogComplete_ = false;
};

}  // namespace quorvane
