#pragma once

#include <cstddef>
#include <new>

namespace benevix {

// Memory for megabytes at a time, in the largest pages that the system gives: in common ones, the
// first touch of each takes longer than reading a file into it. Raises std::bad_alloc.
void* AllocateLarge(std::size_t size);
void FreeLarge(void* memory, std::size_t size);

// For containers that hold much. New elements of simple types are left uninitialized.
template <class T>
struct LargeAllocator {
  using value_type = T;

  LargeAllocator() = default;
  template <class Other>
  explicit LargeAllocator(const LargeAllocator<Other>& /*other*/) {}

  T* allocate(std::size_t count) { return static_cast<T*>(AllocateLarge(count * sizeof(T))); }
  void deallocate(T* memory, std::size_t count) { FreeLarge(memory, count * sizeof(T)); }

  template <class Made, class... Arguments>
  void construct(Made* place, const Arguments&... arguments) {
    if constexpr (sizeof...(arguments) == 0) {
      ::new (static_cast<void*>(place)) Made;
    } else {
      ::new (static_cast<void*>(place)) Made(arguments...);
    }
  }

  bool operator==(const LargeAllocator& /*other*/) const { return true; }
};

}  // namespace benevix
