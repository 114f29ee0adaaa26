#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <QString>

#include "report/log_file.h"

namespace quorvane {

/// A file that the user wants written.
struct FileToSave {
  std::string path;
  std::size_t filter = 0;  // index of the filter that was chosen
};

/// The dialogs that ask for files. Filters are written as "NAME|PATTERN"; the folder that a dialog
/// opens in is that of the last file chosen.
class FilePickers : public SaveDialog {
 public:
  /// Asks for one or more existing files; empty when the user cancels.
  virtual std::vector<std::string> ChooseFilesToOpen(std::string_view title,
                                                     std::string_view filter) = 0;

  /// Asks for an existing file; nothing when the user cancels.
  virtual std::optional<std::string> ChooseFileToOpen(std::string_view title,
                                                      std::string_view filter) = 0;

  /// Asks for a file to write in one of several formats, each with a filter; a name without a
  /// suffix gets that of the filter. Asks before an existing file is overwritten. Nothing when the
  /// user cancels.
  virtual std::optional<FileToSave> ChooseFileToSave(
      std::string_view title, const std::vector<std::string_view>& filters) = 0;
};

/// The desktop's own dialogs, above the active window.
class DesktopFilePickers : public FilePickers {
 public:
  std::vector<std::string> ChooseFilesToOpen(std::string_view title,
                                             std::string_view filter) override;
  std::optional<std::string> ChooseFileToOpen(std::string_view title,
                                              std::string_view filter) override;
  std::optional<std::string> ChooseFile(std::string_view title, std::string_view filter) override;
  std::optional<FileToSave> ChooseFileToSave(std::string_view title,
                                             const std::vector<std::string_view>& filters) override;

 private:
  QString folder_;  // empty: the current folder
};

}  // namespace quorvane
