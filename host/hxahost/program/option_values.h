#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "host/hxahost/bundle/mask_places.h"
#include "host/hxahost/result/limits.h"
#include "plugin/host_interface/date_time.h"

// Reads values of options as typed. Each function throws ProgramError, which names the option, quotes the typed text
// and describes valid values.

namespace hxahost {

[[noreturn]] void Reject(const std::string& option, const std::string& typed, const std::string& whatToGive);

// A decimal number without other characters; throws nothing.
std::optional<unsigned> WholeNumber(const std::string& text);

// A whole number from 1 to most; empty if the text is empty.
std::optional<unsigned> ReadNumber(const std::string& option, const std::string& text,
                                   unsigned most = std::numeric_limits<unsigned>::max());

// --repeat: a number from 1 on.
unsigned ReadRepeat(const std::string& text);

// --os-type: the number of a system, or "none".
std::optional<std::uint16_t> ReadOsType(const std::string& text);

// --local-time: a CIM date and time.
NKVRHXA20::TCIMDateTime ReadLocalTime(const std::string& text);

// --width: columns of the tables.
unsigned ReadWidth(const std::string& text);

// --input-limit: a number of MiB; returns bytes.
std::uint64_t ReadInputLimit(const std::string& text);

// --mask: empty, "true" if it was given without a value, or "all".
std::optional<MaskScope> ReadMask(const std::string& text);
// --warn: "NAME=N" or "NAME=off", each.
Limits ReadLimits(const std::vector<std::string>& texts);

// The names that --warn takes.
std::string LimitNames();

// --expect: each the name of a utility.
void CheckTools(const std::vector<std::string>& names);

// The names that --expect takes.
std::string ToolNames();

// --color: one of its words.
void CheckColor(const std::string& text);

}  // namespace hxahost
