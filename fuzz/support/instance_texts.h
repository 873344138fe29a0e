#pragma once

#include <string>
#include <vector>

#include "host/hxahost/result/query_result.h"

// Each instance with its class, path and properties as a text; different instances have different texts.
std::vector<std::string> InstanceTexts(const hxahost::InstanceList& instances);

// Each text in a value: the value, or the elements of an array.
std::vector<std::string> TextsWithin(const NKVRHXA20::TCIMValue& value);
