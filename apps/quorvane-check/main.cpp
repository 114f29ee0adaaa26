#include <algorithm>
#include <cstdio>
#include <exception>
#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "findings/findings_format.h"
#include "options.h"
#include "run/check_file.h"
#include "run/data_files.h"
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

/// What the program has been asked for.
struct Request {
  RunSettings settings;
  DeliveryOptions delivery;
  bool lacksFiles = false;  // a folder could not be listed
};

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
  if (options.format == TextFormat && options.NamesOutputFile())
    settings.logFile = PathToWrite(options.outputFile);
}

/// Where findings go as data; nothing when only the text is wanted.
std::optional<FindingsOutput> FindingsOutputOf(const Options& options) {
  const std::optional<FindingsFormat> format = FindingsFormatNamed(options.format);
  if (!format) return std::nullopt;
  return FindingsOutput{*format, options.NamesOutputFile() ? PathToWrite(options.outputFile) : ""};
}

/// The files and folders that the command line names.
std::vector<std::string> NamedPaths(Disk& disk, const Options& options,
                                    const CommandLine& commandLine) {
  std::vector<std::string> paths = options.files;
  paths.insert(paths.end(), commandLine.dataFiles.begin(), commandLine.dataFiles.end());
  for (std::string& path : paths) {
    path = PathToRead(disk, path);
  }
  return paths;
}

/// Applies the settings files that are named in either way; false when one is missing.
bool ApplySettingsFiles(Disk& disk, UserMessages& messages, const Options& options,
                        const CommandLine& commandLine, RunSettings& settings) {
  const bool lacksOwn =
      !options.settingsFile.empty() &&
      ApplySettingsFile(disk, messages, options.settingsFile, settings) == SettingsOutcome::Missing;
  return !lacksOwn && LoadSettingsFile(disk, messages, SettingsFileOption, commandLine, settings) !=
                          SettingsOutcome::Missing;
}

/// Puts the files below each folder in the folder's place.
void ListFolders(Disk& disk, UserMessages& messages, const std::vector<std::string>& paths,
                 Request& request) {
  const DataFiles found = FindDataFiles(disk, messages, paths);
  request.settings.controls.filesToCheck = Join(found.paths, LineBreak);
  request.lacksFiles = !found.isComplete;
}

/// What the console program is to do; nothing when a settings file is missing.
std::optional<Request> RequestOf(Disk& disk, const Options& options,
                                 const CommandLine& commandLine) {
  ConsoleMessages messages;
  const std::vector<std::string> paths = NamedPaths(disk, options, commandLine);
  const std::string named = Join(paths, LineBreak);
  Request request;
  CheckSettings& controls = request.settings.controls;
  controls.filesToCheck = named;
  if (!ApplySettingsFiles(disk, messages, options, commandLine, request.settings))
    return std::nullopt;
  NoteReplacedFiles(messages, named, controls.filesToCheck);
  ApplyOptions(disk, options, request.settings);
  NoteUnusedDictionary(messages, controls);
  // A list of a settings file names the files themselves.
  if (controls.filesToCheck == named) ListFolders(disk, messages, paths, request);
  request.delivery = options.delivery;
  for (std::string* path : {&request.delivery.baseline, &request.delivery.waivers})
    *path = PathToRead(disk, *path);
  return request;
}

int Main(const std::vector<std::string>& arguments) {
  CLI::App app("Checks AGS 3 and AGS 4 data files and prints the report.", "quorvane-check");
  Options options;
  DescribeOptions(app, options);
  const SortedArguments sorted = SortArguments(arguments);
  try {
    app.parse(std::vector<std::string>(sorted.others.rbegin(), sorted.others.rend()));
    RefuseContradictions(app, options);
  } catch (const CLI::ParseError& outcome) {
    return app.exit(outcome) == 0 ? 0 : NothingDone;
  }
  SystemDisk disk;
  SystemEnvironment environment;
  const std::optional<Request> request =
      RequestOf(disk, options, SplitCommandLine(sorted.forOptionWords));
  if (!request) return NothingDone;
  const int status =
      options.whichEdition
          ? ListEditionsOnConsole(disk, environment, request->settings.controls.filesToCheck)
          : CheckOnConsole(
                disk, environment, request->settings,
                {LogOutput::StandardOutput, FindingsOutputOf(options), request->delivery});
  return request->lacksFiles ? std::max(status, static_cast<int>(CheckStatus::HasErrors)) : status;
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
