#include "text/large_block.h"

#include <cstdint>

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace quorvane {
namespace {

/// The size of a large page on the machines that Quorvane runs on. Where it is another, the memory
/// is merely not in large pages.
constexpr std::size_t LargePage = std::size_t{2} << 20U;

/// Smaller arrays are not worth a whole page.
constexpr bool IsLarge(std::size_t bytes) {
  return bytes >= LargePage;
}

constexpr std::align_val_t PageAlignment{LargePage};

}  // namespace

void* AllocateLarge(std::size_t bytes) {
  if (!IsLarge(bytes)) return ::operator new(bytes);
  void* memory = ::operator new(bytes, PageAlignment);
  PreferLargePages(memory, bytes);
  return memory;
}

void PreferLargePages(void* memory, std::size_t bytes) noexcept {
#if defined(__linux__)
  const std::size_t before = (LargePage - reinterpret_cast<std::uintptr_t>(memory)) % LargePage;
  if (bytes <= before) return;
  // A wish: where it is not granted, the memory is as good but slower.
  static_cast<void>(::madvise(static_cast<char*>(memory) + before, bytes - before, MADV_HUGEPAGE));
#else
  static_cast<void>(memory);
  static_cast<void>(bytes);
#endif
}

void FreeLarge(void* memory, std::size_t bytes) noexcept {
  if (IsLarge(bytes)) {
    ::operator delete(memory, PageAlignment);
  } else {
    ::operator delete(memory);
  }
}

}  // namespace quorvane
