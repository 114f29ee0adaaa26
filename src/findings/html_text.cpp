#include "findings/html_text.h"

#include <algorithm>
#include <array>

#include "text/text.h"
#include "text/utf8.h"

namespace quorvane {
namespace {

constexpr char32_t Delete = 0x7F;

struct CharacterRange {
  char32_t first = 0;
  char32_t last = 0;
};

/// Characters that cannot be seen or that act on others, in ascending order.
constexpr std::array<CharacterRange, 15> UnseenCharacters{{
    {0x80, 0x9F},        // the second set of control characters
    {0xAD, 0xAD},        // soft hyphen
    {0x34F, 0x34F},      // grapheme joiner
    {0x61C, 0x61C},      // direction mark of Arabic
    {0x115F, 0x1160},    // fillers of Hangul
    {0x17B4, 0x17B5},    // vowels of Khmer without a shape
    {0x180B, 0x180F},    // variants and separator of Mongolian
    {0x200B, 0x200F},    // zero width, direction marks
    {0x2028, 0x202E},    // line and paragraph separators, embeddings and overrides of direction
    {0x2060, 0x206F},    // word joiner, invisible operators, isolates of direction
    {0x3164, 0x3164},    // filler of Hangul
    {0xFE00, 0xFE0F},    // variants
    {0xFEFF, 0xFEFF},    // byte order mark
    {0xFFF0, 0xFFFB},    // annotations
    {0xE0000, 0xE0FFF},  // tags, more variants
}};

bool IsUnseen(char32_t character) {
  return std::any_of(UnseenCharacters.begin(), UnseenCharacters.end(),
                     [character](const CharacterRange& range) {
                       return character >= range.first && character <= range.last;
                     });
}

/// The character of a valid UTF-8 sequence.
char32_t Decode(std::string_view sequence) {
  const auto lead = static_cast<unsigned char>(sequence.front());
  if (sequence.size() == 1) return lead;
  char32_t character = lead & (0xFFU >> (sequence.size() + 1));
  for (const char byte : sequence.substr(1))
    character = (character << 6U) | (static_cast<unsigned char>(byte) & 0x3FU);
  return character;
}

void AppendNumber(std::string& page, char32_t character) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  page.append("[U+");
  for (int shift = character > 0xFFFF ? 16 : 12; shift >= 0; shift -= 4)
    page.push_back(digits[(character >> static_cast<unsigned>(shift)) & 0xFU]);
  page.push_back(']');
}

void AppendAscii(std::string& page, char character) {
  switch (character) {
    case '&':
      page.append("&amp;");
      return;
    case '<':
      page.append("&lt;");
      return;
    case '>':
      page.append("&gt;");
      return;
    default:
      break;
  }
  const auto code = static_cast<unsigned char>(character);
  if (code < 0x20) {
    page.append("\xE2\x90").push_back(static_cast<char>(0x80U + code));
  } else if (code == Delete) {
    page.append("\xE2\x90\xA1");
  } else {
    page.push_back(character);
  }
}

}  // namespace

void AppendHtmlText(std::string& page, std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = Utf8SequenceLength(text);
    const std::string_view sequence = text.substr(0, std::max<std::size_t>(length, 1));
    if (length == 0) {
      page.append("\xEF\xBF\xBD");
    } else if (length == 1) {
      AppendAscii(page, sequence.front());
    } else if (const char32_t character = Decode(sequence); IsUnseen(character)) {
      AppendNumber(page, character);
    } else {
      page.append(sequence);
    }
    text.remove_prefix(sequence.size());
  }
}

void AppendHtmlLines(std::string& page, std::string_view text) {
  for (std::size_t end = text.find(LineBreak); end != std::string_view::npos;
       end = text.find(LineBreak)) {
    AppendHtmlText(page, text.substr(0, end));
    page.append("<br>");
    text.remove_prefix(end + LineBreak.size());
  }
  AppendHtmlText(page, text);
}

}  // namespace quorvane
