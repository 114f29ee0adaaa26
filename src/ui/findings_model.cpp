#include "ui/findings_model.h"

#include <array>
#include <utility>

#include "ui/byte_text.h"

namespace quorvane {
namespace {

struct ColumnText {
  const char* caption;
  const char* toolTip;
};

constexpr std::array<ColumnText, 6> Columns{
    {{"File", "The file that the finding is in"},
     {"Line", "The line of the file; empty when the finding belongs to none"},
     {"Severity", "How serious the finding is"},
     {"Section", "The section of the report that lists the finding"},
     {"Rule", "The rule of the AGS format that the finding serves"},
     {"Message", "What was found"}}};

/// A text as it fits into one line of a table or of text with tabs.
QString OneLine(std::string_view text) {
  QString line = ShownText(text);
  line.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
  for (QChar& letter : line) {
    if (letter == u'\r' || letter == u'\n' || letter == u'\t') letter = u' ';
  }
  return line;
}

QString CellText(const PlacedFinding& placed, FindingsColumn column) {
  const auto& [file, finding] = placed;
  switch (column) {
    case FindingsColumn::File:
      return OneLine(FileNameOf(file.path));
    case FindingsColumn::Line:
      return finding.line > 0 ? QString::number(finding.line) : QString();
    case FindingsColumn::Severity:
      return ShownSeverity(finding.severity);
    case FindingsColumn::Section:
      return OneLine(file.Section(finding));
    case FindingsColumn::Rule:
      return OneLine(file.Rule(finding));
    case FindingsColumn::Message:
      return OneLine(finding.text);
  }
  return {};
}

/// What a cell says when the mouse rests on it: what may not fit into it.
QString CellToolTip(const PlacedFinding& placed, FindingsColumn column) {
  constexpr std::size_t mostBytes = 1000;
  switch (column) {
    case FindingsColumn::File:
      return ShownText(placed.file.path);
    case FindingsColumn::Message:
      return ShownText(placed.finding.text.substr(0, mostBytes));
    default:
      return CellText(placed, column);
  }
}

/// A text that is shown to the letter, whatever markup it looks like.
QString AsToolTip(const QString& text) {
  return QStringLiteral("<qt>") + text.toHtmlEscaped() + QStringLiteral("</qt>");
}

}  // namespace

QString ShownSeverity(Severity severity) {
  switch (severity) {
    case Severity::Error:
      return QStringLiteral("Error");
    case Severity::Warning:
      return QStringLiteral("Warning");
    case Severity::Fyi:
      return QStringLiteral("FYI");
    case Severity::Plain:
      break;
  }
  return QStringLiteral("Remark");
}

FindingsModel::FindingsModel(QObject* parent) : QAbstractTableModel(parent), table_(report_) {}

void FindingsModel::Show(FindingsReport report) {
  beginResetModel();
  report_ = std::move(report);
  table_ = FindingsTable(report_);
  table_.Filter(filter_);
  SortTable();
  endResetModel();
}

void FindingsModel::SetFilter(const FindingsFilter& filter) {
  beginResetModel();
  filter_ = filter;
  table_.Filter(filter_);
  endResetModel();
}

void FindingsModel::sort(int column, Qt::SortOrder order) {
  beginResetModel();
  sortColumn_ = column;
  sortOrder_ = order;
  SortTable();
  endResetModel();
}

void FindingsModel::SortTable() {
  if (sortColumn_ < 0) return table_.SortAsReported();
  table_.SortBy(static_cast<FindingsColumn>(sortColumn_), sortOrder_ == Qt::AscendingOrder
                                                              ? SortDirection::Ascending
                                                              : SortDirection::Descending);
}

PlacedFinding FindingsModel::FindingAt(int row) const {
  return table_.Find(NumberAt(row));
}

std::uint32_t FindingsModel::NumberAt(int row) const {
  return table_.FindingOfRow(static_cast<std::size_t>(row));
}

std::optional<int> FindingsModel::RowOf(std::uint32_t number) const {
  const std::optional<std::size_t> row = table_.RowOfFinding(number);
  if (!row) return std::nullopt;
  return static_cast<int>(*row);
}

QString FindingsModel::RowText(int row) const {
  const PlacedFinding placed = FindingAt(row);
  QString text;
  for (int column = 0; column < columnCount(); ++column) {
    if (column > 0) text.append(u'\t');
    text.append(CellText(placed, static_cast<FindingsColumn>(column)));
  }
  return text.append(u'\n');
}

int FindingsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(table_.ShownCount());
}

int FindingsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(Columns.size());
}

QVariant FindingsModel::data(const QModelIndex& index, int role) const {
  const auto column = static_cast<FindingsColumn>(index.column());
  switch (role) {
    case Qt::DisplayRole:
      return CellText(FindingAt(index.row()), column);
    case Qt::ToolTipRole:
      return AsToolTip(CellToolTip(FindingAt(index.row()), column));
    case Qt::TextAlignmentRole:
      if (column == FindingsColumn::Line) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
      return {};
    default:
      return {};
  }
}

QVariant FindingsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  const ColumnText& column = Columns[static_cast<std::size_t>(section)];
  if (role == Qt::DisplayRole) return QString::fromLatin1(column.caption);
  if (role != Qt::ToolTipRole) return {};
  return QStringLiteral("%1. Click to sort, or press Ctrl+%2.")
      .arg(QString::fromLatin1(column.toolTip))
      .arg(section + 1);
}

}  // namespace quorvane
