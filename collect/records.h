#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "collect/host_handle.h"

// What the tools said, word for word. Fields are named like the property that they feed, or like the tool's label
// where they feed none. Empty: the tool did not say.

struct ZenxEventData;
struct ZenxEventDddData;
struct ZenxEventSoftData;
struct ZenxEventHardData;
struct ZenxBstData;
struct ZenxSubStatData;

// One logical drive of a controller.
struct ZenxLogicalDevice {
  explicit ZenxLogicalDevice(HostHandle host) : Host(host) {}
  virtual ~ZenxLogicalDevice() = default;

  HostHandle Host;
  std::string ControllerNum;
  std::string LogicalDriveNum;
  std::string LogicalDriveName;
  std::string LogicalDriveStatus;
  std::string RaidLevel;
  std::string Size;
  std::string StripeUnitSize;
  std::string StripeOrder;
  std::string AccessBlocked;
  std::string NumOfChunks;
  std::string NumOfSegments;
  std::string PartOfArray;
  std::string PartOfMergeGroup;
  std::string WriteCacheStatus;
  std::string WriteCacheSetting;
  std::string ReadCacheStatus;
  std::string Partitioned;
  std::string DriveList;
  std::string DefunctSegments;
  std::string AdditionalInformation;
  std::string Raid5EEStatus;
  std::string DefunctStripes;
  std::vector<std::string> Members;  // no tool prints them in a form of their own; stays empty
};

// One device on a controller: disk, tape, enclosure, processor.
struct ZenxPhysicalDevice {
  explicit ZenxPhysicalDevice(HostHandle host) : Host(host) {}
  virtual ~ZenxPhysicalDevice() = default;

  HostHandle Host;
  std::string ControllerNum;
  std::string Channel;
  std::string ScsiId;
  std::string DeviceNumber;
  std::string DeviceType;
  std::string Type;
  std::string State;
  std::string DeviceCode;
  std::string DeviceSerialNum;
  std::string Firmware;
  std::string Vendor;
  std::string Model;
  std::string Size;
  std::string TransferSpeed;
  std::string ReportedChannel;
  std::string WorldWideName;
  std::string WriteCache;
  std::string Enclosure;
  std::string EnclosureId;
  std::string ReportedESD;
  std::string ReportedLocation;
  std::string Supported;
  std::string PFA;
  std::string FRU;
  std::string Temperature;
  std::string DeviceIdSuffix;  // ends the identifier that the drive is published under
};

// The devices under one logical drive or array, in the order in which stripes are laid out.
struct ArrayStripeOrder {
  explicit ArrayStripeOrder(HostHandle host) : Host(host) {}
  virtual ~ArrayStripeOrder() = default;

  HostHandle Host;
  std::vector<std::string> Members;  // stays empty: the list is kept as one text
  std::string ControllerNum;
  std::string CollectionID;
  std::string Array;
  std::string StripeOrder;
};

// The raw text of one command.
struct ZenxRawData {
  // The number is left out of Command when it is 0, so that two blanks are there. The output is cut at each
  // carriage return, the line feed after it is dropped, and so is what follows the last carriage return.
  ZenxRawData(std::string_view toolPath, std::string_view command, unsigned controllerNumber, std::string_view option,
              std::string_view output);
  virtual ~ZenxRawData() = default;

  std::string Command;
  std::vector<std::string> RawResults;
};

// The versions that hrconf's "getversion" reports for one controller.
struct ZenxHrConfBios {
  explicit ZenxHrConfBios(HostHandle host) : Host(host) {}
  virtual ~ZenxHrConfBios() = default;

  HostHandle Host;
  std::string ControllerNum;
  std::string BIOS;
  std::string Driver;
};

// One controller and all that hangs on it.
struct ZenxController {
  explicit ZenxController(HostHandle host) : Host(host) {}
  virtual ~ZenxController() = default;

  HostHandle Host;

  std::string ControllerNum;
  std::string DeviceID;
  std::string OtherIdentifyingInfo;
  std::string ControllerName;
  std::string ControllerType;
  std::string SerialNum;
  std::string PartNum;
  std::string ControllerSlotInfo;
  std::string ControllerFRU;
  std::string VPD;

  std::string ControllerStatus;
  std::string ChannelDescription;
  std::string ScsiChannelDescr;
  std::string InitiatorChannelScsiId;
  std::string InstalledMemory;
  std::string MaxPhysicalDevices;
  std::string DefunctDiskDriveCnt;
  std::string LogicalDriveStatusCnt;
  std::string ReadAhead;
  std::string StripeUnitSize;
  std::string RebuildRate;
  std::string HotSwapRebuild;
  std::string DataScrubbing;
  std::string HotSpareCopyBack;
  std::string CopyBackEnabled;
  std::string PartOfCluster;
  std::string UnattendedMode;
  std::string ConcurrentCommandsSupported;
  std::string ConfigurationUpdateCount;
  std::string ClusterSolutionVersion;

  std::string Current_MostRecentOperation;
  std::string Logical_Drive;
  std::string BackgroundOperationActive;
  std::string LastCmdStatus;
  std::string LogicalDriveSizeInStripes;
  std::string NumberOfRemainingStripes;

  std::string ECVersion;
  std::string ControllerTemp;
  std::string ControllerBatteryStatus;
  std::string ControllerBatteryOverTemp;
  std::string ControllerBatteryCapacity;
  std::string ControllerBatteryFRU;
  std::string BatteryTimeRemaining;

  std::string DeviceDriverVersion;
  std::string FirmwareVersion;
  std::string BootBlockVersion;
  std::string BiosVersion;

  bool Parsed = false;       // set by the parser once the controller's section was found and read
  std::string SlotDeviceId;  // the operating system's name of the device in the controller's slot

  std::vector<std::string> Lines;  // for an adapter that keeps lines of the section; none does
  std::vector<std::shared_ptr<ZenxLogicalDevice>> LogicalDevices;
  std::vector<std::shared_ptr<ZenxPhysicalDevice>> PhysicalDevices;
  std::vector<std::shared_ptr<ArrayStripeOrder>> StripeOrders;
  std::vector<std::shared_ptr<ZenxHrConfBios>> HrConfVersions;
  std::vector<std::shared_ptr<ZenxBstData>> BadStripes;
  std::vector<std::shared_ptr<ZenxEventData>> DeviceEvents;
  std::vector<std::shared_ptr<ZenxEventDddData>> DddEvents;
  std::vector<std::shared_ptr<ZenxSubStatData>> SubStats;
  std::shared_ptr<ZenxEventSoftData> SoftEvents;  // null: the controller printed no such log
  std::shared_ptr<ZenxEventHardData> HardEvents;  // null: the controller printed no such log
};

// Appends a new record, which is attached before it is filled: a text that ends too early leaves what it has.
template <class Record>
Record& AppendRecord(std::vector<std::shared_ptr<Record>>& records, HostHandle host) {
  return *records.emplace_back(std::make_shared<Record>(host));
}

using ControllerList = std::vector<std::shared_ptr<ZenxController>>;
using RawDataList = std::vector<std::shared_ptr<ZenxRawData>>;
