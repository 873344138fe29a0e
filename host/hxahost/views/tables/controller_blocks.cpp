#include "host/hxahost/views/tables/controller_blocks.h"
#include "host/hxahost/result/property_values.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "host/hxahost/machine/device_owners.h"
#include "host/hxahost/terminal/table.h"
#include "host/hxahost/text/display_width.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/views/tables/controller_columns.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

namespace {

// Everything of one controller, by kind in the order of kDeviceKinds.
struct Block {
  std::string owner;
  std::vector<InstanceList> kinds;
};

std::vector<Block> BlocksOf(const InstanceList& instances) {
  const std::vector<std::string> owners = DeviceOwners(instances);
  std::vector<Block> blocks;
  std::unordered_map<std::string, std::size_t> places;
  for (const DeviceKind& kind : DeviceKinds()) {
    const auto index = static_cast<std::size_t>(&kind - DeviceKinds().data());
    for (std::size_t instance = 0; instance < instances.size(); ++instance) {
      if (instances[instance]->Class().name != kind.className) continue;
      const auto [place, isNew] = places.emplace(owners[instance], blocks.size());
      if (isNew) blocks.push_back({Printable(owners[instance]), std::vector<InstanceList>(DeviceKinds().size())});
      blocks[place->second].kinds[index].push_back(instances[instance]);
    }
  }
  return blocks;
}

// "serial 123, slot 2, ...": as many facts as fit on a line, and the next line goes on.
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

void WriteController(std::ostream& out, const Layout& layout, const std::string& owner,
                     const TPublishedInstance& controller) {
  std::string heading = "Controller " + owner;
  for (const std::string_view property : {"ControllerType", "ControllerStatus"}) {
    const std::string text = ShownText(controller, property);
    if (!text.empty()) heading += (property == "ControllerType" ? ": " : " - ") + text;
  }
  out << CutToWidth(heading, layout.width) << '\n';
  WriteFacts(out, layout, controller, IdentityFacts());
  WriteFacts(out, layout, controller, StateFacts());
}

// The plug-in publishes no controller whose status contains "Failed", and yet what hangs on it.
std::string_view WhyWithoutInstance(const QueryHeader& header) {
  const bool wasAskedFor = std::ranges::count(header.classes, DeviceKinds().front().className) > 0;
  return wasAskedFor ? " was not published: its status may say \"Failed\"" : " (controllers were not asked for)";
}

void WriteBlock(std::ostream& out, const QueryHeader& header, const Block& block) {
  const InstanceList& controllers = block.kinds.front();
  if (controllers.empty()) {
    out << CutToWidth("Controller " + block.owner, header.layout.width / 2) << WhyWithoutInstance(header) << '\n';
  }
  for (const auto& controller : controllers) WriteController(out, header.layout, block.owner, *controller);
  for (std::size_t index = 1; index < block.kinds.size(); ++index) {
    const DeviceKind& kind = DeviceKinds()[index];
    WriteInstances(out, header.layout, "  " + std::string(kind.heading), kind.columns, block.kinds[index]);
  }
}

}  // namespace

void WriteControllerBlocks(std::ostream& out, const QueryHeader& header, const InstanceList& instances) {
  for (const Block& block : BlocksOf(instances)) {
    out << '\n';
    WriteBlock(out, header, block);
  }
}

}  // namespace hxahost
