#include "findings/findings_format.h"

#include <set>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "findings/made_report.h"

namespace quorvane::test {
namespace {

using testing::IsSupersetOf;
using testing::SizeIs;

TEST(FindingsFormat, EveryNameLeadsToAFormatOfItsOwn) {
  MadeReport made;
  made.Add("text", "BH1", 7, 2);
  std::set<std::string> outputs;
  for (const std::string& name : FindingsFormatNames()) {
    const std::optional<FindingsFormat> format = FindingsFormatNamed(name);
    ASSERT_TRUE(format) << name;
    outputs.insert(FormatFindings(*format, made.Report()));
  }
  EXPECT_THAT(FindingsFormatNames(), IsSupersetOf({"json", "ndjson", "csv", "sarif"}));
  EXPECT_THAT(outputs, SizeIs(FindingsFormatNames().size()));
}

TEST(FindingsFormat, OtherNamesLeadToNone) {
  for (const char* name : {"", "text", "JSON", "json ", "xml"})
    EXPECT_EQ(FindingsFormatNamed(name), std::nullopt) << name;
}

TEST(FindingsFormat, EveryFormatWritesARunWithoutFiles) {
  for (const std::string& name : FindingsFormatNames())
    EXPECT_FALSE(FormatFindings(*FindingsFormatNamed(name), FindingsReport()).empty()) << name;
}

}  // namespace
}  // namespace quorvane::test
