#include "collect/each_index.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(EachIndex, CountsUpFromZero) {
  std::string seen;
  ForEachIndex<4>([&](auto index) {
    constexpr std::size_t kIndex = index;
    seen += std::to_string(kIndex);
  });
  EXPECT_EQ(seen, "0123");
}

TEST(EachIndex, DoesNothingForNone) {
  ForEachIndex<0>([](auto) { ADD_FAILURE(); });
}

}  // namespace
