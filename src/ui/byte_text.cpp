#include "ui/byte_text.h"

#include <array>
#include <cstddef>

namespace quorvane {
namespace {

constexpr char16_t Unshowable = 0xFFFD;
constexpr char16_t ControlPictures = 0x2400;
constexpr char16_t DeletePicture = 0x2421;
constexpr char16_t EscapedBytes = 0xDC00;  // the byte is added: an unpaired low surrogate

/// The characters of the bytes 0x80 to 0x9F in Windows-1252.
constexpr std::array<char16_t, 32> Windows1252{
    0x20AC,     Unshowable, 0x201A, 0x0192, 0x201E, 0x2026,     0x2020, 0x2021,
    0x02C6,     0x2030,     0x0160, 0x2039, 0x0152, Unshowable, 0x017D, Unshowable,
    Unshowable, 0x2018,     0x2019, 0x201C, 0x201D, 0x2022,     0x2013, 0x2014,
    0x02DC,     0x2122,     0x0161, 0x203A, 0x0153, Unshowable, 0x017E, 0x0178};

/// The length of the UTF-8 sequence that the bytes begin with; 0 when they begin with none.
std::size_t SequenceLength(std::string_view bytes) {
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

/// Decodes UTF-8; a byte that belongs to no valid sequence is decoded by the routine given.
template <typename OtherByte>
QString Decode(std::string_view bytes, OtherByte&& otherByte) {
  QString text;
  text.reserve(static_cast<qsizetype>(bytes.size()));
  std::size_t valid = 0;
  const auto takeValid = [&] {
    text.append(QString::fromUtf8(bytes.data(), static_cast<qsizetype>(valid)));
    bytes.remove_prefix(valid);
    valid = 0;
  };
  while (valid < bytes.size()) {
    if (const std::size_t length = SequenceLength(bytes.substr(valid)); length > 0) {
      valid += length;
      continue;
    }
    takeValid();
    text.append(QChar(otherByte(static_cast<unsigned char>(bytes.front()))));
    bytes.remove_prefix(1);
  }
  takeValid();
  return text;
}

char16_t FromWindows1252(unsigned char byte) {
  return byte < 0xA0 ? Windows1252[byte - 0x80U] : byte;
}

char16_t Harmless(char16_t letter) {
  if (letter == u'\t' || letter == u'\n' || letter == u'\r') return letter;
  if (letter < 0x20) return static_cast<char16_t>(ControlPictures + letter);
  if (letter == 0x7F) return DeletePicture;
  const bool isControl = letter >= 0x80 && letter < 0xA0;
  const bool turnsDirection =
      (letter >= 0x202A && letter <= 0x202E) || (letter >= 0x2066 && letter <= 0x2069);
  const bool breaksLine = letter == 0x2028 || letter == 0x2029;
  const bool isNoCharacter = letter >= 0xFDD0 && letter <= 0xFDEF;  // text documents use some
  return isControl || turnsDirection || breaksLine || isNoCharacter ? Unshowable : letter;
}

}  // namespace

QString ShownText(std::string_view text) {
  QString shown = Decode(text, FromWindows1252);
  for (QChar& letter : shown)
    letter = QChar(Harmless(letter.unicode()));
  return shown;
}

QString PathText(std::string_view path) {
  return Decode(path,
                [](unsigned char byte) { return static_cast<char16_t>(EscapedBytes + byte); });
}

std::string PathBytes(const QString& text) {
  std::string path;
  qsizetype start = 0;
  const auto takeUpTo = [&](qsizetype end) {
    path.append(QStringView(text).mid(start, end - start).toUtf8().toStdString());
    start = end + 1;
  };
  for (qsizetype index = 0; index < text.size(); ++index) {
    const char16_t letter = text[index].unicode();
    const bool isPaired = index > 0 && text[index - 1].isHighSurrogate();
    if (isPaired || letter < EscapedBytes + 0x80 || letter > EscapedBytes + 0xFF) continue;
    takeUpTo(index);
    path.push_back(static_cast<char>(letter - EscapedBytes));
  }
  takeUpTo(text.size());
  return path;
}

}  // namespace quorvane
