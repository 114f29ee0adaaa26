#include "findings/html_page.h"

#include <cstdint>

#include "findings/sha256.h"

namespace quorvane {
namespace {

unsigned ValueOfDigit(char digit) {
  return static_cast<unsigned>(digit <= '9' ? digit - '0' : digit - 'a' + 10);
}

/// Hexadecimal digits in lower case, of whole bytes, as Base64.
std::string HexadecimalToBase64(std::string_view digits) {
  constexpr std::string_view letters =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  std::uint32_t bits = 0;
  unsigned bitCount = 0;
  for (const char digit : digits) {
    bits = (bits << 4U) | ValueOfDigit(digit);
    bitCount += 4;
    if (bitCount < 6) continue;
    bitCount -= 6;
    text.push_back(letters[(bits >> bitCount) & 0x3FU]);
  }
  if (bitCount > 0) text.push_back(letters[(bits << (6 - bitCount)) & 0x3FU]);
  while (text.size() % 4 != 0)
    text.push_back('=');
  return text;
}

}  // namespace

std::string PolicySource(std::string_view content) {
  return "'sha256-" + HexadecimalToBase64(Sha256(content)) + "'";
}

}  // namespace quorvane
