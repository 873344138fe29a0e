#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "fuzz/support/fuzzed_machine.h"
#include "fuzz/support/record_texts.h"
#include "fuzz/support/require.h"
#include "plugin/host_interface/services.h"

// Ends the program unless every field of the records occurs in the tools' output, except numbers, identifiers and the
// given words of the plug-in.
void RequireProvenance(const ControllerList& controllers, const std::string& printed,
                       std::span<const std::string_view> ownWords);

// Collects twice from an input that answers for one utility: both results are equal, no utility is run more often than
// allowed, and the records contain only its output. The adapter may throw only std::out_of_range.
template <class Adapter>
void TryAdapter(const std::uint8_t* data, std::size_t size, const Utility& utility,
                std::span<const std::string_view> ownWords) {
  const Sections input(data, size);
  const FuzzedMachine machine(input, 0, {utility});
  std::string texts[2];
  ControllerList controllers;
  for (std::string& text : texts) {
    const std::size_t runsBefore = machine.Runs();
    Adapter adapter(NKVRHXA20::TRootObject::GetCoreLogger());
    try {
      adapter.Collect(0);
    } catch (const std::out_of_range&) {
      text = "ended early";
    }
    controllers = adapter.GetControllers();
    text += TextOf(controllers, adapter.GetRawData());
    Require(machine.Runs() - runsBefore <= utility.mostRuns, "a utility is not run more often than permitted");
  }
  Require(texts[0] == texts[1], "the same answers produce the same records");
  RequireProvenance(controllers, std::string(AsText(data, size)), ownWords);
}
