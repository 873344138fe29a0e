#include "platform/environment_answers.h"

#include <gtest/gtest.h>

#include "tests/support/variable_setting.h"

namespace {

TEST(EnvironmentAnswers, ReadTheVersion) {
  struct Case {
    const char* text;
    bool isWindowsNt;
    unsigned major;
    unsigned minor;
  };
  const Case cases[] = {
      {"",       false, 0,  0},
      {"6",      true,  6,  0},
      {"6.1",    true,  6,  1},
      {"10.0.1", true,  10, 0},
      {"x",      true,  0,  0},
  };
  for (const Case& each : cases) {
    const VariableSetting variable(kOsVersionVariable, each.text);
    const OsVersion version = OsVersionFromEnvironment();
    EXPECT_EQ(version.isWindowsNt, each.isWindowsNt) << each.text;
    EXPECT_EQ(version.major, each.major) << each.text;
    EXPECT_EQ(version.minor, each.minor) << each.text;
  }
  EXPECT_FALSE(OsVersionFromEnvironment().isWindowsNt);
}

TEST(EnvironmentAnswers, HaveTheLogsFolderAloneAndOnlyWhereItFits) {
  const VariableSetting variable(kRaidLogDirVariable, "12345");
  EXPECT_EQ(RegistryTextFromEnvironment("LogDir", 6), "12345");
  EXPECT_EQ(RegistryTextFromEnvironment("LogDir", 5), std::nullopt);
  EXPECT_EQ(RegistryTextFromEnvironment("Other", 6), std::nullopt);
}

TEST(EnvironmentAnswers, AreAskedForOnlyWhereTheVariableSaysSo) {
  EXPECT_FALSE(AsksEnvironment());
  const VariableSetting other(kPlatformVariable, "yes");
  EXPECT_FALSE(AsksEnvironment());
  const VariableSetting variable(kPlatformVariable, "environment");
  EXPECT_TRUE(AsksEnvironment());
}

}  // namespace
