#include "host/hxahost/program/diff_command.h"

#include <gtest/gtest.h>

#include <sstream>

#include <nlohmann/json.hpp>

#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/text/utf8.h"
#include "tests/support/temporary_folder.h"

namespace {

using namespace hxahost;

constexpr const char* kEmpty = R"({"format": 1, "machine": "M", "queries": [{"instances": [], "log": []}]})";
constexpr const char* kOneDisk =
    R"({"format": 1, "machine": "M", "queries": [{"instances": [
        {"class": "KVRSG_zxDiskDrive", "path": "d\u001b[2J", "properties": {"State": "Online\u0007"}}]}]})";

class DiffCommand : public testing::Test {
 protected:
  DiffOptions Options(const char* before, const char* after) const {
    return {Utf8FromPath(folder_.Write("1.json", before)), Utf8FromPath(folder_.Write("2.json", after)), "text"};
  }

  TemporaryFolder folder_;
  std::ostringstream out_;
};

TEST_F(DiffCommand, ReturnsStatus0ForEqualResultsAnd1ForADifference) {
  EXPECT_EQ(RunDiffCommand(Options(kEmpty, kEmpty), out_), 0);
  EXPECT_EQ(RunDiffCommand(Options(kEmpty, kOneDisk), out_), 1);
}

TEST_F(DiffCommand, SendsNoControlCharacterOfAResultToTheTerminal) {
  RunDiffCommand(Options(kOneDisk, kEmpty), out_);
  EXPECT_EQ(out_.str().find('\x1b'), std::string::npos);
  EXPECT_NE(out_.str().find("  - d\\x1b[2J\n"), std::string::npos) << out_.str();
}

TEST_F(DiffCommand, ShowsTheFindingsBeforeEverythingElse) {
  const auto disk = [](const std::string& state) {
    return R"({"format": 1, "machine": "M", "queries": [{"instances": [{"class": "KVRSG_zxDiskDrive", "path": "d",
        "properties": {"DeviceID": "D\u001b", "ControllerNum": "1", "DeviceType": "Hard drive", "State": ")" +
           state + "\"}}]}]}";
  };
  const std::string online = disk("Online");
  const std::string failed = disk("Failed");
  const std::string strange = disk("Strange\\u0007");
  RunDiffCommand(Options(online.c_str(), failed.c_str()), out_);
  EXPECT_NE(
      out_.str().find(":\n\nHealth findings: 1\n  + critical: Hard drive at number  of controller 1 [D\\x1b]: State "
                      "\"Failed\": Replace the disk: it has failed\n\nStates that changed: 1\n"),
      std::string::npos)
      << out_.str();
  out_.str("");
  RunDiffCommand(Options(strange.c_str(), failed.c_str()), out_);
  EXPECT_NE(out_.str().find("  ! unknown -> critical: "), std::string::npos) << out_.str();
  EXPECT_NE(out_.str().find("it has failed (was \"Strange\\x07\")\n"), std::string::npos) << out_.str();
  out_.str("");
  RunDiffCommand(Options(failed.c_str(), online.c_str()), out_);
  EXPECT_NE(out_.str().find("  - critical: "), std::string::npos) << out_.str();
}

// The path of a disk contains its place with some utilities, its serial number with others.
TEST_F(DiffCommand, ShowsADiskThatWasReplacedInOneLine) {
  const auto disk = [](const std::string& path, const std::string& serial, const std::string& firmware) {
    return R"({"format": 1, "machine": "M", "queries": [{"instances": [{"class": "KVRSG_zxDiskDrive", "path": ")" +
           path + R"(", "properties": {"DeviceID": ")" + path + R"(", "ControllerNum": "4", "DeviceType": "Hard drive",
        "ReportedLocation": "Enclosure 0, Slot 8", "State": "Online", "Firmware": ")" +
           firmware + R"(", "DeviceSerialNum": ")" + serial + "\"}}]}]}";
  };
  for (const char* const path : {"by place", "by serial"}) {
    const std::string before = disk(path, "NV3LE77Q2H", "BA2C");
    const std::string after = disk(path == std::string("by place") ? path : "other", "NV3MA01", "BA31");
    DiffOptions options = Options(before.c_str(), after.c_str());
    out_.str("");
    EXPECT_EQ(RunDiffCommand(options, out_), 1);
    EXPECT_NE(
        out_.str().find(":\n\nDisks replaced: 1\n  C4 enclosure 0, slot 8: disk replaced, NV3LE77Q2H -> NV3MA01\n"),
        std::string::npos)
        << out_.str();
    EXPECT_EQ(out_.str().find("Firmware"), std::string::npos) << "the firmware is the other disk's: " << out_.str();
    options.isVerbose = true;
    out_.str("");
    RunDiffCommand(options, out_);
    EXPECT_NE(out_.str().find(path), std::string::npos) << out_.str();
    EXPECT_EQ(out_.str().find("replaced"), std::string::npos) << out_.str();
  }
  const std::string before = disk("d", "", "BA2C");
  const std::string after = disk("d", "NV3MA01", "BA2C");
  out_.str("");
  RunDiffCommand(Options(before.c_str(), after.c_str()), out_);
  EXPECT_EQ(out_.str().find("replaced"), std::string::npos) << "a number that was not read before: " << out_.str();
}

TEST_F(DiffCommand, WritesBothSidesOfAFindingForPrograms) {
  DiffOptions options = Options(kEmpty, kOneDisk);
  options.format = "json";
  RunDiffCommand(options, out_);
  const auto json = nlohmann::json::parse(out_.str());
  ASSERT_EQ(json["findings"].size(), 1U);
  EXPECT_EQ(json["findings"][0]["kind"], "appeared");
  EXPECT_TRUE(json["findings"][0]["old"].is_null());
  EXPECT_EQ(json["findings"][0]["new"]["severity"], "unknown");
}

TEST_F(DiffCommand, FailsIfTheOutputCannotBeWritten) {
  out_.setstate(std::ios::badbit);
  try {
    RunDiffCommand(Options(kEmpty, kEmpty), out_);
    ADD_FAILURE() << "it reported no difference";
  } catch (const ProgramError& error) {
    EXPECT_EQ(static_cast<int>(error.Status()), 2);
  }
}

}  // namespace
