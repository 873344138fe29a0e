// Every possible answer of the legacy utility, as a whole.
#include <string_view>

#include "fuzz/support/adapter_trial.h"
#include "fuzz/support/fuzzer.h"
#include "tools/qcmdrun/qcmdrun_adapter.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static constexpr std::string_view kOwnWords[] = {"Zentraxis", "Zentraxis-B3", "Zentraxis-A2"};
  TryAdapter<QcmdrunData>(data, size, kQcmdrun, kOwnWords);
  return 0;
}
