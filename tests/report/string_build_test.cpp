#include "report/string_build.h"

#include <algorithm>
#include <array>
#include <set>
#include <vector>

#include <gtest/gtest.h>

#include "support/random_text.h"
#include "text/comma_list.h"

namespace quorvane::test {
namespace {

CStringBuild Initialised(bool skipEmpty, bool unique) {
  CStringBuild builder;
  builder.StringInit(10000, 10000, skipEmpty, unique);
  return builder;
}

void AddAll(CStringBuild& builder, const std::vector<std::string>& pieces) {
  for (const std::string& piece : pieces) {
    builder.StringAdd(piece);
  }
}

std::string ListedText(const CStringBuild& builder) {
  std::vector<std::string_view> parts{"before"};
  builder.ListText(parts);
  EXPECT_EQ(parts.front(), "before");
  return Join(std::vector<std::string>(parts.begin() + 1, parts.end()), "");
}

TEST(StringBuild, JoinsItsPiecesWithTheDelimiter) {
  CStringBuild builder = Initialised(false, false);
  AddAll(builder, {"a", "", "b", "a"});
  EXPECT_EQ(builder.StringValue("\r\n"), "a\r\n\r\nb\r\na");
  EXPECT_EQ(builder.StringValue(""), "aba");
  EXPECT_EQ(builder.PieceCount(), 4U);
}

TEST(StringBuild, IsEmptyWhenNothingWasAdded) {
  EXPECT_EQ(Initialised(false, false).StringValue(","), "");
  EXPECT_EQ(Initialised(false, false).PieceCount(), 0U);
}

TEST(StringBuild, OneEmptyPieceIsAPiece) {
  CStringBuild builder = Initialised(false, false);
  builder.StringAdd("");
  EXPECT_EQ(builder.StringValue(","), "");
  EXPECT_EQ(builder.PieceCount(), 1U);
  builder.StringAdd("");
  EXPECT_EQ(builder.StringValue(","), ",");
}

TEST(StringBuild, SkipsEmptyPiecesWhenAskedTo) {
  CStringBuild builder = Initialised(true, false);
  AddAll(builder, {"", "a", "", "a", ""});
  EXPECT_EQ(builder.StringValue(","), "a,a");
}

TEST(StringBuild, TakesAPieceOnceWhenUnique) {
  CStringBuild builder = Initialised(false, true);
  AddAll(builder, {"a", "b", "a", "", "A", "", "b"});
  EXPECT_EQ(builder.StringValue(","), "a,b,,A");
}

TEST(StringBuild, SkipsAndComparesAtOnce) {
  CStringBuild builder = Initialised(true, true);
  AddAll(builder, {"", "a", "", "a", "b"});
  EXPECT_EQ(builder.StringValue(","), "a,b");
}

TEST(StringBuild, GivesEachPiece) {
  CStringBuild builder = Initialised(false, false);
  AddAll(builder, {"first", "", "third"});
  EXPECT_EQ(builder.Piece(0), "first");
  EXPECT_EQ(builder.Piece(1), "");
  EXPECT_EQ(builder.Piece(2), "third");
}

TEST(StringBuild, MayGoOnAfterItsValueWasTaken) {
  CStringBuild builder = Initialised(false, false);
  builder.StringAdd("a");
  EXPECT_EQ(builder.StringValue(","), "a");
  builder.StringAdd("b");
  EXPECT_EQ(builder.StringValue(","), "a,b");
}

TEST(StringBuild, StartsAnewWithEachInit) {
  CStringBuild builder = Initialised(true, true);
  AddAll(builder, {"a", "b"});
  builder.StringInit(0, 0, false, false);
  EXPECT_EQ(builder.StringValue(","), "");
  AddAll(builder, {"a", "", "a"});
  EXPECT_EQ(builder.StringValue(","), "a,,a");
}

TEST(StringBuild, ForgetsEarlierPiecesWithEachInit) {
  CStringBuild builder = Initialised(false, true);
  builder.StringAdd("a");
  builder.StringInit(10, 10, false, true);
  builder.StringAdd("a");
  EXPECT_EQ(builder.StringValue(","), "a");
}

TEST(StringBuild, WorksWithoutInit) {
  CStringBuild builder;
  AddAll(builder, {"a", "b"});
  EXPECT_EQ(builder.StringValue("+"), "a+b");
}

TEST(StringBuild, AgreesWithAPlainList) {
  constexpr std::array<std::string_view, 4> letters{"", "a", "b", "ab"};
  RandomText random(41);
  for (int round = 0; round < 500; ++round) {
    const bool skipEmpty = random.OneIn(2);
    const bool unique = random.OneIn(2);
    CStringBuild builder = Initialised(skipEmpty, unique);
    std::vector<std::string> expected;
    std::set<std::string> seen;
    for (std::size_t piece = random.Below(40); piece > 0; --piece) {
      const std::string text = random.Joined(letters, 2);
      builder.StringAdd(text);
      if (skipEmpty && text.empty()) continue;
      if (unique && !seen.insert(text).second) continue;
      expected.push_back(text);
    }
    EXPECT_EQ(builder.StringValue("|"), Join(expected, "|"));
    EXPECT_EQ(builder.PieceCount(), expected.size());
    EXPECT_EQ(ListedText(builder), Join(expected, ""));
  }
}

TEST(StringBuild, PiecesOfAnyLengthStayWhereTheyAre) {
  RandomText random(42);
  CStringBuild builder = Initialised(false, false);
  std::vector<std::string> expected;
  std::vector<std::string_view> views;
  for (int piece = 0; piece < 2000; ++piece) {
    const std::size_t length = random.OneIn(100) ? random.Below(3000000) : random.Below(300);
    expected.emplace_back(length, static_cast<char>('a' + random.Below(26)));
    builder.StringAdd(expected.back());
    views.push_back(builder.Piece(builder.PieceCount() - 1));
  }
  EXPECT_TRUE(std::equal(views.begin(), views.end(), expected.begin(), expected.end()));
  EXPECT_EQ(ListedText(builder), Join(expected, ""));
}

TEST(StringBuild, TakesAMillionPieces) {
  CStringBuild builder = Initialised(false, false);
  for (int piece = 0; piece < 1000000; ++piece) {
    builder.StringAdd("  ERROR: Line 12 - a finding of common length");
  }
  EXPECT_EQ(builder.PieceCount(), 1000000U);
  EXPECT_EQ(builder.StringValue("\r\n").size(), 1000000U * 47U - 2U);
}

}  // namespace
}  // namespace quorvane::test
