#include "ui/byte_text.h"

#include <cstddef>

#include "text/utf8.h"

namespace quorvane {
namespace {

constexpr char16_t Unshowable = 0xFFFD;
constexpr char16_t ControlPictures = 0x2400;
constexpr char16_t DeletePicture = 0x2421;
constexpr char16_t EscapedBytes = 0xDC00;  // the byte is added: an unpaired low surrogate

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
    if (const std::size_t length = Utf8SequenceLength(bytes.substr(valid)); length > 0) {
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
