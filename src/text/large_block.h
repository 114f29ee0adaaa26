#pragma once

#include <cstddef>
#include <limits>
#include <memory>
#include <new>
#include <string>
#include <type_traits>
#include <vector>

namespace quorvane {

/// Memory for arrays that may grow to many megabytes. It is asked for in large pages where the
/// system has them on request: taking memory into use page by page costs as much time as reading
/// the file does. Throws std::bad_alloc when there is none.
void* AllocateLarge(std::size_t bytes);

/// Gives memory of AllocateLarge back; the size is the one that was asked for.
void FreeLarge(void* memory, std::size_t bytes) noexcept;

/// Asks for large pages behind memory of any other origin that is about to be taken into use.
void PreferLargePages(void* memory, std::size_t bytes) noexcept;

/// The allocator of a vector or text that may become large.
template <typename Item>
class LargeAllocator {
 public:
  using value_type = Item;

  LargeAllocator() = default;
  template <typename Other>
  LargeAllocator(const LargeAllocator<Other>& /*other*/) noexcept {}  // NOLINT: allocators convert

  Item* allocate(std::size_t count) {
    if (count > std::numeric_limits<std::size_t>::max() / sizeof(Item)) {
      throw std::bad_array_new_length();
    }
    return static_cast<Item*>(AllocateLarge(count * sizeof(Item)));
  }
  void deallocate(Item* items, std::size_t count) noexcept {
    FreeLarge(items, count * sizeof(Item));
  }

  friend bool operator==(const LargeAllocator&, const LargeAllocator&) { return true; }
};

template <typename Item>
using LargeVector = std::vector<Item, LargeAllocator<Item>>;

using LargeString = std::basic_string<char, std::char_traits<char>, LargeAllocator<char>>;

struct LargeBlockDeleter {
  std::size_t bytes = 0;
  void operator()(void* memory) const noexcept { FreeLarge(memory, bytes); }
};

/// A block of plain items whose content is not set.
template <typename Item>
using LargeBlock = std::unique_ptr<Item[], LargeBlockDeleter>;

template <typename Item>
LargeBlock<Item> MakeLargeBlock(std::size_t count) {
  static_assert(std::is_trivial_v<Item>);
  const std::size_t bytes = count * sizeof(Item);
  return {static_cast<Item*>(AllocateLarge(bytes)), LargeBlockDeleter{bytes}};
}

}  // namespace quorvane
