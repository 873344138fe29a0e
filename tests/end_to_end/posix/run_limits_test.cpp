// Utilities that hang: shell scripts, which other systems cannot run.

#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/support/machine_copy.h"

namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;

class RunLimits : public testing::Test {
 protected:
  // The lines of a file count the requests.
  RunLimits() {
    machine_.LeaveOnly("qcmdrun");
    machine_.SetTool("arcconf", "#!/bin/sh\necho $* >>asked\nexec sleep 60\n");
    fs::permissions(fs::path(machine_.Directory()) / "zenx/arcconf.exe", fs::perms::owner_all);
  }

  ProgramResult Run(std::vector<std::string> arguments) const {
    arguments.insert(arguments.end(), {"--directory", machine_.Directory()});
    return RunHxahost(arguments);
  }

  std::string Asked() const { return FileText(fs::path(machine_.Directory()) / "asked"); }

  MachineCopy machine_;
};

TEST_F(RunLimits, GiveUpAUtilityThatHangsTwiceAndCollectEverythingElse) {
  const ProgramResult result = Run({"health", "--limit", "1", "--verbose"});
  EXPECT_EQ(Asked(), "getconfig 1 al\ngetconfig 2 al\n");
  EXPECT_THAT(result.out,
              AllOf(HasSubstr("(2 controllers, "), HasSubstr("unknown  arcconf did not answer within 1 s\n"),
                    HasSubstr("\"not asked: getconfig 1 al")));
}

TEST_F(RunLimits, EndTheWholeCollectionAtItsDeadline) {
  const ProgramResult result = Run({"query", "--deadline", "2", "--format", "json", "--runs"});
  EXPECT_EQ(Asked(), "getconfig 1 al\n");
  const auto runs = nlohmann::json::parse(result.out)["queries"][0]["runs"];
  EXPECT_EQ(runs.back()["outcome"], "not asked");
  EXPECT_EQ(runs.back()["failure"], "the 2 s of the collection are over");
}

}  // namespace
