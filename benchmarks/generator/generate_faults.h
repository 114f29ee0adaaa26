#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "generate_catalogue.h"
#include "generate_format.h"
#include "generate_random.h"

namespace quorvane::generate {

/// Spoils rows of a file, each by one fault of one kind. Of the kinds that a row allows it takes
/// the one used least so far, so that rare kinds come up as soon as they can. Keys are only spoilt
/// in groups without children, so that a fault is not found again in every row below.
class FaultMaker {
 public:
  struct Count {
    std::string_view kind;
    std::uint64_t faults = 0;
  };

  /// The format must outlive the maker; perMille is the share of rows that Draw picks.
  FaultMaker(const Format& format, int perMille, std::uint64_t seed);

  /// Whether the next row is to have a fault.
  bool Draw();

  /// Appends the row with a fault and returns the number of its lines. The previous key holds the
  /// key values of the row before in the same group, or nothing when there is none to be repeated.
  std::size_t AppendSpoilt(std::string& text, const Group& group,
                           std::span<const std::string_view> cells,
                           std::span<const std::string> previousKey);

  /// The faults made so far, for each kind of the version.
  const std::vector<Count>& Counts() const { return counts_; }

 private:
  const Format& format_;
  int perMille_;
  Random random_;
  std::vector<std::size_t> kinds_;  // of the version, in the table of kinds
  std::vector<Count> counts_;       // for each of them
};

}  // namespace quorvane::generate
