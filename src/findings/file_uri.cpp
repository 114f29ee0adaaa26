#include "findings/file_uri.h"

#include <algorithm>

#include "text/comma_list.h"
#include "text/text.h"

namespace quorvane {
namespace {

bool IsLetter(char letter) {
  return ToUpper(letter) >= 'A' && ToUpper(letter) <= 'Z';
}

bool StandsInUri(char letter) {
  constexpr std::string_view marks = "-._~";
  return IsLetter(letter) || IsDigit(letter) || marks.find(letter) != std::string_view::npos;
}

void AppendEncoded(std::string& uri, std::string_view part) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  for (const char letter : part) {
    const auto code = static_cast<unsigned char>(letter);
    if (StandsInUri(letter)) {
      uri.push_back(letter);
    } else {
      uri.append("%").append(1, digits[code >> 4U]).append(1, digits[code & 0x0FU]);
    }
  }
}

/// The parts of a path between its slashes, encoded.
std::string EncodedParts(std::string_view path) {
  std::string uri;
  for (const std::string_view part : Split(path, "/")) {
    if (part.empty() || part == ".") continue;
    if (!uri.empty()) uri.push_back('/');
    AppendEncoded(uri, part);
  }
  return uri;
}

bool BeginsWithDrive(std::string_view path) {
  return path.size() >= 3 && IsLetter(path[0]) && path[1] == ':' && path[2] == '/';
}

}  // namespace

std::string FileUri(std::string_view path, PathStyle style) {
  if (style == PathStyle::Posix)
    return (path.starts_with('/') ? "file:///" : "") + EncodedParts(path);
  std::string slashed(path);
  std::replace(slashed.begin(), slashed.end(), '\\', '/');
  if (BeginsWithDrive(slashed))
    return "file:///" + slashed.substr(0, 2) + "/" + EncodedParts(slashed.substr(3));
  if (slashed.starts_with("//")) return "file://" + EncodedParts(slashed);
  return (slashed.starts_with('/') ? "file:///" : "") + EncodedParts(slashed);
}

}  // namespace quorvane
