#include "ui/row_view.h"

#include <algorithm>

#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTableView>
#include <QVBoxLayout>

#include "ui/byte_text.h"
#include "ui/findings_model.h"
#include "ui/line_view.h"
#include "ui/pointer_shape.h"
#include "ui/row_model.h"

namespace quorvane {
namespace {

constexpr QSize UsualSize(820, 620);
constexpr int FindingLines = 3;  // of its text, that are seen at once

QLabel* MakeLabel(QDialog& dialog, const char* name, const QString& text, QWidget* buddy) {
  auto* label = new QLabel(text, &dialog);
  label->setObjectName(QString::fromLatin1(name));
  label->setBuddy(buddy);
  return label;
}

QString Title(const PlacedFinding& placed) {
  QString name = ShownText(FileNameOf(placed.file.path));
  if (placed.finding.line == 0) return name;
  return name + QStringLiteral(", line ") + QString::number(placed.finding.line);
}

/// What stands above the cells of a row, for a label with a letter to press.
QString RowCaption(const PlacedFinding& placed, const RowLayout& layout) {
  QString group = ShownText(placed.file.GroupName(placed.finding));
  group.replace(u'&', QStringLiteral("&&"));
  const QString caption = QStringLiteral("&Row of group ") + group;
  if (layout.firstLine == layout.lastLine) return caption + QStringLiteral(":");
  return caption + QStringLiteral(", lines ") + QString::number(layout.firstLine) +
         QStringLiteral(" to ") + QString::number(layout.lastLine) + QStringLiteral(":");
}

/// Goes to the cell that the finding is about; without one, to the first, which is not selected
/// then.
void GoToMeantCell(QTableView& table, const RowLayout& layout) {
  const auto meant = std::find_if(layout.cells.begin(), layout.cells.end(),
                                  [](const RowCell& cell) { return cell.isMeant; });
  if (meant != layout.cells.end()) {
    return table.selectRow(static_cast<int>(meant - layout.cells.begin()));
  }
  table.selectionModel()->setCurrentIndex(table.model()->index(0, 0),
                                          QItemSelectionModel::NoUpdate);
}

}  // namespace

RowView::RowView(const PlacedFinding& placed, SourceState state, const FileText& text,
                 QWidget* parent)
    : QDialog(parent), placed_(placed), state_(state) {
  setObjectName(QStringLiteral("dlgRow"));
  setWindowTitle(Title(placed));
  auto* column = new QVBoxLayout(this);
  BuildFinding(*column);
  BuildState(*column);
  const FileLines lines = KnownLines(text);
  BuildLines(*column, lines);
  BuildRow(*column, lines);
  BuildClose(*column);
  resize(UsualSize.boundedTo(screen()->availableSize()));
}

void RowView::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (txtRowLines_ != nullptr) txtRowLines_->centerCursor();
}

/// The lines that can be shown, the finding's own among them; none when that is not there.
FileLines RowView::KnownLines(const FileText& text) const {
  const std::int32_t number = placed_.finding.line;
  if (state_ == SourceState::AsChecked) {
    FileLines lines = AllLines(text);
    return lines.Has(number) ? lines : FileLines();
  }
  const LineRecord* kept = placed_.file.FindLine(number);
  return kept != nullptr ? SingleLine(number, kept->text) : FileLines();
}

QString RowView::StateText() const {
  if (placed_.finding.line == 0) {
    return QStringLiteral("The finding belongs to no line of the file.");
  }
  if (state_ == SourceState::AsChecked) return {};
  const LineRecord* kept = placed_.file.FindLine(placed_.finding.line);
  QString text = state_ == SourceState::Changed
                     ? QStringLiteral("The file has changed since the check.")
                     : QStringLiteral("The file cannot be read any more.");
  if (kept == nullptr) return text;
  text += QStringLiteral(" The line is shown as it was when it was checked");
  return text + (kept->isCut ? QStringLiteral(", without its end.") : QStringLiteral("."));
}

void RowView::BuildFinding(QBoxLayout& column) {
  const FindingRecord& finding = placed_.finding;
  QString text = ShownSeverity(finding.severity) + QStringLiteral(": ") + ShownText(finding.text);
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  auto* box = new QPlainTextEdit(text, this);
  box->setObjectName(QStringLiteral("txtRowFinding"));
  box->setReadOnly(true);
  box->setTabChangesFocus(true);
  box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  constexpr int roomAroundText = 12;
  box->setFixedHeight(FindingLines * box->fontMetrics().lineSpacing() + roomAroundText);
  box->setAccessibleName(QStringLiteral("Finding"));
  column.addWidget(MakeLabel(*this, "lblRowFinding", QStringLiteral("&Finding:"), box));
  column.addWidget(box);
}

void RowView::BuildState(QBoxLayout& column) {
  const QString text = StateText();
  if (text.isEmpty()) return;
  auto* label = MakeLabel(*this, "lblRowState", text, nullptr);
  label->setWordWrap(true);
  column.addWidget(label);
}

void RowView::BuildLines(QBoxLayout& column, const FileLines& lines) {
  if (!lines.Has(placed_.finding.line)) return;
  txtRowLines_ = new LineView(placed_, lines, this);
  txtRowLines_->setObjectName(QStringLiteral("txtRowLines"));
  txtRowLines_->setAccessibleName(QStringLiteral("Lines of the file"));
  column.addWidget(
      MakeLabel(*this, "lblRowLines", QStringLiteral("&Lines of the file:"), txtRowLines_));
  column.addWidget(txtRowLines_, 2);
}

void RowView::BuildRow(QBoxLayout& column, const FileLines& lines) {
  const RowLayout layout = LayOutRow(placed_.file, placed_.finding, lines);
  if (layout.cells.empty()) return;
  auto* table = new QTableView(this);
  table->setObjectName(QStringLiteral("tblRow"));
  table->setAccessibleName(QStringLiteral("Row"));
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setTabKeyNavigation(false);
  table->setWordWrap(false);
  table->setModel(new RowModel(layout, table));
  table->setColumnHidden(static_cast<int>(RowColumn::Type), placed_.file.format != AgsFormat::Ags4);
  table->resizeColumnsToContents();
  table->horizontalHeader()->setStretchLastSection(true);
  table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  table->horizontalHeader()->setHighlightSections(false);
  table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
  table->verticalHeader()->hide();
  GoToMeantCell(*table, layout);
  table->setFocus();
  column.addWidget(MakeLabel(*this, "lblRowCells", RowCaption(placed_, layout), table));
  column.addWidget(table, 3);
}

void RowView::BuildClose(QBoxLayout& column) {
  auto* close = new QPushButton(QStringLiteral("Close"), this);
  close->setObjectName(QStringLiteral("cmdRowClose"));
  close->setDefault(true);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  column.addStretch(0);
  column.addWidget(close, 0, Qt::AlignRight);
}

void ShowRow(const PlacedFinding& placed, SourceFile& source, QWidget* parent) {
  SourceState state = SourceState::AsChecked;
  if (placed.finding.line > 0) {
    const PointerShape pointer(Qt::WaitCursor);  // the file may be a large one
    state = source.Open(placed.file);
  }
  RowView(placed, state, source.Text(), parent).exec();
}

}  // namespace quorvane
