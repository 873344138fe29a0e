#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/hxahost/fleet/judged_result.h"
#include "host/hxahost/machine/machine.h"

// The part of one machine's result that the whole fleet needs. Texts are printable.
namespace hxahost {

struct FleetController {
  std::string name;  // "C4"
  std::string model;
  std::string firmware;
};

struct FleetDisk {
  std::string model;  // with its vendor
  std::string firmware;
  std::string serialNumber;
  std::string place;  // "C4 enclosure 0, slot 8"
  bool isFailed = false;
  bool isPredicted = false;  // a failure is predicted, and it has not failed yet
};

struct FleetMachine {
  std::string name;
  std::string time;                     // of the collection, in the CIM form; "" if the result contains none
  std::optional<std::int64_t> seconds;  // the same, since 1970
  std::string source;                   // the file
  Severity state = Severity::kUnknown;
  std::size_t logicalDrives = 0;
  std::vector<FleetController> controllers;
  std::vector<FleetDisk> disks;
  Machine machine = {};  // for the report, if there are incidents; else empty
};

FleetMachine Summarize(const JudgedResult& judged);

// "NORDVIK NV73-15SAS"
std::string ModelOf(const Device& device);

// "C4 enclosure 0, slot 8"
std::string PlaceOf(const Controller& controller, const Device& device);

}  // namespace hxahost
