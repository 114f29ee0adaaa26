#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>

#include "findings/findings_report.h"

namespace quorvane {

/// The records of a report as JSON objects, which several formats hold. What does not exist is left
/// out. docs/findings.schema.json describes them.

/// The value's text in one line. Bytes that are no UTF-8 become U+FFFD.
std::string JsonText(const nlohmann::ordered_json& value);

/// Appends the text of an object that has members, without its closing brace: more members follow.
void AppendOpenObject(std::string& text, const nlohmann::ordered_json& object);

/// What names the format and the program: "format", "formatVersion", "program".
nlohmann::ordered_json FormatHead(const FindingsReport& report);

nlohmann::ordered_json OptionsObject(const CheckSettings& settings);
nlohmann::ordered_json CountsObject(const SeverityCounts& counts);

/// The numbers of files and findings of a run.
nlohmann::ordered_json SummaryObject(const FindingsReport& report);

/// A file without its findings.
nlohmann::ordered_json FileObject(const FileRecord& file);

/// Appends the members of a finding of a file of the report to an object.
void AddFindingMembers(nlohmann::ordered_json& object, const FindingsReport& report,
                       const FileRecord& file, const FindingRecord& finding);

}  // namespace quorvane
