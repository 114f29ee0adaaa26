// What is read in whole blocks or with short cuts at the start of a file, beside plain twins.

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "run/message_log_fixture.h"
#include "run/row_order.h"
#include "run/version_detection.h"
#include "support/random_text.h"

namespace quorvane::test {
namespace {

constexpr std::array<std::string_view, 26> Pieces{
    "\"GROUP\"", "\"HEADING\"", "\"UNIT\"", "\"TYPE\"", "\"DATA\"", "\"DATA\",", "\"DATA\",",
    "GROUP",     "UNIT",        "type",     "\"unit\"", "\"",       ",",         "\n",
    "\n",        "\n",          " ",        "\"\"",     "\"**",     "\"4.0.4\"", "TRAN_AGS",
    "4.0.",      "\xE4",        "\t",       "\x7F",     "HEADING"};

/// A file in which row labels stand in order now and then.
std::string RandomFile(RandomText& random) {
  constexpr std::array<std::string_view, 5> labels{"\"GROUP\",", "\"HEADING\",", "\"UNIT\",",
                                                   "\"TYPE\",", "\"DATA\","};
  std::string text;
  for (std::size_t round = random.Below(6); round > 0; --round) {
    if (random.OneIn(3)) {
      text += random.Joined(Pieces, random.Below(20));
      continue;
    }
    for (const std::string_view label : labels) {
      if (random.OneIn(15)) continue;
      text.append(label).append("\"x\"").append(random.Joined(Pieces, random.Below(3)));
      text += "\n";
    }
  }
  return text;
}

std::vector<std::string> LinesOf(const FileText& file) {
  std::vector<std::string> lines;
  for (std::int32_t number = 1; number <= file.LineCount(); ++number) {
    lines.emplace_back(file.Line(number));
  }
  return lines;
}

/// The message about row labels, step by step; empty when there is none.
std::string LabelProblemsPlainly(const std::vector<std::string>& lines) {
  const std::vector<std::string> labels{"GROUP", "HEADING", "UNIT", "TYPE", "DATA"};
  std::string problems;
  std::size_t state = 0;  // the label that is expected
  for (std::size_t index = 0; index < lines.size(); ++index) {
    const std::string& line = lines[index];
    const std::string place = ", line " + std::to_string(index + 1);
    if (Without(Without(Without(line, ','), '"'), ' ').empty()) continue;
    const std::string label = Without(line.substr(0, line.find(',')), '"');
    const auto known = std::find(labels.begin(), labels.end(), label);
    if (known == labels.end()) {
      problems += "\r\nUnknown row label (" + label + ")" + place + " (Rule 3)";
      continue;
    }
    const auto which = static_cast<std::size_t>(known - labels.begin());
    const bool isInOrder = which == state || (which == 0 && state == 4);
    if (!isInOrder) {
      problems += "\r\nRow label '" + label + "' out of order" + place + " (Rule 2b)";
    }
    state = which == 4 ? 4 : which + 1;
  }
  return problems;
}

TEST(RowLabels, AgreeWithTheirPlainTwin) {
  RandomText random(61);
  int withProblems = 0;
  int without = 0;
  for (int round = 0; round < 4000; ++round) {
    const FileText file = TextOf(RandomFile(random));
    const std::string problems = LabelProblemsPlainly(LinesOf(file));
    LoggedFile logged(AgsFormat::Ags4);
    ASSERT_EQ(CheckRowLabels(file, logged.log), !problems.empty()) << file.Whole();
    ASSERT_EQ(logged.log.ClosedCount(), problems.empty() ? 0U : 1U);
    if (problems.empty()) {
      ++without;
      continue;
    }
    ++withProblems;
    ASSERT_TRUE(logged.log.ClosedFinding(0).text.ends_with(problems)) << file.Whole();
  }
  EXPECT_GT(withProblems, 500);
  EXPECT_GT(without, 500);
}

TEST(LowHighAscii, AgreesWithItsPlainTwin) {
  RandomText random(62);
  for (int round = 0; round < 2000; ++round) {
    std::string text;
    for (std::size_t count = random.Below(200); count > 0; --count) {
      const bool isOdd = random.OneIn(round % 2 == 0 ? 150 : 8);
      text += isOdd ? static_cast<char>(random.Below(256)) : static_cast<char>('A' + count % 40);
    }
    const FileText file{ByteBuffer(text)};
    std::vector<std::string> expected;
    for (std::int32_t number = 1; number <= file.LineCount(); ++number) {
      std::size_t position = 0;
      for (const char character : file.Line(number)) {
        ++position;
        const int code = static_cast<unsigned char>(character);
        if ((code >= 32 && code <= 127) || expected.size() >= 20) continue;
        expected.push_back("ERROR: Line " + std::to_string(number) + " - character position " +
                           std::to_string(position));
      }
    }
    LoggedFile logged(AgsFormat::Ags3);
    CheckLowHighAscii(file, logged.log);
    std::vector<std::string> findings = logged.Findings();
    if (expected.size() == 20) {
      ASSERT_FALSE(findings.empty());
      findings.pop_back();  // the notice that the search has ended
    }
    ASSERT_EQ(findings, expected) << testing::PrintToString(text);
  }
}

std::optional<DetectedVersion> DetectPlainly(const FileText& file) {
  const auto anyLineBegins = [&file](const std::string& start) {
    const std::vector<std::string> lines = LinesOf(file);
    return std::any_of(lines.begin(), lines.end(), [&start](const std::string& line) {
      return UpperCase(line).substr(0, start.size()) == start;
    });
  };
  const bool isQuoted = anyLineBegins("\"UNIT\"") && anyLineBegins("\"TYPE\"");
  const bool isBare = anyLineBegins("UNIT") && anyLineBegins("TYPE");
  if (isQuoted || isBare) {
    const std::string text(file.Whole());
    const std::size_t tranAgs = text.find("TRAN_AGS");
    const bool is404 =
        tranAgs != std::string::npos && text.find("\"4.0.4\"", tranAgs) != std::string::npos;
    return DetectedVersion{AgsFormat::Ags4, is404};
  }
  if (anyLineBegins("\"**") || anyLineBegins("**")) return DetectedVersion{AgsFormat::Ags3, false};
  return std::nullopt;
}

TEST(VersionDetection, AgreesWithItsPlainTwin) {
  RandomText random(63);
  std::array<int, 4> outcomes{};  // none, AGS 3, AGS 4, edition 4.0.4
  for (int round = 0; round < 4000; ++round) {
    std::string text = RandomFile(random);
    if (random.OneIn(4)) text += "TRAN_AGS" + random.Joined(Pieces, random.Below(30));
    if (random.OneIn(8)) text.insert(random.Below(text.size() + 1), random.Below(9000), '4');
    const FileText file = TextOf(text);
    const std::optional<DetectedVersion> expected = DetectPlainly(file);
    const std::optional<DetectedVersion> detected = DetectVersion(file);
    ASSERT_EQ(detected.has_value(), expected.has_value()) << text;
    ++outcomes[!expected                             ? 0
               : expected->format == AgsFormat::Ags3 ? 1
               : expected->isAgs404                  ? 3
                                                     : 2];
    if (!expected) continue;
    ASSERT_EQ(detected->format, expected->format) << text;
    ASSERT_EQ(detected->isAgs404, expected->isAgs404) << text;
  }
  for (const int count : outcomes) {
    EXPECT_GT(count, 50);
  }
}

}  // namespace
}  // namespace quorvane::test
