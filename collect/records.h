#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "collect/field_text.h"
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
  FieldText ControllerNum;
  FieldText LogicalDriveNum;
  FieldText LogicalDriveName;
  FieldText LogicalDriveStatus;
  FieldText RaidLevel;
  FieldText Size;
  FieldText StripeUnitSize;
  FieldText StripeOrder;
  FieldText AccessBlocked;
  FieldText NumOfChunks;
  FieldText NumOfSegments;
  FieldText PartOfArray;
  FieldText PartOfMergeGroup;
  FieldText WriteCacheStatus;
  FieldText WriteCacheSetting;
  FieldText ReadCacheStatus;
  FieldText Partitioned;
  FieldText DriveList;
  FieldText DefunctSegments;
  FieldText AdditionalInformation;
  FieldText Raid5EEStatus;
  FieldText DefunctStripes;
  std::vector<std::string> Members;  // no tool prints them in a form of their own; stays empty
};

// One device on a controller: disk, tape, enclosure, processor.
struct ZenxPhysicalDevice {
  explicit ZenxPhysicalDevice(HostHandle host) : Host(host) {}
  virtual ~ZenxPhysicalDevice() = default;

  HostHandle Host;
  FieldText ControllerNum;
  FieldText Channel;
  FieldText ScsiId;
  FieldText DeviceNumber;
  FieldText DeviceType;
  FieldText Type;
  FieldText State;
  FieldText DeviceCode;
  FieldText DeviceSerialNum;
  FieldText Firmware;
  FieldText Vendor;
  FieldText Model;
  FieldText Size;
  FieldText TransferSpeed;
  FieldText ReportedChannel;
  FieldText WorldWideName;
  FieldText WriteCache;
  FieldText Enclosure;
  FieldText EnclosureId;
  FieldText ReportedESD;
  FieldText ReportedLocation;
  FieldText Supported;
  FieldText PFA;
  FieldText FRU;
  FieldText Temperature;
  FieldText DeviceIdSuffix;  // ends the identifier that the drive is published under
};

// The devices behind one logical drive or array, in the order in which stripes are laid out.
struct ArrayStripeOrder {
  explicit ArrayStripeOrder(HostHandle host) : Host(host) {}
  virtual ~ArrayStripeOrder() = default;

  HostHandle Host;
  std::vector<std::string> Members;  // stays empty: the list is kept as one text
  FieldText ControllerNum;
  FieldText CollectionID;
  FieldText Array;
  FieldText StripeOrder;
};

// The raw text of one command.
struct ZenxRawData {
  // The number is left out of Command when it is 0, so that two blanks stand there. The output is cut at each
  // carriage return, the line feed behind it is dropped, and so is what follows the last carriage return.
  ZenxRawData(std::string_view toolPath, std::string_view command, unsigned controllerNumber, std::string_view option,
              std::string_view output);
  virtual ~ZenxRawData() = default;

  FieldText Command;
  std::vector<std::string> RawResults;
};

// The versions that hrconf's "getversion" reports for one controller.
struct ZenxHrConfBios {
  explicit ZenxHrConfBios(HostHandle host) : Host(host) {}
  virtual ~ZenxHrConfBios() = default;

  HostHandle Host;
  FieldText ControllerNum;
  FieldText BIOS;
  FieldText Driver;
};

// One controller and all that hangs on it.
struct ZenxController {
  explicit ZenxController(HostHandle host) : Host(host) {}
  virtual ~ZenxController() = default;

  HostHandle Host;

  FieldText ControllerNum;
  FieldText DeviceID;
  FieldText OtherIdentifyingInfo;
  FieldText ControllerName;
  FieldText ControllerType;
  FieldText SerialNum;
  FieldText PartNum;
  FieldText ControllerSlotInfo;
  FieldText ControllerFRU;
  FieldText VPD;

  FieldText ControllerStatus;
  FieldText ChannelDescription;
  FieldText ScsiChannelDescr;
  FieldText InitiatorChannelScsiId;
  FieldText InstalledMemory;
  FieldText MaxPhysicalDevices;
  FieldText DefunctDiskDriveCnt;
  FieldText LogicalDriveStatusCnt;
  FieldText ReadAhead;
  FieldText StripeUnitSize;
  FieldText RebuildRate;
  FieldText HotSwapRebuild;
  FieldText DataScrubbing;
  FieldText HotSpareCopyBack;
  FieldText CopyBackEnabled;
  FieldText PartOfCluster;
  FieldText UnattendedMode;
  FieldText ConcurrentCommandsSupported;
  FieldText ConfigurationUpdateCount;
  FieldText ClusterSolutionVersion;

  FieldText Current_MostRecentOperation;
  FieldText Logical_Drive;
  FieldText BackgroundOperationActive;
  FieldText LastCmdStatus;
  FieldText LogicalDriveSizeInStripes;
  FieldText NumberOfRemainingStripes;

  FieldText ECVersion;
  FieldText ControllerTemp;
  FieldText ControllerBatteryStatus;
  FieldText ControllerBatteryOverTemp;
  FieldText ControllerBatteryCapacity;
  FieldText ControllerBatteryFRU;
  FieldText BatteryTimeRemaining;

  FieldText DeviceDriverVersion;
  FieldText FirmwareVersion;
  FieldText BootBlockVersion;
  FieldText BiosVersion;

  bool Parsed = false;     // set by the parser once the controller's section was found and read
  FieldText SlotDeviceId;  // the operating system's name of the device in the controller's slot

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

using ControllerList = std::vector<std::shared_ptr<ZenxController>>;
using RawDataList = std::vector<std::shared_ptr<ZenxRawData>>;
