#include "ui/line_view.h"

#include <algorithm>

#include <QEvent>
#include <QFontDatabase>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>

#include "findings/line_fields.h"
#include "ui/byte_text.h"

namespace quorvane {
namespace {

constexpr std::int32_t LinesAround = 20;  // in front of the line and behind it
constexpr std::size_t MostLineBytes = 4000;
constexpr int SideMargin = 6;  // at both sides of the numbers
constexpr char16_t CarriageReturnPicture = 0x240D;
constexpr char16_t LineFeedPicture = 0x240A;

/// A line as one line of the view, whatever it holds.
QString OneLine(std::string_view line) {
  const bool isCut = line.size() > MostLineBytes;
  QString text = ShownText(line.substr(0, MostLineBytes));
  text.replace(u'\r', QChar(CarriageReturnPicture));
  text.replace(u'\n', QChar(LineFeedPicture));
  if (isCut) text.append(QChar(0x2026));
  return text;
}

/// The finding's cell in its line as the report places it; nothing when it does not stand there.
std::optional<LineField> FindCell(const PlacedFinding& placed, std::string_view line) {
  const auto& [file, finding] = placed;
  if (finding.heading == 0 || finding.column == 0) return std::nullopt;
  const std::vector<LineField> fields = SplitLineFields(line);
  const std::size_t labelCount = file.format == AgsFormat::Ags4 ? 1 : 0;
  const std::size_t index = static_cast<std::size_t>(finding.heading) - 1 + labelCount;
  if (index >= fields.size()) return std::nullopt;
  return fields[index];
}

}  // namespace

LineView::LineView(const PlacedFinding& placed, const FileLines& lines, QWidget* parent)
    : QPlainTextEdit(parent), marked_(placed.finding.line) {
  setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  setReadOnly(true);
  setUndoRedoEnabled(false);
  setLineWrapMode(QPlainTextEdit::NoWrap);
  setTabChangesFocus(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);

  first_ = std::max(lines.first, marked_ - LinesAround);
  const std::int32_t last = std::min(lines.last - marked_, LinesAround) + marked_;
  QStringList texts;
  for (std::int32_t number = first_; number <= last; ++number)
    texts.append(OneLine(lines.line(number)));
  setPlainText(texts.join(u'\n'));
  BuildSide(last);
  Mark(placed, lines.line(marked_));
}

void LineView::Mark(const PlacedFinding& placed, std::string_view line) {
  QTextCursor cursor(document()->findBlockByNumber(marked_ - first_));
  setTextCursor(cursor);
  cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
  QTextCharFormat bold;
  bold.setFontWeight(QFont::Bold);
  cursor.mergeCharFormat(bold);

  const std::optional<LineField> cell = FindCell(placed, line);
  if (!cell || cell->start + cell->raw.size() > MostLineBytes) return;
  const auto length = [](std::string_view text) { return static_cast<int>(OneLine(text).size()); };
  cursor = textCursor();
  cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::MoveAnchor,
                      length(line.substr(0, cell->start)));
  setTextCursor(cursor);
  cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor, length(cell->raw));
  QTextCharFormat underlined;
  underlined.setFontUnderline(true);
  cursor.mergeCharFormat(underlined);
}

void LineView::BuildSide(std::int32_t last) {
  side_ = new QWidget(this);
  side_->setFont(font());
  side_->installEventFilter(this);
  const QString widest = QStringLiteral(u"\u25BA ") + QString::number(last);
  setViewportMargins(fontMetrics().horizontalAdvance(widest) + 2 * SideMargin, 0, 0, 0);
  connect(this, &QPlainTextEdit::updateRequest, side_, qOverload<>(&QWidget::update));
}

QString LineView::SideText(int block) const {
  const QString number = QString::number(first_ + block);
  return first_ + block == marked_ ? QStringLiteral(u"\u25BA ") + number : number;
}

void LineView::resizeEvent(QResizeEvent* event) {
  QPlainTextEdit::resizeEvent(event);
  const QRect inside = contentsRect();
  side_->setGeometry(inside.x(), inside.y(), viewportMargins().left(), viewport()->height());
}

bool LineView::eventFilter(QObject* object, QEvent* event) {
  if (object != side_ || event->type() != QEvent::Paint) {
    return QPlainTextEdit::eventFilter(object, event);
  }
  PaintSide();
  return true;
}

void LineView::PaintSide() {
  QPainter painter(side_);
  QFont bold = font();
  bold.setBold(true);
  const int width = side_->width() - SideMargin;
  for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
    const QRectF place = blockBoundingGeometry(block).translated(contentOffset());
    if (place.top() > side_->height()) break;
    const bool isMarked = first_ + block.blockNumber() == marked_;
    painter.setFont(isMarked ? bold : font());
    painter.drawText(QRectF(0, place.top(), width, place.height()), Qt::AlignRight | Qt::AlignTop,
                     SideText(block.blockNumber()));
  }
}

}  // namespace quorvane
