#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "report/disk.h"
#include "text/large_block.h"

namespace quorvane {

/// A data file's bytes and its lines, counted from 1. The lines are views into the bytes; only a
/// line that was rewritten has a text of its own. Views stay valid as long as the object lives and
/// their line is not rewritten.
class FileText {
 public:
  FileText() = default;

  /// Takes a file of fewer than 2^31 bytes. A UTF-8 byte-order mark at its start and the line ends
  /// at its end are left out. Lines end with CR LF when the file holds at least one CR LF (lone CRs
  /// and LFs then belong to their line); else with CR when it holds one; else with LF.
  explicit FileText(ByteBuffer bytes);

  FileText(const FileText&) = delete;
  FileText& operator=(const FileText&) = delete;
  FileText(FileText&&) = default;
  FileText& operator=(FileText&&) = default;
  ~FileText() = default;

  bool HadByteOrderMark() const { return hadByteOrderMark_; }

  /// The bytes of the file, whole.
  std::string_view Bytes() const& { return bytes_.View(); }

  /// The text that was split into lines.
  std::string_view Whole() const& { return text_; }

  std::int32_t LineCount() const { return static_cast<std::int32_t>(lines_.size()); }

  std::string_view Line(std::int32_t number) const& {
    const LineSpan& line = lines_[static_cast<std::size_t>(number - 1)];
    if (line.start == RewrittenLine) return rewritten_[line.end];
    return {text_.data() + line.start, std::size_t{line.end} - line.start};
  }

  /// Whether a line begins with the AGS 4 label of a data row and a comma, as it stands in the
  /// file. What a line begins with is noted when the lines are found: walks through all of them
  /// need not fetch the text of each again.
  bool HasDataLabel(std::int32_t number) const {
    return lines_[static_cast<std::size_t>(number - 1)].hasDataLabel != 0;
  }

  /// True of a line that is known to begin with a double quote and neither with "UNIT" or "TYPE"
  /// nor, with or without the label of a data row before it, with the mark of a group line.
  bool IsPlain(std::int32_t number) const {
    return lines_[static_cast<std::size_t>(number - 1)].isPlain != 0;
  }

  /// Cuts the label and its comma off a line for which HasDataLabel holds.
  void DropDataLabel(std::int32_t number);

  /// Cuts characters off a line's start: all it has when it is shorter.
  void DropPrefix(std::int32_t number, std::size_t length);

  void Rewrite(std::int32_t number, std::string text);

  void Clear(std::int32_t number);

  std::string_view Bytes() const&& = delete;
  std::string_view Whole() const&& = delete;  // the view would outlive its bytes
  std::string_view Line(std::int32_t number) const&& = delete;

 private:
  static constexpr std::uint32_t RewrittenLine = 0x7FFFFFFF;

  /// Offsets into the text, or RewrittenLine and an index into rewritten_.
  struct LineSpan {
    std::uint32_t start : 31;
    std::uint32_t hasDataLabel : 1;
    std::uint32_t end : 31;
    std::uint32_t isPlain : 1;
  };

  void SplitLines(std::string_view lineEnd);

  ByteBuffer bytes_;
  std::string_view text_;
  bool hadByteOrderMark_ = false;
  LargeVector<LineSpan> lines_;
  std::deque<std::string> rewritten_;  // a deque: a new line must not move the earlier ones
};

/// The lines of a file's text as they stand in it, whatever they were rewritten to. The text must
/// outlive the object.
class OriginalLines {
 public:
  explicit OriginalLines(const FileText& text);
  explicit OriginalLines(FileText&&) = delete;

  /// A line that the text has, by its number. The lines are asked for in ascending order: the cost
  /// of all of them together is one pass over the text.
  std::string_view Line(std::int32_t number);

 private:
  std::string_view text_;
  std::string_view lineEnd_;
  std::int32_t number_ = 1;  // of the line that starts at the offset
  std::size_t start_ = 0;
};

}  // namespace quorvane
