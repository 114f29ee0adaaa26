#include "report/disk.h"

#include <algorithm>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

/// Whether the bytes of a buffer can be viewed.
template <typename Buffer>
concept CanBeViewed = requires(Buffer&& buffer) {
  std::forward<Buffer>(buffer).View();
};

// A view of a buffer that ends with the statement must not compile.
static_assert(CanBeViewed<ByteBuffer&>);
static_assert(CanBeViewed<const ByteBuffer&>);
static_assert(!CanBeViewed<ByteBuffer>);
static_assert(!CanBeViewed<const ByteBuffer>);
static_assert(!CanBeViewed<ByteBuffer&&>);

// The bytes are never copied.
static_assert(!std::is_copy_constructible_v<ByteBuffer>);
static_assert(!std::is_copy_assignable_v<ByteBuffer>);
static_assert(std::is_nothrow_move_constructible_v<ByteBuffer>);

bool IsPadded(const ByteBuffer& buffer) {
  const char* end = buffer.Data() + buffer.Size();
  return std::all_of(end, end + ByteBuffer::Padding, [](char byte) { return byte == '\0'; });
}

TEST(ByteBuffer, HoldsACopyOfBytesWithZerosBehind) {
  std::string source("a\0\r\n\xFF", 5);
  const ByteBuffer buffer(source);
  source.assign(5, 'x');
  EXPECT_EQ(buffer.View(), std::string_view("a\0\r\n\xFF", 5));
  EXPECT_EQ(buffer.Size(), 5U);
  EXPECT_TRUE(IsPadded(buffer));
}

TEST(ByteBuffer, MayBeEmpty) {
  const ByteBuffer none;
  EXPECT_EQ(none.Size(), 0U);
  EXPECT_TRUE(none.View().empty());
  const ByteBuffer empty("");
  EXPECT_EQ(empty.Size(), 0U);
  EXPECT_TRUE(empty.View().empty());
  EXPECT_TRUE(IsPadded(empty));
}

TEST(ByteBuffer, HasRoomToBeFilled) {
  ByteBuffer buffer = ByteBuffer::WithRoomFor(100);
  std::fill_n(buffer.Data(), 100, 'x');
  EXPECT_EQ(buffer.View(), std::string(100, 'x'));
  EXPECT_TRUE(IsPadded(buffer));
}

TEST(ByteBuffer, PadsBehindWhatIsLeftWhenItShrinks) {
  ByteBuffer buffer = ByteBuffer::WithRoomFor(200);
  std::fill_n(buffer.Data(), 200, 'x');
  buffer.ShrinkTo(70);
  EXPECT_EQ(buffer.View(), std::string(70, 'x'));
  EXPECT_TRUE(IsPadded(buffer));
  buffer.ShrinkTo(0);
  EXPECT_EQ(buffer.Size(), 0U);
  EXPECT_TRUE(IsPadded(buffer));
}

TEST(ByteBuffer, KeepsItsBytesInPlaceWhenItMoves) {
  ByteBuffer first("bytes");
  const char* place = first.Data();
  const ByteBuffer second = std::move(first);
  EXPECT_EQ(second.Data(), place);
  EXPECT_EQ(second.View(), "bytes");
}

TEST(FileFacts, StartAsThoseOfAMissingFile) {
  const FileFacts facts;
  EXPECT_FALSE(facts.exists);
  EXPECT_EQ(facts.size, 0U);
  EXPECT_FALSE(facts.obstacle.has_value());
}

}  // namespace
}  // namespace quorvane::test
