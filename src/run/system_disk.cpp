#include "run/system_disk.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <new>
#include <system_error>
#include <utility>

#if defined(_WIN32)
#include <io.h>
#include <windows.h>
#endif

#include "run/file_replacement.h"
#include "run/system_text.h"

namespace quorvane {
namespace {

FileFailure FailureOf(const std::error_code& code) {
  return {code.value(), code.message()};
}

FileFailure LastFailure() {
  return FailureOf({errno, std::generic_category()});
}

/// Closes a file that is only read: a failure to close it changes nothing.
struct FileCloser {
  void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using OpenFile = std::unique_ptr<std::FILE, FileCloser>;

#if defined(_WIN32)
OpenFile Open(const std::filesystem::path& path, std::string_view mode) {
  return OpenFile(_wfopen(path.c_str(), std::wstring(mode.begin(), mode.end()).c_str()));
}

/// Names like CON and COM1 look like files there until they are opened; reading one would wait.
bool IsDevice(std::FILE* file) {
  const intptr_t handle = _get_osfhandle(_fileno(file));
  return GetFileType(reinterpret_cast<HANDLE>(handle)) != FILE_TYPE_DISK;
}
#else
OpenFile Open(const std::filesystem::path& path, const char* mode) {
  return OpenFile(std::fopen(path.c_str(), mode));
}

/// Devices are told from files before they are opened.
constexpr bool IsDevice(std::FILE* /*file*/) {
  return false;
}
#endif

/// Fills the buffer from the file, as far as this goes. Reads in pieces: some systems and network
/// drives fail when they are asked for very much at once.
std::size_t ReadPieces(std::FILE* file, ByteBuffer& buffer) {
  constexpr std::size_t PieceSize = std::size_t{1} << 24;
  std::size_t size = 0;
  while (size < buffer.Size()) {
    const std::size_t wanted = std::min(PieceSize, buffer.Size() - size);
    const std::size_t read = std::fread(buffer.Data() + size, 1, wanted, file);
    size += read;
    if (read < wanted) break;
  }
  return size;
}

FileTime ToSystemTime(std::filesystem::file_time_type time) {
  return std::chrono::time_point_cast<FileTime::duration>(std::chrono::file_clock::to_sys(time));
}

/// Room for a file's bytes; nothing when there is no memory for it.
std::optional<ByteBuffer> RoomFor(std::uint64_t size) {
  try {
    return ByteBuffer::WithRoomFor(static_cast<std::size_t>(size));
  } catch (const std::bad_alloc&) {
    return std::nullopt;
  }
}

/// Whether a file is what it was before it was read. Somebody who writes it meanwhile leaves a
/// beginning, or parts of two states, that nobody meant to have checked.
bool IsUnchanged(const FileFacts& before, std::size_t sizeRead, const FileFacts& after) {
  return sizeRead == before.size && after.exists && !after.obstacle && after.size == before.size &&
         after.lastChange == before.lastChange;
}

}  // namespace

FileFacts SystemDisk::Examine(const std::string& givenPath) {
  FileFacts facts;
  std::error_code failure;
  const std::filesystem::path path = SystemPath(givenPath);
  const std::filesystem::file_status status = std::filesystem::status(path, failure);
  if (!std::filesystem::exists(status)) {
    // A path that cannot be looked at is not the same as one that is not there.
    facts.exists = failure && failure != std::errc::no_such_file_or_directory &&
                   failure != std::errc::not_a_directory;
    if (facts.exists) facts.obstacle = FailureOf(failure);
    return facts;
  }
  facts.exists = true;
  if (std::filesystem::is_directory(status)) {
    facts.isFolder = true;
    facts.obstacle = FailureOf(std::make_error_code(std::errc::is_a_directory));
  } else if (!std::filesystem::is_regular_file(status)) {
    facts.obstacle = FailureOf(std::make_error_code(std::errc::operation_not_supported));
  } else {
    facts.size = std::filesystem::file_size(path, failure);
    if (!failure) facts.lastChange = ToSystemTime(std::filesystem::last_write_time(path, failure));
    if (failure) facts.obstacle = FailureOf(failure);
  }
  return facts;
}

Disk::Reading SystemDisk::Read(const std::string& path) {
  Reading reading;
  const FileFacts facts = Examine(path);
  if (facts.obstacle) {
    reading.failure = facts.obstacle;
    return reading;
  }
  const OpenFile file = Open(SystemPath(path), "rb");
  if (!file) {
    reading.failure = LastFailure();
    return reading;
  }
  if (IsDevice(file.get())) {
    reading.failure = FailureOf(std::make_error_code(std::errc::operation_not_supported));
    return reading;
  }
  std::optional<ByteBuffer> room = RoomFor(facts.size);
  if (!room) {
    reading.failure = FailureOf(std::make_error_code(std::errc::not_enough_memory));
    return reading;
  }
  const std::size_t size = ReadPieces(file.get(), *room);
  const bool hasMore = std::fgetc(file.get()) != EOF;
  if (std::ferror(file.get()) != 0) {
    reading.failure = LastFailure();
  } else if (hasMore || !IsUnchanged(facts, size, Examine(path))) {
    reading.failure = {EBUSY, "File changed while it was read"};
  } else {
    reading.content = std::move(*room);
  }
  return reading;
}

Disk::Listing SystemDisk::List(const std::string& folder) {
  Listing listing;
  std::error_code failure;
  std::filesystem::directory_iterator entry(SystemPath(folder), failure);
  for (; !failure && entry != std::filesystem::directory_iterator(); entry.increment(failure)) {
    // What cannot be looked at is no folder: it fails when it is read.
    std::error_code ignored;
    listing.entries.push_back({PathText(entry->path().filename()), entry->is_directory(ignored),
                               entry->is_symlink(ignored)});
  }
  if (failure) listing.failure = FailureOf(failure);
  return listing;
}

std::optional<FileFailure> SystemDisk::Write(const std::string& path, std::string_view text,
                                             std::string_view ending) {
  return ReplaceFileContent(SystemPath(path), text, ending);
}

}  // namespace quorvane
