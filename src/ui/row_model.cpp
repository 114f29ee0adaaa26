#include "ui/row_model.h"

#include <array>

#include <QFont>

#include "ui/byte_text.h"

namespace quorvane {
namespace {

constexpr std::array Captions{"Heading", "Unit", "Type", "Value"};

QString HeadingText(const RowCell& cell) {
  return cell.heading.empty() ? QStringLiteral("(no heading)") : ShownText(cell.heading);
}

QString ValueText(const RowCell& cell) {
  return cell.isThere ? ShownText(cell.value) : QStringLiteral("(missing)");
}

QString CellText(const RowCell& cell, RowColumn column) {
  switch (column) {
    case RowColumn::Heading:
      return (cell.isMeant ? QStringLiteral(u"\u25BA ") : QString()) + HeadingText(cell);
    case RowColumn::Unit:
      return ShownText(cell.unit);
    case RowColumn::Type:
      return ShownText(cell.type);
    case RowColumn::Value:
      return ValueText(cell);
  }
  return {};
}

/// What a screen reader says, which does not see the marks.
QString SpokenText(const RowCell& cell, RowColumn column) {
  if (column != RowColumn::Heading || !cell.isMeant) return CellText(cell, column);
  return HeadingText(cell) + QStringLiteral(", what the finding is about");
}

QVariant CellFont(const RowCell& cell, RowColumn column) {
  const bool isStandIn = (column == RowColumn::Value && !cell.isThere) ||
                         (column == RowColumn::Heading && cell.heading.empty());
  QFont font;
  font.setBold(cell.isMeant);
  font.setItalic(isStandIn);
  return font;
}

}  // namespace

int RowModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(layout_.cells.size());
}

int RowModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(Captions.size());
}

QVariant RowModel::data(const QModelIndex& index, int role) const {
  const RowCell& cell = layout_.cells[static_cast<std::size_t>(index.row())];
  const auto column = static_cast<RowColumn>(index.column());
  switch (role) {
    case Qt::DisplayRole:
      return CellText(cell, column);
    case Qt::AccessibleTextRole:
      return SpokenText(cell, column);
    case Qt::FontRole:
      return CellFont(cell, column);
    default:
      return {};
  }
}

QVariant RowModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return QString::fromLatin1(Captions[static_cast<std::size_t>(section)]);
}

}  // namespace quorvane
