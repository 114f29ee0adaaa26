#include <algorithm>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "rules/abbreviations.h"
#include "support/check_text.h"
#include "support/direct_check.h"
#include "text/comma_list.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

using Findings = std::vector<std::string>;

std::string Text(const std::vector<std::string_view>& pieces) {
  return Join(pieces, "");
}

/// The whole check step by step, with a search of the data for each code: the plain twin of the
/// code that reads the data once.
class PlainCheck {
 public:
  explicit PlainCheck(const CheckedFile& file) : file_(file), table_(file.table) {}

  Findings Run() {
    ReadEntries();
    if (usableCount_ == 0) {
      Report(0, Severity::Error, "No usable data found under the ABBR group");
      return findings_;
    }
    if (!file_.IsAgs4() && !descMissing_.empty()) {
      Report(0, Severity::Warning,
             "The following ABBR_HDNG-ABBR_CODE values did not have ABBR_DESC values in the ABBR "
             "group:" +
                 descMissing_);
    }
    for (const auto& [heading, codes] : records_)
      FindUnlisted(heading, codes);
    for (const std::string& pick : file_.dictionary.PickListHeadings)
      FindWithoutEntries(pick);
    return findings_;
  }

 private:
  void Report(int line, Severity severity, const std::string& text) {
    const std::string finding = FormatMessage(line, severity, text);
    if (findings_.empty() || findings_.back() != finding) findings_.push_back(finding);
  }

  std::vector<HeadingPlace> References(const std::string& heading) const {
    std::vector<HeadingPlace> places = table_.LocateHeading(heading);
    return places.empty() ? table_.LocateHeading("?" + heading) : places;
  }

  void ReadEntries() {
    const int abbr = file_.singletons.abbr;
    for (int row = 1; row <= table_.At(abbr).rowCount; ++row)
      ReadEntry(abbr, row);
  }

  void ReadEntry(int abbr, int row) {
    const int line = table_.RowLine(abbr, row);
    std::string heading = UpperCase(table_.Value(abbr, row, 1));
    if (heading.starts_with('?')) heading.erase(0, 1);
    if (!file_.IsAgs4() && heading == "CNMT_TYPE") {
      Report(line, Severity::Error,
             "CNMT_TYPE cannot be in the ABBR group. All CNMT_TYPE abbreviations must be in the "
             "CODE group (Rule 25).");
      return;
    }
    if (heading.empty()) {
      if (!file_.IsAgs4()) Report(line, Severity::Error, "ABBR_HDNG value missing.");
      return;
    }
    std::string& codes = CodesOf(heading);
    if (References(heading).empty()) {
      Report(line, Severity::Fyi, Text({"No references to ABBR_HDNG ", heading, " in data file."}));
      return;
    }
    const std::string code = UpperCase(table_.Value(abbr, row, 2));
    if (code.empty() && !file_.IsAgs4()) {
      Report(line, Severity::Error, "ABBR_CODE value is missing for ABBR_HDNG " + heading);
    }
    if (code.empty() || ListContains(codes, code)) return;
    codes.append(",").append(code);
    if (table_.Value(abbr, row, 3).empty()) descMissing_ += Text({LineBreak, heading, "-", code});
    ++usableCount_;
    if (IsInData(heading, code)) return;
    Report(
        line, Severity::Fyi,
        Text({"No references in the data to ABBR_CODE '", code, "' in heading '", heading, "'"}));
  }

  std::string& CodesOf(const std::string& heading) {
    if (!ListContains(headingList_, heading)) {
      records_.emplace_back(heading, "");
      headingList_.append(",").append(heading);
    }
    return std::find_if(records_.begin(), records_.end(),
                        [&](const auto& record) { return record.first == heading; })
        ->second;
  }

  bool IsInData(const std::string& heading, const std::string& code) const {
    const std::string& k = file_.concatenator;
    const std::string plain = Text({k, code, k});
    const std::string padded = Text({k, " ", code, " ", k});
    for (const HeadingPlace& place : References(heading)) {
      for (int row = 1; row <= table_.At(place.group).rowCount; ++row) {
        const std::string value = UpperCase(table_.Value(place.group, row, place.column));
        if (Text({k, value, k}).find(plain) != std::string::npos) return true;
        if (Text({k, " ", value, " ", k}).find(padded) != std::string::npos) return true;
      }
    }
    return false;
  }

  void FindUnlisted(const std::string& heading, const std::string& codes) {
    const Group& abbr = table_.At(file_.singletons.abbr);
    for (const HeadingPlace& place : References(heading)) {
      for (int row = 1; row <= table_.At(place.group).rowCount; ++row) {
        const std::string value = UpperCase(Trim(table_.Value(place.group, row, place.column)));
        if (value.empty()) continue;
        std::size_t position = 1;
        while (position != 0) {
          const std::string_view piece = Trim(TakeToken(position, value, file_.concatenator));
          if (piece.empty() || ListContains(codes, piece)) continue;
          Report(abbr.headingLine, Severity::Error,
                 Text({"Code ", piece, " under ", heading, " in group '", abbr.name,
                       "' not found in the ABBR group."}));
        }
      }
    }
  }

  void FindWithoutEntries(std::string heading) {
    if (heading.starts_with('?')) heading.erase(0, 1);
    if (ListContains(headingList_, heading)) return;
    for (const HeadingPlace& place : table_.LocateHeading(heading)) {
      for (int row = 1; row <= table_.At(place.group).rowCount; ++row) {
        if (table_.Value(place.group, row, place.column).empty()) continue;
        Report(0, Severity::Error,
               "There are data for " + heading +
                   " but no entries in the ABBR group. This heading requires abbreviation "
                   "listings " +
                   (file_.IsAgs4() ? "." : "(Rule 20)."));
        return;
      }
    }
  }

  const CheckedFile& file_;
  const GroupTable& table_;
  Findings findings_;
  std::vector<std::pair<std::string, std::string>> records_;  // heading, codes
  std::string headingList_;
  std::string descMissing_;
  int usableCount_ = 0;
};

/// Fills a file with an ABBR group and groups that hold headings with abbreviations, in all of
/// which few different values occur.
class RandomFile {
 public:
  explicit RandomFile(unsigned seed) : random_(seed) {}

  void Fill(CheckedFile& file) {
    file.concatenator = OneOf({"+", "+", "++", " ", "A+"});
    file.dictionary.PickListHeadings = {"", "SAMP_TYPE", "?GEOL_LEG", "HOLE_TYPE", "CNMT_TYPE"};
    file.table.AddGroup("SAMP", 1);
    file.table.AddHeading("SAMP_TYPE");
    file.table.AddHeading("HOLE_TYPE");
    AddRows(file.table, 2);
    file.table.AddGroup("GEOL", 100);
    file.table.AddHeading("GEOL_TOP");
    file.table.AddHeading("?GEOL_LEG");
    AddRows(file.table, 2);
    file.singletons.abbr = file.table.AddGroup("ABBR", 200);
    Group& abbr = file.table.At(file.singletons.abbr);
    abbr.headingLine = 201;
    abbr.isKeyed = true;
    for (const char* heading : {"ABBR_HDNG", "ABBR_CODE", "ABBR_DESC"})
      file.table.AddHeading(heading);
    const std::size_t entries = Below(9);
    for (std::size_t entry = 0; entry < entries; ++entry) {
      const std::string heading =
          OneOf({"SAMP_TYPE", "samp_type", "?SAMP_TYPE", "GEOL_LEG", "?geol_leg", "HOLE_TYPE",
                 "CNMT_TYPE", "FILE_DOCT", "", "X"});
      const std::string code = Value(0, 4);
      file.table.AddRow(NextLine(), {heading, code, OneOf({"", "text"})});
    }
    file.table.AddGroup("SAMP", 300);
    file.table.AddHeading("?SAMP_TYPE");
    AddRows(file.table, 1);
  }

 private:
  std::size_t Below(std::size_t limit) { return random_() % limit; }

  std::string OneOf(const std::vector<std::string>& texts) { return texts[Below(texts.size())]; }

  std::string Value(std::size_t shortest, std::size_t longest) {
    constexpr std::string_view letters = "AaB+ ";
    std::string value(shortest + Below(longest - shortest + 1), ' ');
    for (char& letter : value)
      letter = letters[Below(letters.size())];
    return value;
  }

  void AddRows(GroupTable& table, std::size_t columns) {
    const std::size_t rows = Below(6);
    for (std::size_t row = 0; row < rows; ++row) {
      std::vector<std::string> values;
      for (std::size_t column = 0; column < columns; ++column)
        values.push_back(Value(0, 6));
      table.AddRow(NextLine(), {values.begin(), values.end()});
    }
  }

  int NextLine() { return ++line_; }

  std::mt19937 random_;
  int line_ = 1000;
};

TEST(AbbreviationsTwin, FindsWhatSearchingTheDataForEachCodeFinds) {
  std::size_t findingCount = 0;
  for (const AgsFormat format : {AgsFormat::Ags3, AgsFormat::Ags4}) {
    for (unsigned seed = 0; seed < 3000; ++seed) {
      Findings expected;
      const CheckResult result = CheckDirectly(format, [&](CheckedFile& file) {
        RandomFile(seed).Fill(file);
        expected = PlainCheck(file).Run();
        CheckAbbrGroup(file);
      });
      ASSERT_EQ(result.findings, expected) << "seed " << seed;
      findingCount += expected.size();
    }
  }
  EXPECT_GT(findingCount, 20000U);
}

}  // namespace
}  // namespace quorvane::test
