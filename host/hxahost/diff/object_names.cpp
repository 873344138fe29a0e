#include "host/hxahost/diff/object_names.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <vector>

#include "host/hxacore/schema.h"
#include "host/hxahost/machine/incident_words.h"
#include "host/hxahost/machine/record_owners.h"
#include "host/hxahost/result/json_instances.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/text/escaping.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

namespace {

// A word and the property after it.
struct NamePart {
  std::string_view word;
  std::string_view property;
};

// The name of a record after its controller.
struct RecordNaming {
  std::string_view className;
  NamePart parts[3];
};

constexpr RecordNaming kRecordNamings[] = {
    {kFirmwareClass,              {{"", "Name"}, {}, {}}                                       },
    {"KVRSG_zxBootBlockVersion",  {{"", "Name"}, {}, {}}                                       },
    {"KVRSG_zxBiosVersion",       {{"", "Name"}, {}, {}}                                       },
    {kBadStripesClass,            {{"logical drive", "LogicalDrive"}, {}, {}}                  },
    {kDeviceErrorsClass,          {{"channel", "Channel"}, {"ID", "ScsiId"}, {}}               },
    {kTransferClass,              {{"channel", "Channel"}, {"ID", "ScsiId"}, {}}               },
    {"KVRSG_LogRecord_zxDDD",     {{"", "Date"}, {"", "Time"}, {"", "Descrip"}}                },
    {"KVRSG_LogRecord_SoftEvent", {{"soft events", ""}, {}, {}}                                },
    {"KVRSG_LogRecord_HardEvent", {{"hard events", ""}, {}, {}}                                },
    {kEventClass,                 {{"", "MessageTimestamp"}, {"", "Severity"}, {"", "Message"}}},
};

void Append(std::string& text, std::string_view word) {
  if (!word.empty()) text.append(text.empty() ? "" : " ").append(word);
}

std::string NameOfRecord(const TPublishedInstance& record, const RecordOwner& owner) {
  const auto* const naming = std::ranges::find(kRecordNamings, record.Class().name, &RecordNaming::className);
  if (naming == std::end(kRecordNamings)) return "";
  std::string name = owner.label.empty() ? "" : "C" + Printable(owner.label);
  for (const NamePart& part : naming->parts) {
    Append(name, part.word);
    Append(name, ShownText(record, part.property));
  }
  return name;
}

std::vector<std::string_view> NamedClasses() {
  std::vector<std::string_view> classes;
  for (const auto& declaration : NKVRHXA20::PublishedClasses()) {
    const bool isRawText = declaration.name == kRawDataClass || declaration.name == kManagerRawDataClass;
    if (!declaration.isAssociation && !isRawText) classes.push_back(declaration.name);
  }
  return classes;
}

// By the place of each instance that was made.
std::vector<ObjectName> NamesIn(const InstanceList& instances) {
  QueryResult query;
  query.instances = instances;
  const Machine machine = BuildMachine({}, query);
  const std::vector<RecordOwner> owners = RecordOwners(machine, instances);
  std::vector<ObjectName> names(instances.size());
  for (std::size_t place = 0; place < instances.size(); ++place) {
    names[place].name = NameOfRecord(*instances[place], owners[place]);
  }
  for (const Controller& controller : machine.controllers) {
    if (controller.number.empty()) continue;
    const std::string owner = ShortName(controller);
    for (const ControllerUnit& unit : controller.units) names[unit.instance].name = owner;
    for (const LogicalDrive& drive : controller.logicalDrives) {
      names[drive.instance].name = owner + " " + ShortName(drive);
    }
    for (const DiskGroup& group : controller.groups) {
      names[group.instance].name = owner + " array " + ShownText(*instances[group.instance], "StripeOrder");
    }
    for (const Device& device : controller.devices) {
      if (device.location.empty()) continue;
      names[device.instance] = {owner + " " + Printable(device.location), Printable(device.serialNumber)};
    }
  }
  return names;
}

}  // namespace

ObjectNames NameObjects(const JsonResult& result) {
  const JsonInstances made = MakeInstances(result, NamedClasses());
  const std::vector<ObjectName> names = NamesIn(made.instances);
  ObjectNames named;
  for (std::size_t place = 0; place < names.size(); ++place) {
    if (!names[place].name.empty()) named[&result.instances[made.places[place]]] = names[place];
  }
  return named;
}

}  // namespace hxahost
