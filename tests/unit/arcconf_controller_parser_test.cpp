#include "tools/arcconf/controller_parser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "tests/support/label_lines.h"
#include "tests/support/tool_text.h"
#include "tools/arcconf/labels.h"

namespace {

std::string Field(std::string ZenxController::*field, const std::string& text) {
  ZenxController controller(nullptr);
  arcconf::ParseController(controller, CrLf(text), 1);
  return controller.*field;
}

std::string TypeOf(const std::string& lines) {
  return Field(&ZenxController::ControllerType, "Controller information\n" + lines);
}

TEST(ArcconfControllerParser, TakesEveryLabelIntoItsFieldInAnyOrder) {
  ZenxController controller(nullptr);
  arcconf::ParseController(controller, LabelLines(arcconf::kController) + "Controller information\r\n", 7);
  EXPECT_TRUE(controller.Parsed);
  EXPECT_EQ(controller.ControllerNum, "7");
  ExpectFilled(controller, arcconf::kController, std::size(arcconf::kController));
  EXPECT_EQ(Field(&ZenxController::CopyBackEnabled, "Controller information\n Copyback : On\n Physical Slot : 1\n"),
            "On");
}

TEST(ArcconfControllerParser, LeavesATextWithoutControllerInformationUnmarked) {
  ZenxController controller(nullptr);
  arcconf::ParseController(controller, CrLf("Controller Information\n   Controller Status : Optimal\n"), 4);
  EXPECT_FALSE(controller.Parsed);
  EXPECT_EQ(controller.ControllerNum, "4");
  EXPECT_EQ(controller.ControllerStatus, "");
}

TEST(ArcconfControllerParser, NamesModelsByTheirTable) {
  const std::pair<std::string, const char*> rows[] = {
      {"KVR C4 SAS",          "Zentraxis C4"     },
      {"KVR C6-e SAS",        "Zentraxis C6-e"   },
      {"KVR C6 SAS",          "Zentraxis C6"     },
      {"KVR Tolvar NEBULA",   "Zentraxis C6"     },
      {"KVR C5 SAS",          "Zentraxis C5"     },
      {"Tolvar 4800X",        "Zentraxis C5"     },
      {"KVR B3 SCSI",         "Zentraxis-B3"     },
      {"Tolvar 2400T",        "Zentraxis-B3"     },
      {"KVR A2 SCSI",         "Zentraxis-A2"     },
      {"C4 in place of C6-e", "Zentraxis C4"     },
      {"C6 in place of C5",   "Zentraxis C6"     },
      {"Tolvar NEBULA in C5", "Zentraxis C5"     },
      {"C5 in place of B3",   "Zentraxis C5"     },
      {"B3 in place of A2",   "Zentraxis-B3"     },
      {"c6-e",                "c6-e"             },
      {"KVR Tolvar Nebula",   "KVR Tolvar Nebula"},
      {"Tolvar 4800",         "Tolvar 4800"      },
      {"Tolvar 2400",         "Tolvar 2400"      },
      {"Zentraxis B1",        "Zentraxis B1"     },
  };
  for (const auto& [model, name] : rows) EXPECT_EQ(TypeOf("   Controller Model : " + model + "\n"), name) << model;
}

TEST(ArcconfControllerParser, TakesTheTypeOnlyWithoutAModel) {
  EXPECT_EQ(TypeOf("   Controller type : C6-e HostRAID\n"), "C6-e HostRAID");
  EXPECT_EQ(TypeOf("   Controller type : HostRAID\n   Controller Model : C6-e\n"), "Zentraxis C6-e");
  EXPECT_EQ(TypeOf("   Controller Model : Odd\n   Controller type : HostRAID\n"), "Odd");
}

TEST(ArcconfControllerParser, CallsAControllerWithAnEmptyModelAndAnEmptyTypeUnnamedHostRaid) {
  EXPECT_EQ(TypeOf(""), "Unnamed HostRAID");
  EXPECT_EQ(TypeOf("   Controller type :\n   Controller Model :\n"), "Unnamed HostRAID");
}

TEST(ArcconfControllerParser, ReadsABatteryStatusAfterTheVitalProductDataAsEmpty) {
  const auto status = &ZenxController::ControllerBatteryStatus;
  const std::string head = "Controller information\nController Battery Information\n";
  const std::string data = "Controller Vital Product Data\n";
  const std::string line = "   Status : Optimal\n";
  EXPECT_EQ(Field(status, head + line + data), "Optimal");
  EXPECT_EQ(Field(status, head + data + line), "");
  EXPECT_EQ(Field(status, head + line), "");
  // If the head occurs again, the line counts although it follows its section.
  EXPECT_EQ(Field(status, head + data + line + data), "Optimal");
  EXPECT_EQ(Field(status, "Controller information\n" + line + data), "");
}

TEST(ArcconfControllerParser, TiesTheTemperatureToTheControllersSection) {
  const auto temperature = &ZenxController::ControllerTemp;
  EXPECT_EQ(Field(temperature,
                  "   Temperature : 1\nController information\n   Temperature : 2\n"
                  "Controller Version Information\n"),
            "2");
  EXPECT_EQ(Field(temperature, "Controller information\nController Version Information\n   Temperature : 2\n"), "");
  EXPECT_EQ(Field(temperature, "Controller information\n   Temperature : 2\n"), "");
}

TEST(ArcconfControllerParser, TakesALabelWithoutASectionFromTheFirstLineThatHasIt) {
  const std::string text =
      "   Boot order : 0\nController information\n   Controller Status : 1\nController Version Information\n   Boot : "
      "2\n";
  EXPECT_EQ(Field(&ZenxController::BootBlockVersion, text), "0");
  EXPECT_EQ(Field(&ZenxController::FirmwareVersion, "Controller information\nPhysical Device\n   Firmware : A1\n"),
            "A1");
}

TEST(ArcconfControllerParser, FindsTheColonOnALaterLine) {
  EXPECT_EQ(Field(&ZenxController::InstalledMemory, "Controller information\n   Installed memory\n   Copyback : On\n"),
            "On");
}

}  // namespace
