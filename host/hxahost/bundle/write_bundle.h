#pragma once

#include <cstddef>
#include <functional>
#include <ostream>
#include <string>

#include "host/hxahost/bundle/bundle.h"

namespace hxahost {

// A bundle as one file of text: docs/bundles.md describes it.
void WriteBundle(std::ostream& out, const Bundle& bundle);

// The same for a bundle whose outputs and log are not in memory: the functions return the output of a run, counted from
// 0, and the log.
void WriteBundle(std::ostream& out, const Bundle& bundle, const std::function<std::string(std::size_t run)>& output,
                 const std::function<std::string()>& log);
std::string WriteBundle(const Bundle& bundle);

}  // namespace hxahost
