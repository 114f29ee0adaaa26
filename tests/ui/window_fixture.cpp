#include "ui/window_fixture.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "support/check_text.h"

namespace quorvane::test {
namespace {

std::string Asked(std::string_view title, std::string_view filter) {
  return std::string(title) + " / " + std::string(filter);
}

template <typename Event>
bool Accepts(MainWindow& window, const QStringList& paths, const QPoint& place) {
  QMimeData data;
  QList<QUrl> urls;
  for (const QString& path : paths)
    urls.append(QUrl::fromLocalFile(path));
  data.setUrls(urls);
  Event event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  event.ignore();
  QCoreApplication::sendEvent(&window, &event);
  return event.isAccepted();
}

std::string WithCrLf(const std::string& text) {
  std::string result;
  for (const char letter : text) {
    if (letter == '\n') result.push_back('\r');
    result.push_back(letter);
  }
  return result;
}

}  // namespace

std::vector<std::string> FakePickers::ChooseFilesToOpen(std::string_view title,
                                                        std::string_view filter) {
  asked.push_back(Asked(title, filter));
  return filesToOpen;
}

std::optional<std::string> FakePickers::ChooseFileToOpen(std::string_view title,
                                                         std::string_view filter) {
  asked.push_back(Asked(title, filter));
  return fileToOpen;
}

std::optional<std::string> FakePickers::ChooseFile(std::string_view title,
                                                   std::string_view filter) {
  asked.push_back(Asked(title, filter));
  return fileToSave;
}

std::optional<FileToSave> FakePickers::ChooseFileToSave(
    std::string_view title, const std::vector<std::string_view>& filters) {
  std::string all;
  for (const std::string_view filter : filters)
    all.append(all.empty() ? "" : " ").append(filter);
  asked.push_back(Asked(title, all));
  if (!fileToSave) return std::nullopt;
  return FileToSave{*fileToSave, filterToSave};
}

void WindowFixture::AddFile(const std::string& path, const std::string& content) {
  disk.files[path] = content;
}

void WindowFixture::SetFiles(const QString& text) {
  Find<QPlainTextEdit>("txtFilesToCheck").setPlainText(text);
}

void WindowFixture::ClickCheckFiles() {
  QTest::mouseClick(&Find<QPushButton>("cmdQuorvane_0"), Qt::LeftButton);
}

QString WindowFixture::Progress() {
  return Find<QPlainTextEdit>("txtProgress").toPlainText();
}

std::string CleanFile() {
  return WithCrLf(MinimalAgs3().Text());
}

std::string FileWithFindings(int count) {
  Ags3File file = MinimalAgs3();
  for (int index = 0; index < count; ++index)
    file.Line("this line stands in no quotes at all, which is one finding for itself");
  return WithCrLf(file.Text());
}

bool AcceptsDrag(MainWindow& window, const QStringList& paths, const QPoint& place) {
  return Accepts<QDragEnterEvent>(window, paths, place);
}

bool AcceptsDrop(MainWindow& window, const QStringList& paths, const QPoint& place) {
  return Accepts<QDropEvent>(window, paths, place);
}

void WhenDialogShows(std::function<void(QDialog&)> routine) {
  QTimer::singleShot(0, qApp, [routine = std::move(routine)] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) {
      WhenDialogShows(routine);
    } else {
      routine(*dialog);
    }
  });
}

}  // namespace quorvane::test
