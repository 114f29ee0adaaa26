#include "findings/json_delivery.h"

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>

namespace quorvane {
namespace {

using Json = nlohmann::ordered_json;

std::string_view StateWord(AssociatedFile::State state) {
  switch (state) {
    case AssociatedFile::State::There:
      return "there";
    case AssociatedFile::State::InOtherCase:
      return "in-other-case";
    case AssociatedFile::State::Missing:
      return "missing";
    case AssociatedFile::State::NoFileName:
      return "no-file-name";
    case AssociatedFile::State::NotLookedFor:
      break;
  }
  return "not-looked-for";
}

void AddIfAny(Json& object, const char* name, std::string_view text) {
  if (!text.empty()) object[name] = text;
}

/// A field without value means any: it is left out.
void AddIfSet(Json& object, const char* name, const std::optional<std::string>& field) {
  if (field) object[name] = *field;
}

Json WaiverObject(const WaiverRecord& waiver) {
  Json object{{"line", waiver.line}, {"id", waiver.id}};
  AddIfSet(object, "file", waiver.file);
  AddIfSet(object, "group", waiver.group);
  AddIfSet(object, "key", waiver.key);
  AddIfSet(object, "heading", waiver.heading);
  object["reason"] = waiver.reason;
  object["matches"] = waiver.matches;
  return object;
}

Json WaiversObject(const FindingsReport& report) {
  Json list = Json::array();
  for (const WaiverRecord& waiver : report.waivers)
    list.push_back(WaiverObject(waiver));
  return {{"file", report.waiverFile}, {"list", std::move(list)}};
}

Json EarlierFindingObject(const EarlierFinding& finding) {
  Json object{{"id", finding.id}, {"severity", SeverityWord(finding.severity)}};
  if (finding.line > 0) object["line"] = finding.line;
  AddIfAny(object, "group", finding.group);
  AddIfAny(object, "key", finding.key);
  AddIfAny(object, "heading", finding.heading);
  object["text"] = finding.text;
  return object;
}

Json EarlierFilesArray(const std::vector<EarlierFile>& files) {
  Json array = Json::array();
  for (const EarlierFile& file : files) {
    Json findings = Json::array();
    for (const EarlierFinding& finding : file.findings)
      findings.push_back(EarlierFindingObject(finding));
    array.push_back({{"path", file.path}, {"findings", std::move(findings)}});
  }
  return array;
}

Json ComparisonObject(const ComparisonRecord& comparison) {
  return {{"baseline", comparison.baseline},
          {"gone", EarlierFilesArray(comparison.gone)},
          {"notCompared", EarlierFilesArray(comparison.notCompared)}};
}

Json UnnamedFilesArray(const std::vector<UnnamedFiles>& folders) {
  Json array = Json::array();
  for (const UnnamedFiles& files : folders) {
    Json object{{"folder", files.folder}, {"names", files.names}};
    if (!files.gaps.empty()) object["gaps"] = files.gaps;
    array.push_back(std::move(object));
  }
  return array;
}

}  // namespace

void AddDeliveryMembers(Json& object, const FindingsReport& report) {
  if (!report.waiverFile.empty()) object["waivers"] = WaiversObject(report);
  if (report.comparison) object["comparison"] = ComparisonObject(*report.comparison);
  if (!report.unnamedFiles.empty()) object["unnamedFiles"] = UnnamedFilesArray(report.unnamedFiles);
}

bool WereLookedFor(const std::vector<AssociatedFile>& files) {
  return !files.empty() && files.front().state != AssociatedFile::State::NotLookedFor;
}

Json AssociatedFilesArray(const std::vector<AssociatedFile>& files) {
  Json array = Json::array();
  for (const AssociatedFile& file : files) {
    Json object{{"set", file.fileSet}, {"name", file.name}, {"state", StateWord(file.state)}};
    AddIfAny(object, "pathThere", file.pathThere);
    array.push_back(std::move(object));
  }
  return array;
}

}  // namespace quorvane
