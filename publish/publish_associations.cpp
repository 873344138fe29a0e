#include "publish/publish_associations.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "collect/ascii_text.h"
#include "publish/identifiers.h"
#include "publish/instance_index.h"

using namespace NKVRHXA20;

namespace {

constexpr const char* kController = "KVRSG_zxSCSIProtocolController";
constexpr const char* kLogicalDisk = "KVRSG_zxLogicalDisk";
constexpr const char* kDiskDrive = "KVRSG_zxDiskDrive";

// The two reference properties of an association, in the order in which they are set.
struct Ends {
  const char* first;
  const char* second;
};

constexpr Ends kOnWhatItDepends = {"Dependent", "Antecedent"};
constexpr Ends kWhatItDescribes = {"Stats", "ManagedElement"};

// Links every instance of the list to the second one.
void Link(ICIMClass& publishedClass, const Ends& ends, const InstanceList& firsts, ICIMInstance& second) {
  if (firsts.empty()) return;
  const TCIMReference secondReference = second.GetReference({});
  for (const auto& first : firsts) {
    const auto association = publishedClass.CreateInstance({});
    association->SetProperty(ends.first, first->GetReference({}), {});
    association->SetProperty(ends.second, secondReference, {});
    association->Commit({});
  }
}

// What belongs to a controller: a class, the property that says to which, and what it holds for a controller's number.
struct Belonging {
  const char* className;
  const char* property;
  std::string (*valueFor)(std::string_view controllerNumber);
};

std::string ControllerNumberAlone(std::string_view controllerNumber) { return std::string(controllerNumber); }

constexpr Belonging kLogicalDisks = {kLogicalDisk, "ControllerNum", ControllerNumberAlone};
constexpr Belonging kDiskDrives = {kDiskDrive, "ControllerNum", ControllerNumberAlone};
constexpr Belonging kDiskGroups = {"KVRSG_zxDiskGroup", "ControllerNum", ControllerNumberAlone};
constexpr Belonging kFirmware = {"KVRSG_zxFirmwareVersion", "SoftwareElementID", ControllerNumberAlone};
constexpr Belonging kBootBlock = {"KVRSG_zxBootBlockVersion", "SoftwareElementID", ControllerNumberAlone};
constexpr Belonging kBios = {"KVRSG_zxBiosVersion", "Name", BiosName};

InstanceKey PropertyKey(const char* property) {
  return [property](ICIMInstance& instance) { return TextOf(instance, property); };
}

// A controller that was not published is linked to nothing; of several under one number the first one counts.
void LinkToControllers(const PublishContext& context, ICIMClass& publishedClass, const Belonging& belonging) {
  const InstanceIndex controllers(context, kController, ControllerNumberOf);
  const InstanceIndex dependents(context, belonging.className, PropertyKey(belonging.property));
  for (const auto& controller : context.collector.GetControllers()) {
    const std::string number(Trimmed(controller->ControllerNum));
    const InstanceList& published = controllers.Find(number);
    if (published.empty()) continue;
    Link(publishedClass, kOnWhatItDepends, dependents.Find(belonging.valueFor(number)), *published.front());
  }
}

bool IsOneOf(ICIMInstance& drive, std::initializer_list<std::string_view> types) {
  const std::string type = TextOf(drive, "DeviceType");
  return std::ranges::any_of(types, [&](std::string_view one) { return Contains(type, one); });
}

bool HasFirmware(ICIMInstance& drive) {
  return IsOneOf(drive, {"Hard disk", "Hard drive", "Processor device", "Enclosure", "Unknown"});
}

bool HasDeviceData(ICIMInstance& drive) {
  return IsOneOf(drive, {"Hard disk", "Hard drive", "Processor device", "Tape"});
}

std::string SoftwareOfDrive(ICIMInstance& drive) {
  return DriveSoftwareId(ControllerNumberOf(drive), TextOf(drive, "DeviceID"));
}

std::string DeviceDataOfDrive(ICIMInstance& drive) {
  return DeviceDataId(ControllerNumberOf(drive), TextOf(drive, "Channel"), TextOf(drive, "ScsiId"));
}

// The two numbers are compared run together, so that disk 12 of controller 1 also meets disk 2 of controller 11. Hosts
// know these links, and none is left out of them.
std::string DiskNumbers(ICIMInstance& disk) { return ControllerNumberOf(disk) + TextOf(disk, "LogicalDriveNum"); }
std::string BadStripeNumbers(ICIMInstance& stripes) {
  return ControllerNumberOf(stripes) + TextOf(stripes, "LogicalDrive");
}

}  // namespace

void PublishControllerToLogicalDisks(const PublishContext& context, ICIMClass& publishedClass) {
  LinkToControllers(context, publishedClass, kLogicalDisks);
}

void PublishControllerToDiskDrives(const PublishContext& context, ICIMClass& publishedClass) {
  LinkToControllers(context, publishedClass, kDiskDrives);
}

void PublishControllerToDiskGroups(const PublishContext& context, ICIMClass& publishedClass) {
  LinkToControllers(context, publishedClass, kDiskGroups);
}

void PublishControllerToFirmware(const PublishContext& context, ICIMClass& publishedClass) {
  LinkToControllers(context, publishedClass, kFirmware);
}

void PublishControllerToBootBlock(const PublishContext& context, ICIMClass& publishedClass) {
  LinkToControllers(context, publishedClass, kBootBlock);
}

void PublishControllerToBios(const PublishContext& context, ICIMClass& publishedClass) {
  LinkToControllers(context, publishedClass, kBios);
}

void PublishDiskDriveToFirmware(const PublishContext& context, ICIMClass& publishedClass) {
  const InstanceIndex versions(context, "KVRSG_zxDiskDriveVersion", PropertyKey("SoftwareElementID"));
  for (const auto& drive : InstancesOf(context.nameSpace, kDiskDrive, context.lookupContext)) {
    if (HasFirmware(*drive)) {
      Link(publishedClass, kOnWhatItDepends, versions.Find(SoftwareOfDrive(*drive)), *drive);
    }
  }
}

void PublishDiskDriveToDeviceData(const PublishContext& context, ICIMClass& publishedClass) {
  const auto drives = InstancesOf(context.nameSpace, kDiskDrive, context.lookupContext);
  const InstanceIndex statistics(context, "KVRSG_zxSCSIDeviceData", PropertyKey("InstanceID"));
  for (const auto& drive : drives) {
    if (HasDeviceData(*drive)) {
      Link(publishedClass, kWhatItDescribes, statistics.Find(DeviceDataOfDrive(*drive)), *drive);
    }
  }
}

void PublishLogicalDiskToBadStripes(const PublishContext& context, ICIMClass& publishedClass) {
  const auto disks = InstancesOf(context.nameSpace, kLogicalDisk, context.lookupContext);
  const InstanceIndex badStripes(context, "KVRSG_BadStripeData", BadStripeNumbers);
  for (const auto& disk : disks) {
    Link(publishedClass, kWhatItDescribes, badStripes.Find(DiskNumbers(*disk)), *disk);
  }
}
