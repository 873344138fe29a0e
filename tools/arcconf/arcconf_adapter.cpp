#include "tools/arcconf/arcconf_adapter.h"

#include <utility>

#include "collect/ascii_text.h"
#include "collect/end_of_text.h"
#include "collect/line_scanner.h"
#include "collect/tool_answers.h"
#include "collect/tool_text.h"
#include "tools/arcconf/controller_parser.h"
#include "tools/arcconf/driver_mismatch.h"
#include "tools/arcconf/logical_drive_parser.h"
#include "tools/arcconf/physical_device_parser.h"
#include "tools/arcconf/stripe_order_parser.h"

namespace {

constexpr Tool kArcconf = {.path = "zenx//arcconf.exe",
                           .logPrefix = " ARCCONF  using Spawnprocess. Controller# :",
                           .abortText = "ArcConf Aborted: ",
                           .failedOutput = ""};

constexpr ToolCommand kGetConfig = {"getconfig", "al"};

// What is kept as raw output. The logs are kept for people to read; nothing parses them.
constexpr ToolCommand kRecorded[] = {
    kGetConfig, {"getlogs", "device"},
     {"getlogs", "dead"  },
     {"getlogs", "event" },
     {"getlogs", "uart"  },
};

constexpr std::string_view kDriverMismatch = "Driver Update Required";
constexpr std::string_view kLogicalDriveHead = "Logical drive number";

void ReadStripeOrder(ZenxController& controller, CollectedData& text, std::string_view driveNumber) {
  const auto order = std::make_shared<ArrayStripeOrder>(controller.Host);
  controller.StripeOrders.push_back(order);
  arcconf::ParseStripeOrder(*order, text, controller.ControllerNum, driveNumber);
}

void ReadLogicalDrives(ZenxController& controller, CollectedData& text) {
  if (text.FindLine("Logical drive information").empty()) return;
  text.NextLine();
  text.NextLine();
  while (Contains(text.CurrentLine(), kLogicalDriveHead)) {
    const std::string_view driveNumber = CutLogicalDriveNumber(text.CurrentLine(), kLogicalDriveHead);
    const auto drive = std::make_shared<ZenxLogicalDevice>(controller.Host);
    controller.LogicalDevices.push_back(drive);
    arcconf::ParseLogicalDrive(*drive, text, controller.ControllerNum, driveNumber);
    const std::string_view line = text.NextLine();
    if (Contains(line, kLogicalDriveHead)) continue;
    if (Contains(line, "Stripe order")) {
      ReadStripeOrder(controller, text, driveNumber);
      text.NextLine();
    }
    text.NextLine();
  }
}

void ReadPhysicalDevice(ZenxController& controller, CollectedData& text) {
  const auto device = std::make_shared<ZenxPhysicalDevice>(controller.Host);
  controller.PhysicalDevices.push_back(device);
  // Devices say where they are, so their channel is not given.
  arcconf::ParsePhysicalDevice(*device, text, controller.ControllerNum, "", CutDeviceName(text.CurrentLine()));
}

// Devices follow each other without a gap: "Device #1" counts directly behind the lines of another device, or behind a
// line that itself speaks of a device. Behind anything else it is passed over.
void ReadPhysicalDevices(ZenxController& controller, CollectedData& text) {
  if (text.FindLine("Physical Device information").empty()) return;
  text.NextLine();
  if (Contains(text.NextLine(), "Channel #")) {
    text.NextLine();
    text.NextLine();
  }
  while (!Contains(text.CurrentLine(), kCommandCompleted)) {
    const bool speaksOfDevice = Contains(text.CurrentLine(), "Device");
    if (!Contains(text.CurrentLine(), kDeviceNumberLabel)) text.NextLine();
    while (Contains(text.CurrentLine(), kDeviceNumberLabel)) {
      if (speaksOfDevice) ReadPhysicalDevice(controller, text);
      text.NextLine();
    }
  }
}

}  // namespace

void ArcconfData::Collect(unsigned firstControllerNumber) {
  RecordOutputs();
  ParseControllers(firstControllerNumber);
}

void ArcconfData::RecordOutputs() {
  for (unsigned number = 1; number <= kLastControllerNumber; ++number) {
    const std::string config = RunTool(kArcconf, host_, kGetConfig, number);
    if (Contains(config, kNoControllers)) return;
    if (Contains(config, kInvalidController)) continue;
    for (const ToolCommand& command : kRecorded) RecordOutput(command, number);
  }
}

void ArcconfData::RecordOutput(const ToolCommand& command, unsigned controllerNumber) {
  const std::string output = RunTool(kArcconf, host_, command, controllerNumber);
  if (output.empty()) return;
  rawData_.push_back(
      std::make_shared<ZenxRawData>(kArcconf.path, command.command, controllerNumber, command.option, output));
}

void ArcconfData::ParseControllers(unsigned firstControllerNumber) {
  for (unsigned number = 1; number <= kLastControllerNumber; ++number) {
    std::string config = RunTool(kArcconf, host_, kGetConfig, number);
    if (Contains(config, kNoControllers)) return;
    if (Contains(config, kDriverMismatch)) return arcconf::LogDriverMismatch(host_);
    if (Contains(config, kInvalidController) || config.empty()) continue;
    ParseConfig(std::move(config), firstControllerNumber + number);
  }
}

void ArcconfData::ParseConfig(std::string config, unsigned controllerNumber) {
  CollectedData text(host_, std::move(config));
  if (text.FindLine("Controller information").empty()) return;
  const auto controller = std::make_shared<ZenxController>(host_);
  arcconf::ParseController(*controller, text.WholeText(), controllerNumber);
  if (!controller->Parsed) return;
  UntilEndOfText([&] { ReadLogicalDrives(*controller, text); });
  UntilEndOfText([&] { ReadPhysicalDevices(*controller, text); });
  controllers_.push_back(controller);
}
