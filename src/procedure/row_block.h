#pragma once

#include <vector>

namespace tarvex {

// Orders of rows. In the order {1, 0, 2} the first two of three rows have changed places: what stands in
// place i is the row that stood in place order[i].

// Whether each row comes once.
bool IsOrder(const std::vector<int>& order);
// The place that each row comes to: the order that takes this one back.
std::vector<int> PlacesIn(const std::vector<int>& order);

// The order of `count` rows when those of `block`, rising, move by one: up (-1) or down (1). A row at the
// border stays, and so does each that stands against one that stays.
std::vector<int> MovedByOne(const std::vector<int>& block, int by, int count);
// When they come together, as they follow each other, in front of the row `before`; `count` is behind the
// last.
std::vector<int> MovedBefore(const std::vector<int>& block, int before, int count);

}  // namespace tarvex
