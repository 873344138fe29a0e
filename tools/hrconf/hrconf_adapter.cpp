#include "tools/hrconf/hrconf_adapter.h"

#include <span>
#include <utility>

#include "collect/ascii_text.h"
#include "collect/end_of_text.h"
#include "collect/line_scanner.h"
#include "collect/tool_answers.h"
#include "collect/tool_text.h"
#include "tools/hrconf/controller_parser.h"
#include "tools/hrconf/logical_drive_parser.h"
#include "tools/hrconf/os_version_60.h"
#include "tools/hrconf/physical_device_parser.h"
#include "tools/hrconf/stripe_order_parser.h"
#include "tools/hrconf/version_parser.h"

namespace {

// The spelling of the log prefix is what people search their logs for.
constexpr Tool kHrconf = {.path = "zenx//hrconf_64.exe",
                          .logPrefix = " HRCCONF  using Spawnprocess. Controller# :",
                          .abortText = "hrconf aborted: ",
                          .failedOutput = ""};

constexpr ToolCommand kGetConfig = {"getconfig", "al"};
constexpr ToolCommand kGetVersion = {"getversion", kNoOption};

// What is kept as raw output.
constexpr ToolCommand kRecorded[] = {
    kGetConfig,
    {"getstatus", kNoOption},
    kGetVersion,
};

// All of them but kGetVersion, which is the last.
constexpr std::size_t kRecordedOnOsVersion60 = 2;

// Stands for an answer to kGetVersion that is missing.
constexpr std::string_view kNoVersions = "Controllers found: 0                           \n";
static_assert(kNoVersions.size() == 48 && kNoVersions.starts_with(kNoControllers));

constexpr std::string_view kLogicalDriveHead = "Logical drive number";

void ReadStripeOrder(ZenxController& controller, CollectedData& text, std::string_view driveNumber) {
  const auto order = std::make_shared<ArrayStripeOrder>(controller.Host);
  controller.StripeOrders.push_back(order);
  hrconf::ParseStripeOrder(*order, text, controller.ControllerNum, driveNumber);
}

void ReadLogicalDrives(ZenxController& controller, CollectedData& text) {
  if (text.FindLine("Logical drive information").empty()) return;
  text.NextLine();
  text.NextLine();
  while (Contains(text.CurrentLine(), kLogicalDriveHead)) {
    const std::string_view driveNumber = CutLogicalDriveNumber(text.CurrentLine(), kLogicalDriveHead);
    const auto drive = std::make_shared<ZenxLogicalDevice>(controller.Host);
    controller.LogicalDevices.push_back(drive);
    hrconf::ParseLogicalDrive(*drive, text, controller.ControllerNum, driveNumber);
    if (Contains(text.NextLine(), "size")) text.NextLine();
    if (Contains(text.CurrentLine(), "Stripe order")) ReadStripeOrder(controller, text, driveNumber);
    text.NextLine();
  }
}

void ReadPhysicalDevice(ZenxController& controller, CollectedData& text, std::string_view channel) {
  const std::string_view line = text.CurrentLine();
  const std::size_t number = line.find(kDeviceNumberLabel) + kDeviceNumberLabel.size();
  const auto device = std::make_shared<ZenxPhysicalDevice>(controller.Host);
  controller.PhysicalDevices.push_back(device);
  hrconf::ParsePhysicalDevice(*device, text, controller.ControllerNum, channel, CutDeviceName(line));
  device->DeviceNumber = line.substr(number);
}

// "Channel #1:" gives "1". No such heading: the channel stays.
void TakeChannel(std::string_view line, std::string_view& channel) {
  const std::size_t sign = line.find('#');
  const std::size_t colon = sign == line.npos ? sign : line.find(':', sign);
  if (colon != line.npos) channel = line.substr(sign + 1, colon - sign - 1);
}

bool FindPhysicalDevices(CollectedData& text) {
  // Older and newer releases of the tool head the section differently.
  return !text.FindLine("Physical drive information").empty() || !text.FindLine("Physical Device information").empty();
}

// Tools that know of channels begin the section with the heading of one; the others have one channel, 0. What is
// neither a heading nor a device ("Initiator at SCSI ID 7") is passed over.
void ReadPhysicalDevices(ZenxController& controller, CollectedData& text) {
  if (!FindPhysicalDevices(text)) return;
  Log(controller.Host, kLogRoutine, "Found HRCONF Physical Drive Info\n");
  text.NextLine();
  const bool hasChannels = Contains(text.NextLine(), "Channel");
  std::string_view channel = hasChannels ? "" : "0";
  while (!Contains(text.CurrentLine(), kCommandCompleted)) {
    if (Contains(text.CurrentLine(), kDeviceNumberLabel)) {
      ReadPhysicalDevice(controller, text, channel);
    } else if (hasChannels) {
      TakeChannel(text.CurrentLine(), channel);
    }
    text.NextLine();
  }
}

}  // namespace

void HrconfData::Collect(unsigned firstControllerNumber) {
  RecordOutputs();
  ParseControllers(firstControllerNumber);
}

void HrconfData::RecordOutputs() {
  for (unsigned number = 1; number <= kLastControllerNumber; ++number) {
    const bool isOsVersion60 = hrconf::IsOsVersion60(host_, getOsVersion_);
    const std::string config = RunTool(kHrconf, host_, kGetConfig, number);
    if (Contains(config, kNoControllers)) return;
    if (Contains(config, kInvalidController)) continue;
    const std::span<const ToolCommand> all = kRecorded;
    for (const ToolCommand& command : isOsVersion60 ? all.first(kRecordedOnOsVersion60) : all) {
      RecordOutput(command, number);
    }
  }
}

void HrconfData::RecordOutput(const ToolCommand& command, unsigned controllerNumber) {
  const std::string output = RunTool(kHrconf, host_, command, controllerNumber);
  rawData_.push_back(
      std::make_shared<ZenxRawData>(kHrconf.path, command.command, controllerNumber, command.option, output));
}

void HrconfData::ParseControllers(unsigned firstControllerNumber) {
  for (unsigned number = 1; number <= kLastControllerNumber; ++number) {
    std::string config = RunTool(kHrconf, host_, kGetConfig, number);
    Log(host_, kLogRoutine, "HRCONFDATA-Getconfig " + std::to_string(number) + " al:\n" + config);
    if (Contains(config, kNoControllers)) return;
    if (Contains(config, kInvalidController) || config.empty()) continue;
    ParseConfig(std::move(config), number, firstControllerNumber + number);
  }
}

void HrconfData::ParseConfig(std::string config, unsigned toolNumber, unsigned controllerNumber) {
  CollectedData text(host_, std::move(config));
  if (text.FindLine("Controller information").empty()) return;
  const auto versions = ReadVersions(toolNumber);
  const auto controller = std::make_shared<ZenxController>(host_);
  hrconf::ParseController(*controller, text, controllerNumber, *versions);
  if (!controller->Parsed) return;
  versions->ControllerNum = controller->ControllerNum;
  controller->HrConfVersions.push_back(versions);
  UntilEndOfText([&] { ReadLogicalDrives(*controller, text); });
  UntilEndOfText([&] { ReadPhysicalDevices(*controller, text); });
  controllers_.push_back(controller);
}

std::shared_ptr<ZenxHrConfBios> HrconfData::ReadVersions(unsigned toolNumber) const {
  std::string answer;
  if (!hrconf::IsOsVersion60(host_, getOsVersion_)) answer = RunTool(kHrconf, host_, kGetVersion, toolNumber);
  if (answer.empty()) answer = kNoVersions;
  CollectedData text(host_, std::move(answer));
  auto versions = std::make_shared<ZenxHrConfBios>(host_);
  hrconf::ParseVersion(*versions, text);
  return versions;
}
