#include "run/environment.h"

#include "text/text.h"

namespace quorvane {
namespace {

std::string RunningIn(const Environment& environment) {
  return "running in environment " + environment.UserName() + " on " + environment.ComputerName();
}

}  // namespace

std::string TitleLine(const Environment& environment) {
  return "Quorvane for AGS Versions 3 and 4, Version " + std::string(ProgramVersion) + ", " +
         RunningIn(environment);
}

std::string AboutText(const Environment& environment) {
  std::string text = "Quorvane";
  text.append(LineBreak).append("for AGS Versions 3 and 4");
  text.append(LineBreak).append("Version ").append(ProgramVersion);
  text.append(LineBreak).append(RunningIn(environment));
  text.append(LineBreak).append("Date/Time: ");
  return text.append(environment.FormatDateTime(environment.Now()));
}

}  // namespace quorvane
