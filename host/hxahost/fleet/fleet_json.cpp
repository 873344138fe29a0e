#include <string>

#include <nlohmann/json.hpp>

#include "host/hxahost/fleet/fleet_json.h"
#include "host/hxahost/text/json_output.h"
#include "host/hxahost/text/utf8.h"
#include "host/hxahost/views/monitoring/finding_json.h"

namespace hxahost {

namespace {

using Json = nlohmann::ordered_json;

Json MachineJson(const FleetView& view, const FleetMachine& machine) {
  Json incidents = Json::array();
  for (const Incident& incident : machine.machine.incidents) {
    incidents.push_back(IncidentJson(machine.machine, incident));
  }
  const auto age = view.fleet.AgeOf(machine);
  const auto page = view.pages.find(machine.name);
  return {
      {"machine",       machine.name                                          },
      {"time",          machine.time                                          },
      {"ageSeconds",    age ? Json(*age) : Json()                             },
      {"isStale",       view.fleet.IsStale(machine)                           },
      {"status",        SeverityWord(machine.state)                           },
      {"source",        machine.source                                        },
      {"page",          page == view.pages.end() ? Json() : Json(page->second)},
      {"controllers",   machine.controllers.size()                            },
      {"logicalDrives", machine.logicalDrives                                 },
      {"disks",         machine.disks.size()                                  },
      {"incidents",     std::move(incidents)                                  },
  };
}

Json SightingJson(const Sighting& sighting) {
  return {
      {"machine", sighting.machine},
      {"place",   sighting.place  },
      {"time",    sighting.time   },
  };
}

Json DiskModelJson(const DiskModel& model) {
  return {
      {"model",     model.model    },
      {"firmware",  model.firmware },
      {"disks",     model.disks    },
      {"failed",    model.failed   },
      {"predicted", model.predicted},
      {"machines",  model.machines },
  };
}

Json ControllerModelJson(const ControllerModel& model) {
  return {
      {"model",       model.model      },
      {"firmware",    model.firmware   },
      {"controllers", model.controllers},
      {"machines",    model.machines   },
  };
}

Json SharedJson(const SharedSerialNumber& shared) {
  Json seen = Json::array();
  for (const Sighting& each : shared.seen) seen.push_back(SightingJson(each));
  return {
      {"serialNumber", shared.serialNumber      },
      {"model",        shared.seen.front().model},
      {"seen",         std::move(seen)          },
  };
}

Json MovedJson(const MovedDisk& moved) {
  return {
      {"serialNumber", moved.serialNumber      },
      {"model",        moved.to.model          },
      {"from",         SightingJson(moved.from)},
      {"to",           SightingJson(moved.to)  },
  };
}

Json DamagedJson(const DamagedFile& file) {
  return {
      {"file",   file.file  },
      {"reason", file.reason},
  };
}

template <class Items, class ToJson>
Json ListOf(const Items& items, ToJson toJson) {
  Json list = Json::array();
  for (const auto& item : items) list.push_back(toJson(item));
  return list;
}

}  // namespace

Json FleetJson(const FleetView& view) {
  const Fleet& fleet = view.fleet;
  Json json = {
      {"format",    1                           },
      {"status",    SeverityWord(WorstOf(fleet))},
      {"verdict",   VerdictText(fleet)          },
      {"now",       fleet.Options().now         },
      {"staleDays", nullptr                     },
  };
  if (fleet.Options().staleDays) json["staleDays"] = *fleet.Options().staleDays;
  json["machines"] = ListOf(fleet.Machines(), [&](const FleetMachine* each) { return MachineJson(view, *each); });
  json["diskModels"] = ListOf(fleet.DiskModels(), DiskModelJson);
  json["controllerModels"] = ListOf(fleet.ControllerModels(), ControllerModelJson);
  json["sharedSerialNumbers"] = ListOf(fleet.SharedSerialNumbers(), SharedJson);
  json["movedDisks"] = ListOf(fleet.MovedDisks(), MovedJson);
  json["damagedFiles"] = ListOf(fleet.Damaged(), DamagedJson);
  return json;
}

void WriteFleetJson(std::ostream& out, const FleetView& view) { out << JsonText(FleetJson(view), 2) << '\n'; }

}  // namespace hxahost
