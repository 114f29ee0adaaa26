#include "generate_site.h"

#include <array>
#include <string_view>

namespace quorvane::generate {

namespace {

/// How locations of one rig look.
struct RigProfile {
  Rig rig;
  std::string_view prefix;
  int share;  // of all locations, in per cent
  int minDepth;
  int maxDepth;
  int sampleSpacing;  // 0: no samples
  int maxPoints;
};

constexpr std::array kRigs{
    RigProfile{Rig::Cable, "BH", 41, 900, 2800, 65, 3},
    RigProfile{Rig::Rotary, "RC", 14, 1500, 5500, 150, 2},
    RigProfile{Rig::Pit, "TP", 20, 150, 450, 50, 0},
    RigProfile{Rig::WindowSampler, "WS", 20, 250, 600, 50, 1},
    RigProfile{Rig::Cone, "CPT", 5, 800, 2400, 0, 0},
};

const RigProfile& ProfileAt(int percentile) {
  for (const RigProfile& profile : kRigs) {
    if (percentile < profile.share) return profile;
    percentile -= profile.share;
  }
  return kRigs.back();
}

const RigProfile& ProfileOf(Rig rig) {
  for (const RigProfile& profile : kRigs) {
    if (profile.rig == rig) return profile;
  }
  return kRigs.back();
}

/// The first locations take the rigs in turn, so that a small file has every kind of group too.
const RigProfile& ProfileFor(std::uint32_t index, Random& random) {
  if (index < kRigs.size()) return kRigs[index];
  return ProfileAt(static_cast<int>(random.Below(100)));
}

SampleUse UseOf(std::uint32_t typeIndex) {
  switch (typeIndex) {
    case OpenTube:
      return SampleUse::Undisturbed;
    case Environmental:
      return SampleUse::Environmental;
    case CoreSample:
      return SampleUse::Core;
    default:
      return SampleUse::Disturbed;
  }
}

std::uint32_t SampleTypeFor(Rig rig, int percentile) {
  if (rig == Rig::Rotary) return CoreSample;
  if (percentile < 40) return SmallDisturbed;
  if (percentile < 58) return Bulk;
  if (percentile < 74 && rig == Rig::Cable) return OpenTube;
  return Environmental;
}

constexpr std::uint64_t kLocationStream = 1;
constexpr std::uint64_t kSampleStream = 2;
constexpr int kFirstDay = 17897;  // 1 January 2019

}  // namespace

Location Site::LocationAt(std::uint32_t index) const {
  Random random(Combine(seed_, kLocationStream, index));
  const RigProfile& profile = ProfileFor(index, random);
  Location location;
  location.index = index;
  location.id = std::string(profile.prefix) + std::to_string(index + 1);
  location.rig = profile.rig;
  location.secondRig = profile.rig == Rig::Cable && random.Chance(8);
  location.depth = random.Between(profile.minDepth / 10, profile.maxDepth / 10) * 10;
  location.day = kFirstDay + random.Between(0, 1000);
  if (profile.sampleSpacing > 0) {
    location.sampleCount = (location.depth - 50) / profile.sampleSpacing;
  }
  if (profile.maxPoints > 0) {
    location.pointCount = index < kRigs.size() ? 1 : random.Between(0, profile.maxPoints);
  }
  return location;
}

Sample Site::SampleAt(const Location& location, int index) const {
  Random random(Combine(seed_, kSampleStream, location.index, index));
  const int spacing = ProfileOf(location.rig).sampleSpacing;
  Sample sample;
  sample.number = index + 1;
  sample.top = 30 + index * spacing + 5 * random.Between(0, (spacing - 10) / 5);
  sample.typeIndex = SampleTypeFor(location.rig, static_cast<int>(random.Below(100)));
  sample.use = UseOf(sample.typeIndex);
  sample.length = sample.use == SampleUse::Undisturbed ? 45 : random.Between(1, 5) * 10;
  return sample;
}

int Site::PointDepth(const Location& location, int index) {
  return 100 + (index + 1) * location.depth / 5;
}

}  // namespace quorvane::generate
