#include "tools/qcmdrun/controller_parser.h"

#include <gtest/gtest.h>

#include "collect/ascii_text.h"
#include "collect/line_scanner.h"
#include "collect/records.h"
#include "tests/support/sample_text.h"
#include "tests/support/table_cases.h"
#include "tests/support/tool_text.h"

namespace {

using qcmdrun::ParseController;

const FieldCases<ZenxController> kLabels = {
    {"Controller type",                 &ZenxController::ControllerType             },
    {"Controller FRU",                  &ZenxController::ControllerFRU              },
    {"Controller Serial Number",        &ZenxController::SerialNum                  },
    {"Part number",                     &ZenxController::PartNum                    },
    {"Actual BIOS version",             &ZenxController::BiosVersion                },
    {"Firmware version",                &ZenxController::FirmwareVersion            },
    {"Boot block version",              &ZenxController::BootBlockVersion           },
    {"Device driver version",           &ZenxController::DeviceDriverVersion        },
    {"Cluster solution",                &ZenxController::ClusterSolutionVersion     },
    {"Controller slot information",     &ZenxController::ControllerSlotInfo         },
    {"Controller name",                 &ZenxController::ControllerName             },
    {"SCSI channel description",        &ZenxController::ScsiChannelDescr           },
    {"Initiator IDs (Channel/SCSI ID",  &ZenxController::InitiatorChannelScsiId     },
    {"Maximum physical devices",        &ZenxController::MaxPhysicalDevices         },
    {"Defunct disk drive count",        &ZenxController::DefunctDiskDriveCnt        },
    {"Logical drives/Offline/Critical", &ZenxController::LogicalDriveStatusCnt      },
    {"Readahead cache setting",         &ZenxController::ReadAhead                  },
    {"Stripe-unit size",                &ZenxController::StripeUnitSize             },
    {"Rebuild rate (Low/Medium/High)",  &ZenxController::RebuildRate                },
    {"Hot-swap rebuild",                &ZenxController::HotSwapRebuild             },
    {"Data scrubbing",                  &ZenxController::DataScrubbing              },
    {"Hot-spare",                       &ZenxController::HotSpareCopyBack           },
    {"Part of cluster (Yes/No)",        &ZenxController::PartOfCluster              },
    {"Unattended mode (Yes/No)",        &ZenxController::UnattendedMode             },
    {"Concurrent commands supported",   &ZenxController::ConcurrentCommandsSupported},
    {"Configuration update count",      &ZenxController::ConfigurationUpdateCount   },
};

ZenxController Parsed(const std::string& text, unsigned number = 1) {
  ZenxController controller(nullptr);
  ParseController(controller, text, number);
  return controller;
}

std::vector<std::string> ValuesOf(const std::vector<std::string>& lines) {
  return FieldValues(Parsed("Controller information\r\n" + Concatenated(lines)), kLabels);
}

std::string TypeOf(const std::string& printed) {
  return Parsed("Controller information\r\nController type : " + printed + "\r\n").ControllerType;
}

TEST(QcmdrunControllerParser, ReadsEveryLabelIntoItsField) {
  EXPECT_EQ(ValuesOf(LabelledLines(kLabels)), NumberedValues(kLabels.size(), "", ""));
}

TEST(QcmdrunControllerParser, LeavesTheFieldOfAMissingLabelEmptyAndReadsAllOthers) {
  const std::vector<std::string> lines = LabelledLines(kLabels);
  for (std::size_t missing = 0; missing < kLabels.size(); ++missing) {
    SCOPED_TRACE(kLabels[missing].first);
    EXPECT_EQ(ValuesOf(Without(lines, missing)), WithEmpty(NumberedValues(kLabels.size(), "", ""), missing, missing));
  }
}

TEST(QcmdrunControllerParser, DoesNotMindTheOrderOfTheLines) {
  const std::vector<std::string> lines = LabelledLines(kLabels);
  for (std::size_t index = 1; index < kLabels.size(); ++index) {
    SCOPED_TRACE(kLabels[index].first);
    EXPECT_EQ(ValuesOf(WithSwapped(lines, index - 1, index)), NumberedValues(kLabels.size(), "", ""));
  }
}

TEST(QcmdrunControllerParser, DropsTheBlankBehindTheColonAndTheCarriageReturn) {
  EXPECT_EQ(Parsed("Controller information\r\nController name :  DB SERVER \r\n").ControllerName, " DB SERVER ");
}

TEST(QcmdrunControllerParser, GivesAnEmptyValueForALabelWithNothingBehindItsColon) {
  EXPECT_EQ(Parsed("Controller information\r\nPart number :\r\nController name : A\r\n").PartNum, "");
}

TEST(QcmdrunControllerParser, TakesAFirmwareVersionThatOnlyALaterPhysicalDeviceSectionHas) {
  const ZenxController controller = Parsed(CrLf(R"(Controller information
   Controller type : Zentraxis C5
Physical device information
      Firmware version : 1.05
)"));
  EXPECT_EQ(controller.FirmwareVersion, "1.05");
}

TEST(QcmdrunControllerParser, TakesTheFirstOfTwoOccurrencesOfALabel) {
  EXPECT_EQ(Parsed("Controller information\r\nStripe-unit size : 8\r\nStripe-unit size : 16\r\n").StripeUnitSize, "8");
}

TEST(QcmdrunControllerParser, FindsTheInitiatorIdsWithWhateverElseStandsInTheirParentheses) {
  EXPECT_EQ(Parsed("Controller information\r\nInitiator IDs (Channel/SCSI ID) : 1/7\r\n").InitiatorChannelScsiId,
            "1/7");
  EXPECT_EQ(Parsed("Controller information\r\nInitiator IDs (Channel/SCSI ID/LUN) : 1/7/0\r\n").InitiatorChannelScsiId,
            "1/7/0");
}

TEST(QcmdrunControllerParser, NamesTheModelByTheFirstRowThatItsTypeContains) {
  struct Case {
    std::string printed;
    std::string name;
  };
  const std::vector<Case> cases = {
      {"KVR Zentraxis C4Lx controller", "Zentraxis C4"  },
      {"KVR Zentraxis C6-e",            "Zentraxis C6-e"},
      {"Dual C6 controller",            "Zentraxis C6"  },
      {"Zentraxis C5i",                 "Zentraxis C5"  },
      {"Zentraxis B3 Ultra2 SCSI",      "Zentraxis-B3"  },
      {"A2 on planar",                  "Zentraxis-A2"  },
      {"C6 behind C4",                  "Zentraxis C4"  },
      {"C5 beside C6",                  "Zentraxis C6"  },
      {"A2 beside B3",                  "Zentraxis-B3"  },
      {"Zentraxis D9",                  "Zentraxis D9"  },
      {"Zentraxis c4",                  "Zentraxis c4"  },
      {"",                              ""              },
  };
  for (const Case& modelCase : cases) {
    SCOPED_TRACE(modelCase.printed);
    EXPECT_EQ(TypeOf(modelCase.printed), modelCase.name);
  }
}

TEST(QcmdrunControllerParser, NeverTakesAC6eForAC6) { EXPECT_EQ(TypeOf("Zentraxis C6-e"), "Zentraxis C6-e"); }

TEST(QcmdrunControllerParser, SetsTheNumberAloneWithoutTheControllerInformationLine) {
  const ZenxController controller = Parsed("Controller type : Zentraxis C4\r\n", 5);
  EXPECT_EQ(controller.ControllerNum, "5");
  EXPECT_EQ(controller.ControllerType, "");
  EXPECT_FALSE(controller.Parsed);
}

TEST(QcmdrunControllerParser, MarksAControllerWithInformationAsParsed) {
  const ZenxController controller = Parsed("Controller information\r\n", 12);
  EXPECT_TRUE(controller.Parsed);
  EXPECT_EQ(controller.ControllerNum, "12");
}

// The scanner drops a line that is cut, this parser reads it: half a line must not be taken for a whole value.
TEST(QcmdrunControllerParser, ReadsACutOffAnswerUpToItsLastWholeLine) {
  const std::string sample = SampleAnswer("qcmdrun/1/getconfig-al");
  const std::string text = sample.substr(0, sample.find("Logical drive information"));
  for (std::size_t length = 0; length < text.size(); ++length) {
    const std::size_t lineEnd = text.rfind('\n', length - 1);
    const std::string lines = length == 0 || lineEnd == text.npos ? "" : text.substr(0, lineEnd + 1);
    if (Contains(text.substr(0, length), "Controller information") != Contains(lines, "Controller information"))
      continue;
    ASSERT_EQ(FieldValues(Parsed(text.substr(0, length)), kLabels), FieldValues(Parsed(lines), kLabels)) << length;
  }
}

}  // namespace
