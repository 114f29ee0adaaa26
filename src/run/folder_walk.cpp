#include "run/folder_walk.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "text/text.h"

namespace quorvane {
namespace {

constexpr auto Separator = static_cast<char>(std::filesystem::path::preferred_separator);

}  // namespace

FolderContent WalkFolder(Disk& disk, const std::string& folder) {
  FolderContent content;
  std::vector<std::string> pending{""};  // folders below it, each with "/" at its end
  while (!pending.empty()) {
    const std::string prefix = std::move(pending.back());
    pending.pop_back();
    const std::string path =
        prefix.empty() ? folder
                       : PathBelow(folder, std::string_view(prefix).substr(0, prefix.size() - 1));
    const Disk::Listing listing = disk.List(path);
    if (listing.failure) content.gaps.push_back({path, *listing.failure});
    for (const FolderEntry& entry : listing.entries) {
      if (!entry.isFolder) {
        content.files.push_back(prefix + entry.name);
      } else if (!entry.isLink) {
        pending.push_back(prefix + entry.name + "/");
      }
    }
  }
  std::sort(content.files.begin(), content.files.end());
  return content;
}

std::string PathBelow(std::string_view folder, std::string_view relative) {
  std::string path(folder);
  if (!path.empty() && path.back() != '/' && path.back() != Separator) path += Separator;
  if constexpr (Separator == '/') return path.append(relative);
  return path.append(ReplaceAll(relative, "/", std::string(1, Separator)));
}

}  // namespace quorvane
