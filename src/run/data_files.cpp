#include "run/data_files.h"

#include <string_view>

#include "run/folder_walk.h"
#include "text/text.h"

namespace quorvane {
namespace {

bool IsDataFileName(std::string_view name) {
  constexpr std::string_view extension = ".ags";
  return name.size() >= extension.size() &&
         EqualsIgnoringCase(name.substr(name.size() - extension.size()), extension);
}

void AddFilesBelow(Disk& disk, UserMessages& messages, const std::string& folder,
                   DataFiles& files) {
  const FolderContent content = WalkFolder(disk, folder);
  const std::size_t countBefore = files.paths.size();
  for (const std::string& name : content.files) {
    if (IsDataFileName(name)) files.paths.push_back(PathBelow(folder, name));
  }
  for (const FolderContent::Gap& gap : content.gaps)
    messages.Note(gap.path + ": " + gap.failure.description);
  if (!content.gaps.empty()) {
    files.isComplete = false;
  } else if (files.paths.size() == countBefore) {
    messages.Note(folder + ": No .ags files in this folder");
  }
}

}  // namespace

DataFiles FindDataFiles(Disk& disk, UserMessages& messages, std::span<const std::string> paths) {
  DataFiles files;
  for (const std::string& path : paths) {
    if (disk.Examine(path).isFolder) {
      AddFilesBelow(disk, messages, path, files);
    } else {
      files.paths.push_back(path);
    }
  }
  return files;
}

}  // namespace quorvane
