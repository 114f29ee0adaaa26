#include "ui/desktop.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

#include "ui/byte_text.h"

namespace quorvane {

void SystemDesktop::Open(const std::string& path) {
#if defined(Q_OS_WIN)
  const QString file = QDir::toNativeSeparators(PathText(path));
  if (QProcess::startDetached(QStringLiteral("notepad.exe"), {file})) return;
  messages_.ShowBox("View Report", "Notepad could not be started to show '" + path + "'.",
                    BoxKind::Critical);
#else
  OpenDocument(path);
#endif
}

void SystemDesktop::OpenDocument(const std::string& path) {
  const QString file = QFileInfo(PathText(path)).absoluteFilePath();
  if (QDesktopServices::openUrl(QUrl::fromLocalFile(file))) return;
  messages_.ShowBox("Quorvane", "No program could be started to show '" + path + "'.",
                    BoxKind::Critical);
}

}  // namespace quorvane
