#include "dictionary/dictionary_store.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_services.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;

/// A schema that differs from others by the name of its one group.
std::string SchemaWith(const std::string& group) {
  return "'Vexo Schema for AGS\r\nLOCA\r\n\r\nLOCA_ID\r\n\r\nPROJ\r\n\r\nPROJ.PROJ_ID\r\n\r\n" +
         group + "\r\n,1\r\nLOCA_ID\r\nm\r\nID\r\n";
}

/// A disk that counts how often each file is read.
class CountingDisk : public MemoryDisk {
 public:
  Reading Read(const std::string& path) override {
    ++reads[path];
    return MemoryDisk::Read(path);
  }

  std::map<std::string, int> reads;
};

DictionaryChoice Ags3(const std::string& customSchema = {}) {
  return {AgsFormat::Ags3, false, customSchema};
}

DictionaryChoice Ags4(const std::string& customSchema = {}) {
  return {AgsFormat::Ags4, false, customSchema};
}

DictionaryChoice Ags404(const std::string& customSchema = {}) {
  return {AgsFormat::Ags4, true, customSchema};
}

TEST(SchemaPath, IsEmptyForTheAgs3DictionaryOfTheProgram) {
  EXPECT_EQ(SchemaPath(Ags3(), "/program"), "");
  EXPECT_EQ(SchemaPath(Ags3("   "), "/program"), "");
}

TEST(SchemaPath, LiesInTheProgramFolderForAgs4) {
  EXPECT_EQ(SchemaPath(Ags4(), "/program"), InProgramFolder("ags4 dict.gas"));
  EXPECT_EQ(SchemaPath(Ags404(), "/program"), InProgramFolder("ags404 dict.gas"));
  EXPECT_EQ(SchemaPath(Ags4("  "), "/program"), InProgramFolder("ags4 dict.gas"));
}

TEST(SchemaPath, ACustomSchemaGoesFirst) {
  EXPECT_EQ(SchemaPath(Ags3("own.gas"), "/program"), "own.gas");
  EXPECT_EQ(SchemaPath(Ags4("own.gas"), "/program"), "own.gas");
  EXPECT_EQ(SchemaPath(Ags404("  my folder/own.gas "), "/program"), "my folder/own.gas");
}

TEST(SchemaPath, IsThatOfTheEditionWantedForAgs4) {
  for (const SchemaEdition& edition : SchemaEditions) {
    for (const bool isAgs404 : {false, true}) {
      EXPECT_EQ(SchemaPath({AgsFormat::Ags4, isAgs404, {}, &edition}, "/program"),
                InProgramFolder(std::string(edition.fileName)));
    }
    EXPECT_EQ(SchemaPath({AgsFormat::Ags3, false, {}, &edition}, "/program"), "");
    EXPECT_EQ(SchemaPath({AgsFormat::Ags4, false, "own.gas", &edition}, "/program"), "own.gas");
  }
}

class Store : public testing::Test {
 protected:
  Store() {
    disk_.files["/program/ags4 dict.gas"] = SchemaWith("OLDR");
    disk_.files["/program/ags404 dict.gas"] = SchemaWith("NEWR");
    disk_.files["own.gas"] = SchemaWith("OWNG");
  }

  std::string FirstGroup(const DictionaryChoice& choice) {
    return store_.Get(choice).Group(1).Name;
  }

  CountingDisk disk_;
  DictionaryStore store_{disk_, "/program"};
};

TEST_F(Store, GivesTheDictionaryOfTheChoice) {
  EXPECT_EQ(FirstGroup(Ags3()), "ABBR");
  EXPECT_EQ(FirstGroup(Ags4()), "OLDR");
  EXPECT_EQ(FirstGroup(Ags404()), "NEWR");
  EXPECT_EQ(FirstGroup(Ags3("own.gas")), "OWNG");
  EXPECT_EQ(FirstGroup(Ags4("own.gas")), "OWNG");
  EXPECT_EQ(FirstGroup(Ags404("own.gas")), "OWNG");
  EXPECT_EQ(store_.Get(Ags3()).GroupCount(), 73);
}

TEST_F(Store, GivesTheListsOfTheSchema) {
  const AgsDictionary& dictionary = store_.Get(Ags4("own.gas"));
  EXPECT_EQ(dictionary.LocationGroup, "LOCA");
  EXPECT_EQ(dictionary.LocationKey, "LOCA_ID");
  EXPECT_THAT(dictionary.RequiredGroups, ElementsAre("PROJ"));
  EXPECT_THAT(dictionary.RequiredFields, ElementsAre("PROJ.PROJ_ID"));
  EXPECT_THAT(dictionary.ReferenceGroups, ElementsAre("ABBR", "CODE", "DICT", "UNIT"));
  EXPECT_TRUE(dictionary.NumericHeadings.contains("LOCA_ID"));
}

TEST_F(Store, ReadsASchemaOnceInARun) {
  const AgsDictionary& first = store_.Get(Ags4());
  const AgsDictionary& again = store_.Get(Ags4());
  EXPECT_EQ(&first, &again);
  EXPECT_EQ(&store_.Get(Ags4("own.gas")), &store_.Get(Ags404("own.gas ")));
  EXPECT_EQ(disk_.reads[InProgramFolder("ags4 dict.gas")], 1);
  EXPECT_EQ(disk_.reads["own.gas"], 1);
}

TEST_F(Store, ReadsOnlyWhatIsAskedFor) {
  store_.Get(Ags3());
  EXPECT_TRUE(disk_.reads.empty());
}

TEST_F(Store, KeepsTheDictionariesOfBothFormatsApart) {
  EXPECT_NE(&store_.Get(Ags3("own.gas")), &store_.Get(Ags4("own.gas")));
}

TEST_F(Store, NamesAMissingSchemaByTheSystemsText) {
  disk_.files.erase("/program/ags4 dict.gas");
  for (int attempt = 1; attempt <= 2; ++attempt) {
    try {
      store_.Get(Ags4());
      FAIL() << "the schema is missing";
    } catch (const DictionaryError& failure) {
      EXPECT_STREQ(failure.what(), "LoadAgsDataDictionaryFnS: No such file or directory");
    }
  }
}

TEST_F(Store, DoesNotKeepWhatCouldNotBeBuilt) {
  disk_.files["own.gas"] = "rubbish";
  EXPECT_THROW(store_.Get(Ags4("own.gas")), DictionaryError);
  disk_.files["own.gas"] = SchemaWith("MEND");
  EXPECT_EQ(FirstGroup(Ags4("own.gas")), "MEND");
}

TEST_F(Store, KnowsItsProgramFolder) {
  EXPECT_EQ(store_.ProgramFolder(), "/program");
}

}  // namespace
}  // namespace quorvane::test
