#pragma once

#include <string>
#include <string_view>

#include "report/message_log.h"

namespace quorvane {

/// The wish that an AGS 4 file is checked against the edition that it states under TRAN_AGS.
inline constexpr std::string_view StatedEdition = "auto";

/// What the controls of the main window, or the options of the console program, say.
struct CheckSettings {
  std::string filesToCheck;  // one path per line
  ListingChoice listings;
  bool suppressFyi = false;
  bool showStatistics = false;
  bool useCustomDictionary = false;
  std::string customDictionary;  // path of a schema file
  /// The number of one of SchemaEditions, or StatedEdition: what AGS 4 files are checked against
  /// when no custom dictionary is used. Empty for the usual edition.
  std::string edition;
};

/// The main window as a check run sees it; the console program has one without a screen.
class CheckWindow {
 public:
  virtual ~CheckWindow() = default;

  virtual CheckSettings Settings() const = 0;

  /// Writes the list of files back in its normal form.
  virtual void SetFilesToCheck(const std::string& files) = 0;

  virtual void FocusFirstListing() = 0;

  /// A run begins: shows the wait pointer, disables the buttons, repaints.
  virtual void BeginRun() = 0;

  /// A file's check begins; number and count from 1.
  virtual void BeginFile(std::string_view path, int number, int count) = 0;

  /// All files are checked: enables the buttons, repaints.
  virtual void EndChecking() = 0;

  /// The run's last text is written: shows the normal pointer and the top of the progress box.
  virtual void EndRun() = 0;
};

}  // namespace quorvane
