#include "manual_text.h"

#include <stdexcept>

#include <QDir>
#include <QFile>

namespace manual {
namespace {

QString ReadFile(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    throw std::runtime_error(path.toStdString() + ": " + file.errorString().toStdString());
  }
  return QString::fromUtf8(file.readAll());
}

}  // namespace

QString ReadChapters(const QString& folder) {
  QString text;
  const QStringList names =
      QDir(folder).entryList({QStringLiteral("*.md")}, QDir::Files, QDir::Name);
  for (const QString& name : names) {
    const QString chapter = ReadFile(folder + u'/' + name);
    if (!chapter.startsWith(QStringLiteral("# "))) {
      throw std::runtime_error(name.toStdString() + " does not begin with the title of a chapter");
    }
    text += chapter + QStringLiteral("\n\n");
  }
  if (text.isEmpty()) throw std::runtime_error(folder.toStdString() + " holds no chapters");
  return text;
}

}  // namespace manual
