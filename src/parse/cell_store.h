#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "parse/field_scan.h"
#include "text/large_block.h"

namespace quorvane {

/// The cells of all data rows of a file. A cell of a regular line is kept as the offset of its
/// value in the line, two bytes, and made into a view on demand. Where values stand in their line
/// at other distances, both their ends are kept, four bytes: files with many mistakes are full of
/// such rows, and what reads the cells takes both forms without a branch. The cells of other rows
/// are kept as start and length, eight bytes; a value that does not stand in the file as it is read
/// (a continued one, say) is in a text of the store's own.
///
/// Rows are counted from 0 over the whole file.
class CellStore {
  struct RowRecord;

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
    return ValueOf(rows_[row], column);
  }

  /// One row, for a look at several of its cells; ends with the next change of the store.
  class Row {
   public:
    /// As CellStore::Value.
    std::string_view Value(std::size_t column) const { return store_->ValueOf(*record_, column); }

    /// The first values as they stand in their line, quotes and commas between them, with the quote
    /// behind the last: rows with the same such text have the same values, of which none holds a
    /// quote or begins with a blank. Empty when the line does not begin so.
    std::string_view LeadingText(std::size_t count) const {
      return store_->LeadingTextOf(*record_, count);
    }

    /// How many of those values, quote behind included, lie within a length of that text.
    std::size_t LeadingCount(std::size_t count, std::size_t length) const {
      return store_->LeadingCountOf(*record_, count, length);
    }

   private:
    friend class CellStore;
    Row(const CellStore& store, const RowRecord& record) : store_(&store), record_(&record) {}

    const CellStore* store_;
    const RowRecord* record_;
  };

  Row RowAt(std::uint32_t row) const { return {*this, rows_[row]}; }

  /// One column of rows that follow each other, for a walk through them; ends with the next change
  /// of the store.
  class Column {
   public:
    /// The value in the row at a distance from the first: as CellStore::Value.
    std::string_view Value(std::uint32_t distance) const {
      const RowRecord& record = rows_[distance];
      if (column_ > record.cellCount) return {};
      if (record.isInSpans) return store_->ValueOf(record, column_);
      return ValueInLine(record, column_, text_, chunks_);
    }

   private:
    friend class CellStore;
    Column(const CellStore& store, std::uint32_t firstRow, std::size_t column)
        : store_(&store),
          rows_(store.rows_.data() + firstRow),
          text_(store.fileText_.data()),
          chunks_(store.chunks_.data()),
          column_(column) {}

    const CellStore* store_;
    // Copies, which stay at hand where those of the store are read again for every row:
    const RowRecord* rows_;
    const char* text_;
    const LargeBlock<FieldOffset>* chunks_;
    std::size_t column_;
  };

  Column ColumnFrom(std::uint32_t firstRow, std::size_t column) const {
    return {*this, firstRow, column};
  }

  /// Has the beginning of a row's line fetched from memory, which a walk through the rows will need
  /// shortly. Any number is in order, also that of no row.
  void FetchAhead(std::uint32_t row) const {
    if (row < rows_.size()) __builtin_prefetch(fileText_.data() + rows_[row].lineStart);
  }

  /// Whether a value is a view into the file's text.
  bool LiesInFile(std::string_view value) const {
    return !value.empty() && OffsetInFile(value) < fileText_.size();
  }

  std::size_t CellCount(std::uint32_t row) const { return rows_[row].cellCount; }

  /// The line of the file on which the row starts.
  std::int32_t LineNumber(std::uint32_t row) const {
    return static_cast<std::int32_t>(rows_[row].lineNumber);
  }

 private:
  /// Between two values of a regular line stand a quote, a comma and a quote.
  static constexpr std::uint32_t BoundaryLength = 3;
  /// Room for many of the longest regular lines.
  static constexpr std::uint32_t ChunkBits = 20;
  static constexpr std::uint32_t ChunkSize = 1U << ChunkBits;
  static constexpr std::uint32_t OwnTextFlag = 1U << 31;
  static constexpr std::uint32_t Lower31Bits = OwnTextFlag - 1;

  /// A value in the file's text or, with OwnTextFlag, in the store's own.
  struct Span {
    std::uint32_t start;
    std::uint32_t length;
  };

  struct RowRecord {
    std::uint32_t lineNumber : 31;
    std::uint32_t isInSpans : 1;
    std::uint32_t lineStart;  // what offsets are counted from, in the file's text
    std::uint32_t firstCell;  // in the offsets, else in spans_
    std::uint32_t cellCount : 31;
    std::uint32_t hasEnds : 1;  // each offset of a value is followed by that of its end
  };

  std::string_view ValueOf(const RowRecord& record, std::size_t column) const {
    if (column > record.cellCount) return {};
    if (record.isInSpans) {
      const Span& span = spans_[record.firstCell + column - 1];
      return {TextAt(span.start), span.length};
    }
    return ValueInLine(record, column, fileText_.data(), chunks_.data());
  }

  static std::string_view ValueInLine(const RowRecord& record, std::size_t column, const char* text,
                                      const LargeBlock<FieldOffset>* chunks) {
    const FieldOffset* offset =
        OffsetsIn(chunks, record.firstCell) + ((column - 1) << record.hasEnds);
    const std::size_t start = offset[0];
    return {text + record.lineStart + start, offset[1] - BoundaryLength - start};
  }

  std::string_view LeadingTextOf(const RowRecord& record, std::size_t count) const {
    if (record.isInSpans || count == 0 || count > record.cellCount) return {};
    const FieldOffset* offset = Offsets(record.firstCell);
    const char* line = fileText_.data() + record.lineStart;
    if (record.hasEnds && !BeginsRegularly(offset, count, line)) return {};
    const std::size_t start = offset[0];
    const std::size_t last = (count - 1) << record.hasEnds;
    return {line + start, offset[last + 1] - (BoundaryLength - 1) - start};
  }

  /// Whether values of which both ends are kept stand in their line as those of a regular one.
  static bool BeginsRegularly(const FieldOffset* offset, std::size_t count, const char* line);

  std::size_t LeadingCountOf(const RowRecord& record, std::size_t count, std::size_t length) const {
    const FieldOffset* offset = Offsets(record.firstCell);
    const std::size_t behindLast = offset[0] + length + BoundaryLength - 1;
    std::size_t within = 0;
    while (within < count && offset[(within << record.hasEnds) + 1] <= behindLast)
      ++within;
    return within;
  }

  static const FieldOffset* OffsetsIn(const LargeBlock<FieldOffset>* chunks, std::uint32_t first) {
    return chunks[first >> ChunkBits].get() + (first & (ChunkSize - 1));
  }
  const FieldOffset* Offsets(std::uint32_t first) const { return OffsetsIn(chunks_.data(), first); }
  const char* TextAt(std::uint32_t start) const {
    return (start & OwnTextFlag) != 0 ? ownText_.data() + (start & ~OwnTextFlag)
                                      : fileText_.data() + start;
  }

  /// Where a value begins in the file's text; a number beyond its end when the value lies
  /// elsewhere.
  std::size_t OffsetInFile(std::string_view value) const {
    return reinterpret_cast<std::uintptr_t>(value.data()) -
           reinterpret_cast<std::uintptr_t>(fileText_.data());
  }

  /// Room for the offsets of a line in one piece, beginning at nextOffset_.
  FieldOffset* RoomFor(std::size_t offsets);
  bool AddRowOfOneLine(std::uint32_t lineNumber, const std::vector<std::string_view>& values);
  std::uint32_t StartOf(std::string_view value);

  std::string_view fileText_;
  std::string ownText_;
  LargeVector<RowRecord> rows_;
  LargeVector<Span> spans_;
  std::vector<LargeBlock<FieldOffset>> chunks_;  // ChunkSize offsets each
  std::uint64_t nextOffset_ = 0;
};

}  // namespace quorvane
