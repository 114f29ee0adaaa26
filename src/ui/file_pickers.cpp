#include "ui/file_pickers.h"

#include <algorithm>

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include "ui/byte_text.h"

namespace quorvane {
namespace {

/// "NAME (*.ags)|*.ags" as the toolkit writes filters: the patterns stand in the brackets.
QString NameFilter(std::string_view filter) {
  return ShownText(filter.substr(0, filter.find('|')));
}

/// Shows a dialog; the chosen paths, none when the user cancels.
QStringList Choose(QFileDialog& dialog, const QStringList& nameFilters, QString& folder) {
  dialog.setObjectName(QStringLiteral("cdgQuorvane"));
  dialog.setNameFilters(nameFilters);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  folder = QFileInfo(dialog.selectedFiles().first()).absolutePath();
  return dialog.selectedFiles();
}

/// The suffix of the files that a filter names.
QString SuffixOf(std::string_view filter) {
  return QFileInfo(ShownText(filter)).suffix();
}

std::string NativePath(const QString& path) {
  return PathBytes(QDir::toNativeSeparators(path));
}

/// Logs are saved under names in lower case. Where letter case matters the dialog has not seen
/// whether there is such a file already.
bool MayReplaceLowerCaseForm(const QString& path) {
  const QFileInfo chosen(path);
  const QFileInfo written(chosen.dir(), chosen.fileName().toLower());
  if (written == chosen || !written.exists()) return true;
  const QString question =
      QFileDialog::tr("%1 already exists.\nDo you want to replace it?").arg(written.fileName());
  return QMessageBox::question(QApplication::activeWindow(), QFileDialog::tr("Save As"),
                               question) == QMessageBox::Yes;
}

}  // namespace

std::vector<std::string> DesktopFilePickers::ChooseFilesToOpen(std::string_view title,
                                                               std::string_view filter) {
  QFileDialog dialog(QApplication::activeWindow(), ShownText(title), folder_);
  dialog.setFileMode(QFileDialog::ExistingFiles);
  std::vector<std::string> paths;
  for (const QString& path : Choose(dialog, {NameFilter(filter)}, folder_))
    paths.push_back(NativePath(path));
  return paths;
}

std::optional<std::string> DesktopFilePickers::ChooseFileToOpen(std::string_view title,
                                                                std::string_view filter) {
  QFileDialog dialog(QApplication::activeWindow(), ShownText(title), folder_);
  dialog.setFileMode(QFileDialog::ExistingFile);
  const QStringList paths = Choose(dialog, {NameFilter(filter)}, folder_);
  if (paths.isEmpty()) return std::nullopt;
  return NativePath(paths.first());
}

std::optional<std::string> DesktopFilePickers::ChooseFile(std::string_view title,
                                                          std::string_view filter) {
  QFileDialog dialog(QApplication::activeWindow(), ShownText(title), folder_);
  dialog.setAcceptMode(QFileDialog::AcceptSave);  // which asks before it overwrites
  dialog.setDefaultSuffix(SuffixOf(filter));
  const QStringList paths = Choose(dialog, {NameFilter(filter)}, folder_);
  if (paths.isEmpty() || !MayReplaceLowerCaseForm(paths.first())) return std::nullopt;
  return NativePath(paths.first());
}

std::optional<FileToSave> DesktopFilePickers::ChooseFileToSave(
    std::string_view title, const std::vector<std::string_view>& filters) {
  QFileDialog dialog(QApplication::activeWindow(), ShownText(title), folder_);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  QStringList nameFilters;
  for (const std::string_view filter : filters)
    nameFilters.append(NameFilter(filter));
  // The first one stands for a filter that the desktop's own dialog names in another way.
  const auto indexOf = [&nameFilters](const QString& nameFilter) {
    return static_cast<std::size_t>(std::max<qsizetype>(0, nameFilters.indexOf(nameFilter)));
  };
  const auto useSuffixOf = [&](const QString& nameFilter) {
    dialog.setDefaultSuffix(SuffixOf(filters[indexOf(nameFilter)]));
  };
  useSuffixOf(nameFilters.first());
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, useSuffixOf);
  const QStringList paths = Choose(dialog, nameFilters, folder_);
  if (paths.isEmpty()) return std::nullopt;
  return FileToSave{NativePath(paths.first()), indexOf(dialog.selectedNameFilter())};
}

}  // namespace quorvane
