#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

namespace quorvane {

/// Equality of texts that are mostly short, such as cells: those of up to 16 bytes are compared in
/// line, by words that may overlap.
inline bool SameText(std::string_view left, std::string_view right) {
  const std::size_t size = left.size();
  if (size != right.size()) return false;
  const auto sameWords = [&](auto word) {
    constexpr std::size_t wordSize = sizeof(word);
    auto leftFirst = word, leftLast = word, rightFirst = word, rightLast = word;
    std::memcpy(&leftFirst, left.data(), wordSize);
    std::memcpy(&rightFirst, right.data(), wordSize);
    std::memcpy(&leftLast, left.data() + size - wordSize, wordSize);
    std::memcpy(&rightLast, right.data() + size - wordSize, wordSize);
    return leftFirst == rightFirst && leftLast == rightLast;
  };
  if (size > 16) return std::memcmp(left.data(), right.data(), size) == 0;
  if (size >= 8) return sameWords(std::uint64_t{});
  if (size >= 4) return sameWords(std::uint32_t{});
  if (size >= 2) return sameWords(std::uint16_t{});
  return size == 0 || left.front() == right.front();
}

}  // namespace quorvane
