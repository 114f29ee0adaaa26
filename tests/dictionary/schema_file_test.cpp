#include "dictionary/schema_file.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_services.h"
#include "text/comma_list.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::StartsWith;

using Texts = std::vector<std::string>;

const std::string NotASchemaFile =
    "Not a Vexo AGS Schema file, first line not\r\n'Vexo Schema for AGS";

/// What the loader made of a schema file.
struct Loaded {
  std::string stream;
  DictionaryLists lists;
  std::string failure;  // empty when it was loaded
};

Loaded LoadBytes(const std::string& bytes) {
  MemoryDisk disk;
  disk.files["custom.gas"] = bytes;
  Loaded loaded;
  try {
    loaded.stream = LoadAgsDataDictionaryFnS(disk, "custom.gas", "!", loaded.lists);
  } catch (const DictionaryError& failure) {
    loaded.failure = failure.what();
  }
  return loaded;
}

Loaded Load(const Texts& lines) {
  return LoadBytes(Join(lines, LineBreak));
}

/// The header sections of a schema, ready to be followed by group definitions.
Texts Header() {
  return {"'Vexo Schema for AGS", "LOCA",          "", "LOCA_ID", "", "PROJ", "TRAN", "",
          "PROJ.PROJ_ID",         "TRAN.TRAN_AGS", ""};
}

Texts operator+(Texts left, const Texts& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

const Texts LocaGroup{"LOCA", ",1", "LOCA_ID,LOCA_TYPE,LOCA_GL", ",,m", "ID,PA,2DP"};
const Texts SampGroup{"SAMP", "LOCA,2", "LOCA_ID,SAMP_TOP,SAMP_REM", ",m,", "ID,2DP,X"};
const std::string LocaStream = "LOCA!,1!LOCA_ID,LOCA_TYPE,LOCA_GL!,,m!ID,PA,2DP";
const std::string SampStream = "SAMP!LOCA,2!LOCA_ID,SAMP_TOP,SAMP_REM!,m,!ID,2DP,X";

TEST(SchemaFile, GivesTheStreamOfItsGroups) {
  const Loaded loaded = Load(Header() + LocaGroup + SampGroup);
  EXPECT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.stream, LocaStream + "!" + SampStream);
}

TEST(SchemaFile, GivesItsSectionsInOrder) {
  const DictionaryLists lists = Load(Header() + LocaGroup).lists;
  EXPECT_EQ(lists.locationGroup, "LOCA");
  EXPECT_EQ(lists.locationKey, "LOCA_ID");
  EXPECT_THAT(lists.requiredGroups, ElementsAre("PROJ", "TRAN"));
  EXPECT_THAT(lists.requiredFields, ElementsAre("PROJ.PROJ_ID", "TRAN.TRAN_AGS"));
  EXPECT_THAT(lists.referenceGroups, ElementsAre("ABBR", "CODE", "DICT", "UNIT"));
  EXPECT_THAT(lists.relatedGroups, IsEmpty());
  EXPECT_THAT(lists.secondRelatedGroups, IsEmpty());
}

TEST(SchemaFile, TakesTheLastLineForTheLocationGroup) {
  const Loaded loaded = Load(Texts{"'Vexo Schema for AGS", "PROJ", "LOCA", "", "LOCA_ID", "",
                                   "PROJ", "", "PROJ.PROJ_ID", ""} +
                             LocaGroup);
  EXPECT_EQ(loaded.lists.locationGroup, "LOCA");
  EXPECT_EQ(loaded.lists.locationKey, "LOCA_ID");
}

TEST(SchemaFile, AHeaderSectionMayBeEmpty) {
  const Loaded loaded =
      Load(Texts{"'Vexo Schema for AGS", "LOCA", "", "LOCA_ID", "", "", ""} + LocaGroup);
  EXPECT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.stream, LocaStream);
  EXPECT_THAT(loaded.lists.requiredGroups, IsEmpty());
  EXPECT_THAT(loaded.lists.requiredFields, IsEmpty());
}

TEST(SchemaFile, ForgetsTheListsOfAnEarlierSchema) {
  MemoryDisk disk;
  disk.files["custom.gas"] = Join(Header() + LocaGroup, LineBreak);
  DictionaryLists lists;
  lists.requiredGroups = {"OLD"};
  lists.pickListHeadings = {"OLD_TYPE"};
  lists.relatedGroups = {"OLD,ONE"};
  LoadAgsDataDictionaryFnS(disk, "custom.gas", "!", lists);
  EXPECT_THAT(lists.requiredGroups, ElementsAre("PROJ", "TRAN"));
  EXPECT_THAT(lists.pickListHeadings, ElementsAre("LOCA_TYPE"));
  EXPECT_THAT(lists.relatedGroups, IsEmpty());
}

TEST(SchemaFile, AnySeparatorServes) {
  MemoryDisk disk;
  disk.files["custom.gas"] = Join(Header() + LocaGroup, LineBreak);
  DictionaryLists lists;
  EXPECT_EQ(LoadAgsDataDictionaryFnS(disk, "custom.gas", "::", lists),
            ReplaceAll(LocaStream, "!", "::"));
}

TEST(SchemaFile, NumericHeadingsHaveAUnitAndAreNamedOnce) {
  const Texts again{"CORE", "LOCA,1", "LOCA_ID,SAMP_TOP,CORE_DIAM", ",m,mm", "ID,2DP,0DP"};
  EXPECT_THAT(Load(Header() + LocaGroup + SampGroup + again).lists.numericHeadings,
              ElementsAre("LOCA_GL", "SAMP_TOP", "CORE_DIAM"));
}

TEST(SchemaFile, PickListHeadingsAreOfTypePaOrPtAndAreNamedOnce) {
  const Texts dict{"DICT", ",1", "DICT_TYPE,DICT_DTYP,DICT_STAT,DICT_REM", ",,,", "PA,PT,PA,pa"};
  const Texts again{"HDPH", "LOCA,1", "LOCA_ID,LOCA_TYPE,HDPH_TYPE", ",,", "ID,PA,PAX"};
  EXPECT_THAT(Load(Header() + LocaGroup + dict + again).lists.pickListHeadings,
              ElementsAre("LOCA_TYPE", "DICT_TYPE", "DICT_DTYP", "DICT_STAT"));
}

TEST(SchemaFile, UnitFieldsAreOfTypePuAndKeepTheirGroups) {
  const Texts one{"ELRG", "LOCA,1", "LOCA_ID,ELRG_RUNI,ELRG_X", ",,", "ID,PU,X"};
  const Texts two{"GCHM", "LOCA,1", "LOCA_ID,ELRG_RUNI,GCHM_UNIT", ",,", "ID,PU,PU"};
  EXPECT_THAT(
      Load(Header() + one + two).lists.unitFields,
      ElementsAre(Pair("ELRG", "ELRG_RUNI"), Pair("GCHM", "ELRG_RUNI"), Pair("GCHM", "GCHM_UNIT")));
}

// Comments and blank lines.

TEST(SchemaFile, CommentsStandAnywhereWithoutChangingAnything) {
  const Texts lines = Header() + LocaGroup + SampGroup;
  Texts commented{lines.front()};
  for (std::size_t index = 1; index < lines.size(); ++index) {
    commented.push_back("'a comment, with a comma");
    commented.push_back("  ' an indented one");
    commented.push_back(lines[index]);
  }
  commented.push_back("'");
  const Loaded plain = Load(lines);
  const Loaded loaded = Load(commented);
  EXPECT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.stream, plain.stream);
  EXPECT_EQ(loaded.lists.requiredGroups, plain.lists.requiredGroups);
  EXPECT_EQ(loaded.lists.requiredFields, plain.lists.requiredFields);
}

TEST(SchemaFile, BlankLinesBetweenAndInsideGroupsAreIgnored) {
  Texts lines = Header() + Texts{"", "", ""};
  for (const std::string& line : LocaGroup + SampGroup) {
    lines.push_back(line);
    lines.emplace_back("");
    lines.emplace_back("   ");
  }
  const Loaded loaded = Load(lines);
  EXPECT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.stream, LocaStream + "!" + SampStream);
}

TEST(SchemaFile, LinesAreTrimmedAndFieldsAreNot) {
  const Loaded loaded = Load(Texts{"  'Vexo Schema for AGS  ", " LOCA ", "  ", " LOCA_ID", "",
                                   "  PROJ", "", "PROJ.PROJ_ID  ", ""} +
                             Texts{" LOCA ", " ,1 ", " LOCA_ID, LOCA_GL ", ", m ", " ID , 2DP "});
  EXPECT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.lists.locationGroup, "LOCA");
  EXPECT_THAT(loaded.lists.requiredGroups, ElementsAre("PROJ"));
  EXPECT_THAT(loaded.lists.requiredFields, ElementsAre("PROJ.PROJ_ID"));
  EXPECT_EQ(loaded.stream, "LOCA!,1!LOCA_ID, LOCA_GL!, m!ID , 2DP");
}

TEST(SchemaFile, LinesMayEndInAnyWay) {
  const Texts lines = Header() + LocaGroup + SampGroup;
  const std::string expected = Load(lines).stream;
  for (const std::string_view lineEnd : {"\r\n", "\n", "\r"}) {
    EXPECT_EQ(LoadBytes(Join(lines, lineEnd)).stream, expected);
    EXPECT_EQ(LoadBytes(Join(lines, lineEnd) + std::string(lineEnd)).stream, expected);
  }
}

TEST(SchemaFile, MayBeginWithAByteOrderMark) {
  const std::string bytes = Join(Header() + LocaGroup, LineBreak);
  EXPECT_EQ(LoadBytes("\xEF\xBB\xBF" + bytes).stream, LocaStream);
  EXPECT_EQ(LoadBytes("\xEF\xBB\xBF\xEF\xBB\xBF" + bytes).failure, NotASchemaFile);
}

TEST(SchemaFile, BytesOutsideAsciiAreKept) {
  const Texts group{"ELRG", "LOCA,1", "LOCA_ID,ELRG_COND", ",\xB5S/cm", "ID,0DP"};
  EXPECT_EQ(Load(Header() + group).stream, "ELRG!LOCA,1!LOCA_ID,ELRG_COND!,\xB5S/cm!ID,0DP");
}

// Comma mode: the file as a spreadsheet program saves it.

/// Lines with enough commas behind them for the given number of columns.
Texts AsSpreadsheet(Texts lines, std::size_t columns) {
  for (std::string& line : lines) {
    const std::size_t fields = Split(line, ",").size();
    if (fields < columns) line.append(columns - fields, ',');
  }
  return lines;
}

TEST(SchemaFileInCommaMode, LoadsLikeThePlainOne) {
  const Texts lines = Header() + LocaGroup + Texts{""} + SampGroup + Texts{"", ""};
  const Loaded plain = Load(lines);
  for (const std::size_t columns : {4U, 5U, 12U}) {
    const Loaded loaded = Load(AsSpreadsheet(lines, columns));
    EXPECT_EQ(loaded.failure, "");
    EXPECT_EQ(loaded.stream, plain.stream);
    EXPECT_EQ(loaded.lists.locationGroup, plain.lists.locationGroup);
    EXPECT_EQ(loaded.lists.locationKey, plain.lists.locationKey);
    EXPECT_EQ(loaded.lists.requiredGroups, plain.lists.requiredGroups);
    EXPECT_EQ(loaded.lists.requiredFields, plain.lists.requiredFields);
    EXPECT_EQ(loaded.lists.numericHeadings, plain.lists.numericHeadings);
    EXPECT_EQ(loaded.lists.pickListHeadings, plain.lists.pickListHeadings);
  }
}

TEST(SchemaFileInCommaMode, ACommaInTheFirstLineIsEnough) {
  Texts lines = Header() + LocaGroup;
  lines.front() += ",any text, of any length";
  lines[1] = "LOCA,what follows,is left out";
  const Loaded loaded = Load(lines);
  EXPECT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.lists.locationGroup, "LOCA");
}

TEST(SchemaFileInCommaMode, CommentsAreIgnored) {
  Texts lines = AsSpreadsheet(Header(), 4);
  lines.emplace_back("'a comment,,,");
  lines = lines + AsSpreadsheet(LocaGroup, 4) + Texts{"'LOCA,,,"};
  EXPECT_EQ(Load(lines).stream, LocaStream);
}

TEST(SchemaFileInCommaMode, TwoBlankFieldsMakeABlankLine) {
  Texts lines = AsSpreadsheet(Header(), 4);
  lines[2] = " , ,text,";  // closes the section of the location group
  const Loaded loaded =
      Load(lines + Texts{",,text,"} + AsSpreadsheet(LocaGroup, 4) + Texts{"  ,,,"});
  EXPECT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.lists.locationGroup, "LOCA");
  EXPECT_EQ(loaded.lists.locationKey, "LOCA_ID");
  EXPECT_EQ(loaded.stream, LocaStream);
}

TEST(SchemaFileInCommaMode, UnitsMayBeginWithBlankFields) {
  // A group without any unit.
  const Texts group{"PROJ,,,", ",1,,", "PROJ_ID,PROJ_NAME,PROJ_LOC,", ",,,", "ID,X,X,"};
  const Loaded loaded = Load(AsSpreadsheet(Header(), 4) + group);
  EXPECT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.stream, "PROJ!,1!PROJ_ID,PROJ_NAME,PROJ_LOC!,,!ID,X,X");
}

TEST(SchemaFileInCommaMode, HeadingsEndAtTheFirstEmptyField) {
  const Texts group{"PROJ,,,,", ",1,,,", "PROJ_ID,PROJ_NAME,,PROJ_LOC,", ",m,left,out,",
                    "ID,X,left,out,"};
  const Loaded loaded = Load(AsSpreadsheet(Header(), 5) + group);
  EXPECT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.stream, "PROJ!,1!PROJ_ID,PROJ_NAME!,m!ID,X");
  EXPECT_THAT(loaded.lists.numericHeadings, ElementsAre("PROJ_NAME"));
}

TEST(SchemaFileInCommaMode, TheKeyLineKeepsTwoFieldsAndAThirdThatIsNotEmpty) {
  const auto streamWithKey = [](const std::string& key) {
    return Load(AsSpreadsheet(Header(), 5) +
                Texts{"SAMP,,,,", key, "LOCA_ID,SAMP_TOP,,,", ",m,,,", "ID,2DP,,,"})
        .stream;
  };
  EXPECT_EQ(streamWithKey("LOCA,2,,,"), "SAMP!LOCA,2!LOCA_ID,SAMP_TOP!,m!ID,2DP");
  EXPECT_EQ(streamWithKey("LOCA,2,,left,out"), "SAMP!LOCA,2!LOCA_ID,SAMP_TOP!,m!ID,2DP");
  EXPECT_EQ(streamWithKey("LOCA,2,2,,"), "SAMP!LOCA,2,2!LOCA_ID,SAMP_TOP!,m!ID,2DP");
  EXPECT_EQ(streamWithKey("LOCA,2"), "SAMP!LOCA,2!LOCA_ID,SAMP_TOP!,m!ID,2DP");
}

TEST(SchemaFileInCommaMode, FieldsAreNotTrimmed) {
  Texts lines = AsSpreadsheet(Header() + LocaGroup, 4);
  lines[1] = " LOCA ,,,";
  EXPECT_EQ(Load(lines).lists.locationGroup, "LOCA ");
}

TEST(SchemaFileInCommaMode, TooFewUnitsOrTypesAreLeftToTheParserOfTheStream) {
  // Spreadsheet programs write all columns; a file that was edited by hand may be short.
  const Texts group{"SAMP", "LOCA,2", "LOCA_ID,SAMP_TOP,SAMP_REM", ",m", "ID"};
  const Loaded loaded = Load(AsSpreadsheet(Header(), 3) + group);
  EXPECT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.stream, "SAMP!LOCA,2!LOCA_ID,SAMP_TOP,SAMP_REM!,m!ID");
  EXPECT_THROW(ParseDictionaryStream(AgsFormat::Ags4, loaded.stream, "!", loaded.lists),
               DictionaryError);
}

// The third field of a key line.

TEST(SchemaFile, AnEmptyThirdKeyFieldIsDropped) {
  const Texts group{"SAMP", "LOCA,2,", "LOCA_ID,SAMP_TOP", ",m", "ID,2DP"};
  EXPECT_EQ(Load(Header() + group).stream, "SAMP!LOCA,2!LOCA_ID,SAMP_TOP!,m!ID,2DP");
}

TEST(SchemaFile, NumericKeyPositionsMakeItsUnitsFlags) {
  const Texts group{"SAMP", "LOCA,2,2", "LOCA_ID,SAMP_TOP", ",m", "ID,2DP"};
  const Loaded loaded = Load(Header() + group);
  ASSERT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.stream, "SAMP!LOCA,2,2!LOCA_ID,SAMP_TOP!,m!ID,2DP");
  try {
    ParseDictionaryStream(AgsFormat::Ags4, loaded.stream, "!", loaded.lists);
    FAIL() << "a unit is no numeric flag";
  } catch (const DictionaryError& failure) {
    EXPECT_STREQ(failure.what(), "Unknown v3 unit type () in group 'SAMP'.");
  }
}

TEST(SchemaFile, BehindNumericFlagsTheTypesLineIsTakenForAGroupName) {
  const Texts group{"SAMP", "LOCA,2,2", "LOCA_ID,SAMP_TOP", "0,-1", "ID,2DP"};
  const Loaded loaded = Load(Header() + group + LocaGroup);
  ASSERT_EQ(loaded.failure, "");
  try {
    ParseDictionaryStream(AgsFormat::Ags4, loaded.stream, "!", loaded.lists);
    FAIL() << "LOCA was taken for the key line of a group named ID,2DP";
  } catch (const DictionaryError& failure) {
    EXPECT_THAT(failure.what(), testing::HasSubstr("ID,2DP"));
  }
}

// Files that cannot be used.

TEST(SchemaFile, MustExist) {
  MemoryDisk disk;
  DictionaryLists lists;
  try {
    LoadAgsDataDictionaryFnS(disk, "missing.gas", "!", lists);
    FAIL() << "there is no such file";
  } catch (const DictionaryError& failure) {
    EXPECT_STREQ(failure.what(), "LoadAgsDataDictionaryFnS: No such file or directory");
  }
}

TEST(SchemaFile, MustBeReadable) {
  MemoryDisk disk;
  disk.files["custom.gas"] = Join(Header() + LocaGroup, LineBreak);
  disk.readFailures["custom.gas"] = {13, "Permission denied"};
  DictionaryLists lists;
  try {
    LoadAgsDataDictionaryFnS(disk, "custom.gas", "!", lists);
    FAIL() << "the file cannot be read";
  } catch (const DictionaryError& failure) {
    EXPECT_STREQ(failure.what(), "LoadAgsDataDictionaryFnS: Permission denied");
  }
}

TEST(SchemaFile, FirstLineMustBeExact) {
  for (const std::string_view firstLine :
       {"", "LOCA", "Vexo Schema for AGS", "'vexo schema for ags", "'Vexo Schema for AGS 4.0.3",
        "'Vexo Schema for AGS4", "''Vexo Schema for AGS", "'Vexo Schema for AG",
        ",'Vexo Schema for AGS", "'Vexo Schema for AGS ,", "'Vexo Schema for AGS\t",
        "\"'Vexo Schema for AGS\""}) {
    Texts lines = Header() + LocaGroup;
    lines.front() = firstLine;
    EXPECT_EQ(Load(lines).failure, NotASchemaFile) << firstLine;
  }
  EXPECT_EQ(LoadBytes("").failure, NotASchemaFile);
  EXPECT_EQ(LoadBytes("\r\n'Vexo Schema for AGS\r\n").failure, NotASchemaFile)
      << "the line must be the first";
}

TEST(SchemaFile, BinaryRubbishIsNoSchemaFile) {
  std::string rubbish;
  for (int byte = 0; byte < 1000; ++byte)
    rubbish += static_cast<char>(byte * 37 % 256);
  EXPECT_EQ(LoadBytes(rubbish).failure, NotASchemaFile);
  EXPECT_NE(LoadBytes("'Vexo Schema for AGS\r\n" + rubbish).failure, "");
}

TEST(SchemaFile, UnitsMustMatchTheHeadings) {
  const Texts fewer{"SAMP", "LOCA,2", "LOCA_ID,SAMP_TOP,SAMP_REM", ",m", "ID,2DP,X"};
  EXPECT_EQ(Load(Header() + LocaGroup + fewer).failure,
            "Group: SAMP\r\nNumber of units doesn't match the number of headings\r\n"
            "Fields = 2 Headings = 3");
  const Texts more{"SAMP", "LOCA,2", "LOCA_ID,SAMP_TOP", ",m,,", "ID,2DP"};
  EXPECT_EQ(Load(Header() + more).failure,
            "Group: SAMP\r\nNumber of units doesn't match the number of headings\r\n"
            "Fields = 4 Headings = 2");
}

TEST(SchemaFile, TypesMustMatchTheHeadings) {
  const std::string expected =
      "Group: SAMP\r\nNumber of types doesn't match the number of headings";
  EXPECT_EQ(Load(Header() + Texts{"SAMP", "LOCA,2", "LOCA_ID,SAMP_TOP", ",m", "ID"}).failure,
            expected);
  EXPECT_EQ(Load(Header() + Texts{"SAMP", "LOCA,2", "LOCA_ID,SAMP_TOP", ",m", "ID,2DP,"}).failure,
            expected);
}

TEST(SchemaFile, MustNotEndInsideItsHeaderOrAGroup) {
  const Texts header = Header();
  const Texts lines = header + LocaGroup + Texts{"", "'between"} + SampGroup + Texts{""};
  const std::size_t firstGroupEnd = header.size() + LocaGroup.size();
  const std::size_t secondGroupStart = firstGroupEnd + 2;
  const std::size_t secondGroupEnd = secondGroupStart + SampGroup.size();
  const std::string bothStreams = LocaStream + "!" + SampStream;
  for (std::size_t count = 1; count <= lines.size(); ++count) {
    const Loaded loaded =
        Load(Texts(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(count)));
    const bool isWhole =
        (count >= firstGroupEnd && count <= secondGroupStart) || count >= secondGroupEnd;
    if (isWhole) {
      EXPECT_EQ(loaded.failure, "") << "cut behind line " << count;
      EXPECT_EQ(loaded.stream, count < secondGroupEnd ? LocaStream : bothStreams);
    } else {
      EXPECT_THAT(loaded.failure, StartsWith("LoadAgsDataDictionaryFnS: "))
          << "cut behind line " << count;
    }
  }
}

TEST(SchemaFile, AKeyCountThatIsNoNumberIsFoundWhenTheStreamIsParsed) {
  const Texts group{"SAMP", "LOCA,two", "LOCA_ID,SAMP_TOP", ",m", "ID,2DP"};
  const Loaded loaded = Load(Header() + group);
  ASSERT_EQ(loaded.failure, "");
  EXPECT_THROW(ParseDictionaryStream(AgsFormat::Ags4, loaded.stream, "!", loaded.lists),
               DictionaryError);
}

TEST(SchemaFile, AParentThatIsNotThereIsLetPass) {
  const Loaded loaded = Load(Header() + SampGroup);
  ASSERT_EQ(loaded.failure, "");
  const AgsDictionary dictionary =
      ParseDictionaryStream(AgsFormat::Ags4, loaded.stream, "!", loaded.lists);
  EXPECT_EQ(dictionary.Group(1).ParentGroup, "LOCA");
  EXPECT_EQ(dictionary.Group(1).ParentKeyCount, 0);
}

}  // namespace
}  // namespace quorvane::test
