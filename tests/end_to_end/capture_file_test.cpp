#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "plugin/host_interface/exception.h"
#include "plugin/host_interface/services.h"
#include "tests/support/test_system.h"

namespace {

using namespace NKVRHXA20;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using testing::ThrowsMessage;

class CaptureFile : public testing::Test {
 protected:
  ~CaptureFile() override { std::filesystem::remove(path); }

  std::string Captured(const std::string& contents) {
    std::ofstream(path, std::ios::binary) << contents;
    return TOSSpecific::CaptureFile(path);
  }

  std::string path = (ProgramFolder() / "capture_file_test.log").string();
};

TEST_F(CaptureFile, ReturnsEveryByteUnchanged) {
  std::string bytes = "line\r\nline\n\x1A\xFF";
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  EXPECT_EQ(Captured(bytes), bytes);
  EXPECT_EQ(Captured(""), "");
  EXPECT_EQ(Captured(std::string(1000001, 'x')), std::string(1000001, 'x'));
}

TEST_F(CaptureFile, ReadsAFileThatItsOwnerHasOpen) {
  std::ofstream owner(path);
  owner << "so far" << std::flush;
  EXPECT_EQ(TOSSpecific::CaptureFile(path), "so far");
}

TEST_F(CaptureFile, ReportsInOneLineWhichFileCannotBeReadAndWhy) {
  for (const std::string& unreadable : {path + ".missing", ProgramFolder().string(), std::string()}) {
    EXPECT_THAT([&] { TOSSpecific::CaptureFile(unreadable); },
                ThrowsMessage<THXAException>(AllOf(StartsWith("\"" + unreadable + "\" cannot be read: "),
                                                   Not(EndsWith(": ")), Not(HasSubstr("\n")))));
  }
}

}  // namespace
