#include "findings/html_summary.h"

#include <algorithm>
#include <vector>

#include "findings/html_page.h"
#include "findings/html_text.h"
#include "findings/run_facts.h"
#include "text/comma_list.h"
#include "text/number.h"
#include "text/utf8.h"

namespace quorvane {
namespace {

std::string CountText(std::int64_t count) {
  return GroupedCount(static_cast<std::uint64_t>(count));
}

std::string Counted(std::int64_t count, std::string_view one, std::string_view many) {
  return CountText(count) + " " + std::string(count == 1 ? one : many);
}

std::string Title(const FindingsReport& report) {
  if (report.files.size() != 1)
    return "AGS data check: " +
           Counted(static_cast<std::int64_t>(report.files.size()), "file", "files");
  const std::string& path = report.files.front().path;
  return "AGS data check: " + path.substr(path.find_last_of("/\\") + 1);
}

/// One sentence for who reads nothing else.
std::string Verdict(const FindingsReport& report) {
  const auto incomplete = std::count_if(report.files.begin(), report.files.end(),
                                        [](const FileRecord& file) { return !file.isComplete; });
  const std::string found = "Found: " + CountsText(report.Counts()) + ".";
  if (report.files.empty()) return "No file was checked.";
  if (incomplete == 0) return found + " Everything was checked to the end.";
  return found + " Not checked to the end: " + Counted(incomplete, "file", "files") + ".";
}

std::string OptionsText(const CheckSettings& settings) {
  const std::vector<std::string_view> listings = ListingNames(settings.listings);
  std::string text =
      settings.useCustomDictionary
          ? "dictionary " + ToUtf8(settings.customDictionary)
          : std::string("dictionaries of the program, chosen by each file's AGS version");
  text += settings.suppressFyi ? "; FYI suppressed" : "; FYI included";
  text += "; listings of the text report: ";
  text += listings.empty() ? std::string("none") : Join(listings, ", ");
  text += settings.showStatistics ? "; with data statistics" : "; without data statistics";
  return text;
}

std::string VersionText(const FileRecord& file) {
  if (!file.format) return "not known";
  if (!file.statedVersion.empty()) return file.statedVersion;
  return std::string(AgsVersionDigit(*file.format)) + " (edition not stated)";
}

std::string DictionaryText(const FileRecord& file) {
  if (!file.format) return "none";
  if (!file.edition.empty()) return "AGS " + file.edition + ", of the program";
  return file.dictionary.empty() ? "AGS 3, of the program" : file.dictionary;
}

void AppendFact(std::string& page, std::string_view name, std::string_view value) {
  page.append("<dt>").append(name).append("</dt><dd>");
  AppendHtmlText(page, value);
  page.append("</dd>\n");
}

void AppendCell(std::string& page, std::string_view value, std::string_view style = {}) {
  page.append(style.empty() ? "<td>" : "<td class=\"");
  if (!style.empty()) page.append(style).append("\">");
  AppendHtmlText(page, value);
  page.append("</td>");
}

void AppendFileRow(std::string& page, const FileRecord& file, std::size_t index) {
  page.append("<tr><th scope=\"row\"><a href=\"#").append(HtmlFileId(index)).append("\">");
  AppendHtmlText(page, file.path);
  page.append("</a></th>");
  AppendCell(page, file.wasRead ? GroupedCount(file.size) + " bytes" : "not read", "number");
  AppendCell(page, VersionText(file));
  AppendCell(page, DictionaryText(file));
  for (const std::int64_t count :
       {file.counts.errors, file.counts.warnings, file.counts.fyis, file.counts.plain})
    AppendCell(page, CountText(count), "number");
  AppendCell(page, file.isComplete ? "yes" : "NO: " + file.reason);
  AppendCell(page, file.sha256, "hash");
  page.append("</tr>\n");
}

}  // namespace

void AppendHtmlHead(std::string& page, const FindingsReport& report) {
  page.append(
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src ");
  page.append(PolicySource(HtmlStyle)).append("; script-src ").append(PolicySource(HtmlScript));
  page.append(
      "; base-uri 'none'; form-action 'none'\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>");
  AppendHtmlText(page, Title(report));
  page.append("</title>\n<style>").append(HtmlStyle).append("</style>\n</head>\n");
}

void AppendHtmlSummary(std::string& page, const FindingsReport& report) {
  page.append("<header>\n<h1>");
  AppendHtmlText(page, Title(report));
  page.append("</h1>\n<p class=\"verdict\">").append(Verdict(report)).append("</p>\n<dl>\n");
  AppendFact(page, "Program", "Quorvane " + report.programVersion);
  AppendFact(page, "Run", UtcText(report.start));
  AppendFact(page, "Options", OptionsText(report.settings));
  page.append("</dl>\n</header>\n");
  if (report.files.empty()) return;
  page.append(
      "<section aria-labelledby=\"files\">\n<h2 id=\"files\">Files</h2>\n"
      "<div class=\"wide\" role=\"region\" aria-labelledby=\"files\" tabindex=\"0\">\n"
      "<table class=\"files\">\n<thead><tr><th scope=\"col\">File</th><th scope=\"col\">Size</th>"
      "<th scope=\"col\">AGS version</th><th scope=\"col\">Dictionary</th>"
      "<th scope=\"col\">Errors</th><th scope=\"col\">Warnings</th><th scope=\"col\">FYI</th>"
      "<th scope=\"col\">Remarks</th><th scope=\"col\">Checked to the end</th>"
      "<th scope=\"col\">SHA-256</th></tr></thead>\n<tbody>\n");
  for (std::size_t index = 0; index < report.files.size(); ++index)
    AppendFileRow(page, report.files[index], index);
  page.append("</tbody>\n</table>\n</div>\n</section>\n");
}

std::string CountsText(const SeverityCounts& counts) {
  std::vector<std::string> parts;
  if (counts.errors > 0) parts.push_back(Counted(counts.errors, "error", "errors"));
  if (counts.warnings > 0) parts.push_back(Counted(counts.warnings, "warning", "warnings"));
  if (counts.fyis > 0) parts.push_back(Counted(counts.fyis, "FYI", "FYI"));
  if (counts.plain > 0) parts.push_back(Counted(counts.plain, "remark", "remarks"));
  return parts.empty() ? "no findings" : Join(parts, ", ");
}

std::string HtmlFileId(std::size_t file) {
  return "file-" + std::to_string(file + 1);
}

}  // namespace quorvane
