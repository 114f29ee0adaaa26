#include <algorithm>
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#endif

#include <CLI/CLI.hpp>

#include "console.h"
#include "dictionary/parent_choice.h"
#include "report/log_file.h"
#include "run/check_run.h"
#include "run/system_disk.h"
#include "run/system_environment.h"
#include "text/comma_list.h"
#include "text/text.h"

namespace quorvane {
namespace {

constexpr int NothingDone = static_cast<int>(CheckStatus::NotDone);

struct Options {
  std::vector<std::string> files;
  std::string dictionary;
  std::vector<std::string> listings;
  bool noFyi = false;
  bool statistics = false;
  std::string settingsFile;
  std::string logFile;
};

void Describe(CLI::App& app, Options& options) {
  app.set_version_flag("--version", "quorvane-check " + std::string(ProgramVersion));
  app.add_option("FILE", options.files, "AGS 3 and AGS 4 data files");
  app.add_option("--dictionary", options.dictionary, "Check against this schema file")
      ->type_name("SCHEMA");
  app.add_option("--list", options.listings,
                 "Listings wanted: groups, lines, severity (separated by commas; default groups)")
      ->delimiter(',')
      ->allow_extra_args(false)
      ->check(CLI::IsMember({"groups", "lines", "severity"}))
      ->type_name("LISTING,...");
  app.add_flag("--no-fyi", options.noFyi, "Suppress FYI (for your information only) messages");
  app.add_flag("--statistics", options.statistics, "Show data statistics");
  app.add_option("--settings", options.settingsFile, "Take everything from a settings file")
      ->type_name("FILE");
  app.add_option("--log", options.logFile, "Write the log to this file too")->type_name("FILE");
  app.footer(
      "Exit status: 0 no errors found, 1 errors found or a file that could not be checked,\n"
      "2 the check could not be made (no files, no usable dictionary, log not written).");
}

bool Wants(const Options& options, std::string_view listing) {
  return std::find(options.listings.begin(), options.listings.end(), listing) !=
         options.listings.end();
}

CheckSettings SettingsOf(const Options& options) {
  CheckSettings settings;
  settings.filesToCheck = Join(options.files, LineBreak);
  if (!options.listings.empty()) {
    settings.listings = {Wants(options, "groups"), Wants(options, "lines"),
                         Wants(options, "severity")};
  }
  settings.suppressFyi = options.noFyi;
  settings.showStatistics = options.statistics;
  settings.useCustomDictionary = !options.dictionary.empty();
  settings.customDictionary = options.dictionary;
  return settings;
}

int Check(const Options& options) {
  SystemDisk disk;
  SystemEnvironment environment;
  Console console(SettingsOf(options));
  UnattendedParentChoice parentChoice(console);
  CheckRun run(Services{disk, environment, console, console, console, parentChoice});
  int status = static_cast<int>(run.ExecuteChecking());
  if (run.LogText().empty()) return status;
  std::fputs("\n", stdout);
  if (!options.logFile.empty() && SaveLogFile(disk, console, options.logFile, run.LogText())) {
    status = std::max(status, NothingDone);
  }
  return status;
}

/// An option that is described but cannot be used in this version; empty when there is none.
std::string UnavailableOption(const Options& options) {
  if (!options.settingsFile.empty()) return "--settings";
  return {};
}

int Main(int argc, char** argv) {
  CLI::App app("Checks AGS 3 and AGS 4 data files and prints the report.", "quorvane-check");
  Options options;
  Describe(app, options);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& outcome) {
    return app.exit(outcome) == 0 ? 0 : NothingDone;
  }
  if (const std::string option = UnavailableOption(options); !option.empty()) {
    std::fprintf(stderr, "%s is not available in this version.\n", option.c_str());
    return NothingDone;
  }
  return Check(options);
}

}  // namespace
}  // namespace quorvane

int main(int argc, char** argv) {
#if defined(_WIN32)
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stderr), _O_BINARY);
#endif
  try {
    return quorvane::Main(argc, argv);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "Quorvane Error: %s\n", failure.what());
    return quorvane::NothingDone;
  }
}
