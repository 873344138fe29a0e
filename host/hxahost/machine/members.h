#pragma once

#include <string>
#include <vector>

#include "host/hxahost/machine/machine.h"

// The disks of disk groups and logical drives.
namespace hxahost {

// Fills in the members of the controller's groups and logical drives.
void FindMembers(Controller& controller, const InstanceList& instances);

// The pairs "0,7" (channel and number) in a list of disks, with any text between them.
std::vector<std::string> PlacesIn(const std::string& text);

// "Cntrlr4LogicalDrv2" ties a group without a letter to its logical drive: it is part of the group's identifier,
// "ZentraxisCntrlr4LogicalDrv2 0,2 0,3".
std::string DriveKey(const std::string& controller, const std::string& drive);
std::string DriveKeyOf(const NKVRHXA20::TPublishedInstance& group);

}  // namespace hxahost
