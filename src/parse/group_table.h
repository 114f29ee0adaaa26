#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "parse/cell_store.h"
#include "parse/file_text.h"

namespace quorvane {

/// One heading of a group: its column's head.
struct Heading {
  std::string name;  // as the name rules corrected it, with any leading "?"
  std::string unit;
  std::string type;  // AGS 4 only
};

/// One group of a file. Columns and rows are counted from 1.
struct Group {
  std::string name;  // upper case, with the leading "?" of a non-standard group
  std::int32_t line = 0;
  std::int32_t headingLine = 0;
  std::int32_t unitLine = 0;  // 0 when the group has no such line
  std::int32_t typeLine = 0;
  int dictionaryIndex = 0;  // 0 when the dictionary does not know the group
  std::vector<Heading> headings;
  std::vector<int> keyColumns;         // ascending; those of the key headings that the group has
  std::vector<int> numericKeyColumns;  // ascending; a part of keyColumns
  bool isKeyed = false;                // the dictionary names key headings and all are there
  std::uint32_t firstRow = 0;          // in the cell store
  std::int32_t rowCount = 0;

  int HeadingCount() const { return static_cast<int>(headings.size()); }
  const Heading& HeadingAt(int column) const {
    return headings[static_cast<std::size_t>(column - 1)];
  }
};

/// A heading's place in the table.
struct HeadingPlace {
  int group = 0;
  int column = 0;

  friend bool operator==(const HeadingPlace&, const HeadingPlace&) = default;
};

/// The groups of one file with their headings, units, types and data rows, and the look-ups that
/// the checks use. Groups, columns and rows are counted from 1; 0 means "none" everywhere.
///
/// Values are views into the file's text or the table and stay valid as long as both live.
class GroupTable {
 public:
  /// The file's text must outlive the table.
  explicit GroupTable(const FileText& file) : cells_(file.Whole()) {}

  int GroupCount() const { return static_cast<int>(groups_.size()); }
  const Group& At(int group) const { return groups_[static_cast<std::size_t>(group - 1)]; }
  Group& At(int group) { return groups_[static_cast<std::size_t>(group - 1)]; }

  /// Opens a new group, which takes the headings and rows that follow; returns its index.
  int AddGroup(std::string name, std::int32_t line);

  /// Adds a heading to the last group; returns its column.
  int AddHeading(std::string name);

  std::string_view Value(int group, std::int32_t row, int column) const {
    return cells_.Value(StoreRow(group, row), static_cast<std::size_t>(column));
  }

  /// A column, for a walk through all rows of a group; ends with the next change of the table.
  class Column {
   public:
    std::string_view Value(std::int32_t row) const {
      return cells_.Value(static_cast<std::uint32_t>(row - 1));
    }

   private:
    friend class GroupTable;
    explicit Column(CellStore::Column cells) : cells_(cells) {}

    CellStore::Column cells_;
  };

  Column ColumnAt(int group, int column) const {
    return Column(cells_.ColumnFrom(At(group).firstRow, static_cast<std::size_t>(column)));
  }

  /// A data row, for a look at several of its cells; ends with the next change of the table.
  CellStore::Row RowAt(int group, std::int32_t row) const {
    return cells_.RowAt(StoreRow(group, row));
  }

  /// Has the line of a row that is a few steps ahead in a walk through the rows fetched from
  /// memory.
  void FetchAhead(int group, std::int32_t row) const {
    constexpr std::int32_t rowsAhead = 8;
    cells_.FetchAhead(StoreRow(group, row + rowsAhead));
  }

  /// The line of the file on which a data row starts.
  std::int32_t RowLine(int group, std::int32_t row) const {
    return cells_.LineNumber(StoreRow(group, row));
  }

  /// The number of values that a data row has; the columns behind them are empty.
  std::size_t CellCount(int group, std::int32_t row) const {
    return cells_.CellCount(StoreRow(group, row));
  }

  /// Whether a value stands in the file's text as it is read.
  bool LiesInFile(std::string_view value) const { return cells_.LiesInFile(value); }

  /// A data row of the last group: see CellStore. A line that was rewritten is not regular.
  std::size_t AddRegularRow(std::int32_t lineNumber, std::string_view line);
  void AddRow(std::int32_t lineNumber, const std::vector<std::string_view>& values);
  void RemoveLastRow();

  /// The first group after an index (0: from the start) whose name is the name or "?" followed by
  /// it, in exact letter case; 0 when there is none.
  int FindGroup(std::string_view name, int after = 0) const;

  /// The indices of all groups that FindGroup finds, one after the other.
  std::vector<int> GroupIndexList(std::string_view name) const;

  /// The first column of a group whose heading is the name, with or without a "?" before or behind
  /// it, in any letter case; 0 when there is none, or when a group name is given and is not the
  /// group's.
  int FindHeading(std::string_view heading, int group, std::string_view groupName = {}) const;

  /// The column of a heading in a group; 0 when absent. With group 0, the look-up that searches
  /// every group: the first column found, whichever group it is in.
  int LocateHeading(int group, std::string_view heading) const;

  /// Every group's column of a heading, in table order. A name without an underscore after its
  /// first character is found nowhere.
  std::vector<HeadingPlace> LocateHeading(std::string_view heading) const;

  /// The row's values in some columns, without trailing blanks, joined by commas.
  std::string RowKeyText(int group, std::int32_t row, std::span<const int> columns) const;

  /// The row's key text: RowKeyText over its group's key columns.
  std::string KeyText(int group, std::int32_t row) const;

 private:
  std::uint32_t StoreRow(int group, std::int32_t row) const {
    return At(group).firstRow + static_cast<std::uint32_t>(row - 1);
  }

  /// Column of a heading by its upper-case name, exactly as stored; 0 when absent.
  int ColumnOf(const std::string& upperName, int group) const;

  std::vector<Group> groups_;
  CellStore cells_;
  std::unordered_map<std::string, std::vector<int>> groupsByName_;
  // By upper-case heading name, in table order.
  std::unordered_map<std::string, std::vector<HeadingPlace>> headingsByName_;
};

}  // namespace quorvane
