#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "text/comma_list.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// The folders of src and those that each may include, besides itself. A folder that is not here
/// has to be put where it belongs.
const std::map<std::string, std::set<std::string>> MayInclude{
    {"text", {}},
    {"report", {"text"}},
    {"parse", {"text", "report"}},
    {"dictionary", {"text", "report", "parse"}},
    {"rules", {"text", "report", "parse", "dictionary"}},
    {"statistics", {"text", "report", "parse", "dictionary"}},
    {"run", {"text", "report", "parse", "dictionary", "rules", "statistics"}},
    {"findings", {"text", "report", "parse", "dictionary", "rules", "statistics", "run"}},
    {"ui", {"text", "report", "parse", "dictionary", "rules", "statistics", "run", "findings"}}};

/// The one header of rules that every rule family may include.
constexpr std::string_view CommonRulesHeader = "rules/checked_file.h";

/// A rule family is NAME.h, the sources behind it and NAME_messages.*. Files of a family that are
/// named otherwise stand here, with their family.
const std::map<std::string, std::string> FamilyOfFile{
    {"abbreviation_codes", "abbreviations"},
    {"abbreviation_messages", "abbreviations"},
    {"contaminant_code_messages", "contaminant_codes"},
    {"file_set_messages", "file_sets"},
    {"key_headings", "keys"},
    {"key_messages", "keys"},
    {"key_order", "keys"},
    {"key_text", "keys"},
    {"name_messages", "names"},
    {"parent_keys", "keys"},
    {"record_links", "types"},
    {"repeated_keys", "keys"},
    {"type_columns", "types"},
    {"type_messages", "types"},
    {"unit_messages", "units"}};

std::string FamilyOf(const std::string& path) {
  const std::string stem = fs::path(path).stem().string();
  if (const auto listed = FamilyOfFile.find(stem); listed != FamilyOfFile.end()) {
    return listed->second;
  }
  constexpr std::string_view messages = "_messages";
  return stem.ends_with(messages) ? stem.substr(0, stem.size() - messages.size()) : stem;
}

std::string FolderOf(const std::string& path) {
  return path.substr(0, path.find('/'));
}

/// The name of the header in an #include line, with its quotes or angle brackets; empty for any
/// other line.
std::string_view IncludedHeader(std::string_view line) {
  line = Trim(line);
  if (!line.starts_with('#')) return {};
  line = Trim(line.substr(1));
  constexpr std::string_view directive = "include";
  if (!line.starts_with(directive)) return {};
  line = Trim(line.substr(directive.size()));
  const std::size_t end = line.find_first_of("\">", 1);
  return end == std::string_view::npos ? std::string_view() : line.substr(0, end + 1);
}

bool IsOfOtherLibrary(std::string_view header) {
  const bool isQt = header.starts_with('Q') && header.size() > 1 &&
                    (header[1] == 't' || header.substr(1, 1) == UpperCase(header.substr(1, 1)));
  return isQt || header.starts_with("CLI/") || header.starts_with("CLI11");
}

/// The one library beside the standard one that the core uses, and only to write and read data.
bool IsOfJsonLibrary(std::string_view header) {
  return header.starts_with("nlohmann/");
}

/// Why a file of src, named by its path from there, must not include a header; empty when it may.
std::string Objection(const std::string& path, std::string_view quotedHeader) {
  const std::string header(quotedHeader.substr(1, quotedHeader.size() - 2));
  const std::string folder = FolderOf(path);
  if (folder != "ui" && IsOfOtherLibrary(header)) return "the core needs the standard library only";
  if (folder != "findings" && IsOfJsonLibrary(header)) return "JSON belongs to findings";
  if (quotedHeader.starts_with('<')) return {};
  if (header.find('/') == std::string::npos) return "headers are named with their folder";

  const std::string target = FolderOf(header);
  if (target != folder) {
    return MayInclude.at(folder).contains(target) ? "" : folder + " must not include " + target;
  }
  const bool isOtherFamily =
      folder == "rules" && header != CommonRulesHeader && FamilyOf(path) != FamilyOf(header);
  return isOtherFamily ? "rule families must not include one another" : "";
}

/// The objectionable includes of a file, with the reasons.
std::vector<std::string> Objections(const std::string& path, std::string_view content) {
  if (!MayInclude.contains(FolderOf(path))) return {path + ": folder with no place in the order"};
  std::vector<std::string> found;
  for (const std::string_view line : SplitLines(content)) {
    const std::string_view header = IncludedHeader(line);
    if (header.empty()) continue;
    const std::string objection = Objection(path, header);
    if (objection.empty()) continue;
    found.push_back(Join(std::vector<std::string_view>{path, header, objection}, ": "));
  }
  return found;
}

fs::path SourceFolder() {
  return fs::path(QUORVANE_SOURCE_FOLDER) / "src";
}

/// All C++ files under src, by their path from there.
std::vector<std::string> SourceFiles() {
  std::vector<std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(SourceFolder())) {
    const std::string extension = entry.path().extension().string();
    if (extension != ".h" && extension != ".cpp") continue;
    files.push_back(fs::relative(entry.path(), SourceFolder()).generic_string());
  }
  std::sort(files.begin(), files.end());
  return files;
}

std::string ContentOf(const std::string& path) {
  std::ifstream file(SourceFolder() / path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(IncludeDirection, IsFollowedByEveryFile) {
  for (const std::string& path : SourceFiles()) {
    EXPECT_THAT(Objections(path, ContentOf(path)), IsEmpty());
  }
}

TEST(IncludeDirection, IsAskedOfAllFolders) {
  std::map<std::string, int> filesPerFolder;
  int includeCount = 0;
  for (const std::string& path : SourceFiles()) {
    ++filesPerFolder[FolderOf(path)];
    const std::string content = ContentOf(path);
    for (const std::string_view line : SplitLines(content)) {
      if (!IncludedHeader(line).empty()) ++includeCount;
    }
  }
  for (const std::string folder : {"text", "report", "parse", "dictionary", "rules", "run"}) {
    EXPECT_GE(filesPerFolder[folder], 2) << folder;
  }
  EXPECT_GT(includeCount, 200);
}

TEST(IncludeDirection, ListsNoFamilyFilesThatAreGone) {
  const std::vector<std::string> files = SourceFiles();
  for (const auto& [stem, family] : FamilyOfFile) {
    const std::string source = "rules/" + stem + ".cpp";
    EXPECT_NE(std::find(files.begin(), files.end(), source), files.end()) << source;
    EXPECT_NE(std::find(files.begin(), files.end(), "rules/" + family + ".h"), files.end())
        << family;
  }
}

// What the scan above finds.

TEST(IncludeDirection, RunsFromTheFoldersAboveToThoseBelow) {
  const std::vector<std::string> order{"text",  "report",     "parse", "dictionary",
                                       "rules", "statistics", "run",   "ui"};
  for (std::size_t from = 0; from < order.size(); ++from) {
    for (std::size_t to = 0; to < order.size(); ++to) {
      if (from == to) continue;
      const bool isBeside = order[from] == "statistics" && order[to] == "rules";
      const std::string line = "#include \"" + order[to] + "/header.h\"\n";
      EXPECT_EQ(Objections(order[from] + "/file.cpp", line).empty(), to < from && !isBeside)
          << order[from] << " includes " << order[to];
    }
  }
}

TEST(IncludeDirection, LetsAFolderIncludeItself) {
  EXPECT_THAT(Objections("run/check_run.cpp", "#include \"run/environment.h\"\n"), IsEmpty());
}

TEST(IncludeDirection, KeepsRuleFamiliesApart) {
  EXPECT_THAT(Objections("rules/keys.cpp", "#include \"rules/names.h\"\n"),
              ElementsAre("rules/keys.cpp: \"rules/names.h\": rule families must not include one "
                          "another"));
  EXPECT_THAT(Objections("rules/keys.cpp", "#include \"rules/name_messages.h\"\n"), SizeIs(1));
  EXPECT_THAT(Objections("rules/checked_file.h", "#include \"rules/keys.h\"\n"), SizeIs(1));
  EXPECT_THAT(Objections("rules/new_rules.cpp", "#include \"rules/required_content.h\"\n"),
              SizeIs(1));
}

TEST(IncludeDirection, LetsAFamilyIncludeItsOwnFilesAndTheCheckedFile) {
  EXPECT_THAT(Objections("rules/key_headings.cpp",
                         "#include \"rules/keys.h\"\n"
                         "#include \"rules/key_messages.h\"\n"
                         "#include \"rules/checked_file.h\"\n"),
              IsEmpty());
  EXPECT_THAT(
      Objections("rules/new_rules.cpp",
                 "#include \"rules/new_rules.h\"\n#include \"rules/new_rules_messages.h\"\n"),
      IsEmpty());
}

TEST(IncludeDirection, KeepsOtherLibrariesOutOfTheCore) {
  for (const std::string header : {"<QString>", "<QtWidgets/QDialog>", "<QtCore>", "\"QString\"",
                                   "<CLI/CLI.hpp>", "\"CLI/App.hpp\"", "<CLI11.hpp>"}) {
    const std::string line = "#include " + header + "\n";
    EXPECT_THAT(Objections("run/file.cpp", line), SizeIs(1)) << header;
    EXPECT_THAT(Objections("text/file.h", "#pragma once\n\n" + line), SizeIs(1)) << header;
  }
  EXPECT_THAT(Objections("ui/main_window.cpp", "#include <QMainWindow>\n"), IsEmpty());
  EXPECT_THAT(Objections("text/file.h", "#include <string>\n#include <queue>\n"), IsEmpty());
}

TEST(IncludeDirection, KeepsJsonInFindings) {
  for (const std::string header : {"<nlohmann/json.hpp>", "<nlohmann/json_fwd.hpp>"}) {
    const std::string line = "#include " + header + "\n";
    EXPECT_THAT(Objections("findings/file.cpp", line), IsEmpty()) << header;
    EXPECT_THAT(Objections("run/file.cpp", line), SizeIs(1)) << header;
    EXPECT_THAT(Objections("ui/file.cpp", line), SizeIs(1)) << header;
  }
}

TEST(IncludeDirection, WantsHeadersNamedWithTheirFolder) {
  EXPECT_THAT(Objections("run/check_run.cpp", "#include \"check_run.h\"\n"), SizeIs(1));
  EXPECT_THAT(Objections("run/check_run.cpp", "#include \"../run/check_run.h\"\n"), SizeIs(1));
}

TEST(IncludeDirection, WantsEveryFolderInTheOrder) {
  EXPECT_THAT(Objections("helpers/file.cpp", ""), SizeIs(1));
}

TEST(IncludeDirection, ReadsIncludeLinesHoweverTheyAreWritten) {
  EXPECT_EQ(IncludedHeader("#include \"run/a.h\""), "\"run/a.h\"");
  EXPECT_EQ(IncludedHeader("  #  include   <string>  // why"), "<string>");
  EXPECT_EQ(IncludedHeader("#include<string>"), "<string>");
  EXPECT_EQ(IncludedHeader("// #include \"run/a.h\""), "");
  EXPECT_EQ(IncludedHeader("int included = 0;"), "");
  EXPECT_THAT(Objections("text/a.cpp", "#include <string>\r\n#  include \"run/a.h\"\r\n"),
              SizeIs(1));
}

}  // namespace
}  // namespace quorvane::test
