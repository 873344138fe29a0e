#include "host/hxahost/fleet/fleet.h"

#include <algorithm>
#include <set>
#include <tuple>

namespace hxahost {

namespace {

using Sightings = std::map<std::string, std::vector<Sighting>>;

void AddSightings(Sightings& sightings, const FleetMachine& machine) {
  for (const FleetDisk& disk : machine.disks) {
    if (disk.serialNumber.empty()) continue;
    sightings[disk.serialNumber].push_back({machine.name, disk.place, machine.time, machine.seconds, disk.model});
  }
}

bool IsElsewhere(const Sighting& left, const Sighting& right) {
  return std::tie(left.machine, left.place) != std::tie(right.machine, right.place);
}

}  // namespace

void Fleet::Add(FleetMachine machine) {
  const auto [place, isNew] = machines_.try_emplace(machine.name, machine);
  if (isNew) return;
  FleetMachine& known = place->second;
  if (IsNewer(machine, known)) std::swap(known, machine);
  if (IsNewer(known, machine) && !IsFromTheFuture(machine)) AddSightings(seenBefore_, machine);
}

bool Fleet::IsFromTheFuture(const FleetMachine& machine) const {
  return machine.seconds && *machine.seconds > options_.now + kClockTolerance;
}

bool Fleet::IsNewer(const FleetMachine& left, const FleetMachine& right) const {
  if (IsFromTheFuture(left) != IsFromTheFuture(right)) return IsFromTheFuture(right);
  return left.seconds > right.seconds;
}

std::vector<const FleetMachine*> Fleet::Machines() const {
  std::vector<const FleetMachine*> machines;
  for (const auto& [name, machine] : machines_) machines.push_back(&machine);
  std::ranges::stable_sort(machines, [this](const FleetMachine* left, const FleetMachine* right) {
    if (left->state != right->state) return IsWorse(left->state, right->state);
    return IsStale(*left) && !IsStale(*right);
  });
  return machines;
}

std::vector<DiskModel> Fleet::DiskModels() const {
  std::map<std::pair<std::string, std::string>, DiskModel> models;
  for (const auto& [name, machine] : machines_) {
    std::set<DiskModel*> ofMachine;
    for (const FleetDisk& disk : machine.disks) {
      DiskModel& model = models[{disk.model, disk.firmware}];
      model.model = disk.model;
      model.firmware = disk.firmware;
      ++model.disks;
      model.failed += disk.isFailed ? 1 : 0;
      model.predicted += disk.isPredicted ? 1 : 0;
      ofMachine.insert(&model);
    }
    for (DiskModel* const model : ofMachine) ++model->machines;
  }
  std::vector<DiskModel> sorted;
  for (auto& [key, model] : models) sorted.push_back(std::move(model));
  std::ranges::stable_sort(sorted, [](const DiskModel& left, const DiskModel& right) {
    return std::tie(left.failed, left.predicted) > std::tie(right.failed, right.predicted);
  });
  return sorted;
}

std::vector<ControllerModel> Fleet::ControllerModels() const {
  std::map<std::pair<std::string, std::string>, ControllerModel> models;
  for (const auto& [name, machine] : machines_) {
    for (const FleetController& controller : machine.controllers) {
      ControllerModel& model = models[{controller.model, controller.firmware}];
      model.model = controller.model;
      model.firmware = controller.firmware;
      ++model.controllers;
      if (model.machines.empty() || model.machines.back() != name) model.machines.push_back(name);
    }
  }
  std::vector<ControllerModel> sorted;
  for (auto& [key, model] : models) sorted.push_back(std::move(model));
  return sorted;
}

std::vector<SharedSerialNumber> Fleet::SharedSerialNumbers() const {
  Sightings sightings;
  for (const auto& [name, machine] : machines_) AddSightings(sightings, machine);
  std::vector<SharedSerialNumber> shared;
  for (auto& [serialNumber, seen] : sightings) {
    const std::string& first = seen.front().machine;
    if (std::ranges::any_of(seen, [&](const Sighting& each) { return each.machine != first; })) {
      shared.push_back({serialNumber, std::move(seen)});
    }
  }
  return shared;
}

std::vector<MovedDisk> Fleet::MovedDisks() const {
  Sightings sightings;
  for (const auto& [name, machine] : machines_) AddSightings(sightings, machine);
  std::vector<MovedDisk> moved;
  for (const auto& [serialNumber, before] : seenBefore_) {
    const auto now = sightings.find(serialNumber);
    if (now == sightings.end() || now->second.size() != 1) continue;  // gone, or ambiguous
    const Sighting& to = now->second.front();
    const Sighting* from = nullptr;
    for (const Sighting& each : before) {
      if (IsElsewhere(each, to) && (from == nullptr || each.seconds > from->seconds)) from = &each;
    }
    if (from != nullptr) moved.push_back({serialNumber, *from, to});
  }
  return moved;
}

std::optional<std::int64_t> Fleet::AgeOf(const FleetMachine& machine) const {
  return machine.seconds ? std::optional(options_.now - *machine.seconds) : std::nullopt;
}

bool Fleet::IsStale(const FleetMachine& machine) const {
  constexpr std::int64_t kDay = 24 * 60 * 60;
  const auto age = AgeOf(machine);
  return options_.staleDays && (!age || IsFromTheFuture(machine) || *age > *options_.staleDays * kDay);
}

}  // namespace hxahost
