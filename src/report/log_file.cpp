#include "report/log_file.h"

#include "text/text.h"

namespace quorvane {

bool SaveLogFile(Disk& disk, UserMessages& messages, const std::string& path,
                 std::string_view fullLogText) {
  const std::optional<FileFailure> failure = disk.Write(path, fullLogText, LineBreak);
  if (!failure) return false;
  std::string text = "Could not save to file " + path;
  text.append(LineBreak).append("Error:  ").append(std::to_string(failure->number));
  text.append(LineBreak).append(failure->description);
  messages.ShowBox("Quorvane", text, BoxKind::Critical);
  return true;
}

void ViewReport(Disk& disk, UserMessages& messages, SaveDialog& dialog, TextEditor& editor,
                std::string_view fullLogText) {
  const std::optional<std::string> chosen =
      dialog.ChooseFile("AGS Checking Log File", "Text File (*.txt)|*.txt");
  if (!chosen) return;
  // Only the file name changes its case: the folders above it exist under the names they have.
  const std::size_t nameStart = chosen->find_last_of("\\/") + 1;
  const std::string path = chosen->substr(0, nameStart) + LowerCase(chosen->substr(nameStart));
  if (!SaveLogFile(disk, messages, path, fullLogText)) editor.Open(path);
}

}  // namespace quorvane
