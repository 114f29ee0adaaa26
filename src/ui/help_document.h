#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// The path of the help document, which follows from the folder of the program. In that folder's
/// path "\ags_utilities\quorvane" is left out when it lies in or under such a folder; else an
/// "\agsbin" at its end, else a "\bin" at its end. The document lies in "docs" below what remains.
/// Letter case does not matter, and "/" counts as "\".
std::string HelpDocument(std::string_view programFolder);

}  // namespace quorvane
