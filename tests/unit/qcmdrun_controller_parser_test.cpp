#include "tools/qcmdrun/controller_parser.h"

#include <gtest/gtest.h>

#include "collect/ascii_text.h"
#include "collect/line_scanner.h"
#include "collect/records.h"
#include "tests/support/label_lines.h"
#include "tests/support/sample_text.h"
#include "tests/support/tool_text.h"
#include "tools/qcmdrun/labels.h"

namespace {

using qcmdrun::ParseController;

using qcmdrun::kController;

ZenxController Parsed(const std::string& text, unsigned number = 1) {
  ZenxController controller(nullptr);
  ParseController(controller, text, number);
  return controller;
}

std::string TypeOf(const std::string& printed) {
  return Parsed("Controller information\r\nController type : " + printed + "\r\n").ControllerType;
}

TEST(QcmdrunControllerParser, ReadsEveryLabelIntoItsFieldInAnyOrder) {
  ExpectFilled(Parsed("Controller information\r\n" + LabelLines(kController)), kController, std::size(kController));
  const ZenxController controller = Parsed(CrLf("Part number : 1\nController information\nController FRU : 2\n"));
  EXPECT_EQ(controller.PartNum, "1");
  EXPECT_EQ(controller.ControllerFRU, "2");
  EXPECT_EQ(controller.SerialNum, "");
}

TEST(QcmdrunControllerParser, DropsTheBlankAfterTheColonAndTheCarriageReturn) {
  EXPECT_EQ(Parsed("Controller information\r\nController name :  DB SERVER \r\n").ControllerName, " DB SERVER ");
}

TEST(QcmdrunControllerParser, ReturnsAnEmptyValueForALabelWithoutTextAfterItsColon) {
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

TEST(QcmdrunControllerParser, FindsTheInitiatorIdsWithAnyTextInTheirParentheses) {
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
      {"C6 beside C4",                  "Zentraxis C4"  },
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

TEST(QcmdrunControllerParser, SetsOnlyTheNumberWithoutTheControllerInformationLine) {
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

// The scanner drops an incomplete line, this parser reads it: half a line must not become a whole value.
TEST(QcmdrunControllerParser, ReadsACutOffAnswerUpToItsLastWholeLine) {
  const std::string text = CrLf("Controller information\n") + LabelLines(kController);
  const std::size_t head = text.find('\n') + 1;
  for (std::size_t length = head; length < text.size(); ++length) {
    const auto lines = static_cast<std::size_t>(std::ranges::count(text.substr(head, length - head), '\n'));
    SCOPED_TRACE(length);
    ExpectFilled(Parsed(text.substr(0, length)), kController, lines);
  }
}

}  // namespace
