#pragma once

#include <cstddef>

namespace tarvex::benchmarks {

// How often the process has taken memory through operator new so far.
std::size_t AllocationCount();

}  // namespace tarvex::benchmarks
