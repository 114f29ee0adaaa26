#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

#include "dictionary/schema_edition.h"
#include "findings/findings_format.h"
#include "run/check_file.h"
#include "run/environment.h"
#include "run/standard_streams.h"
#include "run/system_disk.h"
#include "run/system_environment.h"
#include "run/system_text.h"
#include "text/comma_list.h"
#include "text/text.h"
#include "ui/command_line.h"
#include "ui/console.h"
#include "ui/console_run.h"
#include "ui/edition_listing.h"
#include "ui/program_start.h"
#include "ui/settings_file.h"
#include "ui/written_path.h"

namespace quorvane {
namespace {

constexpr int NothingDone = static_cast<int>(CheckStatus::NotDone);

constexpr const char* TextFormat = "text";       // of --format: the log
constexpr const char* StandardOutputName = "-";  // of --output

struct Options {
  std::vector<std::string> files;
  std::string dictionary;
  std::string edition;
  bool whichEdition = false;
  std::vector<std::string> listings;
  bool noFyi = false;
  bool statistics = false;
  std::string settingsFile;
  std::string logFile;
  std::string format = TextFormat;
  std::string outputFile;
};

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

/// Throws where options stand together that cannot both be followed.
void RefuseContradiction(const CLI::App& app) {
  constexpr std::array<std::pair<const char*, const char*>, 9> contradictions{
      {{"--edition", "--dictionary"},
       {"--which-edition", "--dictionary"},
       {"--which-edition", "--edition"},
       {"--which-edition", "--list"},
       {"--which-edition", "--no-fyi"},
       {"--which-edition", "--statistics"},
       {"--which-edition", "--log"},
       {"--which-edition", "--format"},
       {"--which-edition", "--output"}}};
  for (const auto& [option, other] : contradictions) {
    if (app.count(option) > 0 && app.count(other) > 0) throw CLI::ExcludesError(option, other);
  }
}

std::vector<std::string> FormatNames() {
  std::vector<std::string> names = FindingsFormatNames();
  names.insert(names.begin(), TextFormat);
  return names;
}

void Describe(CLI::App& app, Options& options) {
  app.allow_windows_style_options(false);  // "/" starts a path, on Windows too
  app.set_version_flag("--version", "quorvane-check " + std::string(ProgramVersion));
  app.add_option("FILE", options.files, "AGS 3 and AGS 4 data files");
  DescribeDictionaries(app, options);
  app.add_option("--list", options.listings,
                 "Listings wanted: groups, lines, severity (separated by commas; default groups)")
      ->delimiter(',')
      ->allow_extra_args(false)
      ->check(CLI::IsMember({"groups", "lines", "severity"}))
      ->type_name("LISTING,...");
  app.add_flag("--no-fyi", options.noFyi, "Suppress FYI (for your information only) messages");
  app.add_flag("--statistics", options.statistics, "Show data statistics");
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
  app.footer(
      "What an option says outranks the settings file, but for the files to check.\n"
      "Exit status: 0 no errors found, 1 errors found or a file that could not be checked,\n"
      "2 the check could not be made (no files, no settings file, no usable dictionary, log or\n"
      "output not written).");
}

bool NamesOutputFile(const Options& options) {
  return !options.outputFile.empty() && options.outputFile != StandardOutputName;
}

/// The text has one file only.
void RefuseTwoLogs(const Options& options) {
  if (options.format == TextFormat && NamesOutputFile(options) && !options.logFile.empty())
    throw CLI::ValidationError("--output", "--log names a file for the text already");
}

bool Wants(const Options& options, std::string_view listing) {
  return std::find(options.listings.begin(), options.listings.end(), listing) !=
         options.listings.end();
}

/// Lets the options outrank what was set before.
void ApplyOptions(Disk& disk, const Options& options, RunSettings& settings) {
  CheckSettings& controls = settings.controls;
  if (!options.listings.empty()) {
    controls.listings = {Wants(options, "groups"), Wants(options, "lines"),
                         Wants(options, "severity")};
  }
  if (options.noFyi) controls.suppressFyi = true;
  if (options.statistics) controls.showStatistics = true;
  if (!options.dictionary.empty()) {
    controls.useCustomDictionary = true;
    controls.customDictionary = PathToRead(disk, options.dictionary);
  }
  if (!options.edition.empty()) {
    controls.useCustomDictionary = false;
    controls.edition = options.edition;
  }
  if (!options.logFile.empty()) settings.logFile = PathToWrite(options.logFile);
  if (options.format == TextFormat && NamesOutputFile(options))
    settings.logFile = PathToWrite(options.outputFile);
}

/// Where findings go as data; nothing when only the text is wanted.
std::optional<FindingsOutput> FindingsOutputOf(const Options& options) {
  const std::optional<FindingsFormat> format = FindingsFormatNamed(options.format);
  if (!format) return std::nullopt;
  return FindingsOutput{*format, NamesOutputFile(options) ? PathToWrite(options.outputFile) : ""};
}

/// The settings of the console program; nothing when a settings file is missing.
std::optional<RunSettings> SettingsOf(Disk& disk, const Options& options,
                                      const CommandLine& commandLine) {
  ConsoleMessages messages;
  std::vector<std::string> files = options.files;
  files.insert(files.end(), commandLine.dataFiles.begin(), commandLine.dataFiles.end());
  for (std::string& file : files) {
    file = PathToRead(disk, file);
  }
  const std::string named = Join(files, LineBreak);

  RunSettings settings;
  settings.controls.filesToCheck = named;
  if (!options.settingsFile.empty() && ApplySettingsFile(disk, messages, options.settingsFile,
                                                         settings) == SettingsOutcome::Missing) {
    return std::nullopt;
  }
  if (LoadSettingsFile(disk, messages, SettingsFileOption, commandLine, settings) ==
      SettingsOutcome::Missing) {
    return std::nullopt;
  }
  NoteReplacedFiles(messages, named, settings.controls.filesToCheck);
  ApplyOptions(disk, options, settings);
  NoteUnusedDictionary(messages, settings.controls);
  return settings;
}

int Main(const std::vector<std::string>& arguments) {
  CLI::App app("Checks AGS 3 and AGS 4 data files and prints the report.", "quorvane-check");
  Options options;
  Describe(app, options);
  const SortedArguments sorted = SortArguments(arguments);
  try {
    app.parse(std::vector<std::string>(sorted.others.rbegin(), sorted.others.rend()));
    RefuseContradiction(app);
    RefuseTwoLogs(options);
  } catch (const CLI::ParseError& outcome) {
    return app.exit(outcome) == 0 ? 0 : NothingDone;
  }
  SystemDisk disk;
  SystemEnvironment environment;
  const std::optional<RunSettings> settings =
      SettingsOf(disk, options, SplitCommandLine(sorted.forOptionWords));
  if (!settings) return NothingDone;
  if (options.whichEdition) {
    return ListEditionsOnConsole(disk, environment, settings->controls.filesToCheck);
  }
  return CheckOnConsole(disk, environment, *settings, LogOutput::StandardOutput,
                        FindingsOutputOf(options));
}

}  // namespace
}  // namespace quorvane

int main(int argc, char** argv) {
  quorvane::PrepareStandardStreams();
  try {
    return quorvane::Main(quorvane::ProgramArguments(argc, argv));
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "Quorvane Error: %s\n", failure.what());
    return quorvane::NothingDone;
  }
}
