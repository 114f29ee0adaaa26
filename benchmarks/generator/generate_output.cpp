#include "generate_output.h"

#include <cstddef>

namespace quorvane::generate {

namespace {

constexpr std::size_t kBufferSize = std::size_t{1} << 20U;

}  // namespace

Output::Output(std::FILE* file) : file_(file) {
  if (file_ != nullptr) buffer_.reserve(2 * kBufferSize);
}

void Output::Append(std::string_view bytes) {
  byteCount_ += bytes.size();
  if (file_ == nullptr) return;
  buffer_.append(bytes);
  if (buffer_.size() >= kBufferSize) Flush();
}

bool Output::Flush() {
  if (file_ == nullptr) return true;
  if (!buffer_.empty() && std::fwrite(buffer_.data(), 1, buffer_.size(), file_) != buffer_.size()) {
    failed_ = true;
  }
  buffer_.clear();
  if (std::fflush(file_) != 0) failed_ = true;
  return !failed_;
}

}  // namespace quorvane::generate
