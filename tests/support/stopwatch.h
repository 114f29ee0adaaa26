#pragma once

#include <ctime>

namespace quorvane::test {

/// The processor's time that this program took since a moment. Other programs on the machine do not
/// count, so that tests of cost do not depend on them.
class Stopwatch {
 public:
  double Seconds() const {
    return static_cast<double>(std::clock() - start_) / static_cast<double>(CLOCKS_PER_SEC);
  }

 private:
  std::clock_t start_ = std::clock();
};

/// What work on a file of uncommon size may take. Cost that grows with the square of the size takes
/// minutes there.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr double QuickSeconds = 20.0;
#else
inline constexpr double QuickSeconds = 2.0;
#endif

}  // namespace quorvane::test
