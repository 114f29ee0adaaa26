#pragma once

#include <QList>
#include <QString>
#include <QTextBlock>
#include <QTextDocument>

namespace manual {

/// A chapter or section and where it begins.
struct Heading {
  int level;
  QString title;
  int page;  // of the document, from 0
  qreal y;   // on its page, in the document's own units
};

/// Begins a new page where a heading, or another paragraph that must not part from what follows it,
/// would stand alone at the foot of a page.
void KeepTogether(QTextDocument& document);

/// The chapters and sections in their order.
QList<Heading> Headings(const QTextDocument& document);

}  // namespace manual
