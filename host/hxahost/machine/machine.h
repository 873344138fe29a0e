#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/hxahost/machine/finding.h"
#include "host/hxahost/machine/incident.h"
#include "host/hxahost/result/query_result.h"

// A machine as its utilities describe it: the one value from which all views for people and monitoring are made.
// Texts are bytes as the tools printed them, without the white space at both ends; "" if they printed none.
namespace hxahost {

// The text of a state, and its level by the rules.
struct State {
  std::string_view property;
  std::string text;
  Level level = Level::kUnsaid;
};

// One published instance.
struct Object {
  std::size_t instance = 0;  // its place among those of the query
  std::string identifier;    // "DeviceID"
  std::string name;          // "logical drive 3 (Archive) of controller 4"
  State state;
  Level level = Level::kUnsaid;       // the worst of its state and of the findings about it
  std::vector<std::size_t> findings;  // about it: their places in Machine::findings
};

struct Battery {
  State state;
  std::string overTemperature;
  std::string capacity;
  std::optional<double> percent;  // read from the capacity, if possible
  std::string timeRemaining;
  std::string fru;
};

// A background operation: "Rebuild" of logical drive "3".
struct Operation {
  std::string name;
  std::string logicalDrive;
  std::string status;
  std::optional<double> percent;  // done, 0 to 100
  bool isActive = false;          // it runs now; otherwise it is the last one that ran
};

struct ControllerUnit : Object {
  std::string model;
  std::string serialNumber;
  std::string firmware;
  State temperature;
  std::optional<double> celsius;  // read from the temperature, if possible
  Battery battery;
  std::vector<Operation> operations;
};

// Members are places in the controller's lists.
struct LogicalDrive : Object {
  std::string number;
  std::string title;      // "Archive"; "" if it has no name
  std::string raidLevel;  // "5"
  std::string size;
  std::optional<std::uint64_t> bytes;       // read from the size, if possible
  std::optional<std::uint64_t> badStripes;  // in which data was lost
  std::vector<std::size_t> groups;          // that it is built on
  std::vector<std::size_t> devices;         // that its own lists name
  std::vector<std::size_t> members;         // all of its devices, in their order
};

struct DiskGroup : Object {
  std::vector<std::size_t> devices;
};

// The errors that a controller counted on a device.
struct ErrorCounts {
  std::uint64_t hard = 0;
  std::uint64_t soft = 0;
  std::uint64_t parity = 0;
  std::uint64_t other = 0;
};

enum class HardwareKind { kDisk, kTape, kEnclosure, kOther };

// A disk, a tape, an enclosure, ...
struct Device : Object {
  HardwareKind kind = HardwareKind::kOther;
  std::string channel;
  std::string id;
  std::string location;  // "enclosure 0, slot 8"; else "channel 2, ID 4"; else "device 4"; "" if none is published
  std::string type;
  std::string vendor;
  std::string model;
  std::string serialNumber;
  std::string fru;
  std::string firmware;
  std::string size;
  std::optional<std::uint64_t> bytes;      // read from the size, if possible
  std::optional<ErrorCounts> errors;       // if its utility counts them
  std::vector<std::size_t> logicalDrives;  // it is a member of these
};

// Everything that belongs to one controller. Each utility numbers its own controllers, so controllers of two utilities
// may have the same number.
struct Controller {
  std::string number;
  std::string label;                  // the number; "3 (arcconf)" or "3 (tool not known)" if two share it
  std::string_view tool;              // that described it; "" if it is unknown
  std::vector<ControllerUnit> units;  // one; none if it was not published; several if they cannot be distinguished
  std::vector<LogicalDrive> logicalDrives;
  std::vector<DiskGroup> groups;
  std::vector<Device> devices;
};

// The objects, without levels and findings.
std::vector<Controller> ReadControllers(const InstanceList& instances);

struct Machine {
  std::vector<Controller> controllers;        // in the order in which they, or their parts, were published
  std::vector<std::string_view> absentTools;  // utilities that are not installed and not required
  Incidents changes;                 // compared with expectations: those with findings, and those for information
  std::vector<Device> missingDisks;  // they were there at the baseline
  Findings findings;                 // what is wrong: the worst first, then in the order of the rules
  Incidents incidents;               // their causes: the worst first, then in the order of the controllers
};

// The disk of an incident.
const Device& DeviceOf(const Machine& machine, const DeviceRef& disk);

// Classes that were not queried are not reported as missing.
Machine BuildMachine(const QueryHeader& header, const QueryResult& result);

// The objects of a class, one of the four that a controller holds.
std::vector<const Object*> ObjectsOf(const Controller& controller, std::string_view className);

// How many objects of a class there are.
std::size_t CountOf(const Machine& machine, std::string_view className);

// The level of a property of the object; kUnsaid if no rule reads it.
Level LevelOf(const Machine& machine, const Object& object, std::string_view property);

// "34715/71096320" (MB and sectors of 512 bytes), "70007 MB", "1.5 TB" or "40960" (MB), as the tools print sizes.
std::optional<std::uint64_t> ReadBytes(std::string_view size);

}  // namespace hxahost
