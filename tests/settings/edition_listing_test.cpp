#include "ui/edition_listing.h"

#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "dictionary/schema_edition.h"
#include "support/check_text.h"
#include "support/fake_services.h"
#include "text/text.h"

namespace quorvane::test {
namespace {

/// What a listing leaves behind, with LF line ends.
struct Outcome {
  int status = 0;
  std::string output;
  std::string errors;
};

class EditionListingTest : public testing::Test {
 protected:
  EditionListingTest() {
    for (const SchemaEdition& edition : SchemaEditions) {
      const std::string name(edition.fileName);
      std::ifstream file(QUORVANE_SCHEMA_FOLDER "/" + name, std::ios::binary);
      disk_.files["/program/" + name].assign(std::istreambuf_iterator<char>(file), {});
    }
    disk_.files["four.ags"] = MinimalAgs4().Text();
    disk_.files["three.ags"] = MinimalAgs3().Text();
  }

  Outcome List(const std::string& files) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Outcome outcome;
    outcome.status = ListEditionsOnConsole(disk_, environment_, files);
    outcome.output = ReplaceAll(testing::internal::GetCapturedStdout(), LineBreak, "\n");
    outcome.errors = ReplaceAll(testing::internal::GetCapturedStderr(), LineBreak, "\n");
    return outcome;
  }

  MemoryDisk disk_;
  FixedEnvironment environment_;
};

TEST_F(EditionListingTest, HasATableForEachAgs4FileAndALineForOthers) {
  const Outcome outcome = List("four.ags\r\n  three.ags  \r\n\r\n");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.errors, "");
  EXPECT_EQ(outcome.output,
            "four.ags\n"
            "  Edition  Groups          Headings\n"
            "  4.0.3    4 of 4          15 of 15        most\n"
            "  4.0.4    4 of 4          15 of 15        most\n"
            "  4.1      4 of 4          15 of 15        most\n"
            "  4.1.1    4 of 4          15 of 15        most\n"
            "  4.2      4 of 4          15 of 15        most\n"
            "three.ags\n"
            "  AGS 3: editions do not apply\n");
}

TEST_F(EditionListingTest, NamesFilesThatItCannotLookAtAndGoesOn) {
  disk_.obstacles["folder"] = {21, "Is a directory"};
  disk_.files["notes.txt"] = "nothing";
  const Outcome outcome = List("missing.ags\nfolder\nnotes.txt\nthree.ags");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output, "three.ags\n  AGS 3: editions do not apply\n");
  EXPECT_EQ(outcome.errors,
            "missing.ags: File not found\nfolder: Is a directory\n"
            "notes.txt: File is not an AGS 3 or 4 format file\n");
}

TEST_F(EditionListingTest, NeedsFiles) {
  const Outcome outcome = List(" \r\n");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(outcome.errors, "Check Files: Supply files to check\n");
}

TEST_F(EditionListingTest, EndsWhereASchemaIsMissing) {
  disk_.files.erase("/program/ags41 dict.gas");
  const Outcome outcome = List("four.ags\nthree.ags");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(outcome.errors,
            "AGS Dictionary Load: LoadAgsDataDictionaryFnS: No such file or directory\n");
}

}  // namespace
}  // namespace quorvane::test
