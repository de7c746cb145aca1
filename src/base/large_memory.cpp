#include "base/large_memory.h"

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace benevix {
namespace {

constexpr std::size_t kHugePage = std::size_t{2} << 20;
constexpr std::align_val_t kAlignment{kHugePage};

}  // namespace

void* AllocateLarge(std::size_t size) {
  if (size < kHugePage) return ::operator new(size);
  void* const memory = ::operator new(size, kAlignment);
#if defined(__linux__)
  // Whole pages only, so that no other allocation shares the last one. Failing costs only speed.
  madvise(memory, size / kHugePage * kHugePage, MADV_HUGEPAGE);
#endif
  return memory;
}

void FreeLarge(void* memory, std::size_t size) {
  if (size < kHugePage) {
    ::operator delete(memory);
  } else {
    ::operator delete(memory, kAlignment);
  }
}

}  // namespace benevix
