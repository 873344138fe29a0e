#pragma once

#include <string>
#include <vector>

#include "host/hxahost/result/query_result.h"

// Each instance with its class, path and properties, as a text that differs where they do.
std::vector<std::string> InstanceTexts(const hxahost::InstanceList& instances);

// Each text within a value: one, or those of an array's elements.
std::vector<std::string> TextsWithin(const NKVRHXA20::TCIMValue& value);
