#pragma once

#include <string>
#include <vector>

namespace quorvane {

/// The desktop program. The arguments, without the program's own name, are UTF-8 on Windows and the
/// bytes of the command line elsewhere. Returns the exit status.
int RunDesktopProgram(const std::vector<std::string>& arguments);

}  // namespace quorvane
