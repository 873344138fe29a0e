#pragma once

#include <ostream>

#include "host/hxahost/program/options.h"

// "hxahost bundle ...". Each throws ProgramError for a file that is not a complete bundle.
namespace hxahost {

// One line for each item.
void ListBundle(const BundleOptions& options, std::ostream& out);

// Writes the part before the items, or the bytes of some items: as lines for people, or unchanged.
void ShowBundle(const BundleOptions& options, std::ostream& out);

// Writes the bundle with its secrets masked to the output that the options name, or to out.
void MaskBundleFile(const BundleOptions& options, std::ostream& out);

}  // namespace hxahost
