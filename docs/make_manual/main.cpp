// Makes the manual: make_manual FOLDER_OF_CHAPTERS MANUAL.PDF

#include <cstdio>
#include <exception>
#include <stdexcept>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QTextBlock>
#include <QTextDocument>
#include <QUrl>

#include "manual_text.h"
#include "message_chapter.h"
#include "pdf_file.h"
#include "run/environment.h"
#include "typography.h"

namespace manual {
namespace {

/// A document leaves a blank where it cannot read a picture; here that is a mistake.
void RequirePictures(const QTextDocument& document, const QString& folder) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    for (auto at = block.begin(); !at.atEnd(); ++at) {
      const QTextCharFormat format = at.fragment().charFormat();
      if (!format.isImageFormat()) continue;
      const QString path = QDir(folder).filePath(format.toImageFormat().name());
      if (QImage(path).isNull()) {
        throw std::runtime_error("the picture " + path.toStdString() + " cannot be read");
      }
    }
  }
}

void Save(const QString& path, const QByteArray& content) {
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
    throw std::runtime_error(path.toStdString() + ": " + file.errorString().toStdString());
  }
}

void MakeManual(const QString& folder, const QString& path) {
  QTextDocument document;
  document.setBaseUrl(QUrl::fromLocalFile(QDir(folder).absolutePath() + u'/'));
  document.setDocumentMargin(0);
  document.setDefaultFont(TextFont(10));
  document.setMarkdown(ReadChapters(folder), QTextDocument::MarkdownDialectGitHub);
  RequirePictures(document, folder);
  InsertMessageChapter(document);
  ApplyTypography(document, PdfPageMetrics());
  const std::string version(quorvane::ProgramVersion);
  Save(path, WritePdf(document, QString::fromStdString(version)));
}

}  // namespace
}  // namespace manual

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  if (arguments.size() != 3) {
    std::fputs("make_manual FOLDER_OF_CHAPTERS MANUAL.PDF\n", stderr);
    return 2;
  }
  try {
    manual::MakeManual(arguments.at(1), arguments.at(2));
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "make_manual: %s\n", failure.what());
    return 1;
  }
  return 0;
}
