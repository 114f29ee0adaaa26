#include "ui/findings_page.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

#include "ui/findings_model.h"
#include "ui/pointer_shape.h"
#include "ui/row_view.h"

namespace quorvane {
namespace {

constexpr int FilterPause = 250;  // milliseconds without a key before the filter is applied
constexpr int FewestRows = 2;     // that are seen in the smallest window

/// The width of a column at first, in average characters; the last one takes the rest.
constexpr std::array ColumnWidths{20, 12, 12, 26, 8};

std::size_t IncompleteFileCount(const FindingsReport& report) {
  return static_cast<std::size_t>(
      std::count_if(report.files.begin(), report.files.end(),
                    [](const FileRecord& file) { return !file.isComplete; }));
}

/// The rows of a selection, ascending, as ranges with both ends included.
std::vector<std::pair<int, int>> RowRanges(const QItemSelection& selection) {
  std::vector<std::pair<int, int>> ranges;
  for (const QItemSelectionRange& range : selection)
    ranges.emplace_back(range.top(), range.bottom());
  std::sort(ranges.begin(), ranges.end());
  return ranges;
}

}  // namespace

QString ShownCount(std::size_t count) {
  return QLocale(QLocale::English).toString(static_cast<qulonglong>(count));
}

FindingsPage::FindingsPage(const FindingsServices& services, QWidget* parent)
    : QWidget(parent),
      services_(services),
      source_(services.disk),
      model_(new FindingsModel(this)) {
  setObjectName(QStringLiteral("pagFindings"));
  BuildControls();
  ConnectControls();
  AddShortcuts();
  UpdateControls();
}

void FindingsPage::BuildControls() {
  auto* column = new QVBoxLayout(this);
  column->addLayout(BuildFilter());
  BuildTable();
  column->addWidget(tblFindings_, 1);
  column->addLayout(BuildActions());
}

QLayout* FindingsPage::BuildFilter() {
  auto* label = new QLabel(QStringLiteral("Fil&ter:"), this);
  txtFindingsFilter_ = new QLineEdit(this);
  txtFindingsFilter_->setObjectName(QStringLiteral("txtFindingsFilter"));
  txtFindingsFilter_->setAccessibleName(QStringLiteral("Filter"));
  txtFindingsFilter_->setToolTip(
      QStringLiteral("Show the findings that hold this text in their file, line, section, rule or "
                     "message (Ctrl+F)"));
  txtFindingsFilter_->setClearButtonEnabled(true);
  txtFindingsFilter_->setAcceptDrops(false);  // the window takes what is dropped
  label->setBuddy(txtFindingsFilter_);

  auto* row = new QHBoxLayout;
  row->addWidget(label);
  row->addWidget(txtFindingsFilter_, 1);
  constexpr std::array captions{"&Errors", "&Warnings", "FY&I and remarks"};
  for (std::size_t index = 0; index < captions.size(); ++index) {
    auto* box = new QCheckBox(QString::fromLatin1(captions[index]), this);
    box->setObjectName(QStringLiteral("chkFindingsSeverity_%1").arg(index));
    box->setToolTip(QStringLiteral("Show findings of this severity"));
    box->setChecked(true);
    chkFindingsSeverity_[index] = box;
    row->addWidget(box);
  }
  return row;
}

void FindingsPage::BuildTable() {
  tblFindings_ = new QTableView(this);
  tblFindings_->setObjectName(QStringLiteral("tblFindings"));
  tblFindings_->setAccessibleName(QStringLiteral("Findings"));
  tblFindings_->setAccessibleDescription(
      QStringLiteral("The findings of the last check. Enter shows the row in its file."));
  tblFindings_->setSelectionBehavior(QAbstractItemView::SelectRows);
  tblFindings_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tblFindings_->setTabKeyNavigation(false);
  tblFindings_->setWordWrap(false);
  tblFindings_->setModel(model_);

  // Rows of one height that is known beforehand: none of a million is measured.
  QHeaderView* rows = tblFindings_->verticalHeader();
  rows->setSectionResizeMode(QHeaderView::Fixed);
  rows->setDefaultSectionSize(tblFindings_->fontMetrics().height() + 6);
  rows->hide();

  QHeaderView* columns = tblFindings_->horizontalHeader();
  const int characterWidth = tblFindings_->fontMetrics().averageCharWidth();
  for (std::size_t index = 0; index < ColumnWidths.size(); ++index)
    columns->resizeSection(static_cast<int>(index), ColumnWidths[index] * characterWidth);
  columns->setStretchLastSection(true);
  columns->setSortIndicator(-1, Qt::AscendingOrder);
  columns->setSortIndicatorShown(true);
  columns->setSectionsClickable(true);
  columns->setHighlightSections(false);
  columns->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);

  const int height = columns->sizeHint().height() + FewestRows * rows->defaultSectionSize();
  tblFindings_->setMinimumHeight(height + 2 * tblFindings_->frameWidth());
}

QLayout* FindingsPage::BuildActions() {
  lblFindingsCount_ = new QLabel(this);
  lblFindingsCount_->setObjectName(QStringLiteral("lblFindingsCount"));
  cmdCopyFindings_ = new QPushButton(QStringLiteral("Cop&y"), this);
  cmdCopyFindings_->setObjectName(QStringLiteral("cmdCopyFindings"));
  cmdCopyFindings_->setToolTip(
      QStringLiteral("Copy the selected rows, separated by tabs (Ctrl+C)"));
  cmdSaveFindings_ = new QPushButton(QStringLiteral("Save A&ll As..."), this);
  cmdSaveFindings_->setObjectName(QStringLiteral("cmdSaveFindings"));
  cmdSaveFindings_->setToolTip(
      QStringLiteral("Save all findings of the last check, whatever the filter shows"));
  auto* row = new QHBoxLayout;
  row->addWidget(lblFindingsCount_, 1);
  for (QPushButton* button : {cmdCopyFindings_, cmdSaveFindings_}) {
    button->setAutoDefault(true);  // Enter presses the button that has the focus
    row->addWidget(button);
  }
  return row;
}

void FindingsPage::ConnectControls() {
  filterTimer_.setSingleShot(true);
  filterTimer_.setInterval(FilterPause);
  connect(&filterTimer_, &QTimer::timeout, this, &FindingsPage::ApplyFilter);
  connect(txtFindingsFilter_, &QLineEdit::textChanged, &filterTimer_, qOverload<>(&QTimer::start));
  connect(txtFindingsFilter_, &QLineEdit::returnPressed, this, &FindingsPage::GoToRows);
  for (const QCheckBox* box : chkFindingsSeverity_)
    connect(box, &QCheckBox::toggled, this, &FindingsPage::ApplyFilter);

  connect(tblFindings_->horizontalHeader(), &QHeaderView::sectionClicked, this,
          &FindingsPage::SortBy);
  connect(tblFindings_, &QTableView::doubleClicked, this, &FindingsPage::ShowCurrentRow);
  connect(tblFindings_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &FindingsPage::UpdateControls);
  connect(model_, &FindingsModel::modelReset, this, &FindingsPage::UpdateControls);

  connect(cmdCopyFindings_, &QPushButton::clicked, this, &FindingsPage::CopySelectedRows);
  connect(cmdSaveFindings_, &QPushButton::clicked, this, [this] {
    SaveFindings(services_.disk, services_.messages, services_.pickers, services_.writers,
                 model_->Report());
  });
}

void FindingsPage::AddShortcuts() {
  const auto add = [](const QKeySequence& keys, QWidget* place, Qt::ShortcutContext context,
                      auto&& routine) {
    connect(new QShortcut(keys, place, nullptr, nullptr, context), &QShortcut::activated, place,
            std::forward<decltype(routine)>(routine));
  };
  for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter})
    add(enter, tblFindings_, Qt::WidgetShortcut, [this] { ShowCurrentRow(); });
  add(QKeySequence::Copy, tblFindings_, Qt::WidgetShortcut, [this] { CopySelectedRows(); });
  const auto onPage = Qt::WidgetWithChildrenShortcut;
  add(Qt::Key_Escape, this, onPage, [this] { ClearFilter(); });
  add(QKeySequence::Find, this, onPage, [this] {
    txtFindingsFilter_->setFocus();
    txtFindingsFilter_->selectAll();
  });
  for (int column = -1; column < model_->columnCount(); ++column) {
    const auto digit = static_cast<Qt::Key>(Qt::Key_1 + column);
    add(Qt::CTRL | digit, this, onPage, [this, column] { SortBy(column); });
  }
}

void FindingsPage::Show(FindingsReport report) {
  source_.Forget();
  filterTimer_.stop();
  model_->Show(std::move(report));
}

std::size_t FindingsPage::Count() const {
  return model_->Count();
}

template <typename Change>
void FindingsPage::KeepingCurrentRow(Change&& change) {
  const PointerShape pointer(Qt::WaitCursor);
  const QModelIndex current = tblFindings_->currentIndex();
  std::optional<std::uint32_t> finding;
  if (current.isValid()) finding = model_->NumberAt(current.row());
  change();
  const std::optional<int> row = finding ? model_->RowOf(*finding) : std::nullopt;
  if (row) tblFindings_->setCurrentIndex(model_->index(*row, std::max(0, current.column())));
}

void FindingsPage::ApplyFilter() {
  filterTimer_.stop();
  FindingsFilter filter;
  filter.text = txtFindingsFilter_->text().toStdString();
  filter.errors = chkFindingsSeverity_[0]->isChecked();
  filter.warnings = chkFindingsSeverity_[1]->isChecked();
  filter.others = chkFindingsSeverity_[2]->isChecked();
  KeepingCurrentRow([&] { model_->SetFilter(filter); });
}

/// From the filter to what it shows.
void FindingsPage::GoToRows() {
  ApplyFilter();
  if (!tblFindings_->currentIndex().isValid()) tblFindings_->selectRow(0);
  tblFindings_->setFocus();
}

void FindingsPage::ClearFilter() {
  if (txtFindingsFilter_->text().isEmpty()) return;
  txtFindingsFilter_->clear();
  ApplyFilter();
}

/// Sorts by a column, downwards when it is sorted by it already; by -1: in the order of the report.
void FindingsPage::SortBy(int column) {
  QHeaderView* columns = tblFindings_->horizontalHeader();
  // The header has turned its own mark when it was clicked; the model knows how things stand.
  const bool turns = column == model_->SortColumn() && model_->SortOrder() == Qt::AscendingOrder;
  const Qt::SortOrder order = turns ? Qt::DescendingOrder : Qt::AscendingOrder;
  columns->setSortIndicator(column, order);
  KeepingCurrentRow([&] { model_->sort(column, order); });
}

void FindingsPage::UpdateControls() {
  const std::size_t shown = static_cast<std::size_t>(model_->rowCount());
  QString text =
      QStringLiteral("%1 of %2 shown").arg(ShownCount(shown), ShownCount(model_->Count()));
  if (const std::size_t incomplete = IncompleteFileCount(model_->Report()); incomplete > 0) {
    text += incomplete == 1 ? QStringLiteral("; 1 file could not be checked to the end")
                            : QStringLiteral("; %1 files could not be checked to the end")
                                  .arg(ShownCount(incomplete));
  }
  lblFindingsCount_->setText(text);
  cmdCopyFindings_->setEnabled(tblFindings_->selectionModel()->hasSelection());
  cmdSaveFindings_->setEnabled(!services_.writers.empty() && !model_->Report().files.empty());
}

void FindingsPage::CopySelectedRows() {
  const PointerShape pointer(Qt::WaitCursor);
  QString text;
  int next = 0;  // ranges may overlap: no row is copied twice
  for (const auto& [first, last] : RowRanges(tblFindings_->selectionModel()->selection())) {
    for (next = std::max(next, first); next <= last; ++next)
      text.append(model_->RowText(next));
  }
  if (!text.isEmpty()) QGuiApplication::clipboard()->setText(text);
}

void FindingsPage::ShowCurrentRow() {
  const QModelIndex current = tblFindings_->currentIndex();
  if (!current.isValid()) return;
  const PlacedFinding placed = model_->FindingAt(current.row());
  ShowRow(placed, source_, this);
  tblFindings_->setFocus();
}

}  // namespace quorvane
