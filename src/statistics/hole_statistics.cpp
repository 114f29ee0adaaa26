#include "statistics/hole_statistics.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>

#include "statistics/column_value.h"
#include "statistics/tally_list.h"
#include "text/number.h"
#include "text/text.h"

namespace quorvane {
namespace {

/// Rounded to the digits that decimal values keep through a sum, so that 0.1 and 0.2 give 0.3.
double RoundedTotal(double total) {
  constexpr int digitsBehindFirst = 14;
  std::array<char, 64> buffer;
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), total,
                                     std::chars_format::scientific, digitsBehindFirst);
  double rounded = total;
  std::from_chars(buffer.data(), written.ptr, rounded);
  return rounded;
}

std::string TotalText(const Tally& tally) {
  return PlainNumber(RoundedTotal(tally.Total()));
}

/// The holes of a file by their type.
class HolesByType {
 public:
  HolesByType(const GroupTable& table, const std::string& locationGroup)
      : table_(table),
        locationGroup_(locationGroup),
        typeHeading_(locationGroup + "_TYPE"),
        depthHeading_(locationGroup + "_FDEP") {}

  void ReadGroup(int group) {
    const int typeColumn = table_.FindHeading(typeHeading_, group);
    if (typeColumn == 0) return;
    isTypeMissing_ = false;
    const int depthColumn = table_.FindHeading(depthHeading_, group);
    if (depthColumn == 0) {
      areDepthsMissing_ = true;
      return;
    }
    isDepthMissing_ = false;
    for (std::int32_t row = 1; row <= table_.At(group).rowCount; ++row) {
      const std::string_view type = type_.Trimmed(table_.Value(group, row, typeColumn));
      Tally& tally = type.empty() ? untyped_ : types_.TallyFindOrAdd(type);
      ++tally.count;
      const auto depth = NumericValue(Trim(table_.Value(group, row, depthColumn)));
      if (depth) {
        tally.AddToTotal(*depth);
      } else {
        areDepthsMissing_ = true;
      }
    }
  }

  void Write(RunLog& runLog, std::size_t groupCount) const {
    WriteWhatIsMissing(runLog);
    if (untyped_.count > 0) WriteUntyped(runLog, groupCount);
    for (const auto& [type, tally] : types_.All()) {
      runLog.AppendProgress("  " + type + "  " + std::to_string(tally.count) + "  " +
                            TotalText(tally));
    }
  }

 private:
  void WriteWhatIsMissing(RunLog& runLog) const {
    if (isTypeMissing_) {
      runLog.AppendProgress("  The " + typeHeading_ + " field does not exist.");
    } else if (isDepthMissing_) {
      runLog.AppendProgress("  The " + depthHeading_ + " field does not exist.");
    } else if (areDepthsMissing_) {
      runLog.AppendProgress("  There are holes that did not have values for " + depthHeading_ +
                            " or the " + depthHeading_ + " field in one or more " + locationGroup_ +
                            " groups was missing.  Some or all of the following statistics may be "
                            "inaccurate.");
    }
  }

  void WriteUntyped(RunLog& runLog, std::size_t groupCount) const {
    if (groupCount > 1) {
      runLog.AppendProgress("  There are " + std::to_string(groupCount) + " " + locationGroup_ +
                            " groups in the file.  The combined statistics are shown.");
    }
    if (types_.IsEmpty()) {
      runLog.AppendProgress(
          "  There are no hole types specified for any hole.  The total depth of drilling is " +
          TotalText(untyped_) + ".");
    } else {
      runLog.AppendProgress("  " + std::to_string(untyped_.count) +
                            " holes with no type specified.  The total depth of drilling for these "
                            "holes is " +
                            TotalText(untyped_) + ".");
    }
  }

  const GroupTable& table_;
  const std::string& locationGroup_;
  const std::string typeHeading_;
  const std::string depthHeading_;
  UpperCaseValue type_;
  TallyList types_;
  Tally untyped_;
  bool isTypeMissing_ = true;      // no group has the column
  bool isDepthMissing_ = true;     // no group has the column
  bool areDepthsMissing_ = false;  // some holes are without a depth
};

/// The range of a coordinate.
struct Range {
  double minimum = 9e99;
  double maximum = -9e99;
  std::int64_t numericCount = 0;
  std::int64_t rowCount = 0;
};

void ReadRange(const GroupTable& table, int group, std::string_view heading, Range& range) {
  range.rowCount += table.At(group).rowCount;
  const int column = table.FindHeading(heading, group);
  if (column == 0) return;
  for (std::int32_t row = 1; row <= table.At(group).rowCount; ++row) {
    const auto value = NumericValue(Trim(table.Value(group, row, column)));
    if (!value) continue;
    ++range.numericCount;
    range.minimum = std::min(range.minimum, *value);
    range.maximum = std::max(range.maximum, *value);
  }
}

std::string RangeText(const Range& range) {
  if (range.numericCount == 0) return "There are no data.";
  return "Min " + PlainNumber(range.minimum) + "    Max " + PlainNumber(range.maximum) + "    (" +
         std::to_string(range.numericCount) + " of " + std::to_string(range.rowCount) +
         " with data)";
}

}  // namespace

void WriteHolesByType(RunLog& runLog, const GroupTable& table, const std::string& locationGroup,
                      std::span<const int> groups) {
  HolesByType holes(table, locationGroup);
  for (const int group : groups)
    holes.ReadGroup(group);
  holes.Write(runLog, groups.size());
}

void WriteSiteGeometry(RunLog& runLog, const GroupTable& table, const std::string& locationGroup,
                       std::span<const int> groups) {
  for (const std::string_view ending : {"_LOCX", "_LOCY", "_LOCZ", "_NATE", "_NATN", "_GL"}) {
    const std::string heading = locationGroup + std::string(ending);
    Range range;
    for (const int group : groups)
      ReadRange(table, group, heading, range);
    runLog.AppendProgress("  " + heading + ":  " + RangeText(range));
  }
}

}  // namespace quorvane
