#include "host/hxacore/schema.h"

#include <algorithm>
#include <iterator>

#include "host/hxacore/ignore_case.h"

namespace NKVRHXA20 {

namespace {

constexpr PropertyDeclaration Text(std::string_view name, std::string_view description, std::string_view origin = "") {
  return {name, kCIMString, false, false, "", description, origin};
}

constexpr PropertyDeclaration Texts(std::string_view name, std::string_view description, std::string_view origin = "") {
  return {name, kCIMString, true, false, "", description, origin};
}

constexpr PropertyDeclaration Number(std::string_view name, std::string_view description,
                                     std::string_view origin = "") {
  return {name, kCIMUInt16, false, false, "", description, origin};
}

constexpr PropertyDeclaration Codes(std::string_view name, std::string_view description, std::string_view origin = "") {
  return {name, kCIMUInt32, true, false, "", description, origin};
}

constexpr PropertyDeclaration Time(std::string_view name, std::string_view description, std::string_view origin = "") {
  return {name, kCIMDateTime, false, false, "", description, origin};
}

constexpr PropertyDeclaration Key(PropertyDeclaration property) {
  property.isKey = true;
  return property;
}

// The same property with another origin.
constexpr PropertyDeclaration From(std::string_view origin, PropertyDeclaration property) {
  property.origin = origin;
  return property;
}

// An end of an association: both ends together are its key.
constexpr PropertyDeclaration End(std::string_view name, std::string_view referencedClass, std::string_view description,
                                  std::string_view origin = "") {
  return {name, kCIMReference, false, true, referencedClass, description, origin};
}

// Properties that several classes have.
constexpr auto kSystemClass =
    Key(Text("SystemCreationClassName", "Class of the computer system that the device is in.", "fixed text"));
constexpr auto kOwnClass =
    Key(Text("CreationClassName", "Class of the instance, a part of its name.", "fixed text: the name of the class"));
constexpr auto kSystemName =
    Key(Text("SystemName", "Name of the machine that the device is in.", "host: name of the machine"));

// Distinguishes the objects of two machines if no property of the plug-in does.
constexpr PropertyDeclaration kMachine[] = {
    Key(Text("SystemCreationClassName", "Class of the computer system that the object belongs to.",
             "fixed text, added by the host")),
    Key(Text("SystemName", "Name of the machine that the object belongs to.", "host: name of the machine")),
};

constexpr auto kController = Text("ControllerNum", "Number of the controller that it belongs to.",
                                  "number by which the tool was asked, counted on from tool to tool");
constexpr auto kStatisticId = Key(Text("InstanceID", "Names the counters: controller and what they were counted on."));
constexpr auto kStatisticTime = Time("StatisticTime", "When the counters were read, in the machine's local time.",
                                     "host: local time at which the row was read");
constexpr auto kLogClass = Key(Text("LogCreationClassName", "Class of the log that holds the record.", "fixed text"));
constexpr auto kLogName = Key(Text("LogName", "Name of the log that holds the record.", "fixed text"));
constexpr auto kMessageTime =
    Time("MessageTimestamp", "When the event happened; when the log was read, where it does not say.");
constexpr auto kRecordId = Key(Text("RecordID", "Tells the records of one log apart."));

constexpr auto kCommand = Key(Text("Command", "The command line that was run, or the file that was read."));
constexpr auto kRawResults = Texts("RawResults", "What came of it, word for word, one line an element.");

constexpr PropertyDeclaration kManagerRawData[] = {
    From("RAID manager's log: its path, as the registry has it", kCommand),
    From("RAID manager's log: the whole file, line by line", kRawResults),
};

constexpr PropertyDeclaration kRawData[] = {
    From("the tool's path, the command, the number asked by, the option", kCommand),
    From("qcmdrun, hrconf_64, arcconf: the whole answer, line by line", kRawResults),
};

constexpr PropertyDeclaration kControllers[] = {
    kSystemClass,
    kOwnClass,
    kSystemName,
    Key(Text("DeviceID", "Names the controller: \"Zentraxis\" and its number.",
             "made of fixed text and ControllerNum")),
    Texts("OtherIdentifyingInfo", "Model of the controller, then its number.",
          "ControllerType; fixed text and ControllerNum"),
    Text("ControllerNum", "Number of the controller; what hangs on it carries the same.",
         "number by which the tool was asked, counted on from tool to tool"),
    Text("ControllerType", "Model of the controller.", "the model's name in full, where it is a known one"),
    Text("ControllerStatus", "State of the controller: Optimal or Okay, or what is wrong with it."),
    Text("ChannelDescription", "Kind and number of the channels."),
    Text("SerialNum", "Serial number of the controller."),
    Text("ControllerSlotInfo", "Slot of the machine that the controller sits in."),
    Text("InstalledMemory", "Cache memory on the controller."),
    Text("PartNum", "Part number of the controller."),
    Text("DeviceDriverVersion", "Version of the driver that the operating system has loaded for it.",
         "hrconf_64 is asked with getversion"),
    Text("ClusterSolutionVersion", "Version of the clustering software."),
    Text("CopyBackEnabled", "Whether data moves back from the hot spare after a failed drive is replaced."),
    Text("ControllerName", "Name that was given to the controller."),
    Text("ScsiChannelDescr", "Description of the SCSI channels."),
    Text("InitiatorChannelScsiId", "SCSI identifiers that the controller itself has on its channels."),
    Text("MaxPhysicalDevices", "How many drives the controller can have."),
    Text("DefunctDiskDriveCnt", "How many drives are defunct. Anything but 0 asks for a replacement."),
    Text("LogicalDriveStatusCnt", "Number of all, failed and degraded logical drives."),
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
    Text("Current_MostRecentOperation", "Operation that runs now, or the last one that ran.", "asked with getstatus"),
    Text("Logical_Drive", "Logical drive that the operation works on.", "asked with getstatus"),
    Text("BackgroundOperationActive", "Whether an operation runs in the background.", "asked with getstatus"),
    Text("LastCmdStatus", "How the last operation ended.", "asked with getstatus"),
    Text("LogicalDriveSizeInStripes", "Size of the logical drive that the operation works on, in stripes.",
         "asked with getstatus"),
    Text("NumberOfRemainingStripes", "Stripes that the operation has still to do.", "asked with getstatus"),
    Text("VPD", "Vital product data that was assigned to the controller."),
    Text("ECVersion", "Engineering change level of the controller."),
    Text("ControllerFRU", "Number under which a replacement of the controller is ordered."),
    Text("ControllerTemp", "Temperature of the controller.", "of the section on the controller"),
    Text("ControllerBatteryStatus", "State of the cache battery.", "of the section on the battery"),
    Text("ControllerBatteryOverTemp", "Whether the cache battery is too hot."),
    Text("ControllerBatteryCapacity", "Charge of the cache battery."),
    Text("ControllerBatteryFRU", "Number under which a replacement of the cache battery is ordered."),
    Text("BatteryTimeRemaining", "How long the battery keeps the cache at its present charge."),
};

constexpr PropertyDeclaration kLogicalDisks[] = {
    Key(Text("DeviceID", "Names the logical drive: \"Zentraxis\", controller number, \"LD\", its number.",
             "made of fixed text, ControllerNum and LogicalDriveNum")),
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
    Key(Text("CollectionID", "Names the group of drives.",
             "made of fixed text, ControllerNum, and the array's letter (qcmdrun) or the logical drive's number and "
             "StripeOrder (hrconf_64, arcconf)")),
    Text("Array", "Letter of the array.", "the letter before the label"),
    kController,
    Text("StripeOrder", "Drives in the order in which the stripes run over them."),
};

constexpr PropertyDeclaration kDiskDrives[] = {
    Texts("OtherIdentifyingInfo", "Kind of device, then its channel and SCSI identifier.",
          "DeviceType; fixed text, Channel and ScsiId"),
    Key(Text("DeviceID", "Names the drive: controller, channel, SCSI identifier, and what else tells it apart.",
             "made of ControllerNum, Channel and ScsiId, and what it ends with")),
    kSystemClass,
    kOwnClass,
    kSystemName,
    kController,
    Text("Channel", "Channel of the controller that the drive is on.",
         "qcmdrun, hrconf_64: the heading of the channel; else 0 (hrconf_64)"),
    Text("DeviceNumber", "Number that the tool gives to the device."),
    Text("ScsiId", "SCSI identifier on the channel.", "arcconf: after the comma"),
    Text("DeviceType", "Kind of device: hard disk, enclosure, tape or another."),
    Text("PFA", "Whether the drive predicts its own failure. A drive that does is to be replaced soon."),
    Text("State", "State of the drive: Online, Hot spare, Ready, Defunct or another."),
    Text("Size", "Size, with the unit that the tool prints."),
    Text("DeviceCode", "Code of the drive's state.", "of a hard disk: a part of the value"),
    Text("DeviceSerialNum", "Serial number of the drive.", "qcmdrun: of a hard disk, a part of the value"),
    Text("FRU", "Number under which a replacement of the drive is ordered."),
    Text("Firmware", "Firmware level of the drive.", "qcmdrun: of a hard disk or tape, a part of the value"),
    Text("Vendor", "Maker of the drive."),
    Text("Model", "Model of the drive.", "qcmdrun: of a hard disk a part of the value, of a tape all of it"),
    Text("Enclosure", "What the enclosure says of the slot."),
    Text("TransferSpeed", "Transfer speed that drive and controller have agreed on."),
    Text("ReportedChannel", "Channel and device number as the controller reports them."),
    Text("WorldWideName", "World-wide name of the drive."),
    Text("WriteCache", "What the drive's own write cache does."),
    Text("Type", "Kind of enclosure or of drive, as the tool prints it.", "of an enclosure"),
    Text("EnclosureId", "Number of the enclosure that the drive sits in.", "of an enclosure"),
    Text("ReportedESD", "Enclosure service device that the controller reports for the drive."),
    Text("ReportedLocation", "Enclosure and slot that the drive sits in, as the controller reports them."),
    Text("Supported", "Whether the controller supports the drive."),
};

constexpr PropertyDeclaration kPlainDiskGroups[] = {
    Key(Text("InstanceID", "Names the group of drives.")),
};

constexpr PropertyDeclaration kBadStripes[] = {
    From("made of fixed text, ControllerNum and LogicalDrive", kStatisticId),
    kController,
    Text("LogicalDrive", "Number of the logical drive.",
         "asked with getbst; LogicalDriveNum of each logical disk where it lists none"),
    Text("NumBadStripes", "How many stripes are bad. Anything but 0 means that data was lost.",
         "qcmdrun getbst: the number after the dash; 0 if it lists none"),
};

constexpr PropertyDeclaration kDeviceStatistics[] = {
    From("made of fixed text, ControllerNum, Channel and ScsiId", kStatisticId),
    kStatisticTime,
    kController,
    Text("Channel", "Channel of the controller that the device is on.", "qcmdrun getevent device: column 1"),
    Text("Misc", "Errors of no other kind.", "qcmdrun getevent device: column 7"),
    Text("NumHardErrors", "Hard errors that were counted.", "qcmdrun getevent device: column 5"),
    Text("NumParityErrors", "Parity errors that were counted. Many point to cable or backplane.",
         "qcmdrun getevent device: column 3"),
    Text("NumSoftErrors", "Soft errors that were counted.", "qcmdrun getevent device: column 4"),
    Text("PFA", "Predicted failures that were counted.", "qcmdrun getevent device: column 6"),
    Text("ScsiId", "SCSI identifier on the channel.", "qcmdrun getevent device: column 2"),
};

constexpr PropertyDeclaration kSubStatus[] = {
    From("asked with getsubstat; as the tool itself numbers it", kController),
    kStatisticTime,
    Text("Channel", "Channel of the controller that the device is on.", "asked with getsubstat"),
    Text("ScsiId", "SCSI identifier on the channel.", "asked with getsubstat"),
    From("made of fixed text, ControllerNum, Channel and ScsiId", kStatisticId),
    Text("Params", "Parameters of the transfer that were agreed on.", "asked with getsubstat"),
    Text("Req_Off", "Request and acknowledge offset.", "asked with getsubstat"),
    Text("Max_Txer_P", "Shortest transfer period that the device can do.", "asked with getsubstat"),
    Text("Cur_Txer_p", "Transfer period that is in use.", "asked with getsubstat"),
};

constexpr PropertyDeclaration kSoftEvents[] = {
    From("fixed text", kOwnClass),
    kLogClass,
    kLogName,
    Key(From("fixed: 2000-01-01 01:01:01, the log gives no time", kMessageTime)),
    From("ControllerNum: a controller has one such log", kRecordId),
    kController,
    Text("NumEntries", "How many codes there are.", "how many codes there are"),
    Codes("HexSoftEvent", "Codes of the soft events, in the order of the log.",
          "asked with getevent soft: the lines below, one code each"),
};

constexpr PropertyDeclaration kHardEvents[] = {
    From("fixed text: the soft log's class, as it has always been", kOwnClass),
    kLogClass,
    kLogName,
    kController,
    Key(From("fixed: 2000-01-01 01:01:01, the log gives no time", kMessageTime)),
    From("ControllerNum: a controller has one such log", kRecordId),
    Text("NumEntries", "How many codes there are.", "how many codes there are"),
    Codes("HexHardEvent", "Codes of the hard events, in the order of the log.",
          "asked with getevent hard: the lines below, one code each"),
};

constexpr PropertyDeclaration kDefunctDrives[] = {
    kOwnClass,
    kLogClass,
    kLogName,
    Key(Text("Controller", "Number of the controller whose log it is.",
             "number by which the tool was asked, counted on from tool to tool")),
    Key(From("Date and Time, taken for UTC", kMessageTime)),
    From("number of the row, four hexadecimal digits", kRecordId),
    Text("Date", "Date as the log gives it.", "qcmdrun getevent ddd: column 1"),
    Text("Time", "Time of day as the log gives it.", "qcmdrun getevent ddd: column 2"),
    Text("Channel", "Channel of the drive.", "qcmdrun getevent ddd: column 3"),
    Text("ID", "SCSI identifier of the drive.", "qcmdrun getevent ddd: column 4"),
    Text("Reason", "Code of the reason why the drive was set defunct.", "qcmdrun getevent ddd: column 5"),
    Text("Descrip", "The reason in words.", "qcmdrun getevent ddd: column 6"),
};

constexpr PropertyDeclaration kRaidManagerEvents[] = {
    kOwnClass,
    From("fixed text, with RAIMgr in it, as it has always been", kLogClass),
    kLogName,
    // Not a key: the log can contain an impossible time, and a key needs a value.
    From("RAID manager's log: first field, with the offset of its zone", kMessageTime),
    From("number of the record, counted on for the life of the process", kRecordId),
    Text("Severity", "How serious the event is, as the RAID manager says.", "RAID manager's log: second field"),
    Text("MachineName", "Machine that the event happened on.", "RAID manager's log: third field"),
    Text("Message", "The event in words.", "RAID manager's log: fourth field"),
};

constexpr auto kVersionName = Key(Text("Name", "What it is a version of."));
constexpr auto kVersion = Key(Text("Version", "The version."));
constexpr auto kBuild = Text("BuildNumber", "Number of the build: what the version has in parentheses.",
                             "Version: the part in parentheses");
constexpr auto kElementState = Key(Number("SoftwareElementState", "Always 3: running.", "fixed: 3"));
constexpr auto kElementId =
    Key(Text("SoftwareElementID", "Number of the controller, and the drive for a drive's firmware.",
             "ControllerNum of the controller"));
constexpr auto kTargetSystem = Key(
    Number("TargetOperatingSystem", "Always 66: not applicable, it does not run on the machine itself.", "fixed: 66"));

constexpr PropertyDeclaration kFirmwareVersions[] = {
    From("made of fixed text and the controller's number", kVersionName),
    kVersion,
    kBuild,
    kElementState,
    kElementId,
    kTargetSystem,
};

constexpr PropertyDeclaration kBootBlockVersions[] = {
    From("fixed text", kVersionName), kVersion, kBuild, kElementState, kElementId, kTargetSystem,
};

constexpr PropertyDeclaration kBiosVersions[] = {
    From("made of fixed text and the controller's number", kVersionName),
    From("hrconf_64 is asked with getversion", kVersion),
    kBuild,
    kElementState,
    kElementId,
    kTargetSystem,
};

constexpr PropertyDeclaration kDriveVersions[] = {
    From("fixed text, by the kind of device", kVersionName),
    From("Firmware of the drive, without the build", kVersion),
    From("Firmware of the drive: the part in parentheses", kBuild),
    kElementState,
    From("made of ControllerNum and DeviceID of the drive", kElementId),
    kTargetSystem,
    Text("Manufacturer", "Maker of the drive.", "Vendor of the drive; of hard disks alone"),
};

constexpr auto kFromController = End("Antecedent", "KVRSG_zxSCSIProtocolController", "The controller.",
                                     "the controller, found by its ControllerNum");

constexpr PropertyDeclaration kControllerForUnit[] = {
    End("Dependent", "KVRSG_zxLogicalDisk", "A logical drive of the controller.",
        "each with the controller's ControllerNum"),
    kFromController,
};
constexpr PropertyDeclaration kControllerForDisk[] = {
    End("Dependent", "KVRSG_zxDiskDrive", "A device on a channel of the controller.",
        "each with the controller's ControllerNum"),
    kFromController,
};
constexpr PropertyDeclaration kDriveInGroup[] = {
    End("Dependent", "KVRSG_zxDiskGroup", "The group of drives."),
    End("Antecedent", "KVRSG_zxDiskDrive", "A drive of the group."),
};
constexpr PropertyDeclaration kExtentInGroup[] = {
    End("Dependent", "KVRSG_zxLogicalDisk", "A logical drive that lies on the group."),
    End("Antecedent", "KVRSG_zxDiskGroup", "The group of drives."),
};
constexpr PropertyDeclaration kGroupForController[] = {
    End("Dependent", "KVRSG_zxDiskGroup", "A group of drives of the controller.",
        "each with the controller's ControllerNum"),
    kFromController,
};
constexpr PropertyDeclaration kFirmwareOnController[] = {
    End("Dependent", "KVRSG_zxFirmwareVersion", "The firmware that it runs.",
        "each with the controller's number as SoftwareElementID"),
    kFromController,
};
constexpr PropertyDeclaration kBootBlockOnController[] = {
    End("Dependent", "KVRSG_zxBootBlockVersion", "The boot block that it has.",
        "each with the controller's number as SoftwareElementID"),
    kFromController,
};
constexpr PropertyDeclaration kFirmwareOnDrive[] = {
    End("Dependent", "KVRSG_zxDiskDriveVersion", "The firmware that it runs.",
        "each whose SoftwareElementID is made of the drive's ControllerNum and DeviceID"),
    End("Antecedent", "KVRSG_zxDiskDrive", "The drive that runs it.",
        "a drive of a kind that has firmware, by DeviceType"),
};
constexpr PropertyDeclaration kBiosOnController[] = {
    End("Dependent", "KVRSG_zxBiosVersion", "The BIOS that it has.", "each whose Name has the controller's number"),
    kFromController,
};
constexpr PropertyDeclaration kElementDeviceStatistics[] = {
    End("Stats", "KVRSG_zxSCSIDeviceData", "The counters of the drive.",
        "each whose InstanceID is made of the drive's ControllerNum, Channel and ScsiId"),
    End("ManagedElement", "KVRSG_zxDiskDrive", "The drive that they were counted on.",
        "a drive of a kind that errors are counted on, by DeviceType"),
};
constexpr PropertyDeclaration kElementBadStripes[] = {
    End("Stats", "KVRSG_BadStripeData", "The count of bad stripes.",
        "each with the same ControllerNum and number of the logical drive, run together"),
    End("ManagedElement", "KVRSG_zxLogicalDisk", "The logical drive whose stripes were counted.", "the logical disk"),
};

constexpr PropertyDeclaration kComputerSystems[] = {
    kOwnClass,
    Key(Text("Name", "Name of the machine.", "host: name of the machine")),
};

constexpr PropertyDeclaration kOperatingSystems[] = {
    Key(Text("Name", "Names the operating system.")),
    Number("OSType", "Kind of operating system, by the numbers of CIM_OperatingSystem."),
};

// A class that needs no further key.
constexpr ClassDeclaration Things(std::string_view name, std::string_view description,
                                  std::span<const PropertyDeclaration> properties) {
  return {name, description, false, properties};
}

// A class to which the host adds keys that distinguish machines.
constexpr ClassDeclaration OfMachine(std::string_view name, std::string_view description,
                                     std::span<const PropertyDeclaration> properties) {
  return {name, description, false, properties, kMachine};
}

constexpr ClassDeclaration Links(std::string_view name, std::string_view description,
                                 std::span<const PropertyDeclaration> properties) {
  return {name, description, true, properties};
}

// The plug-in's classes in the order of its catalogue, then those of the host.
constexpr ClassDeclaration kClasses[] = {
    OfMachine("KVRSG_zxManagerRawData", "The RAID manager's event log file, word for word.", kManagerRawData),
    OfMachine("KVRSG_zxRawData", "What a controller utility answered to one command, word for word.", kRawData),
    Things("KVRSG_zxSCSIProtocolController", "A RAID controller.", kControllers),
    Things("KVRSG_zxLogicalDisk", "A logical drive, as the operating system sees it.", kLogicalDisks),
    OfMachine("KVRSG_zxDiskGroup", "The drives that stripes run over, in their order.", kDiskGroups),
    Things("KVRSG_zxDiskDrive", "A device on a channel of a controller: a drive, enclosure, tape or processor.",
           kDiskDrives),
    Things("KVRSG_DiskGroup", "A group of drives; none is ever published, see KVRSG_zxDiskGroup.", kPlainDiskGroups),
    OfMachine("KVRSG_BadStripeData", "How many stripes of a logical drive are bad.", kBadStripes),
    OfMachine("KVRSG_zxSCSIDeviceData", "Errors that a controller counted on one of its devices.", kDeviceStatistics),
    OfMachine("KVRSG_zxSCSISubStatData", "Transfer parameters that a controller and one of its devices use.",
              kSubStatus),
    OfMachine("KVRSG_LogRecord_SoftEvent", "The soft event log of a controller.", kSoftEvents),
    OfMachine("KVRSG_LogRecord_zxDDD", "A drive that a controller has set defunct.", kDefunctDrives),
    OfMachine("KVRSG_LogRecord_HardEvent", "The hard event log of a controller.", kHardEvents),
    OfMachine("KVRSG_LogRecord_RAIDMgrEvent", "An event that the RAID manager has logged.", kRaidManagerEvents),
    OfMachine("KVRSG_zxFirmwareVersion", "The firmware of a controller.", kFirmwareVersions),
    OfMachine("KVRSG_zxBootBlockVersion", "The boot block of a controller.", kBootBlockVersions),
    OfMachine("KVRSG_zxDiskDriveVersion", "The firmware of a drive or enclosure.", kDriveVersions),
    OfMachine("KVRSG_zxBiosVersion", "The BIOS of a controller.", kBiosVersions),
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
    Things("KVRSG_ComputerSystem", "The machine; the host itself says what it is.", kComputerSystems),
    Things("KVRSG_OperatingSystem", "The machine's operating system; the host itself says what it is.",
           kOperatingSystems),
};
constexpr std::span kAllClasses = kClasses;

}  // namespace

std::span<const ClassDeclaration> PublishedClasses() { return kAllClasses.first(kAllClasses.size() - 2); }

std::span<const ClassDeclaration> ExportedClasses() { return kAllClasses.first(kAllClasses.size() - 1); }

const ClassDeclaration* FindClass(std::string_view name) {
  const auto sought = [&](const ClassDeclaration& declaration) { return EqualIgnoringCase(declaration.name, name); };
  const auto* const found = std::ranges::find_if(kClasses, sought);
  return found == std::end(kClasses) ? nullptr : found;
}

const PropertyDeclaration* FindProperty(const ClassDeclaration& declaration, std::string_view name) {
  // Nearly every name is spelt as declared, and comparing for equality is fastest.
  auto found = std::ranges::find(declaration.properties, name, &PropertyDeclaration::name);
  if (found == declaration.properties.end()) {
    found = std::ranges::find_if(declaration.properties, [&](const PropertyDeclaration& property) {
      return EqualIgnoringCase(property.name, name);
    });
  }
  return found == declaration.properties.end() ? nullptr : &*found;
}

}  // namespace NKVRHXA20
