#include "run/system_environment.h"

#include <array>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <initializer_list>
#include <iomanip>
#include <locale>
#include <sstream>
#include <system_error>

#if defined(_WIN32)
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace quorvane {
namespace {

constexpr const char* Unknown = "?";

/// The first of some environment variables that is set and not empty.
std::string FirstVariable(std::initializer_list<const char*> names) {
  for (const char* name : names) {
    const char* value = std::getenv(name);
    if (value != nullptr && *value != '\0') return value;
  }
  return {};
}

std::string HostName() {
#if defined(_WIN32)
  return {};  // COMPUTERNAME is always set there
#else
  std::array<char, 256> name{};
  return gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
#endif
}

std::filesystem::path ProgramFile() {
#if defined(_WIN32)
  std::array<wchar_t, 32768> path{};
  const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  return std::wstring(path.data(), length);
#else
  std::error_code failure;
  return std::filesystem::read_symlink("/proc/self/exe", failure);
#endif
}

/// The locale that the user has set; the plain one where the system does not know it.
std::locale UserLocale() {
  try {
    return std::locale("");
  } catch (const std::runtime_error&) {
    return std::locale::classic();
  }
}

}  // namespace

std::string SystemEnvironment::UserName() const {
  const std::string name = FirstVariable({"USERNAME", "USER", "LOGNAME"});
  return name.empty() ? Unknown : name;
}

std::string SystemEnvironment::ComputerName() const {
  std::string name = FirstVariable({"COMPUTERNAME"});
  if (name.empty()) name = HostName();
  return name.empty() ? Unknown : name;
}

std::string SystemEnvironment::ProgramFolder() const {
  return ProgramFile().parent_path().string();
}

std::chrono::system_clock::time_point SystemEnvironment::Now() const {
  return std::chrono::system_clock::now();
}

std::string SystemEnvironment::FormatDateTime(std::chrono::system_clock::time_point moment) const {
  const std::time_t time = std::chrono::system_clock::to_time_t(moment);
  const std::tm* local = std::localtime(&time);
  if (local == nullptr) return Unknown;
  std::ostringstream text;
  text.imbue(UserLocale());
  text << std::put_time(local, "%x %X");
  return text.str();
}

}  // namespace quorvane
