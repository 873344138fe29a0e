#pragma once

#include <span>
#include <string_view>

#include "host/hxahost/machine/health_rules.h"
#include "host/hxahost/machine/machine.h"

// Whether anything is wrong with a machine, by the rules of health_rules.h.
namespace hxahost {

// The level and meaning of a value, by its rule or because no rule names it.
struct Judgement {
  Level level = Level::kUnsaid;
  Meaning meaning;
};

// The classes that health is read from, in the order in which they should be queried.
std::span<const std::string_view> HealthClasses();

// Judges one text of a value by the rules that apply anywhere.
Judgement JudgeText(const WatchedValue& value, std::string_view text);

// Sets the levels and findings of the machine, whose objects and members are complete. Classes that were not queried
// are not reported as missing.
void Judge(Machine& machine, const QueryHeader& header, const QueryResult& result);

}  // namespace hxahost
