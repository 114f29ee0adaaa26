#include "text/large_block.h"

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
#if defined(__linux__)
  // A wish: where it is not granted, the memory is as good but slower.
  static_cast<void>(::madvise(memory, bytes, MADV_HUGEPAGE));
#endif
  return memory;
}

void FreeLarge(void* memory, std::size_t bytes) noexcept {
  if (IsLarge(bytes)) {
    ::operator delete(memory, PageAlignment);
  } else {
    ::operator delete(memory);
  }
}

}  // namespace quorvane
