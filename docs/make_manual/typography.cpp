#include "typography.h"

#include <algorithm>
#include <cmath>

#include <QTextBlock>
#include <QTextCursor>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>

#include "block_role.h"

namespace manual {
namespace {

constexpr qreal BodySize = 10;
constexpr qreal CodeScale = 0.88;
constexpr QColor CodeBackground{0xf3, 0xf5, 0xf8};
constexpr QColor HeaderBackground{0xe6, 0xec, 0xf3};
constexpr QColor TableLine{0xc4, 0xcc, 0xd6};

/// Distances in a text document are in pixels of 96 to the inch.
constexpr qreal FromPoints(qreal points) {
  return points * 96 / 72;
}

QTextCursor CursorOver(const QTextBlock& block) {
  QTextCursor cursor(block);
  cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
  return cursor;
}

void SetMargins(QTextBlockFormat& format, qreal above, qreal below) {
  format.setTopMargin(FromPoints(above));
  format.setBottomMargin(FromPoints(below));
}

bool IsInTable(const QTextBlock& block) {
  return QTextCursor(block).currentTable() != nullptr;
}

/// The first cell of a table behind a listing has the listing's format, though it is none.
bool IsCode(const QTextBlock& block) {
  return block.isValid() && block.blockFormat().hasProperty(QTextFormat::BlockCodeFence) &&
         !IsInTable(block);
}

class Typographer {
 public:
  Typographer(QTextDocument& document, const PageMetrics& metrics)
      : document_(document), metrics_(metrics) {}

  void Apply() {
    for (QTextFrame* frame : document_.rootFrame()->childFrames()) {
      if (auto* table = qobject_cast<QTextTable*>(frame)) RemoveEmptyStart(*table);
    }
    NumberHeadings();
    for (QTextBlock block = document_.begin(); block.isValid(); block = block.next())
      StyleBlock(block);
    for (QTextFrame* frame : document_.rootFrame()->childFrames()) {
      if (auto* table = qobject_cast<QTextTable*>(frame)) StyleTable(*table);
    }
  }

 private:
  /// A table behind a listing begins with an empty paragraph of its first cell.
  static void RemoveEmptyStart(const QTextTable& table) {
    const QTextTableCell cell = table.cellAt(0, 0);
    QTextCursor cursor = cell.firstCursorPosition();
    if (cursor.block().length() == 1 && cell.lastPosition() > cell.firstPosition()) {
      cursor.deleteChar();
    }
  }

  void NumberHeadings() {
    int chapter = 0;
    int section = 0;
    for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) {
      const int level = block.blockFormat().headingLevel();
      if (level == 1) section = 0;
      if (level == 1) ++chapter;
      if (level == 2) ++section;
      if (level != 1 && level != 2) continue;
      QString number = QString::number(chapter);
      if (level == 2) number += u'.' + QString::number(section);
      QTextCursor(block).insertText(number + QStringLiteral("\u2002"));
    }
  }

  void StyleBlock(const QTextBlock& block) {
    if (block.blockFormat().headingLevel() > 0) {
      StyleHeading(block);
    } else if (IsCode(block)) {
      StyleCode(block);
    } else if (RoleOf(block.blockFormat()) != BlockRole::Plain) {
      StyleMessage(block);
    } else {
      StyleText(block);
    }
  }

  void StyleHeading(const QTextBlock& block) {
    const int level = block.blockFormat().headingLevel();
    QTextBlockFormat format = block.blockFormat();
    format.setProperty(KeepWithNextProperty, true);
    QTextCharFormat characters;
    characters.setForeground(Accent);
    if (level == 1) {
      characters.setFont(TextFont(20));
      SetMargins(format, 0, 16);
      if (block.previous().isValid()) {
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
      }
    } else {
      characters.setFont(TextFont(level == 2 ? 13.5 : 11));
      SetMargins(format, level == 2 ? 16 : 11, level == 2 ? 6 : 4);
    }
    characters.setFontWeight(QFont::Bold);
    QTextCursor cursor = CursorOver(block);
    cursor.setBlockFormat(format);
    cursor.setCharFormat(characters);
  }

  void StyleCode(const QTextBlock& block) {
    QTextBlockFormat format = block.blockFormat();
    format.setBackground(CodeBackground);
    format.setNonBreakableLines(false);
    SetMargins(format, IsCode(block.previous()) ? 0 : 2, IsCode(block.next()) ? 0 : 8);
    format.setTextIndent(FromPoints(6) * metrics_.dotsPerPixel);  // a document does not scale it
    // Short listings stay whole; long ones may be parted.
    format.setProperty(KeepWithNextProperty, IsCode(block.next()) && !IsLongListing(block));
    QTextCharFormat characters;
    characters.setFont(CodeFont(8.3));
    QTextCursor cursor = CursorOver(block);
    cursor.setBlockFormat(format);
    cursor.setCharFormat(characters);
    cursor.setBlockCharFormat(characters);
  }

  static bool IsLongListing(QTextBlock block) {
    constexpr int LongestWhole = 40;
    while (IsCode(block.previous()))
      block = block.previous();
    int lines = 0;
    for (; IsCode(block); block = block.next())
      ++lines;
    return lines > LongestWhole;
  }

  void StyleMessage(const QTextBlock& block) {
    QTextBlockFormat format = block.blockFormat();
    QTextCharFormat characters;
    characters.setFont(TextFont(BodySize - 0.5));
    format.setLineHeight(122, QTextBlockFormat::ProportionalHeight);
    const BlockRole role = RoleOf(format);
    format.setProperty(KeepWithNextProperty, role != BlockRole::MessageBody);
    switch (role) {
      case BlockRole::MessageText:
        characters.setFontWeight(QFont::Bold);
        SetMargins(format,
                   RoleOf(block.previous().blockFormat()) == BlockRole::MessageFacts ? 4 : 9, 1);
        break;
      case BlockRole::MessageFacts:
        characters.setFont(TextFont(8.5));
        characters.setForeground(Muted);
        SetMargins(format, 0, 2);
        break;
      default:
        SetMargins(format, 0, 6);
        break;
    }
    QTextCursor cursor = CursorOver(block);
    cursor.setBlockFormat(format);
    characters.clearProperty(QTextFormat::FontItalic);  // the label "What to do" keeps its own
    cursor.mergeCharFormat(characters);
  }

  void StyleText(const QTextBlock& block) {
    const bool isInTable = IsInTable(block);
    QTextBlockFormat format = isInTable ? QTextBlockFormat() : block.blockFormat();
    format.setLineHeight(isInTable ? 116 : 128, QTextBlockFormat::ProportionalHeight);
    if (isInTable) {
      SetMargins(format, 0, 0);
    } else if (block.textList() != nullptr) {
      SetMargins(format, 0, IsLastOfList(block) ? 8 : 3);
    } else {
      SetMargins(format, 0, 7);
    }
    if (format.hasProperty(QTextFormat::BlockQuoteLevel)) format.setIndent(1);
    const bool leadsOn = !isInTable && block.text().trimmed().endsWith(u':');
    if (leadsOn) format.setProperty(KeepWithNextProperty, true);
    QTextCursor(block).setBlockFormat(format);
    StyleFragments(block, isInTable ? BodySize - 1 : BodySize);
  }

  static bool IsLastOfList(const QTextBlock& block) {
    return block.next().textList() != block.textList();
  }

  void StyleFragments(const QTextBlock& block, qreal size) {
    struct Part {
      int position;
      int length;
      QTextCharFormat format;
    };
    QList<Part> parts;
    for (auto at = block.begin(); !at.atEnd(); ++at) {
      const QTextFragment fragment = at.fragment();
      parts.append({fragment.position(), fragment.length(), fragment.charFormat()});
    }
    for (const Part& part : parts) {
      QTextCursor cursor(&document_);
      cursor.setPosition(part.position);
      cursor.setPosition(part.position + part.length, QTextCursor::KeepAnchor);
      if (part.format.isImageFormat()) {
        FitPicture(cursor, part.format.toImageFormat());
      } else {
        StyleFragment(cursor, part.format, size);
      }
    }
  }

  static void StyleFragment(QTextCursor& cursor, const QTextCharFormat& old, qreal size) {
    QTextCharFormat format;
    format.setFont(old.fontFixedPitch() ? CodeFont(size * CodeScale) : TextFont(size));
    format.setFontItalic(old.fontItalic());
    format.setFontWeight(old.fontWeight() > QFont::Normal ? QFont::Bold : QFont::Normal);
    cursor.setCharFormat(format);
  }

  /// A picture fills the width of the text, so that its small print can be read.
  void FitPicture(QTextCursor& cursor, QTextImageFormat format) const {
    format.setWidth(metrics_.textWidth);
    format.clearProperty(QTextFormat::ImageHeight);
    cursor.setCharFormat(format);
    QTextBlockFormat blockFormat = cursor.blockFormat();
    blockFormat.setLineHeight(100, QTextBlockFormat::SingleHeight);
    blockFormat.setProperty(KeepWithNextProperty, true);  // its caption
    cursor.setBlockFormat(blockFormat);
  }

  void StyleTable(QTextTable& table) {
    QTextTableFormat format = table.format();
    format.setBorder(0);
    format.setBorderCollapse(true);
    format.setCellPadding(FromPoints(3.5));
    format.setCellSpacing(0);
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    format.setTopMargin(FromPoints(5));
    format.setBottomMargin(FromPoints(10));
    format.setHeaderRowCount(1);
    format.setColumnWidthConstraints(ColumnWidths(table));
    table.setFormat(format);
    for (int row = 0; row < table.rows(); ++row) {
      for (int column = 0; column < table.columns(); ++column)
        StyleCell(table.cellAt(row, column), row == 0);
    }
    for (int column = 0; column < table.columns(); ++column) {
      const QTextTableCell cell = table.cellAt(0, column);
      QTextCursor cursor = CursorOver(cell.firstCursorPosition().block());
      QTextCharFormat characters;
      characters.setFontWeight(QFont::Bold);
      cursor.mergeCharFormat(characters);
    }
  }

  /// Columns with short texts are as wide as these; the others share the rest of the width, more of
  /// it where there is more to read.
  static QList<QTextLength> ColumnWidths(const QTextTable& table) {
    constexpr qreal LineLength = 102;  // letters that a table is wide
    constexpr qreal ShortText = 26;
    constexpr qreal Padding = 3;
    QList<qreal> longest;
    QList<qreal> weights;
    for (int column = 0; column < table.columns(); ++column) {
      qreal longestText = 0;
      qreal letters = 0;
      for (int row = 0; row < table.rows(); ++row) {
        const qreal width = TextWidth(table.cellAt(row, column));
        longestText = std::max(longestText, width);
        letters += width;
      }
      longest.append(longestText + Padding);
      weights.append(std::sqrt(letters));
    }
    qreal forShort = 0;
    qreal allWeights = 0;
    for (qsizetype column = 0; column < longest.size(); ++column) {
      const bool isShort = longest.at(column) <= ShortText + Padding;
      (isShort ? forShort : allWeights) += isShort ? longest.at(column) : weights.at(column);
    }
    if (allWeights == 0) return {};
    QList<QTextLength> widths;
    for (qsizetype column = 0; column < longest.size(); ++column) {
      const bool isShort = longest.at(column) <= ShortText + Padding;
      const qreal width =
          isShort ? longest.at(column) : (LineLength - forShort) * weights.at(column) / allWeights;
      widths.append(QTextLength(QTextLength::PercentageLength, 100 * width / LineLength));
    }
    return widths;
  }

  /// In letters of average width; capitals and the letters of programs and files are wider.
  static qreal TextWidth(const QTextTableCell& cell) {
    constexpr qreal CodeLetter = 1.15;
    constexpr qreal Capital = 1.4;
    const QTextBlock block = cell.firstCursorPosition().block();
    const bool isCode =
        !block.begin().atEnd() && block.begin().fragment().charFormat().fontFixedPitch();
    qreal width = 0;
    for (const QChar letter : block.text())
      width += isCode ? CodeLetter : letter.isUpper() ? Capital : 1;
    return width;
  }

  static void StyleCell(QTextTableCell cell, bool isHeader) {
    QTextTableCellFormat format = cell.format().toTableCellFormat();
    if (isHeader) format.setBackground(HeaderBackground);
    format.setBottomBorder(0.75);
    format.setBottomBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBottomBorderBrush(TableLine);
    cell.setFormat(format);
  }

  QTextDocument& document_;
  PageMetrics metrics_;
};

QFont FirstOf(const QStringList& families, qreal points) {
  QFont font;
  font.setFamilies(families);
  font.setPointSizeF(points);
  return font;
}

}  // namespace

QFont TextFont(qreal points) {
  return FirstOf({QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans")}, points);
}

QFont CodeFont(qreal points) {
  return FirstOf({QStringLiteral("DejaVu Sans Mono"), QStringLiteral("Liberation Mono")}, points);
}

void ApplyTypography(QTextDocument& document, const PageMetrics& metrics) {
  document.setIndentWidth(FromPoints(18));
  Typographer(document, metrics).Apply();
}

}  // namespace manual
