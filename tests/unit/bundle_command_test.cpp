#include "host/hxahost/program/bundle_command.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "host/hxahost/bundle/bundle_file.h"
#include "host/hxahost/bundle/read_bundle.h"
#include "host/hxahost/bundle/write_bundle.h"
#include "host/hxahost/system/exit_status.h"
#include "tests/support/file_text.h"
#include "tests/support/sample_bundle.h"
#include "tests/support/temporary_folder.h"

namespace {

using namespace hxahost;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class BundleCommand : public testing::Test {
 protected:
  BundleCommand() { options_.file = folder_.Write("m.bundle", WriteBundle(SampleBundle())); }

  std::string Shown() {
    std::ostringstream out;
    ShowBundle(options_, out);
    return out.str();
  }

  // The message of the program's error.
  template <class Command>
  static std::string Error(const Command& command) {
    try {
      command();
      return "";
    } catch (const ProgramError& error) {
      EXPECT_EQ(error.Status(), ExitStatus::kWrongArguments);
      return error.what();
    }
  }

  TemporaryFolder folder_;
  BundleOptions options_;
};

TEST_F(BundleCommand, ListsOneLineForEachItem) {
  std::ostringstream out;
  ListBundle(options_, out);
  EXPECT_EQ(out.str(),
            " ITEM     BYTES   SECONDS  COMMAND (OUTCOME)\n"
            "    1        81     0.125  zenx//arcconf.exe getconfig 1 al (cut off: its last line is \"no line end\")\n"
            "    2         0     0.125  zenx//arcconf.exe getlogs 1 "
            "(failed: it wrote nothing, and it was ended by the system: signal 11)\n"
            "    3         0   300.500  zenx//qcmdrun.exe (timed out: it did not answer within 300 s)\n"
            "    4        26         -  C:\\ZXM\\RaidEvtA.log (ok)\n");
}

TEST_F(BundleCommand, ShowsTheHeaderOfAllItems) {
  EXPECT_THAT(Shown(), StartsWith("hxahost bundle 1\nprogram: \"1.0.0\"\nmasked: no\nmachine: \"DBSERVER\"\n"));
  EXPECT_THAT(Shown(), testing::EndsWith("\nitems: 4\n"));
}

TEST_F(BundleCommand, ShowsAnItemWithoutSendingAControlToTheTerminal) {
  options_.items = {1, 4};
  const std::string shown = Shown();
  EXPECT_THAT(shown, StartsWith("1: zenx//arcconf.exe getconfig 1 al (cut off"));
  EXPECT_THAT(shown, HasSubstr("\nControllers found: 1\n   Serial number : AB12CD34\n\n"));
  EXPECT_THAT(shown, HasSubstr("\\x1b[2J"));
  EXPECT_THAT(shown, HasSubstr("4: C:\\ZXM\\RaidEvtA.log (ok)\nday\\tINF"));
  EXPECT_THAT(shown, Not(HasSubstr("\x1b")));
}

TEST_F(BundleCommand, WritesTheBytesOfAnItemToAFile) {
  options_.items = {1};
  options_.isRaw = true;
  options_.output = folder_.Path() / "raw";
  EXPECT_EQ(Shown(), "");
  EXPECT_EQ(FileText(folder_.Path() / "raw"), SampleBundle().runs[0].result.output);
}

TEST_F(BundleCommand, RefusesAnItemThatIsNotThere) {
  options_.items = {1, 5};
  EXPECT_THAT(Error([this] { Shown(); }), HasSubstr("ITEM 5: this bundle has 4"));
}

TEST_F(BundleCommand, MasksABundleIntoAnother) {
  options_.output = folder_.Path() / "masked";
  std::ostringstream out;
  MaskBundleFile(options_, out);
  EXPECT_EQ(out.str(), "");
  const Bundle masked = ReadBundleFile(folder_.Path() / "masked");
  EXPECT_TRUE(masked.isMasked);
  EXPECT_EQ(masked.machine.size(), 8U);
  EXPECT_NE(masked.machine, "DBSERVER");
  EXPECT_THAT(masked.runs[0].result.output, Not(HasSubstr("AB12CD34")));
}

TEST_F(BundleCommand, MasksABundleOnStandardOutput) {
  std::ostringstream out;
  MaskBundleFile(options_, out);
  EXPECT_TRUE(ReadBundle(out.str()).isMasked);
}

TEST_F(BundleCommand, RefusesAnIncompleteBundleInOneLine) {
  std::ostringstream out;
  const std::string damaged = WriteBundle(SampleBundle()).substr(0, 300);
  for (const auto& [name, text] : {std::pair("foreign", std::string("{}")), std::pair("damaged", damaged)}) {
    options_.file = folder_.Write(name, text);
    EXPECT_THAT(Error([&] { ListBundle(options_, out); }), HasSubstr(name));
    EXPECT_THAT(Error([&] { Shown(); }), Not(HasSubstr("\n")));
    options_.output = folder_.Path() / "out";
    EXPECT_NE(Error([&] { MaskBundleFile(options_, out); }), "");
    EXPECT_FALSE(std::filesystem::exists(folder_.Path() / "out"));
  }
  for (const std::filesystem::path& missing : {folder_.Path() / "missing", folder_.Path()}) {
    options_.file = missing;
    EXPECT_THAT(Error([&] { ListBundle(options_, out); }), HasSubstr("cannot be read"));
  }
  EXPECT_EQ(out.str(), "");
}

}  // namespace
