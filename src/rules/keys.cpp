#include "rules/keys.h"

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <utility>

#include "parse/row_text_index.h"
#include "rules/key_messages.h"
#include "text/number.h"
#include "text/text.h"

namespace quorvane {
namespace {

/// A column whose value is part of a key; 0 for a part that the group does not have.
struct KeyPart {
  int column = 0;
  bool isNumeric = false;
};

std::vector<KeyPart> KeyPartsOf(const Group& group) {
  std::vector<KeyPart> parts;
  for (const int column : group.keyColumns) {
    const bool isNumeric = std::find(group.numericKeyColumns.begin(), group.numericKeyColumns.end(),
                                     column) != group.numericKeyColumns.end();
    parts.push_back({column, isNumeric});
  }
  return parts;
}

/// Puts the key that a row has over some columns into the text: the values without trailing blanks
/// joined with commas, as written or, for comparison, with numbers in their plain shortest form.
/// Returns whether any value is there.
enum class KeyForm { AsWritten, Comparable };

bool MakeKeyText(const GroupTable& table, const RowPlace& place, std::span<const KeyPart> parts,
                 KeyForm form, std::string& text) {
  text.clear();
  bool hasValue = false;
  for (const KeyPart& part : parts) {
    if (&part != parts.data()) text += ',';
    if (part.column == 0) continue;
    const std::string_view value = TrimRight(table.Value(place.group, place.row, part.column));
    hasValue |= !value.empty();
    if (part.isNumeric && form == KeyForm::Comparable) {
      AppendCanonicalNumber(text, value);
    } else {
      text += value;
    }
  }
  return hasValue;
}

std::string KeyTextOf(const GroupTable& table, const RowPlace& place,
                      std::span<const KeyPart> parts) {
  std::string text;
  MakeKeyText(table, place, parts, KeyForm::AsWritten, text);
  return text;
}

std::size_t RowCountOf(const GroupTable& table, std::span<const int> groups) {
  std::size_t rowCount = 0;
  for (const int group : groups)
    rowCount += static_cast<std::size_t>(table.At(group).rowCount);
  return rowCount;
}

/// The keys of all groups that bear a parent's name, found by their text or, where that fails, by
/// their text in any letter case.
class ParentKeys {
 public:
  ParentKeys(const GroupTable& table, std::vector<int> groups)
      : table_(table),
        groups_(std::move(groups)),
        rowCount_(RowCountOf(table, groups_)),
        exact_(rowCount_, KeyMaker{*this, false}) {
    for (const int group : groups_)
      parts_.emplace(group, KeyPartsOf(table.At(group)));
    InsertRows(exact_);
  }

  ParentKeys(const ParentKeys&) = delete;
  ParentKeys& operator=(const ParentKeys&) = delete;

  bool Contains(std::string_view key) { return exact_.Find(key).has_value(); }

  /// The first row, in group and row order, whose key differs in letter case at the most.
  std::optional<RowPlace> FindIgnoringCase(std::string_view key) {
    if (!ignoringCase_) {
      ignoringCase_.emplace(rowCount_, KeyMaker{*this, true});
      InsertRows(*ignoringCase_);
    }
    return ignoringCase_->Find(UpperCase(key));
  }

  std::string TextAsWritten(const RowPlace& place) const {
    return KeyTextOf(table_, place, parts_.at(place.group));
  }

  /// The first group of the name, after which the keys that refer to it are made.
  int FirstGroup() const { return groups_.front(); }

 private:
  struct KeyMaker {
    const ParentKeys& keys;
    bool inUpperCase;

    void operator()(const RowPlace& place, std::string& text) const {
      MakeKeyText(keys.table_, place, keys.parts_.at(place.group), KeyForm::Comparable, text);
      if (inUpperCase) std::transform(text.begin(), text.end(), text.begin(), ToUpper);
    }
  };
  using Index = RowTextIndex<KeyMaker>;

  void InsertRows(Index& index) {
    for (const int group : groups_) {
      for (std::int32_t row = 1; row <= table_.At(group).rowCount; ++row) {
        index.Insert({group, row});
      }
    }
  }

  const GroupTable& table_;
  std::vector<int> groups_;
  std::map<int, std::vector<KeyPart>> parts_;
  std::size_t rowCount_;
  Index exact_;
  std::optional<Index> ignoringCase_;
};

/// How a group is tied to a parent group.
struct ParentRelation {
  const MessageDefinition& groupMissing;
  const MessageDefinition& keyMissing;
};

class ParentKeyCheck {
 public:
  explicit ParentKeyCheck(CheckedFile& file) : file_(file) {}

  void CheckGroup(int groupIndex) {
    const Group& group = file_.table.At(groupIndex);
    if (!group.isKeyed || group.dictionaryIndex == 0) return;
    CheckAgainst(groupIndex, ParentGroupName(file_, group.dictionaryIndex),
                 {ParentGroupMissing, ParentKeyMissing});
    if (group.name == "LBST") {
      CheckAgainst(groupIndex, "SAMP", {SecondaryParentGroupMissing, SecondaryParentKeyMissing});
    }
  }

 private:
  void CheckAgainst(int groupIndex, const std::string& parentName, const ParentRelation& relation) {
    if (parentName.empty()) return;
    ParentKeys* parent = KeysOf(parentName);
    if (parent == nullptr) {
      file_.log.AddMessage(0, relation.groupMissing, {parentName, file_.table.At(groupIndex).name},
                           {groupIndex, 0, 0});
      return;
    }
    const std::vector<KeyPart> parts = PartsOfParentKey(groupIndex, parent->FirstGroup());
    std::string text;
    std::string lastFound;  // rows of one parent mostly stand together
    for (std::int32_t row = 1; row <= file_.table.At(groupIndex).rowCount; ++row) {
      const RowPlace place{groupIndex, row};
      if (!MakeKeyText(file_.table, place, parts, KeyForm::Comparable, text)) continue;
      if (text == lastFound) continue;
      if (parent->Contains(text)) {
        lastFound = text;
      } else {
        ReportRow(place, parts, text, parentName, *parent, relation);
      }
    }
  }

  /// The keys of the groups of a name, read once for all groups that refer to them.
  ParentKeys* KeysOf(const std::string& name) {
    const auto known = parents_.find(name);
    if (known != parents_.end()) return known->second.get();
    std::vector<int> groups = file_.table.GroupIndexList(name);
    std::unique_ptr<ParentKeys>& keys = parents_[name];
    if (!groups.empty()) keys = std::make_unique<ParentKeys>(file_.table, std::move(groups));
    return keys.get();
  }

  /// Where a group holds the parts of its parent's key, in the parent's order: under the parent's
  /// headings, or else in its own key column at the same place.
  std::vector<KeyPart> PartsOfParentKey(int groupIndex, int parentIndex) const {
    const Group& group = file_.table.At(groupIndex);
    const Group& parent = file_.table.At(parentIndex);
    std::vector<KeyPart> parts = KeyPartsOf(parent);
    for (std::size_t index = 0; index < parts.size(); ++index) {
      std::string_view heading = parent.HeadingAt(parts[index].column).name;
      if (heading.starts_with('?')) heading.remove_prefix(1);
      int column = file_.table.FindHeading(heading, groupIndex);
      if (column == 0 && index < group.keyColumns.size()) column = group.keyColumns[index];
      parts[index].column = column;
    }
    return parts;
  }

  void ReportRow(const RowPlace& place, std::span<const KeyPart> parts, std::string_view comparable,
                 const std::string& parentName, ParentKeys& parent,
                 const ParentRelation& relation) {
    const std::string& name = file_.table.At(place.group).name;
    const std::int32_t line = file_.table.RowLine(place.group, place.row);
    const MessagePlace messagePlace{place.group, place.row, 0};
    const std::string text = KeyTextOf(file_.table, place, parts);
    const std::optional<RowPlace> caseOnly = parent.FindIgnoringCase(comparable);
    if (caseOnly) {
      file_.log.AddMessage(line, ParentKeyCaseDiffers,
                           {name, text, parentName, parent.TextAsWritten(*caseOnly)}, messagePlace);
    } else {
      file_.log.AddMessage(line, relation.keyMissing, {name, text, parentName}, messagePlace);
    }
  }

  CheckedFile& file_;
  std::map<std::string, std::unique_ptr<ParentKeys>> parents_;
};

}  // namespace

std::vector<std::vector<std::int32_t>> SortGroupRows(const CheckedFile& file, int groupIndex) {
  const Group& group = file.table.At(groupIndex);
  const std::vector<KeyPart> parts = KeyPartsOf(group);
  const auto comparableKey = [&](const RowPlace& place, std::string& text) {
    MakeKeyText(file.table, place, parts, KeyForm::Comparable, text);
  };
  RowTextIndex index(static_cast<std::size_t>(group.rowCount), comparableKey);
  std::map<std::int32_t, std::vector<std::int32_t>> rowsByFirst;
  for (std::int32_t row = 1; row <= group.rowCount; ++row) {
    const std::optional<RowPlace> first = index.Insert({groupIndex, row});
    if (!first) continue;
    std::vector<std::int32_t>& rows = rowsByFirst[first->row];
    if (rows.empty()) rows.push_back(first->row);
    rows.push_back(row);
  }

  std::vector<std::pair<std::string, std::vector<std::int32_t>>> byKey;
  byKey.reserve(rowsByFirst.size());
  for (auto& [first, rows] : rowsByFirst) {
    std::string text;
    comparableKey({groupIndex, first}, text);
    byKey.emplace_back(std::move(text), std::move(rows));
  }
  std::sort(byKey.begin(), byKey.end(),
            [](const auto& left, const auto& right) { return left.first < right.first; });

  std::vector<std::vector<std::int32_t>> sorted;
  sorted.reserve(byKey.size());
  for (auto& [text, rows] : byKey)
    sorted.push_back(std::move(rows));
  return sorted;
}

void CheckDuplicateKeys(CheckedFile& file) {
  for (int groupIndex = 1; groupIndex <= file.table.GroupCount(); ++groupIndex) {
    const Group& group = file.table.At(groupIndex);
    if (!group.isKeyed) continue;
    for (const std::vector<std::int32_t>& rows : SortGroupRows(file, groupIndex)) {
      for (std::size_t index = 1; index < rows.size(); ++index) {
        const auto [firstLine, secondLine] =
            std::minmax({file.table.RowLine(groupIndex, rows[index - 1]),
                         file.table.RowLine(groupIndex, rows[index])});
        file.log.AddMessage(firstLine, KeyRepeated,
                            {group.name, file.table.KeyText(groupIndex, rows[index]), secondLine},
                            {groupIndex, rows[index - 1], 0});
      }
    }
  }
  file.log.CloseCheckSection(file.IsAgs4() ? "Duplicated keys check "
                                           : "Duplicated keys check (Rule 6b)");
}

void CheckParentKeys(CheckedFile& file) {
  ParentKeyCheck check(file);
  for (int group = 1; group <= file.table.GroupCount(); ++group)
    check.CheckGroup(group);
  file.log.CloseCheckSection(file.IsAgs4() ? "Parent keys check " : "Parent keys check (Rule 6c)");
}

const std::string& ParentGroupName(const CheckedFile& file, int dictionaryIndex) {
  const DictGroup& group = file.dictionary.Group(dictionaryIndex);
  if (file.isRtaEdition && !group.RelatedGroup.empty()) return group.RelatedGroup;
  if (file.isNzEdition && !group.SecondRelatedGroup.empty()) return group.SecondRelatedGroup;
  return group.ParentGroup;
}

}  // namespace quorvane
