#include "generate_file.h"

#include <algorithm>
#include <optional>

#include "generate_file_writer.h"

namespace quorvane::generate {

namespace {

/// The part of the file, in per cent, that the number of locations is chosen for; readings at the
/// monitoring points fill up the rest.
constexpr std::uint64_t kGroupShare = 85;

constexpr std::uint32_t kMeasuredLocations = 300;

Catalogue CatalogueFor(int version) {
  return version == 4 ? Ags4Catalogue() : Ags3Catalogue();
}

/// Size of a file with so many locations and the fewest readings.
std::uint64_t Measure(const FileOptions& options, std::uint32_t locationCount) {
  const Catalogue catalogue = CatalogueFor(options.version);
  const Site site(options.seed);
  const Format format(options.version, options.lineEnd);
  Output output(nullptr);
  FileWriter writer(catalogue, site, format, nullptr, output);
  writer.WriteGroups(locationCount);
  writer.WriteReadings(locationCount, 0);
  writer.WriteReferences();
  return writer.CleanBytes();
}

/// How many locations fill the groups' share of the wanted size: large files go by the mean of the
/// first locations, small ones by what is measured.
std::uint32_t ChooseLocationCount(const FileOptions& options) {
  const std::uint64_t share = options.bytes / 100 * kGroupShare;
  const std::uint64_t mean = Measure(options, kMeasuredLocations) / kMeasuredLocations;
  auto count = static_cast<std::uint32_t>(std::max<std::uint64_t>(1, share / mean));
  if (count >= kMeasuredLocations) return count;
  while (count > 1 && Measure(options, count) > share)
    --count;
  return count;
}

}  // namespace

std::uint64_t SmallestFile(const FileOptions& options) {
  return Measure(options, 1);
}

FileTotals WriteFile(const FileOptions& options, Output& output) {
  const Catalogue catalogue = CatalogueFor(options.version);
  const Site site(options.seed);
  const Format format(options.version, options.lineEnd);
  std::optional<FaultMaker> faults;
  if (options.noisePerMille > 0) faults.emplace(format, options.noisePerMille, options.seed);
  const std::uint32_t locationCount = ChooseLocationCount(options);
  FileWriter writer(catalogue, site, format, faults ? &*faults : nullptr, output);
  writer.WriteGroups(locationCount);
  writer.WriteReadings(locationCount, options.bytes);
  writer.WriteReferences();
  FileTotals totals = writer.Totals();
  totals.locations = locationCount;
  totals.bytes = output.ByteCount();
  if (faults) totals.faults = faults->Counts();
  return totals;
}

}  // namespace quorvane::generate
