#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// Text in Quorvane is bytes of a single-byte code page. Positions and lengths count bytes, and
/// letter case means the letters A-Z and a-z only, in every locale.

/// The line break of everything that Quorvane writes.
inline constexpr std::string_view LineBreak = "\r\n";

constexpr char ToUpper(char letter) {
  return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - ('a' - 'A')) : letter;
}

constexpr char ToLower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

constexpr bool IsDigit(char letter) {
  return letter >= '0' && letter <= '9';
}

std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);

/// True when the upper-case form of the text is the text itself.
bool IsUpperCase(std::string_view text);

/// Equality without regard to letter case.
bool EqualsIgnoringCase(std::string_view left, std::string_view right);

bool StartsWithIgnoringCase(std::string_view text, std::string_view prefix);

/// Position of the first occurrence of the needle from the start position on, without regard to
/// letter case; npos when there is none. Cost is the product of both lengths: the needles are
/// short names.
std::size_t FindIgnoringCase(std::string_view text, std::string_view needle, std::size_t start = 0);

/// The text without the blanks (and only blanks, no tabs) at its right end; the result is a view
/// into the argument.
constexpr std::string_view TrimRight(std::string_view text) {
  while (!text.empty() && text.back() == ' ')
    text.remove_suffix(1);
  return text;
}

/// The text without the blanks at both ends; the result is a view into the argument.
constexpr std::string_view Trim(std::string_view text) {
  while (!text.empty() && text.front() == ' ')
    text.remove_prefix(1);
  return TrimRight(text);
}

/// The text with every occurrence of a character taken out.
std::string Without(std::string_view text, char unwanted);

/// The text with every occurrence of a non-empty text, found from left to right, replaced.
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);

}  // namespace quorvane
