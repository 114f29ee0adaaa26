#include "text/large_block.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <vector>

#include <gtest/gtest.h>

namespace quorvane::test {
namespace {

TEST(LargeBlock, HoldsWhatIsPutIntoItAtEverySize) {
  for (const std::size_t size : {std::size_t{1}, std::size_t{1000}, std::size_t{5} << 20U}) {
    const LargeBlock<char> block = MakeLargeBlock<char>(size);
    block[0] = 'a';
    block[size - 1] = 'z';
    EXPECT_EQ(block[size - 1], 'z');
    EXPECT_EQ(block[0], size == 1 ? 'z' : 'a');
  }
}

TEST(LargeVector, KeepsItsItemsWhileItGrows) {
  LargeVector<int> numbers;
  for (int number = 0; number < 2000000; ++number)
    numbers.push_back(number);
  EXPECT_EQ(std::accumulate(numbers.begin(), numbers.end(), 0LL), 1999999LL * 1000000LL);
}

TEST(LargeVector, RefusesMoreThanThereCanBe) {
  LargeAllocator<int> allocator;
  EXPECT_THROW(static_cast<void>(allocator.allocate(std::numeric_limits<std::size_t>::max() / 2)),
               std::bad_array_new_length);
}

TEST(PreferLargePages, LeavesMemoryAsItIs) {
  for (const std::size_t size : {std::size_t{1}, std::size_t{1000}, std::size_t{9} << 20U}) {
    std::vector<char> memory(size, 'x');
    PreferLargePages(memory.data(), memory.size());
    EXPECT_EQ(std::count(memory.begin(), memory.end(), 'x'), static_cast<std::ptrdiff_t>(size));
  }
}

}  // namespace
}  // namespace quorvane::test
