#include "parse/field_messages.h"
#include "parse/reference_values.h"
#include "parse/structure_messages.h"
#include "support/direct_check.h"
#include "support/provocation.h"

namespace quorvane::test {
namespace {

constexpr auto Ags3 = AgsFormat::Ags3;
constexpr auto Ags4 = AgsFormat::Ags4;

/// An AGS 3 file whose last line is one more row of its HOLE group, of three headings.
CheckResult WithHoleLine(std::string_view line) {
  return CheckText(MinimalAgs3().Line(line).Text());  // line 18
}

/// An AGS 4 file that ends with a LOCA group of three headings with one row, given as a line.
CheckResult WithLocationLine(std::string_view line) {
  Ags4File file = MinimalAgs4();  // 25 lines
  file.Group("LOCA", {"LOCA_ID", "LOCA_TYPE", "LOCA_FDEP"}, {"", "", "m"}, {"ID", "PA", "2DP"}, {});
  return CheckText(file.Line(line).Text());  // line 31
}

/// An AGS 3 file that ends with a GEOL group, given as its lines from line 19 on.
CheckResult WithGeologyLines(std::initializer_list<std::string_view> lines) {
  return CheckText(MinimalAgs3().Line("").Text() + Lines(lines));
}

/// An AGS 4 file that ends with a LOCA group, given as its lines from line 27 on.
CheckResult WithLocationLines(std::initializer_list<std::string_view> lines) {
  return CheckText(MinimalAgs4().Line("").Text() + Lines(lines));
}

Provocations QuotingProvocations() {
  return {
      {&NullFieldWithSpaces, Ags3,
       "ERROR: Line 18 - null field are to be included as \"\" with no internal spaces (Rule 15)",
       [] { return WithHoleLine(R"("BH2","  ","5.00")"); }},
      {&NullFieldWithSpaces, Ags4,
       "ERROR: Line 31 - null field are to be included as \"\" with no internal spaces (Rule 15)",
       [] { return WithLocationLine(R"("DATA","BH1"," ","5.00")"); }},
      {&MissingSurroundingQuotes, Ags3,
       "ERROR: Line 18 - '5.00' - missing surrounding quotes (Rule 8).",
       [] { return WithHoleLine(R"("BH2","CP",5.00)"); }},
      {&MissingSurroundingQuotes, Ags4,
       "ERROR: Line 31 - 'CP,5.00' - missing surrounding quotes (Rule 8).",
       [] { return WithLocationLine(R"("DATA","BH1","CP,5.00)"); }},
      {&InternalQuotes, Ags3, "ERROR: Line 18 - '6\" casing' - has internal quotes (Rule 8).",
       [] { return WithHoleLine(R"("BH2","6" casing","5.00")"); }},
      {&InternalQuotes, Ags4, "ERROR: Line 31 - '6\" casing' - has internal quotes (Rule 8).",
       [] { return WithLocationLine(R"("DATA","BH1","6" casing","5.00")"); }},
      {&FieldCountDiffers, Ags3,
       "ERROR: Line 18 - does not have the same number of fields as the number of headers ",
       [] { return WithHoleLine(R"("BH2","CP","5.00","more")"); }},
      {&FieldCountDiffers, Ags4,
       "ERROR: Line 31 - does not have the same number of fields as the number of headers ",
       [] { return WithLocationLine(R"("DATA","BH1","CP")"); }},
  };
}

std::string HeadingLine(int count) {
  std::string line = R"("*HOLE_ID")";
  for (int heading = 2; heading <= count; ++heading) {
    line += ",\"*?GEOL_" + std::to_string(heading) + "\"";
  }
  return line;
}

Provocations GroupAndHeadingProvocations() {
  return {
      {&UnknownGroupLineSyntax, Ags3,
       "ERROR: Line 1 - unknown data group line syntax:  \"Site\",\"investigation\"",
       [] { return CheckText("\"Site\",\"investigation\"\n" + MinimalAgs3().Text()); }},
      {&UnknownGroupLineSyntax, Ags4, "ERROR: Line 1 - unknown data group line syntax:  P**ROJ",
       [] {
         return CheckText(
             "\"GROUP\",PROJ\n\"HEADING\",\"PROJ_ID\"\n\"UNIT\",\"\"\n"
             "\"TYPE\",\"ID\"\n\"DATA\",\"P1\"\n");
       }},
      {&HeadingWithoutAsterisk, Ags3,
       "ERROR: Line 20 - 'GEOL_TOP' - headings must begin with \"*\" (Rule 11).",
       [] {
         return WithGeologyLines({R"("**GEOL")", R"("*HOLE_ID","GEOL_TOP")"});
       }},
      {&HeadingWithoutAsterisk, Ags4,
       "ERROR: Line 28 - ' \"LOCA_TYPE\"' - headings must begin with \"*\" (Rule 11).",
       [] {
         return WithLocationLines({R"("GROUP","LOCA")", R"("HEADING","LOCA_ID", "LOCA_TYPE")",
                                   R"("UNIT","","")", R"("TYPE","ID","PA")"});
       }},
      {&HeadingRepeated, Ags3, "ERROR: Line 20 - Field 'GEOL_TOP' is repeated.",
       [] {
         return WithGeologyLines({R"("**GEOL")", R"("*HOLE_ID","*GEOL_TOP","*GEOL_TOP")"});
       }},
      {&HeadingRepeated, Ags4, "ERROR: Line 28 - Field 'LOCA_ID' is repeated.",
       [] {
         return WithLocationLines({R"("GROUP","LOCA")", R"("HEADING","LOCA_ID","LOCA_ID")",
                                   R"("UNIT","","")", R"("TYPE","ID","ID")"});
       }},
      {&TooManyHeadings, Ags3,
       "ERROR: Line 20 - the number of headings in group 'GEOL' exceeds 60 (Rule 17).",
       [] {
         return WithGeologyLines({R"("**GEOL")", HeadingLine(61)});
       }},
  };
}

Provocations UnitAndTypeProvocations() {
  return {
      {&UnitsLineMissing, Ags3, "ERROR: Line 21 - <UNITS> line missing for group 'GEOL' (Rule 18)",
       [] {
         return WithGeologyLines({R"("**GEOL")", R"("*HOLE_ID","*GEOL_TOP")", R"("BH1","0.00")"});
       }},
      {&UnitsLineDoesNotApply, Ags3,
       "FYI: Line 21 - <UNITS> line does not apply to group CODE (Rule 18).",
       [] {
         return WithGeologyLines(
             {R"("**CODE")", R"("*CODE_CODE","*CODE_DESC")", R"("<UNITS>","")", R"("A","B")"});
       }},
      {&UnitsLineStart, Ags3, "ERROR: Line 21 - units line must begin with \"<UNITS>\" (Rule 18).",
       [] {
         return WithGeologyLines({R"("**GEOL")", R"("*HOLE_ID","*GEOL_TOP")", R"("m","<UNITS>")"});
       }},
      {&UnitCountDiffers, Ags3,
       "ERROR: Line 21 - number of units does not match the number of headers (Rule 18).",
       [] {
         return WithGeologyLines({R"("**GEOL")", R"("*HOLE_ID","*GEOL_TOP")", R"("<UNITS>")"});
       }},
      {&UnitCountDiffers, Ags4,
       "ERROR: Line 29 - number of units does not match the number of headers.",
       [] {
         return WithLocationLines({R"("GROUP","LOCA")", R"("HEADING","LOCA_ID","LOCA_FDEP")",
                                   R"("UNIT","","m","m")", R"("TYPE","ID","2DP")"});
       }},
      {&TypeCountDiffers, Ags4,
       "ERROR: Line 30 - number of types does not match the number of headers.",
       [] {
         return WithLocationLines({R"("GROUP","LOCA")", R"("HEADING","LOCA_ID","LOCA_FDEP")",
                                   R"("UNIT","","m")", R"("TYPE","ID")"});
       }},
  };
}

/// Asks a group of abbreviations, which holds their codes only, for a heading.
CheckResult RequireDescriptions(AgsFormat format) {
  return CheckDirectly(format, [](CheckedFile& file) {
    const int group = file.table.AddGroup("ABBR", 1);
    file.table.AddHeading("ABBR_CODE");
    RequireHeading(file.table, file.log, group, "ABBR_DESC");
  });
}

CheckResult ReportMissingDescriptions(AgsFormat format) {
  return CheckDirectly(format, [](CheckedFile& file) {
    ReportMissingValues(file.log, {"CP", "RC"}, "ABBR_CODE", "ABBR_DESC");
  });
}

/// What rules on reference groups ask of the table, whatever the rule that asks.
Provocations LookUpProvocations() {
  Provocations provocations;
  for (const AgsFormat format : {Ags3, Ags4}) {
    provocations.push_back({&RequiredHeadingMissing, format,
                            "WARNING: No 'ABBR_DESC' heading found in the ABBR group",
                            [format] { return RequireDescriptions(format); }});
    provocations.push_back({&ReferenceValuesMissing, format,
                            "WARNING: The following ABBR_CODE values did not have ABBR_DESC values "
                            "in the ABBR group:\r\nCP\r\nRC",
                            [format] { return ReportMissingDescriptions(format); }});
  }
  return provocations;
}

}  // namespace

Provocations ParseProvocations() {
  Provocations all;
  for (const Provocations& part : {QuotingProvocations(), GroupAndHeadingProvocations(),
                                   UnitAndTypeProvocations(), LookUpProvocations()}) {
    all.insert(all.end(), part.begin(), part.end());
  }
  return all;
}

}  // namespace quorvane::test
