#include "findings/json_records.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "findings/json_delivery.h"
#include "findings/run_facts.h"
#include "text/utf8.h"

namespace quorvane {
namespace {

using Json = nlohmann::ordered_json;

/// Grows when readers of the older form could not read the newer one.
constexpr int FormatVersion = 1;

void AddIfAny(Json& object, const char* name, std::string_view text) {
  if (!text.empty()) object[name] = text;
}

void AddIfAny(Json& object, const char* name, std::int32_t number) {
  if (number != 0) object[name] = number;
}

}  // namespace

std::string JsonText(const Json& value) {
  return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

void AppendOpenObject(std::string& text, const Json& object) {
  text.append(JsonText(object)).pop_back();
}

Json FormatHead(const FindingsReport& report) {
  return {{"format", "quorvane-findings"},
          {"formatVersion", FormatVersion},
          {"program", {{"name", "Quorvane"}, {"version", report.programVersion}}}};
}

Json OptionsObject(const CheckSettings& settings) {
  Json options{{"listings", ListingNames(settings.listings)},
               {"noFyi", settings.suppressFyi},
               {"statistics", settings.showStatistics}};
  if (settings.useCustomDictionary) options["dictionary"] = ToUtf8(settings.customDictionary);
  AddIfAny(options, "edition", settings.edition);
  return options;
}

Json CountsObject(const SeverityCounts& counts) {
  return {{"error", counts.errors},
          {"warning", counts.warnings},
          {"fyi", counts.fyis},
          {"remark", counts.plain}};
}

Json SummaryObject(const FindingsReport& report) {
  const auto completeCount = std::count_if(report.files.begin(), report.files.end(),
                                           [](const FileRecord& file) { return file.isComplete; });
  return {{"files", report.files.size()},
          {"filesCheckedToTheEnd", completeCount},
          {"counts", CountsObject(report.Counts())}};
}

Json FileObject(const FileRecord& file) {
  Json object{{"path", file.path}, {"checkedToTheEnd", file.isComplete}};
  AddIfAny(object, "reason", file.reason);
  if (file.wasRead) {
    object["size"] = file.size;
    object["sha256"] = file.sha256;
  }
  if (file.format) object["agsVersion"] = AgsVersionDigit(*file.format);
  AddIfAny(object, "statedVersion", file.statedVersion);
  AddIfAny(object, "dictionary", file.dictionary);
  AddIfAny(object, "edition", file.edition);
  object["counts"] = CountsObject(file.counts);
  if (WereLookedFor(file.associatedFiles))
    object["associatedFiles"] = AssociatedFilesArray(file.associatedFiles);
  return object;
}

void AddFindingMembers(Json& object, const FindingsReport& report, const FileRecord& file,
                       const FindingRecord& finding) {
  object["id"] = finding.definition->id;
  AddIfAny(object, "rule", file.Rule(finding));
  object["severity"] = SeverityWord(finding.severity);
  object["section"] = file.Section(finding);
  AddIfAny(object, "line", finding.line);
  AddIfAny(object, "column", finding.column);
  AddIfAny(object, "group", file.GroupName(finding));
  AddIfAny(object, "key", finding.key);
  AddIfAny(object, "heading", file.HeadingName(finding));
  object["text"] = finding.text;
  AddIfAny(object, "state", StateWord(finding.state));
  AddIfAny(object, "waiverReason", report.WaiverReason(finding));
}

}  // namespace quorvane
