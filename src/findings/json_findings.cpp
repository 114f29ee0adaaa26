#include "findings/json_findings.h"

#include <nlohmann/json.hpp>

#include "findings/json_delivery.h"
#include "findings/json_records.h"
#include "findings/run_facts.h"

namespace quorvane {
namespace {

using Json = nlohmann::ordered_json;

Json RunObject(const FindingsReport& report) {
  return {{"start", UtcText(report.start)},
          {"options", OptionsObject(report.settings)},
          {"status", StatusWord(report.status)}};
}

/// Appends what stands between two elements of a list, each on lines of its own.
void AppendSeparator(std::string& text, bool isFirst) {
  text.append(isFirst ? "\n" : ",\n");
}

/// The findings go into the text one by one: objects of them all would take many times the room.
void AppendFile(std::string& text, const FindingsReport& report, const FileRecord& file) {
  AppendOpenObject(text, FileObject(file));
  text.append(",\"findings\":[");
  for (const FindingRecord& finding : file.findings) {
    AppendSeparator(text, &finding == &file.findings.front());
    Json object;
    AddFindingMembers(object, report, file, finding);
    text.append(JsonText(object));
  }
  text.append("]}");
}

}  // namespace

std::string JsonFindings(const FindingsReport& report) {
  Json head = FormatHead(report);
  head["run"] = RunObject(report);
  head["summary"] = SummaryObject(report);
  AddDeliveryMembers(head, report);
  std::string text;
  AppendOpenObject(text, head);
  text.append(",\"files\":[");
  for (const FileRecord& file : report.files) {
    AppendSeparator(text, &file == &report.files.front());
    AppendFile(text, report, file);
  }
  return text.append("]}\n");
}

}  // namespace quorvane
