#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "rules/dict_group_messages.h"
#include "support/check_text.h"
#include "support/provocation.h"

namespace quorvane::test {
namespace {

using Texts = std::vector<std::string>;

const Texts DictHeadings{"DICT_TYPE", "DICT_GRP",  "DICT_HDNG", "DICT_STAT",
                         "DICT_DESC", "DICT_UNIT", "DICT_EXMP"};

/// A file whose own group ?SOAK, with the headings given, comes behind the DICT group given;
/// without DICT headings there is none. MinimalAgs3 has 20 lines, MinimalAgs4 has 25; the group
/// line of ?SOAK is what the findings below name.
CheckResult CheckAgs3(const Texts& dictHeadings, const std::vector<Texts>& dictRows,
                      const Texts& soakHeadings = {"?HOLE_ID"}) {
  Ags3File file = MinimalAgs3();
  if (!dictHeadings.empty()) file.Group("DICT", dictHeadings, {}, dictRows);
  file.Group("?SOAK", soakHeadings, Texts(soakHeadings.size()), {Texts(soakHeadings.size(), "1")});
  return CheckText(file.Text());
}

CheckResult CheckAgs4(const Texts& dictHeadings, const std::vector<Texts>& dictRows,
                      const Texts& soakHeadings = {"?LOCA_ID"}) {
  Ags4File file = MinimalAgs4();
  if (!dictHeadings.empty()) {
    file.Group("DICT", dictHeadings, Texts(dictHeadings.size()), Texts(dictHeadings.size(), "X"),
               dictRows);
  }
  file.Group("?SOAK", soakHeadings, Texts(soakHeadings.size()), Texts(soakHeadings.size(), "X"),
             {Texts(soakHeadings.size(), "1")});
  return CheckText(file.Text());
}

/// A finding at the group line of ?SOAK behind a DICT group of some rows: that has a blank line, a
/// group line and a heading line (and units and types in AGS 4) before its rows, and ?SOAK a blank
/// line before its own.
std::string AtAgs3Group(std::string_view label, int dictRows, std::string_view text) {
  const int line = MinimalAgs3().LineCount() + 3 + dictRows + 2;
  return std::string(label) + ": Line " + std::to_string(line) + " - " + std::string(text);
}

std::string AtAgs4Group(std::string_view label, int dictRows, std::string_view text) {
  const int line = MinimalAgs4().LineCount() + 5 + dictRows + 2;
  return std::string(label) + ": Line " + std::to_string(line) + " - " + std::string(text);
}

Texts GroupRow(const std::string& description = "Described") {
  return {"GROUP", "SOAK", "", "", description, "", ""};
}

Texts HeadingRow(const std::string& heading, const std::string& status,
                 const std::string& description, const std::string& example) {
  return {"HEADING", "SOAK", heading, status, description, "", example};
}

Provocations Ags3Provocations() {
  constexpr AgsFormat format = AgsFormat::Ags3;
  const auto heading = [](const std::string& status, const std::string& description,
                          const std::string& example) {
    return [=] {
      return CheckAgs3(DictHeadings,
                       {GroupRow(), HeadingRow("HOLE_ID", status, description, example)});
    };
  };
  return {
      {&DictGroupMissing, format,
       "ERROR: The following non-standard groups and/or headings are in the file but there is no "
       "DICT group that defines them (Rule 21).\r\n  Non-Standard Groups:\r\n    ?SOAK\r\n"
       "  Non-Standard Headings:\r\n    ?SOAK.?HOLE_ID",
       [] { return CheckAgs3({}, {}); }},
      {&DictGroupWithoutData, format,
       "ERROR: There are non-standard groups or headings in the file but the DICT group that "
       "define them has no data (Rule 21).",
       [] { return CheckAgs3(DictHeadings, {}); }},
      {&DictKeyHeadingsMissing, format,
       "ERROR: There are non-standard groups or headings in the file but the DICT group is missing "
       "the following key heading(s): DICT_HDNG, DICT_STAT.  Cannot check.",
       [] {
         return CheckAgs3({"DICT_TYPE", "DICT_GRP"}, {{"GROUP", "SOAK"}});
       }},
      {&DictDescriptiveHeadingsMissing, format,
       "WARNING: There are non-standard groups or headings in the file but the DICT group is "
       "missing the following descriptive heading(s): DICT_DESC, DICT_UNIT, DICT_EXMP.  Without "
       "these data documentation of the non-standard groups/headings is incomplete.",
       [] {
         return CheckAgs3({"DICT_TYPE", "DICT_GRP", "DICT_HDNG", "DICT_STAT"},
                          {{"GROUP", "SOAK", "", ""}});
       }},
      {&OwnGroupNotDefined, format,
       AtAgs3Group("ERROR", 1, "Group SOAK not defined in the DICT group (Rule 21)."),
       [] {
         return CheckAgs3(DictHeadings, {HeadingRow("HOLE_ID", "KEY", "Described", "Example")});
       }},
      {&OwnGroupWithoutDescription, format,
       AtAgs3Group("WARNING", 1, "Group SOAK has no description in the DICT group."),
       [] { return CheckAgs3(DictHeadings, {GroupRow("")}); }},
      {&OwnGroupHeadingWithoutMark, format,
       AtAgs3Group("ERROR", 1,
                   "Field name HOLE_ID in non-standard group SOAK is missing the leading '?' "
                   "(Rule 22)"),
       [] { return CheckAgs3(DictHeadings, {GroupRow()}, {"HOLE_ID"}); }},
      {&OwnHeadingNotDefined, format,
       AtAgs3Group("ERROR", 1,
                   "Heading 'HOLE_ID' in group 'SOAK' is not defined in the DICT group (Rule "
                   "21)."),
       [] { return CheckAgs3(DictHeadings, {GroupRow()}); }},
      {&OwnHeadingWithoutStatus, format,
       AtAgs3Group("ERROR", 2,
                   "Heading 'HOLE_ID' in group 'SOAK' has no heading status (KEY or COMMON) "
                   "in the DICT group."),
       heading("", "Described", "Example")},
      {&OwnHeadingWithoutDescription, format,
       AtAgs3Group("WARNING", 2,
                   "Heading 'HOLE_ID' in group 'SOAK' has no description in the DICT group."),
       heading("KEY", "", "Example")},
      {&OwnHeadingWithoutExample, format,
       AtAgs3Group("FYI", 2, "Heading 'HOLE_ID' in group 'SOAK' has no example in the DICT group."),
       heading("KEY", "Described", "")},
  };
}

Provocations Ags4Provocations() {
  constexpr AgsFormat format = AgsFormat::Ags4;
  const auto heading = [](const std::string& status, const std::string& description,
                          const std::string& example) {
    return [=] {
      return CheckAgs4(DictHeadings,
                       {GroupRow(), HeadingRow("LOCA_ID", status, description, example)});
    };
  };
  return {
      {&DictGroupMissing, format,
       "ERROR: The following non-standard groups and/or headings are in the file but there is no "
       "DICT group that defines them.\r\n  Non-Standard Groups:\r\n    SOAK\r\n"
       "  Non-Standard Headings:\r\n    PROJ.PROJ_OWN",
       [] {
         Ags4File file;
         file.Group("SOAK", {"LOCA_ID"}, {""}, {"X"}, {{"1"}});
         file.Group("PROJ", {"PROJ_ID", "PROJ_OWN"}, {"", ""}, {"X", "X"}, {{"1", "2"}});
         return CheckText(file.Text());
       }},
      {&DictGroupWithoutData, format,
       "ERROR: There are non-standard groups or headings in the file but the DICT group that "
       "define them has no data.",
       [] { return CheckAgs4(DictHeadings, {}); }},
      {&DictKeyHeadingsMissing, format,
       "ERROR: There are non-standard groups or headings in the file but the DICT group is missing "
       "the following key heading(s): DICT_TYPE.  Cannot check.",
       [] {
         return CheckAgs4({"DICT_GRP", "DICT_HDNG", "DICT_STAT"}, {{"SOAK", "", ""}});
       }},
      {&DictDescriptiveHeadingsMissing, format,
       "WARNING: There are non-standard groups or headings in the file but the DICT group is "
       "missing the following descriptive heading(s): DICT_UNIT.  Without these data documentation "
       "of the non-standard groups/headings is incomplete.",
       [] {
         return CheckAgs4(
             {"DICT_TYPE", "DICT_GRP", "DICT_HDNG", "DICT_STAT", "DICT_DESC", "DICT_EXMP"},
             {{"GROUP", "SOAK", "", "", "Described", ""}});
       }},
      {&OwnGroupNotDefined, format,
       AtAgs4Group("ERROR", 1, "Group SOAK not defined in the DICT group."),
       [] {
         return CheckAgs4(DictHeadings, {HeadingRow("LOCA_ID", "KEY", "Described", "Example")});
       }},
      {&OwnGroupWithoutDescription, format,
       AtAgs4Group("WARNING", 1, "Group SOAK has no description in the DICT group."),
       [] { return CheckAgs4(DictHeadings, {GroupRow("")}); }},
      {&OwnGroupHeadingWithoutMark, format,
       AtAgs4Group("ERROR", 1,
                   "Field name LOCA_ID in non-standard group SOAK is missing the leading '?' "
                   "(Rule 22)"),
       [] { return CheckAgs4(DictHeadings, {GroupRow()}, {"LOCA_ID"}); }},
      {&OwnHeadingNotDefined, format,
       AtAgs4Group("ERROR", 1,
                   "Heading 'LOCA_ID' in group 'SOAK' is not defined in the DICT group."),
       [] { return CheckAgs4(DictHeadings, {GroupRow()}); }},
      {&OwnHeadingWithoutStatus, format,
       AtAgs4Group("ERROR", 2,
                   "Heading 'LOCA_ID' in group 'SOAK' has no heading status (KEY or COMMON) "
                   "in the DICT group."),
       heading("", "Described", "Example")},
      {&OwnHeadingWithoutDescription, format,
       AtAgs4Group("WARNING", 2,
                   "Heading 'LOCA_ID' in group 'SOAK' has no description in the DICT group."),
       heading("KEY", "", "Example")},
      {&OwnHeadingWithoutExample, format,
       AtAgs4Group("FYI", 2, "Heading 'LOCA_ID' in group 'SOAK' has no example in the DICT group."),
       heading("KEY", "Described", "")},
  };
}

}  // namespace

Provocations DictGroupProvocations() {
  Provocations provocations = Ags3Provocations();
  for (Provocation& provocation : Ags4Provocations()) {
    provocations.push_back(std::move(provocation));
  }
  return provocations;
}

}  // namespace quorvane::test
