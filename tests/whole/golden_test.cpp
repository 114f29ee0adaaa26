#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "run/message_catalogue.h"
#include "support/check_text.h"
#include "text/comma_list.h"

namespace quorvane::test {
namespace {

namespace fs = std::filesystem;

/// Beside its data files a folder holds the expected log and may hold a file of options, one per
/// line: groups, lines, severity (listings), no-fyi, statistics; and a schema to check against.
constexpr const char* ExpectedLogName = "expected.log";
constexpr const char* OptionsName = "options";
constexpr const char* SchemaName = "custom.gas";

std::string ReadWhole(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<fs::path> CaseFolders() {
  std::vector<fs::path> folders;
  for (const auto& entry :
       fs::directory_iterator(fs::path(QUORVANE_SOURCE_FOLDER) / "tests/golden")) {
    if (entry.is_directory()) folders.push_back(entry.path());
  }
  std::sort(folders.begin(), folders.end());
  return folders;
}

bool IsDataFile(const fs::path& path) {
  const std::string name = path.filename().string();
  return name != ExpectedLogName && name != OptionsName && name != SchemaName &&
         path.extension() != ".md";
}

CheckSettings ReadOptions(const fs::path& folder) {
  CheckSettings settings;
  const std::string options = ReadWhole(folder / OptionsName);
  const std::vector<std::string_view> lines = SplitLines(options);
  const auto has = [&lines](std::string_view option) {
    return std::find(lines.begin(), lines.end(), option) != lines.end();
  };
  const ListingChoice listings{has("groups"), has("lines"), has("severity")};
  if (listings.Any()) settings.listings = listings;
  settings.suppressFyi = has("no-fyi");
  settings.showStatistics = has("statistics");
  return settings;
}

std::string CheckCase(const fs::path& folder, const std::vector<NamedFile>& files) {
  const CheckSettings settings = ReadOptions(folder);
  if (!fs::exists(folder / SchemaName)) return CheckFiles(files, settings).log;
  return CheckFilesAgainst(ReadWhole(folder / SchemaName), files, settings).log;
}

class Golden : public testing::TestWithParam<fs::path> {};

// The bytes of a whole report. When a report is meant to change, run the test with
// QUORVANE_WRITE_GOLDEN=1 in the environment and read the difference line by line.
TEST_P(Golden, LogIsAsExpected) {
  std::vector<NamedFile> files;
  for (const auto& entry : fs::directory_iterator(GetParam())) {
    if (!IsDataFile(entry.path())) continue;
    files.push_back({entry.path().filename().string(), ReadWhole(entry.path())});
  }
  std::sort(files.begin(), files.end(),
            [](const NamedFile& left, const NamedFile& right) { return left.name < right.name; });
  ASSERT_FALSE(files.empty());

  const std::string log = CheckCase(GetParam(), files);
  const fs::path expectedLog = GetParam() / ExpectedLogName;
  if (std::getenv("QUORVANE_WRITE_GOLDEN") != nullptr) {
    std::ofstream(expectedLog, std::ios::binary) << log;
  }
  EXPECT_EQ(log, ReadWhole(expectedLog));
}

std::string CaseName(const testing::TestParamInfo<fs::path>& info) {
  std::string name = info.param.filename().string();
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Cases, Golden, testing::ValuesIn(CaseFolders()), CaseName);

}  // namespace
}  // namespace quorvane::test
