#pragma once

#include <chrono>
#include <string>

#include "run/environment.h"

namespace quorvane {

/// The environment of this process.
class SystemEnvironment : public Environment {
 public:
  std::string UserName() const override;
  std::string ComputerName() const override;
  std::string ProgramFolder() const override;
  std::chrono::system_clock::time_point Now() const override;
  std::string FormatDateTime(std::chrono::system_clock::time_point moment) const override;
};

}  // namespace quorvane
