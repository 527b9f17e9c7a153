#include "procedure/row_block.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

namespace tarvex {

namespace {

std::vector<int> OrderAsItIs(std::size_t count) {
    std::vector<int> order(count);
    std::iota(order.begin(), order.end(), 0);
    return order;
}

}  // namespace

bool IsOrder(const std::vector<int>& order) {
    const std::vector<int> rows = OrderAsItIs(order.size());
    return std::is_permutation(order.begin(), order.end(), rows.begin());
}

std::vector<int> PlacesIn(const std::vector<int>& order) {
    std::vector<int> places(order.size());
    for (int place = 0; const int row : order) places[static_cast<std::size_t>(row)] = place++;
    return places;
}

std::vector<int> MovedByOne(const std::vector<int>& block, int by, int count) {
    std::vector<int> order = OrderAsItIs(static_cast<std::size_t>(count));
    std::vector<int> rows = block;
    if (by > 0) std::reverse(rows.begin(), rows.end());
    int border = by < 0 ? 0 : count - 1;
    for (const int row : rows) {
        if (row == border) {
            border -= by;
        } else {
            std::iter_swap(order.begin() + row, order.begin() + row + by);
        }
    }
    return order;
}

std::vector<int> MovedBefore(const std::vector<int>& block, int before, int count) {
    std::vector<int> order = OrderAsItIs(static_cast<std::size_t>(count));
    const auto moves = [&block](int row) { return std::binary_search(block.begin(), block.end(), row); };
    const auto gap = order.begin() + before;
    std::stable_partition(order.begin(), gap, [&moves](int row) { return !moves(row); });
    std::stable_partition(gap, order.end(), moves);
    return order;
}

}  // namespace tarvex
