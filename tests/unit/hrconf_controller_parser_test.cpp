#include "tools/hrconf/controller_parser.h"

#include <gtest/gtest.h>

#include "tests/support/filled_fields.h"
#include "tests/support/label_lines.h"
#include "tests/support/tool_text.h"
#include "tools/hrconf/labels.h"

namespace {

using hrconf::kController;

ZenxController Parsed(const std::string& lines) {
  CollectedData text(nullptr, "Controller information\r\n" + lines);
  ZenxController controller(nullptr);
  hrconf::ParseController(controller, text, 6, ZenxHrConfBios(nullptr));
  EXPECT_TRUE(controller.Parsed);
  EXPECT_EQ(controller.ControllerNum, "6");
  return controller;
}

TEST(HrconfControllerParser, TakesEveryLabelIntoItsFieldInAnyOrder) {
  ExpectFilled(Parsed(LabelLines(kController)), kController, std::size(kController));
  const ZenxController controller = Parsed(CrLf("   Controller Status : Okay\n   Boot : 1\n"));
  EXPECT_EQ(controller.ControllerStatus, " Okay\r\n");
  EXPECT_EQ(controller.BootBlockVersion, " 1\r\n");
  EXPECT_EQ(controller.ChannelDescription, "");
}

TEST(HrconfControllerParser, TakesOnlyTheFirstLineThatHasTheLabel) {
  EXPECT_EQ(Parsed(CrLf("   Boot ROM : 1\n   Boot Flash : 2\n")).BootBlockVersion, " 1\r\n");
  EXPECT_EQ(Parsed(CrLf("   Boot ROM\n   Other : 2\n")).BootBlockVersion, "");
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
