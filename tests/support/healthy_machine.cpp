#include "tests/support/healthy_machine.h"

#include <algorithm>
#include <stdexcept>

#include "host/hxahost/machine/health.h"

using NKVRHXA20::TCIMValue;

namespace {

constexpr const char* kController = "KVRSG_zxSCSIProtocolController";
constexpr const char* kLogicalDisk = "KVRSG_zxLogicalDisk";
constexpr const char* kDiskGroup = "KVRSG_zxDiskGroup";
constexpr const char* kDiskDrive = "KVRSG_zxDiskDrive";

// A device with these alternating names and values.
template <class... NamesAndValues>
HealthyMachine::Device Made(const std::string& className, const NamesAndValues&... namesAndValues) {
  return {className, FilledRepository::InTurn(namesAndValues...)};
}

HealthyMachine::Device Disk(const std::string& id, const std::string& controller, const std::string& channel,
                            const std::string& number, const std::string& type, const std::string& state) {
  const char* const predicted = type.starts_with("Hard") ? "No" : "";
  return Made(kDiskDrive, "DeviceID", id, "ControllerNum", controller, "Channel", channel, "ScsiId", number,
              "DeviceType", type, "PFA", predicted, "State", state);
}

std::vector<HealthyMachine::Device> LegacyController() {
  return {
      Made(kController, "DeviceID", "Zentraxis1", "ControllerNum", "1", "ControllerType", "Zentraxis C6-e",
           "ControllerStatus", "", "DefunctDiskDriveCnt", "0", "LogicalDriveStatusCnt", "1/0/0"),
      Made(kLogicalDisk, "DeviceID", "Zentraxis1LD1", "AccessBlocked", "No", "ControllerNum", "1", "LogicalDriveNum",
           "1", "LogicalDriveStatus", "Okay (OKY)", "PartOfArray", "A", "RaidLevel", "1"),
      Made(kDiskGroup, "CollectionID", "Zentraxis1ArrayA", "Array", "A", "ControllerNum", "1", "StripeOrder",
           "1,0 1,1"),
      Disk("C1 CH1 I00:A", "1", "1", "0", "Hard disk", "Online (ONL)"),
      Disk("C1 CH1 I01:B", "1", "1", "1", "Hard disk", "Online (ONL)"),
      Disk("C1 CH1 I02:C", "1", "1", "2", "Hard disk", "Hot spare (HSP)"),
      Disk("C1 CH1 I05:D", "1", "1", "5", "Tape", "Standby (SBY)"),
      Made("KVRSG_BadStripeData", "InstanceID", "Zentraxis:1LD1", "ControllerNum", "1", "LogicalDrive", "1",
           "NumBadStripes", "0"),
      Made("KVRSG_zxSCSIDeviceData", "InstanceID", "Zentraxis:1C1S0", "ControllerNum", "1", "Channel", "1", "PFA", "0",
           "ScsiId", "0"),
  };
}

std::vector<HealthyMachine::Device> NewerController() {
  return {
      Made(kController, "DeviceID", "Zentraxis2", "ControllerNum", "2", "ControllerType", "Zentraxis C5",
           "ControllerStatus", "Optimal", "ChannelDescription", "SAS/SATA", "DefunctDiskDriveCnt", "0",
           "LogicalDriveStatusCnt", "1/0/0", "ControllerTemp", "46 C/ 114 F (Normal)", "ControllerBatteryStatus",
           "Optimal", "ControllerBatteryOverTemp", "No"),
      Made(kLogicalDisk, "DeviceID", "Zentraxis2LD1", "AccessBlocked", "", "ControllerNum", "2", "LogicalDriveNum", "1",
           "LogicalDriveStatus", "Optimal", "PartOfArray", "", "RaidLevel", "5", "LogicalDriveName", "Data",
           "DriveList", "0,0 0,1", "DefunctSegments", "No"),
      Made(kDiskGroup, "CollectionID", "ZentraxisCntrlr2LogicalDrv1 0,0 0,1", "Array", "", "ControllerNum", "2",
           "StripeOrder", "0,0 0,1"),
      Disk("C2 CH0 I00:Controller: Device #0", "2", "0", "0", "Hard drive", "Online"),
      Disk("C2 CH0 I01:Controller: Device #1", "2", "0", "1", "Hard drive", "Online"),
      Disk("C2 CH0 I02:Controller: Device #2", "2", "0", "2", "Hard drive", "Hot Spare for Logical drive 1"),
      Disk("C2 CH2 I00:Controller: Device #3", "2", "2", "0", "Enclosure services device", "Online"),
      Disk("C2 CH0 I00:Controller: Device #4", "2", "", "", "Tape drive", ""),
      Made("KVRSG_BadStripeData", "InstanceID", "Zentraxis:2LD1", "ControllerNum", "2", "LogicalDrive", "1",
           "NumBadStripes", "0"),
  };
}

HealthyMachine::Device& Found(std::vector<HealthyMachine::Device>& devices, const auto& isIt) {
  const auto found = std::ranges::find_if(devices, isIt);
  if (found == devices.end()) throw std::logic_error("the healthy machine has no such device");
  return *found;
}

auto PropertyOf(HealthyMachine::Device& device, std::string_view property) {
  return std::ranges::find(device.properties, property, &std::pair<std::string, TCIMValue>::first);
}

}  // namespace

HealthyMachine::HealthyMachine() : devices(LegacyController()) {
  std::ranges::move(NewerController(), std::back_inserter(devices));
  runs = {
      RunOf("qcmdrun", {"getconfig", "1", "al"}, hxahost::Outcome::kOk),
      RunOf("qcmdrun", {"getconfig", "2", "al"}, hxahost::Outcome::kRefused),
      RunOf("hrconf_64", {"getconfig", "1", "al"}, hxahost::Outcome::kRefused),
      RunOf("arcconf", {"getconfig", "1", "al"}, hxahost::Outcome::kOk),
      RunOf("arcconf", {"getlogs", "1", "uart"}, hxahost::Outcome::kEmpty),
  };
}

void HealthyMachine::Set(std::string_view className, std::string_view property, const TCIMValue& value) {
  Device& device = Found(devices, [&](Device& each) {
    return each.className == className && PropertyOf(each, property) != each.properties.end() &&
           !std::string(PropertyOf(each, property)->second).empty();
  });
  PropertyOf(device, property)->second = value;
}

void HealthyMachine::SetOf(std::string_view identifier, std::string_view property, const TCIMValue& value) {
  Device& device =
      Found(devices, [&](Device& each) { return std::string(each.properties.front().second) == identifier; });
  PropertyOf(device, property)->second = value;
}

void HealthyMachine::Remove(std::string_view className) {
  std::erase_if(devices, [&](const Device& device) { return device.className == className; });
}

hxahost::QueryHeader HealthyMachine::Header() const {
  hxahost::QueryHeader header;
  header.machine = "HOST";
  header.time = NKVRHXA20::TCIMDateTime("20261121093000.000000+060");
  header.classes.assign(hxahost::HealthClasses().begin(), hxahost::HealthClasses().end());
  return header;
}

hxahost::QueryResult HealthyMachine::Result() const {
  FilledRepository repository;
  for (const Device& device : devices) repository.Publish(device.className, device.properties);
  return {1, repository.Instances(), log, runs, 0, notRecorded};
}

hxahost::ToolRun RunOf(const std::string& tool, const std::vector<std::string>& arguments, hxahost::Outcome outcome,
                       const std::string& failure) {
  hxahost::ToolRun run;
  run.path = "zenx//" + tool + ".exe";
  run.arguments = arguments;
  run.outcome = outcome;
  run.failure = failure;
  return run;
}
