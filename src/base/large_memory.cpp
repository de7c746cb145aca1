#include "base/large_memory.h"

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace benevix {
namespace {

constexpr std::size_t kLargePage = std::size_t{2} << 20;
constexpr std::align_val_t kAlignment{kLargePage};

}  // namespace

void* AllocateLarge(std::size_t size) {
  if (size < kLargePage) return ::operator new(size);
  void* const memory = ::operator new(size, kAlignment);
#if defined(__linux__)
  // Whole pages, so that nothing else comes to lie in the last one. A refusal costs only time.
  madvise(memory, size / kLargePage * kLargePage, MADV_HUGEPAGE);
#endif
  return memory;
}

void FreeLarge(void* memory, std::size_t size) {
  if (size < kLargePage) {
    ::operator delete(memory);
  } else {
    ::operator delete(memory, kAlignment);
  }
}

}  // namespace benevix
