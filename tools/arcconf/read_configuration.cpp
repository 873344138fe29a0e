#include "tools/arcconf/read_configuration.h"

#include "collect/ascii_text.h"
#include "collect/records.h"
#include "collect/report_sections.h"
#include "collect/tool.h"
#include "collect/tool_text.h"
#include "tools/arcconf/labels.h"
#include "tools/arcconf/logical_drive_parser.h"
#include "tools/arcconf/physical_device_parser.h"
#include "tools/arcconf/stripe_order_parser.h"

namespace arcconf {

namespace {

void ReadPhysicalDevice(ZenxController& controller, CollectedData& text) {
  ZenxPhysicalDevice& device = AppendRecord(controller.PhysicalDevices, controller.Host);
  // Devices say where they are, so their channel is not given.
  ParsePhysicalDevice(device, text, controller.ControllerNum, "", CutDeviceName(text.CurrentLine()));
}

}  // namespace

void ReadLogicalDrives(ZenxController& controller, CollectedData& text) {
  if (text.FindLine(kLogicalDriveSection).empty()) return;
  StepOverRule(text);
  while (Contains(text.CurrentLine(), kLogicalDriveHead)) {
    const std::string_view driveNumber = CutLogicalDriveNumber(text.CurrentLine(), kLogicalDriveHead);
    ZenxLogicalDevice& drive = AppendRecord(controller.LogicalDevices, controller.Host);
    ParseLogicalDrive(drive, text, controller.ControllerNum, driveNumber);
    const std::string_view line = text.NextLine();
    if (Contains(line, kLogicalDriveHead)) continue;
    if (Contains(line, kStripeOrderLine)) {
      ArrayStripeOrder& order = AppendRecord(controller.StripeOrders, controller.Host);
      ParseStripeOrder(order, text, controller.ControllerNum, driveNumber);
      text.NextLine();
    }
    text.NextLine();
  }
}

// Devices follow each other without a gap: "Device #1" counts directly after the lines of another device, or after a
// line that itself speaks of a device. After anything else it is passed over.
void ReadPhysicalDevices(ZenxController& controller, CollectedData& text) {
  if (text.FindLine(kPhysicalDeviceSection).empty()) return;
  text.NextLine();
  if (Contains(text.NextLine(), "Channel #")) StepOverRule(text);
  while (!Contains(text.CurrentLine(), kCommandCompleted)) {
    const bool speaksOfDevice = Contains(text.CurrentLine(), "Device");
    if (!Contains(text.CurrentLine(), kDeviceNumberLabel)) text.NextLine();
    while (Contains(text.CurrentLine(), kDeviceNumberLabel)) {
      if (speaksOfDevice) ReadPhysicalDevice(controller, text);
      text.NextLine();
    }
  }
}

}  // namespace arcconf
