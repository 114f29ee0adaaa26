#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "parse/data_row.h"
#include "parse/file_text.h"
#include "parse/group_table.h"
#include "report/message_log.h"

namespace quorvane {

/// Who is told what the parser reads, while it reads it. The rules on names and keys listen; the
/// parser knows none of them.
class StructureListener {
 public:
  virtual ~StructureListener() = default;

  /// A group line was read; the group that it opens will have the given index. Returns the name
  /// under which the group is kept.
  virtual std::string ReadGroupName(int group, std::int32_t lineNumber, std::string_view line) = 0;

  /// The group stands in the table, as yet without headings.
  virtual void GroupOpened(int group) = 0;

  /// A heading was read, without its asterisk, and will stand in the given column. Returns the name
  /// under which it is kept.
  virtual std::string ReadHeading(const MessagePlace& place, std::int32_t lineNumber,
                                  std::string heading) = 0;

  /// All headings, units and types of the group are in the table. It happens once per group: ahead
  /// of its first data row or, when it has none, at its end.
  virtual void HeadersRead(int group, bool hasData) = 0;

  virtual void GroupEnded(int group) = 0;

  /// The last line was read.
  virtual void FileEnded() = 0;
};

/// A run of lines of a file, both ends included.
struct LineRange {
  std::int32_t first = 1;
  std::int32_t last = 0;
};

/// Reads lines of the common form (group, heading, units, types and data lines, AGS 4 files having
/// been brought into it) top to bottom into a group table, and reports breaches of the structural
/// rules: group line syntax, Rules 11, 17 and 18, the counts of units and types.
class StructureParser {
 public:
  /// All arguments must outlive the parser.
  StructureParser(const FileText& file, AgsFormat format,
                  std::span<const std::string> groupsWithoutUnits, GroupTable& table,
                  StructureListener& listener, MessageLog& log);

  /// Reads the lines and closes the section "Parsing Structure and Data".
  void ParseStructure(LineRange lines);

 private:
  enum class RowState { GroupLine, HeadingLine, UnitsLine, TypesLine, DataRows };

  void ReadLine(std::int32_t lineNumber, std::string_view line);
  bool OpensGroup(std::string_view line) const;
  void OpenGroup(std::int32_t lineNumber, std::string_view line);
  void EndGroup();
  void ReadHeadingLine(std::int32_t lineNumber, std::string_view line);
  void ReadHeading(std::int32_t lineNumber, std::string_view field);
  void ReadUnitsLine(std::int32_t lineNumber, std::string_view line);
  void ReadUnitFields(std::int32_t lineNumber, std::string_view line);
  void ReadTypesLine(std::int32_t lineNumber, std::string_view line);
  void ReadDataLine(std::int32_t lineNumber, std::string_view line);
  void CompleteHeaders(bool hasData);

  template <typename Use>
  void ForEachField(std::int32_t lineNumber, std::string_view line, Use&& use);

  Group& CurrentGroup() { return table_.At(table_.GroupCount()); }
  bool TakesNoUnits() { return groupsWithoutUnits_.contains(CurrentGroup().name); }
  MessagePlace GroupPlace() const { return {table_.GroupCount(), 0, 0}; }

  const FileText& file_;
  AgsFormat format_;
  std::unordered_set<std::string> groupsWithoutUnits_;
  GroupTable& table_;
  StructureListener& listener_;
  MessageLog& log_;
  DataRowReader rows_;
  RowState state_ = RowState::GroupLine;
  // Of the group being read:
  std::unordered_set<std::string> headingNames_;
  std::vector<std::string> units_;
  std::vector<std::string> types_;
  bool areHeadersComplete_ = false;
};

}  // namespace quorvane
