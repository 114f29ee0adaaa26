#include "rules/key_text.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "parse/file_text.h"

namespace quorvane::test {
namespace {

const std::vector<KeyPart> TwoParts{{1, false}, {2, false}};

/// Whether the lines of a file, one row of two values each, go on in one order.
bool AreInOrder(const std::string& lines, const std::vector<KeyPart>& parts = TwoParts) {
  const FileText file{ByteBuffer(lines)};
  GroupTable table(file);
  table.AddGroup("SAMP", 1);
  table.AddHeading("LOCA_ID");
  table.AddHeading("SAMP_TOP");
  KeyOrder order(table, parts);
  for (std::int32_t line = 1; line <= file.LineCount(); ++line) {
    if (table.AddRegularRow(line, file.Line(line)) == 0) return false;
    if (line == 1) {
      order.Begin({1, line});
    } else if (!order.GoesOn({1, line})) {
      return false;
    }
  }
  return true;
}

std::string LinesOf(const std::vector<std::string>& seconds) {
  std::string lines;
  for (const std::string& second : seconds)
    lines += "\"BH1\",\"" + second + "\"\n";
  return lines;
}

TEST(KeyOrder, GoesUpWithDepths) {
  EXPECT_TRUE(AreInOrder(LinesOf({"", "0.50", "1.00", "9.50", "10.00", "10.50", "100.00"})));
}

TEST(KeyOrder, GoesDownWithSizes) {
  EXPECT_TRUE(AreInOrder(LinesOf({"63", "37.5", "20", "6.3", "5", "3.35", "1.18", "0.6", "0.425",
                                  "0.3", "0.212", "0.15", "0.063"})));
}

TEST(KeyOrder, EachPartHasItsOwnDirection) {
  EXPECT_TRUE(AreInOrder("\"3\",\"1\"\n\"3\",\"2\"\n\"2\",\"1\"\n\"2\",\"2\"\n\"1\",\"5\""));
}

TEST(KeyOrder, ATurnEndsIt) {
  EXPECT_FALSE(AreInOrder(LinesOf({"1.00", "2.00", "1.50"})));
  EXPECT_FALSE(AreInOrder(LinesOf({"1.00", "2.00", "1.00"})));
}

TEST(KeyOrder, TheSameKeyEndsIt) {
  EXPECT_FALSE(AreInOrder(LinesOf({"1.00", "1.00"})));
}

TEST(KeyOrder, DoesNotTellOfKeysThatMayBeTheSameThoughTheirLinesDiffer) {
  EXPECT_FALSE(AreInOrder(LinesOf({"1.00", "1.00 "})));
  EXPECT_FALSE(AreInOrder(LinesOf({"1.00 ", "1.01"})));
  EXPECT_FALSE(AreInOrder("\"A\",\"B,C\"\n\"A,B\",\"C\""));
  EXPECT_FALSE(AreInOrder("\"A\",\",C\"\n\"A,\",\"C\""));
}

TEST(KeyOrder, DoesNotTellOfNumbersOrOtherColumns) {
  EXPECT_FALSE(AreInOrder(LinesOf({"1.00", "2.00"}), {{1, false}, {2, true}}));
  EXPECT_FALSE(AreInOrder(LinesOf({"1.00", "2.00"}), {{2, false}}));
}

}  // namespace
}  // namespace quorvane::test
