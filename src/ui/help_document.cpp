#include "ui/help_document.h"

#include "text/text.h"

namespace quorvane {
namespace {

constexpr std::string_view UtilitiesFolder = "\\ags_utilities\\quorvane";
constexpr std::string_view DocumentName = "vexo_quorvane.pdf";

bool IsSeparator(char letter) {
  return letter == '\\' || letter == '/';
}

std::string WithBackslashes(std::string_view path) {
  std::string result(path);
  for (char& letter : result) {
    if (IsSeparator(letter)) letter = '\\';
  }
  return result;
}

bool EndsIn(std::string_view folder, std::string_view end) {
  return folder.size() >= end.size() &&
         EqualsIgnoringCase(WithBackslashes(folder.substr(folder.size() - end.size())), end);
}

/// Where the path goes through the utilities folder; npos when it does not.
std::size_t FindUtilitiesFolder(std::string_view folder) {
  const std::string path = WithBackslashes(folder);
  std::size_t found = FindIgnoringCase(path, UtilitiesFolder);
  while (found != std::string::npos) {
    const std::size_t end = found + UtilitiesFolder.size();
    if (end == path.size() || IsSeparator(path[end])) return found;
    found = FindIgnoringCase(path, UtilitiesFolder, end);
  }
  return found;
}

std::string BaseFolder(std::string_view folder) {
  std::string base(folder);
  if (const std::size_t found = FindUtilitiesFolder(folder); found != std::string::npos) {
    return base.erase(found, UtilitiesFolder.size());
  }
  for (const std::string_view end : {"\\agsbin", "\\bin"}) {
    if (EndsIn(folder, end)) {
      base.resize(base.size() - end.size());
      return base;
    }
  }
  return base;
}

}  // namespace

std::string HelpDocument(std::string_view programFolder) {
  const char separator = programFolder.find('\\') == std::string_view::npos ? '/' : '\\';
  std::string path = BaseFolder(programFolder);
  path.push_back(separator);
  path.append("docs").push_back(separator);
  return path.append(DocumentName);
}

}  // namespace quorvane
