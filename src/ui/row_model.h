#pragma once

#include <utility>

#include <QAbstractTableModel>

#include "findings/row_layout.h"

namespace quorvane {

/// The columns of a row's layout.
enum class RowColumn { Heading, Unit, Type, Value };

/// A row's layout as a table reads it: a cell per line. The one that is meant is marked by an arrow
/// and bold type.
class RowModel : public QAbstractTableModel {
 public:
  explicit RowModel(RowLayout layout, QObject* parent = nullptr)
      : QAbstractTableModel(parent), layout_(std::move(layout)) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  RowLayout layout_;
};

}  // namespace quorvane
