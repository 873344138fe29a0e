#include "host/hxahost/views/tables/controller_blocks.h"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/hxahost/result/property_values.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/text/display_width.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/views/controller_columns.h"
#include "host/hxahost/views/tables/instance_table.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

namespace {

// "serial 123, slot 2, ...": as many facts as fit on a line; the others follow on the next line.
void WriteFacts(std::ostream& out, const Layout& layout, const TPublishedInstance& controller,
                std::span<const Fact> facts) {
  constexpr std::string_view kIndent = "  ";
  std::string line;
  for (const Fact& fact : facts) {
    const std::string text = ShownText(controller, fact.property);
    if (text.empty()) continue;
    const std::string labelled = CutToWidth(std::string(fact.label) + " " + text, layout.width - kIndent.size() - 1);
    if (!line.empty() && kIndent.size() + DisplayWidth(line) + 2 + DisplayWidth(labelled) >= layout.width) {
      out << kIndent << line << ",\n";
      line.clear();
    }
    line += (line.empty() ? "" : ", ") + labelled;
  }
  if (!line.empty()) out << kIndent << line << '\n';
}

void WriteController(std::ostream& out, const Layout& layout, const std::string& label,
                     const TPublishedInstance& controller) {
  std::string heading = "Controller " + label;
  for (const std::string_view property : {"ControllerType", "ControllerStatus"}) {
    const std::string text = ShownText(controller, property);
    if (!text.empty()) heading += (property == "ControllerType" ? ": " : " - ") + text;
  }
  out << CutToWidth(heading, layout.width) << '\n';
  WriteFacts(out, layout, controller, IdentityFacts());
  WriteFacts(out, layout, controller, StateFacts());
}

// The plug-in leaves out a controller whose status contains "Failed", but publishes its drives and disks.
std::string_view WhyWithoutInstance(const QueryHeader& header) {
  return IsAskedFor(header, DeviceKinds().front().className) ? " was not published: its status may say \"Failed\""
                                                             : " (controllers were not asked for)";
}

std::string KindText(const Device& device) {
  switch (device.kind) {
    case HardwareKind::kDisk: return "HDD";
    case HardwareKind::kTape: return "tape";
    case HardwareKind::kEnclosure: return "enclosure";
    default: return Printable(device.type);
  }
}

void Complete(InstanceRow&, const DiskGroup&) {}
void Complete(InstanceRow& row, const LogicalDrive& drive) { row.bytes = drive.bytes; }
void Complete(InstanceRow& row, const Device& device) {
  row.bytes = device.bytes;
  row.location = Printable(device.location);
  row.kind = KindText(device);
}

template <class Kind>
void WriteObjects(std::ostream& out, const QueryHeader& header, std::string_view className,
                  const InstanceList& instances, const Machine& machine, const std::vector<Kind>& objects) {
  const std::span<const DeviceKind> kinds = DeviceKinds();
  const auto kind = std::ranges::find(kinds, className, &DeviceKind::className);
  std::vector<InstanceRow> rows;
  for (const Kind& object : objects) {
    rows.push_back({instances[object.instance].get()});
    Complete(rows.back(), object);
  }
  WriteInstances(out, header, "  " + std::string(kind->heading), kind->columns, rows,
                 [&](std::size_t row, std::string_view property) { return LevelOf(machine, objects[row], property); });
}

void WriteBlock(std::ostream& out, const QueryHeader& header, const InstanceList& instances, const Machine& machine,
                const Controller& controller) {
  const std::string label = Printable(controller.label);
  if (controller.units.empty()) {
    out << CutToWidth("Controller " + label, header.layout.width / 2) << WhyWithoutInstance(header) << '\n';
  }
  for (const auto& unit : controller.units) WriteController(out, header.layout, label, *instances[unit.instance]);
  WriteObjects(out, header, kLogicalDiskClass, instances, machine, controller.logicalDrives);
  WriteObjects(out, header, kDiskGroupClass, instances, machine, controller.groups);
  WriteObjects(out, header, kDiskDriveClass, instances, machine, controller.devices);
}

}  // namespace

void WriteControllerBlocks(std::ostream& out, const QueryHeader& header, const InstanceList& instances,
                           const Machine& machine) {
  for (const Controller& controller : machine.controllers) {
    out << '\n';
    WriteBlock(out, header, instances, machine, controller);
  }
}

}  // namespace hxahost
