#pragma once

#include <string>
#include <string_view>

#include "host/hxahost/result/query_result.h"

// Properties as the plug-in published them, for code that compares them.
namespace hxahost {

// The text of a property without the white space at both ends, its bytes untouched; "" where it was not set or is no
// single text.
std::string RawText(const NKVRHXA20::TPublishedInstance& instance, std::string_view property);

}  // namespace hxahost
