#pragma once

#include <string_view>
#include <vector>

namespace quorvane {

/// The form of elapsed times in a column, read once from its unit ("hh:mm:ss"): the first letter of
/// each part between colons says what the part counts.
class ElapsedTimePattern {
 public:
  explicit ElapsedTimePattern(std::string_view unit);

  /// Whether a value that is not empty has the pattern's form: as many parts, all of them numbers
  /// and all but the last whole; at most 60 of seconds and of minutes, any number of hours and of
  /// days. A part that counts something else fits no value. It neither allocates nor asks the
  /// locale.
  bool Matches(std::string_view value) const;

 private:
  enum class Bound { Sixty, None, NothingFits };

  static Bound BoundOf(std::string_view unitPart);
  static bool FitsPart(std::string_view part, Bound bound, bool mustBeWhole);

  std::vector<Bound> bounds_;  // one per part, at least one
};

}  // namespace quorvane
