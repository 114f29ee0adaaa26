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

#include "run/system_text.h"
#else
#include <unistd.h>
#endif

namespace quorvane {
namespace {

constexpr const char* Unknown = "?";

#if defined(_WIN32)
std::string Variable(const std::string& name) {
  const wchar_t* value = _wgetenv(std::wstring(name.begin(), name.end()).c_str());
  return value == nullptr ? std::string() : Narrow(value);
}

std::string HostName() {
  return {};  // COMPUTERNAME is always set there
}

std::string ProgramFileFolder() {
  std::wstring path(32768, L'\0');
  const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  path.resize(length);
  return Narrow(std::filesystem::path(path).parent_path().wstring());
}

/// What one of the system's routines for dates and times writes, without the 0 at its end.
template <typename Routine>
std::string Formatted(const Routine& routine) {
  std::wstring text(256, L'\0');
  const int size = routine(text.data(), static_cast<int>(text.size()));
  text.resize(size > 0 ? static_cast<std::size_t>(size) - 1 : 0);
  return Narrow(text);
}

/// The date and the time as the user has set them in the system's settings.
std::string FormatLocalTime(const std::tm& local) {
  SYSTEMTIME time{};
  time.wYear = static_cast<WORD>(local.tm_year + 1900);
  time.wMonth = static_cast<WORD>(local.tm_mon + 1);
  time.wDay = static_cast<WORD>(local.tm_mday);
  time.wHour = static_cast<WORD>(local.tm_hour);
  time.wMinute = static_cast<WORD>(local.tm_min);
  time.wSecond = static_cast<WORD>(local.tm_sec);
  const std::string date = Formatted([&time](wchar_t* text, int size) {
    return GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &time, nullptr, text, size,
                           nullptr);
  });
  return date + " " + Formatted([&time](wchar_t* text, int size) {
           return GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &time, nullptr, text, size);
         });
}
#else
std::string Variable(const std::string& name) {
  const char* value = std::getenv(name.c_str());
  return value == nullptr ? "" : value;
}

std::string HostName() {
  std::array<char, 256> name{};
  return gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

std::string ProgramFileFolder() {
  std::error_code failure;
  return std::filesystem::read_symlink("/proc/self/exe", failure).parent_path().string();
}

/// The locale that the user has set; the plain one where the system does not know it.
std::locale UserLocale() {
  try {
    return std::locale("");
  } catch (const std::runtime_error&) {
    return std::locale::classic();
  }
}

std::string FormatLocalTime(const std::tm& local) {
  std::ostringstream text;
  text.imbue(UserLocale());
  text << std::put_time(&local, "%x %X");
  return text.str();
}
#endif

/// The first of some environment variables that is set and not empty.
std::string FirstVariable(std::initializer_list<const char*> names) {
  for (const char* name : names) {
    if (std::string value = Variable(name); !value.empty()) return value;
  }
  return {};
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
  return ProgramFileFolder();
}

std::chrono::system_clock::time_point SystemEnvironment::Now() const {
  return std::chrono::system_clock::now();
}

std::string SystemEnvironment::FormatDateTime(std::chrono::system_clock::time_point moment) const {
  const std::time_t time = std::chrono::system_clock::to_time_t(moment);
  const std::tm* local = std::localtime(&time);
  return local == nullptr ? Unknown : FormatLocalTime(*local);
}

}  // namespace quorvane
