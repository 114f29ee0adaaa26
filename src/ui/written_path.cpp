#include "ui/written_path.h"

#include <filesystem>

#include "text/text.h"

namespace quorvane {

std::string PathToWrite(const std::string& writtenPath) {
  if constexpr (std::filesystem::path::preferred_separator == '\\') return writtenPath;
  return ReplaceAll(writtenPath, "\\", "/");
}

std::string PathToRead(Disk& disk, const std::string& writtenPath) {
  const std::string withSlashes = PathToWrite(writtenPath);
  const bool isOtherFile = withSlashes != writtenPath && !disk.Examine(writtenPath).exists &&
                           disk.Examine(withSlashes).exists;
  return isOtherFile ? withSlashes : writtenPath;
}

}  // namespace quorvane
