#include "rules/file_sets.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "parse/reference_group.h"
#include "parse/reference_values.h"
#include "rules/file_set_messages.h"
#include "text/text.h"

namespace quorvane {
namespace {

constexpr std::string_view FileGroupName = "FILE";

/// The column with a group's file sets; 0 when it has none.
int FileSetColumn(const GroupTable& table, int group) {
  const int column = table.LocateHeading(group, "FILE_FSET");
  return column != 0 ? column : table.LocateHeading(group, "CMPG_FSET");
}

void AssignUpperCase(std::string& target, std::string_view text) {
  target.assign(text);
  std::transform(target.begin(), target.end(), target.begin(), ToUpper);
}

/// Calls use(group, row, file set) for every trimmed value, in file order, by which a group other
/// than FILE refers to a file set.
template <typename Use>
void ForEachReference(const GroupTable& table, Use&& use) {
  for (int group = 1; group <= table.GroupCount(); ++group) {
    if (table.At(group).name == FileGroupName) continue;
    const int column = FileSetColumn(table, group);
    if (column == 0) continue;
    ForEachValue(table, group, column, [&](std::int32_t row, std::string_view value) {
      const std::string_view fileSet = Trim(value);
      if (!fileSet.empty()) use(MessagePlace{group, row, column}, fileSet);
    });
  }
}

/// The bound on the point's place lets a name with a point have eight characters before it, and a
/// name without one have nine in all.
void CheckFileName(CheckedFile& file, const MessagePlace& place, std::string_view name) {
  constexpr std::size_t LastPointPosition = 9;
  constexpr std::size_t LongestExtension = 3;
  const std::int32_t line = file.table.RowLine(place.group, place.row);
  const std::size_t point = name.rfind('.');
  const std::size_t position = point == std::string_view::npos ? name.size() : point + 1;
  if (position > LastPointPosition) {
    file.log.AddMessage(line, FileNameBodyTooLong, {name}, place);
  }
  if (name.size() - position > LongestExtension) {
    file.log.AddMessage(line, FileNameExtensionTooLong, {name}, place);
  }
}

void CheckFileNames(CheckedFile& file, int group, int column) {
  // AGS 4 and the regional editions of AGS 3 allow names of any length.
  if (column == 0 || file.IsAgs4() || file.isRtaEdition || file.isNzEdition) return;
  ForEachValue(file.table, group, column, [&](std::int32_t row, std::string_view value) {
    const std::string_view name = Trim(value);
    if (!name.empty()) CheckFileName(file, {group, row, column}, name);
  });
}

/// What the FILE groups of a file define.
struct FileSets {
  ReferenceList names;                          // in upper case, each once
  std::vector<std::string> withoutDescription;  // as written, once for each file of the set
};

void ReadFileGroup(CheckedFile& file, int group, FileSets& fileSets) {
  const int fileSetColumn = FileSetColumn(file.table, group);
  const int nameColumn = file.table.LocateHeading(group, "FILE_NAME");
  const int descriptionColumn = RequireHeading(file.table, file.log, group, "FILE_DESC");
  if (fileSetColumn != 0) {
    std::string upperName;
    ForEachValue(file.table, group, fileSetColumn, [&](std::int32_t row, std::string_view value) {
      const std::string_view name = Trim(value);
      if (name.empty()) return;
      CollectMissingDescription(file.table, group, row, descriptionColumn, name,
                                fileSets.withoutDescription);
      AssignUpperCase(upperName, name);
      if (!fileSets.names.Contains(upperName)) fileSets.names.Add(upperName);
    });
  }
  CheckFileNames(file, group, nameColumn);
}

void ReportFileGroupMissing(const CheckedFile& file) {
  std::string lines;
  ForEachReference(file.table, [&](const MessagePlace& place, std::string_view) {
    if (!lines.empty()) lines += ", ";
    lines += std::to_string(file.table.RowLine(place.group, place.row));
  });
  if (!lines.empty()) file.log.AddMessage(0, FileGroupMissing, {lines});
}

void CheckReferences(const CheckedFile& file, ReferenceList& fileSets) {
  std::string name;
  ForEachReference(file.table, [&](const MessagePlace& place, std::string_view fileSet) {
    AssignUpperCase(name, fileSet);
    if (fileSets.MarkUsed(name)) return;
    file.log.AddMessage(file.table.RowLine(place.group, place.row), FileSetNotDefined,
                        {name, file.table.At(place.group).name}, place);
  });
}

}  // namespace

void CheckFileSets(CheckedFile& file) {
  FileSets fileSets;
  for (int group = 1; group <= file.table.GroupCount(); ++group) {
    if (file.table.At(group).name == FileGroupName) ReadFileGroup(file, group, fileSets);
  }
  const int fileGroup = file.singletons.file;
  if (fileGroup == 0) {
    ReportFileGroupMissing(file);
  } else {
    CheckReferences(file, fileSets.names);
    ReportMissingValues(file.log, fileSets.withoutDescription, "FILE_FSET", "FILE_DESC");
    ReportUnusedNames(file.log, fileSets.names, FileSetsUnused, ",", 0, {fileGroup, 0, 0});
  }
  file.log.CloseCheckSection("File codes check (Rule 24)");
}

}  // namespace quorvane
