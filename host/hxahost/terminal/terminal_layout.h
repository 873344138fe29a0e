#pragma once

#include <cstddef>

#include "host/hxahost/program/options.h"
#include "host/hxahost/terminal/layout.h"

namespace hxahost {

// The page for the tables: the terminal's where they go to one and no option says otherwise.
Page PageFor(const QueryOptions& options);

// Whether the tables are to be ASCII alone: asked for, or the terminal shows nothing else.
bool IsAsciiPage(const QueryOptions& options);

// The columns of the terminal behind standard error.
std::size_t ProgressWidth();

}  // namespace hxahost
