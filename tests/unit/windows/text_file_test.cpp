#include "logs/text_file.h"

#include <gtest/gtest.h>

#include "tests/support/temporary_folder.h"

namespace {

// Text streams of Windows end there, too.
TEST(TextFileOnWindows, EndsAtTheByteThatEndsTextFiles) {
  const TemporaryFolder folder;
  TextFile file(folder.Write("text", "one\r\ntwo\x1Athree\r\nfour\r\n").string());
  EXPECT_EQ(file.ReadLine(), "one\n");
  EXPECT_FALSE(file.HasMetEnd());
  EXPECT_EQ(file.ReadLine(), "two");
  EXPECT_EQ(file.ReadLine(), "");
  EXPECT_TRUE(file.HasMetEnd());
}

}  // namespace
