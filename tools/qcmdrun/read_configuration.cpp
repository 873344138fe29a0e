#include "tools/qcmdrun/read_configuration.h"

#include <string>

#include "collect/ascii_text.h"
#include "collect/records.h"
#include "collect/report_sections.h"
#include "collect/tool.h"
#include "collect/tool_text.h"
#include "tools/qcmdrun/labels.h"
#include "tools/qcmdrun/logical_drive_parser.h"
#include "tools/qcmdrun/physical_device_parser.h"
#include "tools/qcmdrun/stripe_order_parser.h"

namespace qcmdrun {

namespace {

// "   Channel #1:": the text between the two marks; "" without a colon.
std::string CutChannel(std::string_view line) {
  const std::size_t begin = line.find('#') + 1;
  const std::size_t colon = line.find(':', begin);
  return std::string(colon == line.npos ? std::string_view() : line.substr(begin, colon - begin));
}

void ReadDevicesOfTargetLines(ZenxController& controller, CollectedData& text, const std::string& channel) {
  for (; Contains(text.CurrentLine(), kTargetLabel); text.NextLine()) {
    auto device = std::make_shared<ZenxPhysicalDevice>(controller.Host);
    ParsePhysicalDevice(*device, text, controller.ControllerNum, channel);
    controller.PhysicalDevices.push_back(std::move(device));
  }
}

}  // namespace

void ReadLogicalDrives(ZenxController& controller, CollectedData& text) {
  constexpr std::string_view kLabelAndBlank = "Logical drive number ";
  Log(controller.Host, kLogRoutine, "Parsing for QCMRUN logical drive information\n");
  if (text.FindLine(kLogicalDriveSection).empty()) return;
  Log(controller.Host, kLogRoutine, "Found QCMDRUN Logical Drive Information\n");
  StepOverRule(text);
  // A line without the blank after the label gives no number of its own.
  std::string number;
  for (; Contains(text.CurrentLine(), kLogicalDriveHead); text.NextLine()) {
    const std::string_view line = text.CurrentLine();
    if (Contains(line, kLabelAndBlank)) number = CutLogicalDriveNumber(line, kLabelAndBlank);
    auto drive = std::make_shared<ZenxLogicalDevice>(controller.Host);
    ParseLogicalDrive(*drive, text, controller.ControllerNum, number);
    controller.LogicalDevices.push_back(std::move(drive));
  }
}

void ReadStripeOrders(ZenxController& controller, CollectedData& text) {
  Log(controller.Host, kLogRoutine, "Parse For  QCMDRUN Stripe Order\n");
  if (text.FindLine(kArrayLabel).empty()) return;
  for (; Contains(text.CurrentLine(), kArrayLabel); text.NextLine()) {
    Log(controller.Host, kLogRoutine, "Found QCMDRUN Stripe Order Data\n");
    auto order = std::make_shared<ArrayStripeOrder>(controller.Host);
    ParseStripeOrder(*order, text, controller.ControllerNum);
    controller.StripeOrders.push_back(std::move(order));
  }
}

// A line that is neither a channel's heading, nor a device's, nor the end costs itself alone, so that no stray line
// makes the walk step over the end.
bool ReadPhysicalDevices(ZenxController& controller, CollectedData& text) {
  Log(controller.Host, kLogRoutine, "Parse For QCMDRUN Physical Devices\n");
  if (text.FindLine("Physical device information").empty()) return false;
  StepOverRule(text);
  std::string channel;
  while (!Contains(text.CurrentLine(), kCommandCompleted)) {
    const std::string_view line = text.CurrentLine();
    if (Contains(line, "#")) {
      channel = CutChannel(line);
      StepOverRule(text);
    } else if (!Contains(line, kTargetLabel)) {
      text.NextLine();
    }
    ReadDevicesOfTargetLines(controller, text, channel);
  }
  return true;
}

}  // namespace qcmdrun
