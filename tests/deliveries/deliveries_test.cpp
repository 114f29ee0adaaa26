// Runs over a folder of real deliveries, which the build names: whatever is in it, each file gets
// its report, without a message box and without a failure that a sanitizer would see.

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "run/check_run.h"
#include "run/system_disk.h"
#include "support/fake_services.h"

namespace quorvane::test {
namespace {

namespace fs = std::filesystem;

/// The program folder of the build, where the schema files are.
class BuildEnvironment : public FixedEnvironment {
 public:
  std::string ProgramFolder() const override { return QUORVANE_SCHEMA_FOLDER; }
};

std::vector<fs::path> Deliveries() {
  std::vector<fs::path> paths;
  for (const auto& entry : fs::recursive_directory_iterator(QUORVANE_SMOKE_FOLDER)) {
    if (entry.is_regular_file() && entry.path().extension() != ".md") paths.push_back(entry.path());
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

class Delivery : public testing::TestWithParam<fs::path> {};

TEST_P(Delivery, GetsItsReport) {
  FakeServices services;
  SystemDisk disk;
  BuildEnvironment environment;
  services.window.settings.filesToCheck = GetParam().string();
  services.window.settings.listings = {true, true, true};
  services.window.settings.showStatistics = true;
  CheckRun run({disk, environment, services.messages, services.progressBox, services.window,
                services.parentChoice});
  EXPECT_NE(run.ExecuteChecking(), CheckStatus::NotDone);
  EXPECT_EQ(services.messages.boxes, std::vector<std::string>{});
  EXPECT_NE(run.LogText().find("SUMMARY:  "), std::string::npos);
  EXPECT_TRUE(run.LogText().ends_with("*\r\n\r\n"));
}

std::string CaseName(const testing::TestParamInfo<fs::path>& delivery) {
  return "file_" + std::to_string(delivery.index);
}

INSTANTIATE_TEST_SUITE_P(Folder, Delivery, testing::ValuesIn(Deliveries()), CaseName);

}  // namespace
}  // namespace quorvane::test
