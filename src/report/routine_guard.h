#pragma once

#include <exception>
#include <new>
#include <string>
#include <string_view>

#include "report/user_interface.h"

namespace quorvane {

/// The critical box that names a routine that failed.
inline void ShowRoutineFailure(UserMessages& messages, std::string_view name,
                               std::string_view reason) {
  std::string text = "Error in ";
  text.append(name).append(": ").append(reason);
  messages.ShowBox("Quorvane Error", text, BoxKind::Critical);
}

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
  } catch (const std::bad_alloc&) {
    ShowRoutineFailure(messages, name, "Not enough memory");
  } catch (const std::exception& failure) {
    ShowRoutineFailure(messages, name, failure.what());
  }
  return false;
}

}  // namespace quorvane
