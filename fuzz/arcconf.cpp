// Every possible answer of arcconf, as a whole.
#include <string_view>

#include "fuzz/support/adapter_trial.h"
#include "fuzz/support/fuzzer.h"
#include "tools/arcconf/arcconf_adapter.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // The names of models, and the word between a spare disk and the drive that it is assigned to.
  static constexpr std::string_view kOwnWords[] = {
      "Zentraxis", "C5", "C6", "Zentraxis-B3", "Zentraxis-A2", "Unnamed", "HostRAID", "for",
  };
  TryAdapter<ArcconfData>(data, size, kArcconf, kOwnWords);
  return 0;
}
