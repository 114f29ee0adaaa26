#pragma once

#include <cstddef>
#include <optional>

#include <QAbstractTableModel>

#include "findings/findings_table.h"

namespace quorvane {

/// The findings of a run as the table of the window reads them. Texts are made when they are seen.
class FindingsModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit FindingsModel(QObject* parent = nullptr);

  /// Takes a report in the place of the last one. Order and filter stay as they are.
  void Show(FindingsReport report);

  const FindingsReport& Report() const { return report_; }

  /// How many findings there are, shown or not.
  std::size_t Count() const { return table_.Count(); }

  void SetFilter(const FindingsFilter& filter);

  /// The finding that a row shows. It ends with the report.
  PlacedFinding FindingAt(int row) const;

  /// A finding by which to find its row again when order or filter have changed.
  std::uint32_t NumberAt(int row) const;
  std::optional<int> RowOf(std::uint32_t number) const;

  /// The texts of a row, separated by tabs, on a line of their own.
  QString RowText(int row) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  /// Sorts by a column; by none (-1): in the order of the report.
  void sort(int column, Qt::SortOrder order) override;
  int SortColumn() const { return sortColumn_; }
  Qt::SortOrder SortOrder() const { return sortOrder_; }

 private:
  void SortTable();

  FindingsReport report_;
  FindingsTable table_;  // of the report
  FindingsFilter filter_;
  int sortColumn_ = -1;
  Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
};

/// The word for a severity on the screen.
QString ShownSeverity(Severity severity);

}  // namespace quorvane
