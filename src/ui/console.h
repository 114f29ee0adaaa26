#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "report/user_interface.h"
#include "run/check_window.h"
#include "run/standard_streams.h"
#include "ui/progress_line.h"

namespace quorvane {

/// The error stream in the place of message boxes.
class ConsoleMessages : public UserMessages {
 public:
  /// For programs that write nothing to standard output before the message.
  ConsoleMessages() = default;
  /// What has been written to the output comes before each message, which takes the place of a
  /// progress line. Both must outlive the object.
  ConsoleMessages(StandardOutput& output, ProgressLine& progress)
      : output_(&output), progress_(&progress) {}

  void ShowBox(std::string_view title, std::string_view text, BoxKind kind) override;
  void Note(std::string_view text) override;

 private:
  StandardOutput* output_ = nullptr;
  ProgressLine* progress_ = nullptr;
};

/// The console in the place of the main window: settings are its controls, standard output is its
/// progress box.
class Console : public CheckWindow, public ProgressBox {
 public:
  /// The output and the progress line must outlive the object.
  Console(CheckSettings settings, bool printsLog, StandardOutput& output, ProgressLine& progress)
      : settings_(std::move(settings)),
        isPrinting_(printsLog),
        output_(output),
        progress_(progress) {}

  CheckSettings Settings() const override { return settings_; }
  void SetFilesToCheck(const std::string& files) override { settings_.filesToCheck = files; }
  void FocusFirstListing() override {}
  void BeginRun() override {}
  void BeginFile(std::string_view path, int number, int count) override {
    progress_.Show(path, number, count);
  }
  /// The log is written: what is still said to the progress box is about the window's buttons.
  void EndChecking() override {
    isPrinting_ = false;
    progress_.Wipe();
  }
  void EndRun() override {}

  void Insert(std::string_view text) override;
  void Clear() override {}
  void ProcessPendingMessages() override {}

 private:
  CheckSettings settings_;
  bool isPrinting_;
  StandardOutput& output_;
  ProgressLine& progress_;
};

/// Writes a text to standard output with the platform's line ends.
void Print(std::string_view text);

}  // namespace quorvane
