#include "run/file_replacement.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <utility>
#if defined(_WIN32)
#include <io.h>
#else
#include <unistd.h>
#endif

namespace quorvane {
namespace {

namespace fs = std::filesystem;

std::error_code LastError() {
  return {errno, std::generic_category()};
}

std::optional<FileFailure> ToFailure(const std::error_code& code) {
  if (!code) return std::nullopt;
  return FileFailure{code.value(), code.message()};
}

/// Writes both texts and closes the file, whose last bytes may only then find the disk full.
std::error_code WriteAndClose(std::FILE* file, std::string_view text, std::string_view ending) {
  std::error_code error;
  for (const std::string_view part : {text, ending}) {
    if (!error && std::fwrite(part.data(), 1, part.size(), file) != part.size()) {
      error = LastError();
    }
  }
  if (std::fclose(file) != 0 && !error) error = LastError();
  return error;
}

std::error_code WriteDirectly(const fs::path& path, std::string_view text,
                              std::string_view ending) {
#if defined(_WIN32)
  std::FILE* file = _wfopen(path.c_str(), L"wb");
#else
  std::FILE* file = std::fopen(path.c_str(), "wb");
#endif
  return file == nullptr ? LastError() : WriteAndClose(file, text, ending);
}

/// Creates a file that must not exist yet; nothing when that fails.
std::FILE* CreateNew(const fs::path& path) {
#if defined(_WIN32)
  const int file =
      _wopen(path.c_str(), _O_CREAT | _O_EXCL | _O_WRONLY | _O_BINARY, _S_IREAD | _S_IWRITE);
  return file < 0 ? nullptr : _fdopen(file, "wb");
#else
  const int file = ::open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0666);
  return file < 0 ? nullptr : ::fdopen(file, "wb");
#endif
}

/// The file in which the content grows. It goes away again unless it takes the target's place.
class NewFile {
 public:
  /// Creates it in a folder. Its name is short whatever the target's is.
  explicit NewFile(const fs::path& folder) {
    constexpr int mostAttempts = 100;
    const auto start = std::chrono::steady_clock::now().time_since_epoch().count();
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
      path_ = folder / (".quorvane-" + std::to_string(start + attempt) + ".tmp");
      file_ = CreateNew(path_);
      isThere_ = file_ != nullptr;
      if (isThere_) return;
      error_ = LastError();
      if (error_ != std::errc::file_exists) return;
    }
  }

  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  ~NewFile() {
    if (file_ != nullptr) static_cast<void>(std::fclose(file_));
    std::error_code ignored;
    if (isThere_) fs::remove(path_, ignored);
  }

  bool IsCreated() const { return file_ != nullptr; }

  /// Why it could not be created.
  std::error_code CreationError() const { return error_; }

  const fs::path& Path() const { return path_; }

  std::error_code Write(std::string_view text, std::string_view ending) {
    return WriteAndClose(std::exchange(file_, nullptr), text, ending);
  }

  std::error_code TakePlaceOf(const fs::path& target) {
    std::error_code error;
    fs::rename(path_, target, error);
    isThere_ = static_cast<bool>(error);
    return error;
  }

 private:
  fs::path path_;
  std::FILE* file_ = nullptr;
  std::error_code error_;
  bool isThere_ = false;
};

/// The path behind all links at its end.
fs::path BehindLinks(fs::path path) {
  constexpr int mostLinks = 40;
  for (int links = 0; links < mostLinks; ++links) {
    std::error_code error;
    if (!fs::is_symlink(fs::symlink_status(path, error))) break;
    const fs::path next = fs::read_symlink(path, error);
    if (error) break;
    path = path.parent_path() / next;
  }
  return path;
}

bool IsWritable(const fs::path& path) {
#if defined(_WIN32)
  constexpr int forWriting = 2;
  return _waccess(path.c_str(), forWriting) == 0;
#else
  return ::access(path.c_str(), W_OK) == 0;
#endif
}

/// Whether a new file may stand where this one stands, as far as its kind goes.
bool IsReplaceable(const fs::path& path, const fs::path& target, const fs::file_status& status) {
  if (!target.has_filename()) return false;
  std::error_code error;
  // A link of the process's own, such as /dev/stdout, may lead to what its text does not name.
  const bool isThere = fs::exists(fs::status(path, error));
  if (isThere && !fs::equivalent(path, target, error)) return false;
  if (status.type() == fs::file_type::not_found) return !isThere;
  return fs::is_regular_file(status) && fs::hard_link_count(target, error) == 1 &&
         IsWritable(target);
}

bool HaveSameOwner([[maybe_unused]] const fs::path& one, [[maybe_unused]] const fs::path& other) {
#if defined(_WIN32)
  return true;  // it is the folder's to say who owns its files
#else
  struct stat first {};
  struct stat second {};
  return ::stat(one.c_str(), &first) == 0 && ::stat(other.c_str(), &second) == 0 &&
         first.st_uid == second.st_uid && first.st_gid == second.st_gid;
#endif
}

/// Failures that say only that this folder takes no new file; the file itself may well be writable.
bool IsRefusalOfFolder(const std::error_code& error) {
  return error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
         error == std::errc::read_only_file_system;
}

std::error_code Replace(const fs::path& path, std::string_view text, std::string_view ending) {
  const fs::path target = BehindLinks(path);
  std::error_code error;
  const fs::file_status status = fs::status(target, error);
  if (!IsReplaceable(path, target, status)) return WriteDirectly(path, text, ending);

  NewFile newFile(target.parent_path());
  if (!newFile.IsCreated()) {
    return IsRefusalOfFolder(newFile.CreationError()) ? WriteDirectly(path, text, ending)
                                                      : newFile.CreationError();
  }
  if (fs::is_regular_file(status)) {
    if (!HaveSameOwner(newFile.Path(), target)) return WriteDirectly(path, text, ending);
    fs::permissions(newFile.Path(), status.permissions(), error);
    if (error) return WriteDirectly(path, text, ending);
  }
  if (const std::error_code failure = newFile.Write(text, ending)) return failure;
  // A file that others hold, or to which another one is mounted, gives up no place.
  if (newFile.TakePlaceOf(target)) return WriteDirectly(path, text, ending);
  return {};
}

}  // namespace

std::optional<FileFailure> ReplaceFileContent(const fs::path& path, std::string_view text,
                                              std::string_view ending) {
  return ToFailure(Replace(path, text, ending));
}

}  // namespace quorvane
