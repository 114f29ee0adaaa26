#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace quorvane {

/// A hash of a text for tables in memory: made for short texts, in line and by whole words. Its
/// values differ between machines of different byte order.
inline std::uint64_t HashText(std::string_view text) {
  constexpr std::uint64_t factor = 0x9E3779B97F4A7C15ULL;
  const auto mix = [](std::uint64_t value) {
    value *= factor;
    return value ^ (value >> 32U);
  };
  const char* at = text.data();
  std::size_t left = text.size();
  std::uint64_t hash = mix(left + 1);
  for (; left >= sizeof(std::uint64_t); left -= sizeof(std::uint64_t)) {
    std::uint64_t word = 0;
    std::memcpy(&word, at, sizeof(word));
    hash = mix(hash ^ word);
    at += sizeof(word);
  }
  std::uint64_t rest = 0;
  for (std::size_t index = 0; index < left; ++index)
    rest = (rest << 8U) | static_cast<unsigned char>(at[index]);
  return mix(hash ^ rest);
}

}  // namespace quorvane
