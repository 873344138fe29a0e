#include "tools/arcconf/controller_parser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "tests/support/filled_fields.h"
#include "tests/support/label_checks.h"
#include "tests/support/tool_text.h"

namespace {

// In the order of a report; the sections' heads stand between.
const Labels kController = {
    {"Controller Status",               "ControllerStatus"     },
    {"Channel description",             "ChannelDescription"   },
    {"Controller Serial Number",        "SerialNum"            },
    {"Physical Slot",                   "ControllerSlotInfo"   },
    {"Temperature",                     "ControllerTemp"       },
    {"Installed memory",                "InstalledMemory"      },
    {"Copyback",                        "CopyBackEnabled"      },
    {"Data scrubbing",                  "DataScrubbing"        },
    {"Defunct disk drive count",        "DefunctDiskDriveCnt"  },
    {"Logical drives/Offline/Critical", "LogicalDriveStatusCnt"},
};
const Labels kVersions = {
    {"BIOS",     "BiosVersion"        },
    {"Firmware", "FirmwareVersion"    },
    {"Driver",   "DeviceDriverVersion"},
    {"Boot",     "BootBlockVersion"   },
};
const Labels kBattery = {
    {"Status",           "ControllerBatteryStatus"  },
    {"Over temperature", "ControllerBatteryOverTemp"},
    {"Capacity",         "ControllerBatteryCapacity"},
    {"Time remaining",   "BatteryTimeRemaining"     },
};
const Labels kVitalProductData = {
    {"VPD Assigned#",   "VPD"                 },
    {"EC Version#",     "ECVersion"           },
    {"Controller FRU#", "ControllerFRU"       },
    {"Battery FRU#",    "ControllerBatteryFRU"},
};

struct ReportSection {
  std::string head;
  Labels labels;
};

const std::vector<ReportSection> kReport = {
    {"Controller information",         kController      },
    {"Controller Version Information", kVersions        },
    {"Controller Battery Information", kBattery         },
    {"Controller Vital Product Data",  kVitalProductData},
};

// A value unlike any other, which has no label in it.
std::string ValueOf(const LabelRow& row) {
  std::string value = row.field;
  std::transform(value.begin(), value.end(), value.begin(),
                 [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
  return value;
}

std::string Report(const std::string& without = "", const std::string& misspelt = "") {
  std::string text;
  for (const auto& [head, labels] : kReport) {
    text += head + "\r\n";
    for (const LabelRow& row : labels) {
      if (row.field == without) continue;
      const std::string label = row.field == misspelt ? row.label.substr(0, row.label.size() - 1) + "~" : row.label;
      text += "   " + label + " : " + ValueOf(row) + "\r\n";
    }
  }
  return text;
}

std::set<std::string> EveryField(const std::string& without = "") {
  std::set<std::string> fields = {"ControllerNum=7", "ControllerType=Unnamed HostRAID"};
  for (const ReportSection& section : kReport) {
    for (const LabelRow& row : section.labels) {
      if (row.field != without) fields.insert(row.field + "=" + ValueOf(row));
    }
  }
  return fields;
}

std::set<std::string> Parsed(const std::string& text) {
  ZenxController controller(nullptr);
  arcconf::ParseController(controller, text, 7);
  EXPECT_TRUE(controller.Parsed);
  return FilledFields(controller);
}

std::string Field(std::string ZenxController::*field, const std::string& text) {
  ZenxController controller(nullptr);
  arcconf::ParseController(controller, CrLf(text), 1);
  return controller.*field;
}

std::string TypeOf(const std::string& lines) {
  return Field(&ZenxController::ControllerType, "Controller information\n" + lines);
}

TEST(ArcconfControllerParser, TakesEveryLabelIntoItsField) { EXPECT_EQ(Parsed(Report()), EveryField()); }

TEST(ArcconfControllerParser, LeavesTheFieldOfAMissingOrMisspeltLabelEmptyAndFillsAllOthers) {
  for (const ReportSection& section : kReport) {
    for (const LabelRow& row : section.labels) {
      EXPECT_EQ(Parsed(Report(row.field)), EveryField(row.field)) << "without " << row.label;
      EXPECT_EQ(Parsed(Report("", row.field)), EveryField(row.field)) << "misspelt " << row.label;
    }
  }
}

TEST(ArcconfControllerParser, TakesASwappedLabelToo) {
  std::string text = Report();
  const std::string first = "   Installed memory : installedmemory\r\n";
  const std::string second = "   Copyback : copybackenabled\r\n";
  const std::size_t at = text.find(first + second);
  ASSERT_NE(at, text.npos);
  text.replace(at, first.size() + second.size(), second + first);
  EXPECT_EQ(Parsed(text), EveryField());
}

TEST(ArcconfControllerParser, LeavesATextWithoutControllerInformationUnmarked) {
  ZenxController controller(nullptr);
  arcconf::ParseController(controller, CrLf("Controller Information\n   Controller Status : Optimal\n"), 4);
  EXPECT_FALSE(controller.Parsed);
  EXPECT_EQ(FilledFields(controller), (std::set<std::string>{"ControllerNum=4"}));
}

TEST(ArcconfControllerParser, NamesModelsByTheirTable) {
  const LabelRow rows[] = {
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

TEST(ArcconfControllerParser, TakesTheTypeOnlyWhereThereIsNoModel) {
  EXPECT_EQ(TypeOf("   Controller type : C6-e HostRAID\n"), "C6-e HostRAID");
  EXPECT_EQ(TypeOf("   Controller type : HostRAID\n   Controller Model : C6-e\n"), "Zentraxis C6-e");
  EXPECT_EQ(TypeOf("   Controller Model : Odd\n   Controller type : HostRAID\n"), "Odd");
}

TEST(ArcconfControllerParser, CallsAControllerWithAnEmptyModelAndAnEmptyTypeUnnamedHostRaid) {
  EXPECT_EQ(TypeOf(""), "Unnamed HostRAID");
  EXPECT_EQ(TypeOf("   Controller type :\n   Controller Model :\n"), "Unnamed HostRAID");
}

TEST(ArcconfControllerParser, ReadsABatteryStatusBehindTheVitalProductDataAsEmpty) {
  const auto status = &ZenxController::ControllerBatteryStatus;
  const std::string head = "Controller information\nController Battery Information\n";
  const std::string data = "Controller Vital Product Data\n";
  const std::string line = "   Status : Optimal\n";
  EXPECT_EQ(Field(status, head + line + data), "Optimal");
  EXPECT_EQ(Field(status, head + data + line), "");
  EXPECT_EQ(Field(status, head + line), "");
  // The head again further down lets the line count, although it stands behind its section.
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

TEST(ArcconfControllerParser, CutsAValueBehindOneBlankAndBeforeTheCarriageReturn) {
  struct Case {
    const char* name;
    std::string line;
    const char* value;
  };
  const Case cases[] = {
      {"as printed",          " : Optimal\r\n",  "Optimal" },
      {"two blanks",          " :  Optimal\r\n", " Optimal"},
      {"no blank",            ":Optimal\r\n",    "ptimal"  },
      {"blanks at the end",   " : Optimal \r\n", "Optimal "},
      {"one letter",          " : x\r\n",        "x"       },
      {"no letter",           " : \r\n",         ""        },
      {"no blank, no letter", " :\r\n",          ""        },
      {"a line feed alone",   " : Optimal\n",    "Optima"  },
      {"colon and line feed", " :\n",            ""        },
      {"a further colon",     " : 10:30\r\n",    "10:30"   },
      {"no line end",         " : Optimal",      ""        },
      {"no colon",            " Optimal\r\n",    ""        },
  };
  for (const auto& [name, line, value] : cases) {
    ZenxController controller(nullptr);
    arcconf::ParseController(controller, "Controller information\r\nController Status" + line, 1);
    EXPECT_EQ(controller.ControllerStatus, value) << name;
  }
}

}  // namespace
