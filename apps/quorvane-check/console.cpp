#include "console.h"

#include <cstdio>

#include "text/text.h"

namespace quorvane {
namespace {

/// Writes a text with the platform's line ends. Windows has the log's own; its streams are set to
/// pass them on as they are.
void Write(std::FILE* stream, std::string_view text) {
#if !defined(_WIN32)
  for (std::size_t end = text.find(LineBreak); end != std::string_view::npos;
       end = text.find(LineBreak)) {
    std::fwrite(text.data(), 1, end, stream);
    std::fputc('\n', stream);
    text.remove_prefix(end + LineBreak.size());
  }
#endif
  std::fwrite(text.data(), 1, text.size(), stream);
}

}  // namespace

void Console::Insert(std::string_view text) {
  if (!isLogComplete_) Write(stdout, text);
}

void Console::ShowBox(std::string_view title, std::string_view text, BoxKind /*kind*/) {
  Note(std::string(title) + ": " + std::string(text));
}

void Console::Note(std::string_view text) {
  std::fflush(stdout);  // so that both streams stand in their order where they go to one place
  Write(stderr, text);
  Write(stderr, LineBreak);
}

}  // namespace quorvane
