#pragma once

#include <span>
#include <string>
#include <string_view>

#include "report/user_interface.h"

namespace quorvane {

/// The text of one run: everything that is written goes into the progress box and into the full
/// log text, which is never cut.
class RunLog {
 public:
  /// A full log text longer than this many characters no longer fits the progress box.
  static constexpr std::size_t DisplayLimit = 60000;

  explicit RunLog(ProgressBox& progressBox) : progressBox_(progressBox) {}

  /// Writes the text and a line break. Once the full text has passed the display limit the box is
  /// emptied after every write: it is either complete or, until the run's closing lines, empty.
  void AppendProgress(std::string_view text) { AppendProgress({&text, 1}); }

  /// The same for a text that is given in parts.
  void AppendProgress(std::span<const std::string_view> parts);

  /// Whether the full text has passed the display limit.
  bool HasOverflowed() const { return hasOverflowed_; }

  const std::string& FullText() const { return fullText_; }

 private:
  void MakeRoomFor(std::size_t length);

  ProgressBox& progressBox_;
  std::string fullText_;
  bool hasOverflowed_ = false;
};

}  // namespace quorvane
