#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <QTextDocument>

namespace manual {

/// The fonts and colours of the manual.
QFont TextFont(qreal points);
QFont CodeFont(qreal points);
inline constexpr QColor Accent{0x1f, 0x4e, 0x79};
inline constexpr QColor Muted{0x60, 0x66, 0x6e};

/// The pages that a document is written for.
struct PageMetrics {
  qreal textWidth;     // in pixels of 96 to the inch
  qreal dotsPerPixel;  // of the device that the pages are drawn on
};

/// Numbers the chapters and sections and gives every paragraph, list, table and picture its looks.
/// Marks the paragraphs that must stay on one page with what follows them.
void ApplyTypography(QTextDocument& document, const PageMetrics& metrics);

}  // namespace manual
