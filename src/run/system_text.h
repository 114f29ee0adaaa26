#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// The core holds paths and names as bytes. Systems with byte paths take them as they are. On
/// Windows, whose own texts are UTF-16, they are UTF-8; a path that is no valid UTF-8 comes from a
/// text file of the system's ANSI code page and is read in that.

/// A path that the user or the system gave, as the system's own routines take it.
std::filesystem::path SystemPath(std::string_view path);

/// The same the other way: a path that the system's own routines gave.
std::string PathText(const std::filesystem::path& path);

/// The arguments of the program without its own name. On Windows they come from the system, because
/// those of main have lost the letters outside the ANSI code page.
std::vector<std::string> ProgramArguments(int argumentCount, const char* const* arguments);

#if defined(_WIN32)
/// The text in UTF-16: from UTF-8, or from this code page when it is no valid UTF-8.
std::wstring Widen(std::string_view text, unsigned int otherCodePage);

/// The text in UTF-8; what is no valid UTF-16 becomes the replacement character.
std::string Narrow(std::wstring_view text);
#endif

}  // namespace quorvane
