#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "report/disk.h"
#include "report/user_interface.h"

namespace quorvane {

/// The dialog that asks where a log is to be saved. Implemented by the programs.
class SaveDialog {
 public:
  virtual ~SaveDialog() = default;

  /// Asks for a file under a title with filters written as "NAME|PATTERN"; asks before an existing
  /// file is overwritten. Nothing when the user cancels.
  virtual std::optional<std::string> ChooseFile(std::string_view title,
                                                std::string_view filter) = 0;
};

/// Opens a saved log in the text editor. Implemented by the programs.
class TextEditor {
 public:
  virtual ~TextEditor() = default;
  virtual void Open(const std::string& path) = 0;
};

/// Writes two texts, one behind the other, to a file, replacing its content. When that fails it
/// shows the box that says why and returns true.
bool SaveFile(Disk& disk, UserMessages& messages, const std::string& path, std::string_view text,
              std::string_view ending);

/// The same with the full log text and a line break.
bool SaveLogFile(Disk& disk, UserMessages& messages, const std::string& path,
                 std::string_view fullLogText);

/// Saves the log where the user wants it, under the file name's lower-case form, and opens it in
/// the text editor. Cancelling, or a log that could not be saved, ends the action.
void ViewReport(Disk& disk, UserMessages& messages, SaveDialog& dialog, TextEditor& editor,
                std::string_view fullLogText);

}  // namespace quorvane
