#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// The cells of all data rows of a file, four bytes each: a cell is kept as the offset of its value
/// in the file's text and made into a view on demand. A value that does not stand in the file as it
/// is read (a continued one, say) is kept in a text of the store's own.
///
/// Rows are counted from 0 over the whole file.
class CellStore {
 public:
  /// The file's text must outlive the store and is shorter than 2^31 bytes.
  explicit CellStore(std::string_view fileText) : fileText_(fileText) {}

  CellStore(const CellStore&) = delete;
  CellStore& operator=(const CellStore&) = delete;
  CellStore(CellStore&&) = default;
  CellStore& operator=(CellStore&&) = default;
  ~CellStore() = default;

  std::uint32_t RowCount() const { return static_cast<std::uint32_t>(rows_.size()); }

  /// Adds a row whose line is part of the file's text and of the regular form, when it is one:
  /// at most mostCells of its fields are kept. Returns the number of fields that the line has, 0
  /// (and nothing added) when it is not of that form.
  std::size_t AddRegularRow(std::int32_t lineNumber, std::string_view line, std::size_t mostCells);

  /// Adds a row of any values, which are copied unless they lie in the file's text.
  void AddRow(std::int32_t lineNumber, const std::vector<std::string_view>& values);

  /// Takes the last row away; its copied values stay readable.
  void RemoveLastRow();

  /// The value in a column counted from 1; empty where the row has no such cell.
  std::string_view Value(std::uint32_t row, std::size_t column) const {
    const RowRecord& record = rows_[row];
    if (column > record.cellCount) return {};
    const std::uint32_t* cells = Cells(record.firstCell);
    if (record.isCopied) {
      const std::uint32_t* cell = cells + 2 * (column - 1);
      return {TextAt(cell[0]), cell[1]};
    }
    const std::uint32_t start = cells[column - 1];
    return {fileText_.data() + start, cells[column] - BoundaryLength - start};
  }

  /// Whether a value is a view into the file's text.
  bool LiesInFile(std::string_view value) const;

  std::size_t CellCount(std::uint32_t row) const { return rows_[row].cellCount; }

  /// The line of the file on which the row starts.
  std::int32_t LineNumber(std::uint32_t row) const {
    return static_cast<std::int32_t>(rows_[row].lineNumber);
  }

 private:
  /// Between two values of a regular line stand a quote, a comma and a quote.
  static constexpr std::uint32_t BoundaryLength = 3;
  static constexpr std::uint32_t ChunkBits = 18;
  static constexpr std::uint32_t ChunkSize = 1U << ChunkBits;
  static constexpr std::uint32_t OwnTextFlag = 1U << 31;

  struct RowRecord {
    std::uint32_t firstCell;
    std::uint32_t lineNumber : 31;
    std::uint32_t isCopied : 1;  // cells are pairs of start and length instead of starts alone
    std::uint32_t cellCount;
  };

  const std::uint32_t* Cells(std::uint32_t first) const {
    return chunks_[first >> ChunkBits] + (first & (ChunkSize - 1));
  }
  const char* TextAt(std::uint32_t start) const {
    return (start & OwnTextFlag) != 0 ? ownText_.data() + (start & ~OwnTextFlag)
                                      : fileText_.data() + start;
  }

  /// Room for a row's cells in one piece, which AddedCells then takes.
  std::uint32_t* RoomFor(std::size_t cells);
  void AddRecord(std::int32_t lineNumber, bool isCopied, std::size_t cellCount, std::size_t used);
  std::uint32_t StartOf(std::string_view value);

  std::string_view fileText_;
  std::string ownText_;
  std::vector<RowRecord> rows_;
  // A chunk pointer for every ChunkSize cell indices; a row never crosses from one piece of memory
  // into the next, so a row of very many cells has a piece that serves several chunk pointers.
  std::vector<std::unique_ptr<std::uint32_t[]>> pieces_;
  std::vector<std::uint32_t*> chunks_;
  std::uint64_t nextCell_ = 0;
};

}  // namespace quorvane
