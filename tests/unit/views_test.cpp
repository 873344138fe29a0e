#include "host/hxahost/views/views.h"

#include <gtest/gtest.h>

#include "host/hxahost/program/options.h"

namespace {

using namespace hxahost;

TEST(Views, AreFoundByTheirFormatTheDefaultFirst) {
  ASSERT_FALSE(Views().empty());
  EXPECT_EQ(Views().front().format, QueryOptions().format);
  for (const View& view : Views()) EXPECT_EQ(FindView(view.format), &view);
  EXPECT_EQ(FindView("TABLE"), nullptr);
  EXPECT_EQ(FindView(""), nullptr);
}

}  // namespace
