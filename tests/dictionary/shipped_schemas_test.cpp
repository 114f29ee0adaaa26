#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "dictionary/dictionary_store.h"
#include "dictionary/facts_reader.h"
#include "dictionary/schema_file.h"
#include "run/system_disk.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Texts = std::vector<std::string>;

/// A group of an edition with its lines of facts.
struct FactsGroup {
  std::string name;
  std::string parent;
  std::vector<FactsHeading> headings;
};

bool IsKey(const FactsHeading& heading) {
  return heading.status == "KEY" || heading.status == "KEY+REQUIRED";
}

bool IsRequired(const FactsHeading& heading) {
  return heading.status == "REQUIRED" || heading.status == "KEY+REQUIRED";
}

/// DICT_DTYP holds data types, which are listed in TYPE and not in ABBR: it goes without its type.
std::string SchemaType(const FactsHeading& fact) {
  return fact.heading == "DICT_DTYP" ? "" : fact.type;
}

/// A location has no field for its project: it goes without its parent.
std::string SchemaParent(const FactsGroup& group) {
  return group.name == "LOCA" ? "" : group.parent;
}

/// Each schema file that comes with the program, loaded, beside the facts that it is made from.
class ShippedSchema : public testing::TestWithParam<SchemaEdition> {
 protected:
  ShippedSchema() {
    const std::string path =
        std::string(QUORVANE_SCHEMA_FOLDER) + "/" + std::string(GetParam().fileName);
    SystemDisk disk;
    const std::string stream = LoadAgsDataDictionaryFnS(disk, path, StreamSeparator, lists_);
    dictionary_ = ParseDictionaryStream(AgsFormat::Ags4, stream, StreamSeparator, lists_);

    const std::filesystem::path facts = std::filesystem::path(QUORVANE_SOURCE_FOLDER) / "data" /
                                        "ags4" / (std::string(GetParam().edition) + ".csv");
    for (FactsHeading& fact : ReadFacts(facts)) {
      if (groups_.empty() || groups_.back().name != fact.group) {
        groups_.push_back({fact.group, fact.parent, {}});
      }
      groups_.back().headings.push_back(std::move(fact));
    }
  }

  const DictGroup& InDictionary(std::size_t index) const {
    return dictionary_.Group(static_cast<int>(index) + 1);
  }

  template <typename Use>
  void ForEachFact(Use&& use) const {
    for (const FactsGroup& group : groups_) {
      for (const FactsHeading& heading : group.headings)
        use(heading);
    }
  }

  DictionaryLists lists_;
  AgsDictionary dictionary_;
  std::vector<FactsGroup> groups_;
};

TEST_P(ShippedSchema, HasAllGroupsInTheirOrder) {
  Texts expected;
  Texts found;
  for (const FactsGroup& group : groups_)
    expected.push_back(group.name);
  for (const DictGroup& group : dictionary_.Groups)
    found.push_back(group.Name);
  EXPECT_EQ(found, expected);
  EXPECT_GT(found.size(), 100U);
  EXPECT_EQ(std::set<std::string>(found.begin(), found.end()).size(), found.size());
}

TEST_P(ShippedSchema, HasAllHeadingsWithTheirUnitsAndTypes) {
  ASSERT_EQ(dictionary_.Groups.size(), groups_.size());
  for (std::size_t index = 0; index < groups_.size(); ++index) {
    Texts headings;
    Texts units;
    Texts types;
    for (const FactsHeading& fact : groups_[index].headings) {
      headings.push_back(fact.heading);
      units.push_back(ToSingleByte(fact.unit));
      types.push_back(SchemaType(fact));
    }
    EXPECT_EQ(InDictionary(index).Headings, headings) << groups_[index].name;
    EXPECT_EQ(InDictionary(index).Units, units) << groups_[index].name;
    EXPECT_EQ(InDictionary(index).Types, types) << groups_[index].name;
  }
}

TEST_P(ShippedSchema, HasTheKeysOfAllGroups) {
  ASSERT_EQ(dictionary_.Groups.size(), groups_.size());
  for (std::size_t index = 0; index < groups_.size(); ++index) {
    Texts keys;
    for (const FactsHeading& fact : groups_[index].headings) {
      if (IsKey(fact)) keys.push_back(fact.heading);
    }
    EXPECT_EQ(InDictionary(index).KeyHeadings, keys) << groups_[index].name;
    EXPECT_EQ(InDictionary(index).KeyCount, static_cast<int>(keys.size())) << groups_[index].name;
    EXPECT_EQ(InDictionary(index).NumericKeyPositions, "") << groups_[index].name;
  }
  EXPECT_THAT(dictionary_.LinkKeyHeadings, IsEmpty());
}

TEST_P(ShippedSchema, HasTheParentsOfAllGroups) {
  ASSERT_EQ(dictionary_.Groups.size(), groups_.size());
  for (std::size_t index = 0; index < groups_.size(); ++index) {
    const DictGroup& group = InDictionary(index);
    const std::string parent = SchemaParent(groups_[index]);
    EXPECT_EQ(group.ParentGroup, parent) << group.Name;
    EXPECT_EQ(group.RelatedGroup + group.SecondRelatedGroup, "") << group.Name;
    const int parentIndex = dictionary_.FindDictGroup(parent);
    EXPECT_EQ(parentIndex == 0, parent.empty()) << group.Name;
    const int parentKeyCount = parentIndex == 0 ? 0 : dictionary_.Group(parentIndex).KeyCount;
    EXPECT_EQ(group.ParentKeyCount, parentKeyCount) << group.Name;
  }
}

TEST_P(ShippedSchema, HasTheGroupsAndFieldsThatEveryFileMustHold) {
  EXPECT_THAT(dictionary_.RequiredGroups, ElementsAre("PROJ", "TRAN", "TYPE", "UNIT"));
  Texts fields;
  ForEachFact([&](const FactsHeading& fact) {
    if (IsRequired(fact)) fields.push_back(fact.group + "." + fact.heading);
  });
  EXPECT_FALSE(fields.empty());
  EXPECT_EQ(dictionary_.RequiredFields, fields);
}

TEST_P(ShippedSchema, HasThePickListHeadings) {
  Texts headings;
  ForEachFact([&](const FactsHeading& fact) {
    if (fact.type != "PA") return;
    if (std::find(headings.begin(), headings.end(), fact.heading) == headings.end()) {
      headings.push_back(fact.heading);
    }
  });
  EXPECT_FALSE(headings.empty());
  EXPECT_EQ(dictionary_.PickListHeadings, headings);
}

TEST_P(ShippedSchema, HasTheFieldsWhoseValuesAreUnits) {
  std::vector<std::pair<std::string, std::string>> fields;
  ForEachFact([&](const FactsHeading& fact) {
    if (fact.type == "PU") fields.emplace_back(fact.group, fact.heading);
  });
  EXPECT_FALSE(fields.empty());
  EXPECT_EQ(dictionary_.UnitFields, fields);
}

TEST_P(ShippedSchema, HasTheNumericHeadings) {
  std::unordered_set<std::string> headings;
  ForEachFact([&](const FactsHeading& fact) {
    if (!fact.unit.empty()) headings.insert(fact.heading);
  });
  EXPECT_FALSE(headings.empty());
  EXPECT_EQ(dictionary_.NumericHeadings, headings);
}

TEST_P(ShippedSchema, NamesTheLocationsAndReferenceGroups) {
  EXPECT_EQ(dictionary_.LocationGroup, "LOCA");
  EXPECT_EQ(dictionary_.LocationKey, "LOCA_ID");
  EXPECT_THAT(dictionary_.ReferenceGroups, ElementsAre("ABBR", "CODE", "DICT", "UNIT"));
  std::unordered_set<std::string> withoutLocation;
  for (const FactsGroup& group : groups_) {
    const bool hasLocation = std::any_of(
        group.headings.begin(), group.headings.end(),
        [](const FactsHeading& fact) { return fact.heading.find("LOCA_ID") != std::string::npos; });
    if (!hasLocation) withoutLocation.insert(group.name);
  }
  EXPECT_EQ(dictionary_.GroupsWithoutLocationKey, withoutLocation);
}

TEST_P(ShippedSchema, IsFoundByItsName) {
  EXPECT_EQ(
      EditionOfSchema(std::string(QUORVANE_SCHEMA_FOLDER) + "/" + std::string(GetParam().fileName)),
      GetParam().edition);
}

std::string EditionName(const testing::TestParamInfo<SchemaEdition>& info) {
  std::string name = "Edition" + std::string(info.param.edition);
  std::replace(name.begin(), name.end(), '.', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Editions, ShippedSchema, testing::ValuesIn(SchemaEditions), EditionName);

AgsDictionary LoadEdition(std::string_view fileName) {
  SystemDisk disk;
  DictionaryChoice choice;
  choice.format = AgsFormat::Ags4;
  choice.customSchema = std::string(QUORVANE_SCHEMA_FOLDER) + "/" + std::string(fileName);
  return BuildAgsDictionary(disk, choice, {});
}

TEST(ShippedSchemas, WriteTheMicroSignAsOneByte) {
  const AgsDictionary dictionary = LoadEdition("ags4 dict.gas");
  int micro = 0;
  for (const DictGroup& dictGroup : dictionary.Groups) {
    for (const std::string& unit : dictGroup.Units) {
      EXPECT_EQ(unit.find('\xC2'), std::string::npos) << dictGroup.Name;
      if (unit == "\xB5S/cm") ++micro;
    }
  }
  EXPECT_GT(micro, 0);
}

TEST(ShippedSchemas, LeaveOutTheTypeThatAnEditionDidNotPrint) {
  const AgsDictionary edition41 = LoadEdition("ags41 dict.gas");
  const AgsDictionary edition411 = LoadEdition("ags411 dict.gas");
  const auto typeIn = [](const AgsDictionary& dictionary) {
    return GetDictHeadingType(dictionary, dictionary.FindDictGroup("RSCH"), "RSCH_ORN");
  };
  EXPECT_NE(edition41.FindDictGroup("RSCH"), 0);
  EXPECT_EQ(typeIn(edition41), "");
  EXPECT_NE(typeIn(edition411), "");
}

}  // namespace
}  // namespace quorvane::test
