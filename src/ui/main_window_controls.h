#pragma once

#include <array>
#include <cstddef>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;
class QToolButton;
class QWidget;

namespace quorvane {

class FindingsPage;
class ProgressView;
struct FindingsServices;

/// The buttons that act on a run as a whole, in the order of their array.
enum class WindowAction { CheckFiles, ViewReport, Close, About, Help };

/// The pages of the window, in the order of their tabs.
enum class WindowPage { Progress, Findings };

/// The controls of the main window. They belong to the window.
struct MainWindowControls {
  QWidget* options = nullptr;  // holds everything that a run reads
  QPlainTextEdit* txtFilesToCheck = nullptr;
  QPushButton* cmdFileToCheck = nullptr;
  QCheckBox* chkUseCustomDict = nullptr;
  QLineEdit* txtAgsDataDictionary = nullptr;
  QToolButton* cmdEditions = nullptr;  // its menu's entries hold their place in SchemaEditions
  QPushButton* cmdSelectDataDict = nullptr;
  std::array<QCheckBox*, 3> chkMessageListing{};
  QCheckBox* chkShowStats = nullptr;
  QCheckBox* chkSuppressFYIMesgs = nullptr;
  std::array<QPushButton*, 5> cmdQuorvane{};  // by WindowAction
  std::array<QLabel*, 3> lblQuorvane{};
  QTabWidget* tabPages = nullptr;  // by WindowPage
  ProgressView* txtProgress = nullptr;
  FindingsPage* pagFindings = nullptr;

  QPushButton* Button(WindowAction action) const {
    return cmdQuorvane[static_cast<std::size_t>(action)];
  }
};

/// Makes the controls and lays them out in the window, in the order in which the keyboard goes
/// through them. Each is named as its member here, entries of arrays with "_0" and so on behind.
MainWindowControls BuildControls(QWidget& window, const FindingsServices& findings);

}  // namespace quorvane
