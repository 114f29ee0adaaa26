#include "page_flow.h"

#include <algorithm>
#include <limits>

#include <QAbstractTextDocumentLayout>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <QTextLayout>
#include <QTextTable>

#include "block_role.h"

namespace manual {
namespace {

/// Lines of a paragraph that must stand below what leads to it.
constexpr int LinesKept = 2;

/// A paragraph of no more lines than this is not parted.
constexpr int LinesOfShortParagraph = 4;

struct Extent {
  qreal top;
  qreal bottom;
};

/// Where a line of a paragraph stands. The paragraph's own rectangle may begin on the page before
/// that of its first line.
Extent LineExtent(const QTextBlock& block, int number) {
  const QRectF box = block.document()->documentLayout()->blockBoundingRect(block);
  if (block.layout()->lineCount() == 0) return {box.top(), box.bottom()};
  const QTextLine line = block.layout()->lineAt(std::min(number, block.layout()->lineCount() - 1));
  return {box.top() + line.y(), box.top() + line.y() + line.height()};
}

int PageOf(const QTextDocument& document, qreal y) {
  return static_cast<int>(y / document.pageSize().height());
}

bool KeepsWithNext(const QTextBlock& block) {
  return block.blockFormat().boolProperty(KeepWithNextProperty) && block.next().isValid();
}

/// The last paragraph of the first row with values of a table; of the paragraph itself when it is
/// in no table.
QTextBlock FirstWhole(const QTextBlock& block) {
  const QTextTable* table = QTextCursor(block).currentTable();
  if (table == nullptr) return block;
  const int row = std::min(1, table->rows() - 1);
  QTextBlock lowest = block;
  for (int column = 0; column < table->columns(); ++column) {
    const QTextBlock last = table->cellAt(row, column).lastCursorPosition().block();
    if (LineExtent(last, last.layout()->lineCount()).bottom >
        LineExtent(lowest, lowest.layout()->lineCount()).bottom) {
      lowest = last;
    }
  }
  return lowest;
}

/// The bottom of what must stand on one page with the end of a chain.
qreal BottomKept(const QTextBlock& end) {
  if (QTextCursor(end).currentTable() != nullptr) {
    const QTextBlock last = FirstWhole(end);
    return LineExtent(last, last.layout()->lineCount()).bottom;
  }
  const bool isMessage = RoleOf(end.blockFormat()) != BlockRole::Plain;
  const int lines = end.layout()->lineCount();
  const bool isWhole = isMessage || lines <= LinesOfShortParagraph;
  return LineExtent(end, isWhole ? lines : LinesKept - 1).bottom;
}

/// A paged document that is laid out again from a changed paragraph on loses track of where what
/// follows stands.
void LayOutAnew(QTextDocument& document) {
  const QSizeF size = document.pageSize();
  document.setPageSize({});
  document.setPageSize(size);
  static_cast<void>(document.pageCount());  // a layout is made piecemeal unless all of it is needed
}

void BreakBefore(const QTextBlock& block) {
  QTextBlockFormat format = block.blockFormat();
  format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
  QTextCursor(block).setBlockFormat(format);
}

bool IsParted(const QTextDocument& document, qreal top, qreal bottom) {
  const bool fits = bottom - top <= document.pageSize().height();
  return fits && PageOf(document, top) != PageOf(document, bottom - 1);
}

/// From the top of a row's highest line to the bottom of its lowest.
Extent RowExtent(const QTextTable& table, int row) {
  Extent extent{std::numeric_limits<qreal>::max(), 0};
  for (int column = 0; column < table.columns(); ++column) {
    const QTextTableCell cell = table.cellAt(row, column);
    const QTextBlock last = cell.lastCursorPosition().block();
    extent.top = std::min(extent.top, LineExtent(cell.firstCursorPosition().block(), 0).top);
    extent.bottom = std::max(extent.bottom, LineExtent(last, last.layout()->lineCount()).bottom);
  }
  return extent;
}

void CopyCell(const QTextTableCell& from, QTextTableCell to) {
  QTextCursor selection = from.firstCursorPosition();
  selection.setPosition(from.lastPosition(), QTextCursor::KeepAnchor);
  QTextCursor cursor = to.firstCursorPosition();
  cursor.insertFragment(selection.selection());
  cursor.setBlockFormat(from.firstCursorPosition().blockFormat());
  to.setFormat(from.format());
}

/// Moves the rows of a table from one on to a table of their own on the next page, which has the
/// same header.
void MoveToNextPage(QTextTable& table, int row) {
  QTextCursor cursor = table.lastCursorPosition();
  cursor.movePosition(QTextCursor::NextCharacter);
  QTextTableFormat format = table.format();
  format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
  const int moved = table.rows() - row;
  const QTextTable* rest = cursor.insertTable(1 + moved, table.columns(), format);
  for (int column = 0; column < table.columns(); ++column) {
    CopyCell(table.cellAt(0, column), rest->cellAt(0, column));
    for (int index = 0; index < moved; ++index)
      CopyCell(table.cellAt(row + index, column), rest->cellAt(1 + index, column));
  }
  table.removeRows(row, moved);
}

/// No row of a table is parted: the table is, before that row.
void KeepRowsWhole(QTextDocument& document, QTextTable& table) {
  for (int row = 1; row < table.rows(); ++row) {
    const Extent extent = RowExtent(table, row);
    if (!IsParted(document, extent.top, extent.bottom)) continue;
    MoveToNextPage(table, row);
    LayOutAnew(document);
  }
}

}  // namespace

void KeepTogether(QTextDocument& document) {
  LayOutAnew(document);
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    if (QTextTable* table = QTextCursor(block).currentTable()) {
      KeepRowsWhole(document, *table);
      block = table->lastCursorPosition().block();
      continue;
    }
    const QTextBlock first = block;
    while (KeepsWithNext(block))
      block = block.next();
    if (IsParted(document, LineExtent(first, 0).top, BottomKept(block))) {
      BreakBefore(first);
      LayOutAnew(document);
    }
    // A chain that ends in a table has looked at no more than the table's beginning.
    if (block != first && QTextCursor(block).currentTable() != nullptr) block = block.previous();
  }
}

QList<Heading> Headings(const QTextDocument& document) {
  QList<Heading> headings;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    const int level = block.blockFormat().headingLevel();
    if (level != 1 && level != 2) continue;
    const qreal top = LineExtent(block, 0).top;
    const int page = PageOf(document, top);
    headings.append({level, block.text(), page, top - page * document.pageSize().height()});
  }
  return headings;
}

}  // namespace manual
