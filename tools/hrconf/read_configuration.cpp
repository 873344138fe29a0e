#include "tools/hrconf/read_configuration.h"

#include "collect/ascii_text.h"
#include "collect/records.h"
#include "collect/report_sections.h"
#include "collect/tool.h"
#include "collect/tool_text.h"
#include "tools/hrconf/labels.h"
#include "tools/hrconf/logical_drive_parser.h"
#include "tools/hrconf/physical_device_parser.h"
#include "tools/hrconf/stripe_order_parser.h"

namespace hrconf {

namespace {

void ReadPhysicalDevice(ZenxController& controller, CollectedData& text, std::string_view channel) {
  const std::string_view line = text.CurrentLine();
  const std::size_t number = line.find(kDeviceNumberLabel) + kDeviceNumberLabel.size();
  ZenxPhysicalDevice& device = AppendRecord(controller.PhysicalDevices, controller.Host);
  ParsePhysicalDevice(device, text, controller.ControllerNum, channel, CutDeviceName(line));
  device.DeviceNumber = line.substr(number);
}

// "Channel #1:" gives "1". No such heading: the channel stays.
void TakeChannel(std::string_view line, std::string_view& channel) {
  const std::size_t sign = line.find('#');
  const std::size_t colon = sign == line.npos ? sign : line.find(':', sign);
  if (colon != line.npos) channel = line.substr(sign + 1, colon - sign - 1);
}

// Older and newer releases of the tool head the section differently.
bool FindPhysicalDevices(CollectedData& text) {
  return !text.FindLine("Physical drive information").empty() || !text.FindLine(kPhysicalDeviceSection).empty();
}

}  // namespace

void ReadLogicalDrives(ZenxController& controller, CollectedData& text) {
  if (text.FindLine(kLogicalDriveSection).empty()) return;
  StepOverRule(text);
  while (Contains(text.CurrentLine(), kLogicalDriveHead)) {
    const std::string_view driveNumber = CutLogicalDriveNumber(text.CurrentLine(), kLogicalDriveHead);
    ZenxLogicalDevice& drive = AppendRecord(controller.LogicalDevices, controller.Host);
    ParseLogicalDrive(drive, text, controller.ControllerNum, driveNumber);
    if (Contains(text.NextLine(), "size")) text.NextLine();
    if (Contains(text.CurrentLine(), kStripeOrderLine)) {
      ArrayStripeOrder& order = AppendRecord(controller.StripeOrders, controller.Host);
      ParseStripeOrder(order, text, controller.ControllerNum, driveNumber);
    }
    text.NextLine();
  }
}

// Tools that know of channels begin the section with the heading of one; the others have one channel, 0. What is
// neither a heading nor a device ("Initiator at SCSI ID 7") is passed over.
void ReadPhysicalDevices(ZenxController& controller, CollectedData& text) {
  if (!FindPhysicalDevices(text)) return;
  Log(controller.Host, kLogRoutine, "Found HRCONF Physical Drive Info\n");
  text.NextLine();
  const bool hasChannels = Contains(text.NextLine(), kChannelLabel);
  std::string_view channel = hasChannels ? "" : "0";
  for (; !Contains(text.CurrentLine(), kCommandCompleted); text.NextLine()) {
    if (Contains(text.CurrentLine(), kDeviceNumberLabel)) {
      ReadPhysicalDevice(controller, text, channel);
    } else if (hasChannels) {
      TakeChannel(text.CurrentLine(), channel);
    }
  }
}

}  // namespace hrconf
