#include "run/structure_rules.h"

#include "rules/keys.h"
#include "rules/names.h"
#include "rules/required_content.h"

namespace quorvane {

std::string StructureRules::ReadGroupName(int group, std::int32_t lineNumber,
                                          std::string_view line) {
  return CheckGroupNameLine(file_, group, lineNumber, line);
}

void StructureRules::GroupOpened(int group) {
  RecordGroup(file_, group);
}

std::string StructureRules::ReadHeading(const MessagePlace& place, std::int32_t lineNumber,
                                        std::string heading) {
  const bool isValid = CheckHeadingName(file_, place, lineNumber, heading);
  const bool isKnownGroup = file_.table.At(place.group).dictionaryIndex != 0;
  if (isValid && isKnownGroup) CheckHeadingInDictionary(file_, place, lineNumber, heading);
  return heading;
}

void StructureRules::HeadersRead(int group, bool hasData) {
  CheckKeyHeadings(file_, group, hasData);
}

void StructureRules::GroupEnded(int group) {
  CheckGroupNotEmpty(file_, group);
}

void StructureRules::FileEnded() {
  CheckHeadingPrefixes(file_);
}

void ParseStructure(CheckedFile& file) {
  StructureRules rules(file);
  StructureParser parser(file.text, file.format, file.dictionary.ReferenceGroups, file.table, rules,
                         file.log);
  parser.ParseStructure({1, file.text.LineCount()});
}

}  // namespace quorvane
