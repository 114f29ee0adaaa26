// What must hold for a report whatever bytes come in.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/check_text.h"
#include "text/comma_list.h"
#include "text/number.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> Seeds() {
  std::vector<fs::path> paths;
  for (const auto& entry :
       fs::recursive_directory_iterator(fs::path(QUORVANE_SOURCE_FOLDER) / "tests/golden")) {
    if (entry.path().extension() == ".ags") paths.push_back(entry.path());
  }
  std::sort(paths.begin(), paths.end());
  std::vector<std::string> seeds;
  for (const fs::path& path : paths) {
    std::ifstream file(path, std::ios::binary);
    seeds.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  return seeds;
}

/// Changes a file in a few places, with the tokens that mean something to the format among the
/// changes.
std::string Spoil(std::string text, std::mt19937& random) {
  static const std::vector<std::string> tokens{
      "\"",        ",",        "\"\"", "\",\"",        "\r\n",     "\n",         "\r",
      "\"GROUP\"", "\"DATA\"", "\"**", "<CONT>",       "<UNITS>",  "*",          "?",
      " ",         "\xB5",     "\t",   "\"HEADING\",", "\"TYPE\"", "4.0.4",      "#`~#",
      "\"UNIT\"",  "|",        "+",    "1e9",          "\r\n\r\n", "\"**DICT\"", "KEY"};
  const int changes = 1 + static_cast<int>(random() % 12);
  for (int change = 0; change < changes && !text.empty(); ++change) {
    const std::size_t at = random() % text.size();
    const std::size_t length = std::min<std::size_t>(random() % 60, text.size() - at);
    switch (random() % 4) {
      case 0:
        text.erase(at, length);
        break;
      case 1:
        text.insert(at, tokens[random() % tokens.size()]);
        break;
      case 2:
        text[at] = static_cast<char>(random() % 256);
        break;
      default:
        text.insert(random() % text.size(), text.substr(at, length));
    }
  }
  return text;
}

using LineCounts = std::map<std::string, int, std::less<>>;

/// The three listings of a log, each as the number of times that a line stands in it.
struct Listings {
  std::vector<std::string_view> grouped;
  std::vector<std::string_view> byLine;
  std::vector<std::string_view> bySeverity;
};

Listings ReadListings(std::string_view log) {
  Listings listings;
  std::vector<std::string_view>* current = nullptr;
  for (const std::string_view line : Split(log, LineBreak)) {
    if (line.starts_with("SUMMARY:  ")) {
      current = &listings.grouped;
    } else if (line == "MESSAGES SORTED BY LINE NUMBER:") {
      current = &listings.byLine;
    } else if (line == "MESSAGES SORTED BY SEVERITY:") {
      current = &listings.bySeverity;
    } else if (line == "Could not continue with further checking." ||
               line == std::string(39, '*')) {
      current = nullptr;
    } else if (current != nullptr && !line.empty() && line != std::string(20, '*')) {
      current->push_back(line);
    }
  }
  return listings;
}

LineCounts Count(const std::vector<std::string_view>& lines) {
  LineCounts counts;
  for (const std::string_view line : lines)
    ++counts[std::string(line)];
  return counts;
}

/// The grouped listing's lines as the sorted ones have them: without indent and section titles.
LineCounts CountGrouped(const std::vector<std::string_view>& lines, const LineCounts& sorted) {
  LineCounts counts;
  for (const std::string_view line : lines) {
    const std::string_view unindented = line.starts_with("  ") ? line.substr(2) : line;
    if (sorted.contains(unindented)) {
      ++counts[std::string(unindented)];
    } else if (sorted.contains(line)) {
      ++counts[std::string(line)];
    }
  }
  return counts;
}

bool StartsFinding(std::string_view line) {
  return line.starts_with("ERROR: ") || line.starts_with("WARNING: ") ||
         line.starts_with("FYI: ") || line.starts_with("No further checks for high");
}

std::int64_t NumberBehind(std::string_view text, std::string_view what) {
  const std::size_t found = text.find(what);
  if (found == std::string_view::npos) return -1;
  return WholeNumberValue(Without(text.substr(found + what.size(), 20), ','));
}

/// The greatest line number that a finding names.
std::int64_t GreatestLine(const std::vector<std::string_view>& lines) {
  std::int64_t greatest = 0;
  for (const std::string_view line : lines) {
    const std::size_t label = line.find(": Line ");
    if (StartsFinding(line) && label <= 7) {
      greatest = std::max(greatest, WholeNumberValue(line.substr(label + 7)));
    }
  }
  return greatest;
}

TEST(AnyInput, GetsAReportThatHoldsTogether) {
  std::mt19937 random(20261120);
  const std::vector<std::string> seeds = Seeds();
  ASSERT_FALSE(seeds.empty());
  CheckSettings settings;
  settings.listings = {true, true, true};
  settings.showStatistics = true;
  int reportsWithListings = 0;
  for (int round = 0; round < 600; ++round) {
    const std::string text = Spoil(seeds[random() % seeds.size()], random);
    const CheckResult result = CheckFiles({{"test.ags", text}}, settings);
    EXPECT_EQ(result.boxes, std::vector<std::string>{}) << round;
    EXPECT_TRUE(result.log.ends_with(std::string(39, '*') + "\r\n\r\n")) << round;
    const Listings listings = ReadListings(result.log);
    if (listings.byLine.empty()) continue;

    ++reportsWithListings;
    EXPECT_LE(GreatestLine(listings.byLine), NumberBehind(result.log, "Number of Lines:  "))
        << round;
    const LineCounts byLine = Count(listings.byLine);
    EXPECT_EQ(Count(listings.bySeverity), byLine) << round;
    EXPECT_EQ(CountGrouped(listings.grouped, byLine), byLine) << round;
    const auto findings =
        std::count_if(listings.byLine.begin(), listings.byLine.end(), StartsFinding);
    EXPECT_EQ(NumberBehind(result.log, "SUMMARY:  "), findings) << round;
  }
  EXPECT_GT(reportsWithListings, 100);
}

TEST(AnyInput, OfRandomBytesIsNoAgsFileOrIsChecked) {
  std::mt19937 random(5);
  for (int round = 0; round < 80; ++round) {
    std::string text;
    const std::size_t length = random() % 2000;
    for (std::size_t at = 0; at < length; ++at)
      text += static_cast<char>(random() % 256);
    for (const char* start : {"", "\"**PROJ\"\r\n", "\"UNIT\"\r\n\"TYPE\"\r\n"}) {
      const CheckResult result = CheckFiles({{"test.ags", start + text}});
      EXPECT_EQ(result.boxes, std::vector<std::string>{}) << round;
      EXPECT_TRUE(result.log.ends_with("*\r\n\r\n")) << round;
    }
  }
}

}  // namespace
}  // namespace quorvane::test
