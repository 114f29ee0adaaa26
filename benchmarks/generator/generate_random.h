#pragma once

#include <cstdint>

namespace quorvane::generate {

/// Scrambles a number so that neighbouring inputs give unrelated outputs.
constexpr std::uint64_t Mix(std::uint64_t value) {
  value = (value ^ (value >> 30U)) * 0xBF58476D1CE4E5B9U;
  value = (value ^ (value >> 27U)) * 0x94D049BB133111EBU;
  return value ^ (value >> 31U);
}

/// One number out of several. The order of the parts matters.
template <typename... Parts>
constexpr std::uint64_t Combine(std::uint64_t seed, Parts... parts) {
  ((seed = Mix(seed + 0x9E3779B97F4A7C15U + static_cast<std::uint64_t>(parts))), ...);
  return seed;
}

/// Random numbers that depend on the seed alone: the same on every platform and library, which the
/// distributions of the standard library are not.
class Random {
 public:
  explicit constexpr Random(std::uint64_t seed) : state_(seed) {}

  constexpr std::uint64_t Next() {
    state_ += 0x9E3779B97F4A7C15U;
    return Mix(state_);
  }

  /// A number from 0 up to, not including, the limit; 0 for a limit of 0.
  constexpr std::uint32_t Below(std::uint32_t limit) {
    return static_cast<std::uint32_t>(((Next() >> 32U) * limit) >> 32U);
  }

  /// A number from low to high, both included; high must not be below low.
  constexpr int Between(int low, int high) {
    return low + static_cast<int>(Below(static_cast<std::uint32_t>(high - low) + 1));
  }

  constexpr bool Chance(int percent) { return static_cast<int>(Below(100)) < percent; }

  /// A number below the limit that prefers small ones, so that some codes are common, some rare.
  constexpr std::uint32_t Skewed(std::uint32_t limit) {
    const std::uint32_t first = Below(limit);
    const std::uint32_t second = Below(limit);
    return first < second ? first : second;
  }

 private:
  std::uint64_t state_;
};

}  // namespace quorvane::generate
