// Finding the few actions among many that make something fail.
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <vector>

namespace tests {

/// Leaves out runs of items, ever shorter ones, as long as the rest still fails. No single item can be left out of what
/// remains. `items` must fail.
template <class Item>
std::vector<Item> shortestFailing(std::vector<Item> items, const std::function<bool(const std::vector<Item>&)>& fails) {
  for (std::size_t run = std::max<std::size_t>(items.size() / 2, 1); run > 0;) {
    bool isShorter = false;
    for (std::size_t start = 0; start < items.size();) {
      std::vector<Item> rest(items.begin(), items.begin() + static_cast<std::ptrdiff_t>(start));
      const std::size_t end = std::min(start + run, items.size());
      rest.insert(rest.end(), items.begin() + static_cast<std::ptrdiff_t>(end), items.end());
      if (fails(rest)) {
        items = rest;
        isShorter = true;
      } else {
        start += run;
      }
    }
    run = run == 1 && isShorter ? 1 : run / 2;
  }
  return items;
}

}  // namespace tests
