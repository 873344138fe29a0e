#pragma once

#include "host/hxahost/machine/machine.h"
#include "host/hxahost/views/monitoring/metric_family.h"

// The labels of metrics that several commands write. What tells one series from another does not change with a state.
namespace hxahost {

// Controllers of two utilities may share a number: the label of the utility goes with it.
Labels ControllerLabels(const Controller& controller);

// What tells an incident from others.
Labels IncidentLabels(const Machine& machine, const Incident& incident);

// The same, then what may change: its name, and the first disk to act on.
Labels IncidentTexts(const Machine& machine, const Incident& incident);

}  // namespace hxahost
