#include "dictionary/custom_groups.h"

#include <algorithm>
#include <array>
#include <optional>
#include <unordered_set>
#include <utility>

#include "parse/group_table.h"
#include "parse/structure_parser.h"
#include "text/comma_list.h"
#include "text/text.h"

namespace quorvane {
namespace {

constexpr std::string_view DictBlockStart = "\"**DICT";
constexpr std::string_view GroupLineStart = "\"**";
constexpr std::string_view NoParent = "-";  // as the AGS 4 dictionary itself writes it

/// The lines of the DICT group: up to the next one that holds the start of a group line.
std::optional<LineRange> FindDictBlock(const FileText& text) {
  std::int32_t first = 1;
  while (first <= text.LineCount() &&
         (text.IsPlain(first) || !text.Line(first).starts_with(DictBlockStart))) {
    ++first;
  }
  if (first > text.LineCount()) return std::nullopt;
  std::int32_t next = first + 1;
  while (next <= text.LineCount() &&
         text.Line(next).find(GroupLineStart) == std::string_view::npos) {
    ++next;
  }
  return LineRange{first, next - 1};
}

/// Takes names as they are: the rules on them are for the parse of the whole file.
class DictBlockListener : public StructureListener {
 public:
  std::string ReadGroupName(int, std::int32_t, std::string_view) override { return "DICT"; }
  void GroupOpened(int) override {}
  std::string ReadHeading(const MessagePlace&, std::int32_t, std::string heading) override {
    return UpperCase(heading);
  }
  void HeadersRead(int, bool) override {}
  void GroupEnded(int) override {}
  void FileEnded() override {}
};

/// Keeps a log muted for as long as it lives.
class MutedLog {
 public:
  explicit MutedLog(MessageLog& log) : log_(log) { log_.SetMuted(true); }
  MutedLog(const MutedLog&) = delete;
  MutedLog& operator=(const MutedLog&) = delete;
  ~MutedLog() { log_.SetMuted(false); }

 private:
  MessageLog& log_;
};

/// A row of the DICT group, its values trimmed.
struct DictRow {
  std::string_view type;
  std::string_view group;
  std::string_view heading;
  std::string_view status;
  std::string_view parent;

  bool DefinesGroup() const { return EqualsIgnoringCase(type, "GROUP"); }
  bool IsKey() const { return EqualsIgnoringCase(status, "KEY"); }
};

/// The DICT group, read ahead of the parse and without any message.
class DictBlock {
 public:
  DictBlock(const CustomGroupTask& task, LineRange lines) : table_(task.text) {
    const MutedLog muted(task.log);
    DictBlockListener listener;
    StructureParser parser(task.text, task.format, task.dictionary.ReferenceGroups, table_,
                           listener, task.log);
    parser.ParseStructure(lines);
    columns_ = {ColumnOf("DICT_TYPE"), ColumnOf("DICT_GRP"), ColumnOf("DICT_HDNG"),
                ColumnOf("DICT_STAT"), ColumnOf(QualifyHeadingName(task.format, "DICT_PGRP"))};
  }

  /// The rows that say what they define, for which the argument holds.
  template <typename Wanted, typename Use>
  void ForEachRow(Wanted&& isWanted, Use&& use) const {
    for (std::int32_t number = 1; number <= table_.At(1).rowCount; ++number) {
      const DictRow row{ValueAt(number, 0), ValueAt(number, 1), ValueAt(number, 2),
                        ValueAt(number, 3), ValueAt(number, 4)};
      if (!row.type.empty() && !row.group.empty() && isWanted(row)) use(row);
    }
  }

 private:
  /// The first column whose heading, in upper case, is exactly the name; 0 when there is none.
  int ColumnOf(std::string_view name) const {
    const std::vector<Heading>& headings = table_.At(1).headings;
    const auto found = std::find_if(headings.begin(), headings.end(),
                                    [&](const Heading& heading) { return heading.name == name; });
    return found == headings.end() ? 0 : static_cast<int>(found - headings.begin()) + 1;
  }

  std::string_view ValueAt(std::int32_t row, std::size_t item) const {
    const int column = columns_[item];
    return column == 0 ? std::string_view() : Trim(table_.Value(1, row, column));
  }

  GroupTable table_;
  std::array<int, 5> columns_{};
};

/// A group that the file defines, while its rows come in.
struct CustomGroup {
  DictGroup entry;
  std::unordered_set<std::string> headings;
  std::unordered_set<std::string> keyHeadings;
};

/// Turns DICT rows into entries of the dictionary. All rows that define groups come first, then the
/// others.
class CustomGroups {
 public:
  explicit CustomGroups(const CustomGroupTask& task)
      : format_(task.format),
        dictionary_(task.dictionary),
        addedHeadings_(task.addedHeadings),
        linkKeyHeadings_(task.dictionary.LinkKeyHeadings.begin(),
                         task.dictionary.LinkKeyHeadings.end()) {}

  void ReadGroupRow(const DictRow& row) {
    std::string name = QualifyHeadingName(format_, row.group);
    if (dictionary_.FindDictGroup(row.group) != 0 || dictionary_.FindDictGroup(name) != 0) return;
    CustomGroup& group = groups_.emplace_back();
    group.entry.Name = name;
    group.entry.ParentGroup = ParentNameOf(row);
    // Of two rows for one group the first one's entry takes the headings.
    groupsByName_.try_emplace(std::move(name), groups_.size() - 1);
  }

  void ReadHeadingRow(const DictRow& row) {
    // A row that names no heading defines none.
    if (row.heading.empty()) return;
    const auto custom = groupsByName_.find(QualifyHeadingName(format_, row.group));
    if (custom != groupsByName_.end()) {
      AddHeading(groups_[custom->second], row);
      return;
    }
    if (row.IsKey()) AddKeyOfStandardGroup(row);
    if (format_ == AgsFormat::Ags4) NoteAddedHeading(row);
  }

  /// Ends the reading: the groups go into the dictionary.
  void AppendToDictionary() {
    for (CustomGroup& group : groups_) {
      group.entry.KeyCount = static_cast<std::int32_t>(group.entry.KeyHeadings.size());
      const std::string headings = Join(group.entry.Headings, ",");
      if (headings.find(dictionary_.LocationKey) == std::string::npos) {
        dictionary_.GroupsWithoutLocationKey.insert(group.entry.Name);
      }
      dictionary_.AddGroup(std::move(group.entry));
    }
    groups_.clear();
  }

 private:
  std::string ParentNameOf(const DictRow& row) const {
    if (row.parent.empty() || row.parent == NoParent) return {};
    if (dictionary_.FindDictGroup(row.parent) != 0) return std::string(row.parent);
    return QualifyHeadingName(format_, row.parent);
  }

  /// A heading that DICT lists more than once is one heading of its group all the same.
  void AddHeading(CustomGroup& group, const DictRow& row) const {
    const std::string heading = QualifyHeadingName(format_, row.heading);
    if (group.headings.insert(heading).second) {
      group.entry.Headings.push_back(heading);
      if (linkKeyHeadings_.contains(heading)) {
        std::string& numericKeys = group.entry.NumericKeyPositions;
        if (!numericKeys.empty()) numericKeys += ',';
        numericKeys += heading;
      }
    }
    if (row.IsKey() && group.keyHeadings.insert(heading).second) {
      group.entry.KeyHeadings.push_back(heading);
    }
  }

  /// The standard group of a name as written, with the mark of AGS 3.1 groups, or without its first
  /// character; 0 when there is none.
  int FindStandardGroup(std::string_view name) const {
    if (const int group = dictionary_.FindDictGroup(name); group != 0) return group;
    const int marked = dictionary_.FindDictGroup(QualifyHeadingName(format_, name));
    return marked != 0 ? marked : dictionary_.FindDictGroup(name.substr(1));
  }

  void AddKeyOfStandardGroup(const DictRow& row) {
    const int index = FindStandardGroup(row.group);
    if (index == 0) return;
    DictGroup& group = dictionary_.Group(index);
    const auto [known, isNew] = standardKeys_.try_emplace(index);
    if (isNew) known->second.insert(group.KeyHeadings.begin(), group.KeyHeadings.end());
    if (known->second.contains(std::string(row.heading))) return;
    std::string heading = QualifyHeadingName(format_, row.heading);
    if (!known->second.insert(heading).second) return;
    group.KeyHeadings.push_back(std::move(heading));
    ++group.KeyCount;
  }

  void NoteAddedHeading(const DictRow& row) {
    const int index = dictionary_.FindDictGroup(row.group);
    if (index == 0 || dictionary_.Group(index).HeadingPosition(row.heading) != 0) return;
    addedHeadings_[std::string(row.group)].emplace_back(row.heading);
  }

  AgsFormat format_;
  AgsDictionary& dictionary_;
  AddedHeadings& addedHeadings_;
  std::unordered_set<std::string> linkKeyHeadings_;
  std::vector<CustomGroup> groups_;
  std::unordered_map<std::string, std::size_t> groupsByName_;
  std::unordered_map<int, std::unordered_set<std::string>> standardKeys_;
};

/// Key counts may have changed, so every group's view of its parent's is taken anew.
void SetParents(const CustomGroupTask& task) {
  AgsDictionary& dictionary = task.dictionary;
  ParentIndex index(dictionary);
  for (int group = 1; group <= dictionary.GroupCount(); ++group) {
    if (dictionary.Group(group).ParentGroup.empty()) FindCustomParent(task, index, group);
    const int parent = dictionary.FindDictGroup(dictionary.Group(group).ParentGroup);
    dictionary.Group(group).ParentKeyCount = parent == 0 ? 0 : dictionary.Group(parent).KeyCount;
  }
}

}  // namespace

void BuildCustomGroupProps(const CustomGroupTask& task) {
  const std::optional<LineRange> lines = FindDictBlock(task.text);
  if (!lines) return;
  const DictBlock block(task, *lines);
  CustomGroups groups(task);
  block.ForEachRow([](const DictRow& row) { return row.DefinesGroup(); },
                   [&](const DictRow& row) { groups.ReadGroupRow(row); });
  block.ForEachRow([](const DictRow& row) { return !row.DefinesGroup(); },
                   [&](const DictRow& row) { groups.ReadHeadingRow(row); });
  groups.AppendToDictionary();
  SetParents(task);
}

void FindCustomParent(const CustomGroupTask& task, ParentIndex& index, int groupIndex) {
  DictGroup& group = task.dictionary.Group(groupIndex);
  ParentLists question;
  question.lists = index.BestCandidates(groupIndex);
  const std::size_t count = question.lists[0].Count() + question.lists[1].Count();
  if (count == 0) return;
  if (count == 1) {
    group.ParentGroup = ParentGroup(question, Preselection(question));
    return;
  }
  question.file = task.path;
  question.group = group.Name;
  question.label = "Group " + group.Name + " does not have a parent." + std::string(LineBreak) +
                   "Specify one below.";
  const int location = task.dictionary.FindDictGroup(task.dictionary.LocationGroup);
  if (question.lists[0].Contains(location) || question.lists[1].Contains(location)) {
    question.locationGroup = task.dictionary.LocationGroup;
  }
  group.ParentGroup = task.parentChoice.ShowDialog(question);
}

}  // namespace quorvane
