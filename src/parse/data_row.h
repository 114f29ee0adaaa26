#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "parse/field.h"
#include "parse/group_table.h"
#include "report/message_log.h"

namespace quorvane {

/// Turns data lines into rows of the last group of a table. A line whose first field is <CONT> (in
/// any letter case) continues the row above it: each further field is appended to the value over
/// it.
class DataRowReader {
 public:
  DataRowReader(GroupTable& table, MessageLog& log, AgsFormat format)
      : table_(table), log_(log), format_(format) {}

  /// Adds a data line's values to the last group and reports quoting faults (Rules 8 and 15) and a
  /// field count that differs from the heading count. The line must be a line of the table's file.
  void AddDataRow(std::int32_t lineNumber, std::string_view line);

  /// Ends the last group's last row. To be called before another group is opened and after the
  /// last line; only then do the values of a continued row stand in the table.
  void FinishRow();

 private:
  /// The fields of a line, as far as there are headings for them.
  struct Fields {
    std::vector<std::string_view> values;
    std::string protectedLine;         // what the views point to when the line was rewritten,
    std::deque<std::string> restored;  // and those of values that were rewritten again
    bool hasMore = false;              // the line has fields beyond the last heading

    /// Forgets the fields and keeps their memory for those of the next line.
    void Clear() {
      values.clear();
      restored.clear();
      hasMore = false;
    }
  };

  /// A text that continues the value of a column.
  struct Piece {
    std::size_t column;
    std::string_view text;
  };

  void ReadFields(std::int32_t lineNumber, std::string_view line, MessagePlace place);
  void DropBlankValues(FieldSource& source);
  std::size_t ProtectLine(FieldSource& source, std::size_t position);
  void ReadFieldsByRule(FieldSource& source, std::size_t position);
  void StoreFields(std::int32_t lineNumber);
  void ContinueRow();
  std::vector<std::string> ContinuedValues(std::size_t columnCount);

  std::size_t HeadingCount() const { return table_.At(table_.GroupCount()).headings.size(); }

  GroupTable& table_;
  MessageLog& log_;
  AgsFormat format_;
  Fields fields_;
  std::vector<Piece> continuation_;            // of the last row, line by line
  std::deque<std::string> continuationTexts_;  // what pieces point to that are not in the file
};

}  // namespace quorvane
