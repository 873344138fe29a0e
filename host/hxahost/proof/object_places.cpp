#include "host/hxahost/proof/object_places.h"

#include <algorithm>
#include <deque>
#include <iterator>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>

#include "host/hxahost/machine/members.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/result/raw_text_values.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/text/ascii.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

using Columns = std::string_view[];
constexpr Columns kBadStripes = {"LogicalDrive", "NumBadStripes"};
constexpr Columns kErrors = {"Channel", "ScsiId", "NumParityErrors", "NumSoftErrors", "NumHardErrors", "PFA", "Misc"};
constexpr Columns kTransfers = {"ControllerNum", "Channel", "ScsiId", "Params", "Req_Off", "Max_Txer_P", "Cur_Txer_p"};
constexpr Columns kDefunct = {"Date", "Time", "Channel", "ID", "Reason", "Descrip"};
constexpr Columns kManagerEvents = {"Severity", "MachineName", "Message"};

constexpr RowClass kRowClasses[] = {
    {"KVRSG_BadStripeData",          qcmdrun::kGetBadStripes,   "ControllerNum", kBadStripes,    true },
    {"KVRSG_zxSCSIDeviceData",       qcmdrun::kGetDeviceEvents, "ControllerNum", kErrors,        false},
    {"KVRSG_zxSCSISubStatData",      qcmdrun::kGetSubStats,     "",              kTransfers,     false},
    {"KVRSG_LogRecord_zxDDD",        qcmdrun::kGetDddEvents,    "Controller",    kDefunct,       false},
    {"KVRSG_LogRecord_RAIDMgrEvent", {},                        "",              kManagerEvents, false},
};

// "   Logical drive 2 - 3" names its first column; bars, tabs or labels separate the other values of a row.
std::vector<std::string> RowValues(const std::vector<std::string>& lines, const RawValues& row) {
  const std::string& line = lines[row.firstLine];
  const std::string_view label = kBadStripeLabels[0].label;
  const std::size_t found = line.find(label);
  if (found == line.npos || line.find(" - ", found) == line.npos) return row.values;
  std::vector<std::string> values;
  for (const std::string_view each : Split(std::string_view(line).substr(found + label.size()), " - ")) {
    values.emplace_back(Trim(each));
  }
  return values;
}

std::string KeyOf(const std::vector<std::string>& values) {
  std::string key;
  for (const std::string& value : values) key += WithSingleBlanks(value) + "\n";
  return key;
}

// The rows of a text by their values; rows with equal values are in the order of the text.
class RowIndex {
 public:
  explicit RowIndex(const std::vector<std::string>& lines) {
    const std::vector<RawValues> rows = ReadRawValues(lines);
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
      rows_[KeyOf(RowValues(lines, *row))].push_back(row->firstLine);
    }
  }

  std::optional<std::size_t> Take(const std::string& key) {
    const auto found = rows_.find(key);
    if (found == rows_.end() || found->second.empty()) return std::nullopt;
    const std::size_t line = found->second.back();
    found->second.pop_back();
    return line;
  }

  bool IsEmpty() const { return rows_.empty(); }

 private:
  std::unordered_map<std::string, std::vector<std::size_t>> rows_;
};

// Returns each block of a text once: two devices with one number are in the order of the text.
class BlockList {
 public:
  // More channels than a controller has. It limits the time for texts in which nothing matches.
  static constexpr std::size_t kMostTried = 64;

  explicit BlockList(const std::vector<TextBlock>& blocks) {
    for (const TextBlock& block : blocks) byKey_[block.key].push_back(&block);
  }

  template <class Fits>
  const TextBlock* Take(const std::string& key, const Fits& fits) {
    const auto found = byKey_.find(key);
    if (found == byKey_.end() || found->second.empty()) return nullptr;
    std::deque<const TextBlock*>& blocks = found->second;
    const auto end = blocks.begin() + static_cast<std::ptrdiff_t>(std::min(blocks.size(), kMostTried));
    auto taken = std::find_if(blocks.begin(), end, [&](const TextBlock* block) { return fits(*block); });
    if (taken == end) taken = blocks.begin();
    const TextBlock* const block = *taken;
    blocks.erase(taken);
    return block;
  }

 private:
  std::unordered_map<std::string, std::deque<const TextBlock*>> byKey_;
};

bool IsAbout(const ToolText& text, const Controller& controller) {
  return text.tool != nullptr && text.controller == controller.number &&
         (controller.tool.empty() || controller.tool == text.tool->tool.name);
}

// "Device #4" of one tool is "4" of another; the third identifies a device only by its place.
std::string NumberOf(const TPublishedInstance& device) {
  const std::string number = RawText(device, "DeviceNumber");
  return number.empty() ? RawText(device, "ScsiId") : number.substr(number.rfind('#') + 1);
}

std::string GroupKey(const TPublishedInstance& group, const Controller& controller) {
  const std::string letter = RawText(group, "Array");
  if (!letter.empty()) return letter;
  const std::string key = DriveKeyOf(group);
  const std::string prefix = DriveKey(controller.number, "");
  return key.starts_with(prefix) ? key.substr(prefix.size()) : "";
}

class PlaceFinder {
 public:
  PlaceFinder(const InstanceList& instances, const std::vector<ToolText>& texts)
      : instances_(instances), texts_(texts), places_(instances.size()) {}

  void AddController(const Controller& controller) {
    for (const ToolText& text : texts_) {
      if (!IsAbout(text, controller)) continue;
      for (const ControllerUnit& unit : controller.units) AddWhole(unit.instance, text);
      if (Answers(text, kGetConfig)) AddObjects(controller, text);
    }
  }

  // Software instances contain only the number of their controller.
  void AddSoftware() {
    for (std::size_t place = 0; place < instances_.size(); ++place) {
      const std::string number = RawText(*instances_[place], "SoftwareElementID");
      if (number.empty()) continue;
      for (const ToolText& text : texts_) {
        if (text.controller == number) AddWhole(place, text);
      }
    }
  }

  void AddRows() {
    for (std::size_t place = 0; place < instances_.size(); ++place) {
      const RowClass* const rows = FindRowClass(instances_[place]->Class().name);
      if (rows != nullptr) AddRow(place, *rows);
    }
  }

  std::vector<std::vector<Place>> Take() { return std::move(places_); }

 private:
  void AddWhole(std::size_t instance, const ToolText& text) {
    places_[instance].push_back({&text, 0, text.lines.size(), {}});
  }

  void AddBlock(std::size_t instance, const ToolText& text, const TextBlock* block) {
    if (block != nullptr) places_[instance].push_back({&text, block->first, block->end, block->heading});
  }

  void AddRow(std::size_t place, const RowClass& rows) {
    const TPublishedInstance& instance = *instances_[place];
    std::vector<std::string> values;
    for (const std::string_view column : rows.columns) values.push_back(RawText(instance, column));
    const std::string key = KeyOf(values);
    for (const ToolText& text : texts_) {
      if (!Answers(text, rows.command)) continue;
      if (!rows.controller.empty() && text.controller != RawText(instance, rows.controller)) continue;
      RowIndex& index = rows_.try_emplace(&text, text.lines).first->second;
      const auto line = index.Take(key);
      if (line) return places_[place].assign(1, {&text, *line, *line + 1, {}});
      if (!index.IsEmpty() || !rows.isMadeWithoutRows) places_[place].assign(1, {&text, 0, 0, {}});
    }
  }

  void AddObjects(const Controller& controller, const ToolText& text) {
    const auto fitsAny = [](const TextBlock&) { return true; };
    BlockList drives(text.drives);
    for (const LogicalDrive& drive : controller.logicalDrives) {
      AddBlock(drive.instance, text, drives.Take(drive.number, fitsAny));
    }
    BlockList groups(text.groups);
    for (const DiskGroup& group : controller.groups) {
      AddBlock(group.instance, text, groups.Take(GroupKey(*instances_[group.instance], controller), fitsAny));
    }
    BlockList devices(text.devices);
    for (const Device& device : controller.devices) {
      const auto isOnChannel = [&](const TextBlock& block) {
        return !block.heading || ChannelIn(text.lines[*block.heading]) == device.channel;
      };
      AddBlock(device.instance, text, devices.Take(DeviceKey(NumberOf(*instances_[device.instance])), isOnChannel));
    }
  }

  const InstanceList& instances_;
  const std::vector<ToolText>& texts_;
  std::vector<std::vector<Place>> places_;
  std::unordered_map<const ToolText*, RowIndex> rows_;
};

}  // namespace

std::vector<std::vector<Place>> FindPlaces(const Machine& machine, const InstanceList& instances,
                                           const std::vector<ToolText>& texts) {
  PlaceFinder finder(instances, texts);
  for (const Controller& controller : machine.controllers) finder.AddController(controller);
  finder.AddSoftware();
  finder.AddRows();
  return finder.Take();
}

const RowClass* FindRowClass(std::string_view className) {
  const auto* const found = std::ranges::find(kRowClasses, className, &RowClass::className);
  return found == std::end(kRowClasses) ? nullptr : found;
}

}  // namespace hxahost
