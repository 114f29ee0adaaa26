#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include "rules/key_messages.h"
#include "rules/key_text.h"
#include "rules/keys.h"
#include "text/text.h"

namespace quorvane {
namespace {

/// The keys of all groups that bear a parent's name, found by their text or, where that fails, by
/// their text in any letter case. The indices are made when they are first needed: in most files
/// children stand in their parents' order and have parents.
class ParentKeys {
 public:
  ParentKeys(const GroupTable& table, std::vector<int> groups)
      : table_(table), groups_(std::move(groups)) {
    for (const int group : groups_)
      parts_.emplace(group, KeyPartsOf(table_.At(group)));
  }

  ParentKeys(const ParentKeys&) = delete;
  ParentKeys& operator=(const ParentKeys&) = delete;

  bool Contains(KeyReader& key) {
    if (StandsAhead(key)) return true;
    if (!exact_) {
      if (!BeginsLikeAny(key.Text())) return false;
      exact_ = MakeIndex(false);
    }
    const std::optional<RowPlace> found = exact_->Find(key.Text());
    if (found && found->group == FirstGroup()) lastParent_ = found->row;
    return found.has_value();
  }

  /// The first row, in group and row order, whose key differs in letter case at the most.
  std::optional<RowPlace> FindIgnoringCase(std::string_view key) {
    if (!BeginsLikeAny(key)) return std::nullopt;
    if (!ignoringCase_) ignoringCase_ = MakeIndex(true);
    return ignoringCase_->Find(UpperCase(key));
  }

  std::string TextAsWritten(const RowPlace& place) const {
    return KeyAsWritten(table_, place, parts_.at(place.group));
  }

  /// The first group of the name, after which the keys that refer to it are made.
  int FirstGroup() const { return groups_.front(); }

  /// Rows of another group follow: theirs begin with the first parents again.
  void Restart() { lastParent_ = 0; }

 private:
  struct TextOfRow {
    const ParentKeys& keys;
    bool inUpperCase;

    void operator()(const RowPlace& place, std::string& text) const {
      MakeComparableKey(keys.table_, place, keys.parts_.at(place.group), text);
      if (inUpperCase) std::transform(text.begin(), text.end(), text.begin(), ToUpper);
    }
  };
  using Index = RowTextIndex<TextOfRow>;

  std::size_t RowCount() const {
    std::size_t rowCount = 0;
    for (const int group : groups_)
      rowCount += static_cast<std::size_t>(table_.At(group).rowCount);
    return rowCount;
  }

  /// Whether some key has the same beginning, in any letter case, up to the first comma: a key has
  /// one behind its first part at the latest. Most keys without a parent name a hole that is not
  /// there, which the few beginnings tell without an index of all rows.
  bool BeginsLikeAny(std::string_view key) {
    if (parts_.at(FirstGroup()).size() < 2) return true;
    if (beginnings_.empty()) ReadBeginnings();
    return beginnings_.contains(BeginningOf(key));
  }

  static std::string BeginningOf(std::string_view key) {
    return UpperCase(key.substr(0, key.find(',')));
  }

  void ReadBeginnings() {
    for (const int group : groups_) {
      const std::vector<KeyPart>& parts = parts_.at(group);
      KeyReader firstPart(table_, std::span(parts).first(std::min<std::size_t>(1, parts.size())));
      for (std::int32_t row = 1; row <= table_.At(group).rowCount; ++row) {
        if (firstPart.TurnTo({group, row})) beginnings_.insert(BeginningOf(firstPart.Text()));
      }
    }
  }

  std::unique_ptr<Index> MakeIndex(bool inUpperCase) const {
    auto index = std::make_unique<Index>(RowCount(), TextOfRow{*this, inUpperCase});
    std::string text;
    for (const int group : groups_) {
      KeyReader key(table_, parts_.at(group));
      for (std::int32_t row = 1; row <= table_.At(group).rowCount; ++row) {
        const RowPlace place{group, row};
        if (!key.TurnTo(place)) continue;
        text = key.Text();
        if (inUpperCase) std::transform(text.begin(), text.end(), text.begin(), ToUpper);
        index->Insert(place, text);
      }
    }
    return index;
  }

  /// Children mostly stand in their parents' order, a few parents having none: looking at the rows
  /// ahead spares most searches in an index, whose memory is far away.
  bool StandsAhead(KeyReader& key) {
    constexpr std::int32_t mostSteps = 8;
    const std::span<const KeyPart> parts = parts_.at(FirstGroup());
    const std::int32_t last = std::min(lastParent_ + mostSteps, table_.At(FirstGroup()).rowCount);
    for (std::int32_t row = lastParent_ + 1; row <= last; ++row) {
      table_.FetchAhead(FirstGroup(), row);
      if (!key.HasValuesOf({FirstGroup(), row}, parts)) continue;
      lastParent_ = row;
      return true;
    }
    // Behind a child without a parent, those of the last parent go on.
    return lastParent_ > 0 && key.HasValuesOf({FirstGroup(), lastParent_}, parts);
  }

  const GroupTable& table_;
  std::vector<int> groups_;
  std::map<int, std::vector<KeyPart>> parts_;
  std::unordered_set<std::string> beginnings_;
  std::unique_ptr<Index> exact_;
  std::unique_ptr<Index> ignoringCase_;
  std::int32_t lastParent_ = 0;  // the row of the first group that was found last
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
    parent->Restart();
    KeyReader key(file_.table, parts);
    bool isMissing = false;
    for (std::int32_t row = 1; row <= file_.table.At(groupIndex).rowCount; ++row) {
      const RowPlace place{groupIndex, row};
      file_.table.FetchAhead(groupIndex, row);
      // Rows of one parent mostly stand together.
      if (key.TurnTo(place)) isMissing = key.HasValue() && !parent->Contains(key);
      if (isMissing) ReportRow(place, parts, key.Text(), parentName, *parent, relation);
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
    const std::string text = KeyAsWritten(file_.table, place, parts);
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
