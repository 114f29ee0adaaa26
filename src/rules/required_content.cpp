#include "rules/required_content.h"

#include <string>
#include <string_view>

#include "rules/required_content_messages.h"
#include "text/comma_list.h"
#include "text/number.h"
#include "text/text.h"

namespace quorvane {
namespace {

constexpr std::string_view GroupLineStart = "\"**";

/// Takes every occurrence of a name out of a list, as text and in any letter case: a name that is
/// part of a longer one goes too.
void RemoveAsText(std::string& list, std::string_view name) {
  if (name.empty()) return;
  std::size_t found = FindIgnoringCase(list, name);
  while (found != std::string::npos) {
    list.erase(found, name.size());
    found = FindIgnoringCase(list, name, found);
  }
}

/// The findings for one required field, each a line of its own behind a line break.
void AppendFieldFindings(const CheckedFile& file, std::string_view groupName,
                         std::string_view heading, std::string& findings) {
  const int group = file.table.FindGroup(groupName);
  if (group == 0) return;  // the required groups are another check's business
  const std::string start = std::string(LineBreak) + "Heading '" + std::string(heading) +
                            "' in group '" + std::string(groupName) + "' ";
  const int column = file.table.FindHeading(heading, group);
  if (column == 0) {
    findings += start + "is missing";
    return;
  }
  for (std::int32_t row = 1; row <= file.table.At(group).rowCount; ++row) {
    if (!file.table.Value(group, row, column).empty()) continue;
    findings +=
        start + "has no data value in line " + std::to_string(file.table.RowLine(group, row));
  }
}

/// Takes the version text that a group's only or first row states.
std::string_view TakeVersionText(CheckedFile& file, int group, int column) {
  const std::string_view version = file.table.Value(group, 1, column);
  if (!version.empty()) file.versionText = version;
  return version;
}

void TakeAgs3Version(CheckedFile& file, int proj) {
  const int column = file.table.LocateHeading(proj, "PROJ_AGS");
  if (column == 0) {
    file.log.AddMessage(0, ProjAgsHeadingMissing, {}, {proj, 0, 0});
    return;
  }
  if (file.table.At(proj).rowCount == 0) return;
  const std::string_view version = TakeVersionText(file, proj, column);
  const std::int32_t line = file.table.RowLine(proj, 1);
  switch (WholeNumberValue(version)) {
    case 3:
      file.isRtaEdition = version.find(" RTA ") != std::string_view::npos;
      file.isNzEdition = version.find(" NZ") != std::string_view::npos;
      break;
    case 4:
      file.log.AddMessage(line, ProjAgsIsVersion4, {version}, {proj, 1, column});
      break;
    default:
      file.log.AddMessage(line, ProjAgsUnknownVersion, {version}, {proj, 1, column});
  }
}

void TakeAgs4Version(CheckedFile& file, int tran) {
  const int column = file.table.LocateHeading(tran, "TRAN_AGS");
  if (column == 0) {
    file.log.AddMessage(0, TranAgsHeadingMissing, {}, {tran, 0, 0});
    file.versionText = "4";
    return;
  }
  if (file.table.At(tran).rowCount != 1) return;
  const std::string_view version = TakeVersionText(file, tran, column);
  if (WholeNumberValue(version) != 4) {
    file.log.AddMessage(file.table.RowLine(tran, 1), TranAgsUnknownVersion, {version},
                        {tran, 1, column});
    return;
  }
  const auto valueOf = [&](std::string_view heading) {
    const int valueColumn = file.table.LocateHeading(tran, heading);
    return valueColumn == 0 ? std::string() : std::string(file.table.Value(tran, 1, valueColumn));
  };
  file.delimiter = valueOf("TRAN_DLIM");
  file.concatenator = valueOf("TRAN_RCON");
}

}  // namespace

void CheckRequiredGroups(CheckedFile& file) {
  std::string required = Join(file.dictionary.RequiredGroups, ",");
  for (std::int32_t number = 1; number <= file.text.LineCount(); ++number) {
    if (file.text.IsPlain(number)) continue;
    std::string_view line = file.text.Line(number);
    if (!line.starts_with(GroupLineStart)) continue;
    line.remove_prefix(GroupLineStart.size());
    RemoveAsText(required, line.substr(0, line.empty() ? 0 : line.size() - 1));
  }
  std::string missing;
  for (const std::string_view group : Split(required, ",")) {
    if (!group.empty()) missing.append(LineBreak).append(group);
  }
  if (missing.empty()) return;
  file.log.AddMessage(0, RequiredGroupsMissing, {missing});
  file.log.CloseCheckSection("Checking Required Groups");
}

void CheckRequiredFields(CheckedFile& file) {
  std::string findings;
  for (const std::string& field : file.dictionary.RequiredFields) {
    const std::vector<std::string_view> names = Split(field, ".");
    if (names.size() >= 2) AppendFieldFindings(file, names[0], names[1], findings);
  }
  if (findings.empty()) return;
  file.log.AddMessage(0, RequiredFieldsMissing, {findings});
  file.log.CloseCheckSection("Checking Required Fields");
}

void CheckGroupNotEmpty(CheckedFile& file, int group) {
  const Group& record = file.table.At(group);
  if (record.HeadingCount() == 0) {
    file.log.AddMessage(record.line, GroupWithoutHeadings, {record.name}, {group, 0, 0});
  }
  if (record.rowCount == 0) {
    file.log.AddMessage(record.line, GroupWithoutData, {record.name}, {group, 0, 0});
  }
}

void CheckProjGroup(CheckedFile& file) {
  const int proj = file.singletons.proj;
  if (proj == 0) return;
  const std::int32_t rowCount = file.table.At(proj).rowCount;
  if (rowCount > 1) file.log.AddMessage(0, ProjRecordCount, {rowCount}, {proj, 0, 0});
  if (!file.IsAgs4()) TakeAgs3Version(file, proj);
  file.log.CloseCheckSection("Checking PROJ Group");
}

void CheckTranGroup(CheckedFile& file) {
  const int tran = file.singletons.tran;
  if (tran == 0) return;
  const std::int32_t rowCount = file.table.At(tran).rowCount;
  if (rowCount > 1) file.log.AddMessage(0, TranRecordCount, {rowCount}, {tran, 0, 0});
  TakeAgs4Version(file, tran);
  file.log.CloseCheckSection("Checking TRAN Group");
}

}  // namespace quorvane
