#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

namespace quorvane::generate {

/// Buffered output of a generated file. Without a file it only counts, which is how the generator
/// measures how large a part of the file becomes.
class Output {
 public:
  /// The file stays the caller's, is written in binary and may be null (count only).
  explicit Output(std::FILE* file);

  void Append(std::string_view bytes);

  /// Bytes appended so far.
  std::uint64_t ByteCount() const { return byteCount_; }

  /// Writes what is still buffered. False when this or any earlier write failed, for example
  /// because the disk is full.
  bool Flush();

 private:
  std::FILE* file_;
  std::string buffer_;
  std::uint64_t byteCount_ = 0;
  bool failed_ = false;
};

}  // namespace quorvane::generate
