#include "findings/ndjson_findings.h"

#include <nlohmann/json.hpp>

#include "findings/json_delivery.h"
#include "findings/json_records.h"
#include "findings/run_facts.h"

namespace quorvane {
namespace {

using Json = nlohmann::ordered_json;

void AppendLine(std::string& text, const Json& object) {
  text.append(JsonText(object)).push_back('\n');
}

/// An object that says its type before all else.
Json OfType(const char* type, const Json& members = Json::object()) {
  Json object{{"type", type}};
  object.update(members);
  return object;
}

Json RunLine(const FindingsReport& report) {
  Json line = OfType("run", FormatHead(report));
  line["start"] = UtcText(report.start);
  line["options"] = OptionsObject(report.settings);
  return line;
}

Json EndLine(const FindingsReport& report) {
  Json line = OfType("end", {{"status", StatusWord(report.status)}});
  line.update(SummaryObject(report));
  AddDeliveryMembers(line, report);
  return line;
}

void AppendFile(std::string& text, const FindingsReport& report, const FileRecord& file) {
  AppendLine(text, OfType("file", FileObject(file)));
  for (const FindingRecord& finding : file.findings) {
    Json line{{"type", "finding"}, {"file", file.path}};
    AddFindingMembers(line, report, file, finding);
    AppendLine(text, line);
  }
}

}  // namespace

std::string NdjsonFindings(const FindingsReport& report) {
  std::string text;
  AppendLine(text, RunLine(report));
  for (const FileRecord& file : report.files)
    AppendFile(text, report, file);
  AppendLine(text, EndLine(report));
  return text;
}

}  // namespace quorvane
