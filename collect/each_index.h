#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

// Calls work with 0, 1 and so on as constants, so that what it does with each row of a table that the compiler knows is
// code of its own.
template <std::size_t kCount, class Work>
void ForEachIndex(const Work& work) {
  [&work]<std::size_t... kIndexes>(std::index_sequence<kIndexes...>) {
    (work(std::integral_constant<std::size_t, kIndexes>()), ...);
  }
  (std::make_index_sequence<kCount>());
}
