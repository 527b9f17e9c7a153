#include "target.h"

#include <cstdlib>
#include <iostream>

namespace tarvex::fuzzing {

void Require(bool holds, std::string_view property, std::initializer_list<std::string_view> shown) {
    if (holds) return;
    std::cerr << "Broken: " << property << "\n";
    for (std::string_view text : shown) std::cerr << "[" << text << "]\n";
    std::abort();
}

}  // namespace tarvex::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tarvex::fuzzing::TryInput({reinterpret_cast<const char*>(data), size});
    return 0;
}
