#include <algorithm>
#include <string>
#include <string_view>

#include "host/hxahost/fleet/fleet_view.h"
#include "host/hxahost/views/monitoring/incident_labels.h"
#include "host/hxahost/views/monitoring/metric_family.h"

namespace hxahost {

namespace {

// The labels, preceded by the machine.
Labels OfMachine(const FleetMachine& machine, Labels labels) {
  labels.insert(labels.begin(), {"machine", machine.name});
  return labels;
}

void WriteMachines(std::ostream& out, const Fleet& fleet) {
  MetricFamily states(
      {"zenx_fleet_machine_state", "The worst of all findings: 0 ok, 1 warning, 2 critical, 3 unknown."});
  MetricFamily times({"zenx_fleet_machine_timestamp_seconds", "When the machine was collected from, since 1970."});
  MetricFamily stale({"zenx_fleet_machine_stale", "1 where that is longer ago than --stale allows."});
  for (const FleetMachine* const machine : fleet.Machines()) {
    const Labels labels = OfMachine(*machine, {});
    states.Add(labels, static_cast<double>(machine->state));
    if (machine->seconds) times.Add(labels, static_cast<double>(*machine->seconds));
    if (fleet.Options().staleDays) stale.Add(labels, fleet.IsStale(*machine) ? 1 : 0);
  }
  for (const MetricFamily* const family : {&states, &times, &stale}) family->Write(out);
}

void WriteIncidents(std::ostream& out, const Fleet& fleet) {
  MetricFamily severities(
      {"zenx_fleet_incident", "One cause of trouble: 0 information, 1 warning, 2 critical, 3 unknown."});
  MetricFamily texts({"zenx_fleet_incident_info", "What the incident is about, and the first disk to act on."});
  for (const FleetMachine* const machine : fleet.Machines()) {
    for (const Incident& incident : machine->machine.incidents) {
      severities.Add(OfMachine(*machine, IncidentLabels(machine->machine, incident)),
                     static_cast<double>(incident.severity));
      texts.Add(OfMachine(*machine, IncidentTexts(machine->machine, incident)), 1);
    }
  }
  severities.Write(out);
  texts.Write(out);
}

struct DiskCount {
  MetricName metric;
  std::size_t DiskModel::*count;
};

constexpr DiskCount kDiskCounts[] = {
    {{"zenx_fleet_disks", "Disks of a model and firmware."},                                &DiskModel::disks    },
    {{"zenx_fleet_disks_failed", "Disks of a model and firmware that have failed."},        &DiskModel::failed   },
    {{"zenx_fleet_disks_predicted", "Disks of a model and firmware that predict to fail."}, &DiskModel::predicted},
};

void WriteModels(std::ostream& out, const Fleet& fleet) {
  for (const DiskCount& each : kDiskCounts) {
    MetricFamily family(each.metric);
    for (const DiskModel& model : fleet.DiskModels()) {
      family.Add(
          {
              {"model",    model.model   },
              {"firmware", model.firmware}
      },
          static_cast<double>(model.*(each.count)));
    }
    family.Write(out);
  }
  MetricFamily controllers({"zenx_fleet_controllers", "Controllers of a model and firmware."});
  for (const ControllerModel& model : fleet.ControllerModels()) {
    controllers.Add(
        {
            {"model",    model.model   },
            {"firmware", model.firmware}
    },
        static_cast<double>(model.controllers));
  }
  controllers.Write(out);
}

void WriteCount(std::ostream& out, const MetricName& name, std::size_t count) {
  MetricFamily family(name);
  family.Add({}, static_cast<double>(count));
  family.Write(out);
}

}  // namespace

void WriteFleetMetrics(std::ostream& out, const FleetView& view) {
  const Fleet& fleet = view.fleet;
  WriteMachines(out, fleet);
  WriteIncidents(out, fleet);
  WriteModels(out, fleet);
  WriteCount(out, {"zenx_fleet_shared_serial_numbers", "Serial numbers of disks in more than one machine."},
             fleet.SharedSerialNumbers().size());
  WriteCount(out, {"zenx_fleet_damaged_files", "Files that hold no result."}, fleet.Damaged().size());
  WriteCount(out, {"zenx_fleet_timestamp_seconds", "When the fleet was read, since 1970."},
             static_cast<std::size_t>(fleet.Options().now));
}

}  // namespace hxahost
