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

// A machine as its utilities describe it: the one value that people and monitoring see, each in a form of its own.
// Texts are bytes as the tools printed them, without the white space at both ends; "" where they printed none.
namespace hxahost {

// The text of a state, and what the rules make of it.
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
  std::optional<double> percent;  // that the capacity says, where it can be read
  std::string timeRemaining;
  std::string fru;
};

// A background operation: "Rebuild" of logical drive "3".
struct Operation {
  std::string name;
  std::string logicalDrive;
  std::string status;
  std::optional<double> percent;  // that is done; 0 to 100
  bool isActive = false;          // it runs now; otherwise it was the last one
};

struct ControllerUnit : Object {
  std::string model;
  std::string serialNumber;
  std::string firmware;
  State temperature;
  std::optional<double> celsius;  // that the temperature says, where it can be read
  Battery battery;
  std::vector<Operation> operations;
};

// Members are places in the controller's lists.
struct LogicalDrive : Object {
  std::string number;
  std::string title;      // "Archive"; "" where it has no name
  std::string raidLevel;  // "5"
  std::string size;
  std::optional<std::uint64_t> bytes;       // that the size says, where it can be read
  std::optional<std::uint64_t> badStripes;  // in which data was lost
  std::vector<std::size_t> groups;          // that it is built on
  std::vector<std::size_t> devices;         // that its own lists name
  std::vector<std::size_t> members;         // all of its devices, in their order
};

struct DiskGroup : Object {
  std::vector<std::size_t> devices;
};

// That its controller counted on a device.
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
  std::string location;  // "enclosure 0, slot 8"; else "channel 2, ID 4"; else "device 4"; "" where nothing tells
  std::string type;
  std::string vendor;
  std::string model;
  std::string serialNumber;
  std::string fru;
  std::string firmware;
  std::string size;
  std::optional<std::uint64_t> bytes;      // that the size says, where it can be read
  std::optional<ErrorCounts> errors;       // where its utility counts them
  std::vector<std::size_t> logicalDrives;  // that it is a member of
};

// Everything that belongs to one controller. The utilities count their controllers each by itself, so controllers of
// two of them may share a number.
struct Controller {
  std::string number;
  std::string label;                  // the number; "3 (arcconf)" or "3 (tool not known)" where two share it
  std::string_view tool;              // that described it; "" where nothing tells
  std::vector<ControllerUnit> units;  // one; none where it was not published; several where nothing tells them apart
  std::vector<LogicalDrive> logicalDrives;
  std::vector<DiskGroup> groups;
  std::vector<Device> devices;
};

// The objects, not judged.
std::vector<Controller> ReadControllers(const InstanceList& instances);

// The objects, not judged.
std::vector<Controller> ReadControllers(const InstanceList& instances);

struct Machine {
  std::vector<Controller> controllers;        // in the order in which they, or what belongs to them, were published
  std::vector<std::string_view> absentTools;  // utilities that are not installed, and need not be
  Incidents changes;                          // of expectations: those with findings, and those for information
  std::vector<Device> missingDisks;           // that were there at the baseline
  Findings findings;                          // what is wrong: the worst first, then in the order of the rules
  Incidents incidents;                        // their causes: the worst first, then in the order of the controllers
};

// The disk of an incident.
const Device& DeviceOf(const Machine& machine, const DeviceRef& disk);

// Of classes that were not asked for nothing is missed.
Machine BuildMachine(const QueryHeader& header, const QueryResult& result);

// The objects of a class, one of the four that a controller holds.
std::vector<const Object*> ObjectsOf(const Controller& controller, std::string_view className);

// How many objects of a class there are.
std::size_t CountOf(const Machine& machine, std::string_view className);

// What a property says of the object; kUnsaid where no rule reads it.
Level LevelOf(const Machine& machine, const Object& object, std::string_view property);

// "34715/71096320" (MB and sectors of 512 bytes), "70007 MB", "1.5 TB" or "40960" (MB), as the tools print sizes.
std::optional<std::uint64_t> ReadBytes(std::string_view size);

}  // namespace hxahost
