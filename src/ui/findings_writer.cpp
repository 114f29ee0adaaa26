#include "ui/findings_writer.h"

#include <algorithm>

#include "report/log_file.h"
#include "text/text.h"
#include "ui/file_pickers.h"
#include "ui/pointer_shape.h"

namespace quorvane {
namespace {

bool EndsInIgnoringCase(std::string_view path, std::string_view suffix) {
  return path.size() >= suffix.size() &&
         EqualsIgnoringCase(path.substr(path.size() - suffix.size()), suffix);
}

const FindingsWriter& WriterFor(const FileToSave& file, const FindingsWriters& writers) {
  const auto named =
      std::find_if(writers.begin(), writers.end(), [&file](const FindingsWriter& writer) {
        return EndsInIgnoringCase(file.path, writer.suffix);
      });
  return named != writers.end() ? *named : writers[file.filter];
}

}  // namespace

void SaveFindings(Disk& disk, UserMessages& messages, FilePickers& pickers,
                  const FindingsWriters& writers, const FindingsReport& report) {
  std::vector<std::string_view> filters;
  for (const FindingsWriter& writer : writers)
    filters.push_back(writer.filter);
  const std::optional<FileToSave> file = pickers.ChooseFileToSave("Save All Findings", filters);
  if (!file) return;
  std::string text;
  {
    // Not beyond the writing of the text: a box may follow.
    const PointerShape pointer(Qt::WaitCursor);
    text = WriterFor(*file, writers).write(report);
  }
  SaveFile(disk, messages, file->path, text, {});
}

}  // namespace quorvane
