#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
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

/// The length of the beginning that two texts share.
inline std::size_t SameLength(std::string_view left, std::string_view right) {
  const std::size_t size = std::min(left.size(), right.size());
  std::size_t same = 0;
  if constexpr (std::endian::native == std::endian::little) {
    for (; same + sizeof(std::uint64_t) <= size; same += sizeof(std::uint64_t)) {
      std::uint64_t leftWord = 0;
      std::uint64_t rightWord = 0;
      std::memcpy(&leftWord, left.data() + same, sizeof leftWord);
      std::memcpy(&rightWord, right.data() + same, sizeof rightWord);
      const std::uint64_t difference = leftWord ^ rightWord;
      if (difference != 0) return same + static_cast<std::size_t>(std::countr_zero(difference)) / 8;
    }
  }
  while (same < size && left[same] == right[same])
    ++same;
  return same;
}

}  // namespace quorvane
