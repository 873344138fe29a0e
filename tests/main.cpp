#include <gmock/gmock.h>

#include "tests/support/test_system.h"

int main(int argc, char** argv) {
  // Where lines are counted, a program says on standard error when it cannot add to the counts: after it was built
  // anew, or where it may write no file. What it says there is not what is tested.
  SetVariable("GCOV_ERROR_FILE", "/dev/null");
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
