#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <span>
#include <string>
#include <string_view>

namespace quorvane::test {

/// Random choices and texts for tests that compare two ways to the same answer. The same seed gives
/// the same texts on every machine.
class RandomText {
 public:
  explicit RandomText(std::uint32_t seed) : engine_(seed) {}

  /// A number from 0 up to, but not including, a bound greater than 0.
  std::size_t Below(std::size_t bound) { return engine_() % bound; }

  bool OneIn(std::size_t count) { return Below(count) == 0; }

  std::string_view Pick(std::span<const std::string_view> choices) {
    return choices[Below(choices.size())];
  }

  /// A number of pieces, each picked anew, one behind the other.
  std::string Joined(std::span<const std::string_view> pieces, std::size_t count) {
    std::string text;
    for (std::size_t piece = 0; piece < count; ++piece) {
      text.append(Pick(pieces));
    }
    return text;
  }

 private:
  std::mt19937 engine_;
};

}  // namespace quorvane::test
