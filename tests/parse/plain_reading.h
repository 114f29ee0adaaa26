#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "report/message.h"

namespace quorvane::test {

/// A field as the stated steps give it.
struct PlainField {
  std::string value;
  std::size_t next = 0;             // 1-based position of the next field; 0 when there is none
  std::vector<std::string> faults;  // texts of its findings
};

/// Reads the field at a 1-based position, step by step and without any short cut.
PlainField ReadFieldPlainly(const std::string& line, std::size_t position, bool restore);

/// The data rows of one group, read step by step: the plain twin of the reader of data lines.
class PlainRows {
 public:
  struct Row {
    int line;
    std::vector<std::string> values;  // one per heading
  };

  PlainRows(AgsFormat format, std::size_t headingCount)
      : format_(format), headingCount_(headingCount) {}

  void AddLine(int lineNumber, const std::string& line);

  const std::vector<Row>& Rows() const { return rows_; }
  const std::vector<std::string>& Findings() const { return findings_; }

 private:
  void Report(int lineNumber, const std::string& text);
  std::vector<std::string> ReadFields(int lineNumber, const std::string& line, bool& hasMore);
  std::vector<std::string> ReadBySteps(int lineNumber, const std::string& line, bool& hasMore);

  AgsFormat format_;
  std::size_t headingCount_;
  std::vector<Row> rows_;
  std::vector<std::string> findings_;
};

}  // namespace quorvane::test
