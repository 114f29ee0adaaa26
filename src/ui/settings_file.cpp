#include "ui/settings_file.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>
#include <vector>

#include "text/comma_list.h"
#include "text/text.h"
#include "ui/written_path.h"

namespace quorvane {
namespace {

constexpr std::string_view BoxTitle = "Settings File Command Line";
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view BlockStart = "<ARRAY>";
constexpr std::string_view BlockEnd = "</ARRAY>";

struct SettingsKey {
  std::string_view name;
  void (*apply)(RunSettings& settings, std::string_view value);
};

using Value = std::string_view;
constexpr std::array Keys{
    SettingsKey{"FILESTOCHECK", [](RunSettings& s, Value v) { s.controls.filesToCheck = v; }},
    SettingsKey{
        "MESGLIST_SCANGROUPINGS",
        [](RunSettings& s, Value v) { s.controls.listings.scanGroupings = TextToTruth(v); }},
    SettingsKey{
        "MESGLIST_LINENUMBERINFILE",
        [](RunSettings& s, Value v) { s.controls.listings.lineNumberInFile = TextToTruth(v); }},
    SettingsKey{"MESGLIST_SEVERITY",
                [](RunSettings& s, Value v) { s.controls.listings.severity = TextToTruth(v); }},
    SettingsKey{"SUPPRESSFYIMESGS",
                [](RunSettings& s, Value v) { s.controls.suppressFyi = TextToTruth(v); }},
    SettingsKey{"SHOWDATASTATS",
                [](RunSettings& s, Value v) { s.controls.showStatistics = TextToTruth(v); }},
    SettingsKey{"CUSTOMDICTIONARY",
                [](RunSettings& s, Value v) { s.controls.customDictionary = v; }},
    SettingsKey{"LOGFILE", [](RunSettings& s, Value v) { s.logFile = Without(v, '"'); }}};

void ApplyKey(std::string_view key, std::string_view value, RunSettings& settings) {
  const auto found = std::find_if(Keys.begin(), Keys.end(), [key](const SettingsKey& known) {
    return EqualsIgnoringCase(known.name, key);
  });
  if (found != Keys.end()) found->apply(settings, value);
}

/// Takes the lines of a settings file one after the other.
class SettingsReader {
 public:
  explicit SettingsReader(RunSettings& settings) : settings_(settings) {}

  void ReadLine(std::string_view line) {
    if (line.empty()) return;
    if (blockKey_) {
      ReadBlockLine(line);
    } else if (const std::size_t sign = line.find('='); sign != std::string_view::npos) {
      ReadKeyLine(Trim(line.substr(0, sign)), Trim(line.substr(sign + 1)));
    }
  }

 private:
  void ReadBlockLine(std::string_view line) {
    if (!EqualsIgnoringCase(line, BlockEnd)) {
      entries_.push_back(line);
      return;
    }
    ApplyKey(*blockKey_, Join(entries_, LineBreak), settings_);
    blockKey_.reset();
    entries_.clear();
  }

  void ReadKeyLine(std::string_view key, std::string_view value) {
    if (StartsWithIgnoringCase(value, BlockStart)) {
      blockKey_ = key;
    } else {
      ApplyKey(key, value, settings_);
    }
  }

  RunSettings& settings_;
  std::optional<std::string_view> blockKey_;  // of the open block
  std::vector<std::string_view> entries_;     // of the open block
};

void FindPaths(Disk& disk, RunSettings& settings) {
  std::vector<std::string> files;
  for (const std::string_view file : Split(settings.controls.filesToCheck, LineBreak)) {
    files.push_back(PathToRead(disk, std::string(file)));
  }
  settings.controls.filesToCheck = Join(files, LineBreak);
  settings.controls.customDictionary = PathToRead(disk, settings.controls.customDictionary);
  settings.logFile = PathToWrite(settings.logFile);
}

SettingsOutcome RefuseFile(UserMessages& messages, const std::string& path,
                           const std::string& reason) {
  messages.ShowBox(BoxTitle, "Settings file '" + path + "' " + reason, BoxKind::Critical);
  return SettingsOutcome::Missing;
}

}  // namespace

void ApplySettings(std::string_view text, RunSettings& settings) {
  if (text.starts_with(ByteOrderMark)) text.remove_prefix(ByteOrderMark.size());
  ListingChoice& listings = settings.controls.listings;
  listings = {false, false, false};
  SettingsReader reader(settings);
  for (const std::string_view line : SplitLines(text)) {
    reader.ReadLine(Trim(line));
  }
  if (!listings.Any()) listings.scanGroupings = true;
}

SettingsOutcome ApplySettingsFile(Disk& disk, UserMessages& messages, const std::string& path,
                                  RunSettings& settings) {
  const std::string pathInUse = PathToRead(disk, path);
  if (!disk.Examine(pathInUse).exists) return RefuseFile(messages, path, "does not exist.");
  const Disk::Reading reading = disk.Read(pathInUse);
  if (reading.failure) {
    return RefuseFile(messages, path, "cannot be read: " + reading.failure->description);
  }
  ApplySettings(reading.content.View(), settings);
  FindPaths(disk, settings);
  return SettingsOutcome::Applied;
}

SettingsOutcome LoadSettingsFile(Disk& disk, UserMessages& messages, std::string_view option,
                                 const CommandLine& commandLine, RunSettings& settings) {
  RunSettings applied = settings;
  SettingsOutcome outcome = SettingsOutcome::NotNamed;
  for (const std::string& piece : commandLine.pieces) {
    if (FindIgnoringCase(piece, option) == std::string::npos) continue;
    const std::vector<std::string_view> parts = Split(piece, "=");
    if (parts.size() != 2) {
      messages.Note("/" + piece + ": ignored, as it does not have exactly one \"=\"");
      return SettingsOutcome::NotApplied;
    }
    const std::string path(Trim(Without(parts[1], '"')));
    outcome = ApplySettingsFile(disk, messages, path, applied);
    if (outcome != SettingsOutcome::Applied) return outcome;
  }
  settings = std::move(applied);
  return outcome;
}

}  // namespace quorvane
