#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/hxahost/fleet/fleet_machine.h"

// Many machines together, and the facts that only their comparison shows. Texts are printable.
namespace hxahost {

// A file, or a part of one, that does not contain a result.
struct DamagedFile {
  std::string file;
  std::string reason;
};

// A model of disks with one level of firmware.
struct DiskModel {
  std::string model;
  std::string firmware;
  std::size_t disks = 0;
  std::size_t failed = 0;
  std::size_t predicted = 0;
  std::size_t machines = 0;
};

// A model of controllers with one level of firmware.
struct ControllerModel {
  std::string model;
  std::string firmware;
  std::size_t controllers = 0;
  std::vector<std::string> machines;
};

// Where and when a disk was seen.
struct Sighting {
  std::string machine;
  std::string place;
  std::string time;                     // in the CIM form
  std::optional<std::int64_t> seconds;  // the same, since 1970
  std::string model;
};

// A serial number in the newest results of several machines.
struct SharedSerialNumber {
  std::string serialNumber;
  std::vector<Sighting> seen;
};

// A disk that an older result shows in another place.
struct MovedDisk {
  std::string serialNumber;
  Sighting from;
  Sighting to;
};

// A result that is so many seconds younger than the fleet is from the future; below that, clocks and time zones differ.
inline constexpr std::int64_t kClockTolerance = 24 * 60 * 60;

struct FleetOptions {
  std::int64_t now = 0;  // in seconds since 1970
  std::optional<unsigned> staleDays;
};

class Fleet {
 public:
  explicit Fleet(const FleetOptions& options) : options_(options) {}

  // The newest of several results of a machine counts, one from the future only if there is no other; of those with the
  // same time, the first.
  void Add(FleetMachine machine);
  void Add(DamagedFile file) { damaged_.push_back(std::move(file)); }

  const FleetOptions& Options() const { return options_; }
  const std::vector<DamagedFile>& Damaged() const { return damaged_; }

  // The worst first, among equally bad ones stale ones first, then by name.
  std::vector<const FleetMachine*> Machines() const;

  // The models with the most failed disks first.
  std::vector<DiskModel> DiskModels() const;
  std::vector<ControllerModel> ControllerModels() const;
  std::vector<SharedSerialNumber> SharedSerialNumbers() const;
  std::vector<MovedDisk> MovedDisks() const;

  // Seconds since the collection from the machine; empty if the result contains no time.
  std::optional<std::int64_t> AgeOf(const FleetMachine& machine) const;
  // Whether the result is older than permitted, is from the future, or contains no time.
  bool IsStale(const FleetMachine& machine) const;

 private:
  bool IsFromTheFuture(const FleetMachine& machine) const;
  // Whether the left result counts instead of the right one.
  bool IsNewer(const FleetMachine& left, const FleetMachine& right) const;

  FleetOptions options_;
  std::map<std::string, FleetMachine> machines_;             // the newest of each, by name
  std::map<std::string, std::vector<Sighting>> seenBefore_;  // in results that are not the newest, by serial number
  std::vector<DamagedFile> damaged_;
};

}  // namespace hxahost
