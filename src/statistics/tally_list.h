#pragma once

#include <cmath>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace quorvane {

/// How often something occurred, and the sum of a quantity that goes with it.
class Tally {
 public:
  std::int64_t count = 0;

  /// The digits that the sum cannot take up are kept apart, so that the total stays clean however
  /// many decimal values it is made of.
  void AddToTotal(double value) {
    const double sum = sum_ + value;
    if (std::isfinite(sum)) {
      const bool isSumGreater = std::abs(sum_) >= std::abs(value);
      lostDigits_ += isSumGreater ? (sum_ - sum) + value : (value - sum) + sum_;
    }
    sum_ = sum;
  }

  double Total() const { return sum_ + lostDigits_; }

 private:
  double sum_ = 0.0;
  double lostDigits_ = 0.0;
};

/// Tallies by name, in byte order of the names.
class TallyList {
 public:
  using Records = std::map<std::string, Tally, std::less<>>;

  /// The record of a name, new when there is none yet. It stays where it is.
  Tally& TallyFindOrAdd(std::string_view name) {
    const auto found = records_.find(name);
    return found != records_.end() ? found->second : records_[std::string(name)];
  }

  const Records& All() const& { return records_; }
  bool IsEmpty() const { return records_.empty(); }

 private:
  Records records_;
};

}  // namespace quorvane
