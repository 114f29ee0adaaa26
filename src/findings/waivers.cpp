#include "findings/waivers.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <cstddef>
#include <functional>
#include <optional>
#include <unordered_map>
#include <utility>

#include "findings/file_names.h"
#include "run/message_catalogue.h"
#include "text/comma_list.h"
#include "text/text.h"
#include "text/utf8.h"

namespace quorvane {
namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view Any = "*";

/// The fields of a waiver that may be any.
using Places = std::array<std::string_view, 4>;       // file, group, key, heading
using Mask = std::bitset<std::tuple_size_v<Places>>;  // set where a value is asked for

/// What a waiver asks for.
struct Pattern {
  std::string_view id;
  Mask asked;
  Places values;  // empty where nothing is asked

  friend bool operator==(const Pattern&, const Pattern&) = default;
};

struct PatternHash {
  std::size_t operator()(const Pattern& pattern) const {
    constexpr std::size_t factor = 1099511628211U;
    const std::hash<std::string_view> hashText;
    std::size_t hash = hashText(pattern.id) * factor + pattern.asked.to_ulong();
    for (const std::string_view value : pattern.values)
      hash = hash * factor + hashText(value);
    return hash;
  }
};

Pattern PatternOf(const WaiverRecord& waiver) {
  Pattern pattern{waiver.id, {}, {}};
  const std::array fields{&waiver.file, &waiver.group, &waiver.key, &waiver.heading};
  for (std::size_t field = 0; field < fields.size(); ++field) {
    if (!fields[field]->has_value()) continue;
    pattern.asked.set(field);
    pattern.values[field] = **fields[field];
  }
  return pattern;
}

/// What a waiver that asks for some of a finding's places would ask for.
Pattern PatternOf(std::string_view id, const Places& places, Mask asked) {
  Pattern pattern{id, asked, {}};
  for (std::size_t field = 0; field < places.size(); ++field) {
    if (asked.test(field)) pattern.values[field] = places[field];
  }
  return pattern;
}

/// The fields of a waiver's line, between bars that no "\" stands before.
std::vector<std::string_view> SplitFields(std::string_view line) {
  std::vector<std::string_view> fields;
  std::size_t start = 0;
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (line[at] == '\\') {
      ++at;
    } else if (line[at] == '|') {
      fields.push_back(line.substr(start, at - start));
      start = at + 1;
    }
  }
  fields.push_back(line.substr(start));
  return fields;
}

/// The text that a field stands for. Before other characters "\" is a character like any.
std::string FieldText(std::string_view field) {
  std::string text;
  for (std::size_t at = 0; at < field.size(); ++at) {
    const bool isEscape = field[at] == '\\' && at + 1 < field.size() &&
                          std::string_view("|*\\").find(field[at + 1]) != std::string_view::npos;
    if (isEscape) ++at;
    text += field[at];
  }
  return text;
}

std::optional<std::string> ValueAskedFor(std::string_view field) {
  if (field == Any) return std::nullopt;
  return FieldText(field);
}

bool IsMessageId(std::string_view id) {
  static const std::vector<const MessageDefinition*> catalogue = MessageCatalogue();
  return std::any_of(catalogue.begin(), catalogue.end(),
                     [id](const MessageDefinition* message) { return message->id == id; });
}

/// A blank and a tab are blanks here.
std::string_view TrimField(std::string_view field) {
  constexpr std::string_view blanks = " \t";
  const std::size_t start = field.find_first_not_of(blanks);
  if (start == std::string_view::npos) return {};
  return field.substr(start, field.find_last_not_of(blanks) + 1 - start);
}

/// Takes the lines of a list one after the other.
class WaiverReader {
 public:
  explicit WaiverReader(WaiverReading& reading) : reading_(reading) {}

  void ReadLine(std::int32_t number, std::string_view line) {
    line = TrimField(line);
    if (line.empty() || line.front() == '#') return;
    std::vector<std::string_view> fields = SplitFields(line);
    std::transform(fields.begin(), fields.end(), fields.begin(), TrimField);
    const std::string mistake = MistakeIn(fields);
    if (mistake.empty()) {
      Add({number, std::string(fields[0]), ValueAskedFor(fields[1]), ValueAskedFor(fields[2]),
           ValueAskedFor(fields[3]), ValueAskedFor(fields[4]), FieldText(fields[5])});
    } else {
      Report(number, mistake);
    }
  }

 private:
  static std::string MistakeIn(const std::vector<std::string_view>& fields) {
    constexpr std::size_t fieldCount = 6;
    if (fields.size() != fieldCount) {
      return "the number of fields is " + std::to_string(fields.size()) +
             " and not 6: id | file | group | key | heading | reason";
    }
    if (!IsMessageId(fields.front())) {
      return "there is no message with the id \"" + std::string(fields.front()) + "\"";
    }
    return fields.back().empty() ? "a waiver needs a reason" : "";
  }

  void Add(WaiverRecord waiver) {
    std::string key = waiver.id;
    for (const auto* field : {&waiver.file, &waiver.group, &waiver.key, &waiver.heading})
      key.append(field->has_value() ? "\n=" + **field : "\n");
    const auto [earlier, isNew] = lines_.emplace(std::move(key), waiver.line);
    if (isNew) {
      reading_.waivers.push_back(std::move(waiver));
    } else {
      Report(waiver.line, "waives the same as line " + std::to_string(earlier->second));
    }
  }

  void Report(std::int32_t line, const std::string& mistake) {
    reading_.mistakes.push_back("line " + std::to_string(line) + ": " + mistake);
  }

  WaiverReading& reading_;
  std::unordered_map<std::string, std::int32_t> lines_;  // by what is asked for
};

/// Finds the waivers that fit a finding. For each id it knows which fields the waivers of that id
/// ask for: there are 16 ways at most, each a look into one table.
class WaiverIndex {
 public:
  /// The waivers must outlive the index.
  explicit WaiverIndex(std::vector<WaiverRecord>& waivers) : waivers_(waivers) {
    for (std::size_t index = 0; index < waivers.size(); ++index) {
      const Pattern pattern = PatternOf(waivers[index]);
      indices_.emplace(pattern, index);
      std::vector<Mask>& masks = masks_[pattern.id];
      if (std::find(masks.begin(), masks.end(), pattern.asked) == masks.end())
        masks.push_back(pattern.asked);
    }
  }

  /// Counts the waivers that fit a finding in a file of one name, or of another; returns the place
  /// of the first one in the list, the list's length when none does.
  std::size_t Match(std::string_view id, Places places, std::string_view otherFileName) {
    std::size_t first = waivers_.size();
    const auto masks = masks_.find(id);
    if (masks == masks_.end()) return first;
    for (const Mask mask : masks->second) {
      first = std::min(first, Count(PatternOf(id, places, mask)));
      if (!mask.test(FileField) || otherFileName == places[FileField]) continue;
      Places others = places;
      others[FileField] = otherFileName;
      first = std::min(first, Count(PatternOf(id, others, mask)));
    }
    return first;
  }

 private:
  static constexpr std::size_t FileField = 0;

  std::size_t Count(const Pattern& pattern) {
    const auto found = indices_.find(pattern);
    if (found == indices_.end()) return waivers_.size();
    ++waivers_[found->second].matches;
    return found->second;
  }

  std::vector<WaiverRecord>& waivers_;
  std::unordered_map<Pattern, std::size_t, PatternHash> indices_;
  std::unordered_map<std::string_view, std::vector<Mask>> masks_;
};

void WaiveFindings(FileRecord& file, std::string_view name, WaiverIndex& index,
                   std::size_t waiverCount) {
  const std::string_view lastPart = LastPart(file.path);
  for (FindingRecord& finding : file.findings) {
    const Places places{lastPart, file.GroupName(finding), finding.key, file.HeadingName(finding)};
    const std::size_t waiver = index.Match(finding.definition->id, places, name);
    if (waiver == waiverCount) continue;
    finding.state = FindingState::Waived;
    finding.waiver = static_cast<std::int32_t>(waiver);
  }
}

}  // namespace

WaiverReading ReadWaivers(std::string_view text) {
  if (text.starts_with(ByteOrderMark)) text.remove_prefix(ByteOrderMark.size());
  const std::string utf8 = ToUtf8(text);
  WaiverReading reading;
  WaiverReader reader(reading);
  std::int32_t number = 0;
  for (const std::string_view line : SplitLines(utf8))
    reader.ReadLine(++number, line);
  return reading;
}

void ApplyWaivers(FindingsReport& report, std::vector<WaiverRecord> waivers,
                  const std::string& path) {
  report.waiverFile = path;
  report.waivers = std::move(waivers);
  WaiverIndex index(report.waivers);
  std::vector<std::string_view> paths;
  for (const FileRecord& file : report.files)
    paths.emplace_back(file.path);
  const std::vector<std::string> names = FileNames(paths);
  for (std::size_t file = 0; file < names.size(); ++file)
    WaiveFindings(report.files[file], names[file], index, report.waivers.size());
}

}  // namespace quorvane
