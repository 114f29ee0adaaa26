#include "run/edition_count.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "parse/field.h"
#include "parse/row_label.h"
#include "rules/names.h"
#include "text/text.h"

namespace quorvane {
namespace {

constexpr std::string_view BestMark = "most";

/// Columns of the table, in characters.
constexpr std::size_t EditionWidth = 9;
constexpr std::size_t CountWidth = 16;

/// Adds the headings of a heading row, the first field of which is its label.
void AddHeadings(std::string_view row, std::set<std::string>& headings) {
  const std::vector<std::string> fields = SplitFields(row);
  for (std::size_t index = 1; index < fields.size(); ++index) {
    if (!Trim(fields[index]).empty()) headings.insert(UpperCase(Trim(fields[index])));
  }
}

std::string Padded(std::string text, std::size_t width) {
  text.resize(std::max(width, text.size()), ' ');
  return text;
}

std::string CountText(std::size_t known, std::size_t all) {
  return std::to_string(known) + " of " + std::to_string(all);
}

std::string TableLine(std::string_view edition, std::string groups, std::string headings,
                      std::string_view mark) {
  std::string line = "  " + Padded(std::string(edition), EditionWidth) +
                     Padded(std::move(groups), CountWidth) +
                     Padded(std::move(headings), CountWidth) + std::string(mark);
  line.resize(TrimRight(line).size());
  return line.append(LineBreak);
}

}  // namespace

UsedNames CollectNames(const FileText& file) {
  UsedNames names;
  std::set<std::string>* headings = nullptr;  // of the group being read; null before the first one
  for (std::int32_t number = 1; number <= file.LineCount(); ++number) {
    const std::string_view line = TrimRight(file.Line(number));
    if (IsGroupRow(line)) {
      const std::string group = NameInGroupRow(line);
      headings = group.empty() ? nullptr : &names[group];
    } else if (headings != nullptr && IsHeadingRow(line)) {
      AddHeadings(line, *headings);
    }
  }
  return names;
}

NameCount CountNames(const UsedNames& names) {
  NameCount count{names.size(), 0};
  for (const auto& [group, headings] : names)
    count.headings += headings.size();
  return count;
}

NameCount CountKnownNames(const UsedNames& names, const AgsDictionary& dictionary) {
  NameCount count;
  for (const auto& [group, headings] : names) {
    const int index = dictionary.FindDictGroup(group);
    if (index == 0) continue;
    ++count.groups;
    count.headings += static_cast<std::size_t>(std::count_if(
        headings.begin(), headings.end(),
        [&](const std::string& heading) { return HasHeading(dictionary.Group(index), heading); }));
  }
  return count;
}

std::string EditionTable(const FileText& file, DictionaryStore& dictionaries) {
  const UsedNames names = CollectNames(file);
  const NameCount all = CountNames(names);
  std::array<NameCount, SchemaEditions.size()> known;
  std::size_t most = 1;
  for (std::size_t index = 0; index < known.size(); ++index) {
    const DictionaryChoice choice{AgsFormat::Ags4, false, {}, &SchemaEditions[index]};
    known[index] = CountKnownNames(names, dictionaries.Get(choice));
    most = std::max(most, known[index].Total());
  }
  std::string table = TableLine("Edition", "Groups", "Headings", "");
  for (std::size_t index = 0; index < known.size(); ++index) {
    table += TableLine(SchemaEditions[index].edition, CountText(known[index].groups, all.groups),
                       CountText(known[index].headings, all.headings),
                       known[index].Total() == most ? BestMark : "");
  }
  return table;
}

}  // namespace quorvane
