#include "text/terminal_text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace quorvane {
namespace {

bool IsContinuationByte(unsigned char byte) {
  return (byte & 0xC0U) == 0x80U;
}

/// The number of bytes of the UTF-8 letter that a text begins with; 0 when it begins with none.
/// Overlong forms and surrogates, which decoders take in ways of their own, are none.
std::size_t LetterLength(std::string_view text) {
  const auto byteAt = [text](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const unsigned char first = byteAt(0);
  std::size_t length = 0;
  if (first >= 0xC2U && first <= 0xDFU) length = 2;
  if (first >= 0xE0U && first <= 0xEFU) length = 3;
  if (first >= 0xF0U && first <= 0xF4U) length = 4;
  if (length == 0 || text.size() < length) return 0;
  for (std::size_t at = 1; at < length; ++at) {
    if (!IsContinuationByte(byteAt(at))) return 0;
  }
  const unsigned char second = byteAt(1);
  const bool isOverlong = (first == 0xE0U && second < 0xA0U) || (first == 0xF0U && second < 0x90U);
  const bool isNoLetter = (first == 0xEDU && second > 0x9FU) || (first == 0xF4U && second > 0x8FU);
  return isOverlong || isNoLetter ? 0 : length;
}

/// Letters that act on the lines around them: the second set of control characters, the line and
/// paragraph separators, and those that turn the direction of writing.
bool IsControlLetter(std::string_view letter) {
  if (letter.size() == 2) return letter[0] == '\xC2' && letter[1] < '\xA0';
  if (letter.size() != 3 || letter[0] != '\xE2') return false;
  const auto last = static_cast<unsigned char>(letter[2]);
  if (letter[1] == '\x80') return last >= 0xA8U && last <= 0xAEU;
  return letter[1] == '\x81' && last >= 0xA6U && last <= 0xA9U;
}

bool IsControlByte(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return (code < 0x20U && byte != '\t') || (code >= 0x7FU && code < 0xA0U);
}

void AppendEscaped(std::string& shown, std::string_view bytes) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  for (const char byte : bytes) {
    const auto code = static_cast<unsigned char>(byte);
    shown.append("\\x").append(1, digits[code >> 4U]).append(1, digits[code & 0x0FU]);
  }
}

}  // namespace

std::string TerminalText(std::string_view line) {
  std::string shown;
  shown.reserve(line.size());
  while (!line.empty()) {
    const std::size_t letterLength = LetterLength(line);
    const std::string_view letter = line.substr(0, std::max<std::size_t>(letterLength, 1));
    const bool isControl =
        letterLength > 0 ? IsControlLetter(letter) : IsControlByte(letter.front());
    if (isControl) {
      AppendEscaped(shown, letter);
    } else {
      shown.append(letter);
    }
    line.remove_prefix(letter.size());
  }
  return shown;
}

}  // namespace quorvane
