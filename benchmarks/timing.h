#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <vector>

namespace tarvex::benchmarks {

template <class Work>
double MillisecondsOf(const Work& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

inline double MedianOf(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

}  // namespace tarvex::benchmarks
