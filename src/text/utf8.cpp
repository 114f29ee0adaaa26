#include "text/utf8.h"

#include <algorithm>
#include <array>

namespace quorvane {
namespace {

constexpr char16_t NoCharacter = 0xFFFD;

/// The characters of the bytes 0x80 to 0x9F in Windows-1252.
constexpr std::array<char16_t, 32> Windows1252{
    0x20AC,      NoCharacter, 0x201A, 0x0192, 0x201E, 0x2026,      0x2020, 0x2021,
    0x02C6,      0x2030,      0x0160, 0x2039, 0x0152, NoCharacter, 0x017D, NoCharacter,
    NoCharacter, 0x2018,      0x2019, 0x201C, 0x201D, 0x2022,      0x2013, 0x2014,
    0x02DC,      0x2122,      0x0161, 0x203A, 0x0153, NoCharacter, 0x017E, 0x0178};

bool IsAscii(std::string_view bytes) {
  return std::all_of(bytes.begin(), bytes.end(),
                     [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

/// A character from U+0080 on, as none other is needed.
void AppendUtf8(std::string& text, char16_t character) {
  const unsigned code = character;
  if (code < 0x800) {
    text.push_back(static_cast<char>(0xC0U | (code >> 6U)));
  } else {
    text.push_back(static_cast<char>(0xE0U | (code >> 12U)));
    text.push_back(static_cast<char>(0x80U | ((code >> 6U) & 0x3FU)));
  }
  text.push_back(static_cast<char>(0x80U | (code & 0x3FU)));
}

/// Hands on the bytes piece by piece: valid sequences, and bytes that belong to none (length 0).
template <typename TakePiece>
void ForEachPiece(std::string_view bytes, TakePiece&& takePiece) {
  while (!bytes.empty()) {
    const std::size_t length = Utf8SequenceLength(bytes);
    takePiece(bytes, length);
    bytes.remove_prefix(std::max<std::size_t>(length, 1));
  }
}

}  // namespace

std::size_t Utf8SequenceLength(std::string_view bytes) {
  const auto at = [bytes](std::size_t index) { return static_cast<unsigned char>(bytes[index]); };
  const unsigned lead = at(0);
  if (lead < 0x80) return 1;
  if (lead < 0xC2 || lead > 0xF4) return 0;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (bytes.size() < length) return 0;
  // Overlong forms, surrogates and what lies beyond Unicode show in the second byte.
  const unsigned lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  const unsigned highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  if (at(1) < lowest || at(1) > highest) return 0;
  for (std::size_t index = 2; index < length; ++index) {
    if ((at(index) & 0xC0U) != 0x80) return 0;
  }
  return length;
}

char16_t FromWindows1252(unsigned char byte) {
  return byte < 0xA0 ? Windows1252[byte - 0x80U] : byte;
}

std::string ToUtf8(std::string_view bytes) {
  if (IsAscii(bytes)) return std::string(bytes);
  std::string text;
  text.reserve(bytes.size() + 8);
  ForEachPiece(bytes, [&text](std::string_view rest, std::size_t length) {
    if (length > 0) {
      text.append(rest.substr(0, length));
    } else {
      AppendUtf8(text, FromWindows1252(static_cast<unsigned char>(rest.front())));
    }
  });
  return text;
}

std::size_t CharacterCount(std::string_view bytes) {
  if (IsAscii(bytes)) return bytes.size();
  std::size_t count = 0;
  ForEachPiece(bytes, [&count](std::string_view, std::size_t) { ++count; });
  return count;
}

}  // namespace quorvane
