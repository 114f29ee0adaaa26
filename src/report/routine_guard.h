#pragma once

#include <exception>
#include <string>
#include <string_view>

#include "report/user_interface.h"

namespace quorvane {

/// Runs a major routine and turns an unexpected failure in it into the critical box that names the
/// routine, so that its caller can go on. Returns false when the routine failed. Failures of the
/// kind Passed go through: somebody above is waiting for them.
template <typename Passed, typename Routine>
bool GuardRoutine(UserMessages& messages, std::string_view name, Routine&& routine) {
  try {
    routine();
    return true;
  } catch (const Passed&) {
    throw;
  } catch (const std::exception& failure) {
    messages.ShowBox("Quorvane Error",
                     "Error in " + std::string(name) + ": " + std::string(failure.what()),
                     BoxKind::Critical);
    return false;
  }
}

}  // namespace quorvane
