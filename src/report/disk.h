#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/large_block.h"

namespace quorvane {

using FileTime = std::chrono::system_clock::time_point;

/// The bytes of a file, owned in one piece and never copied. Behind the last byte stand Padding
/// bytes of 0 that may be read, so that scans can go on in whole blocks.
class ByteBuffer {
 public:
  static constexpr std::size_t Padding = 64;

  ByteBuffer() = default;
  explicit ByteBuffer(std::string_view bytes);

  /// Room for this many bytes, whose content is not set.
  static ByteBuffer WithRoomFor(std::size_t size);

  char* Data() { return bytes_.get(); }
  const char* Data() const { return bytes_.get(); }
  std::size_t Size() const { return size_; }

  /// Gives up the bytes behind the first ones, for a file that ended before its stated size.
  void ShrinkTo(std::size_t size);

  std::string_view View() const& { return {bytes_.get(), size_}; }
  std::string_view View() const&& = delete;  // the view would outlive its bytes

 private:
  LargeBlock<char> bytes_;
  std::size_t size_ = 0;
};

/// Why the system could not do something with a file: its number and its words.
struct FileFailure {
  int number = 0;
  std::string description;
};

/// What the system knows of a path without reading the file.
struct FileFacts {
  bool exists = false;
  std::uint64_t size = 0;  // bytes
  FileTime lastChange;
  std::optional<FileFailure> obstacle;  // a folder, a device, no permission to look: cannot be read
  bool isFolder = false;                // then this is the obstacle
};

/// One of the things that a folder holds.
struct FolderEntry {
  std::string name;
  bool isFolder = false;  // of itself or as the target of a link
  bool isLink = false;    // a symbolic link
};

/// The disk as Quorvane uses it, so that intake and its faults can be tested without files. Paths
/// are the bytes that the user or the system gave. No routine throws.
class Disk {
 public:
  virtual ~Disk() = default;

  virtual FileFacts Examine(const std::string& path) = 0;

  /// Reads a whole file. On failure the content is empty and the failure says why.
  struct Reading {
    ByteBuffer content;
    std::optional<FileFailure> failure;
  };
  virtual Reading Read(const std::string& path) = 0;

  /// Lists what stands in a folder itself, in no order that can be relied upon. On failure the
  /// failure says why and the entries are those that could still be read.
  struct Listing {
    std::vector<FolderEntry> entries;
    std::optional<FileFailure> failure;
  };
  virtual Listing List(const std::string& folder) = 0;

  /// Replaces a file's content by two texts, one behind the other. Nothing on success.
  virtual std::optional<FileFailure> Write(const std::string& path, std::string_view text,
                                           std::string_view ending) = 0;
};

}  // namespace quorvane
