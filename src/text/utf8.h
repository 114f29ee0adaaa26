#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorvane {

/// The length of the valid UTF-8 sequence that non-empty bytes begin with; 0 when they begin with
/// none.
std::size_t Utf8SequenceLength(std::string_view bytes);

/// The character of a byte from 0x80 on in Windows-1252; U+FFFD where that has none.
char16_t FromWindows1252(unsigned char byte);

/// A text of a data file as UTF-8: sequences that are valid stay, every other byte becomes the
/// character that Windows-1252 has for it.
std::string ToUtf8(std::string_view bytes);

/// The number of characters (code points) that ToUtf8 makes of the bytes.
std::size_t CharacterCount(std::string_view bytes);

}  // namespace quorvane
