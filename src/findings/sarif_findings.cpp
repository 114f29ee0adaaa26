#include "findings/sarif_findings.h"

#include <algorithm>
#include <cstddef>
#include <nlohmann/json.hpp>
#include <unordered_map>
#include <utility>
#include <vector>

#include "findings/file_uri.h"
#include "findings/finding_identity.h"
#include "findings/json_records.h"
#include "findings/run_facts.h"
#include "run/message_catalogue.h"
#include "text/text.h"

namespace quorvane {
namespace {

using Json = nlohmann::ordered_json;

constexpr const char* SchemaUri =
    "https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/sarif-schema-2.1.0.json";
constexpr const char* FingerprintName = "quorvane/v1";

const char* Level(Severity severity) {
  switch (severity) {
    case Severity::Error:
      return "error";
    case Severity::Warning:
      return "warning";
    case Severity::Fyi:
      return "note";
    case Severity::Plain:
      break;
  }
  return "none";
}

/// A text as a message: in messages, braces mark places for values and "[...](...)" is a link.
Json MessageObject(std::string_view text) {
  return {{"text", ReplaceAll(ReplaceAll(ReplaceAll(text, "{", "{{"), "}", "}}"), "](", "\\](")}};
}

/// The name of a rule, as services show it: "FieldMissingQuotes" for "field.missing-quotes".
std::string RuleName(std::string_view id) {
  std::string name;
  bool isWordStart = true;
  for (const char letter : id) {
    const bool isSeparator = letter == '.' || letter == '-';
    if (!isSeparator) name.push_back(isWordStart ? ToUpper(letter) : letter);
    isWordStart = isSeparator;
  }
  return name;
}

std::string_view FirstSentence(std::string_view text) {
  const std::size_t end = text.find(". ");
  return end == std::string_view::npos ? text : text.substr(0, end + 1);
}

/// The level of a kind of finding: that of the format in which it is more serious.
const char* DefaultLevel(const MessageDefinition& definition) {
  Severity severity = Severity::Plain;
  for (const MessageForm& form : {definition.ags3, definition.ags4}) {
    if (form.Exists()) severity = std::max(severity, form.severity);
  }
  return Level(severity);
}

/// A kind of finding as a rule; the rules of the AGS formats that it serves are among its
/// properties.
Json RuleObject(const MessageDefinition& definition) {
  Json rule{{"id", definition.id},
            {"name", RuleName(definition.id)},
            {"shortDescription", MessageObject(FirstSentence(definition.meaning))},
            {"fullDescription", MessageObject(definition.meaning)},
            {"help", MessageObject(definition.remedy)},
            {"defaultConfiguration", {{"level", DefaultLevel(definition)}}}};
  Json agsRules = Json::object();
  for (const AgsFormat format : {AgsFormat::Ags3, AgsFormat::Ags4}) {
    const std::string_view agsRule = definition.In(format).rule;
    if (!agsRule.empty()) agsRules[std::string("ags").append(AgsVersionDigit(format))] = agsRule;
  }
  if (!agsRules.empty()) rule["properties"] = {{"agsRule", agsRules}};
  return rule;
}

/// The rules of the log, by their places in its list.
class RuleList {
 public:
  RuleList() {
    for (const MessageDefinition* definition : MessageCatalogue()) {
      indices_.emplace(definition, rules_.size());
      rules_.push_back(RuleObject(*definition));
    }
  }

  const Json& Rules() const { return rules_; }

  std::size_t IndexOf(const FindingRecord& finding) const {
    return indices_.at(finding.definition);
  }

 private:
  Json rules_ = Json::array();
  std::unordered_map<const MessageDefinition*, std::size_t> indices_;
};

/// A file as an artifact: what is known of it beside size and hash is among its properties.
Json ArtifactObject(const FileRecord& file, const std::string& uri) {
  Json artifact{{"location", {{"uri", uri}}}, {"roles", {"analysisTarget"}}};
  Json properties = FileObject(file);
  if (file.wasRead) {
    artifact["length"] = file.size;
    artifact["hashes"] = {{"sha-256", file.sha256}};
  }
  for (const char* const saidAbove : {"size", "sha256"})
    properties.erase(saidAbove);
  artifact["properties"] = properties;
  return artifact;
}

/// The files of the log. A file that was checked twice in a run is one artifact.
class ArtifactList {
 public:
  explicit ArtifactList(const FindingsReport& report) {
    for (const FileRecord& file : report.files) {
      const std::string uri = FileUri(file.path);
      const auto [place, isNew] = indices_.emplace(uri, artifacts_.size());
      if (isNew) artifacts_.push_back(ArtifactObject(file, uri));
    }
  }

  const Json& Artifacts() const { return artifacts_; }

  /// What points to a file.
  Json LocationOf(const FileRecord& file) const {
    const std::string uri = FileUri(file.path);
    return {{"uri", uri}, {"index", indices_.at(uri)}};
  }

 private:
  Json artifacts_ = Json::array();
  std::unordered_map<std::string, std::size_t> indices_;  // by URI
};

/// Why a file was not checked to the end. A failure that nobody expected has been told in a box.
std::string_view ReasonOf(const FileRecord& file) {
  if (file.reason.empty()) return "unexpected failure";
  return file.reason;
}

/// One for each file that could not be checked to the end.
Json Notifications(const FindingsReport& report, const ArtifactList& artifacts) {
  Json notifications = Json::array();
  for (const FileRecord& file : report.files) {
    if (file.isComplete) continue;
    Json location{{"physicalLocation", {{"artifactLocation", artifacts.LocationOf(file)}}}};
    notifications.push_back({{"level", "error"},
                             {"message", MessageObject(ReasonOf(file))},
                             {"locations", Json::array({std::move(location)})}});
  }
  return notifications;
}

Json InvocationObject(const FindingsReport& report, const ArtifactList& artifacts) {
  return {{"executionSuccessful", report.status != CheckStatus::NotDone},
          {"exitCode", static_cast<int>(report.status)},
          {"startTimeUtc", UtcText(report.start)},
          {"toolExecutionNotifications", Notifications(report, artifacts)},
          {"properties",
           {{"options", OptionsObject(report.settings)}, {"summary", SummaryObject(report)}}}};
}

/// The program's version has leading zeros and four parts: no semantic version.
Json ToolObject(const FindingsReport& report, const RuleList& rules) {
  return {{"driver",
           {{"name", "Quorvane"},
            {"fullName", "Quorvane " + report.programVersion},
            {"version", report.programVersion},
            {"dottedQuadFileVersion", report.programVersion},
            {"rules", rules.Rules()}}}};
}

/// Writes the results of one file.
class FileResults {
 public:
  /// The lists and the file must outlive the object.
  FileResults(const FindingsReport& report, const RuleList& rules, const ArtifactList& artifacts,
              const FileRecord& file)
      : report_(report),
        rules_(rules),
        file_(file),
        artifactLocation_(artifacts.LocationOf(file)) {}

  Json ResultObject(const FindingRecord& finding, const FindingIdentity& identity) const {
    Json result{{"ruleId", finding.definition->id}, {"ruleIndex", rules_.IndexOf(finding)}};
    // Only what fails has a level.
    if (finding.severity == Severity::Plain) result["kind"] = "informational";
    result["level"] = Level(finding.severity);
    result["message"] = MessageObject(finding.text);
    result["locations"] = Json::array({LocationObject(finding)});
    result["partialFingerprints"] = {{FingerprintName, Fingerprint(identity)}};
    AddState(result, finding);
    result["properties"] = Properties(finding);
    return result;
  }

 private:
  Json LocationObject(const FindingRecord& finding) const {
    Json physical{{"artifactLocation", artifactLocation_}};
    if (finding.line > 0) {
      physical["region"]["startLine"] = finding.line;
      if (finding.column > 0) physical["region"]["startColumn"] = finding.column;
    }
    Json location{{"physicalLocation", std::move(physical)}};
    if (const std::string name = LogicalName(finding); !name.empty())
      location["logicalLocations"] = Json::array({{{"fullyQualifiedName", name}}});
    return location;
  }

  /// "GROUP.HEADING", "GROUP", or nothing.
  std::string LogicalName(const FindingRecord& finding) const {
    std::string name(file_.GroupName(finding));
    const std::string_view heading = file_.HeadingName(finding);
    return heading.empty() ? name : name.append(".").append(heading);
  }

  /// What is waived was there before somebody accepted it.
  void AddState(Json& result, const FindingRecord& finding) const {
    if (report_.comparison)
      result["baselineState"] = finding.state == FindingState::New ? "new" : "unchanged";
    if (finding.state != FindingState::Waived) return;
    result["suppressions"] = Json::array({{{"kind", "external"},
                                           {"status", "accepted"},
                                           {"justification", report_.WaiverReason(finding)}}});
  }

  Json Properties(const FindingRecord& finding) const {
    Json properties{{"section", file_.Section(finding)}};
    if (const std::string_view rule = file_.Rule(finding); !rule.empty())
      properties["agsRule"] = rule;
    if (!finding.key.empty()) properties["key"] = finding.key;
    return properties;
  }

  const FindingsReport& report_;
  const RuleList& rules_;
  const FileRecord& file_;
  Json artifactLocation_;
};

void AppendResults(std::string& text, const FindingsReport& report, const RuleList& rules,
                   const ArtifactList& artifacts) {
  FindingIdentifier identifier;
  const char* separator = "\n";
  for (const FileRecord& file : report.files) {
    const FileResults results(report, rules, artifacts, file);
    for (const FindingRecord& finding : file.findings) {
      const FindingIdentity identity = identifier.Identify(file, finding);
      text.append(separator).append(JsonText(results.ResultObject(finding, identity)));
      separator = ",\n";
    }
  }
}

}  // namespace

std::string SarifFindings(const FindingsReport& report) {
  const RuleList rules;
  const ArtifactList artifacts(report);
  std::string text;
  AppendOpenObject(text, {{"$schema", SchemaUri}, {"version", "2.1.0"}});
  text.append(",\"runs\":[\n");
  AppendOpenObject(text, {{"tool", ToolObject(report, rules)},
                          {"invocations", Json::array({InvocationObject(report, artifacts)})},
                          {"artifacts", artifacts.Artifacts()},
                          {"columnKind", "unicodeCodePoints"}});
  text.append(",\"results\":[");
  AppendResults(text, report, rules, artifacts);
  return text.append("]}]}\n");
}

}  // namespace quorvane
