#include "findings/associated_files.h"

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "run/folder_walk.h"
#include "text/text.h"
#include "text/utf8.h"

namespace quorvane {
namespace {

constexpr std::string_view FilesFolder = "FILE";

/// Whether a text can name one file or folder, and no other place than directly in its folder.
bool IsFileName(std::string_view name) {
  const auto isUnusable = [](char letter) {
    return static_cast<unsigned char>(letter) < ' ' || letter == '/' || letter == '\\';
  };
  return !name.empty() && name != "." && name != ".." &&
         std::none_of(name.begin(), name.end(), isUnusable);
}

/// The folder of a path with the separator at its end; empty when it is the current one.
std::string FolderOf(std::string_view path) {
  return std::string(path.substr(0, path.find_last_of("\\/") + 1));
}

/// The files beside the data files of one folder and below its FILE folder, whose own name may be
/// in any letter case. Paths are relative to the folder, in UTF-8, with "/" between.
class DeliveryFolder {
 public:
  DeliveryFolder(Disk& disk, const std::string& folder) : disk_(disk), folder_(folder) {
    const std::string listed = folder.empty() ? "." : folder;
    const Disk::Listing listing = disk.List(listed);
    if (listing.failure) AddGap({listed, *listing.failure});
    for (const FolderEntry& entry : listing.entries) {
      if (!entry.isFolder) {
        AddFile(entry.name);
      } else if (EqualsIgnoringCase(entry.name, FilesFolder)) {
        AddFilesBelow(entry.name);
      }
    }
  }

  /// Looks for a file and sets its state; false when it is not there in any letter case.
  bool Find(const std::string& path, AssociatedFile& file) {
    const auto found = files_.find(LowerCase(path));
    if (found == files_.end()) return false;
    std::vector<FileThere>& alike = found->second;
    const auto same = std::find_if(alike.begin(), alike.end(),
                                   [&](const FileThere& there) { return there.path == path; });
    FileThere& there = same != alike.end() ? *same : alike.front();
    there.isNamed = true;
    file.state = AssociatedFile::State::There;
    // Where the system takes both letter cases for the same name, this is the file.
    if (same == alike.end() && !disk_.Examine(PathBelow(folder_, path)).exists) {
      file.state = AssociatedFile::State::InOtherCase;
      file.pathThere = there.path;
    }
    return true;
  }

  /// What is to be told when everything has been looked for; nothing when all is in order.
  std::optional<UnnamedFiles> Rest() const {
    UnnamedFiles rest{ToUtf8(folder_), {}, gaps_};
    for (const auto& [key, alike] : files_) {
      for (const FileThere& there : alike) {
        const bool isBelowFilesFolder = there.path.find('/') != std::string::npos;
        if (isBelowFilesFolder && !there.isNamed) rest.names.push_back(there.path);
      }
    }
    if (rest.names.empty() && rest.gaps.empty()) return std::nullopt;
    std::sort(rest.names.begin(), rest.names.end());
    return rest;
  }

 private:
  struct FileThere {
    std::string path;
    bool isNamed = false;
  };

  void AddFile(const std::string& path) {
    std::string shown = ToUtf8(path);
    std::string key = LowerCase(shown);
    files_[std::move(key)].push_back({std::move(shown)});
  }

  void AddFilesBelow(const std::string& name) {
    const FolderContent content = WalkFolder(disk_, PathBelow(folder_, name));
    for (const std::string& file : content.files)
      AddFile(std::string(name).append("/").append(file));
    for (const FolderContent::Gap& gap : content.gaps)
      AddGap(gap);
  }

  void AddGap(const FolderContent::Gap& gap) {
    gaps_.push_back(ToUtf8(gap.path) + ": " + ToUtf8(gap.failure.description));
  }

  Disk& disk_;
  std::string folder_;
  std::unordered_map<std::string, std::vector<FileThere>> files_;  // by lower-case path
  std::vector<std::string> gaps_;
};

/// Where the format wants the file.
std::string PathInFilesFolder(const AssociatedFile& file) {
  std::string path(FilesFolder);
  if (!file.fileSet.empty()) path.append("/").append(file.fileSet);
  return path.append("/").append(file.name);
}

void LookFor(DeliveryFolder& folder, AgsFormat format, AssociatedFile& file) {
  if (!IsFileName(file.name) || !(file.fileSet.empty() || IsFileName(file.fileSet))) {
    file.state = AssociatedFile::State::NoFileName;
    return;
  }
  if (folder.Find(PathInFilesFolder(file), file)) return;
  if (format == AgsFormat::Ags3 && folder.Find(file.name, file)) return;
  file.state = AssociatedFile::State::Missing;
}

}  // namespace

std::vector<AssociatedFile> NamedFiles(const GroupTable& table) {
  std::vector<AssociatedFile> files;
  std::unordered_set<std::string> seen;
  for (const int group : table.GroupIndexList("FILE")) {
    const int fileSet = table.LocateHeading(group, "FILE_FSET");
    const int name = table.LocateHeading(group, "FILE_NAME");
    if (name == 0) continue;
    for (std::int32_t row = 1; row <= table.At(group).rowCount; ++row) {
      AssociatedFile file{fileSet == 0 ? "" : ToUtf8(Trim(table.Value(group, row, fileSet))),
                          ToUtf8(Trim(table.Value(group, row, name))),
                          {},
                          {}};
      if (file.name.empty() || !seen.insert(file.fileSet + '\n' + file.name).second) continue;
      files.push_back(std::move(file));
    }
  }
  return files;
}

bool KnowsAssociatedFiles(const FileRecord& file) {
  return !file.groups.empty();
}

void LookForAssociatedFiles(Disk& disk, FindingsReport& report) {
  std::map<std::string, DeliveryFolder> folders;
  for (FileRecord& file : report.files) {
    if (!KnowsAssociatedFiles(file)) continue;
    const std::string path = FolderOf(file.diskPath);
    DeliveryFolder& folder = folders.try_emplace(path, disk, path).first->second;
    for (AssociatedFile& associated : file.associatedFiles)
      LookFor(folder, file.format.value_or(AgsFormat::Ags4), associated);
  }
  for (const auto& [path, folder] : folders) {
    if (std::optional<UnnamedFiles> rest = folder.Rest())
      report.unnamedFiles.push_back(std::move(*rest));
  }
}

bool IsMissing(const AssociatedFile& file) {
  return file.state == AssociatedFile::State::Missing ||
         file.state == AssociatedFile::State::NoFileName;
}

}  // namespace quorvane
