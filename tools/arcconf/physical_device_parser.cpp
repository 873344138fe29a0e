#include "tools/arcconf/physical_device_parser.h"

#include "collect/ascii_text.h"
#include "collect/end_of_text.h"
#include "collect/labelled_fields.h"
#include "collect/tool_text.h"
#include "tools/arcconf/labels.h"

namespace arcconf {
namespace {

void ReadUnknown(Device& device, CollectedData& text) { ReadInOrder(text, device, kUnknown); }

void ReadEnclosure(Device& device, CollectedData& text) {
  ReadInOrder(text, device, kEnclosure);
  // Heads the readings of the enclosure's sensors; it has no value of its own.
  if (!Contains(text.NextLine(), "Status of Enclosure services device")) text.StepBack();
  ReadInOrder(text, device, kEnclosureStatus);
}

void ReadAssignedSpare(Device& device, CollectedData& text) {
  const std::string_view spareFor = text.NextLineValueIf(kAssignedSpare[0].label);
  if (spareFor.empty()) return text.StepBack();
  Join(device.State, " for ", spareFor);
}

void ReadHardDrive(Device& device, CollectedData& text) {
  ReadInOrder(text, device, kHardDriveState);
  ReadAssignedSpare(device, text);
  ReadInOrder(text, device, kHardDrive);
}

// "0,3": channel 0, device 3.
void SplitReportedChannel(Device& device) {
  const std::string_view reported = CollectedData::TrimRight(CollectedData::TrimLeft(device.ReportedChannel));
  const std::size_t comma = reported.find(',');
  device.Channel = reported.substr(0, comma);
  device.ScsiId = comma == reported.npos ? std::string_view() : reported.substr(comma + 1);
}

enum class Place { kReportedOnly, kSplit };

struct Branch {
  std::string_view type;
  void (*read)(Device& device, CollectedData& text);
  Place place;
};

// The first whose type is in the device's counts. Of other devices (tapes, processors) the type is all that is taken.
constexpr Branch kBranches[] = {
    {"Unknown",    ReadUnknown,   Place::kReportedOnly},
    {"Enclosure",  ReadEnclosure, Place::kSplit       },
    {"Hard drive", ReadHardDrive, Place::kSplit       },
};

void ReadDevice(Device& device, CollectedData& text) {
  UntilEndOfText([&] { device.DeviceType = CutDeviceType(text.NextLine()); });
  for (const Branch& branch : kBranches) {
    if (!Contains(device.DeviceType, branch.type)) continue;
    UntilEndOfText([&] { branch.read(device, text); });
    if (branch.place == Place::kSplit && !device.ReportedChannel.empty()) SplitReportedChannel(device);
    return;
  }
}

}  // namespace

void ParsePhysicalDevice(ZenxPhysicalDevice& device, CollectedData& text, std::string_view controllerNumber,
                         std::string_view channel, std::string_view deviceName) {
  device.ControllerNum = controllerNumber;
  device.DeviceNumber = deviceName;
  ReadDevice(device, text);
  device.DeviceIdSuffix.append("Controller: ").append(channel).append(deviceName);
}

}  // namespace arcconf
