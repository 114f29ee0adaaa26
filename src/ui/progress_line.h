#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorvane {

/// "Checking 3 of 25: site-a.ags", cut to a line of any terminal. Number and count from 1.
std::string ProgressText(std::string_view path, int number, int count);

/// The line on the error stream that tells how far a run has come. It is shown where somebody sees
/// it and nothing else does the same: when the error stream goes to a terminal and standard output
/// does not. It is wiped out before anything else is written there, and at its end.
class ProgressLine {
 public:
  ProgressLine();
  ~ProgressLine() { Wipe(); }

  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;

  void Show(std::string_view path, int number, int count);
  void Wipe();

 private:
  void Replace(std::string_view line);

  bool isWanted_;
  std::size_t length_ = 0;  // of what is shown, in characters
};

}  // namespace quorvane
