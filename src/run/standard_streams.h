#pragma once

#include <cstddef>
#include <cstdio>
#include <string_view>
#include <system_error>

#include "report/user_interface.h"

namespace quorvane {

/// To be called before a program opens any file. A standard stream that was closed when the program
/// started is a file of its own again, so that no data file or log comes in its place. A pipe whose
/// reader is gone, and a file that has reached the size allowed, fail like a full disk from then on
/// instead of ending the program.
void PrepareStandardStreams();

/// Writes a text with the platform's line ends. On a terminal, control characters inside its lines
/// are shown as text. Returns the system's error when something could not be written.
std::error_code WriteToStream(std::FILE* stream, std::string_view text);

/// Whether what a stream is given is shown on a terminal.
bool IsTerminal(std::FILE* stream);

/// Puts a text, as WriteToStream shows one, in the place of the line of a terminal in which the
/// cursor stands. The length is that of the text that stood there, in characters: what is longer is
/// wiped out.
void ReplaceTerminalLine(std::FILE* stream, std::string_view line, std::size_t oldLength);

/// Writes bytes as they are, for what other programs read. On a terminal they are shown as lines
/// that end with LF or CR LF, control characters as text. Returns the system's error when something
/// could not be written.
std::error_code WriteBytesToStream(std::FILE* stream, std::string_view bytes);

/// What the program gives out on its way to standard output.
class StandardOutput {
 public:
  /// Writes a text with the platform's line ends.
  void Write(std::string_view text);

  /// Writes bytes as they are.
  void WriteBytes(std::string_view bytes);

  /// Hands on what has been written so far.
  void Flush();

  /// Brings the output to its end. When anything that was written has been lost, it shows the box
  /// that says why and returns true.
  bool IsLost(UserMessages& messages);

 private:
  std::error_code failure_;  // the first one; nothing is written after it
};

}  // namespace quorvane
