#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace quorvane {

/// The version of this program.
inline constexpr std::string_view ProgramVersion = "10.00.01.07";

/// Where and when the program runs. A program uses the system's; tests have their own.
class Environment {
 public:
  virtual ~Environment() = default;

  /// The user's and the computer's name; "?" when unknown.
  virtual std::string UserName() const = 0;
  virtual std::string ComputerName() const = 0;

  /// The folder of the program file itself, behind any link, without a separator at its end.
  virtual std::string ProgramFolder() const = 0;

  virtual std::chrono::system_clock::time_point Now() const = 0;

  /// A moment in the user's time zone: the short date of the user's locale, a blank, and its time.
  virtual std::string FormatDateTime(std::chrono::system_clock::time_point moment) const = 0;
};

/// The first line of every log.
std::string TitleLine(const Environment& environment);

/// What the About box says.
std::string AboutText(const Environment& environment);

}  // namespace quorvane
