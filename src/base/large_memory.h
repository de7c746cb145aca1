#pragma once

#include <cstddef>
#include <new>

namespace benevix {

// Allocates `size` bytes, in huge pages where the system has them: with 4 KB pages the page faults
// of a large buffer take longer than reading a file into it. Raises std::bad_alloc.
void* AllocateLarge(std::size_t size);
void FreeLarge(void* memory, std::size_t size);

// For large containers; resize() leaves new elements of trivial types uninitialized.
template <class T>
struct LargeAllocator {
  using value_type = T;

  LargeAllocator() = default;
  template <class Other>
  explicit LargeAllocator(const LargeAllocator<Other>& /*other*/) {}

  T* allocate(std::size_t count) { return static_cast<T*>(AllocateLarge(count * sizeof(T))); }
  void deallocate(T* memory, std::size_t count) { FreeLarge(memory, count * sizeof(T)); }

  template <class Element, class... Arguments>
  void construct(Element* place, const Arguments&... arguments) {
    if constexpr (sizeof...(arguments) == 0) {
      ::new (static_cast<void*>(place)) Element;
    } else {
      ::new (static_cast<void*>(place)) Element(arguments...);
    }
  }

  bool operator==(const LargeAllocator& /*other*/) const { return true; }
};

}  // namespace benevix
