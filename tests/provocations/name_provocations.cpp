#include "rules/name_messages.h"
#include "rules/names.h"
#include "support/direct_check.h"
#include "support/provocation.h"

namespace quorvane::test {
namespace {

constexpr auto Ags3 = AgsFormat::Ags3;
constexpr auto Ags4 = AgsFormat::Ags4;

/// A file that ends in a group opened by this line, which stands at line 19 (AGS 3).
CheckResult Ags3GroupLine(std::string_view line) {
  Ags3File file = MinimalAgs3();  // 17 lines
  file.Line("").Line(line).Line("\"*HOLE_ID\"").Line("\"<UNITS>\"").Line("\"BH1\"");
  return CheckText(file.Text());
}

/// The same for AGS 4: the row stands behind the 25 lines of the groups that every file needs.
CheckResult Ags4GroupRow(std::string_view row) {
  Ags4File file = MinimalAgs4();
  file.Line("").Line(row).Line("\"HEADING\",\"LOCA_ID\"").Line("\"UNIT\",\"\"");
  file.Line("\"TYPE\",\"ID\"").Line("\"DATA\",\"BH1\"");
  return CheckText(file.Text());
}

/// A group of some heading in which the value is "v".
CheckResult Ags3Heading(const std::string& heading, const std::string& value = "v") {
  Ags3File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_AGS", heading}, {"", "", ""}, {{"P1", "3.1", value}});
  return CheckText(file.Text());
}

CheckResult Ags4Heading(const std::string& heading, const std::string& value = "v") {
  Ags4File file = MinimalAgs4();
  file.Group("LOCA", {"LOCA_ID", heading}, {"", ""}, {"ID", "X"}, {{"BH1", value}});
  return CheckText(file.Text());
}

Provocations GroupNameProvocations() {
  return {
      {&GroupLineNotQuoted, Ags3,
       "ERROR: Line 19 - group name line (**GEOL) must start and end in quotes (Rule 8).",
       [] { return Ags3GroupLine("**GEOL"); }},
      {&GroupLineNotQuoted, Ags4,
       "ERROR: Line 27 - group name line (\"**LOCA) must start and end in quotes (Rule 8).",
       [] { return Ags4GroupRow("\"GROUP\",\"LOCA"); }},
      {&GroupLineForm, Ags3,
       "ERROR: Line 1 - group name line (\"GEOL\") must be in the form \"**NAME\" (Rule 10).",
       [] { return CheckText("\"GEOL\"\n\"*HOLE_ID\"\n\"**PROJ\"\n"); }},
      // The group rows of AGS 4 files are brought into this form, so no file leads here.
      {&GroupLineForm, Ags4,
       "ERROR: Line 7 - group name line (\"LOCA\") must be in the form \"GROUP\",\"NAME\" (Rule "
       "10).",
       [] {
         return CheckDirectly(
             Ags4, [](CheckedFile& file) { CheckGroupNameLine(file, 1, 7, "\"LOCA\""); });
       }},
      {&GroupLineFieldCount, Ags3, "ERROR: Line 19 - Group line has more than one field (GEOL,X)",
       [] { return Ags3GroupLine("\"**GEOL\",\"X\""); }},
      {&GroupLineFieldCount, Ags4,
       "ERROR: Line 27 - Group line has more than one field (LOCA,X) (Rule 4)",
       [] { return Ags4GroupRow("\"GROUP\",\"LOCA\",\"X\""); }},
      {&GroupNameNotUpperCase, Ags3,
       "ERROR: Line 19 - Group name Geol must be composed of uppercase characters (Rule 22)",
       [] { return Ags3GroupLine("\"**Geol\""); }},
      {&GroupNameNotUpperCase, Ags4,
       "ERROR: Line 27 - Group name loca must be composed of uppercase characters",
       [] { return Ags4GroupRow("\"GROUP\",\"loca\""); }},
      {&GroupNameTooLong, Ags3,
       "ERROR: Line 19 - Group name '?ABCDE' must be no more than 4 characters excluding the '?' "
       "(Rule 22)",
       [] { return Ags3GroupLine("\"**?ABCDE\""); }},
      {&GroupNameTooLong, Ags4,
       "ERROR: Line 27 - Group name 'ABCDE' must be no more than 4 characters",
       [] { return Ags4GroupRow("\"GROUP\",\"?ABCDE\""); }},
      {&GroupNameCharacters, Ags3,
       "ERROR: Line 19 - Group name ?AB1D (excluding the leading '?') must be made up of letters "
       "only (Rule 22)",
       [] { return Ags3GroupLine("\"**?AB1D\""); }},
      {&GroupNameCharacters, Ags4,
       "ERROR: Line 27 - Group name ?AB1D (excluding the leading '?') must be made up of letters "
       "only.",
       [] { return Ags4GroupRow("\"GROUP\",\"?AB1D\""); }},
      {&GroupNotInDictionary, Ags3, "ERROR: Line 19 - group 'XYZZ' is not an AGS group. (Rule 5).",
       [] { return Ags3GroupLine("\"**XYZZ\""); }},
      {&GroupRepeated, Ags3,
       "ERROR: Line 19 - multiple UNIT groups; first one found is used in subsequent checking.",
       [] { return Ags3GroupLine("\"**UNIT\""); }},
      {&GroupRepeated, Ags4,
       "ERROR: Line 27 - multiple PROJ groups; first one found is used in subsequent checking.",
       [] { return Ags4GroupRow("\"GROUP\",\"PROJ\""); }},
  };
}

Provocations HeadingNameProvocations() {
  return {
      {&HeadingNotUpperCase, Ags3,
       "ERROR: Line 2 - Heading 'Proj_Name' in Group 'PROJ' must be composed of uppercase "
       "characters (Rule 23)",
       [] { return Ags3Heading("Proj_Name"); }},
      {&HeadingNotUpperCase, Ags4,
       "ERROR: Line 28 - Heading 'loca_REM' in Group 'LOCA' must be composed of uppercase "
       "characters (Rule 23)",
       [] { return Ags4Heading("loca_REM"); }},
      {&HeadingTooLong, Ags3,
       "ERROR: Line 2 - Heading '?PROJ_LENGTH' in Group 'PROJ' must be no more than 9 characters "
       "excluding the '?' (Rule 23)",
       [] { return Ags3Heading("?PROJ_LENGTH"); }},
      {&HeadingTooLong, Ags4,
       "ERROR: Line 28 - Heading '?LOCA_LENGTH' in Group 'LOCA' must be no more than 9 characters "
       "excluding the '?' (Rule 23)",
       [] { return Ags4Heading("?LOCA_LENGTH"); }},
      {&HeadingWithoutUnderscore, Ags3,
       "ERROR: Line 2 - Heading ?REMARKS in Group 'PROJ' must contain an underscore after the "
       "Group Name (Rule 23)",
       [] { return Ags3Heading("?REMARKS"); }},
      {&HeadingWithoutUnderscore, Ags4,
       "ERROR: Line 28 - Heading ?REMARKS in Group 'LOCA' must contain an underscore after the "
       "Group Name (Rule 23)",
       [] { return Ags4Heading("?REMARKS"); }},
      {&HeadingCharacters, Ags3,
       "ERROR: Line 2 - Heading '?PROJ_A-B' in Group 'PROJ' (excluding the leading '?') must be "
       "made up of letters, numbers, and underscore characters only (Rule 23)",
       [] { return Ags3Heading("?PROJ_A-B"); }},
      {&HeadingCharacters, Ags4,
       "ERROR: Line 28 - Heading 'LOCA REM' in Group 'LOCA' must be made up of letters, numbers, "
       "and underscore characters only (Rule 23)",
       [] { return Ags4Heading("LOCA REM"); }},
      {&HeadingNotInDictionary, Ags3,
       "ERROR: Line 2 - 'PROJ_XXXX' in group 'PROJ' is not an AGS heading (Rule 5).",
       [] { return Ags3Heading("PROJ_XXXX"); }},
      {&HeadingPrefixUnknown, Ags3,
       "ERROR: Line 2 - Heading 'QQQQ_REM' in Group 'PROJ' must start with the group name or that "
       "of another group (Rule 23)",
       [] { return Ags3Heading("?QQQQ_REM"); }},
      {&HeadingPrefixUnknown, Ags4,
       "ERROR: Line 28 - Heading 'QQQQ_REM' in Group 'LOCA' must start with the group name or that "
       "of another group (Rule 23)",
       [] { return Ags4Heading("?QQQQ_REM"); }},
      {&HeadingsOutOfOrder, Ags4,
       "ERROR: Line 28 - Headings are out of order in group 'LOCA'. Check the AGS documentation "
       "and your DICT group. Custom headings must be at the end of AGS format field list. (Rules 7 "
       "and 18a)",
       [] {
         Ags4File file = MinimalAgs4();
         file.Group("LOCA", {"LOCA_ID", "LOCA_REM", "LOCA_TYPE"}, {"", "", ""}, {"ID", "X", "PA"},
                    {{"BH1", "r", "CP"}});
         return CheckText(file.Text());
       }},
  };
}

}  // namespace

Provocations NameProvocations() {
  Provocations all = GroupNameProvocations();
  const Provocations headings = HeadingNameProvocations();
  all.insert(all.end(), headings.begin(), headings.end());
  return all;
}

}  // namespace quorvane::test
