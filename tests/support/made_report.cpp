#include "support/made_report.h"

#include <array>
#include <stdexcept>
#include <utility>

namespace quorvane::test {
namespace {

constexpr MessageDefinition DefinitionOf(std::string_view id, std::string_view rule) {
  const MessageForm form{Severity::Error, rule, "text"};
  return {id, form, form, "meaning", "remedy"};
}

constexpr std::array<MessageDefinition, 4> Definitions{
    DefinitionOf("none", ""), DefinitionOf("keys", "6b"), DefinitionOf("names", "7"),
    DefinitionOf("groups", "10")};

const MessageDefinition& DefinitionFor(std::string_view rule) {
  for (const MessageDefinition& definition : Definitions) {
    if (definition.ags4.rule == rule) return definition;
  }
  throw std::invalid_argument("no made finding has this rule");
}

void AddFinding(FileRecord& file, const MadeFinding& made) {
  FindingRecord& finding = file.findings.emplace_back();
  finding.definition = &DefinitionFor(made.rule);
  finding.text = file.texts.Keep(made.text);
  finding.line = made.line;
  finding.section = made.section;
  finding.severity = made.severity;
  file.counts.Add(made.severity);
}

}  // namespace

FileRecord MadeFile(const std::string& path, const std::vector<std::string>& sections,
                    const std::vector<MadeFinding>& findings) {
  FileRecord file;
  file.path = path;
  file.diskPath = path;
  file.isComplete = true;
  file.format = AgsFormat::Ags4;
  file.sections = sections;
  for (const MadeFinding& finding : findings)
    AddFinding(file, finding);
  return file;
}

FindingsReport MadeReport(std::vector<FileRecord> files) {
  FindingsReport report;
  report.files = std::move(files);
  return report;
}

FindingsReport ReportOfAMillion() {
  constexpr std::array<std::string_view, 4> rules{"10", "6b", "", "7"};
  constexpr std::array<std::string_view, 3> beginnings{
      "Group GEOL key 'BH", "Group GEOL, heading GEOL_TOP: numeric value expected in row of 'BH",
      "Value not found in group ABBR: 'GEOL_LEG_"};
  constexpr std::array severities{Severity::Fyi, Severity::Error, Severity::Warning};
  constexpr std::array<std::int64_t, 3> counts{500'000, 300'000, 200'000};
  std::vector<FileRecord> files;
  for (const std::int64_t count : counts) {
    files.push_back(MadeFile("/data/" + std::to_string(count) + ".ags",
                             {"Duplicated keys check", "TYPE check", "Abbreviations check"}, {}));
    for (std::int64_t number = 0; number < count; ++number) {
      const auto kind = static_cast<std::size_t>(number) % beginnings.size();
      AddFinding(files.back(),
                 {std::string(beginnings[kind]) + std::to_string(number * 7919 % count) + "'",
                  static_cast<std::int32_t>(number + 1), severities[kind],
                  static_cast<std::uint32_t>(kind),
                  rules[static_cast<std::size_t>(number) % rules.size()]});
    }
  }
  return MadeReport(std::move(files));
}

}  // namespace quorvane::test
