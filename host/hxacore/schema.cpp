#include "host/hxacore/schema.h"

#include <algorithm>

#include "host/hxacore/ignore_case.h"

namespace NKVRHXA20 {

namespace {

constexpr PropertyDeclaration Text(std::string_view name, std::string_view description) {
  return {name, kCIMString, false, false, "", description};
}

constexpr PropertyDeclaration Texts(std::string_view name, std::string_view description) {
  return {name, kCIMString, true, false, "", description};
}

constexpr PropertyDeclaration Number(std::string_view name, std::string_view description) {
  return {name, kCIMUInt16, false, false, "", description};
}

constexpr PropertyDeclaration Codes(std::string_view name, std::string_view description) {
  return {name, kCIMUInt32, true, false, "", description};
}

constexpr PropertyDeclaration Time(std::string_view name, std::string_view description) {
  return {name, kCIMDateTime, false, false, "", description};
}

constexpr PropertyDeclaration Key(PropertyDeclaration property) {
  property.isKey = true;
  return property;
}

// An end of an association: both ends together name it.
constexpr PropertyDeclaration End(std::string_view name, std::string_view referencedClass,
                                  std::string_view description) {
  return {name, kCIMReference, false, true, referencedClass, description};
}

// What several classes have in common, said once.
constexpr auto kSystemClass = Text("SystemCreationClassName", "Class of the computer system that the device is in.");
constexpr auto kOwnClass = Key(Text("CreationClassName", "Class of the instance, a part of its name."));
constexpr auto kSystemName = Text("SystemName", "Name of the machine that the device is in.");
constexpr auto kController = Text("ControllerNum", "Number of the controller that it belongs to.");
constexpr auto kStatisticId = Key(Text("InstanceID", "Names the counters: controller and what they were counted on."));
constexpr auto kStatisticTime = Time("StatisticTime", "When the counters were read, in the machine's local time.");
constexpr auto kLogClass = Key(Text("LogCreationClassName", "Class of the log that holds the record."));
constexpr auto kLogName = Key(Text("LogName", "Name of the log that holds the record."));
constexpr auto kMessageTime =
    Key(Time("MessageTimestamp", "When the event happened; when the log was read, where it does not say."));
constexpr auto kRecordId = Key(Text("RecordID", "Tells the records of one log apart."));

constexpr PropertyDeclaration kRawData[] = {
    Key(Text("Command", "The command line that was run, or the file that was read.")),
    Texts("RawResults", "What came of it, word for word, one line an element."),
};

constexpr PropertyDeclaration kControllers[] = {
    kSystemClass,
    kOwnClass,
    kSystemName,
    Key(Text("DeviceID", "Names the controller: \"Zentraxis\" and its number.")),
    Texts("OtherIdentifyingInfo", "Model of the controller, then its number."),
    Text("ControllerNum", "Number of the controller; what hangs on it carries the same."),
    Text("ControllerType", "Model of the controller."),
    Text("ControllerStatus", "State of the controller: Optimal or Okay, or what is wrong with it."),
    Text("ChannelDescription", "Kind and number of the channels."),
    Text("SerialNum", "Serial number of the controller."),
    Text("ControllerSlotInfo", "Slot of the machine that the controller sits in."),
    Text("InstalledMemory", "Cache memory on the controller."),
    Text("PartNum", "Part number of the controller."),
    Text("DeviceDriverVersion", "Version of the driver that the operating system has loaded for it."),
    Text("ClusterSolutionVersion", "Version of the clustering software."),
    Text("CopyBackEnabled", "Whether data moves back from the hot spare after a failed drive is replaced."),
    Text("ControllerName", "Name that was given to the controller."),
    Text("ScsiChannelDescr", "Description of the SCSI channels."),
    Text("InitiatorChannelScsiId", "SCSI identifiers that the controller itself has on its channels."),
    Text("MaxPhysicalDevices", "How many drives the controller can have."),
    Text("DefunctDiskDriveCnt", "How many drives are defunct. Anything but 0 asks for a replacement."),
    Text("LogicalDriveStatusCnt", "How many logical drives there are, failed and degraded ones told apart."),
    Text("ReadAhead", "Setting of the read-ahead cache."),
    Text("StripeUnitSize", "Stripe unit that new arrays get."),
    Text("RebuildRate", "Priority of a rebuild against the machine's own work."),
    Text("HotSwapRebuild", "Whether a rebuild starts by itself when a failed drive is swapped."),
    Text("DataScrubbing", "Whether the drives are read through in the background to find bad sectors early."),
    Text("HotSpareCopyBack", "Whether the hot spare becomes a spare again after a replacement."),
    Text("PartOfCluster", "Whether the controller is one of a clustered pair."),
    Text("UnattendedMode", "Whether the machine starts up without waiting for a key when something has failed."),
    Text("ConcurrentCommandsSupported", "How many commands the controller works on at a time."),
    Text("ConfigurationUpdateCount", "How often the configuration has been changed."),
    Text("Current_MostRecentOperation", "Operation that runs now, or the last one that ran."),
    Text("Logical_Drive", "Logical drive that the operation works on."),
    Text("BackgroundOperationActive", "Whether an operation runs in the background."),
    Text("LastCmdStatus", "How the last operation ended."),
    Text("LogicalDriveSizeInStripes", "Size of the logical drive that the operation works on, in stripes."),
    Text("NumberOfRemainingStripes", "Stripes that the operation has still to do."),
    Text("VPD", "Vital product data that was assigned to the controller."),
    Text("ECVersion", "Engineering change level of the controller."),
    Text("ControllerFRU", "Number under which a replacement of the controller is ordered."),
    Text("ControllerTemp", "Temperature of the controller."),
    Text("ControllerBatteryStatus", "State of the cache battery."),
    Text("ControllerBatteryOverTemp", "Whether the cache battery is too hot."),
    Text("ControllerBatteryCapacity", "Charge of the cache battery."),
    Text("ControllerBatteryFRU", "Number under which a replacement of the cache battery is ordered."),
    Text("BatteryTimeRemaining", "How long the battery keeps the cache at its present charge."),
};

constexpr PropertyDeclaration kLogicalDisks[] = {
    Key(Text("DeviceID", "Names the logical drive: \"Zentraxis\", controller number, \"LD\", its number.")),
    kSystemClass,
    kOwnClass,
    kSystemName,
    Text("AccessBlocked", "Whether the controller refuses access, as it does after data was lost."),
    kController,
    Text("LogicalDriveNum", "Number of the logical drive on its controller."),
    Text("LogicalDriveStatus", "State of the logical drive: Optimal or Okay, or what is wrong with it."),
    Text("NumOfChunks", "How many pieces of drives it is made of."),
    Text("NumOfSegments", "How many segments of drives it is made of."),
    Text("PartOfArray", "Array that it lies on."),
    Text("PartOfMergeGroup", "Merge group that it belongs to."),
    Text("RaidLevel", "RAID level."),
    Text("Size", "Size, with the unit that the tool prints."),
    Text("StripeUnitSize", "Stripe unit, with the unit that the tool prints."),
    Text("StripeOrder", "Drives in the order in which the stripes run over them."),
    Text("WriteCacheStatus", "What the write cache does now; a flat battery can turn it off."),
    Text("WriteCacheSetting", "What the write cache was set to do."),
    Text("Partitioned", "Whether the operating system has partitions on it."),
    Text("LogicalDriveName", "Name that was given to the logical drive."),
    Text("ReadCacheStatus", "What the read cache does."),
    Text("DriveList", "Drives that it lies on."),
    Text("DefunctSegments", "Whether segments of it are defunct."),
};

constexpr PropertyDeclaration kDiskGroups[] = {
    Key(Text("CollectionID", "Names the group of drives.")),
    Text("Array", "Letter of the array."),
    kController,
    Text("StripeOrder", "Drives in the order in which the stripes run over them."),
};

constexpr PropertyDeclaration kDiskDrives[] = {
    Texts("OtherIdentifyingInfo", "Kind of device, then its channel and SCSI identifier."),
    Key(Text("DeviceID", "Names the drive: controller, channel, SCSI identifier, and what else tells it apart.")),
    kSystemClass,
    kOwnClass,
    kSystemName,
    kController,
    Text("Channel", "Channel of the controller that the drive is on."),
    Text("DeviceNumber", "Number that the tool gives to the device."),
    Text("ScsiId", "SCSI identifier on the channel."),
    Text("DeviceType", "Kind of device: hard disk, enclosure, tape or another."),
    Text("PFA", "Whether the drive predicts its own failure. A drive that does is to be replaced soon."),
    Text("State", "State of the drive: Online, Hot spare, Ready, Defunct or another."),
    Text("Size", "Size, with the unit that the tool prints."),
    Text("DeviceCode", "Code of the drive's state."),
    Text("DeviceSerialNum", "Serial number of the drive."),
    Text("FRU", "Number under which a replacement of the drive is ordered."),
    Text("Firmware", "Firmware level of the drive."),
    Text("Vendor", "Maker of the drive."),
    Text("Model", "Model of the drive."),
    Text("Enclosure", "What the enclosure says of the slot."),
    Text("TransferSpeed", "Transfer speed that drive and controller have agreed on."),
    Text("ReportedChannel", "Channel and device number as the controller reports them."),
    Text("WorldWideName", "World-wide name of the drive."),
    Text("WriteCache", "What the drive's own write cache does."),
    Text("Type", "Kind of enclosure or of drive, as the tool prints it."),
    Text("EnclosureId", "Number of the enclosure that the drive sits in."),
    Text("ReportedESD", "Enclosure service device that the controller reports for the drive."),
    Text("ReportedLocation", "Enclosure and slot that the drive sits in, as the controller reports them."),
    Text("Supported", "Whether the controller supports the drive."),
};

constexpr PropertyDeclaration kPlainDiskGroups[] = {
    Key(Text("InstanceID", "Names the group of drives.")),
};

constexpr PropertyDeclaration kBadStripes[] = {
    kStatisticId,
    kController,
    Text("LogicalDrive", "Number of the logical drive."),
    Text("NumBadStripes", "How many stripes are bad. Anything but 0 means that data was lost."),
};

constexpr PropertyDeclaration kDeviceStatistics[] = {
    kStatisticId,
    kStatisticTime,
    kController,
    Text("Channel", "Channel of the controller that the device is on."),
    Text("Misc", "Errors of no other kind."),
    Text("NumHardErrors", "Hard errors that were counted."),
    Text("NumParityErrors", "Parity errors that were counted. Many point to cable or backplane."),
    Text("NumSoftErrors", "Soft errors that were counted."),
    Text("PFA", "Predicted failures that were counted."),
    Text("ScsiId", "SCSI identifier on the channel."),
};

constexpr PropertyDeclaration kSubStatus[] = {
    kController,
    kStatisticTime,
    Text("Channel", "Channel of the controller that the device is on."),
    Text("ScsiId", "SCSI identifier on the channel."),
    kStatisticId,
    Text("Params", "Parameters of the transfer that were agreed on."),
    Text("Req_Off", "Request and acknowledge offset."),
    Text("Max_Txer_P", "Shortest transfer period that the device can do."),
    Text("Cur_Txer_p", "Transfer period that is in use."),
};

constexpr PropertyDeclaration kSoftEvents[] = {
    kOwnClass,
    kLogClass,
    kLogName,
    kMessageTime,
    kRecordId,
    kController,
    Text("NumEntries", "How many codes there are."),
    Codes("HexSoftEvent", "Codes of the soft events, in the order of the log."),
};

constexpr PropertyDeclaration kHardEvents[] = {
    kOwnClass,
    kLogClass,
    kLogName,
    kController,
    kMessageTime,
    kRecordId,
    Text("NumEntries", "How many codes there are."),
    Codes("HexHardEvent", "Codes of the hard events, in the order of the log."),
};

constexpr PropertyDeclaration kDefunctDrives[] = {
    kOwnClass,
    kLogClass,
    kLogName,
    Text("Controller", "Number of the controller whose log it is."),
    kMessageTime,
    kRecordId,
    Text("Date", "Date as the log gives it."),
    Text("Time", "Time of day as the log gives it."),
    Text("Channel", "Channel of the drive."),
    Text("ID", "SCSI identifier of the drive."),
    Text("Reason", "Code of the reason why the drive was set defunct."),
    Text("Descrip", "The reason in words."),
};

constexpr PropertyDeclaration kRaidManagerEvents[] = {
    kOwnClass,
    kLogClass,
    kLogName,
    kMessageTime,
    kRecordId,
    Text("Severity", "How serious the event is, as the RAID manager says."),
    Text("MachineName", "Machine that the event happened on."),
    Text("Message", "The event in words."),
};

constexpr auto kVersionName = Key(Text("Name", "What it is a version of."));
constexpr auto kVersion = Key(Text("Version", "The version."));
constexpr auto kBuild = Text("BuildNumber", "Number of the build: what the version has in parentheses.");
constexpr auto kElementState = Key(Number("SoftwareElementState", "Always 3: running."));
constexpr auto kElementId =
    Key(Text("SoftwareElementID", "Number of the controller, and the drive for a drive's firmware."));
constexpr auto kTargetSystem =
    Key(Number("TargetOperatingSystem", "Always 66: not applicable, it does not run on the machine itself."));

constexpr PropertyDeclaration kControllerVersions[] = {kVersionName,  kVersion,   kBuild,
                                                       kElementState, kElementId, kTargetSystem};

constexpr PropertyDeclaration kDriveVersions[] = {kVersionName,
                                                  kVersion,
                                                  kBuild,
                                                  kElementState,
                                                  kElementId,
                                                  kTargetSystem,
                                                  Text("Manufacturer", "Maker of the drive.")};

constexpr auto kFromController = End("Antecedent", "KVRSG_zxSCSIProtocolController", "The controller.");

constexpr PropertyDeclaration kControllerForUnit[] = {
    End("Dependent", "KVRSG_zxLogicalDisk", "A logical drive of the controller."), kFromController};
constexpr PropertyDeclaration kControllerForDisk[] = {
    End("Dependent", "KVRSG_zxDiskDrive", "A device on a channel of the controller."), kFromController};
constexpr PropertyDeclaration kDriveInGroup[] = {End("Dependent", "KVRSG_zxDiskGroup", "The group of drives."),
                                                 End("Antecedent", "KVRSG_zxDiskDrive", "A drive of the group.")};
constexpr PropertyDeclaration kExtentInGroup[] = {
    End("Dependent", "KVRSG_zxLogicalDisk", "A logical drive that lies on the group."),
    End("Antecedent", "KVRSG_zxDiskGroup", "The group of drives.")};
constexpr PropertyDeclaration kGroupForController[] = {
    End("Dependent", "KVRSG_zxDiskGroup", "A group of drives of the controller."), kFromController};
constexpr PropertyDeclaration kFirmwareOnController[] = {
    End("Dependent", "KVRSG_zxFirmwareVersion", "The firmware that it runs."), kFromController};
constexpr PropertyDeclaration kBootBlockOnController[] = {
    End("Dependent", "KVRSG_zxBootBlockVersion", "The boot block that it has."), kFromController};
constexpr PropertyDeclaration kFirmwareOnDrive[] = {
    End("Dependent", "KVRSG_zxDiskDriveVersion", "The firmware that it runs."),
    End("Antecedent", "KVRSG_zxDiskDrive", "The drive that runs it.")};
constexpr PropertyDeclaration kBiosOnController[] = {End("Dependent", "KVRSG_zxBiosVersion", "The BIOS that it has."),
                                                     kFromController};
constexpr PropertyDeclaration kElementDeviceStatistics[] = {
    End("Stats", "KVRSG_zxSCSIDeviceData", "The counters of the drive."),
    End("ManagedElement", "KVRSG_zxDiskDrive", "The drive that they were counted on.")};
constexpr PropertyDeclaration kElementBadStripes[] = {
    End("Stats", "KVRSG_BadStripeData", "The count of bad stripes."),
    End("ManagedElement", "KVRSG_zxLogicalDisk", "The logical drive whose stripes were counted.")};

constexpr PropertyDeclaration kOperatingSystems[] = {
    Key(Text("Name", "Names the operating system.")),
    Number("OSType", "Kind of operating system, by the numbers of CIM_OperatingSystem."),
};

constexpr ClassDeclaration Things(std::string_view name, std::string_view description,
                                  std::span<const PropertyDeclaration> properties) {
  return {name, description, false, properties};
}

constexpr ClassDeclaration Links(std::string_view name, std::string_view description,
                                 std::span<const PropertyDeclaration> properties) {
  return {name, description, true, properties};
}

constexpr ClassDeclaration kPublishedClasses[] = {
    Things("KVRSG_zxManagerRawData", "The RAID manager's event log file, word for word.", kRawData),
    Things("KVRSG_zxRawData", "What a controller utility answered to one command, word for word.", kRawData),
    Things("KVRSG_zxSCSIProtocolController", "A RAID controller.", kControllers),
    Things("KVRSG_zxLogicalDisk", "A logical drive, as the operating system sees it.", kLogicalDisks),
    Things("KVRSG_zxDiskGroup", "The drives that stripes run over, in their order.", kDiskGroups),
    Things("KVRSG_zxDiskDrive", "A device on a channel of a controller: a drive, enclosure, tape or processor.",
           kDiskDrives),
    Things("KVRSG_DiskGroup", "A group of drives; none is ever published, see KVRSG_zxDiskGroup.", kPlainDiskGroups),
    Things("KVRSG_BadStripeData", "How many stripes of a logical drive are bad.", kBadStripes),
    Things("KVRSG_zxSCSIDeviceData", "Errors that a controller counted on one of its devices.", kDeviceStatistics),
    Things("KVRSG_zxSCSISubStatData", "Transfer parameters that a controller and one of its devices use.", kSubStatus),
    Things("KVRSG_LogRecord_SoftEvent", "The soft event log of a controller.", kSoftEvents),
    Things("KVRSG_LogRecord_zxDDD", "A drive that a controller has set defunct.", kDefunctDrives),
    Things("KVRSG_LogRecord_HardEvent", "The hard event log of a controller.", kHardEvents),
    Things("KVRSG_LogRecord_RAIDMgrEvent", "An event that the RAID manager has logged.", kRaidManagerEvents),
    Things("KVRSG_zxFirmwareVersion", "The firmware of a controller.", kControllerVersions),
    Things("KVRSG_zxBootBlockVersion", "The boot block of a controller.", kControllerVersions),
    Things("KVRSG_zxDiskDriveVersion", "The firmware of a drive or enclosure.", kDriveVersions),
    Things("KVRSG_zxBiosVersion", "The BIOS of a controller.", kControllerVersions),
    Links("KVRSG_zxProtocolControllerForUnit", "Which logical drive belongs to which controller.", kControllerForUnit),
    Links("KVRSG_zxProtocolControllerForPhysicalDisk", "Which device is on which controller.", kControllerForDisk),
    Links("KVRSG_zxDriveInDiskGroup", "Which drive is in which group; none is ever published.", kDriveInGroup),
    Links("KVRSG_zxExtenInDiskGroup", "Which logical drive lies on which group; none is ever published.",
          kExtentInGroup),
    Links("KVRSG_zxStripeOrderForController", "Which group of drives belongs to which controller.",
          kGroupForController),
    Links("KVRSG_zxFirmwareOnController", "Which firmware is on which controller.", kFirmwareOnController),
    Links("KVRSG_zxBootBlockOnController", "Which boot block is on which controller.", kBootBlockOnController),
    Links("KVRSG_zxFirmwareOnDiskDrive", "Which firmware is on which drive.", kFirmwareOnDrive),
    Links("KVRSG_zxBiosOnController", "Which BIOS is on which controller.", kBiosOnController),
    Links("KVRSG_ElementZxScsiDeviceData", "Which errors were counted on which drive.", kElementDeviceStatistics),
    Links("KVRSG_ElementBadStripeData", "Which bad stripes were counted on which logical drive.", kElementBadStripes),
};

constexpr ClassDeclaration kHostClass = Things(
    "KVRSG_OperatingSystem", "The machine's operating system; the host itself says what it is.", kOperatingSystems);

}  // namespace

std::span<const ClassDeclaration> PublishedClasses() { return kPublishedClasses; }

const ClassDeclaration* FindClass(std::string_view name) {
  const auto sought = [&](const ClassDeclaration& declaration) { return EqualIgnoringCase(declaration.name, name); };
  const auto* const found = std::ranges::find_if(kPublishedClasses, sought);
  if (found != std::end(kPublishedClasses)) return found;
  return sought(kHostClass) ? &kHostClass : nullptr;
}

const PropertyDeclaration* FindProperty(const ClassDeclaration& declaration, std::string_view name) {
  // Nearly every name is spelt as it is declared, and texts that are equal are found fastest.
  auto found = std::ranges::find(declaration.properties, name, &PropertyDeclaration::name);
  if (found == declaration.properties.end()) {
    found = std::ranges::find_if(declaration.properties, [&](const PropertyDeclaration& property) {
      return EqualIgnoringCase(property.name, name);
    });
  }
  return found == declaration.properties.end() ? nullptr : &*found;
}

}  // namespace NKVRHXA20
