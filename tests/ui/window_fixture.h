#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <QDialog>
#include <QString>
#include <QWidget>

#include "support/fake_services.h"
#include "ui/desktop.h"
#include "ui/file_pickers.h"
#include "ui/main_window.h"

namespace quorvane::test {

/// File dialogs that are answered from a script and written down as "TITLE / FILTER".
class FakePickers : public FilePickers {
 public:
  std::vector<std::string> ChooseFilesToOpen(std::string_view title,
                                             std::string_view filter) override;
  std::optional<std::string> ChooseFileToOpen(std::string_view title,
                                              std::string_view filter) override;
  std::optional<std::string> ChooseFile(std::string_view title, std::string_view filter) override;
  std::optional<FileToSave> ChooseFileToSave(std::string_view title,
                                             const std::vector<std::string_view>& filters) override;

  std::vector<std::string> asked;
  std::vector<std::string> filesToOpen;  // empty: cancelled
  std::optional<std::string> fileToOpen;
  std::optional<std::string> fileToSave;
  std::size_t filterToSave = 0;
};

/// A desktop that writes down what it is to open.
class FakeDesktop : public Desktop {
 public:
  void Open(const std::string& path) override { opened.push_back(path); }
  void OpenDocument(const std::string& path) override { documents.push_back(path); }

  std::vector<std::string> opened;
  std::vector<std::string> documents;
};

/// A disk in memory that lets a test look at the window in the middle of a run: while a file is
/// read.
class WatchedDisk : public MemoryDisk {
 public:
  Reading Read(const std::string& path) override {
    if (whenRead) whenRead(path);
    return MemoryDisk::Read(path);
  }

  std::function<void(const std::string& path)> whenRead;
};

/// A main window with everything around it replaced.
struct WindowFixture {
  /// The window can save findings in these formats.
  explicit WindowFixture(FindingsWriters findingsWriters = {})
      : writers(std::move(findingsWriters)) {}

  WatchedDisk disk;
  FixedEnvironment environment;
  RecordingMessages messages;
  RecordingParentChoice parentChoice{messages};
  FakePickers pickers;
  FakeDesktop desktop;
  FindingsWriters writers;
  MainWindow window{{disk, environment, messages, parentChoice, pickers, desktop, writers}};

  /// A control by its name; the test ends when there is none.
  template <typename Control>
  Control& Find(const char* name) {
    auto* control = window.findChild<Control*>(QString::fromLatin1(name));
    if (control == nullptr) qFatal("There is no %s.", name);
    return *control;
  }

  /// Puts a file on the disk.
  void AddFile(const std::string& path, const std::string& content);

  void SetFiles(const QString& text);
  void ClickCheckFiles();
  QString Progress();
};

/// An AGS 3 file without a finding.
std::string CleanFile();

/// An AGS 3 file with one finding per line behind the clean part.
std::string FileWithFindings(int count);

/// Drags files over a place of the window; whether it would take them.
bool AcceptsDrag(MainWindow& window, const QStringList& paths, const QPoint& place);

/// Drops them there, which must follow an accepted drag; whether the window takes them.
bool AcceptsDrop(MainWindow& window, const QStringList& paths, const QPoint& place);

/// Calls the routine with the next dialog that comes up, from inside its event loop.
void WhenDialogShows(std::function<void(QDialog&)> routine);

}  // namespace quorvane::test
