#include "findings/findings_format.h"

#include <algorithm>
#include <array>

#include "findings/csv_findings.h"
#include "findings/html_findings.h"
#include "findings/json_findings.h"
#include "findings/ndjson_findings.h"
#include "findings/sarif_findings.h"

namespace quorvane {
namespace {

struct FormatEntry {
  FindingsFormat format;
  std::string_view name;
  std::string (*write)(const FindingsReport&);
};

constexpr std::array Formats{FormatEntry{FindingsFormat::Json, "json", JsonFindings},
                             FormatEntry{FindingsFormat::Ndjson, "ndjson", NdjsonFindings},
                             FormatEntry{FindingsFormat::Csv, "csv", CsvFindings},
                             FormatEntry{FindingsFormat::Sarif, "sarif", SarifFindings},
                             FormatEntry{FindingsFormat::Html, "html", HtmlFindings}};

}  // namespace

std::vector<std::string> FindingsFormatNames() {
  std::vector<std::string> names;
  names.reserve(Formats.size());
  for (const FormatEntry& entry : Formats)
    names.emplace_back(entry.name);
  return names;
}

std::optional<FindingsFormat> FindingsFormatNamed(std::string_view name) {
  const auto* const found =
      std::find_if(Formats.begin(), Formats.end(),
                   [name](const FormatEntry& entry) { return entry.name == name; });
  if (found == Formats.end()) return std::nullopt;
  return found->format;
}

std::string FormatFindings(FindingsFormat format, const FindingsReport& report) {
  const auto* const found =
      std::find_if(Formats.begin(), Formats.end(),
                   [format](const FormatEntry& entry) { return entry.format == format; });
  return found->write(report);
}

}  // namespace quorvane
