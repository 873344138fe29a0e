#pragma once

#include "host/hxahost/machine/machine.h"
#include "host/hxahost/views/monitoring/metric_family.h"

// The labels of metrics that several commands write. Labels that identify a series do not change with a state.
namespace hxahost {

// Controllers of two utilities may have the same number, so the utility is a label, too.
Labels ControllerLabels(const Controller& controller);

// The labels that identify an incident.
Labels IncidentLabels(const Machine& machine, const Incident& incident);

// The same, then labels that may change: its name, and the first disk to act on.
Labels IncidentTexts(const Machine& machine, const Incident& incident);

}  // namespace hxahost
