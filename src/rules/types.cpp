#include "rules/types.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "parse/reference_list.h"
#include "parse/reference_values.h"
#include "rules/record_links.h"
#include "rules/type_columns.h"
#include "rules/type_messages.h"
#include "text/comma_list.h"
#include "text/text.h"

namespace quorvane {
namespace {

/// All columns look at a block of rows before any looks at the next, so that a block's text and
/// cells are still at hand for the last column.
constexpr std::int32_t RowsPerBlock = 128;

class TypeCheck {
 public:
  explicit TypeCheck(CheckedFile& file) : file_(file), links_(file) {}

  void Run() {
    if (!ReadTypeGroup()) return;
    for (int group = 1; group <= file_.table.GroupCount(); ++group)
      CheckGroup(group);
    ReportUnusedTypes();
    file_.log.CloseCheckSection("TYPE check ");
  }

 private:
  /// Reads the list of types; false when the check ends here.
  bool ReadTypeGroup() {
    const int group = file_.singletons.type;
    if (group == 0) return true;
    const MessagePlace place{group, 0, 0};
    const int typeColumn = file_.table.LocateHeading(group, "TYPE_TYPE");
    if (typeColumn == 0) {
      file_.log.AddMessage(0, TypeHeadingMissing, {}, place);
      file_.log.CloseCheckSection("TYPE check aborted");
      return false;
    }
    const int descriptionColumn = RequireHeading(file_.table, file_.log, group, "TYPE_DESC");
    std::vector<std::string> undescribed;
    for (std::int32_t row = 1; row <= file_.table.At(group).rowCount; ++row) {
      const std::string_view type = file_.table.Value(group, row, typeColumn);
      if (type.empty()) continue;
      types_.Add(type);
      if (descriptionColumn == 0) continue;
      const std::string_view description = file_.table.Value(group, row, descriptionColumn);
      CollectMissingValue(true, description, type, undescribed);
    }
    if (types_.IsEmpty()) {
      file_.log.AddMessage(0, TypeListEmpty, {}, place);
    } else if (!file_.IsAgs4()) {
      // In AGS 4 the description is a required field, which is a check of its own.
      ReportMissingValues(file_.log, undescribed, "TYPE_TYPE", "TYPE_DESC");
    }
    return true;
  }

  void CheckGroup(int groupIndex) {
    std::vector<TypedColumn> columns;
    for (int heading = 1; heading <= file_.table.At(groupIndex).HeadingCount(); ++heading) {
      std::optional<std::string> type = TypeInForce(groupIndex, heading);
      if (type) columns.emplace_back(file_, groupIndex, heading, *std::move(type));
    }
    CheckValues(groupIndex, columns);
    for (const TypedColumn& column : columns)
      ReportColumn(groupIndex, column);
  }

  /// The type by which a column is checked: the dictionary's where the file has none. Nothing for a
  /// column that neither knows a type for.
  std::optional<std::string> TypeInForce(int groupIndex, int headingIndex) {
    const Group& group = file_.table.At(groupIndex);
    const Heading& heading = group.HeadingAt(headingIndex);
    if (!file_.isDictionaryNamed) return heading.type;
    const std::string_view dictionaryType =
        GetDictHeadingType(file_.dictionary, group.dictionaryIndex, heading.name);
    if (heading.type.empty()) {
      if (dictionaryType.empty()) return std::nullopt;
      return std::string(dictionaryType);
    }
    if (!dictionaryType.empty() && !EqualsIgnoringCase(dictionaryType, heading.type)) {
      file_.TypeDifferences.append(LineBreak)
          .append("  ")
          .append(group.name)
          .append(".")
          .append(heading.name)
          .append(": ")
          .append(dictionaryType)
          .append(" <> ")
          .append(heading.type);
    }
    return heading.type;
  }

  void CheckValues(int groupIndex, std::vector<TypedColumn>& columns) const {
    std::vector<TypedColumn*> checked;
    for (TypedColumn& column : columns) {
      if (column.HasValueCheck()) checked.push_back(&column);
    }
    if (checked.empty()) return;
    const std::int32_t rowCount = file_.table.At(groupIndex).rowCount;
    for (std::int32_t first = 1; first <= rowCount; first += RowsPerBlock) {
      const std::int32_t last = std::min(rowCount, first + RowsPerBlock - 1);
      for (TypedColumn* column : checked)
        column->CheckRows(first, last);
    }
  }

  void ReportColumn(int groupIndex, const TypedColumn& column) {
    const Group& group = file_.table.At(groupIndex);
    const std::string& heading = group.HeadingAt(column.HeadingIndex()).name;
    const MessagePlace place{groupIndex, 0, column.HeadingIndex()};
    if (CheckDataTypeListed(column.Type(), groupIndex, heading, group.headingLine, place)) return;
    if (column.Kind() == ValueKind::Unknown) {
      file_.log.AddMessage(group.headingLine, UnknownDataType, {column.Type(), group.name, heading},
                           place);
    } else if (column.Kind() == ValueKind::RecordLink) {
      CheckRecordLinks(groupIndex, column.HeadingIndex());
    } else if (column.LacksPattern() && column.Kind() == ValueKind::DateTime) {
      file_.log.AddMessage(group.headingLine, DateUnitMissing, {group.name, heading}, place);
    } else if (column.LacksPattern()) {
      file_.log.AddMessage(group.unitLine, ElapsedTimeUnitMissing, {group.name, heading}, place);
    } else {
      ReportValues(groupIndex, heading, column);
    }
  }

  /// The check of a column's type itself; true when the values are not to be checked.
  bool CheckDataTypeListed(const std::string& type, int groupIndex, const std::string& heading,
                           std::int32_t line, const MessagePlace& place) {
    const std::string& group = file_.table.At(groupIndex).name;
    if (type.empty()) {
      file_.log.AddMessage(line, DataTypeMissing, {group, heading}, place);
      return true;
    }
    if (!types_.IsEmpty() && !types_.MarkUsed(type)) {
      file_.log.AddMessage(line, DataTypeNotListed, {group, heading, type}, place);
    }
    return false;
  }

  void CheckRecordLinks(int groupIndex, int headingIndex) {
    for (std::int32_t row = 1; row <= file_.table.At(groupIndex).rowCount; ++row) {
      links_.CheckRecordLink(file_.table.Value(groupIndex, row, headingIndex),
                             file_.table.RowLine(groupIndex, row), {groupIndex, row, headingIndex});
    }
  }

  void ReportValues(int groupIndex, const std::string& heading, const TypedColumn& column) {
    const std::string typeText = column.TypeText();
    for (const FailingRow& failing : column.FailingRows()) {
      if (column.Kind() == ValueKind::Identifier) {
        file_.log.AddMessage(failing.line, IdRepeated, {failing.value},
                             {groupIndex, failing.row, column.HeadingIndex()});
      } else {
        ReportValueTypeMismatch(groupIndex, failing, heading, column.HeadingIndex(), typeText);
      }
    }
  }

  void ReportValueTypeMismatch(int groupIndex, const FailingRow& failing,
                               const std::string& heading, int headingIndex,
                               const std::string& typeText) {
    file_.log.AddMessage(failing.line, ValueTypeMismatch, {heading, failing.value, typeText},
                         {groupIndex, failing.row, headingIndex});
  }

  void ReportUnusedTypes() {
    const std::vector<std::string> unused = types_.Unused();
    if (unused.empty()) return;
    file_.log.AddMessage(0, TypesNotUsed, {Join(unused, LineBreak)}, {file_.singletons.type, 0, 0});
  }

  CheckedFile& file_;
  ReferenceList types_;
  RecordLinks links_;
};

}  // namespace

void CheckTypeGroup(CheckedFile& file) {
  if (!file.IsAgs4() && !file.isDictionaryNamed) return;
  TypeCheck(file).Run();
}

}  // namespace quorvane
