#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace quorvane {

/// Keeps many short texts in a few large blocks. The views that it gives out stay valid as long as
/// the store lives, also when it is moved.
class TextStore {
 public:
  std::string_view Keep(std::string_view text);

 private:
  static constexpr std::size_t BlockSize = 1U << 20U;

  std::vector<std::unique_ptr<char[]>> blocks_;
  char* free_ = nullptr;
  std::size_t room_ = 0;
};

}  // namespace quorvane
