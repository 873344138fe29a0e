#include "tests/support/one_of_everything.h"

#include "logs/event_records.h"
#include "logs/statistics_records.h"

namespace {

template <class Record>
Record& Add(std::vector<std::shared_ptr<Record>>& records, HostHandle host) {
  return *records.emplace_back(std::make_shared<Record>(host));
}

void AddDevices(ZenxController& controller) {
  ZenxLogicalDevice& disk = Add(controller.LogicalDevices, controller.Host);
  disk.ControllerNum = controller.ControllerNum;
  disk.LogicalDriveNum = "1";
  ZenxPhysicalDevice& drive = Add(controller.PhysicalDevices, controller.Host);
  drive.ControllerNum = controller.ControllerNum;
  drive.Channel = "0";
  drive.ScsiId = "3";
  drive.DeviceIdSuffix = "SN1";
  drive.DeviceType = "Hard disk";
  drive.Firmware = "5.2-0 (12345)";
  ArrayStripeOrder& group = Add(controller.StripeOrders, controller.Host);
  group.ControllerNum = controller.ControllerNum;
  group.CollectionID = "Zentraxis" + controller.ControllerNum + "ArrayA";
}

void AddStatistics(ZenxController& controller) {
  ZenxEventData& device = Add(controller.DeviceEvents, controller.Host);
  device.ControllerNum = controller.ControllerNum;
  device.Channel = "0";
  device.ScsiId = "3";
  Add(controller.SubStats, controller.Host).InstanceID = "Zentraxis:" + controller.ControllerNum + "C0S3";
  ZenxBstData& badStripes = Add(controller.BadStripes, controller.Host);
  badStripes.ControllerNum = controller.ControllerNum;
  badStripes.LogicalDrive = "1";
  badStripes.NumBadStripes = "0";
}

void AddLogs(ZenxController& controller) {
  Add(controller.DddEvents, controller.Host).RecordID = "0001";
  controller.SoftEvents = std::make_shared<ZenxEventSoftData>(controller.Host);
  controller.HardEvents = std::make_shared<ZenxEventHardData>(controller.Host);
}

}  // namespace

std::shared_ptr<ZenxController> ControllerWithEverything(HostHandle host, const std::string& number) {
  auto controller = std::make_shared<ZenxController>(host);
  controller->ControllerNum = number;
  controller->FirmwareVersion = "5.2-0 (12345)";
  controller->BootBlockVersion = "5.2-1";
  controller->BiosVersion = "5.2-2";
  AddDevices(*controller);
  AddStatistics(*controller);
  AddLogs(*controller);
  return controller;
}
