#include "host/hxahost/machine/record_owners.h"

#include <algorithm>
#include <deque>
#include <iterator>
#include <map>
#include <string_view>
#include <utility>

#include "host/hxahost/result/property_values.h"
#include "host/hxahost/result/tool_names.h"
#include "host/hxahost/schema/class_names.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

namespace {

// Only the legacy utility has records of these classes.
constexpr std::string_view kLegacyClasses[] = {kDeviceErrorsClass, kTransferClass, "KVRSG_LogRecord_zxDDD",
                                               "KVRSG_LogRecord_SoftEvent", "KVRSG_LogRecord_HardEvent"};

// Each controller has at most one, in the order of the controllers.
constexpr std::string_view kVersionClasses[] = {kFirmwareClass, "KVRSG_zxBootBlockVersion", "KVRSG_zxBiosVersion"};

template <class Names>
bool IsAmong(const Names& names, std::string_view className) {
  return std::ranges::find(names, className) != std::end(names);
}

// The controller's number, also "3" of "3-C3 CH0 I00:Controller: 0Device #0".
std::string NumberOf(const TPublishedInstance& record) {
  for (const std::string_view property : {"ControllerNum", "Controller"}) {
    if (std::string number = RawText(record, property); !number.empty()) return number;
  }
  const std::string element = RawText(record, "SoftwareElementID");
  return element.substr(0, element.find('-'));
}

// The identifier of the device: "C3 CH0 I00:Controller: 0Device #0" in the example above.
std::string IdentifierOfDevice(const TPublishedInstance& version) {
  const std::string element = RawText(version, "SoftwareElementID");
  const std::size_t dash = element.find('-');
  return dash == element.npos ? "" : element.substr(dash + 1);
}

using Sharing = std::vector<const Controller*>;

class OwnerFinder {
 public:
  OwnerFinder(const Machine& machine, const InstanceList& instances) {
    for (const Controller& controller : machine.controllers) {
      sharing_[controller.number].push_back(&controller);
      for (const Device& device : controller.devices) {
        devices_[{controller.number, device.identifier}].push_back({controller.label, &device});
      }
    }
    for (const auto& instance : instances) ++counts_[KeyOf(*instance)];
  }

  // Must be called once for each record, in their order.
  RecordOwner Of(const TPublishedInstance& record) {
    const std::string number = NumberOf(record);
    if (number.empty()) return {};
    RecordOwner owner = FirmwareOwner(number, IdentifierOfDevice(record));
    if (owner.device != nullptr) return owner;
    const Sharing& sharing = sharing_[number];
    if (sharing.size() < 2) return {sharing.empty() ? number : sharing.front()->label};
    const Controller* const controller = Tell(record, sharing);
    return {controller == nullptr ? number + " (tool not known)" : controller->label};
  }

 private:
  using Key = std::pair<std::string_view, std::string>;

  static Key KeyOf(const TPublishedInstance& record) { return {record.Class().name, NumberOf(record)}; }

  // Devices with one identifier are taken in their order, because their versions have the same identifier.
  RecordOwner FirmwareOwner(const std::string& number, const std::string& identifier) {
    const auto named = devices_.find({number, identifier});
    if (identifier.empty() || named == devices_.end() || named->second.empty()) return {};
    RecordOwner owner = std::move(named->second.front());
    named->second.pop_front();
    return owner;
  }

  const Controller* Tell(const TPublishedInstance& record, const Sharing& sharing) {
    const std::string_view className = record.Class().name;
    if (IsAmong(kLegacyClasses, className)) {
      const auto legacy = std::ranges::find(sharing, kQcmdrun, &Controller::tool);
      return legacy == sharing.end() ? nullptr : *legacy;
    }
    const Key key = KeyOf(record);
    if (!IsAmong(kVersionClasses, className) || counts_[key] != sharing.size()) return nullptr;
    return sharing[seen_[key]++];
  }

  std::map<std::string, Sharing> sharing_;                                          // by number
  std::map<std::pair<std::string, std::string>, std::deque<RecordOwner>> devices_;  // by number and identifier
  std::map<Key, std::size_t> counts_;
  std::map<Key, std::size_t> seen_;
};

}  // namespace

std::vector<RecordOwner> RecordOwners(const Machine& machine, const InstanceList& instances) {
  OwnerFinder finder(machine, instances);
  std::vector<RecordOwner> owners;
  for (const auto& instance : instances) owners.push_back(finder.Of(*instance));
  return owners;
}

}  // namespace hxahost
