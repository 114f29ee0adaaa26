#include "run/edition_count.h"

#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "run/message_log_fixture.h"
#include "text/comma_list.h"

namespace quorvane::test {
namespace {

using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

constexpr std::string_view Names =
    "\"GROUP\",\"PROJ\"\n\"HEADING\",\"PROJ_ID\",\"PROJ_NAME\"\n\"UNIT\",\"\",\"\"\n"
    "\"TYPE\",\"ID\",\"X\"\n\"DATA\",\"P1\",\"HEADING\"\n\n"
    "\"GROUP\",\"OWNG\"\n\"HEADING\",\"PROJ_ID\",\"OWNG_TOP\"\n\"DATA\",\"P1\",\"1\"\n";

TEST(CollectNames, AreThoseOfGroupAndHeadingRows) {
  EXPECT_THAT(CollectNames(TextOf(Names)),
              UnorderedElementsAre(Pair("PROJ", UnorderedElementsAre("PROJ_ID", "PROJ_NAME")),
                                   Pair("OWNG", UnorderedElementsAre("PROJ_ID", "OWNG_TOP"))));
}

TEST(CollectNames, AreTrimmedAndInUpperCase) {
  EXPECT_THAT(CollectNames(TextOf("\"group\",\" Proj \"  \n\"Heading\",\" proj_id \",\"  \"\n")),
              UnorderedElementsAre(Pair("PROJ", UnorderedElementsAre("PROJ_ID"))));
}

TEST(CollectNames, OfAGroupThatIsRepeatedAreThoseOfOneGroup) {
  EXPECT_THAT(CollectNames(TextOf("\"GROUP\",\"PROJ\"\n\"HEADING\",\"PROJ_ID\"\n"
                                  "\"GROUP\",\"PROJ\"\n\"HEADING\",\"PROJ_ID\",\"PROJ_LOC\"\n")),
              UnorderedElementsAre(Pair("PROJ", UnorderedElementsAre("PROJ_ID", "PROJ_LOC"))));
}

TEST(CollectNames, LeaveOutWhatBelongsToNoGroup) {
  EXPECT_THAT(CollectNames(TextOf("")), IsEmpty());
  EXPECT_THAT(CollectNames(TextOf("\"HEADING\",\"PROJ_ID\"\n\"GROUP\"\n\"HEADING\",\"PROJ_ID\"\n")),
              IsEmpty());
  EXPECT_THAT(CollectNames(TextOf("GROUP,PROJ\nHEADING,PROJ_ID\n")), IsEmpty())
      << "rows whose labels are not quoted are none to the checks either";
}

/// A dictionary of one group.
AgsDictionary DictionaryOf(const std::string& group, std::vector<std::string> headings) {
  DictGroup entry;
  entry.Name = group;
  entry.Headings = std::move(headings);
  AgsDictionary dictionary;
  dictionary.AddGroup(std::move(entry));
  return dictionary;
}

void ExpectCount(const NameCount& count, std::size_t groups, std::size_t headings) {
  EXPECT_EQ(count.groups, groups);
  EXPECT_EQ(count.headings, headings);
}

TEST(CountNames, CountsHeadingsGroupByGroup) {
  ExpectCount(CountNames(CollectNames(TextOf(Names))), 2, 4);
  ExpectCount(CountNames({}), 0, 0);
}

TEST(CountKnownNames, CountsHeadingsInTheirOwnGroupOnly) {
  const UsedNames names = CollectNames(TextOf(Names));
  ExpectCount(CountKnownNames(names, DictionaryOf("PROJ", {"PROJ_ID", "PROJ_NAME", "PROJ_LOC"})), 1,
              2);
  ExpectCount(CountKnownNames(names, DictionaryOf("PROJ", {"OWNG_TOP"})), 1, 0);
  ExpectCount(CountKnownNames(names, DictionaryOf("HOLE", {"PROJ_ID"})), 0, 0);
}

TEST(CountKnownNames, KnowsHeadingsThatTheDictionaryNamesOtherwise) {
  const UsedNames names{{"DPRG", {"DRPG_CONE"}}};
  ExpectCount(CountKnownNames(names, DictionaryOf("DPRG", {"DPRG_CONE"})), 1, 1);
}

class EditionTableTest : public testing::Test {
 protected:
  EditionTableTest() {
    for (const SchemaEdition& edition : SchemaEditions)
      PutSchema(edition.edition, {"PROJ_ID"});
  }

  /// A schema that knows the group PROJ with these headings.
  void PutSchema(std::string_view edition, const std::vector<std::string_view>& headings) {
    const std::vector<std::string_view> types(headings.size(), "X");
    const std::string text =
        "'Vexo Schema for AGS\nLOCA\n\nLOCA_ID\n\nPROJ\n\nPROJ.PROJ_ID\n\nPROJ\n,1\n" +
        Join(headings, ",") + "\n" + Join(types, ",") + "\n" + Join(types, ",") + "\n";
    disk_.files["/program/" + std::string(FindSchemaEdition(edition)->fileName)] = text;
  }

  std::string TableOf(std::string_view text) { return EditionTable(TextOf(text), dictionaries_); }

  MemoryDisk disk_;
  DictionaryStore dictionaries_{disk_, "/program"};
};

TEST_F(EditionTableTest, MarksTheEditionsThatKnowMost) {
  PutSchema("4.1", {"PROJ_ID", "PROJ_NAME"});
  PutSchema("4.2", {"PROJ_ID", "PROJ_NAME", "PROJ_LOC"});
  EXPECT_EQ(TableOf(Names),
            "  Edition  Groups          Headings\r\n"
            "  4.0.3    1 of 2          1 of 4\r\n"
            "  4.0.4    1 of 2          1 of 4\r\n"
            "  4.1      1 of 2          2 of 4          most\r\n"
            "  4.1.1    1 of 2          1 of 4\r\n"
            "  4.2      1 of 2          2 of 4          most\r\n");
}

TEST_F(EditionTableTest, MarksNoneWhereNoneKnowsAnything) {
  EXPECT_EQ(TableOf("\"GROUP\",\"OWNG\"\n\"HEADING\",\"OWNG_TOP\"\n").find("most"),
            std::string::npos);
  EXPECT_EQ(TableOf("").find("most"), std::string::npos);
}

TEST_F(EditionTableTest, NeedsEverySchema) {
  disk_.files.erase("/program/ags42 dict.gas");
  EXPECT_THROW(TableOf(Names), DictionaryError);
}

}  // namespace
}  // namespace quorvane::test
