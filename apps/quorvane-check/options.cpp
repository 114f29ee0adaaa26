#include "options.h"

#include <array>
#include <string_view>
#include <utility>

#include <CLI/CLI.hpp>

#include "dictionary/schema_edition.h"
#include "findings/findings_format.h"
#include "run/environment.h"

namespace quorvane {
namespace {

/// What stands in the place of a file for standard output.
constexpr std::string_view StandardOutputName = "-";

/// A path that a script has left empty is a mistake, not the wish for none.
std::string RefuseEmpty(const std::string& path) {
  return path.empty() ? "the path is empty" : "";
}

/// What may stand behind --edition.
std::vector<std::string> EditionWishes() {
  std::vector<std::string> wishes;
  wishes.reserve(SchemaEditions.size() + 1);
  for (const SchemaEdition& known : SchemaEditions)
    wishes.emplace_back(known.edition);
  wishes.emplace_back(StatedEdition);
  return wishes;
}

void DescribeDictionaries(CLI::App& app, Options& options) {
  app.add_option("--dictionary", options.dictionary, "Check against this schema file")
      ->check(RefuseEmpty)
      ->type_name("SCHEMA");
  app.add_option("--edition", options.edition,
                 "Check AGS 4 files against this edition; auto: the one that TRAN_AGS names")
      ->check(CLI::IsMember(EditionWishes()))
      ->type_name("EDITION");
  app.add_flag("--which-edition", options.whichEdition,
               "Check nothing; list how many groups and headings of each AGS 4 file each edition "
               "knows");
}

std::vector<std::string> FormatNames() {
  std::vector<std::string> names = FindingsFormatNames();
  names.insert(names.begin(), TextFormat);
  return names;
}

void DescribeListings(CLI::App& app, Options& options) {
  app.add_option("--list", options.listings,
                 "Listings wanted: groups, lines, severity (separated by commas; default groups)")
      ->delimiter(',')
      ->allow_extra_args(false)
      ->check(CLI::IsMember({"groups", "lines", "severity"}))
      ->type_name("LISTING,...");
  app.add_flag("--no-fyi", options.noFyi, "Suppress FYI (for your information only) messages");
  app.add_flag("--statistics", options.statistics, "Show data statistics");
}

void DescribeFiles(CLI::App& app, Options& options) {
  app.add_option("--settings", options.settingsFile,
                 "Take files and options from a settings file; /SETTINGSFILE=FILE does the same")
      ->check(RefuseEmpty)
      ->type_name("FILE");
  app.add_option("--log", options.logFile, "Write the log to this file too")
      ->check(RefuseEmpty)
      ->type_name("FILE");
  app.add_option("--format", options.format,
                 "Format of the report: the text, or the findings as data (default text)")
      ->check(CLI::IsMember(FormatNames()))
      ->type_name("FORMAT");
  app.add_option("--output", options.outputFile,
                 "Write the report in that format to this file, the text to standard output")
      ->check(RefuseEmpty)
      ->type_name("FILE");
}

void DescribeDelivery(CLI::App& app, DeliveryOptions& options) {
  app.add_flag("--summary", options.showSummary, "End the report with a table of all files");
  app.add_flag("--files", options.lookForFiles,
               "Look for the associated files that the FILE group names");
  app.add_option("--baseline", options.baseline,
                 "Compare with the JSON of an earlier run: only new errors count")
      ->check(RefuseEmpty)
      ->type_name("FILE");
  app.add_option("--waivers", options.waivers, "Accept the findings that this list names")
      ->check(RefuseEmpty)
      ->type_name("FILE");
}

/// Throws where options stand together that cannot both be followed.
void RefuseExcluded(const CLI::App& app) {
  constexpr std::array<std::pair<const char*, const char*>, 13> contradictions{
      {{"--edition", "--dictionary"},
       {"--which-edition", "--dictionary"},
       {"--which-edition", "--edition"},
       {"--which-edition", "--list"},
       {"--which-edition", "--no-fyi"},
       {"--which-edition", "--statistics"},
       {"--which-edition", "--log"},
       {"--which-edition", "--format"},
       {"--which-edition", "--output"},
       {"--which-edition", "--summary"},
       {"--which-edition", "--files"},
       {"--which-edition", "--baseline"},
       {"--which-edition", "--waivers"}}};
  for (const auto& [option, other] : contradictions) {
    if (app.count(option) > 0 && app.count(other) > 0) throw CLI::ExcludesError(option, other);
  }
}

/// The text has one file only.
void RefuseTwoLogs(const Options& options) {
  if (options.format == TextFormat && options.NamesOutputFile() && !options.logFile.empty())
    throw CLI::ValidationError("--output", "--log names a file for the text already");
}

}  // namespace

bool Options::NamesOutputFile() const {
  return !outputFile.empty() && outputFile != StandardOutputName;
}

void DescribeOptions(CLI::App& app, Options& options) {
  app.allow_windows_style_options(false);  // "/" starts a path, on Windows too
  app.set_version_flag("--version", "quorvane-check " + std::string(ProgramVersion));
  app.add_option("FILE", options.files,
                 "AGS 3 and AGS 4 data files; a folder means every .ags file below it");
  DescribeDictionaries(app, options);
  DescribeListings(app, options);
  DescribeFiles(app, options);
  DescribeDelivery(app, options.delivery);
  app.footer(
      "What an option says outranks the settings file, but for the files to check.\n"
      "Exit status: 0 no errors found, 1 errors found or a file that could not be checked,\n"
      "2 the check could not be made (no files, no settings file, no usable dictionary, baseline\n"
      "or waivers, log or output not written).");
}

void RefuseContradictions(const CLI::App& app, const Options& options) {
  RefuseExcluded(app);
  RefuseTwoLogs(options);
}

}  // namespace quorvane
