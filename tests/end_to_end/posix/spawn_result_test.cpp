#include "host/hxacore/spawn_result.h"

#include <gtest/gtest.h>

#include "host/hxacore/host_services.h"

namespace {

TEST(SpawnResult, NamesTheSignalThatEndedTheProgram) {
  const auto result = NKVRHXA20::RealServices().spawn("/bin/sh", {"-c", "echo begun; kill -9 $$"}, 60);
  EXPECT_FALSE(result.exitStatus.has_value());
  EXPECT_EQ(result.ending, "signal 9");
  EXPECT_EQ(result.output, "begun\n");
}

}  // namespace
