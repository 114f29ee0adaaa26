#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "generate_catalogue.h"
#include "generate_faults.h"
#include "generate_file.h"
#include "generate_format.h"
#include "generate_output.h"
#include "generate_rows.h"
#include "generate_site.h"
#include "generate_usage.h"

namespace quorvane::generate {

/// Writes the groups of one file, one after the other. What it hands to the output may hold faults;
/// the size that it goes by is that of the rows without them.
class FileWriter {
 public:
  /// Rows have faults when a maker is given. Everything handed over must outlive the writer.
  FileWriter(const Catalogue& catalogue, const Site& site, const Format& format, FaultMaker* faults,
             Output& output);

  /// All groups of the catalogue but the last.
  void WriteGroups(std::uint32_t locationCount);

  /// The last group of the catalogue: readings, evenly for every monitoring point and at least one
  /// for each, until the file has the wanted size together with the groups still to come.
  void WriteReadings(std::uint32_t locationCount, std::uint64_t wantedBytes);

  /// The groups that explain codes, units and types.
  void WriteReferences();

  /// Size of the file so far, as if no row had a fault.
  std::uint64_t CleanBytes() const { return cleanBytes_; }

  /// The counts of groups, lines, rows and cells so far.
  const FileTotals& Totals() const { return totals_; }

 private:
  /// The group being written.
  struct OpenGroup {
    const Group& group;
    RowMaker maker;
    std::uint64_t salt;      // of the group
    std::uint64_t testSalt;  // of the test that it shares with other groups
    bool started = false;    // its heading is written with the first row, so that none is empty
    std::vector<std::string> previousKey = {};  // empty when it is none to be repeated
  };

  OpenGroup Open(std::size_t index);
  void Close(const OpenGroup& open);
  void WriteLocation(OpenGroup& open, const Location& location);
  void WriteSample(OpenGroup& open, const Location& location, const Sample& sample);
  void WriteRow(OpenGroup& open, const RowPlace& place);
  void WriteSpoiltRow(OpenGroup& open);
  void Emit(std::size_t lines);

  const Catalogue& catalogue_;
  const Site& site_;
  const Format& format_;
  FaultMaker* faults_;
  Output& output_;
  Usage usage_;
  FileTotals totals_;
  std::uint64_t cleanBytes_ = 0;
  Row row_;
  std::string text_;  // of the lines being written
};

}  // namespace quorvane::generate
