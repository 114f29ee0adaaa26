#pragma once

#include <string>

#include "findings/findings_report.h"
#include "parse/file_text.h"
#include "report/disk.h"

namespace quorvane {

/// How a file on the disk stands to what a run has read of it.
enum class SourceState {
  AsChecked,
  Changed,    // its bytes are others now
  Unreadable  // it is gone, or cannot be read now
};

/// The files of a run, read once more for whoever looks at a finding. The file looked at last stays
/// in memory, so that the next look at it costs nothing.
class SourceFile {
 public:
  /// The disk must outlive the object.
  explicit SourceFile(Disk& disk) : disk_(disk) {}

  /// Reads a file of a run unless it is the one in memory and has not been touched since.
  SourceState Open(const FileRecord& file);

  /// The file's text as the run has read it. Valid when Open said AsChecked, until the next call of
  /// Open or Forget.
  const FileText& Text() const { return text_; }

  /// Gives the memory free.
  void Forget();

 private:
  SourceState Read(const FileRecord& file);

  Disk& disk_;
  FileText text_;
  std::string path_;  // of the file in memory; empty: none is
  std::string sha256_;
  FileTime lastChange_;
};

}  // namespace quorvane
