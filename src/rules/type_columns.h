#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "rules/checked_file.h"
#include "text/date_pattern.h"
#include "text/elapsed_time.h"
#include "text/id_list.h"
#include "text/typed_value.h"

namespace quorvane {

/// True when a heading identifies the rows of its own group: it begins with the group's name. The
/// projects' and the locations' own identifiers are the business of the key rules.
bool IsUniqueIdHeading(const CheckedFile& file, int groupIndex, int headingIndex);

/// A row whose value does not fit, with what is said about it: the row itself is far away in memory
/// when findings are reported column by column.
struct FailingRow {
  std::int32_t row = 0;
  std::int32_t line = 0;
  std::string_view value;
};

/// A column with its data type in force, made ready for the check of its values.
class TypedColumn {
 public:
  /// The file must outlive the column.
  TypedColumn(const CheckedFile& file, int groupIndex, int headingIndex, std::string type);

  int HeadingIndex() const { return headingIndex_; }
  const std::string& Type() const { return type_; }
  ValueKind Kind() const { return dataType_.kind; }

  /// Whether the type's form stands in the unit, and the unit is empty.
  bool LacksPattern() const;

  /// The type as messages about values show it: with the unit where this is part of the form.
  std::string TypeText() const;

  /// Whether the values are looked at one by one, by CheckRows.
  bool HasValueCheck() const;

  /// Looks at the values of some rows, both ends included, and adds to FailingRows. All rows of the
  /// group must be looked at in ascending order.
  void CheckRows(std::int32_t firstRow, std::int32_t lastRow);

  /// The rows whose value does not fit the type, or repeats an identifier; ascending.
  const std::vector<FailingRow>& FailingRows() const { return failingRows_; }

 private:
  template <typename Fits>
  void CheckEach(std::int32_t firstRow, std::int32_t lastRow, Fits&& fits);
  void CheckDates(std::int32_t firstRow, std::int32_t lastRow);

  const std::string& Unit() const;

  const CheckedFile& file_;
  int groupIndex_;
  int headingIndex_;
  std::string type_;
  DataType dataType_;
  // The one that the type needs, if any:
  std::optional<DatePattern> datePattern_;
  std::optional<ElapsedTimePattern> elapsedTimePattern_;
  std::optional<IdList> ids_;
  std::vector<FailingRow> failingRows_;
};

}  // namespace quorvane
