#include "rules/unit_messages.h"
#include "support/provocation.h"

namespace quorvane::test {
namespace {

Ags3File Ags3Start() {
  Ags3File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_AGS"}, {"", ""}, {{"P1", "3.1"}});
  return file;
}

Ags4File Ags4Start() {
  Ags4File file;
  file.Group("PROJ", {"PROJ_ID", "PROJ_NAME"}, {"", ""}, {"ID", "X"}, {{"P1", "Test project"}});
  return file;
}

CheckResult CheckAgs3Unit(const std::string& unit) {
  Ags3File file = Ags3Start();
  file.Group("UNIT", {"UNIT_UNIT", "UNIT_DESC"}, {}, {{"m", "metre"}});
  file.Group("HOLE", {"HOLE_ID", "HOLE_FDEP"}, {"", unit}, {{"BH1", "10.00"}});
  return CheckText(file.Text());
}

CheckResult CheckAgs4Unit(const std::string& unit) {
  Ags4File file = Ags4Start();
  file.Group("UNIT", {"UNIT_UNIT", "UNIT_DESC"}, {"", ""}, {"X", "X"}, {{"m", "metre"}});
  file.Group("LOCA", {"LOCA_ID", "LOCA_FDEP"}, {"", unit}, {"ID", "2DP"}, {{"BH1", "10.00"}});
  return CheckText(file.Text());
}

CheckResult CheckAgs3UnitGroup(const std::vector<std::string>& headings,
                               const std::vector<std::string>& row) {
  Ags3File file = Ags3Start();
  file.Group("UNIT", headings, {}, {row});
  return CheckText(file.Text());
}

CheckResult CheckAgs4UnitGroup(const std::vector<std::string>& headings,
                               const std::vector<std::string>& row) {
  Ags4File file = Ags4Start();
  file.Group("UNIT", headings, std::vector<std::string>(headings.size()),
             std::vector<std::string>(headings.size(), "X"), {row});
  return CheckText(file.Text());
}

}  // namespace

std::vector<Provocation> UnitProvocations() {
  const std::string noHeading = "ERROR: No UNIT_UNIT heading found in the UNIT group";
  const std::string noData = "ERROR: No data found under the UNIT_UNIT heading in the CODE group";
  const std::string unused =
      "FYI: The following UNIT_UNIT values are in the UNIT group but not found in any of the data "
      "groups:\r\nm";
  return {
      {&UnitGroupMissing, AgsFormat::Ags3, "ERROR: No UNIT group found",
       [] { return CheckText(Ags3Start().Text()); }},
      {&UnitHeadingMissing, AgsFormat::Ags3, noHeading,
       [] { return CheckAgs3UnitGroup({"UNIT_DESC"}, {"metre"}); }},
      {&UnitHeadingMissing, AgsFormat::Ags4, noHeading,
       [] { return CheckAgs4UnitGroup({"UNIT_DESC"}, {"metre"}); }},
      {&UnitListEmpty, AgsFormat::Ags3, noData,
       [] {
         return CheckAgs3UnitGroup({"UNIT_UNIT", "UNIT_DESC"}, {"", "metre"});
       }},
      {&UnitListEmpty, AgsFormat::Ags4, noData,
       [] {
         return CheckAgs4UnitGroup({"UNIT_UNIT", "UNIT_DESC"}, {"", "metre"});
       }},
      {&UnitNotListed, AgsFormat::Ags3,
       "ERROR: Line 12 - No UNIT_UNIT value in the UNIT group found corresponding to 'ft' in group "
       "'HOLE'",
       [] { return CheckAgs3Unit("ft"); }},
      {&UnitNotListed, AgsFormat::Ags4,
       "ERROR: Line 15 - No UNIT_UNIT value in the UNIT group found corresponding to 'ft' in group "
       "'LOCA'",
       [] { return CheckAgs4Unit("ft"); }},
      {&NumericHeadingWithoutUnit, AgsFormat::Ags3,
       "WARNING: Line 12 - Heading 'HOLE_FDEP' in group 'HOLE' has no unit associated with it.",
       [] { return CheckAgs3Unit(""); }},
      {&NumericHeadingWithoutUnit, AgsFormat::Ags4,
       "WARNING: Line 15 - Heading 'LOCA_FDEP' in group 'LOCA' has no unit associated with it.",
       [] { return CheckAgs4Unit(""); }},
      {&UnitsUnused, AgsFormat::Ags3, unused, [] { return CheckAgs3Unit("ft"); }},
      {&UnitsUnused, AgsFormat::Ags4, unused, [] { return CheckAgs4Unit("ft"); }},
  };
}

}  // namespace quorvane::test
