#include "host/hxahost/views/monitoring/incident_labels.h"

namespace hxahost {

Labels ControllerLabels(const Controller& controller) {
  return {
      {"controller", controller.number           },
      {"tool",       std::string(controller.tool)}
  };
}

Labels IncidentLabels(const Machine& machine, const Incident& incident) {
  const bool isOfController = incident.controller < machine.controllers.size();
  Labels labels = isOfController ? ControllerLabels(machine.controllers[incident.controller]) : Labels();
  labels.emplace_back("subject", incident.subject);
  return labels;
}

Labels IncidentTexts(const Machine& machine, const Incident& incident) {
  Labels labels = IncidentLabels(machine, incident);
  labels.emplace_back("name", incident.name);
  labels.emplace_back("location", incident.location);
  if (incident.disks.empty()) return labels;
  const Device& device = DeviceOf(machine, incident.disks.front());
  labels.emplace_back("model", device.model);
  labels.emplace_back("serial", device.serialNumber);
  labels.emplace_back("fru", device.fru);
  return labels;
}

}  // namespace hxahost
