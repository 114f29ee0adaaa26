#include "rules/file_set_messages.h"
#include "support/provocation.h"

namespace quorvane::test {
namespace {

using Rows = std::vector<std::vector<std::string>>;

/// Checks a file with the FILE rows given (none: no FILE group) and one reference.
CheckResult CheckAgs3Files(const Rows& files, const std::string& reference) {
  Ags3File file = MinimalAgs3();
  if (!files.empty()) {
    file.Group("FILE", {"FILE_FSET", "FILE_NAME", "FILE_DESC"}, {"", "", ""}, files);
  }
  file.Group("GEOL", {"HOLE_ID", "FILE_FSET"}, {"", ""}, {{"BH1", reference}});
  return CheckText(file.Text());
}

CheckResult CheckAgs4Files(const Rows& files, const std::string& reference) {
  Ags4File file = MinimalAgs4();
  if (!files.empty()) {
    file.Group("FILE", {"FILE_FSET", "FILE_NAME", "FILE_DESC"}, {"", "", ""}, {"X", "X", "X"},
               files);
  }
  file.Group("LOCA", {"LOCA_ID", "FILE_FSET"}, {"", ""}, {"ID", "X"}, {{"BH1", reference}});
  return CheckText(file.Text());
}

}  // namespace

std::vector<Provocation> FileSetProvocations() {
  const std::string groupMissing =
      "ERROR: There are FILE_FSET data but no FILE group found.\r\nFILE_FSET data in the following "
      "lines:\r\n";
  const std::string unused =
      "FYI: The following FILE_FSET values are in the FILE group but not found in any of the data "
      "groups:\r\nFS1";
  return {
      {&FileNameBodyTooLong, AgsFormat::Ags3,
       "ERROR: Line 22 - 'ABCDEFGHI.TXT' Main body of file name must be 8 or less characters.",
       [] {
         return CheckAgs3Files({{"FS1", "ABCDEFGHI.TXT", "x"}}, "FS1");
       }},
      {&FileNameExtensionTooLong, AgsFormat::Ags3,
       "ERROR: Line 22 - 'ABCDEFGH.TEXT' File name extension must be 3 or less characters.",
       [] {
         return CheckAgs3Files({{"FS1", "ABCDEFGH.TEXT", "x"}}, "FS1");
       }},
      {&FileGroupMissing, AgsFormat::Ags3, groupMissing + "22",
       [] { return CheckAgs3Files({}, "FS1"); }},
      {&FileGroupMissing, AgsFormat::Ags4, groupMissing + "31",
       [] { return CheckAgs4Files({}, "FS1"); }},
      {&FileSetNotDefined, AgsFormat::Ags3,
       "ERROR: Line 27 - FILE_FSET FS2 in group 'GEOL' not defined in the FILE group.",
       [] {
         return CheckAgs3Files({{"FS1", "A.TXT", "x"}}, "fs2");
       }},
      {&FileSetNotDefined, AgsFormat::Ags4,
       "ERROR: Line 37 - FILE_FSET FS2 in group 'LOCA' not defined in the FILE group.",
       [] {
         return CheckAgs4Files({{"FS1", "A.TXT", "x"}}, "fs2");
       }},
      {&FileSetsUnused, AgsFormat::Ags3, unused,
       [] {
         return CheckAgs3Files({{"FS1", "A.TXT", "x"}}, "");
       }},
      {&FileSetsUnused, AgsFormat::Ags4, unused,
       [] {
         return CheckAgs4Files({{"FS1", "A.TXT", "x"}}, "");
       }},
  };
}

}  // namespace quorvane::test
