#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// How the paths of a system are written.
enum class PathStyle {
  Posix,    // "/" parts the folders
  Windows,  // "\" does so too; drives and servers
};

#if defined(_WIN32)
inline constexpr PathStyle SystemPathStyle = PathStyle::Windows;
#else
inline constexpr PathStyle SystemPathStyle = PathStyle::Posix;
#endif

/// The path of a file as a URI: "file:///..." for an absolute path, a relative reference for any
/// other. "." parts are left out, ".." parts stay. Bytes that a URI does not hold as they are stand
/// in it as "%" and two hexadecimal digits.
std::string FileUri(std::string_view path, PathStyle style = SystemPathStyle);

}  // namespace quorvane
