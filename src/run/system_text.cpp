#include "run/system_text.h"

#if defined(_WIN32)
#include <windows.h>
#endif

namespace quorvane {

#if defined(_WIN32)
namespace {

constexpr UINT WesternCodePage = 1252;

/// The code page of the user's text files. The programs declare UTF-8 as their own, so it is the
/// locale that must be asked. Locales without an ANSI code page answer 0.
UINT AnsiCodePage() {
  DWORD codePage = 0;
  GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                  reinterpret_cast<LPWSTR>(&codePage), sizeof codePage / sizeof(WCHAR));
  return codePage == 0 ? WesternCodePage : codePage;
}

/// Decodes a text; empty when it is not valid in the code page, if the flags ask for that.
std::wstring Decode(std::string_view text, UINT codePage, DWORD flags) {
  const int size = static_cast<int>(text.size());
  const int length = MultiByteToWideChar(codePage, flags, text.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(codePage, flags, text.data(), size, wide.data(), length);
  return wide;
}

}  // namespace

std::wstring Widen(std::string_view text, unsigned int otherCodePage) {
  const std::wstring wide = Decode(text, CP_UTF8, MB_ERR_INVALID_CHARS);
  return wide.empty() ? Decode(text, otherCodePage, 0) : wide;
}

std::string Narrow(std::wstring_view text) {
  const int length = static_cast<int>(text.size());
  const int size =
      WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), length, narrow.data(), size, nullptr, nullptr);
  return narrow;
}

std::filesystem::path SystemPath(std::string_view path) {
  return Widen(path, AnsiCodePage());
}

std::string PathText(const std::filesystem::path& path) {
  return Narrow(path.native());
}

std::vector<std::string> ProgramArguments(int /*argumentCount*/, const char* const* /*arguments*/) {
  std::vector<std::string> texts;
  int count = 0;
  wchar_t** const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int index = 1; arguments != nullptr && index < count; ++index)
    texts.push_back(Narrow(arguments[index]));
  LocalFree(arguments);
  return texts;
}
#else
std::filesystem::path SystemPath(std::string_view path) {
  return path;
}

std::string PathText(const std::filesystem::path& path) {
  return path.native();
}

std::vector<std::string> ProgramArguments(int argumentCount, const char* const* arguments) {
  return argumentCount < 1 ? std::vector<std::string>()
                           : std::vector<std::string>(arguments + 1, arguments + argumentCount);
}
#endif

}  // namespace quorvane
