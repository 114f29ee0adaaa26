#pragma once

#include "ui/console.h"

namespace quorvane {

/// Where the words of message boxes appear. Notes are for the error stream only.
enum class BoxPlace { Screen, ScreenAndErrorStream, ErrorStream };

/// Message boxes on the screen, above the active window, and the error stream.
class WindowMessages : public UserMessages {
 public:
  explicit WindowMessages(BoxPlace place) : place_(place) {}

  /// From here on boxes appear there.
  void SetPlace(BoxPlace place) { place_ = place; }

  void ShowBox(std::string_view title, std::string_view text, BoxKind kind) override;
  void Note(std::string_view text) override;

 private:
  BoxPlace place_;
  ConsoleMessages errorStream_;
};

}  // namespace quorvane
