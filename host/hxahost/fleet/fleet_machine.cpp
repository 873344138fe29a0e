#include "host/hxahost/fleet/fleet_machine.h"

#include "host/hxahost/machine/cause.h"
#include "host/hxahost/machine/incident_words.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/text/escaping.h"

namespace hxahost {

std::string ModelOf(const Device& device) {
  return Printable(device.vendor.empty() ? device.model : device.vendor + " " + device.model);
}

std::string PlaceOf(const Controller& controller, const Device& device) {
  return ShortName(controller) + " " + Printable(device.location.empty() ? device.name : device.location);
}

FleetMachine Summarize(const JudgedResult& judged) {
  const Machine& machine = judged.machine;
  FleetMachine summary;
  summary.name = Printable(judged.header.machine);
  summary.seconds = SecondsSince1970(judged.read.time);
  if (summary.seconds) summary.time = judged.read.time;
  summary.source = Printable(judged.source);
  summary.state = StateOf(machine);
  for (const Controller& controller : machine.controllers) {
    const ControllerUnit unit = controller.units.empty() ? ControllerUnit() : controller.units.front();
    summary.controllers.push_back({ShortName(controller), Printable(unit.model), Printable(unit.firmware)});
    summary.logicalDrives += controller.logicalDrives.size();
    for (const Device& device : controller.devices) {
      if (device.kind != HardwareKind::kDisk) continue;
      const bool isFailed = IsFailed(machine, device);
      summary.disks.push_back({ModelOf(device), Printable(device.firmware), Printable(device.serialNumber),
                               PlaceOf(controller, device), isFailed,
                               !isFailed && HasEffect(machine, device, Effect::kPredicted)});
    }
  }
  if (!machine.incidents.empty()) summary.machine = machine;
  return summary;
}

}  // namespace hxahost
