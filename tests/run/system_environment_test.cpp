#include "run/system_environment.h"

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <locale>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#if !defined(_WIN32)
#include <unistd.h>
#endif

namespace quorvane::test {
namespace {

void SetVariable(const std::string& name, const std::optional<std::string>& value) {
#if defined(_WIN32)
  _putenv_s(name.c_str(), value.value_or("").c_str());
#else
  if (value) {
    setenv(name.c_str(), value->c_str(), 1);
  } else {
    unsetenv(name.c_str());
  }
#endif
}

/// Sets environment variables and puts the old ones back at the test's end.
class SystemEnvironmentTest : public testing::Test {
 protected:
  void TearDown() override {
    for (const auto& [name, value] : before_)
      SetVariable(name, value);
  }

  void Set(const std::string& name, const std::optional<std::string>& value) {
    const char* old = std::getenv(name.c_str());
    before_.try_emplace(name, old == nullptr ? std::nullopt : std::optional<std::string>(old));
    SetVariable(name, value);
  }

  SystemEnvironment environment_;

 private:
  std::map<std::string, std::optional<std::string>> before_;
};

TEST_F(SystemEnvironmentTest, UserNameIsTheFirstThatIsSet) {
  Set("USERNAME", "one");
  Set("USER", "two");
  Set("LOGNAME", "three");
  EXPECT_EQ(environment_.UserName(), "one");
  Set("USERNAME", std::nullopt);
  EXPECT_EQ(environment_.UserName(), "two");
  Set("USER", "");
  EXPECT_EQ(environment_.UserName(), "three");
  Set("LOGNAME", std::nullopt);
  EXPECT_EQ(environment_.UserName(), "?");
}

TEST_F(SystemEnvironmentTest, ComputerNameIsTheVariablesOrTheHosts) {
  Set("COMPUTERNAME", "bench");
  EXPECT_EQ(environment_.ComputerName(), "bench");
#if !defined(_WIN32)
  Set("COMPUTERNAME", std::nullopt);
  char host[256] = {};
  ASSERT_EQ(gethostname(host, sizeof host - 1), 0);
  EXPECT_EQ(environment_.ComputerName(), *host == '\0' ? "?" : host);
#endif
}

TEST_F(SystemEnvironmentTest, ProgramFolderHoldsTheProgram) {
  const std::filesystem::path folder = environment_.ProgramFolder();
  EXPECT_TRUE(folder.is_absolute());
  EXPECT_TRUE(folder.has_filename()) << "no separator at its end";
  EXPECT_TRUE(std::filesystem::exists(folder / "run_test") ||
              std::filesystem::exists(folder / "run_test.exe"))
      << folder;
}

TEST_F(SystemEnvironmentTest, NowIsTheSystemsTime) {
  const auto before = std::chrono::system_clock::now();
  const auto now = environment_.Now();
  const auto after = std::chrono::system_clock::now();
  EXPECT_LE(before, now);
  EXPECT_LE(now, after);
}

#if !defined(_WIN32)
constexpr std::time_t Moment = 1767323045;  // 2 January 2026, 03:04:05 UTC

std::string FormattedMoment(const SystemEnvironment& environment) {
  return environment.FormatDateTime(std::chrono::system_clock::from_time_t(Moment));
}

TEST_F(SystemEnvironmentTest, DateAndTimeStandInTheUsersTimeZone) {
  Set("LC_ALL", "C");
  Set("TZ", "UTC0");
  tzset();
  EXPECT_EQ(FormattedMoment(environment_), "01/02/26 03:04:05");
  Set("TZ", "XYZ-5:30");
  tzset();
  EXPECT_EQ(FormattedMoment(environment_), "01/02/26 08:34:05");
}

TEST_F(SystemEnvironmentTest, ALocaleThatTheSystemDoesNotKnowIsThePlainOne) {
  Set("LC_ALL", "xx_YY.nonsense");
  Set("TZ", "UTC0");
  tzset();
  EXPECT_EQ(FormattedMoment(environment_), "01/02/26 03:04:05");
}

/// Whether the system knows a locale; one that it does not know is as good as none.
bool IsInstalled(const char* name) {
  try {
    return !std::locale(name).name().empty();
  } catch (const std::runtime_error&) {
    return false;
  }
}

TEST_F(SystemEnvironmentTest, DateStandsInTheUsersLocale) {
  Set("LC_ALL", "en_GB.UTF-8");
  Set("TZ", "UTC0");
  tzset();
  EXPECT_EQ(FormattedMoment(environment_),
            IsInstalled("en_GB.UTF-8") ? "02/01/26 03:04:05" : "01/02/26 03:04:05");
}
#endif

}  // namespace
}  // namespace quorvane::test
