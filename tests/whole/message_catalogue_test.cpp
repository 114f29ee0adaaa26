#include "run/message_catalogue.h"

#include <algorithm>
#include <fstream>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "support/all_provocations.h"

namespace quorvane::test {
namespace {

std::string NameOf(const MessageDefinition& definition, AgsFormat format) {
  return std::string(definition.id) + (format == AgsFormat::Ags4 ? " in AGS 4" : " in AGS 3");
}

/// Every place for a value is a single digit in braces, and all places from 0 up are there.
bool HasSoundPlaces(std::string_view text) {
  for (std::size_t open = text.find('{'); open != std::string_view::npos;
       open = text.find('{', open + 1)) {
    if (open + 2 >= text.size() || text[open + 1] < '0' || text[open + 1] > '9' ||
        text[open + 2] != '}') {
      return false;
    }
  }
  return true;
}

TEST(MessageCatalogue, IdsAreUniqueAndTextsComplete) {
  std::set<std::string_view> ids;
  for (const MessageDefinition* definition : MessageCatalogue()) {
    EXPECT_TRUE(ids.insert(definition->id).second) << definition->id;
    EXPECT_TRUE(definition->ags3.Exists() || definition->ags4.Exists()) << definition->id;
    EXPECT_FALSE(definition->meaning.empty()) << definition->id;
    EXPECT_FALSE(definition->remedy.empty()) << definition->id;
    EXPECT_TRUE(HasSoundPlaces(definition->ags3.text)) << definition->id;
    EXPECT_TRUE(HasSoundPlaces(definition->ags4.text)) << definition->id;
  }
}

/// Lists of waivers and baselines name kinds of findings by their ids: one that is renamed or taken
/// out would make them worthless without a word. A new one is added to the list.
TEST(MessageCatalogue, IdsStayWhatTheyAre) {
  std::ifstream file(QUORVANE_SOURCE_FOLDER "/tests/whole/message-ids.txt");
  std::set<std::string> listed;
  for (std::string id; std::getline(file, id);)
    listed.insert(id);
  std::set<std::string> ids;
  for (const MessageDefinition* definition : MessageCatalogue())
    ids.emplace(definition->id);
  EXPECT_EQ(ids, listed);
}

TEST(MessageCatalogue, EveryKindOfFindingIsProvoked) {
  const Provocations provocations = AllProvocations();
  for (const MessageDefinition* definition : MessageCatalogue()) {
    for (const AgsFormat format : {AgsFormat::Ags3, AgsFormat::Ags4}) {
      if (!definition->In(format).Exists()) continue;
      const bool isProvoked = std::any_of(
          provocations.begin(), provocations.end(), [&](const Provocation& provocation) {
            return provocation.definition == definition && provocation.format == format;
          });
      EXPECT_TRUE(isProvoked) << "nothing provokes " << NameOf(*definition, format);
    }
  }
}

TEST(MessageCatalogue, ProvokedFindingsAreToTheLetter) {
  const std::vector<const MessageDefinition*> catalogue = MessageCatalogue();
  for (const Provocation& provocation : AllProvocations()) {
    const std::string name = NameOf(*provocation.definition, provocation.format);
    EXPECT_NE(std::find(catalogue.begin(), catalogue.end(), provocation.definition),
              catalogue.end())
        << name << " is not in the catalogue";
    const CheckResult result = provocation.check();
    EXPECT_TRUE(result.Has(provocation.finding)) << name << "\n" << result.log;
  }
}

}  // namespace
}  // namespace quorvane::test
