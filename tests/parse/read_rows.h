#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "parse/data_row.h"
#include "support/recorded_log.h"
#include "support/stopwatch.h"
#include "text/comma_list.h"

namespace quorvane::test {

/// The rows of one group with some headings, read from lines.
class ReadRows {
 public:
  ReadRows(AgsFormat format, std::size_t headingCount, const std::vector<std::string>& lines)
      : file_(ByteBuffer(Join(lines, "\n"))), recorded_(format) {
    table_.AddGroup("GEOL", 1);
    for (std::size_t heading = 1; heading <= headingCount; ++heading) {
      table_.AddHeading("GEOL_TEXT");
    }
    DataRowReader reader(table_, recorded_.Log(), format);
    const Stopwatch stopwatch;
    for (std::int32_t number = 1; number <= file_.LineCount(); ++number) {
      reader.AddDataRow(number, file_.Line(number));
    }
    reader.FinishRow();
    seconds_ = stopwatch.Seconds();
  }

  /// What the reading alone took.
  double Seconds() const { return seconds_; }

  const GroupTable& Table() const { return table_; }
  std::int32_t RowCount() const { return table_.At(1).rowCount; }
  std::int32_t LineOf(std::int32_t row) const { return table_.RowLine(1, row); }

  /// A row's values, one per heading.
  std::vector<std::string> Row(std::int32_t row) const {
    std::vector<std::string> values;
    for (int column = 1; column <= table_.At(1).HeadingCount(); ++column) {
      values.emplace_back(table_.Value(1, row, column));
    }
    return values;
  }

  std::vector<std::string> Findings() { return recorded_.Findings(); }
  std::vector<MessagePlace> Places() { return recorded_.Places(); }

 private:
  FileText file_;
  GroupTable table_{file_};
  RecordedLog recorded_;
  double seconds_ = 0.0;
};

}  // namespace quorvane::test
