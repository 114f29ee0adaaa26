#pragma once

#include <cstdint>
#include <string>

#include "generate_random.h"

namespace quorvane::generate {

/// Depths are in centimetres, days count from 1 January 1970.

/// What made an exploratory location; a group of the file applies to some of them.
enum class Rig : unsigned char { Cable, Rotary, Pit, WindowSampler, Cone };

/// What a sample is good for; decides which tests are made on it.
enum class SampleUse : unsigned char { Disturbed, Undisturbed, Environmental, Core };

struct Location {
  std::uint32_t index = 0;  // from 0
  std::string id;
  Rig rig = Rig::Cable;
  bool secondRig = false;  // a cable hole that was carried on with the rotary rig
  int depth = 0;
  int day = 0;  // first day of the work there
  int sampleCount = 0;
  int pointCount = 0;  // monitoring points
};

struct Sample {
  int number = 0;  // from 1, per location
  int top = 0;
  int length = 0;
  SampleUse use = SampleUse::Disturbed;
  std::uint32_t typeIndex = 0;  // in the list of sample types
};

/// The site behind a generated file. Every location and sample can be made anew at any time from
/// the seed and its index, so nothing is kept, however large the file.
class Site {
 public:
  explicit Site(std::uint64_t seed) : seed_(seed) {}

  Location LocationAt(std::uint32_t index) const;

  /// The sample with this index (from 0) of the location; tops rise with the index.
  Sample SampleAt(const Location& location, int index) const;

  /// Depth of a monitoring point (index from 0): different for each point of a location.
  static int PointDepth(const Location& location, int index);

  std::uint64_t Seed() const { return seed_; }

 private:
  std::uint64_t seed_;
};

/// Sample types in the order of the list that explains them; see Sample::typeIndex.
enum SampleTypeIndex : std::uint32_t { SmallDisturbed, Bulk, OpenTube, Environmental, CoreSample };

}  // namespace quorvane::generate
