#include "tests/support/controller_summary.h"

#include <algorithm>

namespace {

std::string WithoutLineEnds(std::string text) {
  std::erase_if(text, [](char character) { return character == '\r' || character == '\n'; });
  return text;
}

}  // namespace

std::string Summary(const ControllerList& controllers) {
  std::string summary;
  const auto add = [&](const std::string& line) { summary += WithoutLineEnds(line) + "\n"; };
  for (const auto& controller : controllers) {
    add(controller->ControllerNum + " " + controller->SerialNum);
    for (const auto& drive : controller->LogicalDevices) add(" drive " + drive->LogicalDriveNum + "|" + drive->Size);
    for (const auto& order : controller->StripeOrders) {
      const std::string shared = "ZentraxisCntrlr";
      const std::string id(order->CollectionID);
      add(" order " + id.substr(std::min(shared.size(), id.size())));
    }
    for (const auto& device : controller->PhysicalDevices) {
      add(" device " + device->DeviceIdSuffix + "|" + device->DeviceType + "|" + device->State);
    }
  }
  return summary;
}
