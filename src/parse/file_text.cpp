#include "parse/file_text.h"

#include <algorithm>
#include <utility>

#include "parse/row_label.h"

namespace quorvane {
namespace {

constexpr std::uint32_t Lower31Bits = 0x7FFFFFFF;
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

std::string_view LineEndOf(std::string_view text) {
  if (text.find("\r\n") != std::string_view::npos) return "\r\n";
  return text.find('\r') != std::string_view::npos ? "\r" : "\n";
}

/// Position of the next line end from a position on, or the text's length.
std::size_t FindLineEnd(std::string_view text, std::string_view lineEnd, std::size_t from) {
  // The last character of a line end is searched for: one search at the speed of memory, where a
  // two-character search would stop at every lone CR.
  const char last = lineEnd.back();
  std::size_t found = text.find(last, from);
  while (found != std::string_view::npos && lineEnd.size() == 2 &&
         (found == from || text[found - 1] != lineEnd.front())) {
    found = text.find(last, found + 1);
  }
  return found == std::string_view::npos ? text.size() : found + 1 - lineEnd.size();
}

/// The length of a data row's label with the comma behind it.
constexpr std::size_t LabelLength = DataLabel.size() + 1;

bool BeginsWithDataLabel(std::string_view line) {
  return line.size() >= LabelLength && line.starts_with(DataLabel) && line[DataLabel.size()] == ',';
}

/// The first letter of a row label by which AGS 4 files are known, of that of data rows apart.
bool BeginsUnitOrType(char letter) {
  return letter == 'U' || letter == 'T' || letter == 'u' || letter == 't';
}

bool BeginsPlainly(std::string_view line, bool hasDataLabel) {
  if (hasDataLabel) line.remove_prefix(LabelLength);
  return line.size() >= 2 && line[0] == '"' && line[1] != '*' &&
         (hasDataLabel || !BeginsUnitOrType(line[1]));
}

}  // namespace

FileText::FileText(ByteBuffer bytes) : bytes_(std::move(bytes)), text_(bytes_.View()) {
  hadByteOrderMark_ = text_.starts_with(ByteOrderMark);
  if (hadByteOrderMark_) text_.remove_prefix(ByteOrderMark.size());
  const std::string_view lineEnd = LineEndOf(text_);
  const std::size_t lastKept = text_.find_last_not_of("\r\n");
  text_ = text_.substr(0, lastKept == std::string_view::npos ? 0 : lastKept + 1);
  SplitLines(lineEnd);
}

void FileText::SplitLines(std::string_view lineEnd) {
  constexpr std::size_t usualLineLength = 100;
  lines_.reserve(text_.size() / usualLineLength + 1);
  std::size_t start = 0;
  while (start <= text_.size()) {
    const std::size_t end = FindLineEnd(text_, lineEnd, start);
    const std::string_view line = text_.substr(start, end - start);
    const bool hasDataLabel = BeginsWithDataLabel(line);
    lines_.push_back({static_cast<std::uint32_t>(start) & Lower31Bits, hasDataLabel,
                      static_cast<std::uint32_t>(end) & Lower31Bits,
                      BeginsPlainly(line, hasDataLabel)});
    start = end + lineEnd.size();
  }
}

OriginalLines::OriginalLines(const FileText& text)
    : text_(text.Whole()), lineEnd_(LineEndOf(text.Bytes())) {}

std::string_view OriginalLines::Line(std::int32_t number) {
  for (; number_ < number; ++number_)
    start_ = FindLineEnd(text_, lineEnd_, start_) + lineEnd_.size();
  return text_.substr(start_, FindLineEnd(text_, lineEnd_, start_) - start_);
}

void FileText::DropDataLabel(std::int32_t number) {
  LineSpan& line = lines_[static_cast<std::size_t>(number - 1)];
  line.start = (line.start + static_cast<std::uint32_t>(LabelLength)) & Lower31Bits;
  line.hasDataLabel = 0;
}

void FileText::DropPrefix(std::int32_t number, std::size_t length) {
  LineSpan& line = lines_[static_cast<std::size_t>(number - 1)];
  line.hasDataLabel = 0;
  line.isPlain = 0;
  if (line.start == RewrittenLine) {
    std::string& text = rewritten_[line.end];
    text.erase(0, std::min(length, text.size()));
    return;
  }
  const std::size_t start = std::min<std::size_t>(line.start + length, line.end);
  line.start = static_cast<std::uint32_t>(start) & Lower31Bits;
}

void FileText::Rewrite(std::int32_t number, std::string text) {
  LineSpan& line = lines_[static_cast<std::size_t>(number - 1)];
  if (line.start == RewrittenLine) {
    rewritten_[line.end] = std::move(text);
    return;
  }
  line = {RewrittenLine, 0, static_cast<std::uint32_t>(rewritten_.size()) & Lower31Bits, 0};
  rewritten_.push_back(std::move(text));
}

void FileText::Clear(std::int32_t number) {
  LineSpan& line = lines_[static_cast<std::size_t>(number - 1)];
  line = {0, 0, 0, 0};
}

}  // namespace quorvane
