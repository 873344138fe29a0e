#pragma once

#include <string>
#include <vector>

#include "host/hxahost/machine/machine.h"

// Objects as people at the machine call them. Texts are printable.
namespace hxahost {

// "C4"; "C3 (arcconf)" if two share the number.
std::string ShortName(const Controller& controller);

// "\"Archive\" (RAID 5)", or "logical drive 3 (RAID 5)" if it has no name.
std::string ShortName(const LogicalDrive& drive);

// "NORDVIK NV73-15SAS 73.4 GB, S/N NV3LE77Q2H, FRU ZX20912", from the properties that are published.
std::string IdentityOf(const Device& device);

// "in \"Archive\" (RAID 5, degraded)", "hot spare", "in no logical drive".
std::string RoleOf(const Controller& controller, std::size_t device);

// Location, identity and, for a disk, its role.
std::string DescribeDevice(const Controller& controller, std::size_t device);

// "REPLACE the battery" of a finding whose action is "replace the battery"; "" without an action.
std::string InstructionOf(const Finding& finding);

// "degraded" of "Degraded, Rebuilding ( Rebuild : 38 % )", "critical" of "Critical (CRT)".
std::string StateWord(const State& state);

// "73.4 GB", from 1000 GB on "1.50 TB". Units are powers of 1000, as makers of disks use them.
std::string FormatBytes(std::uint64_t bytes);

// The same in the unit of the smallest of several sizes that are compared.
std::string FormatBytes(std::uint64_t bytes, std::uint64_t smallest);

}  // namespace hxahost
