#pragma once

#include <span>
#include <string_view>

#include "host/hxahost/machine/health_rules.h"
#include "host/hxahost/machine/machine.h"

// Whether anything is wrong with a machine, by the rules of health_rules.h.
namespace hxahost {

// What a rule, or the lack of one, says of a value.
struct Judgement {
  Level level = Level::kUnsaid;
  Meaning meaning;
};

// The classes that health is read from, in the order in which they are to be asked for.
std::span<const std::string_view> HealthClasses();

// Judges one text under the rules of a value that hold anywhere.
Judgement JudgeText(const WatchedValue& value, std::string_view text);

// Sets the levels and findings of the machine, whose objects and members are known. Of classes that were not asked for
// nothing is missed.
void Judge(Machine& machine, const QueryHeader& header, const QueryResult& result);

}  // namespace hxahost
