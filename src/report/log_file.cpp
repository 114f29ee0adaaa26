#include "report/log_file.h"

#include "text/text.h"

namespace quorvane {

bool SaveFile(Disk& disk, UserMessages& messages, const std::string& path, std::string_view text,
              std::string_view ending) {
  const std::optional<FileFailure> failure = disk.Write(path, text, ending);
  if (!failure) return false;
  std::string words = "Could not save to file " + path;
  words.append(LineBreak).append("Error:  ").append(std::to_string(failure->number));
  words.append(LineBreak).append(failure->description);
  messages.ShowBox("Quorvane", words, BoxKind::Critical);
  return true;
}

bool SaveLogFile(Disk& disk, UserMessages& messages, const std::string& path,
                 std::string_view fullLogText) {
  return SaveFile(disk, messages, path, fullLogText, LineBreak);
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
