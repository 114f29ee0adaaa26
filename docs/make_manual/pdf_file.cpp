#include "pdf_file.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include "page_flow.h"
#include "pdf_navigation.h"

namespace manual {
namespace {

// All sizes in points; the painter is scaled to them.
constexpr QSizeF PageSize(595, 842);
constexpr QRectF TextArea(64, 74, 467, 690);
constexpr qreal HeaderLine = 52;
constexpr qreal FooterLine = 800;
constexpr int Resolution = 1200;  // dots to the inch
constexpr int ContentsLine = 18;
constexpr int ContentsChapterGap = 8;
constexpr qreal ContentsTop = 120;

constexpr qreal Bottom(const QRectF& area) {
  return area.y() + area.height();
}

class ManualPdf {
 public:
  ManualPdf(QTextDocument& document, const QString& version)
      : document_(document), version_(version), writer_(&buffer_) {
    buffer_.open(QIODevice::WriteOnly);
    writer_.setPageSize(QPageSize(QPageSize::A4));
    writer_.setPageMargins(QMarginsF(0, 0, 0, 0));
    writer_.setResolution(Resolution);
    scale_ = writer_.resolution() / 72.0;
  }

  QByteArray Write() {
    document_.documentLayout()->setPaintDevice(&writer_);
    document_.setPageSize(TextArea.size() * scale_);
    KeepTogether(document_);
    headings_ = Headings(document_);
    ArrangeContents();

    painter_.begin(&writer_);
    painter_.scale(scale_, scale_);
    DrawTitlePage();
    DrawContents();
    for (int page = 0; page < document_.pageCount(); ++page)
      DrawTextPage(page);
    painter_.end();
    return AddNavigation(buffer_.data(),
                         {QStringLiteral("Quorvane manual"), QStringLiteral("Vexo")}, Outline(),
                         links_);
  }

 private:
  /// Where an entry of the contents stands: a page behind the title page, and its baseline.
  struct ContentsPlace {
    int page;
    qreal y;
  };

  void ArrangeContents() {
    int page = 0;
    qreal y = ContentsTop;
    for (const Heading& heading : headings_) {
      if (heading.level == 1) y += ContentsChapterGap;
      // A chapter's title does not stand alone at the foot of a page.
      const qreal needed = heading.level == 1 ? ContentsLine : 0;
      if (y + needed > Bottom(TextArea)) {
        ++page;
        y = TextArea.y() + ContentsLine;
      }
      contents_.append({page, y});
      y += ContentsLine;
    }
    contentsPages_ = page + 1;
  }

  int FirstTextPage() const { return 1 + contentsPages_; }

  PdfPlace PlaceOf(const Heading& heading) const {
    const qreal fromTop = TextArea.y() + heading.y / scale_ - 10;
    return {FirstTextPage() + heading.page, PageSize.height() - fromTop};
  }

  QList<OutlineEntry> Outline() const {
    QList<OutlineEntry> outline;
    for (const Heading& heading : headings_)
      outline.append({heading.level, heading.title, PlaceOf(heading)});
    return outline;
  }

  void DrawText(const QRectF& area, int flags, const QString& text, const QFont& font,
                const QColor& colour) {
    // Fonts are sized for the device; the painter's scale would be applied to them once more.
    painter_.save();
    painter_.resetTransform();
    painter_.setFont(font);
    painter_.setPen(colour);
    const QRectF onDevice(area.topLeft() * scale_, area.size() * scale_);
    painter_.drawText(onDevice, flags, text);
    painter_.restore();
  }

  void DrawTitlePage() {
    painter_.fillRect(QRectF(0, 0, PageSize.width() + 1, 300), Accent);
    DrawText({64, 150, 467, 60}, Qt::AlignLeft | Qt::AlignBottom, QStringLiteral("Quorvane"),
             Bold(TextFont(40)), Qt::white);
    DrawText({64, 216, 467, 40}, Qt::AlignLeft | Qt::AlignTop,
             QStringLiteral("Checks AGS data files, versions 3 and 4"), TextFont(16), Qt::white);
    DrawText({64, 340, 467, 30}, Qt::AlignLeft, QStringLiteral("Manual"), Bold(TextFont(20)),
             Accent);
    DrawText({64, 372, 467, 30}, Qt::AlignLeft, QStringLiteral("Version ") + version_, TextFont(12),
             Muted);
    DrawText({64, 750, 467, 30}, Qt::AlignLeft, QStringLiteral("Vexo"), Bold(TextFont(12)), Muted);
  }

  static QFont Bold(QFont font) {
    font.setBold(true);
    return font;
  }

  void DrawContents() {
    int page = -1;
    for (qsizetype index = 0; index < headings_.size(); ++index) {
      const ContentsPlace& place = contents_.at(index);
      if (place.page != page) {
        page = place.page;
        StartContentsPage(page);
      }
      DrawContentsLine(headings_.at(index), place);
    }
  }

  void StartContentsPage(int page) {
    writer_.newPage();
    DrawFrame(QStringLiteral("Contents"), 1 + page);
    if (page > 0) return;
    DrawText({64, TextArea.y(), 467, 34}, Qt::AlignLeft | Qt::AlignTop, QStringLiteral("Contents"),
             Bold(TextFont(20)), Accent);
  }

  void DrawContentsLine(const Heading& heading, const ContentsPlace& place) {
    const bool isChapter = heading.level == 1;
    const QFont font = isChapter ? Bold(TextFont(10.5)) : TextFont(10);
    const QColor colour = isChapter ? Accent : QColor(Qt::black);
    const qreal left = TextArea.x() + (isChapter ? 0 : 16);
    const QRectF line(left, place.y - 13, TextArea.x() + TextArea.width() - left, ContentsLine);
    const PdfPlace target = PlaceOf(heading);
    const QString number = QString::number(target.page + 1);
    DrawText(line, Qt::AlignLeft | Qt::AlignVCenter, heading.title, font, colour);
    DrawText(line, Qt::AlignRight | Qt::AlignVCenter, number, font, colour);
    DrawLeader(line, heading.title, number, font);
    const QRectF upright(line.x(), PageSize.height() - Bottom(line), line.width(), line.height());
    links_.append({1 + place.page, upright, target});
  }

  void DrawLeader(const QRectF& line, const QString& title, const QString& number,
                  const QFont& font) {
    const QFontMetricsF metrics(font, &writer_);
    const qreal start = line.x() + metrics.horizontalAdvance(title) / scale_ + 6;
    const qreal end = line.x() + line.width() - metrics.horizontalAdvance(number) / scale_ - 6;
    painter_.save();
    painter_.setPen(QPen(QColor(0xb0, 0xb8, 0xc2), 0.8, Qt::DotLine));
    const qreal y = line.center().y() + 3;
    if (end > start) painter_.drawLine(QPointF(start, y), QPointF(end, y));
    painter_.restore();
  }

  QString ChapterOn(int page) const {
    QString chapter;
    for (const Heading& heading : headings_) {
      if (heading.page > page) break;
      if (heading.level == 1) chapter = heading.title;
    }
    return chapter;
  }

  void DrawTextPage(int page) {
    writer_.newPage();
    DrawFrame(ChapterOn(page), FirstTextPage() + page);
    painter_.save();
    painter_.resetTransform();
    const qreal height = document_.pageSize().height();
    painter_.translate(TextArea.x() * scale_, TextArea.y() * scale_ - page * height);
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = QRectF(0, page * height, document_.pageSize().width(), height);
    context.palette.setColor(QPalette::Text, Qt::black);
    painter_.setClipRect(context.clip.adjusted(-scale_, 0, scale_, 0));
    document_.documentLayout()->draw(&painter_, context);
    painter_.restore();
  }

  /// The running head and the page's number.
  void DrawFrame(const QString& title, int page) {
    const qreal left = TextArea.x();
    const qreal width = TextArea.width();
    const QFont font = TextFont(8.5);
    DrawText({left, HeaderLine - 16, width, 12}, Qt::AlignRight, title, font, Muted);
    DrawText({left, HeaderLine - 16, width, 12}, Qt::AlignLeft, QStringLiteral("Quorvane manual"),
             font, Muted);
    DrawText({left, FooterLine, width, 12}, Qt::AlignRight, QString::number(page + 1), font, Muted);
    painter_.save();
    painter_.setPen(QPen(QColor(0xc4, 0xcc, 0xd6), 0.6));
    painter_.drawLine(QPointF(left, HeaderLine), QPointF(left + width, HeaderLine));
    painter_.restore();
  }

  QTextDocument& document_;
  QString version_;
  QBuffer buffer_;
  QPdfWriter writer_;
  QPainter painter_;
  qreal scale_ = 1;
  QList<Heading> headings_;
  QList<ContentsPlace> contents_;
  QList<PdfLink> links_;
  int contentsPages_ = 0;
};

}  // namespace

PageMetrics PdfPageMetrics() {
  return {TextArea.width() * 96 / 72, Resolution / 96.0};
}

QByteArray WritePdf(QTextDocument& document, const QString& version) {
  return ManualPdf(document, version).Write();
}

}  // namespace manual
