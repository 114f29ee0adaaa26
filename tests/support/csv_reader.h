#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane::test {

using CsvRow = std::vector<std::string>;

/// Reads a CSV file as RFC 4180 describes it: rows end with CR LF, fields may stand in quotes.
class CsvReader {
 public:
  explicit CsvReader(std::string_view text) : text_(text) {}

  std::vector<CsvRow> Rows() {
    std::vector<CsvRow> rows;
    while (at_ < text_.size()) {
      CsvRow& row = rows.emplace_back(1, Field());
      while (TakeIf(","))
        row.push_back(Field());
      isSound_ = isSound_ && TakeIf("\r\n");
      if (!isSound_) break;
    }
    return rows;
  }

  /// Whether everything read so far was as it should be.
  bool IsSound() const { return isSound_; }

 private:
  bool TakeIf(std::string_view text) {
    if (!text_.substr(at_).starts_with(text)) return false;
    at_ += text.size();
    return true;
  }

  std::string Field() {
    if (TakeIf("\"")) return QuotedField();
    const std::size_t end = std::min(text_.find_first_of(",\r\n\"", at_), text_.size());
    std::string field(text_.substr(at_, end - at_));
    at_ = end;
    return field;
  }

  std::string QuotedField() {
    std::string field;
    while (at_ < text_.size()) {
      if (TakeIf("\"\"")) {
        field += '"';
      } else if (TakeIf("\"")) {
        return field;
      } else {
        field += text_[at_++];
      }
    }
    isSound_ = false;
    return field;
  }

  std::string_view text_;
  std::size_t at_ = 0;
  bool isSound_ = true;
};

}  // namespace quorvane::test
