#include "tools/qcmdrun/status_parser.h"

#include <gtest/gtest.h>

#include "collect/line_scanner.h"
#include "collect/records.h"
#include "tests/support/label_lines.h"
#include "tests/support/tool_text.h"
#include "tools/qcmdrun/labels.h"

namespace {

using qcmdrun::kStatus;

ZenxController Parsed(const std::string& lines) {
  ZenxController controller(nullptr);
  CollectedData text(nullptr, lines);
  qcmdrun::ParseStatus(controller, text);
  return controller;
}

TEST(QcmdrunStatusParser, ReadsEveryLabelIntoItsFieldOfWhichNoneIsNeeded) {
  ExpectFilled(Parsed(LabelLines(kStatus)), kStatus, std::size(kStatus));
  ExpectFilled(Parsed(""), kStatus, 0);
}

TEST(QcmdrunStatusParser, TakesTheFirstLineThatContainsALabelWhicheverItIs) {
  const ZenxController controller =
      Parsed(CrLf("Controller Status : fine\nLogical drive size (in stripes) : 9\nLogical drive : 1\nStatus : ok\n"));
  EXPECT_EQ(controller.Logical_Drive, " 9\r\n");
  EXPECT_EQ(controller.LogicalDriveSizeInStripes, " 9\r\n");
  EXPECT_EQ(controller.LastCmdStatus, " fine\r\n");
}

}  // namespace
