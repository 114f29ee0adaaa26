#include "rules/contaminant_codes.h"

#include <string_view>
#include <vector>

#include "parse/reference_group.h"
#include "parse/reference_values.h"
#include "rules/contaminant_code_messages.h"

namespace quorvane {
namespace {

/// The groups with contaminant data, CNMT groups first, and whether the file has any at all.
struct ContaminantGroups {
  bool areListed = false;
  std::vector<int> withData;
};

ContaminantGroups FindContaminantGroups(const CheckedFile& file) {
  ContaminantGroups groups;
  for (const std::vector<int>* list : {&file.CnmtGroupList, &file.IccGroupList}) {
    for (const int group : *list) {
      groups.areListed = true;
      if (file.table.At(group).rowCount > 0) groups.withData.push_back(group);
    }
  }
  return groups;
}

void CheckCodesUsed(const CheckedFile& file, int group, ReferenceList& codes) {
  const int column = file.table.LocateHeading(group, "CNMT_TYPE");  // or ?CNMT_TYPE
  if (column == 0) return;
  ForEachValue(file.table, group, column, [&](std::int32_t row, std::string_view code) {
    if (codes.MarkUsed(code)) return;
    file.log.AddMessage(file.table.RowLine(group, row), ContaminantCodeNotDefined,
                        {code, file.table.At(group).name}, {group, row, column});
  });
}

/// With a code group of 0 the headings are looked for in the whole file; there are no codes then.
void CheckCodes(const CheckedFile& file, int codeGroup, const std::vector<int>& groups) {
  const int codeColumn = file.table.LocateHeading(codeGroup, "CODE_CODE");
  if (codeColumn == 0) {
    file.log.AddMessage(0, ContaminantCodeHeadingMissing, {}, {codeGroup, 0, 0});
    return;
  }
  const int descriptionColumn = RequireHeading(file.table, file.log, codeGroup, "CODE_DESC");
  ReferenceNames codes;
  if (codeGroup != 0) {
    codes = ReadReferenceNames(file.table, codeGroup, codeColumn, descriptionColumn);
  }
  if (codes.names.IsEmpty()) {
    file.log.AddMessage(0, ContaminantCodeListEmpty, {}, {codeGroup, 0, 0});
    return;
  }
  for (const int group : groups)
    CheckCodesUsed(file, group, codes.names);
  ReportMissingValues(file.log, codes.withoutDescription, "CODE_CODE", "CODE_DESC");
  // A group of an AGS 3 file has no TYPE row: its line is 0.
  ReportUnusedNames(file.log, codes.names, ContaminantCodesUnused, ",",
                    file.table.At(codeGroup).typeLine, {codeGroup, 0, 0});
}

}  // namespace

void CheckContaminantCodes(CheckedFile& file) {
  const int codeGroup = file.singletons.code;
  const ContaminantGroups groups = FindContaminantGroups(file);
  if (!groups.areListed && codeGroup == 0) return;
  if (!groups.withData.empty() && codeGroup == 0) {
    file.log.AddMessage(0, CodeGroupMissing);
  } else if (groups.withData.empty() && codeGroup != 0) {
    file.log.AddMessage(0, CodeGroupWithoutData, {}, {codeGroup, 0, 0});
  } else {
    CheckCodes(file, codeGroup, groups.withData);
  }
  file.log.CloseCheckSection(file.IsAgs4() ? "Contaminant Codes Check"
                                           : "Contaminant Codes Check (Rule 25)");
}

}  // namespace quorvane
