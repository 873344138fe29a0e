#pragma once

#include <string>

#include "host/hxahost/result/query_result.h"

// Names and identifiers of instances, for people and programs.
namespace hxahost {

// "DeviceID" of a device, "InstanceID" of statistics; "" for every other class.
std::string IdentifierOf(const NKVRHXA20::TPublishedInstance& instance);

// "enclosure 0, slot 8" of "Enclosure 0, Slot 8"; else "channel 2, ID 4"; else "device 4"; "" if none is published.
std::string LocationOf(const NKVRHXA20::TPublishedInstance& device, const std::string& channel, const std::string& id);

// "controller 4 (Zentraxis C6-e)", "logical drive 3 (Archive) of controller 4", "Hard drive at channel 0, ID 8 of
// controller 4": bytes as the tools printed them; "" for classes that are not devices. The owner is the label of
// the controller; "" means its number.
std::string NameOf(const NKVRHXA20::TPublishedInstance& instance, const std::string& owner);

}  // namespace hxahost
