#pragma once

#include <QByteArray>
#include <QString>
#include <QTextDocument>

#include "typography.h"

namespace manual {

/// The pages that WritePdf draws.
PageMetrics PdfPageMetrics();

/// Lays a document out on A4 pages behind a title page and the table of contents, and gives the PDF
/// file.
QByteArray WritePdf(QTextDocument& document, const QString& version);

}  // namespace manual
