#pragma once

#include <QByteArray>
#include <QList>
#include <QRectF>
#include <QString>

namespace manual {

/// A point of a PDF file: a page, from 0, and a height on it in points from the page's foot.
struct PdfPlace {
  int page = 0;
  double y = 0;
};

/// An entry of the outline that viewers show beside the pages; level 1 or 2.
struct OutlineEntry {
  int level;
  QString title;
  PdfPlace target;
};

/// An area of a page, in points from its lower left corner, that leads to another place.
struct PdfLink {
  int page;
  QRectF area;
  PdfPlace target;
};

struct PdfFacts {
  QString title;
  QString author;
};

/// Gives a PDF file as QPdfWriter makes it an outline, links and the facts about it, and takes the
/// date of its making out, so that the same text gives the same file. Throws std::runtime_error
/// when the file does not have the form expected.
QByteArray AddNavigation(QByteArray pdf, const PdfFacts& facts, const QList<OutlineEntry>& outline,
                         const QList<PdfLink>& links);

}  // namespace manual
