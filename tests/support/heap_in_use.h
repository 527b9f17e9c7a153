#pragma once

#include <cstddef>
#if defined(__SANITIZE_ADDRESS__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();  // of the sanitizer's own allocator
#elif defined(__linux__)
#include <malloc.h>
#endif

namespace tarvex::testing {

// Bytes that the process has allocated and not given back; 0 where the machine does not tell.
inline std::size_t HeapInUse() {
#if defined(__SANITIZE_ADDRESS__)
    return __sanitizer_get_current_allocated_bytes();
#elif defined(__GLIBC__)
    const auto heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
#else
    return 0;
#endif
}

}  // namespace tarvex::testing
