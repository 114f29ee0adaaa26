#pragma once

#include <string_view>

namespace quorvane {

/// The box that shows a run's text while it grows. Implemented by the programs.
class ProgressBox {
 public:
  virtual ~ProgressBox() = default;

  /// Shows more text behind what is shown.
  virtual void Insert(std::string_view text) = 0;

  /// Takes away what is shown.
  virtual void Clear() = 0;

  /// Lets the window repaint and take its pending messages; nothing where there is no window.
  virtual void ProcessPendingMessages() = 0;
};

/// What a message box is about: its icon in the window.
enum class BoxKind { Information, Critical };

/// Messages to the user that are not findings about a file. Implemented by the programs.
class UserMessages {
 public:
  virtual ~UserMessages() = default;

  /// Shows a message box and waits until the user has closed it; where nobody is there to close
  /// one, the same words go to the error stream.
  virtual void ShowBox(std::string_view title, std::string_view text, BoxKind kind) = 0;

  /// A remark for unattended runs (a file that could not be checked, a choice that was made); it
  /// never waits.
  virtual void Note(std::string_view text) = 0;
};

}  // namespace quorvane
