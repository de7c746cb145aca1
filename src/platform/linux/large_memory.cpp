#include "platform/large_memory.h"

#include <sys/mman.h>

namespace benevix {
namespace {

constexpr std::size_t kLargePage = std::size_t{2} << 20;
constexpr std::align_val_t kAlignment{kLargePage};

}  // namespace

void* AllocateLarge(std::size_t size) {
  if (size < kLargePage) return ::operator new(size);
  void* const memory = ::operator new(size, kAlignment);
  // Whole pages, so that nothing else comes to lie in the last one. A refusal costs only time.
  madvise(memory, size / kLargePage * kLargePage, MADV_HUGEPAGE);
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
