#include "dictionary/schema_file.h"

#include <algorithm>
#include <unordered_set>

#include "text/comma_list.h"
#include "text/text.h"

namespace quorvane {
namespace {

constexpr std::string_view FirstLine = "'Vexo Schema for AGS";
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

bool IsBlank(std::string_view text) {
  return Trim(text).empty();
}

class SchemaReader {
 public:
  SchemaReader(std::string_view separator, bool isCommaMode, DictionaryLists& lists)
      : separator_(separator), isCommaMode_(isCommaMode), lists_(lists) {
    lists_ = {};
    lists_.referenceGroups = {"ABBR", "CODE", "DICT", "UNIT"};
  }

  void ReadLine(std::string_view line) {
    if (line.starts_with('\'')) return;
    if (isCommaMode_) fields_ = Split(line, ",");
    if (EndsSection(line)) {
      if (section_ < Section::GroupDefinitions) {
        section_ = static_cast<Section>(static_cast<int>(section_) + 1);
      }
      return;
    }
    switch (section_) {
      case Section::LocationGroup:
        lists_.locationGroup = FirstField(line);
        break;
      case Section::LocationKey:
        lists_.locationKey = FirstField(line);
        break;
      case Section::RequiredGroups:
        lists_.requiredGroups.emplace_back(FirstField(line));
        break;
      case Section::RequiredFields:
        lists_.requiredFields.emplace_back(FirstField(line));
        break;
      case Section::GroupDefinitions:
        ReadDefinitionLine(line);
        break;
    }
  }

  std::string Finish() const {
    if (section_ != Section::GroupDefinitions || next_ != DefinitionLine::Name || stream_.empty()) {
      throw DictionaryError(
          "LoadAgsDataDictionaryFnS: the schema file ends too early" +
          (groupName_.empty() ? std::string() : ", in or behind group '" + groupName_ + "'") + ".");
    }
    return stream_.substr(separator_.size());
  }

 private:
  enum class Section {
    LocationGroup,
    LocationKey,
    RequiredGroups,
    RequiredFields,
    GroupDefinitions
  };
  enum class DefinitionLine { Name, Key, Headings, Units, Types };

  bool EndsSection(std::string_view line) const {
    if (line.empty()) return true;
    // The first units of a group may well be empty.
    if (!isCommaMode_ || next_ == DefinitionLine::Units) return false;
    return IsBlank(fields_[0]) && (fields_.size() < 2 || IsBlank(fields_[1]));
  }

  std::string_view FirstField(std::string_view line) const {
    return isCommaMode_ ? fields_.front() : line;
  }

  void ReadDefinitionLine(std::string_view line) {
    switch (next_) {
      case DefinitionLine::Name:
        groupName_ = FirstField(line);
        AddItem(groupName_);
        next_ = DefinitionLine::Key;
        break;
      case DefinitionLine::Key:
        AddItem(KeyItem(line));
        next_ = DefinitionLine::Headings;
        break;
      case DefinitionLine::Headings:
        ReadHeadings(line);
        next_ = DefinitionLine::Units;
        break;
      case DefinitionLine::Units:
        ReadUnits(line);
        next_ = DefinitionLine::Types;
        break;
      case DefinitionLine::Types:
        ReadTypes(line);
        next_ = DefinitionLine::Name;
        break;
    }
  }

  std::string KeyItem(std::string_view line) const {
    std::vector<std::string_view> fields = Split(line, ",");
    if (isCommaMode_) fields.resize(std::min<std::size_t>(fields.size(), 3));
    if (fields.size() == 3 && fields.back().empty()) fields.pop_back();
    return Join(fields, ",");
  }

  void ReadHeadings(std::string_view line) {
    std::vector<std::string_view> headings = Split(line, ",");
    if (isCommaMode_)
      headings.erase(std::find(headings.begin(), headings.end(), ""), headings.end());
    headings_.assign(headings.begin(), headings.end());
    AddItem(Join(headings_, ","));
  }

  /// The fields of a units or types line: one per heading, or the box that says otherwise.
  std::vector<std::string_view> FieldsPerHeading(std::string_view line, std::string_view what,
                                                 bool showCounts) const {
    std::vector<std::string_view> fields = Split(line, ",");
    if (isCommaMode_) {
      fields.resize(std::min(fields.size(), headings_.size()));
    } else if (fields.size() != headings_.size()) {
      std::string text = "Group: " + groupName_;
      text.append(LineBreak).append("Number of ").append(what);
      text.append(" doesn't match the number of headings");
      if (showCounts) {
        text.append(LineBreak).append("Fields = ").append(std::to_string(fields.size()));
        text.append(" Headings = ").append(std::to_string(headings_.size()));
      }
      throw DictionaryError(text);
    }
    return fields;
  }

  void ReadUnits(std::string_view line) {
    const std::vector<std::string_view> units = FieldsPerHeading(line, "units", true);
    for (std::size_t index = 0; index < units.size(); ++index) {
      if (!units[index].empty() && knownNumeric_.insert(headings_[index]).second) {
        lists_.numericHeadings.push_back(headings_[index]);
      }
    }
    AddItem(Join(units, ","));
  }

  void ReadTypes(std::string_view line) {
    const std::vector<std::string_view> types = FieldsPerHeading(line, "types", false);
    for (std::size_t index = 0; index < types.size(); ++index) {
      const std::string& heading = headings_[index];
      if (types[index] == "PU") lists_.unitFields.emplace_back(groupName_, heading);
      const bool isPickList = types[index] == "PA" || types[index] == "PT";
      if (isPickList && knownPickList_.insert(heading).second) {
        lists_.pickListHeadings.push_back(heading);
      }
    }
    AddItem(Join(types, ","));
  }

  void AddItem(std::string_view item) { stream_.append(separator_).append(item); }

  std::string separator_;
  bool isCommaMode_;
  DictionaryLists& lists_;
  std::vector<std::string_view> fields_;  // of the line being read, in comma mode
  Section section_ = Section::LocationGroup;
  DefinitionLine next_ = DefinitionLine::Name;
  std::string groupName_;
  std::vector<std::string> headings_;
  std::unordered_set<std::string> knownNumeric_;
  std::unordered_set<std::string> knownPickList_;
  std::string stream_;
};

}  // namespace

std::string LoadAgsDataDictionaryFnS(Disk& disk, const std::string& path,
                                     std::string_view separator, DictionaryLists& lists) {
  const Disk::Reading reading = disk.Read(path);
  if (reading.failure) {
    throw DictionaryError("LoadAgsDataDictionaryFnS: " + reading.failure->description);
  }
  std::string_view text = reading.content.View();
  if (text.starts_with(ByteOrderMark)) text.remove_prefix(ByteOrderMark.size());

  const std::vector<std::string_view> lines = SplitLines(text);
  const std::string_view firstLine = lines.empty() ? std::string_view() : Trim(lines.front());
  if (firstLine.substr(0, firstLine.find(',')) != FirstLine) {
    throw DictionaryError("Not a Vexo AGS Schema file, first line not" + std::string(LineBreak) +
                          std::string(FirstLine));
  }
  const bool isCommaMode = firstLine.find(',') != std::string_view::npos;
  SchemaReader reader(separator, isCommaMode, lists);
  for (const std::string_view line : lines)
    reader.ReadLine(Trim(line));
  return reader.Finish();
}

}  // namespace quorvane
