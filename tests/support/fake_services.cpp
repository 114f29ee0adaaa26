#include "support/fake_services.h"

#include <filesystem>
#include <stdexcept>

#include "text/text.h"

namespace quorvane::test {
namespace {

/// The entry of a path. Where "\" parts folders "/" does so too, as it does in the tests' paths.
template <typename Map>
typename Map::const_iterator Find(const Map& map, const std::string& path) {
  const auto found = map.find(path);
  if (found != map.end() || std::filesystem::path::preferred_separator == '/') return found;
  return map.find(ReplaceAll(path, "\\", "/"));
}

/// The path with "/" between folders and at its end.
std::string AsFolder(const std::string& path) {
  std::string folder =
      std::filesystem::path::preferred_separator == '/' ? path : ReplaceAll(path, "\\", "/");
  if (!folder.ends_with('/')) folder += '/';
  return folder;
}

bool HoldsFiles(const std::map<std::string, std::string>& files, const std::string& folder) {
  const auto next = files.lower_bound(folder);
  return next != files.end() && next->first.starts_with(folder);
}

/// Adds the part of a path that stands directly in a folder, unless it is none or there already.
void AddEntry(std::map<std::string, FolderEntry>& entries, const std::string& folder,
              const std::string& path, FolderEntry entry) {
  if (!path.starts_with(folder) || path.size() == folder.size()) return;
  const std::size_t end = path.find('/', folder.size());
  entry.name = path.substr(folder.size(), end - folder.size());
  if (end != std::string::npos) entry = {entry.name, true, false};
  entries.emplace(entry.name, entry);
}

}  // namespace

FileFacts MemoryDisk::Examine(const std::string& path) {
  FileFacts facts;
  if (const auto found = Find(obstacles, path); found != obstacles.end()) {
    facts.exists = true;
    facts.obstacle = found->second;
    return facts;
  }
  const auto found = Find(files, path);
  if (found == files.end()) {
    facts.isFolder =
        folders.contains(path) || folderLinks.contains(path) || HoldsFiles(files, AsFolder(path));
    facts.exists = facts.isFolder;
    if (facts.isFolder) facts.obstacle = FileFailure{21, "Is a directory"};
    return facts;
  }
  facts.exists = true;
  const auto stated = Find(statedSizes, path);
  facts.size = stated != statedSizes.end() ? stated->second : found->second.size();
  return facts;
}

Disk::Reading MemoryDisk::Read(const std::string& path) {
  if (throwsWhenRead == path) throw std::runtime_error("the disk is on fire");
  Reading reading;
  if (const auto found = Find(readFailures, path); found != readFailures.end()) {
    reading.failure = found->second;
  } else if (const auto file = Find(files, path); file != files.end()) {
    reading.content = ByteBuffer(file->second);
  } else {
    reading.failure = FileFailure{2, "No such file or directory"};
  }
  return reading;
}

Disk::Listing MemoryDisk::List(const std::string& folder) {
  Listing listing;
  if (const auto found = Find(listFailures, folder); found != listFailures.end()) {
    listing.failure = found->second;
    return listing;
  }
  const std::string prefix = AsFolder(folder);
  std::map<std::string, FolderEntry> entries;
  for (const auto& [path, content] : files)
    AddEntry(entries, prefix, path, {});
  for (const std::string& path : folders)
    AddEntry(entries, prefix, path, {{}, true, false});
  for (const std::string& path : folderLinks)
    AddEntry(entries, prefix, path, {{}, true, true});
  // No caller may rely upon an order.
  for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry)
    listing.entries.push_back(entry->second);
  return listing;
}

std::optional<FileFailure> MemoryDisk::Write(const std::string& path, std::string_view text,
                                             std::string_view ending) {
  if (const auto found = Find(writeFailures, path); found != writeFailures.end()) {
    return found->second;
  }
  files[path] = std::string(text) + std::string(ending);
  return std::nullopt;
}

std::string InProgramFolder(const std::string& name) {
  return "/program" +
         std::string(1, static_cast<char>(std::filesystem::path::preferred_separator)) + name;
}

void RecordingMessages::ShowBox(std::string_view title, std::string_view text, BoxKind) {
  boxes.push_back(std::string(title) + ": " + std::string(text));
}

void RecordingWindow::BeginFile(std::string_view path, int number, int count) {
  events.push_back("file " + std::string(path) + " " + std::to_string(number) + " of " +
                   std::to_string(count));
}

std::string RecordingParentChoice::ShowDialog(const ParentLists& lists) {
  Question question{lists.file,
                    lists.group,
                    lists.label,
                    {},
                    lists.ShowsSecondList(),
                    ParentGroup(lists, Preselection(lists))};
  for (std::size_t list = 0; list < lists.lists.size(); ++list) {
    for (std::size_t entry = 0; entry < lists.lists[list].Count(); ++entry) {
      question.lists[list].push_back(lists.lists[list].At(entry).group);
    }
  }
  questions.push_back(std::move(question));
  if (throwsForGroup == lists.group) throw std::runtime_error("the user pulled the plug");
  const auto answer = answers.find(lists.group);
  return answer != answers.end() ? answer->second : unattended_.ShowDialog(lists);
}

}  // namespace quorvane::test
