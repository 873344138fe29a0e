// Every possible answer of hrconf, as a whole.
#include <string_view>

#include "fuzz/support/adapter_trial.h"
#include "fuzz/support/fuzzer.h"
#include "tools/hrconf/hrconf_adapter.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // The only channel of releases that print no channels.
  static constexpr std::string_view kOwnWords[] = {"0"};
  TryAdapter<HrconfData>(data, size, kHrconf, kOwnWords);
  return 0;
}
