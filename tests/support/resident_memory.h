#pragma once

#include <cstddef>
#include <fstream>
#ifndef _WIN32
#include <unistd.h>
#endif

namespace tarvex::testing {

// Bytes of memory that the process holds at present; 0 where the machine does not tell.
inline std::size_t ResidentMemory() {
#ifdef _WIN32
    return 0;
#else
    std::size_t all = 0;
    std::size_t resident = 0;
    std::ifstream("/proc/self/statm") >> all >> resident;
    return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
#endif
}

}  // namespace tarvex::testing
