#include "tools/hrconf/controller_parser.h"

#include <gtest/gtest.h>

#include "tests/support/filled_fields.h"
#include "tests/support/label_checks.h"
#include "tests/support/tool_text.h"

namespace {

const Labels kController = {
    {"Boot",                            "BootBlockVersion"     },
    {"Controller Status",               "ControllerStatus"     },
    {"Channel description",             "ChannelDescription"   },
    {"Defunct disk drive count",        "DefunctDiskDriveCnt"  },
    {"Logical drives/Offline/Critical", "LogicalDriveStatusCnt"},
};

std::set<std::string> Parsed(const std::string& lines) {
  CollectedData text(nullptr, "Controller information\r\n" + lines);
  ZenxController controller(nullptr);
  hrconf::ParseController(controller, text, 6, ZenxHrConfBios(nullptr));
  EXPECT_TRUE(controller.Parsed);
  std::set<std::string> fields = FilledFields(controller);
  EXPECT_EQ(fields.erase("ControllerNum=6"), 1u);
  return fields;
}

std::string Lines(const std::vector<std::size_t>& order) {
  std::string lines;
  for (const std::size_t row : order) lines += LabelLine(kController, row);
  return lines;
}

TEST(HrconfControllerParser, TakesEveryLabelIntoItsFieldInAnyOrder) {
  const std::set<std::string> all = FilledBy(kController, [](std::size_t) { return true; });
  EXPECT_EQ(Parsed(Lines({0, 1, 2, 3, 4})), all);
  EXPECT_EQ(Parsed(Lines({4, 3, 2, 1, 0})), all);
}

TEST(HrconfControllerParser, LeavesTheFieldOfAMissingOrMisspeltLabelEmpty) {
  for (std::size_t missing = 0; missing < kController.size(); ++missing) {
    std::string without;
    std::string misspelt;
    for (std::size_t row = 0; row < kController.size(); ++row) {
      const std::string& label = kController[row].label;
      if (row != missing) without += LabelLine(kController, row);
      misspelt += row == missing ? label.substr(0, label.size() - 1) + "~ : x\r\n" : LabelLine(kController, row);
    }
    const std::set<std::string> others = FilledBy(kController, [&](std::size_t row) { return row != missing; });
    EXPECT_EQ(Parsed(without), others) << kController[missing].label;
    EXPECT_EQ(Parsed(misspelt), others) << kController[missing].label;
  }
}

TEST(HrconfControllerParser, TakesTheFirstLineThatHasTheLabelAndThatLineAlone) {
  EXPECT_EQ(Parsed(CrLf("   Boot ROM : 1\n   Boot Flash : 2\n")), (std::set<std::string>{"BootBlockVersion= 1\r\n"}));
  EXPECT_EQ(Parsed(CrLf("   Boot ROM\n   Other : 2\n")), std::set<std::string>());
}

TEST(HrconfControllerParser, TakesBiosAndDriverFromTheVersions) {
  CollectedData text(nullptr, CrLf("Controller information\n   BIOS : other\n   Driver : other\n"));
  ZenxHrConfBios versions(nullptr);
  versions.BIOS = " 4.2\r\n";
  versions.Driver = " 4.3\r\n";
  ZenxController controller(nullptr);
  hrconf::ParseController(controller, text, 6, versions);
  EXPECT_EQ(FilledFields(controller),
            (std::set<std::string>{"ControllerNum=6", "BiosVersion= 4.2\r\n", "DeviceDriverVersion= 4.3\r\n"}));
}

TEST(HrconfControllerParser, LeavesATextWithoutControllerInformationUnmarked) {
  CollectedData text(nullptr, CrLf("   Controller Status : Okay\n"));
  ZenxHrConfBios versions(nullptr);
  versions.BIOS = " 4.2\r\n";
  ZenxController controller(nullptr);
  hrconf::ParseController(controller, text, 6, versions);
  EXPECT_FALSE(controller.Parsed);
  EXPECT_EQ(FilledFields(controller), (std::set<std::string>{"ControllerNum=6"}));
}

}  // namespace
