#include "ui/main_window_controls.h"

#include <algorithm>

#include <QCheckBox>
#include <QFontMetrics>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "dictionary/schema_edition.h"
#include "ui/byte_text.h"
#include "ui/findings_page.h"
#include "ui/progress_view.h"

namespace quorvane {
namespace {

constexpr int FewestFileLines = 2;
constexpr int MostFileLines = 6;
constexpr int FewestProgressLines = 4;
constexpr int RoomBetween = 10;  // device-independent pixels

/// What a control is called, shows and says about itself.
struct ControlText {
  const char* name;
  const char* caption;
  const char* toolTip;
};

void SetUp(QWidget& control, const ControlText& text) {
  control.setObjectName(QString::fromLatin1(text.name));
  control.setToolTip(QString::fromLatin1(text.toolTip));
  control.setAccessibleDescription(control.toolTip());
}

template <typename Button>
Button* MakeButton(QWidget* parent, const ControlText& text) {
  auto* button = new Button(QString::fromLatin1(text.caption), parent);
  SetUp(*button, text);
  return button;
}

QPushButton* MakePushButton(QWidget* parent, const ControlText& text) {
  auto* button = MakeButton<QPushButton>(parent, text);
  button->setAutoDefault(true);  // Enter presses the button that has the focus
  return button;
}

QLabel* MakeLabel(QWidget* parent, const char* name, const char* caption) {
  auto* label = new QLabel(QString::fromLatin1(caption), parent);
  label->setObjectName(QString::fromLatin1(name));
  return label;
}

/// The height of a text box that shows this many lines.
int HeightOfLines(const QPlainTextEdit& box, int lines) {
  constexpr int RoomAroundText = 12;  // its frame and margins
  return lines * QFontMetrics(box.font()).lineSpacing() + RoomAroundText;
}

/// The places of the options: tick boxes and boxes of text, with the buttons that fill these in a
/// column of their own at the right.
constexpr int TextColumn = 1;
constexpr int ButtonColumn = 2;
constexpr int ColumnCount = 3;

void BuildFiles(MainWindowControls& controls, QGridLayout& grid) {
  QWidget* parent = controls.options;
  controls.lblQuorvane[0] =
      MakeLabel(parent, "lblQuorvane_0", "A&GS files to check, one per line:");

  auto* files = new QPlainTextEdit(parent);
  controls.txtFilesToCheck = files;
  SetUp(*files, {"txtFilesToCheck", nullptr,
                 "Paths of the AGS files to check, one per line. Files can be dropped here."});
  files->setAccessibleName(QStringLiteral("AGS files to check"));
  files->setTabChangesFocus(true);
  files->setLineWrapMode(QPlainTextEdit::NoWrap);
  files->setAcceptDrops(false);  // the window takes what is dropped
  files->setMinimumHeight(HeightOfLines(*files, FewestFileLines));
  files->setMaximumHeight(HeightOfLines(*files, MostFileLines));
  controls.lblQuorvane[0]->setBuddy(files);

  controls.cmdFileToCheck = MakePushButton(
      parent, {"cmdFileToCheck", "Select &Files...", "Choose the AGS files to check"});
  grid.addWidget(controls.lblQuorvane[0], 0, 0, 1, ColumnCount);
  grid.addWidget(files, 1, 0, 1, ButtonColumn);
  grid.addWidget(controls.cmdFileToCheck, 1, ButtonColumn, Qt::AlignTop);
  grid.setRowStretch(1, 1);
}

QToolButton* BuildEditions(QWidget* parent) {
  auto* button = new QToolButton(parent);
  SetUp(*button,
        {"cmdEditions", nullptr, "Check against an edition of AGS 4 that comes with the program"});
  button->setText(QStringLiteral("E&ditions"));
  button->setAccessibleName(QStringLiteral("Editions of AGS 4"));
  button->setFocusPolicy(Qt::StrongFocus);
  button->setPopupMode(QToolButton::InstantPopup);
  auto* menu = new QMenu(button);
  for (std::size_t index = 0; index < SchemaEditions.size(); ++index) {
    const QString caption = QStringLiteral("AGS ") + ShownText(SchemaEditions[index].edition);
    menu->addAction(caption)->setData(static_cast<int>(index));
  }
  button->setMenu(menu);
  return button;
}

void BuildDictionary(MainWindowControls& controls, QGridLayout& grid) {
  QWidget* parent = controls.options;
  controls.chkUseCustomDict = MakeButton<QCheckBox>(
      parent, {"chkUseCustomDict", "Use Custom Dictionary",
               "Check against a schema file of your own instead of the standard dictionaries"});

  controls.txtAgsDataDictionary = new QLineEdit(parent);
  SetUp(*controls.txtAgsDataDictionary,
        {"txtAgsDataDictionary", nullptr, "Path of the schema file to check against"});
  controls.txtAgsDataDictionary->setAccessibleName(QStringLiteral("Custom dictionary"));
  controls.txtAgsDataDictionary->setAcceptDrops(false);

  controls.cmdEditions = BuildEditions(parent);
  controls.cmdSelectDataDict = MakePushButton(parent, {"cmdSelectDataDict", "Select &Schema...",
                                                       "Choose the schema file to check against"});
  auto* path = new QHBoxLayout;
  path->addWidget(controls.txtAgsDataDictionary, 1);
  path->addWidget(controls.cmdEditions);
  const int row = grid.rowCount();
  grid.addWidget(controls.chkUseCustomDict, row, 0);
  grid.addLayout(path, row, TextColumn);
  grid.addWidget(controls.cmdSelectDataDict, row, ButtonColumn);
  grid.setColumnStretch(TextColumn, 1);
}

void BuildReportOptions(MainWindowControls& controls, QGridLayout& grid) {
  QWidget* parent = controls.options;
  controls.chkShowStats =
      MakeButton<QCheckBox>(parent, {"chkShowStats", "Show Data Statistics",
                                     "Add statistics of its data to the report on each file"});
  controls.chkSuppressFYIMesgs = MakeButton<QCheckBox>(
      parent, {"chkSuppressFYIMesgs", "Suppress FYI (for your information only) messages",
               "Leave out messages that are for information only"});
  auto* row = new QHBoxLayout;
  row->addWidget(controls.chkShowStats);
  row->addSpacing(RoomBetween);
  row->addWidget(controls.chkSuppressFYIMesgs);
  row->addStretch(1);
  grid.addLayout(row, grid.rowCount(), 0, 1, ColumnCount);
}

void BuildListings(MainWindowControls& controls, QGridLayout& grid) {
  QWidget* parent = controls.options;
  controls.lblQuorvane[1] = MakeLabel(parent, "lblQuorvane_1", "Messages Listed By:");
  controls.chkMessageListing = {
      MakeButton<QCheckBox>(parent, {"chkMessageListing_0", "Scan Groupings",
                                     "List the messages of each check together"}),
      MakeButton<QCheckBox>(parent, {"chkMessageListing_1", "Line Number in File",
                                     "List the messages in the order of the file's lines"}),
      MakeButton<QCheckBox>(parent, {"chkMessageListing_2", "Severity",
                                     "List errors first, then warnings, then other messages"})};
  auto* row = new QHBoxLayout;
  row->addWidget(controls.lblQuorvane[1]);
  for (QCheckBox* listing : controls.chkMessageListing) {
    listing->setAccessibleName(QStringLiteral("Messages listed by: ") + listing->text());
    row->addSpacing(RoomBetween);
    row->addWidget(listing);
  }
  controls.chkMessageListing[0]->setChecked(true);
  row->addStretch(1);
  grid.addLayout(row, grid.rowCount(), 0, 1, ColumnCount);
}

/// Gives buttons of a row the width of the widest, with some room around its caption.
template <std::size_t Count>
void MakeEquallyWide(const std::array<QPushButton*, Count>& buttons) {
  int width = 0;
  for (const QPushButton* button : buttons)
    width = std::max(width, button->sizeHint().width());
  for (QPushButton* button : buttons)
    button->setMinimumWidth(width + RoomBetween);
}

QLayout* BuildButtons(QWidget& window, MainWindowControls& controls) {
  controls.cmdQuorvane = {
      MakePushButton(&window, {"cmdQuorvane_0", "&Check Files", "Check the files of the list"}),
      MakePushButton(&window, {"cmdQuorvane_1", "&View Report",
                               "Save the messages of the last check and open them in a text "
                               "editor"}),
      MakePushButton(&window, {"cmdQuorvane_2", "Cl&ose", "End the program"}),
      MakePushButton(&window, {"cmdQuorvane_3", "&About", "Show the version of the program"}),
      MakePushButton(&window, {"cmdQuorvane_4", "&Help", "Open the manual"})};
  MakeEquallyWide(controls.cmdQuorvane);
  auto* row = new QHBoxLayout;
  for (QPushButton* button : controls.cmdQuorvane)
    row->addWidget(button);
  row->addStretch(1);
  return row;
}

/// The page with the progress box, in front at first.
QWidget* BuildProgress(QWidget& window, MainWindowControls& controls) {
  auto* page = new QWidget(&window);
  controls.lblQuorvane[2] = MakeLabel(page, "lblQuorvane_2", "&Progress and messages:");
  controls.txtProgress = new ProgressView(page);
  SetUp(*controls.txtProgress, {"txtProgress", nullptr, ""});
  controls.txtProgress->setAccessibleName(QStringLiteral("Progress and messages"));
  controls.txtProgress->setTabChangesFocus(true);
  controls.txtProgress->setAcceptDrops(false);
  controls.txtProgress->setMinimumHeight(HeightOfLines(*controls.txtProgress, FewestProgressLines));
  controls.lblQuorvane[2]->setBuddy(controls.txtProgress);
  auto* column = new QVBoxLayout(page);
  column->addWidget(controls.lblQuorvane[2]);
  column->addWidget(controls.txtProgress, 1);
  return page;
}

QWidget* BuildPages(QWidget& window, MainWindowControls& controls,
                    const FindingsServices& findings) {
  controls.tabPages = new QTabWidget(&window);
  controls.tabPages->setObjectName(QStringLiteral("tabPages"));
  controls.tabPages->tabBar()->setObjectName(QStringLiteral("tabPages_bar"));
  controls.tabPages->setDocumentMode(true);  // without a frame around what has frames of its own
  controls.pagFindings = new FindingsPage(findings, &window);
  controls.tabPages->addTab(BuildProgress(window, controls), QStringLiteral("P&rogress"));
  controls.tabPages->addTab(controls.pagFindings, QStringLiteral("Fi&ndings"));
  for (int index = 0; index < controls.tabPages->count(); ++index) {
    constexpr int roomAtTop = 6;
    controls.tabPages->widget(index)->layout()->setContentsMargins(0, roomAtTop, 0, 0);
  }
  return controls.tabPages;
}

}  // namespace

MainWindowControls BuildControls(QWidget& window, const FindingsServices& findings) {
  MainWindowControls controls;
  controls.options = new QWidget(&window);
  auto* options = new QGridLayout(controls.options);
  options->setContentsMargins({});
  BuildFiles(controls, *options);
  BuildDictionary(controls, *options);
  BuildReportOptions(controls, *options);
  BuildListings(controls, *options);
  MakeEquallyWide(std::array{controls.cmdFileToCheck, controls.cmdSelectDataDict});

  // The pages take the room that a larger window has to give.
  constexpr int OptionsShare = 1;
  constexpr int PagesShare = 4;
  auto* column = new QVBoxLayout(&window);
  column->addWidget(controls.options, OptionsShare);
  column->addSpacing(RoomBetween / 2);
  column->addLayout(BuildButtons(window, controls));
  column->addSpacing(RoomBetween / 2);
  column->addWidget(BuildPages(window, controls, findings), PagesShare);
  return controls;
}

}  // namespace quorvane
