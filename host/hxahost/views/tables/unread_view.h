#pragma once

#include <ostream>

#include "host/hxahost/result/query_result.h"

namespace hxahost {

// Writes the number of unread lines, and the lines by command, with their numbers in its text, counted from 1.
void WriteUnreadLines(std::ostream& out, const Layout& layout, const InstanceList& instances);

}  // namespace hxahost
