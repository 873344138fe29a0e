#include "fuzz/support/adapter_trial.h"

#include <algorithm>
#include <set>

#include "fuzz/support/provenance.h"
#include "tests/support/filled_fields.h"

namespace {

// Fields that the plug-in puts together.
constexpr std::string_view kOwnFields[] = {"ControllerNum", "CollectionID", "DeviceIdSuffix"};

class Inspection {
 public:
  Inspection(const std::string& printed, std::span<const std::string_view> ownWords)
      : printed_(printed), ownWords_(ownWords) {}

  template <class Record>
  void Inspect(const Record& record) {
    for (const auto& [name, field] : FieldsOf(record)) {
      if (std::ranges::find(kOwnFields, name) == std::end(kOwnFields)) {
        printed_.RequireWords(name, record.*field, ownWords_);
      } else {
        printed_.RequireBytes(name, record.*field);
      }
    }
  }

  // For newer utilities "Controller: " and the device's number; for the oldest one its output.
  void InspectSuffix(const ZenxPhysicalDevice& device) {
    constexpr std::string_view kPrefix = "Controller: ";
    std::string_view suffix = device.DeviceIdSuffix;
    if (suffix.starts_with(kPrefix)) suffix.remove_prefix(kPrefix.size());
    if (suffix.starts_with(device.Channel)) suffix.remove_prefix(device.Channel.size());
    printed_.RequireWords("DeviceIdSuffix", suffix, ownWords_);
  }

 private:
  Printed printed_;
  std::span<const std::string_view> ownWords_;
};

}  // namespace

void RequireProvenance(const ControllerList& controllers, const std::string& printed,
                       std::span<const std::string_view> ownWords) {
  Inspection inspection(printed, ownWords);
  std::set<std::string> numbers;
  for (const auto& controller : controllers) {
    Require(numbers.emplace(controller->ControllerNum).second, "no two controllers of a utility have one number");
    inspection.Inspect(*controller);
    for (const auto& drive : controller->LogicalDevices) inspection.Inspect(*drive);
    for (const auto& order : controller->StripeOrders) inspection.Inspect(*order);
    for (const auto& device : controller->PhysicalDevices) {
      inspection.Inspect(*device);
      inspection.InspectSuffix(*device);
      Require(device->ControllerNum == controller->ControllerNum, "a device has its controller's number");
    }
  }
}
