#include "run/standard_streams.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <string>
#include <system_error>
#if defined(_WIN32)
#include <io.h>
#include <windows.h>
#else
#include <unistd.h>
#endif

#include "run/system_text.h"
#include "text/terminal_text.h"
#include "text/text.h"
#include "text/utf8.h"

namespace quorvane {
namespace {

bool WriteBytes(std::FILE* stream, std::string_view bytes) {
  return std::fwrite(bytes.data(), 1, bytes.size(), stream) == bytes.size();
}

#if defined(_WIN32)
constexpr std::string_view StreamLineEnd = LineBreak;  // streams pass on what they are given

/// The console window behind a stream; nothing when it goes elsewhere.
HANDLE ConsoleOf(std::FILE* stream) {
  const int file = _fileno(stream);
  if (file < 0) return nullptr;  // a program with windows may have no streams
  auto* const handle = reinterpret_cast<HANDLE>(_get_osfhandle(file));
  DWORD mode = 0;
  return GetConsoleMode(handle, &mode) == 0 ? nullptr : handle;
}

/// Shows bytes in a console window, which takes UTF-16: from UTF-8, else from Windows-1252.
bool ShowOnTerminal(std::FILE* stream, std::string_view bytes) {
  constexpr unsigned int westernCodePage = 1252;
  const std::wstring letters = Widen(bytes, westernCodePage);
  std::fflush(stream);
  return WriteConsoleW(ConsoleOf(stream), letters.data(), static_cast<DWORD>(letters.size()),
                       nullptr, nullptr) != 0;
}
#else
constexpr std::string_view StreamLineEnd = "\n";

bool ShowOnTerminal(std::FILE* stream, std::string_view bytes) {
  return WriteBytes(stream, bytes);
}
#endif

/// A text with the line breaks of streams.
std::string WithStreamLineEnds(std::string_view text) {
  if (StreamLineEnd == LineBreak) return std::string(text);
  std::string converted;
  converted.reserve(text.size());
  for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
    std::string_view line = text.substr(0, end + 1);
    if (line.ends_with(LineBreak)) {
      line.remove_suffix(LineBreak.size());
      converted.append(line).append(StreamLineEnd);
    } else {
      converted.append(line);
    }
    text.remove_prefix(end + 1);
  }
  return converted.append(text);
}

/// Writes text to a stream that is no terminal.
bool WriteText(std::FILE* stream, std::string_view text) {
  constexpr std::size_t blockSize = std::size_t{1} << 16U;
  while (!text.empty()) {
    std::string_view block = text.substr(0, blockSize);
    // A line break does not fall between two blocks.
    if (block.size() == blockSize && block.back() == LineBreak.front()) block.remove_suffix(1);
    if (!WriteBytes(stream, WithStreamLineEnds(block))) return false;
    text.remove_prefix(block.size());
  }
  return true;
}

std::error_code LastError() {
  return {errno, std::generic_category()};
}

}  // namespace

#if defined(_WIN32)
bool IsTerminal(std::FILE* stream) {
  return ConsoleOf(stream) != nullptr;
}
#else
bool IsTerminal(std::FILE* stream) {
  return ::isatty(::fileno(stream)) != 0;
}
#endif

void PrepareStandardStreams() {
#if defined(_WIN32)
  for (std::FILE* stream : {stdout, stderr}) {
    if (_fileno(stream) >= 0) _setmode(_fileno(stream), _O_BINARY);
  }
#else
  // The lowest free number is given first, so these fill the gaps. What is written to a stream that
  // can only be read fails, as it must: it would be lost.
  int file = ::open("/dev/null", O_RDONLY);
  while (file >= 0 && file <= STDERR_FILENO) {
    file = ::open("/dev/null", O_RDONLY);
  }
  if (file >= 0) ::close(file);
  static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
  static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
#endif
}

std::error_code WriteToStream(std::FILE* stream, std::string_view text) {
  if (!IsTerminal(stream)) return WriteText(stream, text) ? std::error_code() : LastError();
  for (std::size_t end = text.find(LineBreak); end != std::string_view::npos;
       end = text.find(LineBreak)) {
    const std::string_view line = text.substr(0, end);
    if (!ShowOnTerminal(stream, TerminalText(line)) || !WriteBytes(stream, StreamLineEnd)) {
      return LastError();
    }
    text.remove_prefix(end + LineBreak.size());
  }
  return ShowOnTerminal(stream, TerminalText(text)) ? std::error_code() : LastError();
}

std::error_code WriteBytesToStream(std::FILE* stream, std::string_view bytes) {
  if (!IsTerminal(stream)) return WriteBytes(stream, bytes) ? std::error_code() : LastError();
  std::string shown;
  for (std::size_t end = bytes.find('\n'); end != std::string_view::npos; end = bytes.find('\n')) {
    std::string_view line = bytes.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    shown.append(line).append(LineBreak);
    bytes.remove_prefix(end + 1);
  }
  return WriteToStream(stream, shown.append(bytes));
}

void ReplaceTerminalLine(std::FILE* stream, std::string_view line, std::size_t oldLength) {
  const std::string shown = TerminalText(line);
  std::string orders = "\r";
  if (CharacterCount(shown) < oldLength) orders.append(oldLength, ' ').append("\r");
  ShowOnTerminal(stream, orders + shown);
}

void StandardOutput::Write(std::string_view text) {
  if (!failure_) failure_ = WriteToStream(stdout, text);
}

void StandardOutput::WriteBytes(std::string_view bytes) {
  if (!failure_) failure_ = WriteBytesToStream(stdout, bytes);
}

void StandardOutput::Flush() {
  if (std::fflush(stdout) != 0 && !failure_) failure_ = LastError();
}

bool StandardOutput::IsLost(UserMessages& messages) {
  Flush();
  if (!failure_) return false;
  std::string text = "Could not write the report to standard output";
  text.append(LineBreak).append("Error:  ").append(std::to_string(failure_.value()));
  text.append(LineBreak).append(failure_.message());
  messages.ShowBox("Quorvane", text, BoxKind::Critical);
  return true;
}

}  // namespace quorvane
