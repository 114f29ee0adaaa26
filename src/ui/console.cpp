#include "ui/console.h"

#include <cstdio>

#include "text/text.h"

namespace quorvane {

void ConsoleMessages::ShowBox(std::string_view title, std::string_view text, BoxKind /*kind*/) {
  Note(std::string(title) + ": " + std::string(text));
}

void ConsoleMessages::Note(std::string_view text) {
  // Both streams stand in their order where they go to one place.
  if (output_ != nullptr) output_->Flush();
  if (progress_ != nullptr) progress_->Wipe();
  WriteToStream(stderr, std::string(text).append(LineBreak));
}

void Console::Insert(std::string_view text) {
  if (isPrinting_) output_.Write(text);
}

void Print(std::string_view text) {
  WriteToStream(stdout, text);
}

}  // namespace quorvane
