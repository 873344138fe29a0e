#pragma once

#include <ostream>

#include "host/hxahost/program/options.h"

// "hxahost bundle ...". Each throws ProgramError for a file that is no whole bundle.
namespace hxahost {

// One line for each item.
void ListBundle(const BundleOptions& options, std::ostream& out);

// What holds for all items, or the bytes of some: as lines for people, or as they are.
void ShowBundle(const BundleOptions& options, std::ostream& out);

// Writes the bundle with its secrets masked to the output that the options name.
void MaskBundleFile(const BundleOptions& options);

}  // namespace hxahost
