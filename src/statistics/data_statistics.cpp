#include "statistics/data_statistics.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "statistics/column_value.h"
#include "statistics/hole_statistics.h"
#include "statistics/tally_list.h"
#include "text/comma_list.h"
#include "text/number.h"
#include "text/text.h"

namespace quorvane {
namespace {

/// A heading of the CLSS group (AGS 3) under which the result of an index test stands.
struct IndexTest {
  std::string_view heading;
  std::string_view label;
};

/// In byte order of the labels.
constexpr std::array IndexTests{
    IndexTest{"CLSS_425", "% < 0.425mm"},         IndexTest{"CLSS_BDEN", "Bulk Density"},
    IndexTest{"CLSS_DDEN", "Dry Density"},        IndexTest{"CLSS_HVP", "Hand Vane Peak"},
    IndexTest{"CLSS_HVR", "Hand Vane Remoulded"}, IndexTest{"CLSS_VNPK", "Lab Vane Peak"},
    IndexTest{"CLSS_VNRM", "Lab Vane Remoulded"}, IndexTest{"CLSS_LS", "Linear Shrinkage"},
    IndexTest{"CLSS_LL", "Liquid Limit"},         IndexTest{"CLSS_NMC", "Natural Moisture Content"},
    IndexTest{"CLSS_PD", "Particle Density"},     IndexTest{"CLSS_PL", "Plastic Limit"},
    IndexTest{"CLSS_PPEN", "Pocket Pen"},         IndexTest{"CLSS_SLIM", "Shrinkage Limit"}};
static_assert(std::ranges::is_sorted(IndexTests, {}, &IndexTest::label));

using IndexTestCounts = std::array<std::int64_t, IndexTests.size()>;

class StatisticsWriter {
 public:
  StatisticsWriter(RunLog& runLog, const GroupTable& table, const AgsDictionary& dictionary,
                   AgsFormat format, StatisticsState& state)
      : runLog_(runLog),
        table_(table),
        dictionary_(dictionary),
        format_(format),
        state_(state),
        locationGroup_(dictionary.LocationGroup),
        locationKey_(dictionary.LocationKey),
        locationGroups_(table.GroupIndexList(locationGroup_)) {
    for (int group = 1; group <= table.GroupCount(); ++group) {
      rowsByName_[table.At(group).name] += table.At(group).rowCount;
    }
  }

  void Write() {
    runLog_.AppendProgress("DATA STATISTICS");
    runLog_.AppendProgress("These statistics must NOT be relied upon for measurement purposes.");
    runLog_.AppendProgress(
        "Use them as one source of information that needs to be cross checked with other sources.");
    WriteLocations();
    if (WriteRecordCounts()) WriteDataSections();
    runLog_.AppendProgress(std::string(39, '*') + std::string(LineBreak));
  }

 private:
  void WriteDataSections() {
    if (StartLocationSection("Number of holes of each type with total drilling length.")) {
      WriteHolesByType(runLog_, table_, locationGroup_, locationGroups_);
    }
    WriteSamplesByType();
    if (StartLocationSection("Site Geometry")) {
      WriteSiteGeometry(runLog_, table_, locationGroup_, locationGroups_);
    }
    if (format_ == AgsFormat::Ags3) WriteIndexTests();
    WriteHolesWithout("GEOL");
    WriteHolesWithout("SAMP");
    WriteGroupsWithoutData();
  }

  void StartSection(std::string_view title) {
    runLog_.AppendProgress(std::string(LineBreak) + std::to_string(++sectionCount_) + ". " +
                           std::string(title));
  }

  /// Begins a section on locations; false when nothing more is to be said in it.
  bool StartLocationSection(std::string_view title) {
    StartSection(title);
    if (locationGroups_.empty()) {
      WriteIndented("There is no " + locationGroup_ + " group in the file.");
      return false;
    }
    if (state_.hasNoLocationData) {
      WriteIndented("There are no " + locationGroup_ + " group data records.");
      return false;
    }
    return true;
  }

  void WriteIndented(const std::string& text) { runLog_.AppendProgress("  " + text); }

  /// Each on a line of its own. Lists may be long; they are written in one piece.
  void WriteIndented(const std::vector<std::string>& lines) {
    WriteIndented(Join(lines, std::string(LineBreak) + "  "));
  }

  void WriteLocations() {
    StartSection("List of " + locationKey_ + "s in the file.");
    if (!state_.hasNoLocationData) CollectLocations();
    if (locations_.empty()) {
      runLog_.AppendProgress("None");
      return;
    }
    runLog_.AppendProgress("Total number of " + locationKey_ +
                           "s: " + std::to_string(locations_.size()));
    WriteIndented(locations_);
  }

  void CollectLocations() {
    for (const int group : locationGroups_) {
      for (std::int32_t row = 1; row <= table_.At(group).rowCount; ++row) {
        std::string key = table_.KeyText(group, row);
        if (!key.empty()) locations_.push_back(std::move(key));
      }
    }
  }

  /// False when no group has any row.
  bool WriteRecordCounts() {
    StartSection("Number of records in each group with data.");
    std::vector<std::string> lines;
    for (const auto& [name, rowCount] : rowsByName_) {
      if (rowCount == 0) continue;
      lines.push_back(name + "  " + GroupedCount(static_cast<std::uint64_t>(rowCount)));
    }
    if (lines.empty()) {
      WriteIndented("There are no data.");
      return false;
    }
    std::sort(lines.begin(), lines.end());
    WriteIndented(lines);
    return true;
  }

  void WriteSamplesByType() {
    StartSection("Number of samples of each type.");
    const std::vector<int> groups = table_.GroupIndexList("SAMP");
    if (groups.empty()) {
      WriteIndented("There is no SAMP group in the file.");
      return;
    }
    TallyList types;
    for (const int group : groups)
      CountSampleTypes(group, types);
    if (types.IsEmpty()) WriteIndented("No sample types found.");
    for (const auto& [type, tally] : types.All()) {
      WriteIndented(type + "  " + std::to_string(tally.count));
    }
  }

  void CountSampleTypes(int group, TallyList& types) const {
    const int column = table_.FindHeading("SAMP_TYPE", group);
    if (column == 0) return;
    UpperCaseValue value;
    for (std::int32_t row = 1; row <= table_.At(group).rowCount; ++row) {
      const std::string_view type = value.Trimmed(table_.Value(group, row, column));
      if (!type.empty()) ++types.TallyFindOrAdd(type).count;
    }
  }

  void WriteIndexTests() {
    StartSection("Number of Index tests in CLSS group.");
    const std::vector<int> groups = table_.GroupIndexList("CLSS");
    if (groups.empty()) {
      WriteIndented("There is no CLSS group in the file.");
      return;
    }
    IndexTestCounts counts{};
    for (const int group : groups)
      CountIndexTests(group, counts);
    bool hasTests = false;
    for (std::size_t index = 0; index < IndexTests.size(); ++index) {
      if (counts[index] == 0) continue;
      hasTests = true;
      const IndexTest& test = IndexTests[index];
      runLog_.AppendProgress(std::string(test.label) + " (" + std::string(test.heading) + ")  " +
                             std::to_string(counts[index]));
    }
    if (!hasTests) WriteIndented("There are no index test data in the CLSS table.");
  }

  void CountIndexTests(int group, IndexTestCounts& counts) const {
    std::array<int, IndexTests.size()> columns{};
    for (std::size_t index = 0; index < columns.size(); ++index) {
      columns[index] = table_.FindHeading(IndexTests[index].heading, group);
    }
    for (std::int32_t row = 1; row <= table_.At(group).rowCount; ++row) {
      for (std::size_t index = 0; index < columns.size(); ++index) {
        if (columns[index] == 0 || table_.Value(group, row, columns[index]).empty()) continue;
        ++counts[index];
      }
    }
  }

  void WriteHolesWithout(const std::string& groupName) {
    if (!StartLocationSection("Holes with no data in '" + groupName + "' group.")) return;
    if (locations_.empty()) {
      WriteIndented("There are no " + locationKey_ + "s defined in this file.");
      return;
    }
    const std::vector<int> groups = table_.GroupIndexList(groupName);
    if (groups.empty()) {
      WriteIndented("The '" + groupName + "' group does not exist in this file.");
      return;
    }
    const std::unordered_set<std::string> withData = LocationsIn(groups);
    std::vector<std::string> without;
    for (const std::string& location : locations_) {
      if (!withData.contains(UpperCase(location))) without.push_back(location);
    }
    if (without.empty()) {
      WriteIndented("All Holes have data in this group.");
    } else {
      WriteIndented(without);
    }
  }

  /// The locations that some groups have rows for, in upper case.
  std::unordered_set<std::string> LocationsIn(const std::vector<int>& groups) const {
    std::unordered_set<std::string_view> values;  // most rows repeat a value met before
    std::unordered_set<std::string> locations;
    for (const int group : groups) {
      const int column = table_.FindHeading(locationKey_, group);
      if (column == 0) continue;
      std::string_view previous;
      for (std::int32_t row = 1; row <= table_.At(group).rowCount; ++row) {
        const std::string_view value = table_.Value(group, row, column);
        if (value == previous) continue;
        previous = value;
        if (values.insert(value).second) locations.insert(UpperCase(value));
      }
    }
    return locations;
  }

  void WriteGroupsWithoutData() {
    StartSection("Groups with no data or standard AGS groups missing from file.");
    state_.hasNoLocationData = false;
    std::vector<std::string> names;
    for (const auto& [name, rowCount] : rowsByName_) {
      if (rowCount > 0) continue;
      names.push_back(name);
      if (name == locationGroup_) state_.hasNoLocationData = true;
    }
    for (const DictGroup& group : dictionary_.Groups) {
      if (table_.FindGroup(group.Name) == 0) names.push_back(group.Name);
    }
    if (names.empty()) {
      WriteIndented("All groups had some data and all AGS standard groups are in file.");
      return;
    }
    std::sort(names.begin(), names.end());
    WriteIndented(names);
  }

  RunLog& runLog_;
  const GroupTable& table_;
  const AgsDictionary& dictionary_;
  AgsFormat format_;
  StatisticsState& state_;
  const std::string& locationGroup_;
  const std::string& locationKey_;
  std::vector<int> locationGroups_;
  std::map<std::string, std::int64_t> rowsByName_;  // groups of the same name are one
  std::vector<std::string> locations_;              // the key texts of the location groups' rows
  int sectionCount_ = 0;
};

}  // namespace

void WriteDataStatistics(RunLog& runLog, const GroupTable& table, const AgsDictionary& dictionary,
                         AgsFormat format, StatisticsState& state) {
  StatisticsWriter(runLog, table, dictionary, format, state).Write();
}

}  // namespace quorvane
