#include "host/hxacore/whole_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/hxahost/bundle/bundle_file.h"
#include "host/hxahost/result/json_result.h"
#include "host/hxahost/system/exit_status.h"
#include "tests/support/temporary_folder.h"

namespace {

using NKVRHXA20::ReadWholeFile;
using testing::HasSubstr;

// Can be opened, but reading fails as on a broken disk: no memory is mapped at its beginning.
constexpr const char* kBroken = "/proc/self/mem";

TEST(WholeFile, ContainsTheBytesOfTheFile) {
  const TemporaryFolder folder;
  for (const std::size_t size : {0U, 1U, 4095U, 4096U, 4097U, 10000U}) {
    const std::string written(size, 'x');
    folder.Write("file", written);
    const NKVRHXA20::WholeFile read = ReadWholeFile(folder.Path() / "file");
    EXPECT_EQ(read.refusal, "") << size;
    EXPECT_EQ(read.bytes, written);
  }
}

TEST(WholeFile, IsEmptyIfTheSystemFailsToReadIt) {
  const TemporaryFolder folder;
  for (const std::filesystem::path& path : {std::filesystem::path(kBroken), folder.Path(), folder.Path() / "none"}) {
    const NKVRHXA20::WholeFile read = ReadWholeFile(path);
    EXPECT_NE(read.refusal, "") << path;
    EXPECT_EQ(read.bytes, "");
  }
}

template <class Read>
std::string Complaint(const Read& read) {
  try {
    read();
  } catch (const hxahost::ProgramError& error) {
    return error.what();
  }
  return "none";
}

TEST(WholeFile, ThatCannotBeReadIsNamedWithAdvice) {
  EXPECT_THAT(Complaint([] { hxahost::ReadJsonResult(kBroken); }),
              HasSubstr("/proc/self/mem cannot be read (Input/output error): name a"));
  EXPECT_THAT(Complaint([] { hxahost::ReadBundleFile(kBroken); }),
              HasSubstr("/proc/self/mem cannot be read (Input/output error): name a"));
}

}  // namespace
