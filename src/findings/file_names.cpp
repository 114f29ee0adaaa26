#include "findings/file_names.h"

#include <algorithm>
#include <unordered_map>

#include "text/text.h"

namespace quorvane {
namespace {

/// The length of the common folder of all paths, its "/" included.
std::size_t CommonFolderLength(const std::vector<std::string>& paths) {
  if (paths.empty()) return 0;
  std::string_view common = paths.front();
  for (const std::string_view path : paths) {
    const auto end = std::mismatch(common.begin(), common.end(), path.begin(), path.end()).first;
    common = common.substr(0, static_cast<std::size_t>(end - common.begin()));
  }
  return common.rfind('/') + 1;
}

/// Counts texts; the first of each has the count 1.
class TextCounter {
 public:
  std::size_t Add(std::string_view text) { return ++counts_[text]; }
  std::size_t CountOf(std::string_view text) const { return counts_.at(text); }

 private:
  std::unordered_map<std::string_view, std::size_t> counts_;
};

}  // namespace

std::string_view LastPart(std::string_view path) {
  return path.substr(path.find_last_of("\\/") + 1);
}

std::vector<std::string> FileNames(const std::vector<std::string_view>& givenPaths) {
  std::vector<std::string> paths;
  paths.reserve(givenPaths.size());
  for (const std::string_view path : givenPaths)
    paths.push_back(ReplaceAll(path, "\\", "/"));

  const std::size_t folderLength = CommonFolderLength(paths);
  TextCounter lastParts;
  for (const std::string_view path : paths)
    lastParts.Add(LastPart(path));

  std::vector<std::string> names;
  names.reserve(paths.size());
  TextCounter wholePaths;
  for (const std::string_view path : paths) {
    const std::string_view lastPart = LastPart(path);
    std::string& name =
        names.emplace_back(lastParts.CountOf(lastPart) == 1 ? lastPart : path.substr(folderLength));
    const std::size_t count = wholePaths.Add(path);
    if (count > 1) name.append(" (").append(std::to_string(count)).append(")");
  }
  return names;
}

}  // namespace quorvane
